// SPDX-License-Identifier: MIT
// Colores: what the plan is drawn in, derived from the window's palette, so that it reads on light and dark.
#pragma once

#include <QColor>
#include <QPalette>

namespace plano {

/// `parte` per cent of `b` over `a`.
[[nodiscard]] inline QColor mezcla(const QColor& a, const QColor& b, int parte) {
    const auto m = [parte](int x, int y) { return (x * (100 - parte) + y * parte) / 100; };
    return {m(a.red(), b.red()), m(a.green(), b.green()), m(a.blue(), b.blue())};
}

struct Colores {
    explicit Colores(const QPalette& p)
        : fondo(p.color(QPalette::Base)),
          texto(p.color(QPalette::Text)),
          marco(mezcla(fondo, texto, 30)),
          cuadricula(mezcla(fondo, texto, 9)),
          linea_placa(mezcla(fondo, texto, 16)),
          tenue(mezcla(fondo, texto, 62)),
          sin_color(mezcla(fondo, texto, 35)),
          realce(mezcla(p.color(QPalette::Highlight), texto, fondo.lightness() < 128 ? 25 : 0)),
          etiqueta(p.color(QPalette::Highlight)),
          en_etiqueta(p.color(QPalette::HighlightedText)),
          margen(p.color(QPalette::Window)) {}

    QColor fondo, texto, marco, cuadricula, linea_placa;
    QColor tenue; ///< figures on the axes
    QColor sin_color; ///< mark of a point without a colour of its own
    QColor realce; ///< ring of a selected point
    QColor etiqueta, en_etiqueta; ///< name plate of a selected point
    QColor margen;

    /// The edge of a mark: set off from the ground whatever the mark's colour.
    [[nodiscard]] QColor borde(const QColor& relleno) const { return mezcla(relleno, texto, 55); }
};

} // namespace plano
