// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees: the names of the palette's first colours, which are also what
// a colour cell holds, the refusal of a negative colour, the picker's and the colour menu's own.
// Main names: textos::nombres_color, textos::lista_colores, textos::menu_colores.
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

// The picker: its own title, its title as the table shows it, what its error label says, and the frame of a swatch's name
// where it has one: name, this, index, this.
inline constexpr std::string_view gama_de_colores = "Gama de colores";
inline constexpr std::string_view elige_color = "Elige Color:";
inline constexpr std::string_view color_no_valido = "Color no válido";
inline constexpr std::string_view abre_indice = " (";
inline constexpr std::string_view cierra_indice = ")";

// Sixteen colours as a list names them. The blank behind the ninth is intended.
inline constexpr std::array<std::string_view, 16> lista_colores{"1 Rojo", "2 Amarillo", "3 Verde", "4 Ciano",
    "5 Azul", "6 Magenta", "7 Blanco", "8 Negro", "9 Rojo mate ", "10 Amarillo mate", "11 Verde mate",
    "12 Ciano mate", "13 Azul mate", "14 Magenta mate", "15 Blanco mate", "16 Negro mate"};

// Entries of the colour menu. The four points of the last one are intended.
inline constexpr std::array<std::string_view, 10> menu_colores{"rojo", "amarillo", "verde", "ciano", "azul",
    "magenta", "blanco", "gris oscuro", "gris claro", "Otro...."};

} // namespace Qlt4_Tabla::textos
