// SPDX-License-Identifier: MIT
// The two numberings of colours and the names of the first ones: a palette colour is an index 0 to 255
// of the drawing palette, 0 meaning "by layer"; a screen colour is 0x00BBGGRR. Pure functions on
// constant data, and the only conversions between them.
// Main names: paleta_a_pantalla, pantalla_a_paleta, nombre_a_numero, numero_a_nombre, pantalla_a_nombre.
#pragma once

#include "core/formato_columna.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// Palette index of white, which also stands for every screen colour that has none.
inline constexpr std::int16_t INDICE_BLANCO = 7;

/// Screen colour of a palette index. Below 0 and above 254: white, 0xFFFFFF.
[[nodiscard]] std::int32_t paleta_a_pantalla(std::int32_t indice) noexcept;

/// Palette index of a screen colour, 1 to 254; an exact match in a key list of its own, which differs
/// from the palette in 71 entries, so not every palette colour comes back as its index. Of equal
/// colours the first index counts, but never 0. Any other colour, also a system colour: 7, white.
[[nodiscard]] std::int16_t pantalla_a_paleta(std::int32_t color) noexcept;

/// Number of a colour's name as text ("rojo" is "1", "por capa" is "0"), the letters' case counting;
/// any other text as it came ("12" is "12", "Rojo" is "Rojo").
[[nodiscard]] std::string nombre_a_numero(std::string_view nombre);

/// Name of a palette index 0 to 9; of any other number its digits without sign (25 is "25", -5 is "5").
[[nodiscard]] std::string numero_a_nombre(std::int32_t indice);
[[nodiscard]] std::string numero_a_nombre(std::int16_t indice);

/// Name of a screen colour: that of its palette index 1 to 9, else the index's digits. A colour that the
/// key list lacks is "7" and not "blanco"; none is "por capa".
[[nodiscard]] std::string pantalla_a_nombre(std::int32_t color);

/// Screen colour of a named colour of the colouring members. Negro and values outside 0..7: black.
[[nodiscard]] std::int32_t T_colores_a_pantalla(T_colores color) noexcept;

} // namespace Qlt4_Tabla
