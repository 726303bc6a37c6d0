// SPDX-License-Identifier: MIT
// Texts between UTF-8 and the code page of the files, Windows-1252, whole texts at a time; texts of ASCII
// only, nearly all, are copied. Single characters: base/pagina1252.h.
#pragma once

#include "base/bytes.h"
#include "base/ocho_bytes.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// Copies `n` bytes; true when all are ASCII.
inline bool copia_ascii(char* destino, const char* origen, std::size_t n) {
    std::uint64_t suma = 0;
    std::uint64_t w = 0;
    const auto pasa = [&](std::size_t i, std::size_t cuantos) {
        std::memcpy(&w, origen + i, cuantos);
        std::memcpy(destino + i, &w, cuantos);
        suma |= w;
    };
    if (n >= 4 && n <= 16) {
        por_cuartos(n, [&](std::size_t lugar) { pasa(lugar, 4); });
    } else if (n > 16) { // the last eight may overlap those before them
        for (std::size_t i = 0; i + 8 < n; i += 8) pasa(i, 8);
        pasa(n - 8, 8);
    } else if (n != 0) {
        pasa(0, 1);
        pasa(n / 2, 1);
        pasa(n - 1, 1);
    }
    return (suma & en_cada_byte(0x80)) == 0;
}

[[nodiscard]] bool es_ascii(std::string_view texto);

/// Writes the text in the code page from `destino` on, where there is room for texto.size() bytes; the
/// bytes written. "?" stands for each character outside the code page and each byte that is no UTF-8.
std::size_t a_1252_letra_a_letra(std::string_view texto, char* destino);
inline std::size_t a_1252(std::string_view texto, char* destino) {
    return copia_ascii(destino, texto.data(), texto.size()) ? texto.size()
                                                            : a_1252_letra_a_letra(texto, destino);
}

[[nodiscard]] std::string a_1252(std::string_view texto);

/// Appends the bytes as UTF-8; every byte is a character.
void de_1252(std::string_view bytes, std::string& destino);
[[nodiscard]] std::string de_1252(std::string_view bytes);

} // namespace Qlt4_Tabla
