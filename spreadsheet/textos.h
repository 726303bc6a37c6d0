// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees: the name of the new sheet, and an error's description.
#pragma once

#include <string_view>

namespace Qlt4_Tabla::textos {

inline constexpr std::string_view nombre_hoja = "Hoja1";
inline constexpr std::string_view no_cabe = "La tabla no cabe en la hoja de cálculo";

} // namespace Qlt4_Tabla::textos
