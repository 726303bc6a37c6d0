// SPDX-License-Identifier: MIT
// Look-up in the member table by name and by identifier: both orders are sorted by the compiler and
// searched by halves.
#include "control/miembros.h"

#include <algorithm>

namespace Qlt4_Tabla {

namespace {

constexpr char en_minuscula(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool antes_sin_caja(std::string_view a, std::string_view b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
        [](char x, char y) { return en_minuscula(x) < en_minuscula(y); });
}

using Indice = std::array<const Miembro*, MIEMBROS.size()>;

template <class Antes>
consteval Indice ordena(Antes antes) {
    Indice orden{};
    std::transform(MIEMBROS.begin(), MIEMBROS.end(), orden.begin(), [](const Miembro& m) { return &m; });
    std::sort(orden.begin(), orden.end(), [&](auto* a, auto* b) { return antes(*a, *b); });
    return orden;
}

constexpr Indice POR_NOMBRE =
    ordena([](const Miembro& a, const Miembro& b) { return antes_sin_caja(a.nombre, b.nombre); });
constexpr Indice POR_DISPID = ordena([](const Miembro& a, const Miembro& b) { return a.dispid < b.dispid; });

} // namespace

const Miembro* busca_miembro(std::string_view nombre) noexcept {
    const auto hallado = std::lower_bound(POR_NOMBRE.begin(), POR_NOMBRE.end(), nombre,
        [](const Miembro* m, std::string_view buscado) { return antes_sin_caja(m->nombre, buscado); });
    return hallado != POR_NOMBRE.end() && !antes_sin_caja(nombre, (*hallado)->nombre) ? *hallado : nullptr;
}

const Miembro* busca_miembro(std::int32_t dispid) noexcept {
    const auto hallado = std::lower_bound(POR_DISPID.begin(), POR_DISPID.end(), dispid,
        [](const Miembro* m, std::int32_t buscado) { return m->dispid < buscado; });
    return hallado != POR_DISPID.end() && (*hallado)->dispid == dispid ? *hallado : nullptr;
}

} // namespace Qlt4_Tabla
