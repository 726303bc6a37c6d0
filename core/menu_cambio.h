// SPDX-License-Identifier: MIT
// MenuCambio: the menu `mn_cambio`, whose items (`mnuFileList`) are made anew before each opening. Whoever
// opens it prepares its entries; a click only checks one; who opened it looks for the check mark afterwards.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

class MenuCambio {
public:
    /// Items before the entries: "Cancelar" and a separator.
    static constexpr std::size_t FIJOS = 2;

    /// No entries.
    MenuCambio();

    struct Elemento {
        std::string titulo;
        std::optional<std::int32_t> color; ///< a swatch to be shown beside the caption
        bool marcada = false;
    };

    /// The entries become these, in their order; nothing is checked any more.
    void prepara(std::span<const std::string_view> entradas);
    /// A colour for an entry, counted as `marcada` counts.
    void colorea(std::size_t entrada, std::int32_t color);

    /// All items, from "Cancelar" on.
    [[nodiscard]] const std::vector<Elemento>& elementos() const { return elementos_; }

    /// The click: checks an item, counted from "Cancelar" = 0. None of that number: nothing.
    void marca(std::size_t elemento);
    /// The first checked entry, counted from 0 behind the separator.
    [[nodiscard]] std::optional<std::size_t> marcada() const;

private:
    std::vector<Elemento> elementos_;
};

} // namespace Qlt4_Tabla
