// SPDX-License-Identifier: MIT
// The questions of the open and save commands to the user: which file, and whether to lose what is not
// saved; and the captions of their menu items. What is done with the file: files/tabla_fichero.h.
#pragma once

#include "core/estado_tabla.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// Asks whether to go on where something is modified. "no": nothing stands in the way (nothing modified, or
/// the answer Yes); "si": the command that asks gives up.
[[nodiscard]] std::string_view Aviso_Perder_Datos(EstadoTabla& e);

/// Shows the dialog for opening a table; the file chosen, empty when cancelled. It is not read.
[[nodiscard]] std::string elige_fichero_de_lectura(EstadoTabla& e);
/// The same for saving; it is not written.
[[nodiscard]] std::string elige_fichero_de_grabacion(EstadoTabla& e);

/// Captions of `Mnu_Tabla_Leer` and `Mnu_Tabla_Guardar_como` with the table's name, as they are to be when
/// the menu opens.
void pon_titulos_de_ficheros(EstadoTabla& e);

} // namespace Qlt4_Tabla
