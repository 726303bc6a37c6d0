// SPDX-License-Identifier: MIT
// Numera_Filas: the row-number column. Every row command ends with it.
#pragma once

#include "core/tablero.h"

namespace Qlt4_Tabla {

/// Column 0 of every data row takes the row's number as text.
inline void Numera_Filas(Tablero& t) { t.numera_filas(); }

} // namespace Qlt4_Tabla
