// SPDX-License-Identifier: MIT
// Copiar_todo_Excel: the data cells into a new workbook of a spreadsheet program, which is then shown. The
// program itself is behind platform/hoja_calculo.h.
#pragma once

#include "core/estado_tabla.h"

namespace Qlt4_Tabla {

/// Fills the first sheet from its first cell on: the first point of a cell goes out as a comma where the
/// platform writes commas. Without data cells the workbook stays empty. Shows the hourglass meanwhile. The
/// program's errors go on to the caller; its references are released then too.
void Copiar_todo_Excel(EstadoTabla& e);

} // namespace Qlt4_Tabla
