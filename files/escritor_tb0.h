// SPDX-License-Identifier: MIT
// The record of a table as bytes. The bytes: docs/formato_tb0.md; back again: files/lector_tb0.h.
#pragma once

#include "base/bytes.h"
#include "core/avance.h"
#include "core/formato_columna.h"
#include "core/tablero.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// Can the table be written? Error 9: more than 26 columns, no column or no row.
void exige_tb0(const Tablero& tablero);

/// Gives the whole record to `toma`: every cell of the grid, header and row numbers included, and the format of
/// column 25. Errors as `exige_tb0`, and 5: a text of more than 65,535 bytes. `avance` counts the data rows.
void escribe_tb0(const Tablero& tablero, std::string_view subtitulo, const T_FormatoColumna& formato25,
    const TomaBytes& toma, Avance& avance);

/// The same record as one run of bytes.
[[nodiscard]] std::string bytes_tb0(
    const Tablero& tablero, std::string_view subtitulo, const T_FormatoColumna& formato25);

} // namespace Qlt4_Tabla
