// SPDX-License-Identifier: MIT
// The text that follows another in a list: core/incrementa_texto.h. Counts in the digits
// themselves, so that no length of number overflows.
#include "core/incrementa_texto.h"

#include "base/cifras.h"
#include "base/utf8.h"

#include <algorithm>

namespace Qlt4_Tabla {

namespace {

// The number plus one. `cifras` has no leading zeros and may be empty, which is 0.
std::string sucesor(std::string_view cifras) {
    std::string numero(cifras);
    for (auto c = numero.rbegin(); c != numero.rend(); ++c) {
        if (*c != '9') {
            ++*c;
            return numero;
        }
        *c = '0';
    }
    return '1' + numero;
}

} // namespace

std::string Incrementa_Texto(std::string_view texto) {
    const std::string_view recortado = utf8::sin_blancos(texto);
    const auto inicio = std::find_if_not(recortado.rbegin(), recortado.rend(), es_cifra).base();
    const auto primera = std::find_if_not(inicio, recortado.end(), [](char c) { return c == '0'; });
    std::string resultado(recortado.begin(), inicio);
    resultado += sucesor(std::string_view(primera, recortado.end()));
    return resultado;
}

} // namespace Qlt4_Tabla
