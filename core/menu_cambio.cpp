// SPDX-License-Identifier: MIT
// The items of the menu `mn_cambio`: core/menu_cambio.h.
#include "core/menu_cambio.h"

#include "core/textos.h"

#include <string>

namespace Qlt4_Tabla {

MenuCambio::MenuCambio() {
    for (const std::string_view titulo : {textos::menu_cancelar, textos::menu_separador})
        elementos_.push_back({std::string(titulo), {}, false});
}

void MenuCambio::prepara(std::span<const std::string_view> entradas) {
    elementos_.resize(FIJOS);
    for (Elemento& fijo : elementos_) fijo.marcada = false;
    for (const std::string_view titulo : entradas) elementos_.push_back({std::string(titulo), {}, false});
}

void MenuCambio::colorea(std::size_t entrada, std::int32_t color) {
    elementos_.at(FIJOS + entrada).color = color;
}

void MenuCambio::marca(std::size_t elemento) {
    if (elemento < elementos_.size()) elementos_[elemento].marcada = true;
}

std::optional<std::size_t> MenuCambio::marcada() const {
    for (std::size_t i = FIJOS; i < elementos_.size(); ++i)
        if (elementos_[i].marcada) return i - FIJOS;
    return std::nullopt;
}

} // namespace Qlt4_Tabla
