// SPDX-License-Identifier: MIT
// Texts of this folder: the buttons of message boxes, and what a user hears from an assistive program: the
// names of the table, its cells and the editors over them ("X, fila 3, 12.500, bloqueada").
#pragma once

#include <string_view>

namespace Qlt4_Tabla::textos {

// Buttons of a message box; "&" marks the key.
inline constexpr std::string_view aceptar = "Aceptar";
inline constexpr std::string_view si = "&Sí";
inline constexpr std::string_view no = "&No";

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
