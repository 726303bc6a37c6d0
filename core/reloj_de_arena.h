// SPDX-License-Identifier: MIT
// RelojDeArena: the hourglass pointer while a long command works; the usual pointer again when it ends,
// also by an error.
#pragma once

#include "platform/mensajes.h"

namespace Qlt4_Tabla {

class RelojDeArena {
public:
    explicit RelojDeArena(Mensajes& mensajes) : mensajes_(mensajes) {
        mensajes_.puntero(Puntero::RelojDeArena);
    }

    ~RelojDeArena() { mensajes_.puntero(Puntero::Normal); }

    RelojDeArena(const RelojDeArena&) = delete;
    RelojDeArena& operator=(const RelojDeArena&) = delete;

private:
    Mensajes& mensajes_;
};

} // namespace Qlt4_Tabla
