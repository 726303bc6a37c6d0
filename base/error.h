// SPDX-License-Identifier: MIT
// The numbered run-time error: what a member raises to its caller, and what a command shows in
// its message box. Main names: NumError, Error, lanza, descripcion_error.
// The descriptions are in base/textos.h.
#pragma once

#include "base/publico.h"

#include <exception>
#include <memory>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

enum class NumError : int {
    LlamadaNoValida = 5,
    Desbordamiento = 6,
    SinMemoria = 7,
    Subindice = 9,
    Tipos = 13,
    SinFichero = 53,
    ErrorES = 57,
    DiscoLleno = 61,
    FinDeFichero = 62,
    PermisoDenegado = 70,
    AccesoRuta = 75,
    SinRuta = 76,
    SinComponente = 429,
    ServidorPerdido = 462,
    PortapapelesCerrado = 521,
    ErrorAplicacion = 1004
};

// The Spanish description of an error number; empty for a number that is not a NumError.
TABLA_API std::string_view descripcion_error(int numero) noexcept;

class TABLA_API Error : public std::exception {
public:
    // With the description of the table.
    explicit Error(NumError numero);
    // With a description of its own (an error told by a file system or by another program).
    Error(int numero, std::string descripcion);

    int numero() const noexcept { return numero_; }

    const std::string& descripcion() const noexcept { return *descripcion_; }

    const char* what() const noexcept override { return descripcion_->c_str(); }

private:
    int numero_;
    // Shared, so that copying an Error never throws.
    std::shared_ptr<const std::string> descripcion_;
};

// Throws Error(numero).
[[noreturn]] TABLA_API void lanza(NumError numero);

} // namespace Qlt4_Tabla
