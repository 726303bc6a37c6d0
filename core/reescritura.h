// SPDX-License-Identifier: MIT
// Reescritura: cells of one chunk written row after row, from above down. The new rows are put together
// apart and take the place of the old ones at once, so that each is copied once however many there are.
// Only ordinary rows and texts go this way; others are written by themselves (core/almacen_celdas.cpp).
#pragma once

#include "core/trozo.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

/// What became of a row.
enum class Escrita {
    No, ///< not in this way: nothing is done
    Igual, ///< it has these texts already
    Otra,
};

class Reescritura {
public:
    /// Goes to a chunk, which nobody else writes before `acaba`. What was not put in place is forgotten.
    void empieza(Trozo& t);

    /// Other texts for the cells of row `i` from column `col` > 0 on; it is below the rows given before. Not in this
    /// way go texts that stand apart, and a chunk without packed rows or one that would grow too much.
    [[nodiscard]] Escrita pon(int i, int col, std::span<const std::string_view> textos);

    /// Puts the rows in their place. Without memory: std::bad_alloc, the chunk is unchanged.
    void acaba();

    [[nodiscard]] std::size_t bytes() const { return filas_.capacity(); }

private:
    void deja(std::span<const std::uint8_t> fila);
    std::uint8_t* sitio(std::size_t bytes);
    void anota(std::size_t bytes_vieja, const std::uint8_t* fin);

    Trozo* trozo_ = nullptr;
    int primera_ = 0; // of the new rows
    std::size_t cuantas_ = 0;
    std::uint32_t usados_ = 0; // bytes of the new rows
    std::uint32_t viejos_ = 0; // bytes of those they stand for
    std::array<std::uint32_t, FILAS_POR_TROZO> finales_; // where each new row ends
    std::vector<std::uint8_t> filas_; // kept for its memory
};

} // namespace Qlt4_Tabla
