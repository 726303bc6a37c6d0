// SPDX-License-Identifier: MIT
// The commands of `tabla`: what is in a table file, tables to text and from text, what is wrong with a file.
// Main names: Entorno, Salida, ejecuta. The command line: tools/tabla/opciones.h.
#pragma once

#include "platform/ficheros.h"

#include <istream>
#include <ostream>
#include <span>
#include <string>

namespace Qlt4_Tabla::herramienta {

/// How the program ends.
enum class Salida : int { Bien = 0, Mal = 1, MalEscrita = 2, SinFichero = 3 };

/// What the program works with.
struct Entorno {
    Ficheros& ficheros;
    std::istream& entrada; ///< standard input
    std::ostream& salida; ///< standard output
    std::ostream& errores; ///< standard error
    std::ostream* terminal = nullptr; ///< standard error where it is a terminal: for progress
};

/// Runs the program with the arguments behind its name.
[[nodiscard]] Salida ejecuta(Entorno& entorno, std::span<const std::string> argumentos);

} // namespace Qlt4_Tabla::herramienta
