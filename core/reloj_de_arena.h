// SPDX-License-Identifier: MIT
// RelojDeArena: the hourglass pointer while a long command works; the usual pointer again when the outermost
// one ends, also by an error. How far the command is: core/avance.h.
#pragma once

#include "core/estado_tabla.h"

namespace Qlt4_Tabla {

class RelojDeArena {
public:
    /// `hace_falta`: false for a command that is over at once on a table of this size.
    explicit RelojDeArena(EstadoTabla& e, bool hace_falta = true) : e_(e), puesto_(hace_falta) {
        if (puesto_ && e_.relojes++ == 0) e_.plataforma.mensajes.puntero(Puntero::RelojDeArena);
    }

    ~RelojDeArena() {
        if (puesto_ && --e_.relojes == 0) e_.plataforma.mensajes.puntero(Puntero::Normal);
    }

    RelojDeArena(const RelojDeArena&) = delete;
    RelojDeArena& operator=(const RelojDeArena&) = delete;

private:
    EstadoTabla& e_;
    bool puesto_;
};

} // namespace Qlt4_Tabla
