// SPDX-License-Identifier: MIT
// Rotulos: finds room for the names of the points. A name stands beside its mark where it covers no mark and
// no other name; where there is no such place it is left out.
#pragma once

#include <QRectF>

#include <optional>
#include <vector>

namespace plano {

class Rotulos {
public:
    /// Names lie within `ventana` (pixels).
    explicit Rotulos(const QRectF& ventana);

    /// Nothing may cover this.
    void ocupa(const QRectF& sitio);
    /// A free place of that size beside a mark of that radius, taken from now on; nothing: there is none.
    std::optional<QRectF> coloca(QPointF marca, double radio, QSizeF letra);

private:
    [[nodiscard]] bool libre(const QRectF& sitio) const;
    template <class Hace>
    void por_casillas(const QRectF& sitio, Hace hace) const;

    QRectF ventana_;
    int columnas_;
    int filas_;
    std::vector<std::vector<QRectF>> casillas_; // what is taken, by squares of the window
};

} // namespace plano
