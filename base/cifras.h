// SPDX-License-Identifier: MIT
// es_cifra: the ten digits, whatever the locale.
#pragma once

namespace Qlt4_Tabla {

/// Is the character, or the key code, one of 0 to 9?
[[nodiscard]] constexpr bool es_cifra(int c) noexcept { return c >= '0' && c <= '9'; }

} // namespace Qlt4_Tabla
