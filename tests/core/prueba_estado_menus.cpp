// SPDX-License-Identifier: MIT
// The menu items as they are before any rule changed them.
#include "core/estado_menus.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace Qlt4_Tabla;

TEST(EstadoMenus, cada_opcion_tiene_su_titulo) {
    const struct {
        Opcion opcion;
        std::string titulo;
    } casos[] = {
        {Opcion::mn_Deshacer, "&Deshacer"},
        {Opcion::mn_Rehacer, "Reh&acer"},
        {Opcion::mn_cortar, "Cortar"},
        {Opcion::mn_copiar, "Copiar"},
        {Opcion::mn_Pegar, "Pegar"},
        {Opcion::mn_especiales, "Especiales"},
        {Opcion::mn_copiar_todo_y_cabezera, "Copiar todo con cabezera"},
        {Opcion::mn_copiar_pXc, R"(Copiar y cambiar "." por ",")"},
        {Opcion::mn_pegar_cXp, R"(Pegar y cambiar "," por ".")"},
        {Opcion::mn_pegar_al_final, "Pegar al final"},
        {Opcion::mn_Filas, "Filas"},
        {Opcion::mn_insertar_filas, "Insertar Filas"},
        {Opcion::mn_eliminar_filas, "Eliminar Filas"},
        {Opcion::mn_añadir_filas, "Añadir Filas"},
        {Opcion::mn_eliminar_vacias, "Eliminar Filas vacias"},
        {Opcion::mn_borrar_seleccion, "Borrar seleccion"},
        {Opcion::mn_dd, "-"},
        {Opcion::Mnu_Tabla_Leer, "Abrir ..."},
        {Opcion::Mnu_Tabla_Guardar_como, "Guardar como..."},
        {Opcion::MN_avance_horizontal, "Avance Horizontal"},
        {Opcion::MN_editor_de_columnas, "Configuración..."},
        {Opcion::mn_salir, "Salir"},
        {Opcion::mn_Especial_puntos_Añadir, "Añadir punto"},
        {Opcion::mn_Especial_puntos_Copia, "Copia selección"},
        {Opcion::mn_Especial_puntos_Avance, "Avance horizontal"},
        {Opcion::mn_Especial_puntos_columnas, "Configuración..."},
        {Opcion::mn_cancelar1, "Cancelar"},
        {Opcion::mn_copiar1, "Copiar"},
        {Opcion::mn_Pegar2, "Pegar"},
    };
    const EstadoMenus menus;
    std::set<Opcion> vistas;
    for (const auto& caso : casos) {
        EXPECT_EQ(menus[caso.opcion].titulo, caso.titulo);
        vistas.insert(caso.opcion);
    }
    EXPECT_EQ(vistas.size(), NUM_OPCIONES);
}

TEST(EstadoMenus, todas_empiezan_visibles_activas_y_sin_marca) {
    const EstadoMenus menus;
    for (std::size_t i = 0; i < NUM_OPCIONES; ++i) {
        const EstadoOpcion& opcion = menus[static_cast<Opcion>(i)];
        EXPECT_TRUE(opcion.visible) << opcion.titulo;
        EXPECT_TRUE(opcion.activa) << opcion.titulo;
        EXPECT_FALSE(opcion.marcada) << opcion.titulo;
    }
}

TEST(EstadoMenus, dos_menus_no_comparten_nada) {
    EstadoMenus uno;
    const EstadoMenus otro;
    uno[Opcion::mn_salir].visible = false;
    uno[Opcion::mn_salir].titulo = "Fuera";
    EXPECT_TRUE(otro[Opcion::mn_salir].visible);
    EXPECT_EQ(otro[Opcion::mn_salir].titulo, "Salir");
}
