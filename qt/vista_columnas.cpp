// SPDX-License-Identifier: MIT
// Translates the events of the column editor's grid and box into calls of their model, and shows it again.
#include "qt/vista_columnas.h"

#include "base/teclas.h"
#include "core/geometria.h"
#include "qt/casilla.h"
#include "qt/medidas_rejilla.h"
#include "qt/pintor_rejilla.h"
#include "qt/teclas_qt.h"
#include "qt/texto_qt.h"
#include "qt/textos.h"
#include "qt/textos_preparados.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <utility>

namespace Qlt4_Tabla {

namespace {

Qt::Alignment alineacion(const Tablero& t, int col) {
    switch (t.ColAlignment(col)) {
    case AlineacionCelda::Centro: return Qt::AlignHCenter | Qt::AlignVCenter;
    case AlineacionCelda::Derecha: return Qt::AlignRight | Qt::AlignVCenter;
    case AlineacionCelda::Izquierda: break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace

// --- The text box ---

CasillaEditor::CasillaEditor(RejillaColumnas& modelo, VistaColumnas& vista)
    : CajaLinea(vista.viewport()), modelo_(modelo), vista_(vista) {
    setObjectName(QStringLiteral("Casilla"));
    setFrame(false);
    setFocusPolicy(Qt::ClickFocus);
    setTextMargins(MARGEN_TEXTO_PX - MARCO_PX - 2, 0, 0, 0);
    hide();
    connect(this, &QLineEdit::textChanged, this, [this] {
        modelo_.escribe_casilla(dado());
        vista_.refresca(); // the cell may have come into view
    });
}

void CasillaEditor::abre() {
    const CasillaColumnas& c = modelo_.casilla();
    const int inicio = c.inicio;
    const int longitud = c.longitud;
    setAlignment(alineacion(modelo_.tablero(), c.col));
    setAccessibleName(a_qstring(modelo_.tablero().TextMatrix(0, c.col)).trimmed());
    pon(c.texto);
    if (longitud > 0)
        setSelection(inicio, static_cast<int>(text().size()));
    else
        setCursorPosition(inicio);
    show();
    setFocus(Qt::OtherFocusReason);
}

// The grid takes the focus before the box goes; the next widget of the form would have it otherwise.
void CasillaEditor::sigue() {
    const CasillaColumnas& c = modelo_.casilla();
    if (c.abierta)
        setGeometry(en_px(c.sitio, vista_.unidades()).adjusted(MARCO_PX, MARCO_PX, -MARCO_PX, -MARCO_PX));
    if (c.abierta && isHidden()) {
        abre();
    } else if (!c.abierta && !isHidden()) {
        if (hasFocus()) vista_.setFocus(Qt::OtherFocusReason);
        hide();
    }
}

int CasillaEditor::tecla(int KeyAscii) { return modelo_.tecla_casilla(KeyAscii); }

bool CasillaEditor::event(QEvent* e) {
    // While it is open the box owns its keys, those that somebody binds as shortcuts too.
    if (e->type() == QEvent::ShortcutOverride &&
        codigo_tecla_abajo(*static_cast<QKeyEvent*>(e)) != teclas::NINGUNA) {
        e->accept();
        return true;
    }
    return CajaLinea::event(e);
}

void CasillaEditor::keyPressEvent(QKeyEvent* e) {
    if (es_decimal_del_teclado_numerico(*e)) {
        if (tecla('.') != 0) insert(QStringLiteral("."));
        return;
    }
    for (const int codigo : codigos_tecleados(*e)) {
        if (tecla(codigo) == 0) return vista_.usa();
    }
    CajaLinea::keyPressEvent(e);
    e->accept(); // a key that the box could not use is not a key of the grid
}

// A menu or another window takes the focus for a while only.
void CasillaEditor::focusOutEvent(QFocusEvent* e) {
    CajaLinea::focusOutEvent(e);
    if (motivo_de(e->reason()) != MotivoFoco::Otro) return;
    modelo_.casilla_pierde_foco();
    vista_.usa();
}

bool CasillaEditor::focusNextPrevChild(bool siguiente) {
    vista_.setFocus(siguiente ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return vista_.sale_por_tabulador(siguiente);
}

// --- The grid ---

VistaColumnas::VistaColumnas(RejillaColumnas& modelo, QWidget* padre)
    : QAbstractScrollArea(padre), modelo_(modelo), casilla_(new CasillaEditor(modelo, *this)) {
    setObjectName(QStringLiteral("msfEditor"));
    setAccessibleName(a_qstring(textos::rejilla_columnas));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setFrameShape(QFrame::StyledPanel);
    sin_menu_en_barras(*this);
    horizontalScrollBar()->setSingleStep(PASO_HORIZONTAL_PX);
}

QRect VistaColumnas::rect_celda(int fila, int col) const {
    return en_px(rectangulo_celda(modelo_.tablero(), fila, col), unidades());
}

void VistaColumnas::usa() {
    refresca();
    emit usada();
}

// The focus that the box gives away comes back here; the outer call does what is left.
void VistaColumnas::refresca() {
    if (std::exchange(refrescando_, true)) return;
    pon_barras_de(*this, modelo_.tablero(), unidades());
    casilla_->sigue();
    viewport()->update();
    describe();
    refrescando_ = false;
}

// What an assistive program reads of the current cell.
void VistaColumnas::describe() {
    const Tablero& t = modelo_.tablero();
    if (t.Row() < 1) return;
    QString texto = a_qstring(t.TextMatrix(t.Row(), 1));
    for (const int fila : {0, t.Row()})
        texto += a_qstring(textos::separa) + a_qstring(t.TextMatrix(fila, t.Col())).trimmed();
    if (texto != accessibleDescription()) setAccessibleDescription(texto);
}

void VistaColumnas::mide() {
    const Unidades u = unidades();
    modelo_.mide(
        u.twips_x(viewport()->width()), u.twips_y(viewport()->height()), u.twips_y(alto_de_fila(*this)));
    refresca();
}

void VistaColumnas::paintEvent(QPaintEvent* e) {
    const CasillaColumnas& c = modelo_.casilla();
    PintorRejilla::Aspecto aspecto{palette(), hasFocus() || c.abierta, isEnabled()};
    if (c.abierta) {
        aspecto.ocultar_fila = c.fila;
        aspecto.ocultar_col = c.col;
    }
    QPainter p(viewport());
    TextosPreparados textos; // so few that they need not be kept
    PintorRejilla(modelo_.tablero(), unidades(), p, textos, aspecto, viewport()->size()).pinta(e->rect());
}

void VistaColumnas::resizeEvent(QResizeEvent* /*e*/) { mide(); }

void VistaColumnas::showEvent(QShowEvent* e) {
    QAbstractScrollArea::showEvent(e);
    mide();
}

void VistaColumnas::changeEvent(QEvent* e) {
    QAbstractScrollArea::changeEvent(e);
    if (e->type() == QEvent::FontChange) mide();
    if (e->type() == QEvent::PaletteChange) viewport()->update();
}

void VistaColumnas::focusInEvent(QFocusEvent* e) {
    QAbstractScrollArea::focusInEvent(e);
    viewport()->update();
}

void VistaColumnas::focusOutEvent(QFocusEvent* e) {
    QAbstractScrollArea::focusOutEvent(e);
    viewport()->update();
}

void VistaColumnas::keyPressEvent(QKeyEvent* e) {
    constexpr auto DE_ORDEN = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    bool usada = !e->modifiers().testAnyFlags(DE_ORDEN) && modelo_.tecla_abajo(codigo_tecla_abajo(*e));
    if (!usada)
        for (const int codigo : codigos_tecleados(*e)) usada = modelo_.tecla_pulsada(codigo) || usada;
    e->setAccepted(usada);
    if (usada) usa();
}

// The first character opens the box, which then holds the focus and takes the rest.
void VistaColumnas::inputMethodEvent(QInputMethodEvent* e) {
    for (const int codigo : codigos_de_texto(e->commitString())) {
        if (!modelo_.casilla().abierta)
            modelo_.tecla_pulsada(codigo);
        else if (const int resto = modelo_.tecla_casilla(codigo))
            modelo_.escribe_casilla(modelo_.casilla().texto + texto_de_codigo(resto).toStdString());
    }
    e->accept();
    usa();
}

QVariant VistaColumnas::inputMethodQuery(Qt::InputMethodQuery que) const {
    const Tablero& t = modelo_.tablero();
    if (que == Qt::ImEnabled) return true;
    if (que == Qt::ImCursorRectangle) return rect_celda(t.Row(), t.Col());
    return QAbstractScrollArea::inputMethodQuery(que);
}

void VistaColumnas::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    const Unidades u = unidades();
    modelo_.raton(PulsoRaton::Abajo, u.twips_x(e->pos().x()), u.twips_y(e->pos().y()));
    usa();
}

void VistaColumnas::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    const Unidades u = unidades();
    modelo_.raton(PulsoRaton::Arriba, u.twips_x(e->pos().x()), u.twips_y(e->pos().y()));
    usa();
}

// A second click soon after the first is a click like any other: each one turns the value on.
void VistaColumnas::mouseDoubleClickEvent(QMouseEvent* e) { mousePressEvent(e); }

void VistaColumnas::scrollContentsBy(int /*dx*/, int /*dy*/) {
    if (refrescando_) return;
    modelo_.desplaza(verticalScrollBar()->value(), unidades().twips_x(horizontalScrollBar()->value()));
    refresca();
}

} // namespace Qlt4_Tabla
