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

inline constexpr std::string_view miembro_desconocido = "El objeto no admite esta propiedad o método";
inline constexpr std::string_view argumentos_incorrectos =
    "Número de argumentos incorrecto o asignación de propiedad no válida";

} // namespace Qlt4_Tabla::textos
