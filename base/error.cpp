// SPDX-License-Identifier: MIT
// The numbered run-time error: base/error.h.
#include "base/error.h"

#include "base/textos.h"

#include <utility>

namespace Qlt4_Tabla {

std::string_view descripcion_error(int numero) noexcept {
    for (const textos::ErrorConTexto& error : textos::errores)
        if (error.numero == numero) return error.descripcion;
    return {};
}

Error::Error(NumError numero)
    : Error(static_cast<int>(numero), std::string(descripcion_error(static_cast<int>(numero)))) {}

Error::Error(int numero, std::string descripcion)
    : numero_(numero), descripcion_(std::make_shared<const std::string>(std::move(descripcion))) {}

void lanza(NumError numero) { throw Error(numero); }

} // namespace Qlt4_Tabla
