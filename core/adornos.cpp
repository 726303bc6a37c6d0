// SPDX-License-Identifier: MIT
// Adornos: planes of fixed size; rows move inside them when the chunk's rows move.
#include "core/adornos.h"

#include <algorithm>
#include <tuple>

namespace Qlt4_Tabla {

namespace {

using Marcas = std::bitset<FILAS_POR_TROZO>;

// The marks of the first `n` rows.
Marcas primeras(int n) {
    return n <= 0 ? Marcas() : ~Marcas() >> static_cast<std::size_t>(FILAS_POR_TROZO - n);
}

} // namespace

Adornos::Adornos(const Adornos& otro) {
    planos_.reserve(otro.planos_.size());
    for (const Entrada& e : otro.planos_)
        planos_.push_back({e.tipo, e.col, std::make_unique<Plano>(*e.plano)});
}

std::size_t Adornos::busca(Adorno tipo, int col) const {
    const auto antes = [](const Entrada& e, const std::tuple<int, Adorno>& clave) {
        return std::tie(e.col, e.tipo) < clave;
    };
    const auto it = std::lower_bound(planos_.begin(), planos_.end(), std::tuple(col, tipo), antes);
    return static_cast<std::size_t>(it - planos_.begin());
}

bool Adornos::hay(std::size_t donde, Adorno tipo, int col) const {
    return donde < planos_.size() && planos_[donde].tipo == tipo && planos_[donde].col == col;
}

Adornos::Plano& Adornos::plano(Adorno tipo, int col) {
    const std::size_t donde = busca(tipo, col);
    if (!hay(donde, tipo, col)) {
        const auto it = planos_.begin() + static_cast<std::ptrdiff_t>(donde);
        planos_.insert(it, Entrada{tipo, col, std::make_unique<Plano>()});
    }
    return *planos_[donde].plano;
}

std::optional<std::int32_t> Adornos::valor(Adorno tipo, int col, int i) const {
    const std::size_t donde = busca(tipo, col);
    const auto fila = static_cast<std::size_t>(i);
    if (!hay(donde, tipo, col) || !planos_[donde].plano->puesto[fila]) return std::nullopt;
    return planos_[donde].plano->valor[fila];
}

bool Adornos::pon(Adorno tipo, int col, int i1, int i2, std::optional<std::int32_t> valor) {
    if (!valor) {
        const std::size_t donde = busca(tipo, col);
        if (!hay(donde, tipo, col)) return false;
        Marcas& puesto = planos_[donde].plano->puesto;
        const Marcas quitadas = puesto & primeras(i2 + 1) & ~primeras(i1);
        puesto &= ~quitadas;
        if (puesto.none()) planos_.erase(planos_.begin() + static_cast<std::ptrdiff_t>(donde));
        return quitadas.any();
    }
    Plano& p = plano(tipo, col);
    bool cambia = false;
    for (auto i = static_cast<std::size_t>(i1); i <= static_cast<std::size_t>(i2); ++i) {
        cambia = cambia || !p.puesto[i] || p.valor[i] != *valor;
        p.valor[i] = *valor;
        p.puesto[i] = true;
    }
    return cambia;
}

void Adornos::inserta(int i, int n) {
    for (Entrada& e : planos_) {
        Plano& p = *e.plano;
        std::move_backward(p.valor.begin() + i, p.valor.end() - n, p.valor.end());
        p.puesto = (p.puesto & primeras(i)) | (p.puesto & ~primeras(i)) << static_cast<std::size_t>(n);
    }
}

void Adornos::borra(int i, int n) {
    for (Entrada& e : planos_) {
        Plano& p = *e.plano;
        std::move(p.valor.begin() + i + n, p.valor.end(), p.valor.begin() + i);
        p.puesto = (p.puesto & primeras(i)) | (p.puesto & ~primeras(i + n)) >> static_cast<std::size_t>(n);
    }
    quita_vacios();
}

void Adornos::absorbe(const Adornos& otro, int filas) {
    try {
        for (const Entrada& e : otro.planos_) static_cast<void>(plano(e.tipo, e.col));
    } catch (...) {
        quita_vacios();
        throw;
    }
    for (const Entrada& e : otro.planos_) {
        Plano& p = plano(e.tipo, e.col);
        std::copy(e.plano->valor.begin(), e.plano->valor.end() - filas, p.valor.begin() + filas);
        p.puesto |= e.plano->puesto << static_cast<std::size_t>(filas);
    }
}

void Adornos::quita_columnas(int n) {
    std::erase_if(planos_, [n](const Entrada& e) { return e.tipo != Adorno::Alto && e.col >= n; });
}

bool Adornos::tiene(Adorno tipo) const {
    return std::any_of(planos_.begin(), planos_.end(), [tipo](const Entrada& e) { return e.tipo == tipo; });
}

std::size_t Adornos::bytes() const {
    return sizeof(Adornos) + planos_.capacity() * sizeof(Entrada) + planos_.size() * sizeof(Plano);
}

void Adornos::quita_vacios() {
    std::erase_if(planos_, [](const Entrada& e) { return e.plano->puesto.none(); });
}

} // namespace Qlt4_Tabla
