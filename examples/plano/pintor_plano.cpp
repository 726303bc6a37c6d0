// SPDX-License-Identifier: MIT
// Draws marks, names and what is selected, in that order.
#include "pintor_plano.h"

#include "rotulos.h"
#include "tabla_puntos.h"
#include "textos.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace plano {

namespace {

constexpr int MUCHOS = 3000; // from here on one mark a spot is enough
constexpr double MANCHA_PX = 2;
constexpr std::size_t MAX_NOMBRES = 2500; // with more marks in sight no name would find room
constexpr std::size_t MAX_ETIQUETAS = 60;
constexpr double ANILLO_PX = 3.5; // between a mark and its ring

} // namespace

double PintorPlano::radio() const {
    const int n = puntos_.situados();
    if (n <= 400) return 4.5;
    if (n <= MUCHOS) return 3.5;
    return n <= 100'000 ? 2.5 : 1.5;
}

std::vector<int> PintorPlano::a_la_vista(int desde, int hasta) const {
    const QRectF v = d_.encuadre.ventana();
    const double r = radio() + 1;
    const QRectF cerca = v.adjusted(-r, -r, r, r);
    const auto columnas = static_cast<std::size_t>(cerca.width() / MANCHA_PX) + 1;
    const auto filas = static_cast<std::size_t>(cerca.height() / MANCHA_PX) + 1;
    std::vector<bool> manchado(puntos_.situados() > MUCHOS ? columnas * filas : 0);
    std::vector<int> vistas;
    for (int f = std::max(1, desde); f <= std::min(hasta, puntos_.filas()); ++f) {
        const Punto& punto = puntos_.de_fila(f);
        const QPointF px = d_.encuadre.a_px(punto.x, punto.y);
        if (!punto.situado || !cerca.contains(px)) continue;
        if (!manchado.empty()) {
            const auto c = static_cast<std::size_t>((px.x() - cerca.left()) / MANCHA_PX);
            const auto l = static_cast<std::size_t>((px.y() - cerca.top()) / MANCHA_PX);
            if (manchado[l * columnas + c]) continue;
            manchado[l * columnas + c] = true;
        }
        vistas.push_back(f);
    }
    return vistas;
}

QColor PintorPlano::color(int fila) const {
    const QRgb rgb = puntos_.de_fila(fila).color;
    return qAlpha(rgb) == 0 ? d_.colores.sin_color : QColor(rgb);
}

QString PintorPlano::nombre(int fila) const {
    const std::string_view texto = tablero_.TextMatrix(fila, NOMBRE);
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

QPointF PintorPlano::sitio(int fila) const {
    return d_.encuadre.a_px(puntos_.de_fila(fila).x, puntos_.de_fila(fila).y);
}

SitioNombres PintorPlano::pinta_fondo(bool con_cuadricula, bool con_nombres) {
    const QRectF v = d_.encuadre.ventana();
    d_.p.fillRect(v, d_.colores.fondo);
    if (con_cuadricula) pinta_cuadricula(d_);
    pinta_ejes(d_);
    d_.p.setClipRect(v);
    const std::vector<int> vistas = a_la_vista(1, puntos_.filas());
    pinta_marcas(vistas);
    SitioNombres sitios;
    if (con_nombres && vistas.size() <= MAX_NOMBRES) sitios = pinta_nombres(vistas);
    d_.p.setClipping(false);
    return sitios;
}

// A mark is drawn once a colour and then copied, on whole pixels: thousands cost little and all look alike.
void PintorPlano::pinta_marcas(const std::vector<int>& filas) {
    const double dpr = d_.p.device()->devicePixelRatioF();
    const double medio = std::ceil(radio() + 1);
    QHash<QRgb, QPixmap> sellos;
    for (const int fila : filas) {
        const QColor relleno = color(fila);
        QPixmap& sello = sellos[relleno.rgb()];
        if (sello.isNull()) {
            sello = QPixmap(QSizeF(2 * medio * dpr, 2 * medio * dpr).toSize());
            sello.setDevicePixelRatio(dpr);
            sello.fill(Qt::transparent);
            QPainter p(&sello);
            p.setRenderHint(QPainter::Antialiasing);
            pinta_marca(p, {medio, medio}, radio(), relleno, d_.colores.borde(relleno));
        }
        const QPointF px = sitio(fila) - QPointF(medio, medio);
        d_.p.drawPixmap(QPointF(std::round(px.x() * dpr) / dpr, std::round(px.y() * dpr) / dpr), sello);
    }
}

SitioNombres PintorPlano::pinta_nombres(const std::vector<int>& filas) {
    const QFontMetricsF fm(d_.letra);
    const double r = radio();
    Rotulos rotulos(d_.encuadre.ventana());
    for (const int fila : filas) {
        const QPointF px = sitio(fila);
        rotulos.ocupa({px.x() - r, px.y() - r, 2 * r, 2 * r});
    }
    SitioNombres sitios;
    d_.p.setFont(d_.letra);
    d_.p.setPen(mezcla(d_.colores.fondo, d_.colores.texto, 80));
    for (const int fila : filas) {
        const QString texto = nombre(fila);
        if (texto.isEmpty()) continue;
        const auto libre = rotulos.coloca(sitio(fila), r, {fm.horizontalAdvance(texto), fm.ascent() + 1});
        if (!libre) continue;
        sitios.insert(fila, *libre);
        d_.p.drawText(*libre, Qt::AlignCenter | Qt::TextDontClip, texto);
    }
    return sitios;
}

void PintorPlano::pinta_anillo(int fila, const QColor& color, double ancho) {
    d_.p.setPen(QPen(color, ancho));
    d_.p.setBrush(Qt::NoBrush);
    d_.p.drawEllipse(sitio(fila), radio() + ANILLO_PX, radio() + ANILLO_PX);
}

void PintorPlano::pinta_seleccion(const SitioNombres& sitios, int bajo_puntero) {
    d_.p.setClipRect(d_.encuadre.ventana());
    const Qlt4_Tabla::Bloque sel = tablero_.seleccion();
    const std::vector<int> elegidas = a_la_vista(sel.fila1, sel.fila2);
    for (const int fila : elegidas) pinta_anillo(fila, d_.colores.realce, 2);
    pinta_marcas(elegidas);
    if (puntos_.hay(bajo_puntero)) pinta_anillo(bajo_puntero, d_.colores.texto, 1);
    pinta_etiquetas(elegidas, sitios);
    d_.p.setClipping(false);
}

// A selected point always carries its name; of many selected ones, those that find room.
void PintorPlano::pinta_etiquetas(const std::vector<int>& filas, const SitioNombres& sitios) {
    if (filas.size() > MAX_ETIQUETAS) return;
    const QFontMetricsF fm(d_.letra);
    const double r = radio() + ANILLO_PX;
    Rotulos rotulos(d_.encuadre.ventana());
    d_.p.setFont(d_.letra);
    for (const int fila : filas) {
        const QString texto = nombre(fila);
        const QSizeF letra(fm.horizontalAdvance(texto) + 6, fm.height() - 1);
        if (texto.isEmpty()) continue;
        std::optional<QRectF> placa;
        if (sitios.contains(fila)) {
            placa = QRectF(QPointF(), letra);
            placa->moveCenter(sitios.value(fila).center());
        } else {
            placa = rotulos.coloca(sitio(fila), r, letra);
        }
        if (!placa) continue;
        rotulos.ocupa(*placa);
        d_.p.setPen(Qt::NoPen);
        d_.p.setBrush(d_.colores.etiqueta);
        d_.p.drawRoundedRect(*placa, 3, 3);
        d_.p.setPen(d_.colores.en_etiqueta);
        d_.p.drawText(*placa, Qt::AlignCenter, texto);
    }
}

} // namespace plano
