// SPDX-License-Identifier: MIT
// The text that follows another in a list: its trailing number plus one. Main name:
// Incrementa_Texto.
#pragma once

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

// The text without the blanks (U+0020) at its ends, and its last run of digits 0 to 9 counted up by
// one: "P12" gives "P13". The number loses its leading zeros ("P009" gives "P10"); without a number
// it is 1 ("ABC" gives "ABC1", "" gives "1"); a decimal number counts in its last digits only
// ("12.9" gives "12.10"). Exact for a run of any length.
std::string Incrementa_Texto(std::string_view texto);

} // namespace Qlt4_Tabla
