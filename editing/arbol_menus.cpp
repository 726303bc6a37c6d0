// SPDX-License-Identifier: MIT
// The tables of menus and toolbar.
#include "editing/arbol_menus.h"

#include "editing/textos.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Qlt4_Tabla {

namespace {

constexpr ElementoMenu orden(Opcion opcion, std::string_view nombre, int tecla = teclas::NINGUNA) {
    return {ClaseElemento::Orden, opcion, nombre, tecla, {}};
}

constexpr ElementoMenu marca(Opcion opcion, std::string_view nombre) {
    return {ClaseElemento::Marca, opcion, nombre, teclas::NINGUNA, {}};
}

constexpr ElementoMenu SEPARADOR{};

constexpr std::array<ElementoMenu, 4> ESPECIALES{{
    orden(Opcion::mn_copiar_todo_y_cabezera, "mn_copiar_todo_y_cabezera"),
    orden(Opcion::mn_copiar_pXc, "mn_copiar_pXc"),
    orden(Opcion::mn_pegar_cXp, "mn_pegar_cXp"),
    orden(Opcion::mn_pegar_al_final, "mn_pegar_al_final"),
}};

constexpr std::array<ElementoMenu, 22> RATON{{
    orden(Opcion::mn_Deshacer, "mn_Deshacer", teclas::Z),
    orden(Opcion::mn_Rehacer, "mn_Rehacer"),
    SEPARADOR,
    orden(Opcion::mn_cortar, "mn_cortar", teclas::X),
    orden(Opcion::mn_copiar, "mn_copiar", teclas::C),
    orden(Opcion::mn_Pegar, "mn_Pegar", teclas::V),
    {ClaseElemento::Submenu, Opcion::mn_especiales, "mn_especiales", teclas::NINGUNA, ESPECIALES},
    SEPARADOR,
    {ClaseElemento::Encabezado, Opcion::mn_Filas, "mn_Filas", teclas::NINGUNA, {}},
    orden(Opcion::mn_insertar_filas, "mn_insertar_filas"),
    orden(Opcion::mn_eliminar_filas, "mn_eliminar_filas"),
    orden(Opcion::mn_añadir_filas, "mn_añadir_filas"),
    orden(Opcion::mn_eliminar_vacias, "mn_eliminar_vacias"),
    orden(Opcion::mn_borrar_seleccion, "mn_borrar_seleccion"),
    {ClaseElemento::Separador, Opcion::mn_dd, "mn_dd", teclas::NINGUNA, {}},
    orden(Opcion::Mnu_Tabla_Leer, "Mnu_Tabla_Leer"),
    orden(Opcion::Mnu_Tabla_Guardar_como, "Mnu_Tabla_Guardar_como"),
    SEPARADOR,
    marca(Opcion::MN_avance_horizontal, "MN_avance_horizontal"),
    orden(Opcion::MN_editor_de_columnas, "MN_editor_de_columnas"),
    SEPARADOR,
    orden(Opcion::mn_salir, "mn_salir"),
}};

constexpr std::array<ElementoMenu, 5> PUNTOS{{
    orden(Opcion::mn_Especial_puntos_Añadir, "mn_Especial_puntos_Añadir"),
    orden(Opcion::mn_Especial_puntos_Copia, "mn_Especial_puntos_Copia"),
    marca(Opcion::mn_Especial_puntos_Avance, "mn_Especial_puntos_Avance"),
    SEPARADOR,
    orden(Opcion::mn_Especial_puntos_columnas, "mn_Especial_puntos_columnas"),
}};

constexpr std::array<ElementoMenu, 3> RATON3{{
    orden(Opcion::mn_cancelar1, "mn_cancelar1"),
    orden(Opcion::mn_copiar1, "mn_copiar1"),
    orden(Opcion::mn_Pegar2, "mn_Pegar2"),
}};

constexpr std::array<BotonBarra, 9> BARRA{{
    {"Copiar", textos::ayuda_copiar, {}},
    {"c1", {}, {}},
    {"Pegar", textos::ayuda_pegar, {}},
    {"p1", {}, {}},
    {"Excel", textos::ayuda_excel, {}},
    {"e1", {}, {}},
    {"Propiedades", textos::ayuda_propiedades, {}},
    {"pr1", {}, {}},
    {"Avance", textos::ayuda_avance, Opcion::MN_avance_horizontal},
}};

} // namespace

std::span<const ElementoMenu> arbol(Menu menu) {
    switch (menu) {
    case Menu::mn_raton: return RATON;
    case Menu::Mn_Especial_puntos: return PUNTOS;
    case Menu::mn_raton3: return RATON3;
    case Menu::mn_cambio: break;
    }
    return {};
}

std::span<const BotonBarra> barra() { return BARRA; }

bool boton_visible(const EstadoTabla& e, const BotonBarra& boton) {
    const bool de_pegar = boton.clave == "Pegar" || boton.clave == "p1";
    const bool de_columnas = de_pegar || boton.clave == "c1" || boton.clave == "e1";
    return !(e.especialPuntos && de_pegar) && !(e.edicionColumnasOff && de_columnas);
}

std::optional<Opcion> opcion_de_atajo(int KeyCode) {
    if (KeyCode == teclas::NINGUNA) return std::nullopt;
    const auto* const elemento = std::find_if(RATON.begin(), RATON.end(),
        [&](const ElementoMenu& uno) { return uno.tecla_con_control == KeyCode; });
    return elemento == RATON.end() ? std::nullopt : elemento->opcion;
}

} // namespace Qlt4_Tabla
