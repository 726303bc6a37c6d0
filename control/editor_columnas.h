// SPDX-License-Identifier: MIT
// The column editor as a command of the table: shows it, takes its formats over, shows it again until the user
// leaves it. Its rules: column_editor/f_editor.h.
#pragma once

#include "core/estado_tabla.h"

namespace Qlt4_Tabla {

/// The user changes a copy of the column formats; each "Aplicar Cambios" makes it the working formats and
/// applies these to the grid, "Salir" drops it. No error leaves the call: it is shown, ends the editing, and
/// redrawing is on again.
void edita_columnas(EstadoTabla& e);

} // namespace Qlt4_Tabla
