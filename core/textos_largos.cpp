// SPDX-License-Identifier: MIT
// TextosLargos: places are used again, the last freed first.
#include "core/textos_largos.h"

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

std::uint32_t TextosLargos::guarda(std::string_view texto) {
    std::string copia(texto);
    if (libres_.empty()) {
        if (textos_.size() == textos_.capacity()) {
            const std::size_t n = std::max<std::size_t>(8, textos_.size() * 2);
            libres_.reserve(n);
            textos_.reserve(n);
        }
        textos_.push_back(std::move(copia));
        return static_cast<std::uint32_t>(textos_.size() - 1);
    }
    const std::uint32_t asa = libres_.back();
    libres_.pop_back();
    textos_[asa] = std::move(copia);
    return asa;
}

void TextosLargos::suelta(std::uint32_t asa) noexcept {
    std::string().swap(textos_[asa]);
    libres_.push_back(asa);
}

std::size_t TextosLargos::bytes() const {
    std::size_t bytes = textos_.capacity() * sizeof(std::string) + libres_.capacity() * sizeof(std::uint32_t);
    for (const std::string& t : textos_)
        if (!t.empty()) bytes += t.capacity() + 1;
    return bytes;
}

} // namespace Qlt4_Tabla
