// SPDX-License-Identifier: MIT
// RegistrosEditor: what the table and its column editor hand to each other: a copy of the 26 column formats,
// which the editor changes in place, and how the editor was left.
#pragma once

#include "base/error.h"
#include "core/formato_columna.h"

#include <array>
#include <cstddef>

namespace Qlt4_Tabla {

struct RegistrosEditor {
    std::array<T_FormatoColumna, MAX_COLUMNAS> formatos{};
    bool aceptado = false; ///< left by applying or by restoring the defaults
    bool por_defecto = false; ///< left by restoring the defaults

    /// Error 9 outside 0..25.
    [[nodiscard]] T_FormatoColumna& formato(int col) {
        if (col < 0 || col >= MAX_COLUMNAS) lanza(NumError::Subindice);
        return formatos[static_cast<std::size_t>(col)];
    }

    /// Is any of the columns 1 to `n` visible? Error 9 where the search gets beyond 25.
    [[nodiscard]] bool hay_visible(int n) {
        for (int col = 1; col <= n; ++col)
            if (!formato(col).Invisible) return true;
        return false;
    }
};

} // namespace Qlt4_Tabla
