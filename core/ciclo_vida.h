// SPDX-License-Identifier: MIT
// The component's life: start-up and the design-time properties that the host's form keeps. Keys begin
// with the title current at that moment (empty for most hosts).
#pragma once

#include "core/estado_tabla.h"
#include "platform/bolsa_propiedades.h"

namespace Qlt4_Tabla {

/// Start-up, once, on a fresh state: 5 columns and 4 rows where there are none, extension "*.tb0", label,
/// current cell (1, 1), row numbers, formats applied.
void arranca(EstadoTabla& e);
/// Writes "Cols", "Rows", "Widht", "Height", "A_FormatString", "A_ExtensionFche".
void escribe_propiedades(const EstadoTabla& e, BolsaPropiedades& bolsa);
/// Reads them back (defaults 2, 2, 4000, 2000, empty; the extension is not read) and numbers the rows. A
/// count below 1 leaves the grid's. Errors of the bag and values that do not convert (13, 6): raised before
/// anything changed.
void lee_propiedades(EstadoTabla& e, const BolsaPropiedades& bolsa);

} // namespace Qlt4_Tabla
