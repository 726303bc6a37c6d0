// SPDX-License-Identifier: MIT
// A strip of swatches: drawing, and events in the strip's own pixels.
#include "qt/tira_muestras.h"

#include "qt/colores_qt.h"
#include "qt/texto_qt.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace Qlt4_Tabla {

namespace {

constexpr int SEPARACION_PX = 1; // between neighbours, in the window's colour
constexpr int CONTORNO = 20; // per cent of the text's colour in a swatch's outline

void marco(QPainter& p, const QRect& r, int grosor, const QColor& color) {
    p.fillRect(r.x(), r.y(), r.width(), grosor, color);
    p.fillRect(r.x(), r.bottom() - grosor + 1, r.width(), grosor, color);
    p.fillRect(r.x(), r.y(), grosor, r.height(), color);
    p.fillRect(r.right() - grosor + 1, r.y(), grosor, r.height(), color);
}

} // namespace

TiraMuestras::TiraMuestras(ModeloColor& modelo, TiraColor cual, QSize muestra, QWidget* padre)
    : QWidget(padre), modelo_(modelo), cual_(cual), muestra_(muestra) {
    setFixedSize(tira().columnas * muestra.width(), tira().filas * muestra.height());
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
}

int TiraMuestras::marcada() const {
    const auto& muestras = tira().muestras;
    const auto i = std::find_if(muestras.begin(), muestras.end(),
        [&](const MuestraColor& m) { return m.indice == modelo_.visto().indice; });
    return i == muestras.end() ? -1 : static_cast<int>(i - muestras.begin());
}

bool TiraMuestras::tiene_marcada() const { return marcada() >= 0; }

QRect TiraMuestras::rect_muestra(int n) const {
    const int fila = n / tira().columnas;
    const int col = n % tira().columnas;
    return {QPoint(col * muestra_.width(), fila * muestra_.height()), muestra_};
}

int TiraMuestras::muestra_en(QPointF p) const {
    const int indice = modelo_.muestra_en(cual_, p.x(), p.y(), width(), height());
    if (indice < 0) return -1;
    const auto& muestras = tira().muestras;
    const auto i = std::find_if(
        muestras.begin(), muestras.end(), [=](const MuestraColor& m) { return m.indice == indice; });
    return static_cast<int>(i - muestras.begin());
}

void TiraMuestras::refresca() {
    const int n = marcada();
    setAccessibleDescription(
        n < 0 ? QString() : a_qstring(tira().muestras[static_cast<std::size_t>(n)].nombre));
    update();
}

// The marked one is framed in black and white, so that it is seen on every colour.
void TiraMuestras::pinta(QPainter& p, int n) const {
    const QRect r = rect_muestra(n).adjusted(0, 0, -SEPARACION_PX, -SEPARACION_PX);
    const QColor color = color_de_pantalla(tira().muestras[static_cast<std::size_t>(n)].color, palette());
    p.fillRect(r, color);
    if (n == marcada()) {
        marco(p, r, 1, palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText));
        marco(p, r.adjusted(1, 1, -1, -1), 2, QColor(Qt::white));
        marco(p, r.adjusted(3, 3, -3, -3), 1, QColor(Qt::black));
    } else if (n == bajo_raton_) {
        marco(p, r, 2, contraste(color));
    } else {
        marco(p, r, 1, mezcla(color, palette().color(QPalette::WindowText), CONTORNO));
    }
}

void TiraMuestras::paintEvent(QPaintEvent* /*e*/) {
    QPainter p(this);
    const int cuantas = static_cast<int>(tira().muestras.size());
    for (int n = 0; n < cuantas; ++n) pinta(p, n);
    // The focus is seen also where nothing is marked.
    if (hasFocus() && !tiene_marcada())
        marco(p, rect().adjusted(0, 0, -SEPARACION_PX, -SEPARACION_PX), 2,
            palette().color(QPalette::Highlight));
}

bool TiraMuestras::event(QEvent* e) {
    if (e->type() != QEvent::ToolTip) return QWidget::event(e);
    const auto* ayuda = static_cast<QHelpEvent*>(e);
    const int n = muestra_en(ayuda->pos());
    if (n < 0)
        QToolTip::hideText();
    else
        QToolTip::showText(ayuda->globalPos(), a_qstring(tira().muestras[static_cast<std::size_t>(n)].nombre),
            this, rect_muestra(n));
    return true;
}

void TiraMuestras::resalta(int n) {
    if (n == bajo_raton_) return;
    bajo_raton_ = n;
    update();
}

void TiraMuestras::mouseMoveEvent(QMouseEvent* e) { resalta(muestra_en(e->position())); }

void TiraMuestras::leaveEvent(QEvent* /*e*/) { resalta(-1); }

void TiraMuestras::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    modelo_.clic(cual_, e->position().x(), e->position().y(), width(), height());
    emit usada();
}

void TiraMuestras::keyPressEvent(QKeyEvent* e) {
    if (camina_con(modelo_, *e))
        emit usada();
    else if (!e->text().isEmpty() && e->text().at(0).isPrint() && !e->text().at(0).isSpace())
        emit tecleada(e);
    else
        QWidget::keyPressEvent(e);
}

void TiraMuestras::focusInEvent(QFocusEvent* /*e*/) { update(); }

void TiraMuestras::focusOutEvent(QFocusEvent* /*e*/) { update(); }

bool camina_con(ModeloColor& modelo, const QKeyEvent& e) {
    switch (e.key()) {
    case Qt::Key_Left: modelo.camina(PasoColor::Izquierda); return true;
    case Qt::Key_Right: modelo.camina(PasoColor::Derecha); return true;
    case Qt::Key_Up: modelo.camina(PasoColor::Arriba); return true;
    case Qt::Key_Down: modelo.camina(PasoColor::Abajo); return true;
    default: return false;
    }
}

} // namespace Qlt4_Tabla
