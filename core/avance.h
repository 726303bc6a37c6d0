// SPDX-License-Identifier: MIT
// Avance: how far a long command has come, told to the front end in whole per cents. Front ends show it
// once the command has kept the user waiting (platform/mensajes.h).
//     Avance avance(e.plataforma.mensajes, textos::pegando, lineas);
//     for (...) { ...; avance.hasta(++hechas); }
#pragma once

#include "platform/mensajes.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>

namespace Qlt4_Tabla {

class Avance {
public:
    /// A command of fewer steps is over before anyone could read how far it is: nothing is told.
    static constexpr std::int64_t MINIMO = 10'000;

    /// Is a command over so many steps worth an hourglass?
    [[nodiscard]] static bool hace_esperar(std::int64_t total) { return total >= MINIMO; }

    /// Tells nobody.
    Avance() = default;

    /// `que` is what the user reads, such as "Pegando", and outlives this; `total` steps cost about the same.
    Avance(Mensajes& mensajes, std::string_view que, std::int64_t total)
        : mensajes_(&mensajes),
          que_(que),
          total_(total),
          siguiente_(hace_esperar(total) ? pasos_de(1) : NUNCA) {}

    /// So many steps are done: a notice for each per cent that is reached, one for several at once. Cheap
    /// enough for every row.
    void hasta(std::int64_t hechos) {
        if (hechos >= siguiente_) di(hechos);
    }

private:
    static constexpr std::int64_t NUNCA = std::numeric_limits<std::int64_t>::max();

    /// Steps that so many per cent take, rounded up.
    [[nodiscard]] std::int64_t pasos_de(std::int64_t por_ciento) const {
        return (por_ciento * total_ + 99) / 100;
    }

    void di(std::int64_t hechos) {
        const std::int64_t por_ciento = std::min<std::int64_t>(hechos * 100 / total_, 100);
        siguiente_ = por_ciento < 100 ? pasos_de(por_ciento + 1) : NUNCA;
        mensajes_->avance(que_, static_cast<int>(por_ciento));
    }

    Mensajes* mensajes_ = nullptr;
    std::string_view que_;
    std::int64_t total_ = 0;
    std::int64_t siguiente_ = NUNCA;
};

} // namespace Qlt4_Tabla
