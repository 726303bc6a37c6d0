// SPDX-License-Identifier: MIT
// Geometry of the grid in twips, in the coordinates of the window that shows it: (0, 0) is the top left
// corner of cell (0, 0). Row 0 and column 0 stay in place; data rows begin below the header with TopRow,
// data columns are shifted left by the horizontal offset. Cost: O(columns + visible rows).
// Main names: x_columna, y_fila, rectangulo_celda, celda_en, borde_en, muestra_celda.
#pragma once

#include "base/publico.h"
#include "base/rectangulo.h"
#include "core/tablero.h"

namespace Qlt4_Tabla {

/// A place in the grid; -1 where the point is beyond the last row or column.
struct Celda {
    int fila = -1;
    int col = -1;
    friend constexpr bool operator==(const Celda&, const Celda&) = default;
};

/// Left edge of a column; Cols gives the right edge of the last one.
[[nodiscard]] TABLA_API int x_columna(const Tablero& t, int col);
/// Top edge of a row from TopRow on, or of row 0. Rows above TopRow: minus their height, only a sign that
/// they are not seen. Rows below the window: a place below it (the sum stops there).
[[nodiscard]] TABLA_API int y_fila(const Tablero& t, int fila);
/// Where a cell would be drawn, also outside the window; invisible columns have width 0.
[[nodiscard]] TABLA_API Rectangulo rectangulo_celda(const Tablero& t, int fila, int col);
/// The part of the cell's place that the window shows: below the header and right of column 0 for data
/// cells; empty (0 x 0) when nothing of it is seen.
[[nodiscard]] TABLA_API Rectangulo parte_visible(const Tablero& t, int fila, int col);
/// The cell at a point: header and row numbers win over what is scrolled behind them.
[[nodiscard]] TABLA_API Celda celda_en(const Tablero& t, int x, int y);
/// The same, but points outside give the nearest data cell in reach, one row or column beyond the window
/// where the drag has to scroll: for dragging a selection. Columns without width are passed over; -1 where
/// there are no data rows or no columns to be seen.
[[nodiscard]] TABLA_API Celda celda_mas_cercana(const Tablero& t, int x, int y);
/// The column whose right edge is within `tolerancia` of x, or -1. Columns of width 0 are found from the
/// right side of the edge, so that a hidden column can be dragged open again only by formats: never found.
[[nodiscard]] TABLA_API int borde_en(const Tablero& t, int x, int tolerancia);

/// Data rows that fit wholly below the header from TopRow on; at least 1. Where the table ends before the
/// window does, rows of the common height count for what is left.
[[nodiscard]] TABLA_API int filas_visibles(const Tablero& t);
/// The last row any part of which is seen.
[[nodiscard]] TABLA_API int ultima_fila_visible(const Tablero& t);
/// The largest useful TopRow: the one that shows the last row at the bottom of the window.
[[nodiscard]] TABLA_API int fila_superior_maxima(const Tablero& t);
/// Width of all columns together.
[[nodiscard]] TABLA_API int ancho_total(const Tablero& t);

/// Scrolls as little as needed for the cell to be seen whole; a cell larger than the window shows its
/// top left corner. Row 0 and column 0 ask for no scrolling; a window without size shows nothing.
TABLA_API void muestra_celda(Tablero& t, int fila, int col);

} // namespace Qlt4_Tabla
