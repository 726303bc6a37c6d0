// SPDX-License-Identifier: MIT
// TramosFilas: runs in their order; those that touch become one.
#include "core/tramos_filas.h"

#include <algorithm>

namespace Qlt4_Tabla {

void TramosFilas::une(int desde, int hasta) {
    if (desde >= hasta) return;
    if (ultimo_ + 1 == cuantos_ && tramos_[ultimo_].hasta == desde) { // row after row
        tramos_[ultimo_].hasta = hasta;
        return;
    }
    const auto fin = tramos_.begin() + static_cast<std::ptrdiff_t>(cuantos_);
    const auto primero =
        std::find_if(tramos_.begin(), fin, [desde](const Tramo& t) { return t.hasta >= desde; });
    const auto detras = std::find_if(primero, fin, [hasta](const Tramo& t) { return t.desde > hasta; });
    const auto i = static_cast<std::size_t>(primero - tramos_.begin());
    if (primero != detras) {
        *primero = {std::min(primero->desde, desde), std::max((detras - 1)->hasta, hasta)};
        quita(i + 1, static_cast<std::size_t>(detras - tramos_.begin()));
    } else if (cuantos_ == MAXIMO) {
        junta_dos();
        return une(desde, hasta);
    } else {
        std::move_backward(primero, fin, fin + 1);
        *primero = {desde, hasta};
        ++cuantos_;
    }
    ultimo_ = i;
}

// The two runs with the fewest rows between them.
void TramosFilas::junta_dos() {
    std::size_t cual = 1;
    const auto hueco = [this](std::size_t i) { return tramos_[i].desde - tramos_[i - 1].hasta; };
    for (std::size_t i = 2; i < cuantos_; ++i)
        if (hueco(i) < hueco(cual)) cual = i;
    tramos_[cual - 1].hasta = tramos_[cual].hasta;
    quita(cual, cual + 1);
}

void TramosFilas::quita(std::size_t desde, std::size_t hasta) {
    const auto it = [this](std::size_t i) { return tramos_.begin() + static_cast<std::ptrdiff_t>(i); };
    std::move(it(hasta), it(cuantos_), it(desde));
    cuantos_ -= hasta - desde;
}

// Every border goes where `donde` says, and what is left is put together again.
template <class Donde>
void TramosFilas::traslada(const Donde& donde) {
    const auto viejos = tramos_;
    const std::size_t n = cuantos_;
    cuantos_ = 0;
    for (std::size_t i = 0; i < n; ++i) une(donde(viejos[i].desde), donde(viejos[i].hasta));
}

void TramosFilas::inserta(int fila, int n) {
    desplaza(fila, n);
    une(fila, fila + n);
}

void TramosFilas::desplaza(int fila, int n) {
    for (std::size_t i = 0; i < cuantos_; ++i) {
        if (tramos_[i].desde >= fila) tramos_[i].desde += n;
        if (tramos_[i].hasta > fila) tramos_[i].hasta += n;
    }
}

void TramosFilas::borra(int fila, int n) {
    traslada([fila, n](int f) { return f <= fila ? f : std::max(fila, f - n); });
}

void TramosFilas::borra(std::span<const int> filas) {
    traslada([filas](int f) {
        return f - static_cast<int>(std::lower_bound(filas.begin(), filas.end(), f) - filas.begin());
    });
}

} // namespace Qlt4_Tabla
