// SPDX-License-Identifier: MIT
// One row of texts as a run of bytes: a header (number of stored columns and two flags), one length byte
// a stored column, then the texts one after the other. Trailing empty cells are not stored. The length
// byte LARGO stands for a text kept apart: the row then holds its BYTES_ASA bytes long handle instead.
// Main names: CabeceraFila, lee_cabecera, escribe_cabecera, suma_bytes, compon_fila. Rows in chunks: core/trozo.h.
//
// Header: first byte = bit 0 numerada, bit 1 largos, bits 2-6 the low bits of the column count; its bit 7
// and that of the bytes after it say that seven more bits of the count follow.
#pragma once

#include "base/bytes.h"
#include "base/ocho_bytes.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace Qlt4_Tabla {

/// Length byte of a text that stands apart; texts of this many bytes and more do.
inline constexpr std::uint8_t LARGO = 255;
/// Bytes of the handle of a text that stands apart.
inline constexpr std::uint32_t BYTES_ASA = 4;
/// Bytes that must be readable, whatever they hold, behind the last length of a row (sums read by eights) and behind
/// its last text (core/textos_seguidos.h).
inline constexpr std::uint32_t RELLENO = TEXTO_HOLGADO;

struct CabeceraFila {
    static constexpr std::uint8_t NUMERADA = 1;
    static constexpr std::uint8_t LARGOS = 2;
    static constexpr std::uint8_t SIGUE = 128; ///< the count of columns goes on in the next byte

    std::uint32_t columnas = 0; ///< stored columns; those beyond are empty
    std::uint32_t bytes = 1; ///< of the header itself
    std::uint8_t banderas = 0; ///< NUMERADA, LARGOS; the other bits mean nothing here

    /// Column 0 shows the row's own number; its text is not stored.
    [[nodiscard]] bool numerada() const { return (banderas & NUMERADA) != 0; }

    /// Some text of the row stands apart.
    [[nodiscard]] bool largos() const { return (banderas & LARGOS) != 0; }
};

/// Bytes of the header of a row that stores so many columns: 1 below 32 columns.
[[nodiscard]] constexpr std::uint32_t bytes_cabecera(std::uint32_t columnas) {
    std::uint32_t bytes = 1;
    for (columnas >>= 5; columnas != 0; columnas >>= 7) ++bytes;
    return bytes;
}

/// A header of any size.
[[nodiscard]] CabeceraFila lee_cabecera_ancha(const std::uint8_t* p);

[[nodiscard]] inline CabeceraFila lee_cabecera(const std::uint8_t* p) {
    if ((p[0] & CabeceraFila::SIGUE) != 0) return lee_cabecera_ancha(p);
    return {static_cast<std::uint32_t>(p[0]) >> 2U, 1, p[0]};
}

/// Writes the header; `c.bytes` is not looked at. Returns the bytes written.
inline std::uint32_t escribe_cabecera(std::uint8_t* p, const CabeceraFila& c) {
    std::uint32_t resto = c.columnas >> 5U;
    p[0] = static_cast<std::uint8_t>((c.banderas & 3U) | (c.columnas & 31U) << 2U | (resto != 0 ? 128U : 0U));
    std::uint32_t bytes = 1;
    for (; resto != 0; resto >>= 7U)
        p[bytes++] = static_cast<std::uint8_t>((resto & 127U) | (resto > 127U ? 128U : 0U));
    return bytes;
}

/// Bytes that a text with this length byte takes in the row.
[[nodiscard]] constexpr std::uint32_t bytes_guardados(std::uint8_t longitud) {
    return longitud == LARGO ? BYTES_ASA : longitud;
}

/// Does the text stand apart?
[[nodiscard]] inline bool es_largo(std::string_view texto) { return texto.size() >= LARGO; }

/// Sum of the first `n` length bytes, at most 7; reads 8.
[[nodiscard]] inline std::uint32_t suma_pocas(const std::uint8_t* longitudes, std::uint32_t n) {
    constexpr std::uint64_t PARES = 0x00FF00FF00FF00FFU;
    constexpr std::uint64_t UNOS = 0x0001000100010001U;
    // In two steps, as n may be 0.
    const std::uint64_t w = lee_ocho(reinterpret_cast<const char*>(longitudes)) << (56U - 8U * n) << 8U;
    return static_cast<std::uint32_t>((((w & PARES) + ((w >> 8U) & PARES)) * UNOS) >> 48U);
}

/// Sum of the first `n` length bytes, at most 15; reads 8, or 16 where `n` is more than 7.
[[nodiscard]] inline std::uint32_t suma_hasta_15(const std::uint8_t* longitudes, std::uint32_t n) {
    if (n < 8) return suma_pocas(longitudes, n);
    return suma_pocas(longitudes, 7) + longitudes[7] + suma_pocas(longitudes + 8, n - 8);
}

/// Bytes that the texts of the first `n` stored columns take, for any row.
[[nodiscard]] std::uint32_t suma_muchas(const std::uint8_t* longitudes, std::uint32_t n, bool largos);

/// The same, quick for the first columns of a row without long texts (`largos`: the row's flag).
[[nodiscard]] inline std::uint32_t suma_bytes(const std::uint8_t* longitudes, std::uint32_t n, bool largos) {
    return n < 16 && !largos ? suma_hasta_15(longitudes, n) : suma_muchas(longitudes, n, largos);
}

/// Bytes that `compon_fila` may write at most; none where one of the texts stands apart, and where one of the old
/// ones does.
[[nodiscard]] std::optional<std::size_t> cota_fila(
    std::span<const std::uint8_t> vieja, std::uint32_t col, std::span<const std::string_view> textos);

/// Writes the row that `vieja` becomes with other texts from column `col` on, for which there is a `cota_fila`; where
/// it ends. RELLENO bytes behind `vieja` must be readable.
std::uint8_t* compon_fila(std::uint8_t* destino, std::span<const std::uint8_t> vieja, std::uint32_t col,
    std::span<const std::string_view> textos);

} // namespace Qlt4_Tabla
