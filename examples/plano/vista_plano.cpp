// SPDX-License-Identifier: MIT
// Mouse, wheel and keys of the plan, and when it is drawn anew.
#include "vista_plano.h"

#include "tabla_puntos.h"
#include "textos.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

namespace plano {

namespace {

constexpr double CERCA_PX = 8; // a click that near hits the point
constexpr double ARRASTRE_PX = 4; // a shorter move of the mouse is a click
constexpr double FLECHA_PX = 60;

} // namespace

VistaPlano::VistaPlano(const Qlt4_Tabla::Tablero& tablero, QWidget* padre)
    : QWidget(padre), tablero_(tablero) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(textos::NOMBRE_ACCESIBLE);
    puntos_.marca_todo();
}

const Puntos& VistaPlano::puntos() {
    if (puntos_.pon_al_dia(tablero_)) {
        capa_ = QPixmap();
        emit puntos_leidos();
    }
    return puntos_;
}

void VistaPlano::filas_cambiadas(int desde, int hasta) {
    puntos_.marca(desde, hasta);
    update();
}

void VistaPlano::filas_insertadas(int fila, int n) {
    puntos_.inserta(fila, n);
    repinta_todo();
}

void VistaPlano::filas_borradas(int fila, int n) {
    puntos_.borra(fila, n);
    repinta_todo();
}

void VistaPlano::todo_cambiado() {
    puntos_.marca_todo();
    repinta_todo();
}

void VistaPlano::seleccion_cambiada() {
    update();
    const int fila = tablero_.Row();
    if (eligiendo_ || !puntos().hay(fila)) return;
    if (encuadre_.muestra(puntos_.de_fila(fila).x, puntos_.de_fila(fila).y)) {
        encuadrado_ = false;
        repinta_todo();
    }
}

void VistaPlano::encuadra_todo() {
    encuadrado_ = true;
    if (const auto todos = puntos().limites(1, puntos_.filas())) encuadre_.ajusta(*todos);
    repinta_todo();
}

void VistaPlano::encuadra_seleccion() {
    const Qlt4_Tabla::Bloque sel = tablero_.seleccion();
    const auto elegidos = puntos().limites(sel.fila1, sel.fila2);
    if (!elegidos) return;
    encuadrado_ = false;
    encuadre_.ajusta(*elegidos);
    repinta_todo();
}

void VistaPlano::con_nombres(bool si) {
    nombres_ = si;
    repinta_todo();
}

void VistaPlano::con_cuadricula(bool si) {
    cuadricula_ = si;
    repinta_todo();
}

void VistaPlano::escala(double factor) {
    encuadrado_ = false;
    encuadre_.escala_alrededor(factor, encuadre_.ventana().center());
    repinta_todo();
}

void VistaPlano::desplaza(QPointF px) {
    encuadrado_ = false;
    encuadre_.mueve(px);
    repinta_todo();
}

void VistaPlano::repinta_todo() {
    capa_ = QPixmap();
    update();
}

QFont VistaPlano::letra() const {
    QFont f = font();
    f.setPointSizeF(f.pointSizeF() * 0.9);
    return f;
}

int VistaPlano::punto_en(QPointF px) {
    return encuadre_.ventana().contains(px) ? puntos().cercano(encuadre_, px, CERCA_PX) : 0;
}

// --- Drawing ---

void VistaPlano::resizeEvent(QResizeEvent* e) {
    const double margen = margen_ejes(letra());
    const QRectF entero = rect();
    encuadre_.ventana(entero.adjusted(margen, 1, -1, -margen));
    if (encuadrado_) encuadra_todo();
    repinta_todo();
    QWidget::resizeEvent(e);
}

void VistaPlano::changeEvent(QEvent* e) {
    if (e->type() == QEvent::PaletteChange || e->type() == QEvent::FontChange) repinta_todo();
    QWidget::changeEvent(e);
}

void VistaPlano::pinta_capa() {
    const double dpr = devicePixelRatioF();
    capa_ = QPixmap((QSizeF(size()) * dpr).toSize());
    capa_.setDevicePixelRatio(dpr);
    capa_.fill(palette().color(QPalette::Window));
    const Colores colores(palette());
    QPainter p(&capa_);
    p.setRenderHint(QPainter::Antialiasing);
    sitios_ =
        PintorPlano({p, encuadre_, colores, letra()}, puntos_, tablero_).pinta_fondo(cuadricula_, nombres_);
}

void VistaPlano::paintEvent(QPaintEvent* /*e*/) {
    puntos(); // before the picture is looked at: reading may outdate it
    if (capa_.isNull() || capa_.devicePixelRatio() != devicePixelRatioF()) pinta_capa();
    const Colores colores(palette());
    QPainter p(this);
    p.drawPixmap(0, 0, capa_);
    p.setRenderHint(QPainter::Antialiasing);
    const Dibujo dibujo{p, encuadre_, colores, letra()};
    PintorPlano(dibujo, puntos_, tablero_).pinta_seleccion(sitios_, bajo_puntero_);
    pinta_escala(dibujo);
    pinta_leyenda(dibujo);
    const QRectF v = encuadre_.ventana();
    if (puntos_.situados() == 0) {
        p.setPen(colores.tenue);
        p.drawText(v, Qt::AlignCenter, textos::SIN_PUNTOS);
    }
    if (mano_ == Mano::Recuadro) pinta_recuadro(p, colores);
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(hasFocus() ? colores.realce : colores.marco);
    p.setBrush(Qt::NoBrush);
    p.drawRect(v.adjusted(-1, -1, 0, 0));
}

void VistaPlano::pinta_recuadro(QPainter& p, const Colores& colores) const {
    QColor velo = colores.realce;
    velo.setAlpha(45);
    p.setPen(QPen(colores.realce, 1));
    p.setBrush(velo);
    p.drawRect(QRectF(pulsado_, ultimo_).normalized() & encuadre_.ventana());
}

// --- The user ---

void VistaPlano::mousePressEvent(QMouseEvent* e) {
    if (mano_ != Mano::Libre || (e->button() != Qt::LeftButton && e->button() != Qt::MiddleButton)) return;
    boton_ = e->button();
    pulsado_ = ultimo_ = e->position();
    mano_ = Mano::Pulsada;
}

void VistaPlano::mouseMoveEvent(QMouseEvent* e) {
    const QPointF px = e->position();
    emit puntero_en(encuadre_.a_metros(px));
    if (mano_ == Mano::Libre) {
        pon_bajo_puntero(punto_en(px));
        return;
    }
    if (mano_ == Mano::Pulsada && (px - pulsado_).manhattanLength() >= ARRASTRE_PX) {
        const bool recuadro = boton_ == Qt::LeftButton && (e->modifiers() & Qt::ShiftModifier) != 0;
        mano_ = recuadro ? Mano::Recuadro : Mano::Mueve;
        pon_bajo_puntero(0);
        setCursor(recuadro ? Qt::CrossCursor : Qt::ClosedHandCursor);
    }
    if (mano_ == Mano::Mueve) desplaza(px - ultimo_);
    if (mano_ == Mano::Recuadro) update();
    if (mano_ != Mano::Pulsada) ultimo_ = px;
}

void VistaPlano::mouseReleaseEvent(QMouseEvent* e) {
    if (mano_ == Mano::Libre || e->button() != boton_) return;
    const Mano hecho = mano_;
    mano_ = Mano::Libre;
    unsetCursor();
    update();
    const QScopedValueRollback eligiendo(eligiendo_, true);
    if (hecho == Mano::Recuadro) {
        const QRectF marco = QRectF(pulsado_, e->position()).normalized();
        const QPointF a = encuadre_.a_metros(marco.bottomLeft());
        const QPointF b = encuadre_.a_metros(marco.topRight());
        emit puntos_elegidos(puntos().dentro(QRectF(a, b)));
    } else if (hecho == Mano::Pulsada && boton_ == Qt::LeftButton) {
        const int fila = punto_en(e->position());
        if (fila == 0) return;
        if (e->modifiers() & Qt::ShiftModifier)
            emit punto_extendido(fila);
        else
            emit punto_elegido(fila);
    }
}

void VistaPlano::mouseDoubleClickEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    if (const int fila = punto_en(e->position()))
        emit punto_abierto(fila);
    else
        encuadra_todo();
}

void VistaPlano::leaveEvent(QEvent* e) {
    pon_bajo_puntero(0);
    emit puntero_fuera();
    QWidget::leaveEvent(e);
}

void VistaPlano::pon_bajo_puntero(int fila) {
    if (fila == bajo_puntero_) return;
    bajo_puntero_ = fila;
    if (fila != 0)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
    update();
}

void VistaPlano::wheelEvent(QWheelEvent* e) {
    const double pasos = e->angleDelta().y() / 120.0;
    encuadrado_ = false;
    encuadre_.escala_alrededor(std::pow(1.25, pasos), e->position());
    repinta_todo();
    emit puntero_en(encuadre_.a_metros(e->position()));
    e->accept();
}

void VistaPlano::keyPressEvent(QKeyEvent* e) {
    switch (e->key()) {
    case Qt::Key_Home: encuadra_todo(); break;
    case Qt::Key_Plus: acerca(); break;
    case Qt::Key_Minus: aleja(); break;
    case Qt::Key_Left: desplaza({FLECHA_PX, 0}); break;
    case Qt::Key_Right: desplaza({-FLECHA_PX, 0}); break;
    case Qt::Key_Up: desplaza({0, FLECHA_PX}); break;
    case Qt::Key_Down: desplaza({0, -FLECHA_PX}); break;
    default: QWidget::keyPressEvent(e);
    }
}

bool VistaPlano::event(QEvent* e) {
    if (e->type() != QEvent::ToolTip) return QWidget::event(e);
    const auto* const ayuda = static_cast<QHelpEvent*>(e);
    if (const int fila = mano_ == Mano::Libre ? punto_en(ayuda->pos()) : 0)
        QToolTip::showText(ayuda->globalPos(), ficha(fila), this);
    else
        QToolTip::hideText();
    return true;
}

// Every value of the row under its header.
QString VistaPlano::ficha(int fila) const {
    const auto texto = [this](int f, int c) {
        const std::string_view s = tablero_.TextMatrix(f, c);
        return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())).toHtmlEscaped();
    };
    QString html = QStringLiteral("<b>%1</b><table cellspacing='1'>").arg(texto(fila, NOMBRE));
    for (int col = NOMBRE + 1; col < tablero_.Cols(); ++col)
        html += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td align='right'>%2</td></tr>")
                    .arg(texto(0, col), texto(fila, col));
    return html + QStringLiteral("</table>");
}

} // namespace plano
