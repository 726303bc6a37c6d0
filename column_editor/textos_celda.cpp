// SPDX-License-Identifier: MIT
// Look-up of the editor's cell texts: column_editor/textos_celda.h.
#include "column_editor/textos_celda.h"

#include "column_editor/textos.h"

#include <cstddef>

namespace Qlt4_Tabla {

namespace {

template <std::size_t N>
std::string_view texto_o_primero(
    const std::array<std::string_view, N>& textos, std::int16_t& valor) noexcept {
    if (valor < 0 || static_cast<std::size_t>(valor) >= N) valor = 0;
    return textos[static_cast<std::size_t>(valor)];
}

} // namespace

std::string_view texto_visible(bool invisible) noexcept {
    return invisible ? textos::no_celda : textos::si_celda;
}

std::string_view texto_bloqueada(bool bloqueada) noexcept {
    return bloqueada ? textos::si_celda : textos::no_celda;
}

std::string_view texto_formato(std::int16_t& formato) noexcept {
    return texto_o_primero(textos::formatos, formato);
}

std::string_view texto_alineacion(std::int16_t& alineacion) noexcept {
    return texto_o_primero(textos::alineaciones, alineacion);
}

std::string_view texto_accion(std::int16_t& accion) noexcept {
    return texto_o_primero(textos::acciones, accion);
}

} // namespace Qlt4_Tabla
