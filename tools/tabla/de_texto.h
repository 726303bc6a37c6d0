// SPDX-License-Identifier: MIT
// The command de-texto: lines of text into a table file.
#pragma once

#include "tools/tabla/opciones.h"
#include "tools/tabla/ordenes.h"

namespace Qlt4_Tabla::herramienta {

/// Faults: Falla. The file is only touched when the whole text is a table.
void de_texto(Entorno& entorno, const Opciones& o);

} // namespace Qlt4_Tabla::herramienta
