// SPDX-License-Identifier: MIT
// The texts that are not all ASCII: files/texto_1252.h.
#include "files/texto_1252.h"

#include "base/pagina1252.h"
#include "base/utf8.h"

namespace Qlt4_Tabla {

namespace {

constexpr char SIN_CODIGO = '?';
constexpr unsigned char PRIMERO_NO_ASCII = 0x80;

} // namespace

bool es_ascii(std::string_view texto) {
    constexpr std::size_t PASO = 16;
    std::uint64_t suma = 0;
    const auto mira = [&suma, p = texto.data()](
                          std::size_t i) { suma |= lee_ocho(p + i) | lee_ocho(p + i + 8); };
    const std::size_t n = texto.size();
    if (n >= PASO) {
        for (std::size_t i = 0; i + PASO < n; i += PASO) mira(i);
        mira(n - PASO); // it may overlap the one before
    } else {
        for (const char c : texto) suma |= static_cast<unsigned char>(c);
    }
    return (suma & en_cada_byte(0x80)) == 0;
}

std::size_t a_1252_letra_a_letra(std::string_view texto, char* destino) {
    char* p = destino;
    for (std::size_t pos = 0; pos < texto.size();) {
        const utf8::Caracter c = utf8::decodifica(texto, pos);
        const auto codigo = c.valido ? codigo_1252(c.punto) : std::nullopt;
        *p++ = codigo ? static_cast<char>(*codigo) : SIN_CODIGO;
        pos += c.bytes;
    }
    return static_cast<std::size_t>(p - destino);
}

std::string a_1252(std::string_view texto) {
    std::string bytes(texto.size(), '\0');
    bytes.resize(a_1252(texto, bytes.data()));
    return bytes;
}

void de_1252(std::string_view bytes, std::string& destino) {
    for (const char c : bytes) {
        const auto codigo = static_cast<unsigned char>(c);
        if (codigo < PRIMERO_NO_ASCII)
            destino += c;
        else
            utf8::codifica(punto_de_1252(codigo), destino);
    }
}

std::string de_1252(std::string_view bytes) {
    std::string texto;
    texto.reserve(bytes.size());
    de_1252(bytes, texto);
    return texto;
}

} // namespace Qlt4_Tabla
