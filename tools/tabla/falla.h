// SPDX-License-Identifier: MIT
// Falla: why a command of `tabla` ends early, with the program's exit code; and files read and written with
// the file's name in every fault.
#pragma once

#include "platform/ficheros.h"
#include "tools/tabla/ordenes.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace Qlt4_Tabla::herramienta {

class Falla : public std::runtime_error {
public:
    Falla(Salida salida_del_programa, const std::string& que)
        : std::runtime_error(que), salida(salida_del_programa) {}

    Salida salida;
};

[[nodiscard]] Bytes lee_fichero(const Ficheros& ficheros, const std::string& nombre);

void escribe_fichero(Ficheros& ficheros, const std::string& nombre, std::string_view bytes);

} // namespace Qlt4_Tabla::herramienta
