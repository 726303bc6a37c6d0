// SPDX-License-Identifier: MIT
// Merging of equal neighbours for drawing. Editing, selecting and copying still see single cells.
// Mode 0 and 2: nothing merges (2 speaks of rows, which nothing marks). 1: equal, non-empty neighbours
// down a column marked by MergeCol draw as one cell. 3: the same, but a run never crosses the end of a
// run in the nearest marked column to its left. The header row merges with nothing.
#pragma once

#include "base/publico.h"
#include "core/tablero.h"

namespace Qlt4_Tabla {

/// A run of rows drawn as one cell, ends inclusive.
struct Tramo {
    int desde = 0;
    int hasta = 0;
    friend constexpr bool operator==(const Tramo&, const Tramo&) = default;
};

/// The run that the cell belongs to, looked for only between rows `primera` and `ultima` (the visible
/// ones): cost grows with them, not with the table. A cell that merges with nothing is its own run.
[[nodiscard]] TABLA_API Tramo tramo_fundido(const Tablero& t, int fila, int col, int primera, int ultima);

} // namespace Qlt4_Tabla
