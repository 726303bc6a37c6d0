// SPDX-License-Identifier: MIT
// Reescritura: rows between two that change are copied as they are: core/reescritura.h.
#include "core/reescritura.h"

#include <algorithm>

namespace Qlt4_Tabla {

void Reescritura::empieza(Trozo& t) {
    trozo_ = &t;
    t.cierra();
    cuantas_ = 0;
    usados_ = 0;
    viejos_ = 0;
}

Escrita Reescritura::pon(int i, int col, std::span<const std::string_view> textos) {
    if (trozo_->sin_textos()) return Escrita::No;
    const auto vieja = trozo_->fila(i);
    const auto columna = static_cast<std::uint32_t>(col);
    const std::optional<std::size_t> cota = cota_fila(vieja, columna, textos);
    if (!cota) return Escrita::No;
    if (cuantas_ == 0) primera_ = i;
    for (int j = primera_ + static_cast<int>(cuantas_); j < i; ++j) deja(trozo_->fila(j));
    const bool cabe = trozo_->usados() + usados_ + *cota <= Trozo::BYTES_BUENOS + viejos_ + vieja.size();
    if (!cabe && trozo_->filas() > 1) return Escrita::No;
    std::uint8_t* const nueva = sitio(*cota);
    std::uint8_t* const fin = compon_fila(nueva, vieja, columna, textos);
    if (std::equal(vieja.begin(), vieja.end(), nueva, fin)) return Escrita::Igual;
    anota(vieja.size(), fin);
    return Escrita::Otra;
}

// Room for one more row.
std::uint8_t* Reescritura::sitio(std::size_t bytes) {
    if (filas_.size() < usados_ + bytes) filas_.resize(2 * (usados_ + bytes));
    return filas_.data() + usados_;
}

void Reescritura::anota(std::size_t bytes_vieja, const std::uint8_t* fin) {
    viejos_ += static_cast<std::uint32_t>(bytes_vieja);
    usados_ = static_cast<std::uint32_t>(fin - filas_.data());
    finales_[cuantas_++] = usados_;
}

void Reescritura::deja(std::span<const std::uint8_t> fila) {
    anota(fila.size(), std::copy(fila.begin(), fila.end(), sitio(fila.size())));
}

void Reescritura::acaba() {
    if (cuantas_ == 0) return;
    trozo_->pon_filas(primera_, std::span(filas_).first(usados_), std::span(finales_).first(cuantas_));
    empieza(*trozo_);
}

} // namespace Qlt4_Tabla
