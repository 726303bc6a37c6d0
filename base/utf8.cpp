// SPDX-License-Identifier: MIT
// UTF-8 texts seen as characters: base/utf8.h.
#include "base/utf8.h"

#include <algorithm>
#include <cstdint>

namespace Qlt4_Tabla::utf8 {

namespace {

constexpr std::size_t maximo_bytes = 4;

std::uint8_t byte(std::string_view texto, std::size_t pos) noexcept {
    return static_cast<std::uint8_t>(texto[pos]);
}

bool es_continuacion(std::uint8_t b) noexcept { return (b & 0xC0) == 0x80; }

// Bytes of the sequence that a leading byte announces; 0 for a byte that can lead none.
std::size_t bytes_anunciados(std::uint8_t primero) noexcept {
    if (primero < 0x80) return 1;
    if (primero < 0xC0) return 0;
    if (primero < 0xE0) return 2;
    if (primero < 0xF0) return 3;
    return primero < 0xF8 ? 4 : 0;
}

bool es_surrogado(char32_t punto) noexcept { return punto >= 0xD800 && punto <= 0xDFFF; }

// Whether `punto` needs all of its `bytes` and is a character that UTF-8 may carry.
bool forma_correcta(char32_t punto, std::size_t bytes) noexcept {
    constexpr char32_t minimo[maximo_bytes + 1] = {0, 0, 0x80, 0x800, 0x10000};
    return punto >= minimo[bytes] && punto <= 0x10FFFF && !es_surrogado(punto);
}

char como_char(char32_t byte) noexcept { return static_cast<char>(static_cast<std::uint8_t>(byte)); }

} // namespace

Caracter decodifica(std::string_view texto, std::size_t pos) noexcept {
    if (pos >= texto.size()) return {};
    const std::uint8_t primero = byte(texto, pos);
    if (primero < 0x80) return {primero, 1, true};
    const Caracter no_valido{sustituto, 1, false};
    const std::size_t bytes = bytes_anunciados(primero);
    if (bytes == 0 || texto.size() - pos < bytes) return no_valido;
    char32_t punto = primero & (0x7Fu >> bytes);
    for (std::size_t i = 1; i < bytes; ++i) {
        const std::uint8_t b = byte(texto, pos + i);
        if (!es_continuacion(b)) return no_valido;
        punto = (punto << 6) | (b & 0x3Fu);
    }
    if (!forma_correcta(punto, bytes)) return no_valido;
    return {punto, bytes, true};
}

void codifica(char32_t punto, std::string& destino) {
    if (punto > 0x10FFFF || es_surrogado(punto)) punto = sustituto;
    if (punto < 0x80) {
        destino += como_char(punto);
        return;
    }
    if (punto < 0x800) {
        destino += como_char(0xC0 | (punto >> 6));
    } else {
        if (punto < 0x10000) {
            destino += como_char(0xE0 | (punto >> 12));
        } else {
            destino += como_char(0xF0 | (punto >> 18));
            destino += como_char(0x80 | ((punto >> 12) & 0x3F));
        }
        destino += como_char(0x80 | ((punto >> 6) & 0x3F));
    }
    destino += como_char(0x80 | (punto & 0x3F));
}

std::string codifica(char32_t punto) {
    std::string texto;
    codifica(punto, texto);
    return texto;
}

std::size_t longitud(std::string_view texto) noexcept {
    std::size_t n = 0;
    for (std::size_t pos = 0; pos < texto.size(); pos = siguiente(texto, pos)) ++n;
    return n;
}

std::size_t siguiente(std::string_view texto, std::size_t pos) noexcept {
    if (pos >= texto.size()) return texto.size();
    return pos + decodifica(texto, pos).bytes;
}

std::size_t anterior(std::string_view texto, std::size_t pos) noexcept {
    pos = std::min(pos, texto.size());
    if (pos == 0) return 0;
    const std::size_t limite = pos - std::min(pos, maximo_bytes);
    std::size_t inicio = pos - 1;
    while (inicio > limite && es_continuacion(byte(texto, inicio))) --inicio;
    // What ends at `pos` is either one whole sequence or a byte that stands for itself.
    return decodifica(texto, inicio).bytes == pos - inicio ? inicio : pos - 1;
}

std::size_t byte_de(std::string_view texto, std::size_t caracter) noexcept {
    std::size_t pos = 0;
    for (; caracter > 0 && pos < texto.size(); --caracter) pos = siguiente(texto, pos);
    return pos;
}

std::string_view recorta(std::string_view texto, std::size_t inicio, std::size_t n) noexcept {
    const std::string_view resto = texto.substr(byte_de(texto, inicio));
    return resto.substr(0, byte_de(resto, n));
}

bool es_valido(std::string_view texto) noexcept {
    for (std::size_t pos = 0; pos < texto.size();) {
        const Caracter c = decodifica(texto, pos);
        if (!c.valido) return false;
        pos += c.bytes;
    }
    return true;
}

std::string_view sin_blancos(std::string_view texto) noexcept {
    const std::size_t primero = texto.find_first_not_of(' ');
    if (primero == std::string_view::npos) return {};
    return texto.substr(primero, texto.find_last_not_of(' ') - primero + 1);
}

} // namespace Qlt4_Tabla::utf8
