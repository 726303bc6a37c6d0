// SPDX-License-Identifier: MIT
// The fields of a column's format as texts of the editor's cells. Those of enumerations take the value by
// reference and repair it: outside the range it becomes 0, shown by the first text. That is what makes a click
// that adds 1 turn from the last value to the first.
// Main names: texto_visible, texto_bloqueada, texto_formato, texto_alineacion, texto_accion.
#pragma once

#include <cstdint>
#include <string_view>

namespace Qlt4_Tabla {

/// "No" for an invisible column, else "Si".
[[nodiscard]] std::string_view texto_visible(bool invisible) noexcept;
/// "Si" for a locked column, else "No".
[[nodiscard]] std::string_view texto_bloqueada(bool bloqueada) noexcept;

/// "Entero" to "Color" for 0 to 6.
[[nodiscard]] std::string_view texto_formato(std::int16_t& formato) noexcept;
/// "Izquierda", "Centrado", "Derecha" for 0 to 2.
[[nodiscard]] std::string_view texto_alineacion(std::int16_t& alineacion) noexcept;
/// "Off", "Repite", "Increm", "Decrem" for 0 to 3.
[[nodiscard]] std::string_view texto_accion(std::int16_t& accion) noexcept;

} // namespace Qlt4_Tabla
