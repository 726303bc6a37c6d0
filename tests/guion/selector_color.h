// SPDX-License-Identifier: MIT
// What a script lets its user do in the colour picker. Each step is one text: "muestra INDEX" (a click on
// the swatch), "teclea TEXT" (the whole text of the box), an arrow "Izquierda", "Derecha", "Arriba" or
// "Abajo", a button "Aceptar", "Cancelar", "otros" or "capa".
#pragma once

#include "platform/dialogo_color.h"

#include <functional>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

using UsuarioColor = std::function<void(ModeloColor&)>;

/// The user who does these steps. They are read now: one that is none of the above is a FalloGuion here, not
/// inside the table.
[[nodiscard]] UsuarioColor usuario_de_color(const std::vector<std::string>& pasos);

} // namespace Qlt4_Tabla
