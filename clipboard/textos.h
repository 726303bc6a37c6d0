// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees. Odd spellings ("cabezera", two blanks, seventeen blanks before a
// question) are intended and kept byte for byte.
#pragma once

#include <string_view>

namespace Qlt4_Tabla::textos {

// The message of a failed copy of everything: one of these, the error's number, `antes_de_descripcion...`,
// its description.
inline constexpr std::string_view error_copiar_tabla = "copiar todo  - Error nº ";
inline constexpr std::string_view error_copiar_con_cabecera = "copiar todo con cabezera - Error nº ";
inline constexpr std::string_view error_copiar_en_hoja = "copiar todo - Error nº ";
inline constexpr std::string_view antes_de_descripcion_copia = ":";

inline constexpr std::string_view tabla_copiada = "Filas y columnas copiadas";
inline constexpr std::string_view titulo_tabla_copiada = "Copiar todo";

inline constexpr std::string_view sin_texto = "No hay texto en el portapapeles";

// The question before fields are lost, around their count, the columns there are, and how many too few.
// What a long command is doing, in the strip below the table.
inline constexpr std::string_view copiando = "Copiando";
inline constexpr std::string_view pegando = "Pegando";
inline constexpr std::string_view llevando_a_la_hoja = "Copiando a la hoja de cálculo";

inline constexpr std::string_view titulo_faltan_columnas = "No coinciden el nº de columnas:";
inline constexpr std::string_view antes_de_campos = "Hay seleccionadas ";
inline constexpr std::string_view antes_de_columnas = " columnas para copiarlas en ";
inline constexpr std::string_view antes_de_perdidas = " columnas\r\nSi continuas se perderán ";
inline constexpr std::string_view quieres_seguir = " columnas\r\n                 ¿Quieres seguir?";

} // namespace Qlt4_Tabla::textos
