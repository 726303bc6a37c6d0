// SPDX-License-Identifier: MIT
// TextosSeguidos: the texts of a row as they lie in the store, for what takes whole tables row after row.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace Qlt4_Tabla {

/// Neighbouring texts of one row, one behind the other; those of the columns beyond them are empty. From the
/// beginning of each, as many bytes as TEXTO_HOLGADO may be read, whatever they hold (base/bytes.h).
struct TextosSeguidos {
    std::span<const std::uint8_t> longitudes; ///< bytes of each text
    const char* inicio = nullptr; ///< where the first one begins; with texts only

    /// `n` of them from the one at `primero` on, or those that there are.
    [[nodiscard]] TextosSeguidos tramo(std::size_t primero, std::size_t n) const {
        const std::size_t desde = std::min(primero, longitudes.size());
        const char* texto = inicio;
        for (const std::uint8_t bytes : longitudes.first(desde)) texto += bytes;
        return {longitudes.subspan(desde, std::min(n, longitudes.size() - desde)), texto};
    }

    /// Calls `toma(text)` for each; where the last one ends.
    template <class Toma>
    const char* recorre(const Toma& toma) const {
        const char* texto = inicio;
        for (const std::uint8_t n : longitudes) {
            toma(std::string_view(texto, n));
            texto += n;
        }
        return texto;
    }
};

/// The texts of a row from column 0 on.
struct FilaSeguida {
    bool numerada = false; ///< column 0 shows the row's number; of the texts, the first is empty then
    TextosSeguidos textos;
};

} // namespace Qlt4_Tabla
