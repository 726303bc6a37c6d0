// SPDX-License-Identifier: MIT
// FocoMemoria: who has the keyboard focus in the windowless platform. As in a real window, the box and the
// list report that they lost it, also when the table itself hid them.
#pragma once

#include "base/publico.h"

#include <functional>

namespace Qlt4_Tabla {

enum class Foco { Nadie, Tablero, Casilla, Lista };

class TABLA_API FocoMemoria {
public:
    /// Called when the box or the list loses the focus; the new owner already has it.
    std::function<void()> casilla_pierde;
    std::function<void()> lista_pierde;

    [[nodiscard]] Foco actual() const { return actual_; }

    /// `quien` takes the focus; nothing happens when it has it.
    void pide(Foco quien) {
        if (quien == actual_) return;
        const Foco antes = actual_;
        actual_ = quien;
        if (antes == Foco::Casilla && casilla_pierde) casilla_pierde();
        if (antes == Foco::Lista && lista_pierde) lista_pierde();
    }

    /// `quien` gives the focus up when it has it.
    void suelta(Foco quien) {
        if (quien == actual_) pide(Foco::Nadie);
    }

private:
    Foco actual_ = Foco::Tablero;
};

} // namespace Qlt4_Tabla
