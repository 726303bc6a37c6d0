// SPDX-License-Identifier: MIT
// The items of the menu `mn_cambio`: core/menu_cambio.h.
#include "core/menu_cambio.h"

#include "core/textos.h"

#include <string>

namespace Qlt4_Tabla {

MenuCambio::MenuCambio() {
    elementos_.push_back({std::string(textos::menu_cancelar)});
    elementos_.push_back({std::string(textos::menu_separador)});
}

void MenuCambio::prepara(std::span<const std::string_view> entradas) {
    elementos_.resize(FIJOS);
    for (EstadoOpcion& fijo : elementos_) fijo.marcada = false;
    for (const std::string_view titulo : entradas) elementos_.push_back({std::string(titulo)});
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
