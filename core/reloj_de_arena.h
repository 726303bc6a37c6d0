// SPDX-License-Identifier: MIT
// RelojDeArena: the hourglass pointer while a long command works; the usual pointer again when the outermost
// one ends, also by an error. How far the command is: core/avance.h.
#pragma once

#include "core/estado_tabla.h"

namespace Qlt4_Tabla {

class RelojDeArena {
public:
    explicit RelojDeArena(EstadoTabla& e) : e_(e) {
        if (e_.relojes++ == 0) e_.plataforma.mensajes.puntero(Puntero::RelojDeArena);
    }

    ~RelojDeArena() {
        if (--e_.relojes == 0) e_.plataforma.mensajes.puntero(Puntero::Normal);
    }

    RelojDeArena(const RelojDeArena&) = delete;
    RelojDeArena& operator=(const RelojDeArena&) = delete;

private:
    EstadoTabla& e_;
};

} // namespace Qlt4_Tabla
