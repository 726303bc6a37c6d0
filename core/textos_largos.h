// SPDX-License-Identifier: MIT
// TextosLargos: the few texts that are too long for a packed row, each in a place of its own with a
// handle. Who stores a handle gives it back with `suelta`. See core/fila_empaquetada.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

class TextosLargos {
public:
    /// Stores a copy. The views that `texto` gave stay good.
    [[nodiscard]] std::uint32_t guarda(std::string_view texto);

    [[nodiscard]] std::string_view texto(std::uint32_t asa) const { return textos_[asa]; }

    void suelta(std::uint32_t asa) noexcept;

    /// How many texts are held.
    [[nodiscard]] std::size_t vivos() const { return textos_.size() - libres_.size(); }

    [[nodiscard]] std::size_t bytes() const;

private:
    std::vector<std::string> textos_;
    std::vector<std::uint32_t> libres_; // always has room for every handle, so that `suelta` needs no memory
};

} // namespace Qlt4_Tabla
