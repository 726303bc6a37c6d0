// SPDX-License-Identifier: MIT
// ImagenesCeldas: one sorted vector.
#include "core/imagenes_celdas.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace Qlt4_Tabla {

namespace {

// The entry of the cell, or the place where it belongs.
template <class Entradas>
auto busca(Entradas& entradas, int fila, int col) {
    return std::lower_bound(entradas.begin(), entradas.end(), std::tuple(fila, col),
        [](const auto& e, const std::tuple<int, int>& clave) { return std::tie(e.fila, e.col) < clave; });
}

} // namespace

std::shared_ptr<const Imagen> ImagenesCeldas::imagen(int fila, int col) const {
    const auto it = busca(imagenes_, fila, col);
    const bool hay = it != imagenes_.end() && it->fila == fila && it->col == col;
    return hay ? it->imagen : nullptr;
}

bool ImagenesCeldas::pon(int fila, int col, std::shared_ptr<const Imagen> imagen) {
    const auto it = busca(imagenes_, fila, col);
    const bool hay = it != imagenes_.end() && it->fila == fila && it->col == col;
    if (hay ? it->imagen == imagen : !imagen) return false;
    if (!imagen)
        imagenes_.erase(it);
    else if (hay)
        it->imagen = std::move(imagen);
    else
        imagenes_.insert(it, {fila, col, std::move(imagen)});
    return true;
}

void ImagenesCeldas::inserta_filas(int fila, int n) {
    for (auto it = busca(imagenes_, fila, 0); it != imagenes_.end(); ++it) it->fila += n;
}

void ImagenesCeldas::borra_filas(int fila, int n) {
    const auto desde = busca(imagenes_, fila, 0);
    const auto hasta = busca(imagenes_, fila + n, 0);
    for (auto it = imagenes_.erase(desde, hasta); it != imagenes_.end(); ++it) it->fila -= n;
}

void ImagenesCeldas::borra_varias_filas(std::span<const int> filas) {
    auto destino = imagenes_.begin();
    for (Entrada& e : imagenes_) {
        const auto it = std::lower_bound(filas.begin(), filas.end(), e.fila);
        if (it != filas.end() && *it == e.fila) continue;
        e.fila -= static_cast<int>(it - filas.begin());
        *destino++ = std::move(e);
    }
    imagenes_.erase(destino, imagenes_.end());
}

void ImagenesCeldas::quita_columnas(int n) {
    std::erase_if(imagenes_, [n](const Entrada& e) { return e.col >= n; });
}

} // namespace Qlt4_Tabla
