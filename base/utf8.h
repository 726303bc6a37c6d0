// SPDX-License-Identifier: MIT
// UTF-8 texts seen as characters; a character is a code point. A byte that belongs to no valid
// sequence counts as one character of its own, so every text has a length and can be walked in
// both directions, and cutting at a character never loses a byte.
// Main names: utf8::decodifica, codifica, longitud, siguiente, anterior, recorta, es_valido.
#pragma once

#include "base/publico.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Qlt4_Tabla::utf8 {

// Stands for a byte that belongs to no valid sequence.
inline constexpr char32_t sustituto = 0xFFFD;

struct Caracter {
    char32_t punto = sustituto;
    std::size_t bytes = 0; // 1 to 4; 0 only at or beyond the end of the text
    bool valido = false;
};

// The character that begins at byte `pos`. An invalid byte: sustituto, 1 byte, not valid.
// At or beyond the end: sustituto, 0 bytes, not valid.
TABLA_API Caracter decodifica(std::string_view texto, std::size_t pos) noexcept;

// Appends the character to `destino`; a surrogate or a value above 0x10FFFF is written as sustituto.
TABLA_API void codifica(char32_t punto, std::string& destino);
TABLA_API std::string codifica(char32_t punto);

// Number of characters.
TABLA_API std::size_t longitud(std::string_view texto) noexcept;

// Byte at which the character after the one at byte `pos` begins; texto.size() at or beyond the end.
TABLA_API std::size_t siguiente(std::string_view texto, std::size_t pos) noexcept;

// Byte at which the character before byte `pos` begins; 0 at the beginning. `pos` beyond the end
// is taken as the end.
TABLA_API std::size_t anterior(std::string_view texto, std::size_t pos) noexcept;

// Byte at which character number `caracter` (0-based) begins; texto.size() beyond the last.
TABLA_API std::size_t byte_de(std::string_view texto, std::size_t caracter) noexcept;

// A view of at most `n` characters from character `inicio` (0-based) on; empty beyond the end.
TABLA_API std::string_view recorta(
    std::string_view texto, std::size_t inicio, std::size_t n = std::string_view::npos) noexcept;

// Whether every byte belongs to a valid sequence (no overlong forms, surrogates or values above
// 0x10FFFF).
TABLA_API bool es_valido(std::string_view texto) noexcept;

// Without the blanks (U+0020 only) at both ends; a view of the argument.
TABLA_API std::string_view sin_blancos(std::string_view texto) noexcept;

} // namespace Qlt4_Tabla::utf8
