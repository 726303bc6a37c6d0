// SPDX-License-Identifier: MIT
// Eight bytes of a text at once, as one number whose lowest byte is the first of them, on any processor.
// Main names: lee_ocho, en_cada_byte, marcas_iguales.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace Qlt4_Tabla {

/// The number with every byte `n`, which is below 256.
[[nodiscard]] constexpr std::uint64_t en_cada_byte(std::uint64_t n) noexcept {
    return n * 0x0101010101010101U;
}

/// The eight bytes from `p` on.
[[nodiscard]] inline std::uint64_t lee_ocho(const char* p) noexcept {
    std::uint64_t w = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&w, p, sizeof w);
    } else {
        for (int i = 0; i < 8; ++i) w |= std::uint64_t{static_cast<unsigned char>(p[i])} << (8 * i);
    }
    return w;
}

/// A bit for each byte whose highest bit is set, that of the first byte lowest.
[[nodiscard]] constexpr std::uint64_t marcas_altas(std::uint64_t w) noexcept {
    return (w >> 7U & en_cada_byte(1)) * 0x0102040810204080U >> 56U;
}

/// A bit for each byte below `tope`, which is at most 128.
[[nodiscard]] constexpr std::uint64_t marcas_menores(std::uint64_t w, std::uint64_t tope) noexcept {
    return marcas_altas(~(((w & en_cada_byte(0x7F)) + en_cada_byte(0x80 - tope)) | w));
}

/// A bit for each byte that is `c`.
[[nodiscard]] constexpr std::uint64_t marcas_iguales(std::uint64_t w, char c) noexcept {
    return marcas_menores(w ^ en_cada_byte(static_cast<unsigned char>(c)), 1);
}

static_assert(marcas_altas(0x8000'7F00'0000'00FFU) == 0x81);
static_assert(marcas_menores(0x0D0E'8000'0000'0C7FU, 14) == 0b1001'1110);
static_assert(marcas_iguales(0x2E00'2FAE'2E2E'2D2EU, '.') == 0b1000'1101);

} // namespace Qlt4_Tabla
