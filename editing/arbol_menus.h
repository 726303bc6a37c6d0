// SPDX-License-Identifier: MIT
// The menus and the toolbar as constant tables: which lines and buttons, in which order, with which shortcut.
// Main names: arbol, barra, boton_visible, opcion_de_atajo. What a line is: core/elementos_menu.h. What a chosen
// line runs stands in control/mandos.cpp.
#pragma once

#include "core/elementos_menu.h"
#include "core/estado_tabla.h"
#include "platform/marco.h"

#include <optional>
#include <span>

namespace Qlt4_Tabla {

/// The lines of a menu from the top; of `mn_cambio` none, its lines are e.menu_cambio.
[[nodiscard]] std::span<const ElementoMenu> arbol(Menu menu);

/// The buttons of `toolBar` from the left.
[[nodiscard]] std::span<const BotonBarra> barra();
/// The special-points mode hides "Pegar" and "p1"; the switch A_Edicion_Columnas_Off hides those two, "c1"
/// and "e1".
[[nodiscard]] bool boton_visible(const EstadoTabla& e, const BotonBarra& boton);

/// The item whose shortcut is Ctrl with this key.
[[nodiscard]] std::optional<Opcion> opcion_de_atajo(int KeyCode);

} // namespace Qlt4_Tabla
