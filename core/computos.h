// SPDX-License-Identifier: MIT
// Column computations: sum and difference of two columns, difference of each row to the one above. Each is
// a look at its columns, which may only warn, and the computation over all data rows, in their order.
// Main names: avisa_no_sumables, suma_columnas, resta_columnas, avisa_no_numericas, diferencia_parcial.
//
// Cells are read as numbers (an empty one is 0), results written with 9 decimals, then the format of the
// result column is applied again: real columns show their decimals, a list column falls back to its first
// value, an invisible one stays at width 0. The view hears of one change.
// Errors: 9 column outside the grid, before any change; 6 no finite result: the rows before it stay.
#pragma once

#include "core/estado_tabla.h"

#include <cstdint>
#include <functional>

namespace Qlt4_Tabla {

/// Warns, in a message each, of columns that hold no numbers: a list, a colour, a picture. Text columns pass.
/// Error 9 at the first column outside 0..25; the columns before it have warned.
void avisa_no_sumables(EstadoTabla& e, std::int32_t colA, std::int32_t colB, std::int32_t colResul);
/// The same for the partial difference, in its own words.
void avisa_no_numericas(EstadoTabla& e, std::int32_t columna, std::int32_t colResul);

/// colResul = colA + colB, row by row.
void suma_columnas(EstadoTabla& e, std::int32_t colA, std::int32_t colB, std::int32_t colResul);
/// colResul = colA - colB, row by row.
void resta_columnas(EstadoTabla& e, std::int32_t colA, std::int32_t colB, std::int32_t colResul);

/// What is done to the cell of a negative result.
using AlNegativo = std::function<void(EstadoTabla& e, int fila, int col)>;

/// colResul(r) = columna(r) - columna(r - 1); row 1 becomes empty. On the same column the row above is
/// already the new one. `al_negativo`, if any, is told of every negative result, from the top, once all
/// are written, also those written before an error.
void diferencia_parcial(
    EstadoTabla& e, std::int32_t columna, std::int32_t colResul, const AlNegativo& al_negativo);

} // namespace Qlt4_Tabla
