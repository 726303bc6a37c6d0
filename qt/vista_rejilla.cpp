// SPDX-License-Identifier: MIT
// Translates the window's events into calls of Mandos and repaints what the notices name.
#include "qt/vista_rejilla.h"

#include "base/teclas.h"
#include "core/geometria.h"
#include "qt/medidas_rejilla.h"
#include "qt/pintor_rejilla.h"
#include "qt/teclas_qt.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr int TOLERANCIA_BORDE_PX = 4;
constexpr int MAX_PEDIDOS = 64; // beyond this many pieces one whole repaint is cheaper
constexpr int PEDIDOS_DE_MOVER = 16; // what moving pixels counts as
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
    sin_menu_en_barras(*this);
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

QRect VistaRejilla::vista_del_editor() const {
    const EditorCelda& editor = tabla_.mandos().editor();
    return en_px(parte_visible(tablero(), editor.fila(), editor.col()), unidades());
}

// Whether a row looks the same wherever it stands, so that its pixels can be moved.
bool VistaRejilla::filas_iguales() const {
    const Tablero& t = tablero();
    return !t.hay_altos() && t.MergeCells() == 0 && unidades().enteros_y(t.alto_normal());
}

// Moves the picture to where the grid is now. Done before anything else is asked to be repainted: places are
// those of the grid, and what waits moves with the picture.
void VistaRejilla::sigue_vista() {
    const Tablero& t = tablero();
    const Unidades u = unidades();
    const int filas = std::exchange(dibujado_.fila_superior, t.TopRow()) - t.TopRow();
    const int twips = std::exchange(dibujado_.desplazamiento, t.desplazamiento()) - t.desplazamiento();
    if (filas == 0 && twips == 0) return;
    if (t.Rows() == 0 || t.Cols() == 0 || !filas_iguales() || !u.enteros_x(twips)) return repinta_todo();
    const QRect v = viewport()->rect();
    const int y0 = u.px_y(t.RowHeight(0));
    const int x0 = u.px_x(t.ancho_visible(0));
    const int alto = u.px_y(t.alto_normal());
    mueve(v.adjusted(0, y0, 0, 0), 0, std::clamp(filas, -v.height(), v.height()) * alto);
    mueve(v.adjusted(x0, 0, 0, 0), u.px_x(twips), 0);
}

// What waits there to be painted goes along; an open editor goes by itself (Mandos::recoloca_editor).
void VistaRejilla::mueve(const QRect& zona, int dx, int dy) {
    if ((dx == 0 && dy == 0) || zona.isEmpty() || pedidos_ >= MAX_PEDIDOS) return;
    pedidos_ += PEDIDOS_DE_MOVER;
    if (pedidos_ >= MAX_PEDIDOS || a_medias_) return repinta_todo();
    viewport()->scroll(dx, dy, zona);
}

void VistaRejilla::repinta(const QRect& zona) {
    sigue_vista();
    if (pedidos_ >= MAX_PEDIDOS) return;
    if (++pedidos_ == MAX_PEDIDOS) return repinta_todo();
    viewport()->update(zona);
}

void VistaRejilla::repinta_todo() {
    pedidos_ = MAX_PEDIDOS;
    a_medias_ = false;
    viewport()->update();
}

void VistaRejilla::repinta_filas(int fila1, int fila2) {
    repinta_filas(fila1, fila2, 0, viewport()->width() - 1);
}

// Their pixels from x1 to x2.
void VistaRejilla::repinta_filas(int fila1, int fila2, int x1, int x2) {
    if (fila1 == 0) repinta(QRect(QPoint(x1, 0), QPoint(x2, rect_celda(0, 0).bottom())));
    const int desde = std::max(fila1, tablero().TopRow());
    const int hasta = std::min(fila2, ultima_fila_visible(tablero()));
    if (desde > hasta) return;
    repinta(QRect(QPoint(x1, rect_celda(desde, 0).top()), QPoint(x2, rect_celda(hasta, 0).bottom())));
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
    repinta_filas(fila1, fila2, rect_celda(0, col1).left(), rect_celda(0, col2).right());
}

// The rows keep their pixels, the look of the selection among them; those that come into sight are painted.
void VistaRejilla::filas_movidas(int desde, int n) {
    sigue_vista();
    pon_barras();
    const Tablero& t = tablero();
    const Unidades u = unidades();
    const int primera = std::max(desde, t.TopRow());
    const QRect zona = viewport()->rect().adjusted(0, u.px_y(y_fila(t, primera)), 0, 0);
    const int lejos = std::max(0, zona.height());
    if (!filas_iguales() || desde == 0)
        repinta_todo();
    else if (primera + std::max(n, 0) < t.Rows())
        mueve(zona, 0, std::clamp(n, -lejos, lejos) * u.px_y(t.alto_normal()));
    else if (!zona.isEmpty())
        repinta(zona);
    for (int* const fila : {&dibujado_.seleccion.fila1, &dibujado_.seleccion.fila2, &dibujado_.fila})
        if (*fila >= desde) *fila = std::max(desde, *fila + n);
    if (std::max({dibujado_.seleccion.fila2, dibujado_.fila, t.seleccion().fila2, t.Row()}) >= desde)
        repinta_seleccion();
    tabla_.mandos().recoloca_editor();
}

void VistaRejilla::seleccion_cambiada() {
    repinta_seleccion();
    emit cursor_movido();
}

// Where it was and where it is.
void VistaRejilla::repinta_seleccion() {
    const Bloque nueva = tablero().seleccion();
    const Bloque vieja = std::exchange(dibujado_.seleccion, nueva);
    const int fila = std::exchange(dibujado_.fila, tablero().Row());
    repinta_filas(std::min(vieja.fila1, fila), std::max(vieja.fila2, fila));
    repinta_filas(nueva.fila1, nueva.fila2);
    if (nueva.col1 != vieja.col1 || nueva.col2 != vieja.col2) repinta_filas(0, 0);
}

void VistaRejilla::vista_desplazada() {
    sigue_vista();
    pon_barras();
    tabla_.mandos().recoloca_editor();
}

void VistaRejilla::todo_cambiado() {
    dibujado_ = {tablero().seleccion(), tablero().Row(), tablero().TopRow(), tablero().desplazamiento()};
    repinta_todo();
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
    a_medias_ |= !tablero().Redraw();
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
    const int codigo_abajo = es_de_la_rejilla(*e) ? codigo_tecla_abajo(*e) : int{teclas::NINGUNA};
    bool usada = tabla_.mandos().tecla_abajo(codigo_abajo, modificadores(e->modifiers()));
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
    // An open editor is closed by the core, when it has the place: its commit may move rows under the mouse.
    if (e->button() != Qt::LeftButton || !tabla_.mandos().editor().abierto()) setFocus(Qt::MouseFocusReason);
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
    constexpr int CADA_MS = 50;
    if (!arrastre_.isActive()) arrastre_.start(CADA_MS, this);
    arrastrado_ = a_twips(e->position());
    tabla_.mandos().raton_mueve(arrastrado_.x(), arrastrado_.y());
}

void VistaRejilla::timerEvent(QTimerEvent* e) {
    if (e->timerId() != arrastre_.timerId()) return QAbstractScrollArea::timerEvent(e);
    // Released where nobody told us, or a host that hears of the selection shows a dialog or a menu meanwhile.
    const QWidget* const modal = QApplication::activeModalWidget();
    const bool tapada =
        QApplication::activePopupWidget() != nullptr || (modal != nullptr && modal != window());
    if (QApplication::mouseButtons() == Qt::NoButton || tapada)
        arrastre_.stop();
    else
        tabla_.mandos().raton_mueve(arrastrado_.x(), arrastrado_.y());
}

void VistaRejilla::mouseReleaseEvent(QMouseEvent* e) {
    if (columna_en_mano_ >= 0) {
        columna_en_mano_ = -1;
        return;
    }
    arrastre_.stop();
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
