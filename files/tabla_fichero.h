// SPDX-License-Identifier: MIT
// Whole tables from and to files. A file is read and checked whole before anything of the table changes; a
// file that is written is the old one until the last byte of the new one is made. Errors (53 to 76 of the files, 62 and 9 of a
// record that is not right, 5 and 9 of a table that cannot be written) are raised; the boundary shows them
// with the frames below. The hourglass shows meanwhile.
#pragma once

#include "core/estado_tabla.h"

#include <functional>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// Reads the file into the grid: counts, texts, the working format of column 25. Columns that nobody gave a
/// format get the one of a column added without a name. Row numbers and formats are applied. Afterwards
/// cell (1, 1), nothing modified, redrawing on; no event. An error of applying the formats comes when all
/// that is done. `al_cambiar` is called before the first change of the table.
void lee_tabla(EstadoTabla& e, std::string_view nombre, const std::function<void()>& al_cambiar);

/// The same for a file whose stored subtitle is the table's own, capitals and all; else it says so in a
/// message and nothing changes.
void lee_tabla_propia(EstadoTabla& e, std::string_view nombre, const std::function<void()>& al_cambiar);

/// Writes the table over the beginning of the file. Afterwards nothing is modified.
void graba_tabla(EstadoTabla& e, std::string_view nombre);

/// What the message of an error of reading or writing begins with.
[[nodiscard]] std::string prefijo_al_leer(const EstadoTabla& e);
[[nodiscard]] std::string prefijo_al_guardar(const EstadoTabla& e);

} // namespace Qlt4_Tabla
