// SPDX-License-Identifier: MIT
// One row of texts as a run of bytes: a header (number of stored columns and two flags), one length byte
// a stored column, then the texts one after the other. Trailing empty cells are not stored. The length
// byte LARGO stands for a text kept apart: the row then holds its BYTES_ASA bytes long handle instead.
// Main names: CabeceraFila, lee_cabecera, escribe_cabecera, suma_bytes. Rows in chunks: core/trozo.h.
//
// Header: first byte = bit 0 numerada, bit 1 largos, bits 2-6 the low bits of the column count; its bit 7
// and that of the bytes after it say that seven more bits of the count follow.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Qlt4_Tabla {

/// Length byte of a text that stands apart; texts of this many bytes and more do.
inline constexpr std::uint8_t LARGO = 255;
/// Bytes of the handle of a text that stands apart.
inline constexpr std::uint32_t BYTES_ASA = 4;
/// Bytes that must be readable, whatever they hold, behind the last row of a run: sums read by eights.
inline constexpr std::uint32_t RELLENO = 8;

struct CabeceraFila {
    std::uint32_t columnas = 0; ///< stored columns; those beyond are empty
    std::uint32_t bytes = 1; ///< of the header itself
    bool numerada = false; ///< column 0 shows the row's own number; its text is not stored
    bool largos = false; ///< some text of the row stands apart
};

/// Bytes of the header of a row that stores so many columns: 1 below 32 columns.
[[nodiscard]] constexpr std::uint32_t bytes_cabecera(std::uint32_t columnas) {
    std::uint32_t bytes = 1;
    for (columnas >>= 5; columnas != 0; columnas >>= 7) ++bytes;
    return bytes;
}

[[nodiscard]] inline CabeceraFila lee_cabecera(const std::uint8_t* p) {
    CabeceraFila c;
    c.numerada = (p[0] & 1U) != 0;
    c.largos = (p[0] & 2U) != 0;
    c.columnas = (p[0] >> 2U) & 31U;
    for (unsigned bits = 5; (p[c.bytes - 1] & 128U) != 0; bits += 7)
        c.columnas |= (p[c.bytes++] & 127U) << bits;
    return c;
}

/// Writes the header; `c.bytes` is not looked at. Returns the bytes written.
inline std::uint32_t escribe_cabecera(std::uint8_t* p, const CabeceraFila& c) {
    std::uint32_t resto = c.columnas >> 5U;
    const unsigned banderas = (c.numerada ? 1U : 0U) | (c.largos ? 2U : 0U);
    p[0] = static_cast<std::uint8_t>(banderas | (c.columnas & 31U) << 2U | (resto != 0 ? 128U : 0U));
    std::uint32_t bytes = 1;
    for (; resto != 0; resto >>= 7U)
        p[bytes++] = static_cast<std::uint8_t>((resto & 127U) | (resto > 127U ? 128U : 0U));
    return bytes;
}

/// Bytes that a text with this length byte takes in the row.
[[nodiscard]] constexpr std::uint32_t bytes_guardados(std::uint8_t longitud) {
    return longitud == LARGO ? BYTES_ASA : longitud;
}

/// Sum of the first `n` length bytes, eight at a time; reads up to 7 bytes more than it adds.
[[nodiscard]] inline std::uint32_t suma_sencilla(const std::uint8_t* longitudes, std::uint32_t n) {
    std::uint32_t suma = 0;
    if constexpr (std::endian::native == std::endian::little) {
        constexpr std::uint64_t PARES = 0x00FF00FF00FF00FFU;
        constexpr std::uint64_t UNOS = 0x0001000100010001U;
        const auto suma_ocho = [](std::uint64_t w) {
            return static_cast<std::uint32_t>((((w & PARES) + ((w >> 8U) & PARES)) * UNOS) >> 48U);
        };
        std::uint64_t w = 0;
        for (; n >= 8; n -= 8, longitudes += 8) {
            std::memcpy(&w, longitudes, 8);
            suma += suma_ocho(w);
        }
        if (n != 0) {
            std::memcpy(&w, longitudes, 8);
            suma += suma_ocho(w << (64U - 8U * n));
        }
    } else {
        while (n-- != 0) suma += *longitudes++;
    }
    return suma;
}

/// Bytes that the texts of the first `n` stored columns take. `largos`: the row's flag.
[[nodiscard]] inline std::uint32_t suma_bytes(const std::uint8_t* longitudes, std::uint32_t n, bool largos) {
    if (!largos) return suma_sencilla(longitudes, n);
    std::uint32_t suma = 0;
    while (n-- != 0) suma += bytes_guardados(*longitudes++);
    return suma;
}

} // namespace Qlt4_Tabla
