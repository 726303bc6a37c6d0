// SPDX-License-Identifier: MIT
// Copy commands: cells to the clipboard as a block of text: one TAB between neighbours, CR LF after every
// row, nothing quoted. Cells hold decimal points; where the platform writes commas the first point of a cell
// goes out as a comma. The long ones show the hourglass, which is given back whatever happens.
// Main names: Copiar_Seleccion, Copiar_Tabla, mn_copiar_todo_y_cabezera, texto_de_bloque.
#pragma once

#include "base/bytes.h"
#include "core/avance.h"
#include "core/estado_tabla.h"

#include <cstdint>

namespace Qlt4_Tabla {

/// How a cell goes into the block.
enum class FormaCelda {
    Sola, ///< once
    Doblada, ///< once, and right behind it again with its first point as a comma, on any platform
    Vacia, ///< not at all: TABs and line ends alone
};

/// The block of text of a rectangle; one without rows or without columns has none. Cells outside the grid add
/// nothing. `coma`: the first point of a cell becomes a comma. `avance` counts the rows. No memory:
/// error 7.
[[nodiscard]] Bytes texto_de_bloque(
    const Tablero& t, const Bloque& bloque, FormaCelda forma, bool coma, const Avance& avance = {});

/// Copies the selection and enables the paste entries. `Modo` 0 and 1 do the same; any other value leaves the
/// cells out. Errors are ignored; returns whether the text got onto the clipboard.
bool Copiar_Seleccion(EstadoTabla& e, std::int16_t Modo);

// Copy of everything: each cell doubled, paste entries enabled, the selection collapsed on the current cell.
// An error leaves the table as it was and goes on to the caller.
/// The data cells; a message says that it is done.
void Copiar_Tabla(EstadoTabla& e);
/// Header row and row numbers too, without message.
void mn_copiar_todo_y_cabezera(EstadoTabla& e);

} // namespace Qlt4_Tabla
