// SPDX-License-Identifier: MIT
// Rectangulo: a rectangle in twips (1440 to the inch), as the grid's geometry gives it and the
// front ends lay editors by it. It contains its left and top edge, not its right and bottom one.
#pragma once

namespace Qlt4_Tabla {

struct Rectangulo {
    int izquierda = 0;
    int arriba = 0;
    int ancho = 0;
    int alto = 0;

    [[nodiscard]] constexpr int derecha() const { return izquierda + ancho; }

    [[nodiscard]] constexpr int abajo() const { return arriba + alto; }

    [[nodiscard]] constexpr bool contiene(int x, int y) const {
        return x >= izquierda && x < derecha() && y >= arriba && y < abajo();
    }

    friend constexpr bool operator==(const Rectangulo&, const Rectangulo&) = default;
};

} // namespace Qlt4_Tabla
