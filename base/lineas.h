// SPDX-License-Identifier: MIT
// Blocks of text as tables hand them over: fields parted by TAB, lines ended by CR LF.
// Main names: busca_separador, recorre_separadores, cierra_lineas.
#pragma once

#include "base/publico.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

[[nodiscard]] constexpr bool es_separador(char c) { return c == '\t' || c == '\n' || c == '\r'; }

/// Marks the bytes below 14 of the eight at `p`: the lowest mark surely stands on one, those above it may not.
/// Only for machines whose words begin with their lowest byte.
[[nodiscard]] inline std::uint64_t marca_bajos(const char* p) {
    constexpr std::uint64_t UNOS = 0x0101010101010101U;
    constexpr std::uint64_t ALTOS = 0x8080808080808080U;
    std::uint64_t w = 0;
    std::memcpy(&w, p, 8);
    return (w - UNOS * 14U) & ~w & ALTOS;
}

inline constexpr bool BYTES_EN_ORDEN = std::endian::native == std::endian::little;

/// Where the first TAB, LF or CR stands from `desde` (0..size) on; the size of the text when there is none.
[[nodiscard]] inline std::size_t busca_separador(std::string_view texto, std::size_t desde) {
    while (BYTES_EN_ORDEN && texto.size() - desde >= 8) {
        const std::uint64_t marcas = marca_bajos(texto.data() + desde);
        if (marcas == 0) {
            desde += 8;
            continue;
        }
        desde += static_cast<std::size_t>(std::countr_zero(marcas)) / 8;
        if (es_separador(texto[desde])) return desde;
        ++desde;
    }
    while (desde < texto.size() && !es_separador(texto[desde])) ++desde;
    return desde;
}

/// Calls `visita` with every TAB, LF and CR of the text, in order.
template <class Visita>
void recorre_separadores(std::string_view texto, const Visita& visita) {
    std::size_t i = 0;
    for (; BYTES_EN_ORDEN && texto.size() - i >= 8; i += 8)
        for (std::uint64_t marcas = marca_bajos(texto.data() + i); marcas != 0; marcas &= marcas - 1) {
            const char c = texto[i + static_cast<std::size_t>(std::countr_zero(marcas)) / 8];
            if (es_separador(c)) visita(c);
        }
    for (; i < texto.size(); ++i)
        if (es_separador(texto[i])) visita(texto[i]);
}

/// The text with every line ended by CR LF, the last one included: CR LF, a lone LF and a lone CR each end a
/// line. An empty text has no line and stays empty.
[[nodiscard]] TABLA_API std::string cierra_lineas(std::string texto);

} // namespace Qlt4_Tabla
