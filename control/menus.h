// SPDX-License-Identifier: MIT
// MenusTabla: when each menu opens, what is prepared first, and what the entry chosen in a column's menu does.
// Joins the rules of editing/, colours/, clipboard/ and files/. The lines of the fixed menus are in
// editing/arbol_menus.h, what they run in control/mandos.cpp.
#pragma once

#include "core/estado_tabla.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace Qlt4_Tabla {

class MenusTabla {
public:
    explicit MenusTabla(EstadoTabla& e) : e_(e) {}

    /// Prepares and opens `mn_raton`: the paste items enabled by whether the clipboard holds a text, the file
    /// items named after the table.
    void abre_raton(DondeMenu donde);
    /// The same under the toolbar button "Propiedades"; in the special-points mode `Mn_Especial_puntos`.
    void abre_opciones();
    /// The mouse has selected: several rows of one column open the menu for the column's format, in `mn_cambio`
    /// for texts, lists (with values) and colours, else `mn_raton3` unless `ratonOff`. Any other selection:
    /// nothing.
    void abre_de_columna();
    /// The user chose an item of `mn_cambio`, counted from "Cancelar" = 0. Not open, not an item, or its cells
    /// are no more: nothing.
    void elige_cambio(std::size_t elemento);

private:
    struct Columna;
    struct Abierto {
        const Columna* menu;
        Bloque bloque;
    };
    static const Columna* de_columna(const T_FormatoColumna& formato);

    EstadoTabla& e_;
    std::optional<Abierto> abierto_;
};

} // namespace Qlt4_Tabla
