// SPDX-License-Identifier: MIT
// PintorPlano: draws the points of the table. First the picture that stays while the selection moves (grid,
// axes, marks, names), then over it what is selected. It keeps nothing between two drawings.
#pragma once

#include "adornos.h"
#include "core/tablero.h"
#include "puntos.h"

#include <QHash>
#include <QPixmap>

#include <string_view>
#include <vector>

namespace plano {

/// Where the names stand, by row.
using SitioNombres = QHash<int, QRectF>;

class PintorPlano {
public:
    PintorPlano(const Dibujo& d, const Puntos& puntos, const Qlt4_Tabla::Tablero& tablero)
        : d_(d), puntos_(puntos), tablero_(tablero) {}

    SitioNombres pinta_fondo(bool con_cuadricula, bool con_nombres);
    /// The rows of the selection and the row under the pointer (0: none).
    void pinta_seleccion(const SitioNombres& sitios, int bajo_puntero);

private:
    /// Rows between the two whose mark is seen; where marks crowd, one a spot.
    [[nodiscard]] std::vector<int> a_la_vista(int desde, int hasta) const;
    [[nodiscard]] double radio() const;
    [[nodiscard]] QColor color(int fila) const;
    [[nodiscard]] QString nombre(int fila) const;
    [[nodiscard]] QPointF sitio(int fila) const;
    void pinta_marcas(const std::vector<int>& filas);
    SitioNombres pinta_nombres(const std::vector<int>& filas);
    void pinta_anillo(int fila, const QColor& color, double ancho);
    void pinta_etiquetas(const std::vector<int>& filas, const SitioNombres& sitios);

    const Dibujo& d_;
    const Puntos& puntos_;
    const Qlt4_Tabla::Tablero& tablero_;
};

} // namespace plano
