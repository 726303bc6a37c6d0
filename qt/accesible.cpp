// SPDX-License-Identifier: MIT
// The accessible faces of the grid and of its cells, and the notices about them.
#include "qt/accesible.h"

#include "core/geometria.h"
#include "qt/tabla_widget.h"
#include "qt/texto_qt.h"
#include "qt/textos.h"
#include "qt/vista_rejilla.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QMetaObject>
#include <QPointer>
#include <QWindow>

#include <algorithm>
#include <numeric>
#include <optional>

namespace Qlt4_Tabla {

namespace {

std::uint64_t clave_de(int fila, int col) {
    return (static_cast<std::uint64_t>(static_cast<std::uint32_t>(fila)) << 32) |
        static_cast<std::uint32_t>(col);
}

bool existe(const Tablero& t, int fila, int col) {
    return fila >= 0 && fila < t.Rows() && col >= 0 && col < t.Cols();
}

bool seleccionada(const Tablero& t, int fila, int col) {
    const Bloque b = t.seleccion();
    return fila >= b.fila1 && fila <= b.fila2 && col >= b.col1 && col <= b.col2;
}

// One cell. It knows its place only; everything else is read from the grid when asked.
class CeldaAccesible final : public QAccessibleInterface,
                             public QAccessibleTableCellInterface,
                             public QAccessibleActionInterface {
public:
    CeldaAccesible(VistaRejilla& vista, int fila, int col) : vista_(&vista), fila_(fila), col_(col) {}

    void pon_fila(int fila) { fila_ = fila; }

    [[nodiscard]] bool isValid() const override { return vista_ && existe(tablero(), fila_, col_); }

    [[nodiscard]] QObject* object() const override { return nullptr; }

    [[nodiscard]] QWindow* window() const override {
        return vista_ ? vista_->window()->windowHandle() : nullptr;
    }

    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    [[nodiscard]] QAccessibleInterface* parent() const override { return table(); }

    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }

    [[nodiscard]] int childCount() const override { return 0; }

    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    [[nodiscard]] QString text(QAccessible::Text que) const override {
        if (!isValid()) return {};
        if (que == QAccessible::Name) return nombre_de_celda(vista_->tabla(), fila_, col_);
        return que == QAccessible::Value ? a_qstring(tablero().TextMatrix(fila_, col_)) : QString();
    }

    void setText(QAccessible::Text, const QString&) override {} // values are typed into the editor

    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType tipo) override;

    // QAccessibleTableCellInterface
    [[nodiscard]] bool isSelected() const override {
        return isValid() && seleccionada(tablero(), fila_, col_);
    }

    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override {
        return fila_ == 0 ? QList<QAccessibleInterface*>() : hermana(0, col_);
    }

    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override {
        return col_ == 0 ? QList<QAccessibleInterface*>() : hermana(fila_, 0);
    }

    [[nodiscard]] int columnIndex() const override { return col_; }

    [[nodiscard]] int rowIndex() const override { return fila_; }

    // Merged cells are drawn as one; reading, editing and selecting still see single ones.
    [[nodiscard]] int columnExtent() const override { return 1; }

    [[nodiscard]] int rowExtent() const override { return 1; }

    [[nodiscard]] QAccessibleInterface* table() const override {
        return vista_ ? QAccessible::queryAccessibleInterface(vista_) : nullptr;
    }

    // QAccessibleActionInterface: the cursor can be put on a data cell.
    [[nodiscard]] QStringList actionNames() const override {
        return es_de_datos() ? QStringList(setFocusAction()) : QStringList();
    }

    void doAction(const QString& accion) override {
        if (accion != setFocusAction() || !es_de_datos() || !isValid()) return;
        vista_->setFocus(Qt::OtherFocusReason);
        vista_->tabla().mandos().elige_celda(fila_, col_);
    }

    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    [[nodiscard]] const Tablero& tablero() const { return vista_->tablero(); }

    [[nodiscard]] bool es_de_datos() const { return fila_ > 0 && col_ > 0; }

    [[nodiscard]] QList<QAccessibleInterface*> hermana(int fila, int col) const {
        QAccessibleInterface* tabla = isValid() ? table() : nullptr;
        return tabla ? QList<QAccessibleInterface*>{tabla->tableInterface()->cellAt(fila, col)}
                     : QList<QAccessibleInterface*>();
    }

    QPointer<VistaRejilla> vista_;
    int fila_;
    int col_;
};

// The part that is seen, on the screen; empty when nothing of the cell is.
QRect CeldaAccesible::rect() const {
    if (!isValid()) return {};
    const Rectangulo r = parte_visible(tablero(), fila_, col_);
    const Unidades u = vista_->unidades();
    const QPoint uno(u.px_x(r.izquierda), u.px_y(r.arriba));
    const QPoint dos(u.px_x(r.derecha()), u.px_y(r.abajo()));
    if (dos.x() <= uno.x() || dos.y() <= uno.y()) return {};
    return {vista_->viewport()->mapToGlobal(uno), QSize(dos.x() - uno.x(), dos.y() - uno.y())};
}

QAccessible::Role CeldaAccesible::role() const {
    if (fila_ == 0) return QAccessible::ColumnHeader;
    return col_ == 0 ? QAccessible::RowHeader : QAccessible::Cell;
}

QAccessible::State CeldaAccesible::state() const {
    QAccessible::State s;
    s.invalid = !isValid();
    if (s.invalid) return s;
    const Tablero& t = tablero();
    const bool actual = fila_ == t.Row() && col_ == t.Col();
    s.disabled = !vista_->isEnabled();
    s.selectable = es_de_datos();
    s.focusable = es_de_datos();
    s.selected = isSelected();
    s.active = actual;
    s.focused = actual && vista_->hasFocus();
    s.editable = es_de_datos() && !bloqueada(vista_->tabla(), col_);
    s.readOnly = !s.editable;
    s.invisible = t.ancho_visible(col_) == 0 || !vista_->isVisible();
    s.offscreen = rect().isEmpty();
    return s;
}

void* CeldaAccesible::interface_cast(QAccessible::InterfaceType tipo) {
    if (tipo == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
    if (tipo == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

// The grid as a table. While the widget dies it is a table without cells.
class RejillaAccesible final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit RejillaAccesible(VistaRejilla& vista) : QAccessibleWidget(&vista, QAccessible::Table) {}

    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType tipo) override {
        if (tipo == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(tipo);
    }

    [[nodiscard]] QString text(QAccessible::Text que) const override;

    // Children are the cells, row by row.
    [[nodiscard]] int childCount() const override { return rowCount() * columnCount(); }

    [[nodiscard]] QAccessibleInterface* child(int indice) const override {
        const int columnas = columnCount();
        return indice < 0 || columnas == 0 ? nullptr : cellAt(indice / columnas, indice % columnas);
    }

    [[nodiscard]] int indexOfChild(const QAccessibleInterface* hijo) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

    // QAccessibleTableInterface
    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }

    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }

    [[nodiscard]] QAccessibleInterface* cellAt(int fila, int col) const override {
        CeldasAccesibles* c = celdas();
        return c == nullptr ? nullptr : c->celda(fila, col);
    }

    [[nodiscard]] int selectedCellCount() const override {
        const Bloque b = seleccion();
        return (b.fila2 - b.fila1 + 1) * (b.col2 - b.col1 + 1);
    }

    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;

    [[nodiscard]] QString columnDescription(int col) const override {
        const VistaRejilla* v = vista();
        return v && existe(v->tablero(), 0, col) ? nombre_de_columna(v->tablero(), col) : QString();
    }

    [[nodiscard]] QString rowDescription(int fila) const override {
        const VistaRejilla* v = vista();
        return v && existe(v->tablero(), fila, 0) ? a_qstring(v->tablero().TextMatrix(fila, 0)) : QString();
    }

    [[nodiscard]] int selectedColumnCount() const override {
        return static_cast<int>(selectedColumns().size());
    }

    [[nodiscard]] int selectedRowCount() const override {
        const Bloque b = seleccion();
        return isRowSelected(b.fila1) ? b.fila2 - b.fila1 + 1 : 0;
    }

    [[nodiscard]] int columnCount() const override { return vista() ? vista()->tablero().Cols() : 0; }

    [[nodiscard]] int rowCount() const override { return vista() ? vista()->tablero().Rows() : 0; }

    [[nodiscard]] QList<int> selectedColumns() const override;
    [[nodiscard]] QList<int> selectedRows() const override;
    [[nodiscard]] bool isColumnSelected(int col) const override;
    [[nodiscard]] bool isRowSelected(int fila) const override;

    bool selectRow(int fila) override { return elige({fila, 1, fila, columnCount() - 1}); }

    bool selectColumn(int col) override { return elige({1, col, rowCount() - 1, col}); }

    bool unselectRow(int fila) override { return isRowSelected(fila) && deja_la_celda(); }

    bool unselectColumn(int col) override { return isColumnSelected(col) && deja_la_celda(); }

    void modelChange(QAccessibleTableModelChangeEvent*) override {} // the cells follow by themselves

private:
    [[nodiscard]] VistaRejilla* vista() const { return qobject_cast<VistaRejilla*>(object()); }

    [[nodiscard]] CeldasAccesibles* celdas() const {
        const VistaRejilla* v = vista();
        return v ? v->findChild<CeldasAccesibles*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    }

    [[nodiscard]] Bloque seleccion() const { return vista() ? vista()->tablero().seleccion() : Bloque{}; }

    bool elige(const Bloque& b);
    bool deja_la_celda();
};

QString RejillaAccesible::text(QAccessible::Text que) const {
    const QString propio = QAccessibleWidget::text(que);
    if (!propio.isEmpty() || !vista()) return propio;
    const EstadoTabla& e = vista()->tabla().estado();
    if (que == QAccessible::Description) return a_qstring(e.etiquetas.labNumeroFilas.texto);
    if (que != QAccessible::Name) return {};
    const QWidget* widget = vista()->parentWidget();
    if (widget && !widget->accessibleName().isEmpty()) return widget->accessibleName();
    const std::string titulo = e.nombres.titulo();
    return a_qstring(titulo.empty() ? textos::tabla : std::string_view(titulo));
}

int RejillaAccesible::indexOfChild(const QAccessibleInterface* hijo) const {
    const auto* celda = dynamic_cast<const CeldaAccesible*>(hijo);
    if (celda == nullptr || !celda->isValid() || celda->table() != this) return -1;
    return celda->rowIndex() * columnCount() + celda->columnIndex();
}

QAccessibleInterface* RejillaAccesible::childAt(int x, int y) const {
    VistaRejilla* v = vista();
    if (!v) return nullptr;
    const QPoint p = v->viewport()->mapFromGlobal(QPoint(x, y));
    if (!v->viewport()->rect().contains(p)) return nullptr;
    const Unidades u = v->unidades();
    const Celda c = celda_en(v->tablero(), u.twips_x(p.x()), u.twips_y(p.y()));
    return cellAt(c.fila, c.col);
}

QAccessibleInterface* RejillaAccesible::focusChild() const {
    VistaRejilla* v = vista();
    if (v && v->hasFocus()) return cellAt(v->tablero().Row(), v->tablero().Col());
    return QAccessibleWidget::focusChild();
}

// Only those in sight: a selected column may have a million cells. selectedCellCount tells them all.
QList<QAccessibleInterface*> RejillaAccesible::selectedCells() const {
    QList<QAccessibleInterface*> lista;
    const VistaRejilla* v = vista();
    if (!v) return lista;
    const Bloque b = seleccion();
    const auto pon_fila = [&](int fila) {
        for (int col = b.col1; col <= b.col2; ++col) lista << cellAt(fila, col);
    };
    if (b.fila1 == 0) pon_fila(0);
    const int hasta = std::min(b.fila2, ultima_fila_visible(v->tablero()));
    for (int fila = std::max(b.fila1, v->tablero().TopRow()); fila <= hasta; ++fila) pon_fila(fila);
    return lista;
}

QList<int> RejillaAccesible::selectedColumns() const {
    QList<int> lista;
    for (int col = 1; col < columnCount(); ++col)
        if (isColumnSelected(col)) lista << col;
    return lista;
}

QList<int> RejillaAccesible::selectedRows() const {
    const Bloque b = seleccion();
    QList<int> lista(selectedRowCount());
    std::iota(lista.begin(), lista.end(), b.fila1);
    return lista;
}

bool RejillaAccesible::isColumnSelected(int col) const {
    const Bloque b = seleccion();
    return rowCount() > 1 && col >= std::max(1, b.col1) && col <= b.col2 && b.fila1 <= 1 &&
        b.fila2 == rowCount() - 1;
}

bool RejillaAccesible::isRowSelected(int fila) const {
    const Bloque b = seleccion();
    return columnCount() > 1 && fila >= std::max(1, b.fila1) && fila <= b.fila2 && b.col1 <= 1 &&
        b.col2 == columnCount() - 1;
}

// Headers are no part of a selection.
bool RejillaAccesible::elige(const Bloque& b) {
    VistaRejilla* v = vista();
    if (!v || b.fila1 < 1 || b.col1 < 1) return false;
    v->tabla().mandos().elige_bloque(b.fila1, b.col1, b.fila2, b.col2);
    return seleccion() == b;
}

// A selection is one rectangle, so that what is left of it is the current cell.
bool RejillaAccesible::deja_la_celda() {
    const Tablero& t = vista()->tablero();
    vista()->tabla().mandos().elige_celda(t.Row(), t.Col());
    return selectedCellCount() == 1;
}

QAccessibleInterface* fabrica(const QString&, QObject* objeto) {
    auto* vista = qobject_cast<VistaRejilla*>(objeto);
    return vista == nullptr ? nullptr : new RejillaAccesible(*vista);
}

} // namespace

void anuncia(QWidget& etiqueta) {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent e(&etiqueta, QAccessible::Alert);
    QAccessible::updateAccessibility(&e);
}

void hazlo_accesible(TablaWidget& widget, VistaRejilla& vista) {
    QAccessible::installFactory(fabrica);
    auto* celdas = new CeldasAccesibles(vista);
    QObject::connect(&widget, &TablaWidget::filas_insertadas, celdas, &CeldasAccesibles::filas_insertadas);
    QObject::connect(&widget, &TablaWidget::filas_borradas, celdas, &CeldasAccesibles::filas_borradas);
    QObject::connect(
        &widget, &TablaWidget::contenido_cambiado, celdas, &CeldasAccesibles::contenido_cambiado);
    QObject::connect(&vista, &VistaRejilla::cursor_movido, celdas, &CeldasAccesibles::cursor_movido);
    QObject::connect(
        &vista, &VistaRejilla::celda_actual_cambiada, celdas, &CeldasAccesibles::celda_actual_cambiada);
}

// --- CeldasAccesibles ---

CeldasAccesibles::CeldasAccesibles(VistaRejilla& vista) : QObject(&vista), vista_(vista) {
    vista.installEventFilter(this);
}

CeldasAccesibles::~CeldasAccesibles() {
    for (const auto& [clave, id] : ids_) QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* CeldasAccesibles::celda(int fila, int col) {
    if (!existe(vista_.tablero(), fila, col)) return nullptr;
    const auto [sitio, nueva] = ids_.try_emplace(clave_de(fila, col), 0);
    if (!nueva) {
        if (QAccessibleInterface* hecha = QAccessible::accessibleInterface(sitio->second)) return hecha;
    }
    auto* celda = new CeldaAccesible(vista_, fila, col);
    sitio->second = QAccessible::registerAccessibleInterface(celda);
    return celda;
}

// Gives every cell made its new row; those without one are forgotten.
template <class Lugar>
void CeldasAccesibles::recoloca(Lugar lugar) {
    std::unordered_map<Clave, QAccessible::Id> nuevas;
    for (const auto& [clave, id] : ids_) {
        auto* celda = static_cast<CeldaAccesible*>(QAccessible::accessibleInterface(id));
        if (celda == nullptr) continue;
        const std::optional<int> fila = lugar(celda->rowIndex());
        if (fila && existe(vista_.tablero(), *fila, celda->columnIndex())) {
            celda->pon_fila(*fila);
            nuevas.emplace(clave_de(*fila, celda->columnIndex()), id);
        } else {
            QAccessible::deleteAccessibleInterface(id);
        }
    }
    ids_.swap(nuevas);
}

void CeldasAccesibles::filas_insertadas(int fila, int n) {
    recoloca([=](int f) { return std::optional(f < fila ? f : f + n); });
    avisa_filas(QAccessibleTableModelChangeEvent::RowsInserted, fila, n);
}

void CeldasAccesibles::filas_borradas(int fila, int n) {
    recoloca([=](int f) -> std::optional<int> {
        if (f < fila) return f;
        return f < fila + n ? std::nullopt : std::optional(f - n);
    });
    avisa_filas(QAccessibleTableModelChangeEvent::RowsRemoved, fila, n);
}

void CeldasAccesibles::contenido_cambiado() {
    recoloca([](int f) { return std::optional(f); });
    if (!alguien_oye()) return;
    QAccessibleTableModelChangeEvent e(&vista_, QAccessibleTableModelChangeEvent::ModelReset);
    avisa(e);
}

void CeldasAccesibles::avisa(QAccessibleEvent& e) {
    if (oyente_)
        oyente_(e);
    else
        QAccessible::updateAccessibility(&e);
}

void CeldasAccesibles::avisa_filas(int tipo, int fila, int n) {
    if (!alguien_oye()) return;
    QAccessibleTableModelChangeEvent e(
        &vista_, static_cast<QAccessibleTableModelChangeEvent::ModelChangeType>(tipo));
    e.setFirstRow(fila);
    e.setLastRow(fila + n - 1);
    avisa(e);
}

void CeldasAccesibles::cursor_movido() {
    olvida_lejanas();
    if (!alguien_oye()) return;
    QAccessibleEvent e(&vista_, QAccessible::SelectionWithin);
    avisa(e);
    avisa_foco();
}

// A cursor that the host moves while the user types elsewhere takes no reader away from there.
void CeldasAccesibles::avisa_foco() {
    const Tablero& t = vista_.tablero();
    if (!alguien_oye() || !vista_.hasFocus() || !existe(t, t.Row(), t.Col())) return;
    QAccessibleEvent e(&vista_, QAccessible::Focus);
    e.setChild(t.Row() * t.Cols() + t.Col());
    avisa(e);
}

void CeldasAccesibles::celda_actual_cambiada() {
    const Tablero& t = vista_.tablero();
    if (!alguien_oye() || !existe(t, t.Row(), t.Col())) return;
    QAccessibleEvent e(&vista_, QAccessible::NameChanged);
    e.setChild(t.Row() * t.Cols() + t.Col());
    avisa(e);
}

void CeldasAccesibles::olvida_lejanas() {
    if (ids_.size() <= MAX_CELDAS_HECHAS) return;
    const Tablero& t = vista_.tablero();
    const int ultima = ultima_fila_visible(t);
    recoloca([&](int f) {
        const bool cerca = f == 0 || f == t.Row() || (f >= t.TopRow() && f <= ultima);
        return cerca ? std::optional(f) : std::nullopt;
    });
}

// The toolkit tells of the grid's focus after this event; the cell's comes behind it.
bool CeldasAccesibles::eventFilter(QObject* objeto, QEvent* e) {
    if (e->type() == QEvent::FocusIn && alguien_oye())
        QMetaObject::invokeMethod(this, &CeldasAccesibles::avisa_foco, Qt::QueuedConnection);
    return QObject::eventFilter(objeto, e);
}

} // namespace Qlt4_Tabla
