// SPDX-License-Identifier: MIT
// Blocks of text as tables hand them over: fields parted by TAB, lines ended by CR LF.
// Main names: Separadores, cierra_lineas.
#pragma once

#include "base/ocho_bytes.h"
#include "base/publico.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

[[nodiscard]] constexpr bool es_separador(char c) { return c == '\t' || c == '\n' || c == '\r'; }

/// The TABs, LFs and CRs of a text, in order; the text must outlive this and keep them in their places. They are
/// found by blocks of 64 bytes, eight at a time.
class Separadores {
public:
    explicit Separadores(std::string_view texto) : texto_(texto) {}

    /// Where the next one stands; the size of the text when none is left.
    [[nodiscard]] std::size_t siguiente() {
        std::size_t lugar = 0;
        do {
            while (marcas_ == 0)
                if (!mira_bloque()) return texto_.size();
            lugar = bloque_ + static_cast<std::size_t>(std::countr_zero(marcas_));
            marcas_ &= marcas_ - 1;
        } while (!es_separador(texto_[lugar]));
        return lugar;
    }

private:
    static constexpr std::size_t BLOQUE = 64;
    static constexpr unsigned MAYOR = '\r'; // of the separators; few other characters are below it

    /// False at the end of the text.
    bool mira_bloque() {
        if (vistos_ == texto_.size()) return false;
        bloque_ = vistos_;
        std::size_t i = 0;
        if (texto_.size() - bloque_ >= BLOQUE)
            for (; i < BLOQUE; i += 8)
                marcas_ |= marcas_menores(lee_ocho(texto_.data() + bloque_ + i), MAYOR + 1) << i;
        for (; i < BLOQUE && bloque_ + i < texto_.size(); ++i)
            marcas_ |= std::uint64_t{es_separador(texto_[bloque_ + i])} << i;
        vistos_ += i;
        return true;
    }

    std::string_view texto_;
    std::size_t bloque_ = 0; // of the marks
    std::size_t vistos_ = 0; // bytes that were looked at
    std::uint64_t marcas_ = 0; // of the block: bytes that may be separators and were not given yet
};

/// The text with every line ended by CR LF, the last one included: CR LF, a lone LF and a lone CR each end a
/// line. An empty text has no line and stays empty.
[[nodiscard]] TABLA_API std::string cierra_lineas(std::string texto);

} // namespace Qlt4_Tabla
