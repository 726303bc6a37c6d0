// SPDX-License-Identifier: MIT
// RedibujoSuspendido: while it lives the grid gives no notice; then the switch is as it was before and the
// view gets the joined notices. Not for where the switch has to end on or off whatever it was.
#pragma once

#include "core/tablero.h"

namespace Qlt4_Tabla {

class RedibujoSuspendido {
public:
    explicit RedibujoSuspendido(Tablero& t) : t_(t), antes_(t.Redraw()) { t_.Redraw(false); }

    ~RedibujoSuspendido() { t_.Redraw(antes_); }

    RedibujoSuspendido(const RedibujoSuspendido&) = delete;
    RedibujoSuspendido& operator=(const RedibujoSuspendido&) = delete;

private:
    Tablero& t_;
    bool antes_;
};

} // namespace Qlt4_Tabla
