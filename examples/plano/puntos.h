// SPDX-License-Identifier: MIT
// Puntos: the places and colours of the table's rows, ready to be drawn. Changed rows are only noted; they
// are read again from the grid before the next drawing, so that many changes cost one reading.
#pragma once

#include "core/tablero.h"
#include "encuadre.h"

#include <QColor>
#include <QRectF>

#include <optional>
#include <vector>

namespace plano {

struct Punto {
    double x = 0; ///< metres
    double y = 0;
    QRgb color = 0; ///< transparent: the row has no colour
    bool situado = false; ///< both coordinates are numbers a plan can show
};

class Puntos {
public:
    /// Data rows; the point of row 1 is the first.
    [[nodiscard]] int filas() const { return static_cast<int>(puntos_.size()); }

    [[nodiscard]] const Punto& de_fila(int fila) const { return puntos_[static_cast<std::size_t>(fila - 1)]; }

    [[nodiscard]] bool hay(int fila) const { return fila >= 1 && fila <= filas() && de_fila(fila).situado; }

    /// Rows with a place.
    [[nodiscard]] int situados() const { return situados_; }

    // The table says what changed.
    void marca(int desde, int hasta);
    void marca_todo();
    void inserta(int fila, int n);
    void borra(int fila, int n);
    /// Reads what was noted. False: there was nothing.
    bool pon_al_dia(const Qlt4_Tabla::Tablero& tablero);

    /// The ground that holds the points of the rows; nothing when none of them has a place.
    [[nodiscard]] std::optional<QRectF> limites(int desde, int hasta) const;
    /// The row whose point is drawn nearest to `px`, at most `radio` pixels off; 0 for none.
    [[nodiscard]] int cercano(const Encuadre& encuadre, QPointF px, double radio) const;
    /// The rows whose points lie in the ground, ascending.
    [[nodiscard]] std::vector<int> dentro(const QRectF& terreno) const;

private:
    void lee(const Qlt4_Tabla::Tablero& tablero, int fila);

    std::vector<Punto> puntos_;
    int situados_ = 0;
    int desde_ = 1; // rows to be read again
    int hasta_ = 0;
};

} // namespace plano
