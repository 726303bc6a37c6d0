// SPDX-License-Identifier: MIT
// Start-up and the properties that the host's form keeps.
#include "core/ciclo_vida.h"
#include "core/formatos.h"
#include "core/superficie.h"
#include "tests/base/error_de.h"
#include "tests/core/mesa.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using namespace Qlt4_Tabla;

namespace {

struct Ciclo_de_vida : testing::Test, Mesa {
    void bolsa_con(const std::string& clave, const Variante& valor) {
        p.bolsa.valores.insert_or_assign(clave, valor);
    }

    void lee() { lee_propiedades(e, p.bolsa); }

    void escribe_todo() { escribe_propiedades(e, p.bolsa); }

    const Variante& guardado(const std::string& clave) { return p.bolsa.valores.at(clave); }
};

const Textos CLAVES{"Cols", "Rows", "Widht", "Height", "A_FormatString", "A_ExtensionFche"};

} // namespace

TEST_F(Ciclo_de_vida, un_tamano_que_no_es_un_numero_no_cambia_nada) {
    arranca(e);
    for (const char* clave : {"Widht", "Height"}) {
        p.bolsa.valores.clear();
        bolsa_con("Rows", std::int32_t{9});
        bolsa_con(clave, std::numeric_limits<float>::quiet_NaN());
        EXPECT_EQ(error_de([&] { lee(); }), 6) << clave;
        EXPECT_EQ(t().Rows(), 4);
    }
}

// --- Start-up ---

TEST_F(Ciclo_de_vida, una_tabla_nueva_tiene_5_columnas_y_4_filas_numeradas) {
    arranca(e);
    EXPECT_EQ(t().Cols(), 5);
    EXPECT_EQ(t().Rows(), 4);
    EXPECT_EQ(columna(0), (Textos{"1", "2", "3"}));
    for (int col = 1; col < 5; ++col) EXPECT_EQ(columna(col), (Textos{"", "", ""})) << col;
}

TEST_F(Ciclo_de_vida, la_celda_actual_es_la_1_1) {
    arranca(e);
    EXPECT_EQ(t().Row(), 1);
    EXPECT_EQ(t().Col(), 1);
    EXPECT_EQ(t().RowSel(), 1);
    EXPECT_EQ(t().ColSel(), 1);
    EXPECT_EQ(t().TopRow(), 1);
}

TEST_F(Ciclo_de_vida, las_cuentas_que_hay_se_respetan) {
    pon_tamano(3, 0);
    arranca(e);
    EXPECT_EQ(t().Cols(), 3);
    EXPECT_EQ(t().Rows(), 4);
    Mesa otra;
    otra.pon_tamano(0, 9);
    arranca(otra.e);
    EXPECT_EQ(otra.t().Cols(), 5);
    EXPECT_EQ(otra.t().Rows(), 9);
}

TEST_F(Ciclo_de_vida, con_una_sola_celda_la_actual_es_la_0_0) {
    pon_tamano(1, 1);
    arranca(e);
    EXPECT_EQ(t().Row(), 0);
    EXPECT_EQ(t().Col(), 0);
}

TEST_F(Ciclo_de_vida, los_nombres_empiezan_vacios_y_la_extension_es_la_normal) {
    arranca(e);
    EXPECT_EQ(e.nombres.titulo(), "");
    EXPECT_EQ(e.nombres.subtitulo(), "");
    EXPECT_EQ(e.nombres.extension(), "*.tb0");
}

TEST_F(Ciclo_de_vida, los_formatos_a_cero_quedan_aplicados) {
    arranca(e);
    for (int col = 0; col < 5; ++col) {
        EXPECT_EQ(t().ColWidth(col), 0) << col;
        EXPECT_EQ(t().color_fondo(0, col), COLOR_CARA_BOTON) << col;
        EXPECT_EQ(t().ColAlignment(col), AlineacionCelda::Izquierda) << col;
    }
    EXPECT_EQ(e.Formatos[0].Formato, 4);
    EXPECT_EQ(e.Formatos[1], T_FormatoColumna{});
    EXPECT_EQ(e.Formatos_por_defecto[0], T_FormatoColumna{});
    EXPECT_TRUE(t().Redraw());
}

TEST_F(Ciclo_de_vida, el_ultimo_que_escribe_la_cuenta_es_el_formato) {
    arranca(e);
    EXPECT_EQ(e.etiquetas.labNumeroFilas.texto, ": Nº de filas = 3");
    EXPECT_FALSE(e.etiquetas.labNumeroFilas.visible);
    EXPECT_FALSE(e.etiquetas.labMensaje.visible);
}

TEST_F(Ciclo_de_vida, arrancar_mira_el_separador_y_el_servidor_no_oye_nada) {
    p.separador.coma = true;
    arranca(e);
    EXPECT_TRUE(e.ComaDecimal);
    EXPECT_EQ(p.registro, Registro{});
    EXPECT_EQ(e.Modificado, 0);
    EXPECT_EQ(e.revoca.A_GrabaRevoca(), "NO");
}

// --- Writing the properties ---

TEST_F(Ciclo_de_vida, se_escriben_seis_propiedades_en_su_orden) {
    arranca(e);
    Width(e, 5000);
    Height(e, 3000.5);
    escribe_todo();
    EXPECT_EQ(p.bolsa.claves, CLAVES);
    EXPECT_EQ(guardado("Cols"), Variante(std::int32_t{5}));
    EXPECT_EQ(guardado("Rows"), Variante(std::int32_t{4}));
    EXPECT_EQ(guardado("Widht"), Variante(5000.0F));
    EXPECT_EQ(guardado("Height"), Variante(3000.5F));
    EXPECT_EQ(guardado("A_FormatString"), Variante(""));
    EXPECT_EQ(guardado("A_ExtensionFche"), Variante("*.tb0"));
}

TEST_F(Ciclo_de_vida, la_cadena_de_formato_y_la_extension_se_escriben_como_estan) {
    arranca(e);
    t().FormatString("<Nombre|>X");
    A_ExtensionFche(e, "*.pun");
    escribe_todo();
    EXPECT_EQ(guardado("A_FormatString"), Variante("<Nombre|>X"));
    EXPECT_EQ(guardado("A_ExtensionFche"), Variante("*.pun"));
}

TEST_F(Ciclo_de_vida, una_extension_vacia_se_escribe_como_la_normal) {
    arranca(e);
    Tablero_Nombres(e, "", "", "");
    escribe_todo();
    EXPECT_EQ(guardado("A_ExtensionFche"), Variante("*.tb0"));
    EXPECT_EQ(e.nombres.extension(), "");
}

TEST_F(Ciclo_de_vida, las_claves_llevan_el_titulo_de_ese_momento) {
    arranca(e);
    Tablero_Nombres(e, "  Planta ", "", "*.tb0");
    escribe_todo();
    EXPECT_EQ(p.bolsa.claves,
        (Textos{"PlantaCols", "PlantaRows", "PlantaWidht", "PlantaHeight", "PlantaA_FormatString",
            "PlantaA_ExtensionFche"}));
    p.bolsa.claves.clear();
    Tablero_Nombres(e, "Alzado", "", "*.tb0");
    lee();
    EXPECT_EQ(p.bolsa.claves,
        (Textos{"AlzadoCols", "AlzadoRows", "AlzadoWidht", "AlzadoHeight", "AlzadoA_FormatString"}));
}

TEST_F(Ciclo_de_vida, un_error_de_la_bolsa_llega_a_quien_escribe) {
    arranca(e);
    const std::string antes = foto();
    p.bolsa.falla_en("Height", 57);
    EXPECT_EQ(error_de([&] { escribe_todo(); }), 57);
    EXPECT_EQ(p.bolsa.valores.size(), 3U);
    EXPECT_EQ(foto(), antes);
}

// --- Reading the properties ---

TEST_F(Ciclo_de_vida, una_bolsa_vacia_da_los_valores_por_defecto) {
    arranca(e);
    lee();
    EXPECT_EQ(t().Cols(), 2);
    EXPECT_EQ(t().Rows(), 2);
    EXPECT_EQ(p.marco.ancho(), 4000.0F);
    EXPECT_EQ(p.marco.alto(), 2000.0F);
    EXPECT_EQ(t().FormatString(), "");
    EXPECT_EQ(p.bolsa.claves, Textos(CLAVES.begin(), CLAVES.end() - 1));
}

TEST_F(Ciclo_de_vida, lo_escrito_se_vuelve_a_leer) {
    arranca(e);
    t().FormatString("|^Eje|>Cota");
    Rows(e, 12);
    Cols(e, 9);
    Width(e, 5000);
    Height(e, 2500);
    escribe_todo();
    Mesa otra;
    arranca(otra.e);
    lee_propiedades(otra.e, p.bolsa);
    EXPECT_EQ(otra.t().Rows(), 12);
    EXPECT_EQ(otra.t().Cols(), 9);
    EXPECT_EQ(otra.p.marco.ancho(), 5000.0F);
    EXPECT_EQ(otra.p.marco.alto(), 2500.0F);
    EXPECT_EQ(otra.t().FormatString(), "|^Eje|>Cota");
    EXPECT_EQ(otra.celda(0, 1), "Eje");
}

TEST_F(Ciclo_de_vida, la_extension_guardada_no_se_lee) {
    arranca(e);
    bolsa_con("A_ExtensionFche", "*.pun");
    lee();
    EXPECT_EQ(e.nombres.extension(), "*.tb0");
}

TEST_F(Ciclo_de_vida, la_lectura_numera_las_filas_y_no_nombra_columnas) {
    arranca(e);
    bolsa_con("Rows", 6);
    bolsa_con("Cols", 8);
    lee();
    EXPECT_EQ(columna(0), (Textos{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(e.Formatos[6], T_FormatoColumna{});
}

TEST_F(Ciclo_de_vida, el_tamano_se_pone_de_una_vez_y_sin_avisar_de_propiedades) {
    arranca(e);
    bolsa_con("Widht", 5000);
    bolsa_con("Height", "2500,5");
    lee();
    EXPECT_EQ(p.marco.veces_tamano, 1);
    EXPECT_EQ(p.marco.ancho(), 5000.0F);
    EXPECT_EQ(p.marco.alto(), 2500.5F);
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Ciclo_de_vida, los_textos_de_la_columna_0_de_la_cadena_quedan) {
    arranca(e);
    bolsa_con("Rows", 4);
    bolsa_con("A_FormatString", "Punto|X;a|b");
    lee();
    EXPECT_EQ(columna(0), (Textos{"a", "b", "3"}));
}

TEST_F(Ciclo_de_vida, una_cadena_vacia_deja_la_que_habia) {
    arranca(e);
    t().FormatString("|Eje");
    lee();
    EXPECT_EQ(t().FormatString(), "|Eje");
}

TEST_F(Ciclo_de_vida, una_cuenta_por_debajo_de_1_deja_la_que_habia) {
    arranca(e);
    bolsa_con("Cols", 0);
    bolsa_con("Rows", -3);
    lee();
    EXPECT_EQ(t().Cols(), 5);
    EXPECT_EQ(t().Rows(), 4);
}

TEST_F(Ciclo_de_vida, lo_que_no_se_puede_leer_es_un_error_y_no_cambia_nada) {
    const struct {
        std::string clave;
        Variante valor;
        int error;
    } casos[] = {{"Cols", "cinco", 13}, {"Rows", 3e9, 6}, {"Widht", "", 13}, {"Height", 1e39, 6},
        {"Cols", 134217729, 7}, {"A_FormatString", Variante(Matriz<double>(0, 1)), 13}};
    for (const auto& caso : casos) {
        Mesa otra;
        arranca(otra.e);
        const std::string antes = otra.foto();
        otra.p.bolsa.valores.insert_or_assign("Rows", Variante(7));
        otra.p.bolsa.valores.insert_or_assign(caso.clave, caso.valor);
        EXPECT_EQ(error_de([&] { lee_propiedades(otra.e, otra.p.bolsa); }), caso.error) << caso.clave;
        EXPECT_EQ(otra.foto(), antes) << caso.clave;
    }
}

TEST_F(Ciclo_de_vida, un_error_de_la_bolsa_llega_a_quien_lee_y_no_cambia_nada) {
    arranca(e);
    bolsa_con("Rows", 9);
    const std::string antes = foto();
    for (const char* clave : {"Cols", "Rows", "Widht", "Height", "A_FormatString"}) {
        p.bolsa.falla_en(clave, 62);
        EXPECT_EQ(error_de([&] { lee(); }), 62) << clave;
    }
    EXPECT_EQ(foto(), antes);
}

TEST_F(Ciclo_de_vida, de_una_tabla_grande_se_pasa_a_otra_forma) {
    pon_tamano(2, 1000000);
    arranca(e);
    bolsa_con("Cols", 1000);
    bolsa_con("Rows", 3);
    lee();
    EXPECT_EQ(t().Cols(), 1000);
    EXPECT_EQ(t().Rows(), 3);
}
