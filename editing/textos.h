// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees.
#pragma once

#include <string_view>

namespace Qlt4_Tabla::textos {

// The message of a locked or invisible column stands around the column's header text.
inline constexpr std::string_view columna_antes = "La columna < ";
inline constexpr std::string_view columna_despues = " > no se puede editar";

} // namespace Qlt4_Tabla::textos
