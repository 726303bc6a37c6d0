// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees: the names of the palette's first colours, which are also what
// a colour cell holds, and the refusal of a negative colour. Main name: textos::nombres_color.
#pragma once

#include <array>
#include <string_view>

namespace Qlt4_Tabla::textos {

// By palette index. The two greys have their number as name.
inline constexpr std::array<std::string_view, 10> nombres_color{
    "por capa", "rojo", "amarillo", "verde", "ciano", "azul", "magenta", "blanco", "8", "9"};

// Message box of a colour below 0 given to a colour cell, and its title.
inline constexpr std::string_view color_negativo = "color negativo";
inline constexpr std::string_view titulo_color = "Tabla color";

} // namespace Qlt4_Tabla::textos
