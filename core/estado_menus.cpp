// SPDX-License-Identifier: MIT
// The state of the menu items before any rule changed it.
#include "core/estado_menus.h"

#include "core/textos.h"

namespace Qlt4_Tabla {

static_assert(textos::titulos_menu.size() == NUM_OPCIONES);
static_assert(static_cast<std::size_t>(Opcion::mn_Pegar2) == NUM_OPCIONES - 1);

EstadoMenus::EstadoMenus() {
    for (std::size_t i = 0; i < NUM_OPCIONES; ++i) opciones_[i].titulo = textos::titulos_menu[i];
}

} // namespace Qlt4_Tabla
