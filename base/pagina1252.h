// SPDX-License-Identifier: MIT
// The 8-bit code page of files and key codes, Windows-1252. The five codes it leaves undefined
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the code points of the same number, so every byte
// survives a round trip.
// Main names: punto_de_1252, codigo_1252, codigo_tecla, punto_de_tecla.
#pragma once

#include "base/publico.h"

#include <cstdint>
#include <optional>

namespace Qlt4_Tabla {

// The code point of a Windows-1252 code.
TABLA_API char32_t punto_de_1252(std::uint8_t codigo) noexcept;

// The Windows-1252 code of a code point; nothing where it has none.
TABLA_API std::optional<std::uint8_t> codigo_1252(char32_t punto) noexcept;

// Code of the key press that types the character: its Windows-1252 code where it has one (the
// euro sign is 128), else its code point.
TABLA_API int codigo_tecla(char32_t punto) noexcept;

// The character a key code stands for: the inverse of codigo_tecla. A negative code or one above
// 0x10FFFF: 0, no character.
TABLA_API char32_t punto_de_tecla(int codigo) noexcept;

} // namespace Qlt4_Tabla
