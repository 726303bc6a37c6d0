// SPDX-License-Identifier: MIT
// Where the helper program is: beside what holds this library, in a folder for such programs next to it, or
// where it was installed. Main names: NOMBRE_AUXILIAR, busca_auxiliar.
#pragma once

#include <filesystem>
#include <span>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

inline constexpr std::string_view NOMBRE_AUXILIAR = "tabla_hoja_libreoffice";

/// The folders that are looked into, in their order: of each module (the running program, the shared library
/// that holds this code) its own, ../libexec/qlt4_tabla, and where an installed library has it; last the folder of the installation.
[[nodiscard]] std::vector<std::filesystem::path> carpetas_del_auxiliar();

/// The first folder that holds a program of that name gives the path; empty where none does.
[[nodiscard]] std::filesystem::path busca_auxiliar(std::span<const std::filesystem::path> carpetas);

} // namespace Qlt4_Tabla
