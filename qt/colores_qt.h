// SPDX-License-Identifier: MIT
// Screen colours of the core (0x00BBGGRR, or a system colour with the top bit set) as QColor, and the
// contrast rule for text on a coloured cell.
#pragma once

#include <QColor>
#include <QPalette>

#include <cstdint>

namespace Qlt4_Tabla {

[[nodiscard]] inline QColor color_de_pantalla(std::int32_t color, const QPalette& paleta) {
    const auto bits = static_cast<std::uint32_t>(color);
    if ((bits & 0x80000000U) != 0) {
        switch (bits & 0xFFU) {
        case 0x05: return paleta.color(QPalette::Base);
        case 0x08: return paleta.color(QPalette::WindowText);
        case 0x0D: return paleta.color(QPalette::Highlight);
        case 0x0E: return paleta.color(QPalette::HighlightedText);
        default: return paleta.color(QPalette::Button);
        }
    }
    return {static_cast<int>(bits & 0xFFU), static_cast<int>((bits >> 8) & 0xFFU),
        static_cast<int>((bits >> 16) & 0xFFU)};
}

[[nodiscard]] inline std::int32_t color_a_pantalla(const QColor& c) {
    return (c.blue() << 16) | (c.green() << 8) | c.red();
}

/// Black or white, whichever reads better on `fondo` (weights of perceived brightness).
[[nodiscard]] inline QColor contraste(const QColor& fondo) {
    const int brillo = fondo.red() * 299 + fondo.green() * 587 + fondo.blue() * 114;
    return brillo >= 140000 ? QColor(Qt::black) : QColor(Qt::white);
}

/// `parte` per cent of `b` over `a`.
[[nodiscard]] inline QColor mezcla(const QColor& a, const QColor& b, int parte) {
    const auto m = [parte](int x, int y) { return (x * (100 - parte) + y * parte) / 100; };
    return {m(a.red(), b.red()), m(a.green(), b.green()), m(a.blue(), b.blue())};
}

[[nodiscard]] inline bool es_oscura(const QPalette& paleta) {
    return paleta.color(QPalette::Base).lightness() < 128;
}

/// What a message beside the controls is written in.
[[nodiscard]] inline QColor tinta_de_aviso(const QPalette& paleta) {
    return es_oscura(paleta) ? QColor(0xFF, 0x9A, 0x8A) : QColor(0xA8, 0x1C, 0x07);
}

} // namespace Qlt4_Tabla
