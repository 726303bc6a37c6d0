// SPDX-License-Identifier: MIT
// The table file as numbers. The bytes are described, with an example, in docs/formato_tb0.md.
// Main names: namespace tb0. Written by files/escritor_tb0.h, read by files/lector_tb0.h.
#pragma once

#include "base/little_endian.h"
#include "core/formato_columna.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Qlt4_Tabla::tb0 {

// All numbers are little-endian; texts are Windows-1252 behind their length.

/// Bytes of a text's length, and the longest text.
inline constexpr std::size_t BYTES_LONGITUD = 2;
inline constexpr std::size_t MAX_TEXTO = 65535;

/// Bytes of one count: last column, last row.
inline constexpr std::size_t BYTES_CUENTA = 4;

// An array of one dimension begins with its number of dimensions, its number of elements and its lower
// bound: 2, 4 and 4 bytes.
inline constexpr std::int16_t DIMENSIONES = 1;
inline constexpr std::int32_t LIMITE_INFERIOR = 0;
inline constexpr std::size_t BYTES_MATRIZ = 10;

/// What an array of so many elements begins with.
[[nodiscard]] inline std::array<char, BYTES_MATRIZ> principio_matriz(std::int32_t elementos) {
    std::array<char, BYTES_MATRIZ> bytes{};
    cambia16(bytes, 0, static_cast<std::uint16_t>(DIMENSIONES));
    cambia32(bytes, 2, static_cast<std::uint32_t>(elementos));
    cambia32(bytes, 6, static_cast<std::uint32_t>(LIMITE_INFERIOR));
    return bytes;
}

/// Column formats in the record; all but the last are written empty, and only the last is read.
inline constexpr std::size_t FORMATOS = MAX_COLUMNAS;
inline constexpr std::size_t FORMATO_GUARDADO = FORMATOS - 1;
/// Whole numbers of 16 bits behind the name of a column format.
inline constexpr std::size_t CAMPOS_FORMATO = 7;
/// Bytes of a column format with an empty name.
inline constexpr std::size_t BYTES_FORMATO = BYTES_LONGITUD + 2 * CAMPOS_FORMATO;

/// How a Boolean that is set stands in its 16 bits; read back, any number but 0 is set.
inline constexpr std::int16_t VERDADERO = -1;

/// Fewest bytes that a row of so many columns takes, and that stand behind the rows.
[[nodiscard]] constexpr std::size_t bytes_fila_minima(std::size_t columnas) {
    return BYTES_MATRIZ + columnas * BYTES_LONGITUD;
}

inline constexpr std::size_t BYTES_FORMATOS_MINIMOS = FORMATOS * BYTES_FORMATO;

} // namespace Qlt4_Tabla::tb0
