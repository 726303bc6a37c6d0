// SPDX-License-Identifier: MIT
// The form of the column editor: its properties, loading, check boxes, commands, layout and remembered place.
#include "tests/base/error_de.h"
#include "tests/column_editor/mesa_editor.h"

#include <optional>
#include <utility>

using namespace Qlt4_Tabla;

namespace {

struct F_editor : testing::Test, MesaEditor {
    std::string guardado(const char* clave) { return p.ajustes.valores.at({"Plano", "PosPuntos", clave}); }

    void guarda(const char* clave, const std::string& valor) {
        p.ajustes.valores[{"Plano", "PosPuntos", clave}] = valor;
    }
};

} // namespace

// --- Properties ---

TEST_F(F_editor, sin_aplicacion_es_Tabla) {
    EXPECT_EQ(editor.A_Aplicacion(), "Plano");
    editor.A_Aplicacion("");
    EXPECT_EQ(editor.A_Aplicacion(), "Tabla");
    EXPECT_EQ(f_Editor(r, p.plataforma()).A_Aplicacion(), "Tabla");
}

TEST_F(F_editor, un_titulo_vacio_no_cambia_el_que_hay) {
    editor.A_Caption("");
    EXPECT_EQ(editor.A_Caption(), "Puntos");
    editor.A_Caption("Ejes");
    EXPECT_EQ(editor.A_Caption(), "Ejes");
}

// --- Loading ---

TEST_F(F_editor, al_cargar_pone_titulos_y_marcas) {
    r.formatos[0].Bloqueada = true;
    r.aceptado = true;
    muestra([&] {
        EXPECT_EQ(visto().titulo, "Configuración de columnas:Puntos");
        EXPECT_EQ(visto().texto_etiqueta, "Nº de filas Puntos");
        EXPECT_TRUE(visto().columna0);
        EXPECT_TRUE(visto().etiqueta);
        EXPECT_FALSE(cambiado());
        EXPECT_TRUE(visto().abierto);
        EXPECT_FALSE(r.aceptado);
        EXPECT_EQ(t().color_fondo(0, ED_VACIA), 0xE0E0E0);
        EXPECT_EQ(t().Row(), 1);
        EXPECT_EQ(t().Col(), 1);
    });
    EXPECT_EQ(p.registro.front(), "dialogo_columnas Configuración de columnas:Puntos");
}

TEST_F(F_editor, sin_titulo_de_tabla) {
    f_Editor otro(r, p.plataforma());
    otro.Iniciar("", "", 0);
    otro.muestra();
    EXPECT_EQ(otro.visto().titulo, "Configuración de columnas:");
    EXPECT_EQ(otro.visto().texto_etiqueta, "Nº de filas ");
    EXPECT_TRUE(p.ajustes.valores.contains({"Tabla", "Pos", "MainLeft"}));
}

TEST_F(F_editor, cargar_con_la_columna_0_a_la_vista_la_ensancha_a_5) {
    r.formatos[0].Longitud = 3;
    muestra([] {});
    EXPECT_EQ(f(0).Longitud, 5);
    EXPECT_FALSE(f(0).Invisible);
}

TEST_F(F_editor, cargar_con_la_columna_0_oculta_no_cambia_nada) {
    r.formatos[0].Longitud = 3;
    r.formatos[0].Invisible = true;
    muestra([&] { EXPECT_FALSE(visto().columna0); });
    EXPECT_EQ(f(0).Longitud, 3);
    EXPECT_TRUE(f(0).Invisible);
}

// --- Check boxes ---

TEST_F(F_editor, la_marca_de_la_columna_0_la_muestra_y_la_oculta) {
    muestra([&] {
        editor.marca(MarcaColumnas::Columna0, false);
        EXPECT_TRUE(f(0).Invisible);
        EXPECT_TRUE(cambiado());
        EXPECT_FALSE(visto().columna0);
        editor.marca(MarcaColumnas::Columna0, true);
        EXPECT_FALSE(f(0).Invisible);
    });
    EXPECT_EQ(f(0).Longitud, 6);
}

TEST_F(F_editor, quitar_la_marca_tambien_ensancha_a_5) {
    muestra([&] {
        r.formatos[0].Longitud = 3;
        editor.marca(MarcaColumnas::Columna0, false);
    });
    EXPECT_EQ(f(0).Longitud, 5);
}

TEST_F(F_editor, la_marca_de_la_etiqueta_bloquea_la_columna_0) {
    muestra([&] {
        editor.marca(MarcaColumnas::Etiqueta, true);
        EXPECT_TRUE(f(0).Bloqueada);
        EXPECT_TRUE(cambiado());
        editor.marca(MarcaColumnas::Etiqueta, false);
        EXPECT_FALSE(f(0).Bloqueada);
    });
}

// --- Commands ---

TEST_F(F_editor, aplicar_antes_de_cambiar_nada_no_hace_nada) {
    muestra([&] {
        editor.orden(OrdenColumnas::Aplicar);
        EXPECT_TRUE(visto().abierto);
    });
    EXPECT_FALSE(r.aceptado);
}

TEST_F(F_editor, aplicar_acepta_y_cierra) {
    muestra([&] {
        clic(1, ED_VISIBLE);
        editor.orden(OrdenColumnas::Aplicar);
        EXPECT_FALSE(visto().abierto);
    });
    EXPECT_TRUE(r.aceptado);
    EXPECT_FALSE(r.por_defecto);
}

TEST_F(F_editor, aplicar_toma_lo_que_se_esta_escribiendo) {
    muestra([&] {
        clic(1, ED_NOMBRE);
        rejilla().escribe_casilla("Punto");
        editor.orden(OrdenColumnas::Aplicar);
    });
    EXPECT_EQ(f(1).Nombre, "Punto");
}

TEST_F(F_editor, salir_cancela) {
    muestra([&] {
        clic(1, ED_VISIBLE);
        editor.orden(OrdenColumnas::Salir);
        EXPECT_FALSE(visto().abierto);
    });
    EXPECT_FALSE(r.aceptado);
}

TEST_F(F_editor, cerrar_la_ventana_cancela) {
    muestra([&] { escribe(1, ED_NOMBRE, "Punto"); });
    EXPECT_FALSE(r.aceptado);
    EXPECT_EQ(f(1).Nombre, "Nombre");
}

TEST_F(F_editor, reponer_acepta_sin_llevar_los_textos) {
    muestra([&] {
        escribe(1, ED_NOMBRE, "Punto");
        clic(2, ED_BLOQUEADA);
        editor.orden(OrdenColumnas::PorDefecto);
    });
    EXPECT_TRUE(r.aceptado);
    EXPECT_TRUE(r.por_defecto);
    EXPECT_EQ(f(1).Nombre, "Nombre");
    EXPECT_TRUE(f(2).Bloqueada);
}

// --- Layout ---

TEST_F(F_editor, la_franja_de_abajo_mide_1_2_botones_y_sus_controles_estan_a_1_1) {
    const DistribucionColumnas d = editor.distribuye({9900, 5400, 400, 1500, 900, 1800, 2000});
    EXPECT_EQ(d.rejilla, (Rectangulo{0, 0, 9900, 4920}));
    EXPECT_EQ(d.cancelar, (Rectangulo{8880, 4960, 900, 400}));
    EXPECT_EQ(d.aplicar, (Rectangulo{7260, 4960, 1500, 400}));
    EXPECT_EQ(d.columna0, (Rectangulo{120, 4960, 1800, 400}));
    EXPECT_EQ(d.etiqueta, (Rectangulo{2160, 4960, 2000, 400}));
    EXPECT_EQ(d.mensaje, (Rectangulo{4400, 4960, 2740, 400}));
}

TEST_F(F_editor, sin_sitio_ceden_el_mensaje_y_luego_la_etiqueta) {
    const DistribucionColumnas d = editor.distribuye({7500, 2500, 400, 1500, 900, 1800, 4000});
    EXPECT_EQ(d.aplicar.izquierda, 4860);
    EXPECT_EQ(d.columna0.ancho, 1800);
    EXPECT_EQ(d.etiqueta, (Rectangulo{2160, 2060, 2580, 400}));
    EXPECT_EQ(d.mensaje.ancho, 0);
    EXPECT_EQ(editor.distribuye({100, 100, 400, 1500, 900, 1800, 4000}).rejilla.alto, 0);
}

// --- Place ---

TEST_F(F_editor, la_primera_vez_se_abre_donde_esta_disenada) {
    muestra([&] {
        EXPECT_FALSE(visto().izquierda.has_value());
        EXPECT_FALSE(visto().arriba.has_value());
        EXPECT_EQ(visto().ancho, 9900.0F);
        EXPECT_EQ(visto().alto, 5400.0F);
        EXPECT_EQ(visto().ancho_minimo, 7500);
        EXPECT_EQ(visto().alto_minimo, 2500);
    });
}

TEST_F(F_editor, al_cerrarse_se_guarda_donde_estaba) {
    p.dialogo_columnas.movido_a = SitioColumnas{150, -30, 8000, 3000.5F};
    muestra([&] { p.registro.clear(); });
    EXPECT_EQ(p.registro,
        (std::vector<std::string>{"ajuste Plano|PosPuntos|MainLeft=150", "ajuste Plano|PosPuntos|MainTop=-30",
            "ajuste Plano|PosPuntos|MainWidth=8000", "ajuste Plano|PosPuntos|MainHeight=3000.5"}));
    muestra([&] {
        EXPECT_EQ(visto().izquierda, 150.0F);
        EXPECT_EQ(visto().arriba, -30.0F);
        EXPECT_EQ(visto().ancho, 8000.0F);
        EXPECT_EQ(visto().alto, 3000.5F);
    });
}

TEST_F(F_editor, se_guarda_como_quiera_que_se_deje) {
    for (const OrdenColumnas orden :
        {OrdenColumnas::Salir, OrdenColumnas::PorDefecto, OrdenColumnas::Aplicar}) {
        p.ajustes.valores.clear();
        muestra([&] {
            clic(1, ED_VISIBLE);
            editor.orden(orden);
        });
        EXPECT_EQ(guardado("MainWidth"), "9900");
    }
}

TEST_F(F_editor, lo_que_no_es_un_numero_cuenta_como_si_faltara) {
    for (const char* malo : {"izquierda", "", "1E999", "2E7", "12 m"}) {
        guarda("MainLeft", malo);
        guarda("MainTop", "700");
        guarda("MainWidth", malo);
        guarda("MainHeight", "4000");
        muestra([&] {
            EXPECT_FALSE(visto().izquierda.has_value()) << malo;
            EXPECT_EQ(visto().arriba, 700.0F);
            EXPECT_EQ(visto().ancho, 9900.0F);
            EXPECT_EQ(visto().alto, 4000.0F);
        });
    }
}

TEST_F(F_editor, un_tamano_menor_vuelve_al_minimo) {
    guarda("MainWidth", "100");
    guarda("MainHeight", "-5");
    muestra([&] {
        EXPECT_EQ(visto().ancho, 7500.0F);
        EXPECT_EQ(visto().alto, 2500.0F);
    });
}

TEST_F(F_editor, el_error_del_almacen_viene_cuando_ya_se_sabe_como_se_dejo) {
    p.ajustes.falla(75);
    EXPECT_EQ(error_de([&] {
        muestra([&] {
            clic(1, ED_VISIBLE);
            editor.orden(OrdenColumnas::Aplicar);
        });
    }),
        75);
    EXPECT_TRUE(r.aceptado);
}

TEST(DialogoColumnasNulo, se_deja_al_momento) {
    PlataformaMemoria p;
    DialogoColumnasNulo nulo;
    Plataforma plataforma = p.plataforma();
    Plataforma con_nulo{plataforma.vista, plataforma.marco, plataforma.casilla, plataforma.lista,
        plataforma.mensajes, plataforma.separador, plataforma.pasos, plataforma.ajustes, plataforma.ficheros,
        plataforma.dialogo_fichero, plataforma.portapapeles, plataforma.hoja_calculo,
        plataforma.dialogo_color, nulo};
    RegistrosEditor r;
    f_Editor editor(r, con_nulo);
    editor.Iniciar("", "", 1);
    editor.muestra();
    EXPECT_FALSE(r.aceptado);
    EXPECT_FALSE(editor.visto().abierto);
}
