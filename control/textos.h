// SPDX-License-Identifier: MIT
// Texts of this folder that a user or a calling program sees: the frame of the error message of a member
// or a command, and the errors of the dispatcher. Main names: textos::antes_de_miembro and its like.
// The descriptions of the other errors are in base/textos.h.
#pragma once

#include <string_view>

namespace Qlt4_Tabla::textos {

// "Tabla Rows - Error nº 7: Memoria insuficiente"
inline constexpr std::string_view antes_de_miembro = "Tabla ";
inline constexpr std::string_view antes_de_numero = " - Error nº ";
inline constexpr std::string_view antes_de_descripcion = ": ";

/// The column editor, where a member has its name.
inline constexpr std::string_view lugar_editor_columnas = "Editor de columnas";

// The places that the errors of the menus of a selection name: "Tabla Menú Lista - Error nº 7: ...".
inline constexpr std::string_view lugar_menu_alfanumerico = "Menú Alfanumérico";
inline constexpr std::string_view lugar_menu_lista = "Menú Lista";
inline constexpr std::string_view lugar_menu_colores = "Menú Colores";
inline constexpr std::string_view lugar_menu_copia = "Menú Copia";

// Of the colour picker: "ERROR en Vdk_Sys.DLL Nº75", a new line, a blank, the description, a new line, its place.
inline constexpr std::string_view prefijo_color = "ERROR en Vdk_Sys.DLL Nº";
inline constexpr std::string_view antes_de_descripcion_color = "\r\n ";
inline constexpr std::string_view lugar_color = "\r\n.S_color";

inline constexpr std::string_view miembro_desconocido = "El objeto no admite esta propiedad o método";
inline constexpr std::string_view argumentos_incorrectos =
    "Número de argumentos incorrecto o asignación de propiedad no válida";

} // namespace Qlt4_Tabla::textos
