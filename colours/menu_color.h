// SPDX-License-Identifier: MIT
// The colour menu of a selection within one colour column: its entries in the menu `mn_cambio`, and what the
// chosen one does. Between the two calls the menu is open and the user checks an entry or none.
//
//   const Bloque bloque = abre_menu_color(e);
//   ... the menu e.menu_cambio pops up and returns ...
//   cierra_menu_color(e, bloque);
#pragma once

#include "core/estado_tabla.h"

namespace Qlt4_Tabla {

/// Prepares the entries "rojo" to "blanco", the two greys and "Otro....", none checked. Gives the selected
/// cells of the current column, header included where it is selected.
[[nodiscard]] Bloque abre_menu_color(EstadoTabla& e);

/// Applies the checked entry to the cells: their text becomes the colour's name or number, their background
/// the colour where colour cells are painted. "Otro...." asks with the picker, which begins at the colour of
/// the first cell; cancelled, nothing happens. One capture point, before the change; the table counts as
/// modified; current cell and selection stay, no event. Nothing checked: nothing. Errors of the picker's
/// settings; 7 without memory.
void cierra_menu_color(EstadoTabla& e, const Bloque& bloque);

} // namespace Qlt4_Tabla
