// SPDX-License-Identifier: MIT
// Row operations: rows that are made, filled, inserted and removed. Each takes its capture point first.
#pragma once

#include "core/estado_tabla.h"

namespace Qlt4_Tabla {

/// Appends a row, numbers the row after the current one and fills the new row by the columns' actions.
void crea_una_fila(EstadoTabla& e);
/// Fills row `f` from the row above by each column's action; row 1 has none above and stays.
void Rellena_Fila(EstadoTabla& e, int f);

} // namespace Qlt4_Tabla
