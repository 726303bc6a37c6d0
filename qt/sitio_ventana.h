// SPDX-License-Identifier: MIT
// Places of dialogs: remembered ones that are no longer on a screen come back to it.
#pragma once

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace Qlt4_Tabla {

/// A remembered place or size as whole twips; one far beyond any screen is brought near, so that it can be
/// reckoned with.
[[nodiscard]] inline int twips_enteros(float twips) {
    constexpr float LEJOS = 1.0e7F;
    return static_cast<int>(std::lround(std::clamp(twips, -LEJOS, LEJOS)));
}

/// Room for a window's frame, before it is known.
inline constexpr QSize MARCO_VENTANA(16, 40);

/// The size, at most as large as fits on the window's screen.
[[nodiscard]] inline QSize cabe_en_pantalla(const QWidget& ventana, QSize talla) {
    return talla.boundedTo(ventana.screen()->availableSize() - MARCO_VENTANA);
}

/// The place nearest to `p` where the whole window, frame included, is on a screen; where it is too large for
/// that, its top left corner is.
[[nodiscard]] inline QPoint dentro_de_pantalla(const QWidget& ventana, QPoint p) {
    const QScreen* pantalla = QGuiApplication::screenAt(p);
    if (pantalla == nullptr) pantalla = ventana.screen();
    const QRect libre = pantalla->availableGeometry();
    const QSize talla = ventana.isVisible() ? ventana.frameGeometry().size() : ventana.size() + MARCO_VENTANA;
    const auto sujeta = [](int x, int primero, int ultimo) {
        return std::clamp(x, primero, std::max(primero, ultimo));
    };
    return {sujeta(p.x(), libre.left(), libre.right() - talla.width() + 1),
        sujeta(p.y(), libre.top(), libre.bottom() - talla.height() + 1)};
}

} // namespace Qlt4_Tabla
