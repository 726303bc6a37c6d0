// SPDX-License-Identifier: MIT
// EstadoMenus: captions, visibility, enabling and check marks of the menu items, as the rules left them.
// The tree (order, shortcuts, commands) is data of the editing folder; front ends mirror both.
#pragma once

#include "base/publico.h"

#include <array>
#include <cstddef>
#include <string>

namespace Qlt4_Tabla {

/// Every named menu item, in the order of the menu tree.
enum class Opcion : int {
    mn_Deshacer,
    mn_Rehacer,
    mn_cortar,
    mn_copiar,
    mn_Pegar,
    mn_especiales,
    mn_copiar_todo_y_cabezera,
    mn_copiar_pXc,
    mn_pegar_cXp,
    mn_pegar_al_final,
    mn_Filas,
    mn_insertar_filas,
    mn_eliminar_filas,
    mn_añadir_filas,
    mn_eliminar_vacias,
    mn_borrar_seleccion,
    mn_dd,
    Mnu_Tabla_Leer,
    Mnu_Tabla_Guardar_como,
    MN_avance_horizontal,
    MN_editor_de_columnas,
    mn_salir,
    mn_Especial_puntos_Añadir,
    mn_Especial_puntos_Copia,
    mn_Especial_puntos_Avance,
    mn_Especial_puntos_columnas,
    mn_cancelar1,
    mn_copiar1,
    mn_Pegar2,
};
inline constexpr std::size_t NUM_OPCIONES = 29;

struct EstadoOpcion {
    std::string titulo; ///< "&" marks the key, "&&" is shown as one
    bool visible = true;
    bool activa = true;
    bool marcada = false;
};

class TABLA_API EstadoMenus {
public:
    /// Every item visible, enabled, unmarked, with its design caption.
    EstadoMenus();

    [[nodiscard]] const EstadoOpcion& operator[](Opcion o) const {
        return opciones_[static_cast<std::size_t>(o)];
    }

    [[nodiscard]] EstadoOpcion& operator[](Opcion o) { return opciones_[static_cast<std::size_t>(o)]; }

private:
    std::array<EstadoOpcion, NUM_OPCIONES> opciones_;
};

} // namespace Qlt4_Tabla
