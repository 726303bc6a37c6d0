// SPDX-License-Identifier: MIT
// Blocks of text as tables hand them over: fields parted by TAB, lines ended by CR LF.
// Main names: busca_separador, cierra_lineas.
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

/// Where the first TAB, LF or CR stands from `desde` (0..size) on; the size of the text when there is none.
[[nodiscard]] inline std::size_t busca_separador(std::string_view texto, std::size_t desde) {
    if constexpr (std::endian::native == std::endian::little) {
        // Eight bytes at a time: the lowest mark stands on the first byte below 14.
        constexpr std::uint64_t UNOS = 0x0101010101010101U;
        constexpr std::uint64_t ALTOS = 0x8080808080808080U;
        while (texto.size() - desde >= 8) {
            std::uint64_t w = 0;
            std::memcpy(&w, texto.data() + desde, 8);
            const std::uint64_t marcas = (w - UNOS * 14U) & ~w & ALTOS;
            if (marcas == 0) {
                desde += 8;
                continue;
            }
            desde += static_cast<std::size_t>(std::countr_zero(marcas)) / 8;
            if (es_separador(texto[desde])) return desde;
            ++desde;
        }
    }
    while (desde < texto.size() && !es_separador(texto[desde])) ++desde;
    return desde;
}

/// The text with every line ended by CR LF, the last one included: CR LF, a lone LF and a lone CR each end a
/// line. An empty text has no line and stays empty.
[[nodiscard]] TABLA_API std::string cierra_lineas(std::string texto);

} // namespace Qlt4_Tabla
