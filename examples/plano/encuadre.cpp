// SPDX-License-Identifier: MIT
// The arithmetic of zoom and pan between metres on the ground and pixels of the window.
#include "encuadre.h"

#include <algorithm>
#include <cmath>

namespace plano {

namespace {

constexpr double ESCALA_MIN = 1e-7;
constexpr double ESCALA_MAX = 1e5;
constexpr double HOLGURA_PX = 28; // room for marks and names at the edge

} // namespace

double paso_redondo(double minimo) {
    const double decada = std::pow(10.0, std::floor(std::log10(minimo)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (decada * factor >= minimo * (1 - 1e-9)) return decada * factor;
    return decada * 10;
}

QRectF Encuadre::terreno() const {
    const QPointF a = a_metros(ventana_.topLeft());
    const QPointF b = a_metros(ventana_.bottomRight());
    return {a.x(), b.y(), b.x() - a.x(), a.y() - b.y()};
}

void Encuadre::ajusta(const QRectF& terreno) {
    const double ancho = std::max(ventana_.width() - 2 * HOLGURA_PX, 20.0);
    const double alto = std::max(ventana_.height() - 2 * HOLGURA_PX, 20.0);
    const double por_x = ancho / std::max(terreno.width(), MINIMO_M);
    const double por_y = alto / std::max(terreno.height(), MINIMO_M);
    escala_ = std::clamp(std::min(por_x, por_y), ESCALA_MIN, ESCALA_MAX);
    centro_ = terreno.center();
}

void Encuadre::escala_alrededor(double factor, QPointF ancla) {
    const QPointF fijo = a_metros(ancla);
    escala_ = std::clamp(escala_ * factor, ESCALA_MIN, ESCALA_MAX);
    const QPointF ahora = a_px(fijo.x(), fijo.y());
    mueve(ancla - ahora);
}

bool Encuadre::muestra(double x, double y) {
    const QPointF px = a_px(x, y);
    const QRectF dentro = ventana_.adjusted(HOLGURA_PX, HOLGURA_PX, -HOLGURA_PX, -HOLGURA_PX);
    if (!dentro.isValid() || dentro.contains(px)) return false;
    mueve({std::clamp(px.x(), dentro.left(), dentro.right()) - px.x(),
        std::clamp(px.y(), dentro.top(), dentro.bottom()) - px.y()});
    return true;
}

} // namespace plano
