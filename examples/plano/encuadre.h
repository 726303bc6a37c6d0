// SPDX-License-Identifier: MIT
// Encuadre: which part of the ground the plan shows, and at what scale. Ground in metres, y to the north;
// window in pixels, y downwards. Both axes have the same scale. Main names: Encuadre, paso_redondo.
#pragma once

#include <QPointF>
#include <QRectF>

namespace plano {

/// The smallest of 1, 2, 5, 10, 20... (or 0.5, 0.2...) that is not below `minimo`; `minimo` > 0.
[[nodiscard]] double paso_redondo(double minimo);

class Encuadre {
public:
    /// Pixels that the ground is drawn in.
    [[nodiscard]] const QRectF& ventana() const { return ventana_; }

    void ventana(const QRectF& px) { ventana_ = px; }

    /// Pixels a metre.
    [[nodiscard]] double escala() const { return escala_; }

    [[nodiscard]] QPointF a_px(double x, double y) const {
        return {ventana_.center().x() + (x - centro_.x()) * escala_,
            ventana_.center().y() - (y - centro_.y()) * escala_};
    }

    [[nodiscard]] QPointF a_metros(QPointF px) const {
        return {centro_.x() + (px.x() - ventana_.center().x()) / escala_,
            centro_.y() - (px.y() - ventana_.center().y()) / escala_};
    }

    /// The ground that is seen.
    [[nodiscard]] QRectF terreno() const;

    /// Shows all of `terreno` with some room around it; a ground without extent shows `MINIMO_M` around it.
    void ajusta(const QRectF& terreno);
    /// The ground under `ancla` (pixels) stays under it. The scale stays within its limits.
    void escala_alrededor(double factor, QPointF ancla);

    void mueve(QPointF px) { centro_ -= QPointF(px.x(), -px.y()) / escala_; }

    /// Moves as little as it takes to see the point; false when it was seen already.
    bool muestra(double x, double y);

    static constexpr double MINIMO_M = 10;

private:
    QRectF ventana_{0, 0, 1, 1};
    QPointF centro_;
    double escala_ = 1;
};

} // namespace plano
