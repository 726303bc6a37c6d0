// SPDX-License-Identifier: MIT
// FilaLeida: the place of the row that was read last, so that its other cells are found in a few steps, in any
// order. It is good until the rows change: who changes them forgets it. How rows are packed:
// core/fila_empaquetada.h.
#pragma once

#include "core/fila_empaquetada.h"

#include <cstdint>
#include <string_view>

namespace Qlt4_Tabla {

class FilaLeida {
public:
    FilaLeida() = default;

    /// Row `fila` of the table, packed at `p`; it may be any row.
    FilaLeida(int fila, const std::uint8_t* p) : fila_((p[0] & NO_CORRIENTE) == 0 ? fila : -1), p_(p) {}

    /// Is the text of this cell here? Not those of column 0, of wide rows and of rows with long texts.
    [[nodiscard]] bool tiene(int fila, int col) const {
        return fila == fila_ && static_cast<unsigned>(col) - 1U < MAXIMA;
    }

    /// The text of a cell that is here.
    [[nodiscard]] std::string_view texto(int col) const {
        const auto columna = static_cast<std::uint32_t>(col);
        const std::uint32_t columnas = p_[0] >> 2U;
        if (columna >= columnas) return {};
        const std::uint8_t* const longitudes = p_ + 1;
        const std::uint8_t* const texto = longitudes + columnas + suma_hasta_15(longitudes, columna);
        return {reinterpret_cast<const char*>(texto), longitudes[columna]};
    }

private:
    static constexpr std::uint8_t NO_CORRIENTE = CabeceraFila::LARGOS | CabeceraFila::SIGUE;
    static constexpr unsigned MAXIMA = 15;

    int fila_ = -1;
    const std::uint8_t* p_ = nullptr;
};

} // namespace Qlt4_Tabla
