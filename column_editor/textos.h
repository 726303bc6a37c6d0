// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees: what the cells of the column editor say, its captions and messages.
// "Si" without its accent is intended. Main names: textos::cadena_formato, textos::acciones and its like.
#pragma once

#include <array>
#include <string_view>

namespace Qlt4_Tabla::textos {

// The form's caption and the caption of the row-number label's check box, each followed by the table's
// subtitle.
inline constexpr std::string_view configuracion = "Configuración de columnas:";
inline constexpr std::string_view numero_filas = "Nº de filas ";

/// Headers, alignments and widths of the editor's columns; the blanks make the widths.
inline constexpr std::string_view cadena_formato =
    "|<Nombre columna      |^Visible  |^Bloqueada   ||^Ancho  |^Decimales  |^Alineación  |^Acción ;";
inline constexpr std::string_view esquina_editor = "Columna";

inline constexpr std::string_view si_celda = "Si";
inline constexpr std::string_view no_celda = "No";
/// Decimals of a column that is not real.
inline constexpr std::string_view sin_decimales = "-";

// By value.
inline constexpr std::array<std::string_view, 7> formatos{
    "Entero", "Entero_positivo", "Real", "Real_positivo", "Alfanumérico", "Lista", "Color"};
inline constexpr std::array<std::string_view, 3> alineaciones{"Izquierda", "Centrado", "Derecha"};
inline constexpr std::array<std::string_view, 4> acciones{"Off", "Repite", "Increm", "Decrem"};

inline constexpr std::string_view ha_de_verse_una = "Tiene que haber una columna visible";
/// Before the description of an error in the click on a cell.
inline constexpr std::string_view otro_error = "otro error en el msfEditor:";

} // namespace Qlt4_Tabla::textos
