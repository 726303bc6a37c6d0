// SPDX-License-Identifier: MIT
// Column formats: taking them from the host, applying them to the grid, reading dragged widths back.
// Members of the same names in control/ call these. Columns outside 0..25: error 9, nothing stored.
#pragma once

#include "base/decimal.h"
#include "core/estado_tabla.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// Typed form. Writes the column's default format and copies it to the working one; draws nothing. The
/// enumerations are narrowed to 16 bits: error 6.
void FormatoColumnas(EstadoTabla& e, std::int16_t Col, bool Invisib, bool Bloqu, T_formato Formato,
    std::int16_t decim, T_Alineacion Alinea, T_Accion Accion, std::int16_t Longit, std::string_view nomb);
/// Text-flag form: "-" clears a flag, any other text, also the empty one, sets it. Integers as given.
void Formatcol(EstadoTabla& e, std::int16_t Col, std::string_view Visib, std::string_view Bloqu,
    std::int16_t Formt, std::int16_t decim, std::int16_t posic, std::int16_t Longi, std::string_view nomb,
    std::int16_t Accion);
/// Copies all default formats over the working ones; draws nothing.
void Tablero_Formato_por_defecto(EstadoTabla& e);
/// Applies the working formats to the grid: widths, headers, header colours, alignments, re-formatting
/// of the cells, row-count label. Errors 6 (width beyond 16 bits), 9 (more than 26 columns; list column
/// without values at the first non-empty cell) leave redrawing off. Cell and selection stay.
void Tablero_establece_Formato(EstadoTabla& e);
/// One column's width and value format.
void Tablero_Formato_Columna(EstadoTabla& e, int col);
/// The same; an invisible column keeps the width 0, also when its format ends in an error.
void da_formato_a_columna(EstadoTabla& e, int col);
/// Width 0 where the column is invisible.
void mantiene_oculta(EstadoTabla& e, int col);
/// What computes the cells of a column, row after row, from others.
struct ComputoColumna {
    /// As AlmacenCeldas::transforma asks it.
    CambioCelda texto;
    /// If there is one: the same result as a number of at most 9 decimals, for the rows where it is one.
    std::function<std::optional<Decimal>(int fila)> numero;
};

/// Rewrites the data cells of a column and applies its format to what they become, in one pass. False where an error
/// came up: who asked does one after the other then, so that everything ends where it should; the cells above the
/// error have to be written again.
[[nodiscard]] bool computa_con_formato(EstadoTabla& e, int col, const ComputoColumna& computo);
/// Switches the row-number column off: locked, visible, working and grid width 0.
void Tablero_Fila_0_Off(EstadoTabla& e);
/// Takes dragged widths of visible, unlocked columns back into the working formats, Int(width / 120);
/// more than 16 bits can hold: error 6.
void Editor_Tabl_graba(EstadoTabla& e);
/// Stores title, subtitle and extension; the extension "X" hides four menu items for good.
void Tablero_Nombres(
    EstadoTabla& e, std::string_view Titulo, std::string_view subtitulo, std::string_view extens);
/// A value's text in the form of column `col`: whole-number columns keep it, real columns show their
/// decimals, empty text and other formats stay. Column of 26 or more: error 9.
[[nodiscard]] std::string Formatea_Valor_Columna(EstadoTabla& e, std::string_view texto, int col);
/// Sets a list column's values (copy). Not a list column: message, nothing stored. Column beyond 25: error 9.
void Lista(EstadoTabla& e, std::int16_t columna, const Matriz<std::string>& valores);

} // namespace Qlt4_Tabla
