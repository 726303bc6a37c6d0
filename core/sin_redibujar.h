// SPDX-License-Identifier: MIT
// SinRedibujar: while it lives the grid gives no notice; then redrawing is on, whatever it was before and
// whatever a step in between left. Where the switch is to be as it was: core/redibujo_suspendido.h.
#pragma once

#include "core/tablero.h"

namespace Qlt4_Tabla {

class SinRedibujar {
public:
    explicit SinRedibujar(Tablero& t) : t_(t) { t_.Redraw(false); }

    SinRedibujar(const SinRedibujar&) = delete;
    SinRedibujar& operator=(const SinRedibujar&) = delete;

    ~SinRedibujar() { t_.Redraw(true); }

private:
    Tablero& t_;
};

} // namespace Qlt4_Tabla
