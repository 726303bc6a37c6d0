// SPDX-License-Identifier: MIT
// The tables of menus and toolbar: every line in its place with its caption, and the buttons that hide.
#include "editing/arbol_menus.h"
#include "tests/editing/mesa_edicion.h"

#include <set>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;

class PruebaArbolMenus : public MesaEdicion {
protected:
    // One text a line: "name|caption", with "*" before a mark, "#" before a heading, ">" before a submenu; "-".
    std::vector<std::string> lineas(std::span<const ElementoMenu> elementos) const {
        std::vector<std::string> r;
        for (const ElementoMenu& uno : elementos) {
            if (!uno.opcion) {
                r.emplace_back("-");
                continue;
            }
            const std::string titulo = e.menus[*uno.opcion].titulo;
            const char* const clase = uno.clase == ClaseElemento::Marca ? "*"
                : uno.clase == ClaseElemento::Encabezado                ? "#"
                : uno.clase == ClaseElemento::Submenu                   ? ">"
                                                                        : "";
            r.push_back(clase + std::string(uno.nombre) + "|" + titulo);
        }
        return r;
    }

    std::vector<std::string> botones() const {
        std::vector<std::string> r;
        for (const BotonBarra& b : barra())
            if (boton_visible(e, b)) r.emplace_back(b.clave);
        return r;
    }
};

TEST_F(PruebaArbolMenus, el_menu_del_raton) {
    EXPECT_THAT(lineas(arbol(Menu::mn_raton)),
        ElementsAre("mn_Deshacer|&Deshacer", "mn_Rehacer|Reh&acer", "-", "mn_cortar|Cortar",
            "mn_copiar|Copiar", "mn_Pegar|Pegar", ">mn_especiales|Especiales", "-", "#mn_Filas|Filas",
            "mn_insertar_filas|Insertar Filas", "mn_eliminar_filas|Eliminar Filas",
            "mn_añadir_filas|Añadir Filas", "mn_eliminar_vacias|Eliminar Filas vacias",
            "mn_borrar_seleccion|Borrar seleccion", "mn_dd|-", "Mnu_Tabla_Leer|Abrir ...",
            "Mnu_Tabla_Guardar_como|Guardar como...", "-", "*MN_avance_horizontal|Avance Horizontal",
            "MN_editor_de_columnas|Configuración...", "-", "mn_salir|Salir"));
}

TEST_F(PruebaArbolMenus, el_submenu_de_especiales) {
    EXPECT_THAT(lineas(arbol(Menu::mn_raton)[6].hijos),
        ElementsAre("mn_copiar_todo_y_cabezera|Copiar todo con cabezera",
            "mn_copiar_pXc|Copiar y cambiar \".\" por \",\"", "mn_pegar_cXp|Pegar y cambiar \",\" por \".\"",
            "mn_pegar_al_final|Pegar al final"));
}

TEST_F(PruebaArbolMenus, los_menus_de_puntos_y_de_copia) {
    EXPECT_THAT(lineas(arbol(Menu::Mn_Especial_puntos)),
        ElementsAre("mn_Especial_puntos_Añadir|Añadir punto", "mn_Especial_puntos_Copia|Copia selección",
            "*mn_Especial_puntos_Avance|Avance horizontal", "-",
            "mn_Especial_puntos_columnas|Configuración..."));
    EXPECT_THAT(lineas(arbol(Menu::mn_raton3)),
        ElementsAre("mn_cancelar1|Cancelar", "mn_copiar1|Copiar", "mn_Pegar2|Pegar"));
    EXPECT_TRUE(arbol(Menu::mn_cambio).empty());
}

TEST_F(PruebaArbolMenus, cada_opcion_esta_una_vez_visible_activa_y_sin_marca) {
    std::multiset<Opcion> vistas;
    const auto mira = [&](const auto& yo, std::span<const ElementoMenu> elementos) -> void {
        for (const ElementoMenu& uno : elementos) {
            if (uno.opcion) vistas.insert(*uno.opcion);
            yo(yo, uno.hijos);
        }
    };
    for (const Menu menu : {Menu::mn_raton, Menu::Mn_Especial_puntos, Menu::mn_raton3})
        mira(mira, arbol(menu));
    EXPECT_EQ(vistas.size(), NUM_OPCIONES);
    for (const Opcion o : vistas) {
        EXPECT_EQ(vistas.count(o), 1U);
        EXPECT_TRUE(e.menus[o].visible && e.menus[o].activa && !e.menus[o].marcada);
    }
}

TEST_F(PruebaArbolMenus, los_atajos) {
    EXPECT_EQ(opcion_de_atajo(teclas::Z), Opcion::mn_Deshacer);
    EXPECT_EQ(opcion_de_atajo(teclas::X), Opcion::mn_cortar);
    EXPECT_EQ(opcion_de_atajo(teclas::C), Opcion::mn_copiar);
    EXPECT_EQ(opcion_de_atajo(teclas::V), Opcion::mn_Pegar);
    EXPECT_EQ(opcion_de_atajo(teclas::Y), std::nullopt);
    EXPECT_EQ(opcion_de_atajo(teclas::NINGUNA), std::nullopt);
}

TEST_F(PruebaArbolMenus, la_barra_y_sus_ayudas) {
    std::vector<std::string> r;
    for (const BotonBarra& b : barra()) r.push_back(std::string(b.clave) + "|" + std::string(b.ayuda));
    EXPECT_THAT(r,
        ElementsAre("Copiar|Copiar todo", "c1|", "Pegar|Pegar", "p1|", "Excel|Copiar en Excel", "e1|",
            "Propiedades|Opciones", "pr1|", "Avance|Tipo de avance al introducir datos"));
}

TEST_F(PruebaArbolMenus, los_botones_que_se_esconden) {
    e.especialPuntos = true;
    EXPECT_THAT(botones(), ElementsAre("Copiar", "c1", "Excel", "e1", "Propiedades", "pr1", "Avance"));
    e.especialPuntos = false;
    e.edicionColumnasOff = true;
    EXPECT_THAT(botones(), ElementsAre("Copiar", "Excel", "Propiedades", "pr1", "Avance"));
}

} // namespace

} // namespace Qlt4_Tabla
