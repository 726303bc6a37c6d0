// SPDX-License-Identifier: MIT
// The fields of the fixed-width names text. See the header for their places.
#include "core/nombres_tabla.h"

#include "base/utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace Qlt4_Tabla {

namespace {

constexpr std::size_t LARGO_TOTAL = 100;

struct Campo {
    std::size_t inicio; // 0-based
    std::size_t ancho;
};

// Title, subtitle, extension pattern, reserved. Character 76 belongs to no field.
constexpr std::array<Campo, 4> CAMPOS{{{0, 40}, {40, 30}, {70, 5}, {76, 2}}};

const Campo* busca_campo(int campo, bool activo) {
    if (!activo || campo < 1 || campo > static_cast<int>(CAMPOS.size())) return nullptr;
    return &CAMPOS[static_cast<std::size_t>(campo - 1)];
}

} // namespace

NombresTabla::NombresTabla() : texto_(LARGO_TOTAL, U' ') {}

void NombresTabla::Tablero_Pon_Nombre(int campo, bool activo, std::string_view valor) {
    const Campo* c = busca_campo(campo, activo);
    if (c == nullptr) return;
    std::u32string nuevo;
    for (std::size_t pos = 0; pos < valor.size() && nuevo.size() < c->ancho;) {
        const utf8::Caracter caracter = utf8::decodifica(valor, pos);
        nuevo += caracter.punto;
        pos += caracter.bytes;
    }
    nuevo.resize(c->ancho, U' ');
    texto_.replace(c->inicio, c->ancho, nuevo);
}

std::string NombresTabla::Tablero_Lee_Nombre(int campo, bool activo) const {
    const Campo* c = busca_campo(campo, activo);
    if (c == nullptr) return {};
    std::string texto;
    for (std::size_t i = c->inicio; i < c->inicio + c->ancho; ++i) utf8::codifica(texto_[i], texto);
    return std::string(utf8::sin_blancos(texto));
}

} // namespace Qlt4_Tabla
