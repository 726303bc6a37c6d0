// SPDX-License-Identifier: MIT
// When the menus open, what is prepared first, what a chosen entry does: through the front end's way in.
#include "control/tabla0.h"
#include "headless/plataforma_memoria.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

enum Columna : std::int16_t { TEXTO = 1, REAL, LISTA, COLOR };

class PruebaMenus : public testing::Test {
protected:
    PruebaMenus() {
        tabla.Tablero_Nombres("Obra", "Puntos", "*.tb0");
        pon(0, T_formato::Alfanm);
        pon(TEXTO, T_formato::Alfanm);
        pon(REAL, T_formato::Real__);
        pon(LISTA, T_formato::ListaU);
        pon(COLOR, T_formato::Color_);
        tabla.Lista(LISTA, Matriz<std::string>(0, {"A", "B"}));
        tabla.Rows(8);
        tabla.Tablero_establece_Formato();
        m().vista_redimensionada(12000, 6000);
        m().elige_celda(1, 1);
        p.registro.clear();
    }

    void pon(std::int16_t col, T_formato f) {
        tabla.FormatoColumnas(col, false, false, f, 2, T_Alineacion::Izqda, T_Accion::Nada__, 10, "C");
    }

    Mandos& m() { return tabla.mandos(); }

    const Tablero& t() { return tabla.tablero(); }

    const EstadoMenus& menus() { return tabla.estado().menus; }

    std::string celda(int fila, int col) { return std::string(t().TextMatrix(fila, col)); }

    int x(int col) { return x_columna(t(), col) + 50; }

    int y(int fila) { return y_fila(t(), fila) + 50; }

    void arrastra(int fila1, int col1, int fila2, int col2) {
        m().raton_abajo(x(col1), y(fila1), Boton::Izquierdo, {});
        m().raton_mueve(x(col2), y(fila2));
        m().raton_arriba(x(col2), y(fila2), Boton::Izquierdo);
    }

    // What the selection opened: only the lines of menus.
    std::vector<std::string> abiertos() {
        std::vector<std::string> r;
        for (const std::string& linea : p.recoge())
            if (linea.starts_with("menu ")) r.push_back(linea);
        return r;
    }

    void clic_derecho(int fila, int col) {
        m().raton_abajo(x(col), y(fila), Boton::Derecho, {});
        m().raton_arriba(x(col), y(fila), Boton::Derecho);
    }

    std::vector<bool> pegar_activos() {
        std::vector<bool> r;
        for (const Opcion o : {Opcion::mn_Pegar, Opcion::mn_pegar_cXp, Opcion::mn_pegar_al_final})
            r.push_back(menus()[o].activa);
        return r;
    }

    PlataformaMemoria p;
    Tabla0 tabla{p.plataforma(), p.eventos};
};

// --- The menu of the mouse ---

TEST_F(PruebaMenus, el_boton_derecho_abre_el_menu_sin_mover_la_celda) {
    clic_derecho(3, 2);
    EXPECT_THAT(p.registro, ElementsAre("menu mn_raton raton"));
    EXPECT_EQ(t().Row(), 1);
    EXPECT_EQ(t().Col(), 1);
}

TEST_F(PruebaMenus, pegar_se_activa_segun_el_portapapeles) {
    clic_derecho(1, 1);
    EXPECT_THAT(pegar_activos(), ElementsAre(false, false, false));
    p.portapapeles.texto = "1\r\n";
    clic_derecho(1, 1);
    EXPECT_THAT(pegar_activos(), ElementsAre(true, true, true));
    EXPECT_TRUE(menus()[Opcion::mn_copiar].activa);
}

TEST_F(PruebaMenus, un_portapapeles_que_no_se_deja_leer_cuenta_como_vacio) {
    p.portapapeles.texto = "1\r\n";
    p.portapapeles.error_al_leer = 521;
    clic_derecho(1, 1);
    EXPECT_THAT(pegar_activos(), ElementsAre(false, false, false));
    EXPECT_THAT(p.registro, ElementsAre("menu mn_raton raton"));
}

TEST_F(PruebaMenus, las_opciones_de_fichero_nombran_la_tabla) {
    clic_derecho(1, 1);
    EXPECT_EQ(menus()[Opcion::Mnu_Tabla_Leer].titulo, "Abrir Tabla de Obra...");
    EXPECT_EQ(menus()[Opcion::Mnu_Tabla_Guardar_como].titulo, "Guardar Tabla de Obra como...");
}

TEST_F(PruebaMenus, con_ratonOff_el_boton_derecho_no_abre_nada_y_las_teclas_si) {
    tabla.A_Edicion_mn_Ratón_Off();
    clic_derecho(1, 1);
    EXPECT_THAT(p.registro, IsEmpty());
    EXPECT_TRUE(m().tecla_abajo(teclas::MENU, {}));
    EXPECT_THAT(p.recoge(), ElementsAre("menu mn_raton celda"));
    EXPECT_TRUE(m().boton("Propiedades"));
    EXPECT_THAT(p.recoge(), ElementsAre("menu mn_raton boton"));
}

TEST_F(PruebaMenus, la_tecla_de_menu_y_Mayus_F10_abren_en_la_celda) {
    EXPECT_TRUE(m().tecla_abajo(teclas::MENU, {}));
    EXPECT_TRUE(m().tecla_abajo(teclas::F10, teclas::MAYUSCULAS));
    EXPECT_THAT(p.registro, ElementsAre("menu mn_raton celda", "menu mn_raton celda"));
    EXPECT_FALSE(m().tecla_abajo(teclas::F10, {}));
    EXPECT_FALSE(m().tecla_abajo(teclas::F10, teclas::CONTROL));
}

TEST_F(PruebaMenus, Alt_F10_pasa_a_la_barra) {
    EXPECT_TRUE(m().tecla_abajo(teclas::F10, teclas::ALT));
    EXPECT_EQ(p.marco.veces_barra, 1);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaMenus, en_el_modo_de_puntos_el_boton_de_opciones_abre_su_menu) {
    tabla.A_Especial_puntos_ON();
    m().boton("Propiedades");
    clic_derecho(2, 2);
    EXPECT_THAT(p.registro, ElementsAre("menu Mn_Especial_puntos boton", "menu mn_raton raton"));
}

TEST_F(PruebaMenus, el_boton_de_opciones_prepara_el_menu_y_devuelve_el_foco) {
    const int antes = p.marco.veces_enfoca;
    m().boton("Propiedades");
    EXPECT_THAT(pegar_activos(), ElementsAre(false, false, false));
    EXPECT_EQ(menus()[Opcion::Mnu_Tabla_Leer].titulo, "Abrir Tabla de Obra...");
    EXPECT_EQ(p.marco.veces_enfoca, antes + 1);
}

TEST_F(PruebaMenus, tras_un_boton_que_falla_el_foco_vuelve_igual) {
    p.portapapeles.texto = "1\r\n";
    p.pasos.al_capturar = [] { lanza(NumError::SinMemoria); };
    const int antes = p.marco.veces_enfoca;
    m().boton("Pegar");
    EXPECT_EQ(p.marco.veces_enfoca, antes + 1);
    EXPECT_THAT(p.registro, Contains(StartsWith("mensaje|16|")));
}

// --- The advance ---

TEST_F(PruebaMenus, el_avance_marca_sus_dos_opciones_por_los_tres_caminos) {
    const auto marcas = [&] {
        return std::pair(menus()[Opcion::MN_avance_horizontal].marcada,
            menus()[Opcion::mn_Especial_puntos_Avance].marcada);
    };
    m().boton("Avance");
    EXPECT_EQ(marcas(), std::pair(true, true));
    m().orden(Opcion::mn_Especial_puntos_Avance);
    EXPECT_EQ(marcas(), std::pair(false, false));
    m().orden(Opcion::MN_avance_horizontal);
    EXPECT_EQ(marcas(), std::pair(true, true));
    m().boton("Avance");
    EXPECT_EQ(marcas(), std::pair(false, false));
}

TEST_F(PruebaMenus, los_huecos_no_son_botones) {
    for (const char* clave : {"c1", "p1", "e1", "pr1", ""}) EXPECT_FALSE(m().boton(clave)) << clave;
}

TEST_F(PruebaMenus, los_modos_esconden_botones_y_lo_dicen) {
    const int antes = p.marco.veces_menus;
    tabla.A_Edicion_Columnas_Off();
    EXPECT_EQ(p.marco.veces_menus, antes + 1);
    std::vector<std::string> visibles;
    for (const BotonBarra& b : Mandos::barra())
        if (m().visible(b)) visibles.emplace_back(b.clave);
    EXPECT_THAT(visibles, ElementsAre("Copiar", "Excel", "Propiedades", "pr1", "Avance"));
}

// --- The menus of a selection ---

TEST_F(PruebaMenus, cada_clase_de_columna_tiene_su_menu) {
    arrastra(1, TEXTO, 3, TEXTO);
    EXPECT_THAT(abiertos(), ElementsAre("menu mn_cambio raton"));
    arrastra(1, LISTA, 3, LISTA);
    EXPECT_THAT(abiertos(), ElementsAre("menu mn_cambio raton"));
    arrastra(1, COLOR, 3, COLOR);
    EXPECT_THAT(abiertos(), ElementsAre("menu mn_cambio raton"));
    arrastra(1, REAL, 3, REAL);
    EXPECT_THAT(abiertos(), ElementsAre("menu mn_raton3 raton"));
}

TEST_F(PruebaMenus, otras_selecciones_no_abren_nada) {
    arrastra(1, TEXTO, 1, LISTA); // one row
    arrastra(1, TEXTO, 3, LISTA); // several columns
    arrastra(2, TEXTO, 2, TEXTO); // one cell
    arrastra(2, 0, 4, 0); // whole rows
    EXPECT_THAT(abiertos(), IsEmpty());
}

TEST_F(PruebaMenus, la_seleccion_con_el_teclado_no_abre_nada) {
    m().tecla_abajo(teclas::ABAJO, teclas::MAYUSCULAS);
    m().tecla_abajo(teclas::ABAJO, teclas::MAYUSCULAS);
    EXPECT_EQ(t().RowSel(), 3);
    EXPECT_THAT(abiertos(), IsEmpty());
}

TEST_F(PruebaMenus, un_clic_al_lado_de_las_celdas_no_abre_el_de_lo_elegido_con_el_teclado) {
    m().tecla_abajo(teclas::ABAJO, teclas::MAYUSCULAS);
    const int abajo = y(7) + 300; // below the last row
    const int derecha = x(COLOR) + 1200; // right of the last column
    for (const auto& [px, py] : {std::pair(x(TEXTO), abajo), std::pair(derecha, y(2))}) {
        m().raton_abajo(px, py, Boton::Izquierdo, {});
        m().raton_arriba(px, py, Boton::Izquierdo);
    }
    EXPECT_EQ(t().RowSel(), 2);
    EXPECT_THAT(abiertos(), IsEmpty());
}

TEST_F(PruebaMenus, ratonOff_cierra_el_menu_de_copia_y_no_los_otros) {
    tabla.A_Edicion_mn_Ratón_Off();
    arrastra(1, REAL, 3, REAL);
    EXPECT_THAT(abiertos(), IsEmpty());
    arrastra(1, TEXTO, 3, TEXTO);
    EXPECT_THAT(abiertos(), ElementsAre("menu mn_cambio raton"));
}

TEST_F(PruebaMenus, una_lista_sin_valores_no_abre_nada) {
    tabla.Lista(LISTA, Matriz<std::string>(0, -1));
    arrastra(1, LISTA, 3, LISTA);
    EXPECT_THAT(abiertos(), IsEmpty());
}

TEST_F(PruebaMenus, elegir_rellena_y_acaba_el_mensaje) {
    tabla.TextMatrix(1, TEXTO, "P1");
    arrastra(1, TEXTO, 3, TEXTO);
    p.registro.clear();
    m().elige_cambio(3);
    EXPECT_EQ(celda(3, TEXTO), "P3");
    EXPECT_THAT(p.registro, ElementsAre("captura"));
    m().elige_cambio(2); // the menu has closed
    EXPECT_EQ(celda(3, TEXTO), "P3");
}

TEST_F(PruebaMenus, elegir_un_color_lo_escribe) {
    arrastra(1, COLOR, 2, COLOR);
    m().elige_cambio(4); // "verde"
    EXPECT_EQ(celda(1, COLOR), "verde");
    EXPECT_EQ(celda(2, COLOR), "verde");
    EXPECT_EQ(tabla.estado().menu_cambio.elementos()[4].color, 0x00FF00);
    EXPECT_EQ(tabla.estado().menu_cambio.elementos().back().color, std::nullopt); // "Otro...."
}

TEST_F(PruebaMenus, cancelar_o_un_numero_de_mas_no_hacen_nada) {
    tabla.TextMatrix(1, TEXTO, "P1");
    for (const std::size_t elemento : {std::size_t{0}, std::size_t{1}, std::size_t{99}}) {
        arrastra(1, TEXTO, 3, TEXTO);
        p.registro.clear();
        m().elige_cambio(elemento);
        EXPECT_EQ(celda(2, TEXTO), "");
        EXPECT_THAT(p.registro, IsEmpty());
    }
}

TEST_F(PruebaMenus, las_celdas_que_ya_no_estan_no_se_escriben) {
    tabla.TextMatrix(1, TEXTO, "P1");
    arrastra(1, TEXTO, 5, TEXTO);
    tabla.Rows(3);
    p.registro.clear();
    m().elige_cambio(2);
    EXPECT_EQ(celda(2, TEXTO), "");
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaMenus, los_errores_nombran_su_menu) {
    p.pasos.al_capturar = [] { lanza(NumError::SinMemoria); };
    const auto error_de = [&](int col) {
        arrastra(1, col, 3, col);
        static_cast<void>(p.recoge());
        m().elige_cambio(2);
        return p.recoge().back();
    };
    EXPECT_EQ(error_de(TEXTO), "mensaje|16||Tabla Menú Alfanumérico - Error nº 7: Memoria insuficiente");
    EXPECT_EQ(error_de(LISTA), "mensaje|16||Tabla Menú Lista - Error nº 7: Memoria insuficiente");
    EXPECT_EQ(error_de(COLOR), "mensaje|16||Tabla Menú Colores - Error nº 7: Memoria insuficiente");
    p.portapapeles.texto = "1\r\n";
    m().orden(Opcion::mn_Pegar2);
    EXPECT_THAT(p.registro, Contains("mensaje|16||Tabla Menú Copia - Error nº 7: Memoria insuficiente"));
}

// --- Commands ---

TEST_F(PruebaMenus, lo_que_no_tiene_orden_no_hace_nada) {
    for (const Opcion o : {Opcion::mn_Filas, Opcion::mn_especiales, Opcion::mn_dd,
             Opcion::mn_Especial_puntos_Añadir, Opcion::mn_cancelar1})
        EXPECT_FALSE(m().orden(o));
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaMenus, salir_solo_avisa) {
    m().orden(Opcion::mn_salir);
    EXPECT_THAT(p.registro, ElementsAre("Salir"));
}

TEST_F(PruebaMenus, toda_orden_del_arbol_se_puede_elegir) {
    const auto sin_orden = [](const ElementoMenu& uno) {
        return !uno.opcion || uno.clase == ClaseElemento::Separador ||
            uno.clase == ClaseElemento::Encabezado || uno.clase == ClaseElemento::Submenu ||
            uno.opcion == Opcion::mn_Especial_puntos_Añadir || uno.opcion == Opcion::mn_cancelar1;
    };
    const auto elige = [&](const auto& yo, std::span<const ElementoMenu> elementos) -> void {
        for (const ElementoMenu& uno : elementos) {
            yo(yo, uno.hijos);
            EXPECT_TRUE(sin_orden(uno) || m().orden(*uno.opcion)) << uno.nombre;
        }
    };
    for (const Menu menu : {Menu::mn_raton, Menu::Mn_Especial_puntos, Menu::mn_raton3})
        elige(elige, Mandos::menu(menu));
}

} // namespace

} // namespace Qlt4_Tabla
