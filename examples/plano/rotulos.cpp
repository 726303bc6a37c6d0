// SPDX-License-Identifier: MIT
// Tries the places around each mark and takes the first that is free.
#include "rotulos.h"

#include <algorithm>
#include <cstddef>

namespace plano {

namespace {

constexpr double LADO_PX = 48;
constexpr double SEPARACION_PX = 4;

} // namespace

Rotulos::Rotulos(const QRectF& ventana)
    : ventana_(ventana),
      columnas_(std::max(1, static_cast<int>(ventana.width() / LADO_PX) + 1)),
      filas_(std::max(1, static_cast<int>(ventana.height() / LADO_PX) + 1)),
      casillas_(static_cast<std::size_t>(columnas_) * static_cast<std::size_t>(filas_)) {}

template <class Hace>
void Rotulos::por_casillas(const QRectF& sitio, Hace hace) const {
    const auto indice = [](double px, int cuantos) {
        return static_cast<int>(std::clamp(px / LADO_PX, 0.0, static_cast<double>(cuantos - 1)));
    };
    const int c2 = indice(sitio.right() - ventana_.left(), columnas_);
    const int f2 = indice(sitio.bottom() - ventana_.top(), filas_);
    for (int f = indice(sitio.top() - ventana_.top(), filas_); f <= f2; ++f)
        for (int c = indice(sitio.left() - ventana_.left(), columnas_); c <= c2; ++c)
            hace(static_cast<std::size_t>(f) * static_cast<std::size_t>(columnas_) +
                static_cast<std::size_t>(c));
}

void Rotulos::ocupa(const QRectF& sitio) {
    por_casillas(sitio, [&](std::size_t i) { casillas_[i].push_back(sitio); });
}

bool Rotulos::libre(const QRectF& sitio) const {
    bool si = ventana_.contains(sitio);
    por_casillas(sitio, [&](std::size_t i) {
        si = si && std::ranges::none_of(casillas_[i], [&](const QRectF& r) { return r.intersects(sitio); });
    });
    return si;
}

std::optional<QRectF> Rotulos::coloca(QPointF marca, double radio, QSizeF letra) {
    const double lejos = radio + SEPARACION_PX;
    const double ancho = letra.width(), alto = letra.height();
    const double x = marca.x(), y = marca.y();
    const QPointF esquinas[] = {
        {x + lejos, y - alto / 2},
        {x + lejos * 0.7, y - alto - lejos * 0.4},
        {x + lejos * 0.7, y + lejos * 0.4},
        {x - lejos - ancho, y - alto / 2},
        {x - lejos * 0.7 - ancho, y - alto - lejos * 0.4},
        {x - lejos * 0.7 - ancho, y + lejos * 0.4},
        {x - ancho / 2, y - alto - lejos},
        {x - ancho / 2, y + lejos},
    };
    for (const QPointF& esquina : esquinas) {
        const QRectF sitio(esquina, letra);
        if (!libre(sitio)) continue;
        ocupa(sitio);
        return sitio;
    }
    return std::nullopt;
}

} // namespace plano
