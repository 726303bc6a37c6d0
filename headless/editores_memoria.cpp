// SPDX-License-Identifier: MIT
// The windowless text box and drop-down. Positions are characters, as in the seams.
#include "headless/editores_memoria.h"

#include "base/utf8.h"

#include <algorithm>

namespace Qlt4_Tabla {

void CajaTextoMemoria::muestra(const Rectangulo& celda, std::string_view texto) {
    celda_ = celda;
    pon_texto(texto);
    visible_ = true;
    foco_->pide(Foco::Casilla);
}

void CajaTextoMemoria::oculta() {
    visible_ = false;
    foco_->suelta(Foco::Casilla);
}

void CajaTextoMemoria::pon_texto(std::string_view texto) {
    texto_ = texto;
    inicio_ = static_cast<int>(utf8::longitud(texto_));
    longitud_ = 0;
}

void CajaTextoMemoria::selecciona(int inicio, int longitud) {
    const int largo = static_cast<int>(utf8::longitud(texto_));
    inicio_ = std::clamp(inicio, 0, largo);
    longitud_ = std::clamp(longitud, 0, largo - inicio_);
}

void CajaTextoMemoria::inserta(std::string_view texto) {
    const std::size_t desde = utf8::byte_de(texto_, static_cast<std::size_t>(inicio_));
    const std::size_t hasta = utf8::byte_de(texto_, static_cast<std::size_t>(cursor()));
    texto_.replace(desde, hasta - desde, texto);
    inicio_ += static_cast<int>(utf8::longitud(texto));
    longitud_ = 0;
}

void CajaTextoMemoria::retrocede() {
    if (longitud_ == 0 && inicio_ > 0) {
        --inicio_;
        longitud_ = 1;
    }
    inserta({});
}

void ListaMemoria::muestra(const Rectangulo& celda, std::span<const std::string> entradas, int elegida) {
    celda_ = celda;
    entradas_.assign(entradas.begin(), entradas.end());
    elige(elegida);
    visible_ = true;
    foco_->pide(Foco::Lista);
}

void ListaMemoria::oculta() {
    visible_ = false;
    foco_->suelta(Foco::Lista);
}

std::string ListaMemoria::texto() const {
    return elegida_ < 0 ? std::string() : entradas_[static_cast<std::size_t>(elegida_)];
}

void ListaMemoria::elige(int entrada) {
    elegida_ = entrada >= 0 && entrada < static_cast<int>(entradas_.size()) ? entrada : -1;
}

void ListaMemoria::elige(std::string_view texto) {
    const auto i = std::find(entradas_.begin(), entradas_.end(), texto);
    elige(i == entradas_.end() ? -1 : static_cast<int>(i - entradas_.begin()));
}

} // namespace Qlt4_Tabla
