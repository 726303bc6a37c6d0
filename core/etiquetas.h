// SPDX-License-Identifier: MIT
// Etiquetas: captions and visibility of the component's labels. The frame shows them; `labEditor` and
// `labDefecto` are never shown and have no place here.
#pragma once

#include "core/textos.h"

#include <string>

namespace Qlt4_Tabla {

struct Etiqueta {
    std::string texto;
    bool visible = false;
};

struct Etiquetas {
    Etiqueta labNumeroFilas; ///< the row count, shown in place of the row-number column
    /// One line for messages, hidden without one; its first caption is never seen.
    Etiqueta labMensaje{std::string(textos::mensaje_inicial), false};
};

} // namespace Qlt4_Tabla
