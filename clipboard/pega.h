// SPDX-License-Identifier: MIT
// Paste commands: a block of text from the clipboard into the cells from the current one on, down and to the
// right; rows are added where the block is longer than the table.
// Main names: Pegar_Portapapeles, mn_pegar_al_final, mide_bloque.
#pragma once

#include "core/estado_tabla.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace Qlt4_Tabla {

/// What the first pass over a block counts. Where lines end in CR LF, `maximo` - 1 is the largest number of
/// fields of a line; a line that no LF ends is not counted in `lineas`, one without a line end nowhere.
struct MedidasBloque {
    std::int64_t maximo = 0;
    std::int64_t lineas = 0;
    friend constexpr bool operator==(const MedidasBloque&, const MedidasBloque&) = default;
};

[[nodiscard]] MedidasBloque mide_bloque(std::string_view texto);

/// Writes the block from (Row, Col) on, row 1 when the current row is 0. Asks first when fields would fall
/// beyond the last column; without a yes nothing is changed but for the capture point, taken before. CR LF, a
/// lone LF and a lone CR each end a line; empty fields empty their cells; locked and invisible columns are
/// written too. Where the platform writes decimals with a point the first comma of a field becomes one.
/// Then all formats are applied and a current row or column of 0 becomes 1.
/// `CambiarComa` is kept for the two commands that differ in it; both do the same. Errors are ignored.
void Pegar_Portapapeles(EstadoTabla& e, bool CambiarComa);

/// The paste items of the menu are enabled while the clipboard holds a text; one that cannot be read holds none.
void habilita_pegar(EstadoTabla& e);

/// Adds rows, goes to column 0 of the last one and pastes there, so that a block's first field is its row
/// number. The added row stays when nothing is pasted.
void mn_pegar_al_final(EstadoTabla& e, const std::function<void()>& anade_filas);

} // namespace Qlt4_Tabla
