// SPDX-License-Identifier: MIT
// File names as texts, whatever the system: folder and name, and the extension of a name typed without one.
// Main names: parte_ruta, con_extension, extension_de_patron.
#pragma once

#include "base/publico.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// Views of the path that was parted.
struct PartesRuta {
    std::string_view carpeta; ///< without the separator, but for "/" alone; empty: none is named
    std::string_view nombre;
};

/// Parts a path at the last "\", where it has none at the last "/".
[[nodiscard]] TABLA_API PartesRuta parte_ruta(std::string_view ruta);

/// The path with "." and the extension behind a name that has no point (one at its beginning does not
/// count). Empty extension, or no name: the path as it is.
[[nodiscard]] TABLA_API std::string con_extension(std::string_view ruta, std::string_view extension);

/// "tb0" of the pattern "*.tb0"; empty where the pattern names no single extension ("*.*", "*.t?").
[[nodiscard]] TABLA_API std::string_view extension_de_patron(std::string_view patron);

} // namespace Qlt4_Tabla
