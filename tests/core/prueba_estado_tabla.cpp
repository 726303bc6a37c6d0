// SPDX-License-Identifier: MIT
// Formats by column number, the labels and the selection-change handling.
#include "core/estado_tabla.h"
#include "tests/base/error_de.h"
#include "tests/core/mesa.h"

#include <gtest/gtest.h>

using namespace Qlt4_Tabla;

namespace {

struct Estado : testing::Test, Mesa {
    Etiqueta& mensaje() { return e.etiquetas.labMensaje; }

    Etiqueta& cuenta() { return e.etiquetas.labNumeroFilas; }
};

} // namespace

TEST_F(Estado, empieza_con_los_formatos_a_cero) {
    const T_FormatoColumna cero;
    EXPECT_EQ(cero.Nombre, "");
    EXPECT_FALSE(cero.Invisible);
    EXPECT_FALSE(cero.Bloqueada);
    EXPECT_EQ(cero.Longitud, 0);
    EXPECT_EQ(cero.Formato, 0);
    EXPECT_EQ(cero.Decimales, 0);
    EXPECT_EQ(cero.Alineacion, 0);
    EXPECT_EQ(cero.Accion, 0);
    EXPECT_EQ(e.Formatos.size(), 26U);
    for (const T_FormatoColumna& f : e.Formatos) EXPECT_EQ(f, cero);
    for (const T_FormatoColumna& f : e.Formatos_por_defecto) EXPECT_EQ(f, cero);
    for (const T_Col& lista : e.listas) EXPECT_FALSE(lista.Col.dimensionada());
}

TEST_F(Estado, el_formato_de_una_columna_de_0_a_25) {
    formato(e, 0).Nombre = "primera";
    formato(e, 25).Nombre = "última";
    const EstadoTabla& leido = e;
    EXPECT_EQ(formato(leido, 0).Nombre, "primera");
    EXPECT_EQ(formato(leido, 25).Nombre, "última");
}

TEST_F(Estado, el_formato_de_otra_columna_es_el_error_9) {
    const EstadoTabla& leido = e;
    for (const int col : {-1, 26, 1000, -32768}) {
        EXPECT_EQ(error_de([&] { (void)formato(e, col); }), 9) << col;
        EXPECT_EQ(error_de([&] { (void)formato(leido, col); }), 9) << col;
    }
}

TEST_F(Estado, ComaDecimal_sigue_a_la_plataforma) {
    EXPECT_FALSE(e.ComaDecimal);
    p.separador.coma = true;
    refresca_ComaDecimal(e);
    EXPECT_TRUE(e.ComaDecimal);
    p.separador.coma = false;
    refresca_ComaDecimal(e);
    EXPECT_FALSE(e.ComaDecimal);
}

TEST_F(Estado, labNumeroFilas_dice_la_cuenta_sin_la_cabecera) {
    pon_tamano(3, 13);
    e.nombres.Tablero_Pon_Nombre(2, true, "Puntos");
    escribe_labNumeroFilas(e);
    EXPECT_EQ(cuenta().texto, "Nº de Puntos = 12");
    EXPECT_FALSE(cuenta().visible);
    EXPECT_EQ(p.marco.veces_etiquetas, 1);
}

TEST_F(Estado, labNumeroFilas_sin_subtitulo_y_sin_filas) {
    pon_tamano(3, 1);
    escribe_labNumeroFilas(e);
    EXPECT_EQ(cuenta().texto, "Nº de  = 0");
}

TEST_F(Estado, la_misma_etiqueta_no_avisa_otra_vez) {
    pon_tamano(3, 4);
    escribe_labNumeroFilas(e);
    escribe_labNumeroFilas(e);
    EXPECT_EQ(p.marco.veces_etiquetas, 1);
    cuenta().visible = true;
    escribe_labNumeroFilas(e);
    EXPECT_TRUE(cuenta().visible);
    EXPECT_EQ(p.marco.veces_etiquetas, 1);
}

TEST_F(Estado, labMensaje_empieza_oculta) { EXPECT_FALSE(mensaje().visible); }

TEST_F(Estado, un_mensaje_se_ve_hasta_que_termina) {
    pon_tamano(3, 4);
    e.nombres.Tablero_Pon_Nombre(2, true, "Ejes");
    muestra_mensaje(e, "La columna < Cota > no se puede editar");
    EXPECT_TRUE(mensaje().visible);
    EXPECT_EQ(mensaje().texto, "La columna < Cota > no se puede editar");
    EXPECT_EQ(p.marco.veces_etiquetas, 1);
    termina_mensaje(e);
    EXPECT_FALSE(mensaje().visible);
    EXPECT_EQ(mensaje().texto, "Nº de Ejes = 3");
    EXPECT_EQ(p.marco.veces_etiquetas, 2);
    termina_mensaje(e);
    EXPECT_EQ(p.marco.veces_etiquetas, 2);
}

TEST_F(Estado, un_mensaje_sigue_a_otro) {
    muestra_mensaje(e, "uno");
    muestra_mensaje(e, "dos");
    EXPECT_EQ(mensaje().texto, "dos");
    EXPECT_TRUE(mensaje().visible);
}

TEST_F(Estado, el_cambio_de_seleccion_refresca_el_estado_y_despues_avisa) {
    pon_tamano(3, 6);
    e.nombres.Tablero_Pon_Nombre(2, true, "Puntos");
    muestra_mensaje(e, "algo");
    std::string visto;
    p.eventos.al_suceder = [&](std::string_view) { visto = mensaje().texto; };
    trata_cambio_seleccion(e);
    EXPECT_EQ(visto, "Nº de Puntos = 5");
    EXPECT_FALSE(mensaje().visible);
    EXPECT_EQ(p.registro, (Registro{"SelChange"}));
}

TEST_F(Estado, mover_la_celda_por_codigo_no_es_un_cambio_de_seleccion) {
    pon_tamano(3, 6);
    t().selecciona(2, 1, 3, 2);
    t().Row(1);
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Estado, dos_tablas_no_comparten_nada) {
    Mesa otra;
    otra.pon_tamano(3, 4);
    const std::string antes = otra.foto();
    pon_tamano(5, 9);
    formato(e, 1).Nombre = "mía";
    e.nombres.Tablero_Pon_Nombre(1, true, "mía");
    muestra_mensaje(e, "mío");
    e.menus[Opcion::mn_salir].visible = false;
    trata_cambio_seleccion(e);
    EXPECT_EQ(otra.foto(), antes);
}
