// SPDX-License-Identifier: MIT
// ElementoMenu, BotonBarra: one line of a menu and one button of the toolbar as data that front ends mirror.
// What changes while the table runs (caption, enabling, check mark) is in core/estado_menus.h, by `Opcion`;
// the tables themselves are in editing/arbol_menus.h.
#pragma once

#include "base/teclas.h"
#include "core/estado_menus.h"

#include <optional>
#include <span>
#include <string_view>

namespace Qlt4_Tabla {

enum class ClaseElemento {
    Orden, ///< runs its command when chosen
    Marca, ///< the same, and carries a check mark
    Encabezado, ///< a title over the lines that follow; choosing it does nothing
    Submenu, ///< opens `hijos`
    Separador,
};

struct ElementoMenu {
    ClaseElemento clase = ClaseElemento::Separador;
    std::optional<Opcion> opcion; ///< none: a separator without a name
    std::string_view nombre;
    int tecla_con_control = teclas::NINGUNA; ///< the shortcut, while the grid has the focus
    std::span<const ElementoMenu> hijos;
};

struct BotonBarra {
    std::string_view clave; ///< what the click hands to Mandos::boton; also its name
    std::string_view ayuda; ///< tooltip; empty: a narrow gap without a click
    std::optional<Opcion> marca; ///< shown pressed while this item is checked
};

} // namespace Qlt4_Tabla
