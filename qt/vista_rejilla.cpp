// SPDX-License-Identifier: MIT
// Translates the window's events into calls of Mandos and repaints what the notices name.
#include "qt/vista_rejilla.h"

#include "base/teclas.h"
#include "core/geometria.h"
#include "qt/medidas_rejilla.h"
#include "qt/pintor_rejilla.h"
#include "qt/teclas_qt.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cstdlib>

namespace Qlt4_Tabla {

namespace {

constexpr int TOLERANCIA_BORDE_PX = 4;
constexpr int MAX_PEDIDOS = 64; // beyond this many pieces one whole repaint is cheaper
constexpr int MUESCA = 120; // wheel angle of one notch

Boton boton_de(Qt::MouseButton b) {
    if (b == Qt::RightButton) return Boton::Derecho;
    return b == Qt::MiddleButton ? Boton::Central : Boton::Izquierdo;
}

} // namespace

VistaRejilla::VistaRejilla(Tabla0& tabla, QWidget* padre) : QAbstractScrollArea(padre), tabla_(tabla) {
    setObjectName(QStringLiteral("Tablero"));
    setFocusPolicy(Qt::TabFocus); // and by a click, but not on a column's edge: see mousePressEvent
    setAttribute(Qt::WA_InputMethodEnabled);
    setContextMenuPolicy(Qt::PreventContextMenu);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setFrameShape(QFrame::StyledPanel);
    verticalScrollBar()->setObjectName(QStringLiteral("filas"));
    horizontalScrollBar()->setObjectName(QStringLiteral("columnas"));
    horizontalScrollBar()->setSingleStep(PASO_HORIZONTAL_PX);
    mide_filas();
    todo_cambiado();
}

// --- The editors over it ---

void VistaRejilla::editor_mostrado() {
    if (!hasFocus()) repinta_realce(); // with the editor it takes the look of having the focus
    clase_ventana_ = window()->metaObject();
    window()->installEventFilter(this);
}

// A window that is being destroyed hides too, but is no more of its own class: the host behind it is half
// gone and must not hear of a value.
void VistaRejilla::editor_oculto() {
    if (window()->metaObject() == clase_ventana_)
        confirma_editor();
    else
        tabla_.mandos().editor().descarta();
    if (!hasFocus()) repinta_realce(); // with the editor it lost the look of having the focus
}

void VistaRejilla::confirma_editor() {
    tabla_.mandos().casilla_pierde_foco(MotivoFoco::Otro);
    tabla_.mandos().lista_pierde_foco(MotivoFoco::Otro);
}

bool VistaRejilla::eventFilter(QObject* objeto, QEvent* e) {
    if (e->type() == QEvent::Close && objeto == window()) confirma_editor();
    return QAbstractScrollArea::eventFilter(objeto, e);
}

// --- What the grid tells ---

QRect VistaRejilla::rect_celda(int fila, int col) const {
    return en_px(rectangulo_celda(tablero(), fila, col), unidades());
}

void VistaRejilla::repinta(const QRect& zona) {
    if (++pedidos_ == MAX_PEDIDOS) viewport()->update();
    if (pedidos_ < MAX_PEDIDOS) viewport()->update(zona);
}

void VistaRejilla::repinta_filas(int fila1, int fila2) {
    const int ultima = ultima_fila_visible(tablero());
    if (fila1 == 0) repinta(QRect(0, 0, viewport()->width(), rect_celda(0, 0).height()));
    const int desde = std::max(fila1, tablero().TopRow());
    const int hasta = std::min(fila2, ultima);
    if (desde > hasta) return;
    const int y1 = rect_celda(desde, 0).top();
    const int y2 = rect_celda(hasta, 0).bottom();
    repinta(QRect(0, y1, viewport()->width(), y2 - y1 + 1));
}

// What looks another with the focus: the selection, the frame of the current cell, and their headers.
void VistaRejilla::repinta_realce() {
    const Bloque s = tablero().seleccion();
    const int fila = tablero().Row();
    repinta_filas(0, 0);
    repinta_filas(std::min(s.fila1, fila), std::max(s.fila2, fila));
}

void VistaRejilla::celdas_cambiadas(int fila1, int col1, int fila2, int col2) {
    const int fila = tablero().Row();
    const int col = tablero().Col();
    if (fila1 <= fila && fila <= fila2 && col1 <= col && col <= col2) emit celda_actual_cambiada();
    if (pedidos_ >= MAX_PEDIDOS) return;
    if (tablero().MergeCells() != 0) { // the run above or below the cell may begin or end there now
        repinta_filas(std::min(fila1, 1), tablero().Rows() - 1);
        return;
    }
    if (fila1 != fila2 || col1 != col2) {
        repinta_filas(fila1, fila2);
        return;
    }
    if (fila1 != 0 && (fila1 < tablero().TopRow() || fila1 > ultima_fila_visible(tablero()))) return;
    repinta(rect_celda(fila1, col1));
}

void VistaRejilla::filas_cambiadas(int desde) {
    pon_barras();
    dibujado_.seleccion = tablero().seleccion();
    const int y = unidades().px_y(y_fila(tablero(), std::max(desde, tablero().TopRow()))); // may be the end
    if (y < viewport()->height()) repinta(QRect(0, y, viewport()->width(), viewport()->height() - y));
    if (tablero().hay_altos()) viewport()->update();
    tabla_.mandos().recoloca_editor();
}

void VistaRejilla::seleccion_cambiada() {
    const Bloque nueva = tablero().seleccion();
    const Bloque& vieja = dibujado_.seleccion;
    repinta_filas(std::min(vieja.fila1, dibujado_.fila), std::max(vieja.fila2, dibujado_.fila));
    repinta_filas(nueva.fila1, nueva.fila2);
    if (nueva.col1 != vieja.col1 || nueva.col2 != vieja.col2) repinta_filas(0, 0);
    dibujado_.seleccion = nueva;
    dibujado_.fila = tablero().Row();
    dibujado_.col = tablero().Col();
    emit cursor_movido();
}

void VistaRejilla::vista_desplazada() {
    const Tablero& t = tablero();
    const Unidades u = unidades();
    const int dx = u.px_x(dibujado_.desplazamiento) - u.px_x(t.desplazamiento());
    const int filas = dibujado_.fila_superior - t.TopRow();
    dibujado_.fila_superior = t.TopRow();
    dibujado_.desplazamiento = t.desplazamiento();
    const QSize v = viewport()->size();
    const int alto_fila = u.px_y(t.alto_normal());
    const bool pocas = std::abs(filas) <= v.height() / std::max(1, alto_fila);
    if (pedidos_ > 0 || t.hay_altos() || t.MergeCells() != 0 || !pocas || (dx != 0 && filas != 0)) {
        pedidos_ = MAX_PEDIDOS;
        viewport()->update();
    } else if (filas != 0) {
        const int y0 = u.px_y(t.RowHeight(0));
        viewport()->scroll(0, filas * alto_fila, QRect(0, y0, v.width(), v.height() - y0));
    } else if (dx != 0) {
        const int x0 = u.px_x(t.ancho_visible(0));
        viewport()->scroll(dx, 0, QRect(x0, 0, v.width() - x0, v.height()));
    }
    pon_barras();
    tabla_.mandos().recoloca_editor();
}

void VistaRejilla::todo_cambiado() {
    pedidos_ = MAX_PEDIDOS;
    dibujado_ = {tablero().seleccion(), tablero().Row(), tablero().Col(), tablero().TopRow(),
        tablero().desplazamiento()};
    viewport()->update();
    pon_barras();
    tabla_.mandos().recoloca_editor();
}

void VistaRejilla::pon_barras() {
    poniendo_barras_ = true;
    pon_barras_de(*this, tablero(), unidades());
    poniendo_barras_ = false;
}

// --- Window events: translate, call, obey ---

bool VistaRejilla::event(QEvent* e) {
    // The grid claims the keys it uses from a host that binds them as shortcuts, and no others.
    if (e->type() == QEvent::ShortcutOverride && isEnabled()) {
        if (es_de_la_rejilla(*static_cast<QKeyEvent*>(e))) {
            e->accept();
            return true;
        }
    }
    return QAbstractScrollArea::event(e);
}

bool VistaRejilla::viewportEvent(QEvent* e) {
    if (e->type() == QEvent::Leave) viewport()->unsetCursor();
    return QAbstractScrollArea::viewportEvent(e);
}

void VistaRejilla::paintEvent(QPaintEvent* e) {
    pedidos_ = 0;
    const EditorCelda& editor = tabla_.mandos().editor();
    PintorRejilla::Aspecto aspecto{palette(), hasFocus() || menu_encima_ || editor.abierto(), isEnabled()};
    if (editor.abierto()) {
        aspecto.ocultar_fila = editor.fila();
        aspecto.ocultar_col = editor.col();
    }
    QPainter p(viewport());
    PintorRejilla pintor(tablero(), unidades(), p, textos_, aspecto, viewport()->size());
    for (const QRect& zona : e->region()) pintor.pinta(zona);
}

void VistaRejilla::resizeEvent(QResizeEvent* /*e*/) {
    const Unidades u = unidades();
    tabla_.mandos().vista_redimensionada(u.twips_x(viewport()->width()), u.twips_y(viewport()->height()));
    pon_barras();
}

void VistaRejilla::mide_filas() {
    const Unidades u = unidades();
    tabla_.mandos().alto_de_filas(u.twips_y(alto_de_fila(*this)));
}

void VistaRejilla::changeEvent(QEvent* e) {
    textos_.olvida();
    if (e->type() == QEvent::FontChange) mide_filas();
    if (e->type() == QEvent::PaletteChange || e->type() == QEvent::EnabledChange) viewport()->update();
    QAbstractScrollArea::changeEvent(e);
}

void VistaRejilla::showEvent(QShowEvent* e) {
    QAbstractScrollArea::showEvent(e);
    mide_filas();
}

void VistaRejilla::focusInEvent(QFocusEvent* e) {
    QAbstractScrollArea::focusInEvent(e);
    menu_encima_ = false;
    repinta_realce();
}

void VistaRejilla::focusOutEvent(QFocusEvent* e) {
    QAbstractScrollArea::focusOutEvent(e);
    menu_encima_ = e->reason() == Qt::PopupFocusReason;
    repinta_realce();
}

void VistaRejilla::keyPressEvent(QKeyEvent* e) {
    bool usada = tabla_.mandos().tecla_abajo(codigo_tecla_abajo(*e), modificadores(e->modifiers()));
    if (!usada) {
        std::vector<int> codigos = codigos_tecleados(*e);
        if (es_decimal_del_teclado_numerico(*e) && columna_numerica()) codigos = {'.'};
        for (const int codigo : codigos) usada = tabla_.mandos().tecla_pulsada(codigo) || usada;
    }
    e->setAccepted(usada);
}

bool VistaRejilla::columna_numerica() const {
    const int col = tablero().Col();
    return col < MAX_COLUMNAS && es_numerico(tabla_.estado().Formatos[static_cast<std::size_t>(col)].Formato);
}

// Dead keys and input methods give finished text here. The first character opens the editor, which then
// holds the focus and takes the rest.
void VistaRejilla::inputMethodEvent(QInputMethodEvent* e) {
    for (const int codigo : codigos_de_texto(e->commitString())) tabla_.mandos().tecla_pulsada(codigo);
    e->accept();
}

QVariant VistaRejilla::inputMethodQuery(Qt::InputMethodQuery que) const {
    if (que == Qt::ImEnabled) return true;
    if (que == Qt::ImCursorRectangle) return rect_celda(tablero().Row(), tablero().Col());
    return QAbstractScrollArea::inputMethodQuery(que);
}

QPoint VistaRejilla::a_twips(const QPointF& px) const {
    const Unidades u = unidades();
    const QPoint p = px.toPoint();
    return {u.twips_x(p.x()), u.twips_y(p.y())};
}

int VistaRejilla::borde_bajo(const QPointF& px) const {
    const QPoint p = a_twips(px);
    if (p.y() < 0 || p.y() >= tablero().RowHeight(0)) return -1;
    return borde_en(tablero(), p.x(), unidades().twips_x(TOLERANCIA_BORDE_PX));
}

void VistaRejilla::mousePressEvent(QMouseEvent* e) {
    columna_en_mano_ = e->button() == Qt::LeftButton ? borde_bajo(e->position()) : -1;
    if (columna_en_mano_ >= 0) { // an open editor stays open and follows the width
        agarre_ = e->position().toPoint().x() - rect_celda(0, columna_en_mano_).width();
        return;
    }
    setFocus(Qt::MouseFocusReason);
    const QPoint p = a_twips(e->position());
    tabla_.mandos().raton_abajo(p.x(), p.y(), boton_de(e->button()), modificadores(e->modifiers()));
}

void VistaRejilla::mouseMoveEvent(QMouseEvent* e) {
    if (columna_en_mano_ >= 0) {
        arrastra_borde(e->position().toPoint().x());
        return;
    }
    if (e->buttons() == Qt::NoButton) {
        if (borde_bajo(e->position()) >= 0)
            viewport()->setCursor(Qt::SplitHCursor);
        else
            viewport()->unsetCursor();
        return;
    }
    const QPoint p = a_twips(e->position());
    tabla_.mandos().raton_mueve(p.x(), p.y());
}

void VistaRejilla::mouseReleaseEvent(QMouseEvent* e) {
    if (columna_en_mano_ >= 0) {
        columna_en_mano_ = -1;
        return;
    }
    raton_ = e->globalPosition().toPoint();
    const QPoint p = a_twips(e->position());
    tabla_.mandos().raton_arriba(p.x(), p.y(), boton_de(e->button()));
}

void VistaRejilla::mouseDoubleClickEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    const int borde = borde_bajo(e->position());
    if (borde >= 0) {
        ajusta_ancho(borde);
        return;
    }
    const QPoint p = a_twips(e->position());
    tabla_.mandos().doble_clic(p.x(), p.y());
}

// Twips are written only where the width in pixels becomes another one: they stay as given otherwise.
void VistaRejilla::arrastra_borde(int x_px) {
    const int ancho = std::max(0, x_px - agarre_);
    if (ancho == rect_celda(0, columna_en_mano_).width()) return;
    tabla_.mandos().arrastra_borde(columna_en_mano_, unidades().twips_x(ancho));
}

// Double click on the edge: as wide as the widest text that is seen.
void VistaRejilla::ajusta_ancho(int col) {
    int ancho = 0;
    const auto mide = [&](int fila) {
        const std::string_view s = tablero().TextMatrix(fila, col);
        const QString texto = QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
        ancho = std::max(ancho, fontMetrics().horizontalAdvance(texto));
    };
    mide(0);
    for (int fila = tablero().TopRow(); fila <= ultima_fila_visible(tablero()); ++fila) mide(fila);
    ancho += 2 * MARGEN_TEXTO_PX + 2 * LINEA_PX;
    tabla_.mandos().arrastra_borde(col, unidades().twips_x(ancho));
}

void VistaRejilla::wheelEvent(QWheelEvent* e) {
    const bool de_lado = e->modifiers().testFlag(Qt::ShiftModifier);
    const QPoint angulo = e->angleDelta();
    rueda_y_ += de_lado ? 0 : angulo.y();
    rueda_x_ += de_lado ? angulo.x() + angulo.y() : angulo.x();
    for (; rueda_y_ <= -MUESCA; rueda_y_ += MUESCA) tabla_.mandos().rueda(-1);
    for (; rueda_y_ >= MUESCA; rueda_y_ -= MUESCA) tabla_.mandos().rueda(1);
    const int pasos = rueda_x_ / MUESCA;
    rueda_x_ -= pasos * MUESCA;
    QScrollBar* h = horizontalScrollBar();
    if (pasos != 0) h->setValue(h->value() - pasos * 3 * PASO_HORIZONTAL_PX);
    e->accept();
}

void VistaRejilla::scrollContentsBy(int dx, int dy) {
    if (poniendo_barras_) return;
    if (dy != 0) tabla_.mandos().desplaza_filas(verticalScrollBar()->value());
    if (dx != 0) tabla_.mandos().desplaza_columnas(unidades().twips_x(horizontalScrollBar()->value()));
}

} // namespace Qlt4_Tabla
