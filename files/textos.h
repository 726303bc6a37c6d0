// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees: messages of reading and writing, the unsaved-data question,
// captions and titles. Odd spellings (the blank before the comma, a missing accent, two blanks) are
// intended and kept byte for byte.
#pragma once

#include <string_view>

namespace Qlt4_Tabla::textos {

// The message of a failed reading or writing: one of these, subtitle, end of line, `numero`, the error's
// number, `antes_de_descripcion`, its description.
inline constexpr std::string_view error_al_leer = "Error al leer la Tabla de ";
inline constexpr std::string_view error_al_guardar = "Error al guardar la Tabla de ";
inline constexpr std::string_view fin_de_linea = "\r\n";
inline constexpr std::string_view numero_de_error = "Error nº=";
inline constexpr std::string_view antes_de_descripcion_fichero = "  ";

// A file of another kind of table: this, its name, end of line, `no_es`, the subtitle.
inline constexpr std::string_view el_fichero = "El fichero ";
inline constexpr std::string_view no_es = "no es ";

/// The unsaved-data question.
// What a long command is doing, in the strip below the table.
inline constexpr std::string_view leyendo = "Leyendo la tabla";
inline constexpr std::string_view guardando = "Guardando la tabla";

inline constexpr std::string_view aviso_perder_datos =
    "Si no ha grabado los datos ,se perderan.  ¿QUIERES SEGUIR?";
// Its answers to the command that asks.
inline constexpr std::string_view si = "si";
inline constexpr std::string_view no = "no";

// Captions of the menu items and titles of the dialog around the table's name.
inline constexpr std::string_view abrir_antes = "Abrir Tabla de ";
inline constexpr std::string_view abrir_despues = "...";
inline constexpr std::string_view guardar_antes = "Guardar Tabla de ";
inline constexpr std::string_view guardar_despues = " como...";

// The filter of the dialog around the extension pattern, which stands in it twice.
inline constexpr std::string_view filtro_antes = "Tabla (";
inline constexpr std::string_view filtro_medio = ")|";
inline constexpr std::string_view filtro_despues = "|Todos (*.*)|*.*";

/// Application name of a table without a title.
inline constexpr std::string_view aplicacion_sin_titulo = "Tabla";

// What the dialog keeps in the settings store, and its folder before the first use.
inline constexpr std::string_view seccion_ficheros = "FicherosTabla";
inline constexpr std::string_view clave_directorio = "Directorio y Nombre";
inline constexpr std::string_view clave_izquierda = "Left";
inline constexpr std::string_view clave_arriba = "Top";
inline constexpr std::string_view directorio_inicial = "C:\\Mis documentos";

} // namespace Qlt4_Tabla::textos
