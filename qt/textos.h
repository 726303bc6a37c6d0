// SPDX-License-Identifier: MIT
// Texts of this folder: the buttons of message boxes, the colour picker, and what a user hears from an
// assistive program: the names of the table, its cells and the editors over them ("X, fila 3, 12.500,
// bloqueada").
#pragma once

#include <string_view>

namespace Qlt4_Tabla::textos {

// Buttons of a message box; "&" marks the key.
inline constexpr std::string_view aceptar = "Aceptar";
inline constexpr std::string_view si = "&Sí";
inline constexpr std::string_view no = "&No";

// The colour picker. The missing blank of the second one and the small letters are intended.
inline constexpr std::string_view color_elegido = "Color elegido:";
inline constexpr std::string_view de_1_a_255 = "de 1a 255";
inline constexpr std::string_view color_capa = "color capa principal :";
inline constexpr std::string_view otros = "otros ...";
inline constexpr std::string_view por_capa = "por capa";
inline constexpr std::string_view cancelar = "Cancelar";
// Its strips, read out.
inline constexpr std::string_view tira_normal = "Colores básicos";
inline constexpr std::string_view tira_grises = "Grises";
inline constexpr std::string_view tira_especial = "Todos los colores";

/// A table without a title.
inline constexpr std::string_view tabla = "Tabla";

// The name of a cell: column, row, value, lock.
inline constexpr std::string_view columna = "columna "; // and its number, where it has no name
inline constexpr std::string_view fila = "fila "; // and its number
inline constexpr std::string_view separa = ", ";
inline constexpr std::string_view vacia = "vacía";
inline constexpr std::string_view bloqueada = "bloqueada";

// The name of a header.
inline constexpr std::string_view esquina = "Esquina";
inline constexpr std::string_view cabecera_columna = "Columna "; // and its name

} // namespace Qlt4_Tabla::textos
