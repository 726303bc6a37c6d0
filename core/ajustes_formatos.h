// SPDX-License-Identifier: MIT
// The layout of the columns in the settings store: the working formats of all 26 columns and the extension
// of the table's files, under an application and a section that the host chooses.
// Main names: Tablero_Graba_Formato_Win, Tablero_Lee_Formato_Win; members of the same names in control/ call
// them. Keys: clave_de_columna.
#pragma once

#include "core/estado_tabla.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// Writes all 26 working formats, also of columns beyond the grid, as one group: after an error of the store,
/// which reaches the caller, it holds what it held.
void Tablero_Graba_Formato_Win(EstadoTabla& e, std::string_view t_apli, std::string_view t_cap);

/// Reads them back into the working formats and applies these to the grid. A section never written ("Datos"
/// missing or not true) changes no format; the formats are applied all the same. A missing key gives its
/// default, a value that does not convert leaves its field. No error comes of it, and redrawing is on
/// afterwards.
void Tablero_Lee_Formato_Win(EstadoTabla& e, std::string_view t_apli, std::string_view t_cap);

/// The key of one field of a column: field word, letter, Str(col): "NombreN 3".
[[nodiscard]] std::string clave_de_columna(std::string_view palabra, char letra, int col);

} // namespace Qlt4_Tabla
