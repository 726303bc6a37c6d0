// SPDX-License-Identifier: MIT
// Twips to the widget's logical pixels and back. The core keeps twips as given; pixels are derived for
// drawing, and only what a user drags is turned back into twips.
#pragma once

#include <QWidget>

#include <cmath>
#include <cstdint>

namespace Qlt4_Tabla {

inline constexpr int TWIPS_POR_PULGADA = 1440;

class Unidades {
public:
    explicit Unidades(const QWidget& w) : dpi_x_(w.logicalDpiX()), dpi_y_(w.logicalDpiY()) {}

    [[nodiscard]] int px_x(int twips) const { return a_px(twips, dpi_x_); }

    [[nodiscard]] int px_y(int twips) const { return a_px(twips, dpi_y_); }

    [[nodiscard]] int twips_x(int px) const { return a_twips(px, dpi_x_); }

    [[nodiscard]] int twips_y(int px) const { return a_twips(px, dpi_y_); }

    /// Are these twips whole pixels?
    [[nodiscard]] bool enteros_x(int twips) const { return enteros(twips, dpi_x_); }

    [[nodiscard]] bool enteros_y(int twips) const { return enteros(twips, dpi_y_); }

private:
    static bool enteros(int twips, int dpi) { return std::int64_t{twips} * dpi % TWIPS_POR_PULGADA == 0; }

    // Halves go up on both sides of 0, so that what is scrolled keeps its pixels.
    static int a_px(int twips, int dpi) {
        return static_cast<int>(std::floor(static_cast<double>(twips) * dpi / TWIPS_POR_PULGADA + 0.5));
    }

    static int a_twips(int px, int dpi) {
        return static_cast<int>(std::lround(static_cast<double>(px) * TWIPS_POR_PULGADA / dpi));
    }

    int dpi_x_;
    int dpi_y_;
};

} // namespace Qlt4_Tabla
