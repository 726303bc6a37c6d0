// SPDX-License-Identifier: MIT
// What stands on the plan beside the points: axes with their grid, scale bar, north arrow and legend.
#pragma once

#include "colores.h"
#include "encuadre.h"

#include <QFont>

class QPainter;

namespace plano {

struct Dibujo {
    QPainter& p;
    const Encuadre& encuadre;
    const Colores& colores;
    QFont letra; ///< of axes and names
};

/// Height of the strip below the ground, and width of the one at its left, where the figures stand.
[[nodiscard]] double margen_ejes(const QFont& letra);

void pinta_cuadricula(const Dibujo& d);
void pinta_ejes(const Dibujo& d);
void pinta_escala(const Dibujo& d);
/// North arrow and, below it, the classes of flooding.
void pinta_leyenda(const Dibujo& d);

/// A disc with an edge.
void pinta_marca(QPainter& p, QPointF centro, double radio, const QColor& relleno, const QColor& borde);

} // namespace plano
