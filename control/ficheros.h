// SPDX-License-Identifier: MIT
// Reading and writing of table files as members and commands: the rules of files/ inside the boundary, whose
// message names the table by its subtitle. No error leaves a call.
#pragma once

#include "core/estado_tabla.h"

#include <functional>
#include <string_view>

namespace Qlt4_Tabla {

/// The member `Tablero_Leer`; `al_cambiar` is called before the first change of the table.
void lee_fichero(EstadoTabla& e, std::string_view nombre, const std::function<void()>& al_cambiar);
/// The member `Tablero_Grabar`.
void graba_fichero(EstadoTabla& e, std::string_view nombre);

/// The open command: asks whether to lose what is not saved, then which file, and reads it when it belongs to
/// this kind of table.
void Mnu_Tabla_Leer(EstadoTabla& e);
/// The save command: asks which file and writes it.
void Mnu_Tabla_Guardar_como(EstadoTabla& e);

} // namespace Qlt4_Tabla
