// SPDX-License-Identifier: MIT
// The program `tabla`: table files at the command line. What it does: tools/tabla/ordenes.h.
#include "headless/ficheros_disco.h"
#include "tools/tabla/ordenes.h"

#include <iostream>
#include <string>
#include <vector>

#if defined(__unix__) || defined(__APPLE__)
#include <unistd.h>
#endif

namespace {

bool es_terminal() {
#if defined(__unix__) || defined(__APPLE__)
    return ::isatty(STDERR_FILENO) != 0;
#else
    return false;
#endif
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    Qlt4_Tabla::FicherosDisco disco;
    Qlt4_Tabla::herramienta::Entorno entorno{
        disco, std::cin, std::cout, std::cerr, es_terminal() ? &std::cerr : nullptr};
    const std::vector<std::string> argumentos(argv + 1, argv + argc);
    return static_cast<int>(Qlt4_Tabla::herramienta::ejecuta(entorno, argumentos));
}
