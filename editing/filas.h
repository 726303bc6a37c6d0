// SPDX-License-Identifier: MIT
// Row operations: rows that are made, filled, inserted and removed, and cells that are emptied. Each takes
// its capture point first and leaves `Modificado` at 1. Rows are 0-based, row 0 is the header and is never
// removed. None of them looks at locks or at invisible columns. Errors: 6 where a row number leaves 32
// bits, 7 where there is no room, both before any change; 9 where a column beyond 25 is filled.
// The commands (mn_...) act on the current selection and end a message shown in labMensaje.
#pragma once

#include "core/estado_tabla.h"

#include <functional>

namespace Qlt4_Tabla {

/// Appends a row, numbers the row after the current one and fills the new row by the columns' actions.
void crea_una_fila(EstadoTabla& e);
/// Fills row `f` from the row above by each column's action; row 1 has none above and stays.
void Rellena_Fila(EstadoTabla& e, int f);

/// Appends one empty row, renumbers, and scrolls to it; the selection stays and no event is raised.
void mn_añadir_filas(EstadoTabla& e);
/// As many empty rows as the selection spans, before it; with the current row and corner at 0 one row at
/// the end, with the span beginning at row 0 as many as it has data rows, before row 1. The current cell
/// keeps its index. Raises one SelChange.
void mn_insertar_filas(EstadoTabla& e);
/// Removes the rows of the selection. The current row keeps its index, clamped; the selection becomes the
/// current cell. Raises one SelChange. On a header-only table nothing happens after the capture point.
void mn_eliminar_filas(EstadoTabla& e);
/// Removes every row whose data cells hold nothing but spaces, all of them if need be. One SelChange.
void mn_eliminar_vacias(EstadoTabla& e);
/// Empties every cell of the selection, header and row numbers included. Selection stays, no event.
void mn_borrar_seleccion(EstadoTabla& e);
/// `copia` puts the selection on the clipboard and says whether it got there; only then the selection is
/// emptied, with a capture point of its own. Not copied: nothing is changed.
void mn_cortar(EstadoTabla& e, const std::function<bool()>& copia);

} // namespace Qlt4_Tabla
