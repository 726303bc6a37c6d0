// SPDX-License-Identifier: MIT
// Registro: what a table did through the seams in memory, one line each, in the order it happened. The form
// of the lines: headless/plataforma_memoria.h.
#pragma once

#include <string>
#include <vector>

namespace Qlt4_Tabla {

using Registro = std::vector<std::string>;

} // namespace Qlt4_Tabla
