// SPDX-License-Identifier: MIT
// The text-fill menu and the list menu of a selection within one column: their entries in the menu `mn_cambio`,
// and what the chosen one does. Between the two calls of a pair the menu is open and the user checks an entry
// or none.
//
//   const Bloque bloque = abre_menu_texto(e);
//   ... the menu e.menu_cambio pops up and returns ...
//   cierra_menu_texto(e, bloque);
//
// Closing with nothing checked: nothing. Else one capture point before the change, texts as they are (not
// formatted), the table counts as modified; current cell and selection stay, no event. 7 without memory.
// Header rows of a selection are left alone.
#pragma once

#include "core/estado_tabla.h"

namespace Qlt4_Tabla {

/// The selected data cells of the current column.
[[nodiscard]] Bloque bloque_de_columna(const Tablero& t);

/// Entries "Repetir  <", top cell's text, ">" and "Incrementar en 1  <", the same, ">".
[[nodiscard]] Bloque abre_menu_texto(EstadoTabla& e);
/// Fills the cells below the top one: each a copy of it, or the text that follows the one above.
void cierra_menu_texto(EstadoTabla& e, const Bloque& bloque);

/// The values of the column's list as entries.
[[nodiscard]] Bloque abre_menu_lista(EstadoTabla& e);
/// Writes the value into every cell of the block.
void cierra_menu_lista(EstadoTabla& e, const Bloque& bloque);

} // namespace Qlt4_Tabla
