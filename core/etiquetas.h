// SPDX-License-Identifier: MIT
// Etiquetas: captions and visibility of the component's labels. The frame shows them; `labEditor` and
// `labDefecto` are never shown and have no place here.
#pragma once

#include <string>

namespace Qlt4_Tabla {

struct Etiqueta {
    std::string texto;
    bool visible = false;
};

struct Etiquetas {
    Etiqueta labNumeroFilas; ///< the row count, shown in place of the row-number column
    Etiqueta labMensaje; ///< one line for messages; its design caption is never seen
};

} // namespace Qlt4_Tabla
