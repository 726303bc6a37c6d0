// SPDX-License-Identifier: MIT
// The helper's end of the pipe to the adapter: its standard input and output. Main names: pide, responde.
#pragma once

#include "spreadsheet/protocolo.h"

#include <optional>
#include <string_view>

namespace Qlt4_Tabla {

/// The next message of the adapter; nothing when it has gone.
[[nodiscard]] std::optional<Mensaje> pide(LectorMensajes& lector);

/// To an adapter that has gone nothing is said.
void responde(std::string_view nombre, std::string_view cuerpo = {});

} // namespace Qlt4_Tabla
