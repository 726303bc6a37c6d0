// SPDX-License-Identifier: MIT
// Draws the axes and their grid, the scale bar, the north arrow and the legend; what each is: adornos.h.
#include "adornos.h"

#include "textos.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace plano {

namespace {

constexpr double PASO_PX = 90; // between two grid lines, at least
constexpr double ESCALA_PX = 80; // length of the scale bar, at least
constexpr double SEPARACION_PX = 10; // between the edge of the ground and what stands on it
constexpr double RELLENO_PX = 8; // inside a plate

struct Clase {
    QColor color;
    QString texto;
};

/// Calls `hace(metres)` for each grid line between the two.
template <class Hace>
void por_lineas(double desde, double hasta, double paso, Hace hace) {
    const double primera = std::ceil(desde / paso);
    const double ultima = std::floor(hasta / paso);
    for (double i = primera; i <= ultima; ++i) hace(i * paso);
}

QString cifra(double metros, double paso) {
    const int decimales = std::max(0, static_cast<int>(std::ceil(-std::log10(paso) - 1e-9)));
    return QString::number(metros, 'f', decimales);
}

QString longitud(double metros) {
    if (metros >= 1000) return textos::KILOMETROS.arg(metros / 1000);
    if (metros >= 1) return textos::METROS.arg(metros);
    if (metros >= 0.01) return textos::CENTIMETROS.arg(metros * 100);
    return textos::MILIMETROS.arg(metros * 1000);
}

/// On whole device pixels, so that thin lines stay thin.
double al_pixel(const QPainter& p, double px) {
    const double dpr = p.device()->devicePixelRatioF();
    return std::round(px * dpr) / dpr;
}

void placa(const Dibujo& d, const QRectF& sitio) {
    d.p.setPen(QPen(d.colores.linea_placa, 1));
    d.p.setBrush(d.colores.fondo);
    d.p.drawRoundedRect(QRectF(sitio.toAlignedRect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

void pinta_norte(const Dibujo& d, const QRectF& sitio) {
    const QFontMetricsF fm(d.letra);
    const double x = sitio.center().x();
    const double arriba = sitio.top() + fm.height();
    const double abajo = sitio.bottom();
    const double hueco = abajo - (abajo - arriba) * 0.22;
    d.p.setPen(d.colores.texto);
    d.p.drawText(
        QRectF(sitio.left(), sitio.top(), sitio.width(), fm.height()), Qt::AlignCenter, textos::NORTE);
    d.p.setPen(QPen(d.colores.texto, 1));
    d.p.setBrush(d.colores.texto);
    d.p.drawPolygon(QPolygonF({{x, arriba}, {x, hueco}, {x - 7, abajo}}));
    d.p.setBrush(d.colores.fondo);
    d.p.drawPolygon(QPolygonF({{x, arriba}, {x + 7, abajo}, {x, hueco}}));
}

} // namespace

double margen_ejes(const QFont& letra) { return std::ceil(QFontMetricsF(letra).height()) + 8; }

void pinta_cuadricula(const Dibujo& d) {
    const QRectF v = d.encuadre.ventana();
    const QRectF t = d.encuadre.terreno();
    const double paso = paso_redondo(PASO_PX / d.encuadre.escala());
    const double fino = 1.0;
    por_lineas(t.left(), t.right(), paso, [&](double x) {
        const double px = al_pixel(d.p, d.encuadre.a_px(x, 0).x());
        d.p.fillRect(QRectF(px, v.top(), fino, v.height()), d.colores.cuadricula);
    });
    por_lineas(t.top(), t.bottom(), paso, [&](double y) {
        const double px = al_pixel(d.p, d.encuadre.a_px(0, y).y());
        d.p.fillRect(QRectF(v.left(), px, v.width(), fino), d.colores.cuadricula);
    });
}

void pinta_ejes(const Dibujo& d) {
    const QRectF v = d.encuadre.ventana();
    const QRectF t = d.encuadre.terreno();
    const QFontMetricsF fm(d.letra);
    const double paso = paso_redondo(PASO_PX / d.encuadre.escala());
    const double margen = margen_ejes(d.letra);
    const double fin_x = v.right() - fm.horizontalAdvance(textos::EJE_X) - SEPARACION_PX;
    const double fin_y = v.top() + fm.horizontalAdvance(textos::EJE_Y) + SEPARACION_PX;
    d.p.setFont(d.letra);
    d.p.setPen(d.colores.tenue);
    d.p.drawText(
        QRectF(v.left(), v.bottom(), v.width(), margen), Qt::AlignRight | Qt::AlignVCenter, textos::EJE_X);
    por_lineas(t.left(), t.right(), paso, [&](double x) {
        const double px = al_pixel(d.p, d.encuadre.a_px(x, 0).x());
        const double medio = fm.horizontalAdvance(cifra(x, paso)) / 2;
        d.p.fillRect(QRectF(px, v.bottom(), 1, 4), d.colores.marco);
        if (px + medio > fin_x || px - medio < v.left() - margen) return;
        d.p.drawText(QRectF(px - 100, v.bottom() + 2, 200, margen - 2), Qt::AlignCenter, cifra(x, paso));
    });
    // The figures of the other axis read upwards; turned, x runs up the window.
    d.p.save();
    d.p.rotate(-90);
    d.p.drawText(QRectF(-v.bottom(), v.left() - margen, v.height(), margen),
        Qt::AlignRight | Qt::AlignVCenter, textos::EJE_Y);
    por_lineas(t.top(), t.bottom(), paso, [&](double y) {
        const double px = al_pixel(d.p, d.encuadre.a_px(0, y).y());
        const double medio = fm.horizontalAdvance(cifra(y, paso)) / 2;
        d.p.fillRect(QRectF(-px - 1, v.left() - 4, 1, 4), d.colores.marco);
        if (px - medio < fin_y || px + medio > v.bottom() + margen) return;
        d.p.drawText(QRectF(-px - 100, v.left() - margen, 200, margen - 2), Qt::AlignCenter, cifra(y, paso));
    });
    d.p.restore();
}

void pinta_escala(const Dibujo& d) {
    const QRectF v = d.encuadre.ventana();
    const QFontMetricsF fm(d.letra);
    const double metros = paso_redondo(ESCALA_PX / d.encuadre.escala());
    const double largo = std::round(metros * d.encuadre.escala());
    const QString texto = longitud(metros);
    const double rebasa = fm.horizontalAdvance(texto) / 2; // the figures stand centred below the ends
    const QSizeF tamano(largo + 2 * rebasa + 2 * RELLENO_PX, fm.height() + 7 + 2 * RELLENO_PX - 4);
    if (tamano.width() + 2 * SEPARACION_PX > v.width() || v.height() < 120) return;
    const QRectF sitio(
        QPointF(v.right() - SEPARACION_PX - tamano.width(), v.bottom() - SEPARACION_PX - tamano.height()),
        tamano);
    placa(d, sitio);
    const QRectF barra(
        std::round(sitio.left() + RELLENO_PX + rebasa), std::round(sitio.top() + RELLENO_PX), largo, 5);
    d.p.fillRect(barra, d.colores.texto);
    d.p.fillRect(QRectF(barra.center().x(), barra.top() + 1, largo / 2 - 1, 3), d.colores.fondo);
    d.p.setFont(d.letra);
    d.p.setPen(d.colores.texto);
    const double y = barra.bottom() + 2;
    d.p.drawText(QRectF(barra.left() - 50, y, 100, fm.height()), Qt::AlignCenter, QStringLiteral("0"));
    d.p.drawText(QRectF(barra.right() - 100, y, 200, fm.height()), Qt::AlignCenter, texto);
}

void pinta_leyenda(const Dibujo& d) {
    const Clase clases[] = {{QColor(0xFF, 0, 0), textos::CADA_2}, {QColor(0xFF, 0xFF, 0), textos::CADA_10},
        {QColor(0, 0xFF, 0), textos::CADA_50}};
    const QFontMetricsF fm(d.letra);
    const double renglon = std::ceil(fm.height()) + 3;
    const double sangria = 16;
    double ancho = fm.horizontalAdvance(textos::LEYENDA);
    for (const Clase& c : clases) ancho = std::max(ancho, sangria + fm.horizontalAdvance(c.texto));
    const double alto_norte = fm.height() + 28;
    const QRectF v = d.encuadre.ventana();
    const QRectF sitio(v.left() + SEPARACION_PX, v.top() + SEPARACION_PX, ancho + 2 * RELLENO_PX,
        alto_norte + 10 + renglon * 4 + 2 * RELLENO_PX);
    if (sitio.width() * 3 > v.width() || sitio.height() * 2 > v.height()) return;
    placa(d, sitio);
    d.p.setFont(d.letra);
    pinta_norte(d, QRectF(sitio.left() + RELLENO_PX, sitio.top() + RELLENO_PX, 18, alto_norte));
    QRectF linea(sitio.left() + RELLENO_PX, sitio.top() + RELLENO_PX + alto_norte + 10, ancho, renglon);
    d.p.setPen(d.colores.tenue);
    d.p.drawText(linea, Qt::AlignLeft | Qt::AlignVCenter, textos::LEYENDA);
    for (const Clase& c : clases) {
        linea.translate(0, renglon);
        pinta_marca(d.p, {linea.left() + 5, linea.center().y()}, 4.5, c.color, d.colores.borde(c.color));
        d.p.setPen(d.colores.texto);
        d.p.drawText(linea.adjusted(sangria, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, c.texto);
    }
}

void pinta_marca(QPainter& p, QPointF centro, double radio, const QColor& relleno, const QColor& borde) {
    p.setPen(QPen(borde, radio > 2 ? 1.2 : 0.6));
    p.setBrush(relleno);
    p.drawEllipse(centro, radio, radio);
}

} // namespace plano
