// SPDX-License-Identifier: MIT
// The members that size the table and read or write whole cells, as rules over the state; members of the
// same names in control/ call these.
#pragma once

#include "base/variante.h"
#include "core/estado_tabla.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// Converts to single precision (error 13 for a text that is no number, 6 beyond its range and for a real that
/// is no finite number) and sets the component's size.
void Width(EstadoTabla& e, const Variante& valor);
[[nodiscard]] Variante Width(const EstadoTabla& e);
void Height(EstadoTabla& e, const Variante& valor);
[[nodiscard]] Variante Height(const EstadoTabla& e);

/// Writes a cell; real columns show their decimals. Outside the grid, negative included: nothing. The
/// first write calls the capture point once. A data row in a column beyond 25: error 9.
void TextMatrix(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::string_view valor);
/// Reads a cell; outside the grid: empty. Numeric columns give a decimal comma and "0" for an empty cell.
[[nodiscard]] std::string TextMatrix(const EstadoTabla& e, std::int32_t fila, std::int32_t colm);

/// Row count, header included. Below 1: ignored. Growing numbers the rows. A current row or column of 0
/// becomes 1; label and property notice follow.
void Rows(EstadoTabla& e, std::int32_t n);
/// A current row or column of 0 becomes 1 where the table has one: after host, file or paste made rows.
void lleva_celda_a_datos(Tablero& t);
/// Column count, at most 25 with defaults: each column added without a name gets "Col " and its number,
/// and, where they are 0, 3 decimals, text and 10 units (working formats only; nothing is formatted).
/// Below 1: the count stays and only the property notice is given.
void Cols(EstadoTabla& e, std::int32_t n);
/// What `Cols` gives a column that is added without a name; a column with a name is left. Error 9 outside
/// 0..25.
void da_formato_inicial(EstadoTabla& e, int col);
/// Only the header row remains.
void Clear(EstadoTabla& e);
/// Merge mode; other values than 0 to 3 are ignored.
void MergeCells(EstadoTabla& e, std::int16_t modo);
/// The row of the current cell, through 16 bits: error 6 beyond.
[[nodiscard]] std::int32_t A_fila_Activa(const EstadoTabla& e);
/// The top visible row, clamped to 1..Rows - 1.
void A_RowTop(EstadoTabla& e, std::int32_t fila);
/// Row height in twips, the row becomes current. Row out of range: nothing; a negative height stays out.
void A_Pon_Alto(EstadoTabla& e, std::int16_t Fil, std::int16_t Alto);
/// Puts a picture into a cell; the text stays. Out of range: nothing.
void A_Pon_Imagen(EstadoTabla& e, std::int16_t Fil, std::int16_t Col, std::shared_ptr<const Imagen> Imag);
/// Extension pattern: exactly five characters beginning with "*."; anything else is ignored.
void A_ExtensionFche(EstadoTabla& e, std::string_view valor);
/// Shows or hides the file items of the menu.
void Ficheros_en_menu(EstadoTabla& e, bool Nvalor);

} // namespace Qlt4_Tabla
