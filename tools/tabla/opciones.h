// SPDX-License-Identifier: MIT
// The command line of `tabla` as data. Main names: Opciones, lee_opciones, OrdenMalEscrita.
#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace Qlt4_Tabla::herramienta {

enum class Orden { Info, ATexto, DeTexto, Comprueba, Ayuda, Version };

enum class Formato { Tsv, Csv, Json };

struct Opciones {
    Orden orden = Orden::Ayuda;
    std::vector<std::string> ficheros; ///< as many as the command takes
    std::optional<Formato> formato;
    char separador = ','; ///< of csv
    std::string salida; ///< the file that is made
    std::string subtitulo;
    bool sin_cabecera = false;
    bool numeros = false;
    bool en_1252 = false;
    bool callado = false;
};

/// What the user is told; the text says what is wrong.
class OrdenMalEscrita : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The arguments after the program's name. Options may stand anywhere; after "--" all are files.
[[nodiscard]] Opciones lee_opciones(std::span<const std::string> argumentos);

} // namespace Qlt4_Tabla::herramienta
