// SPDX-License-Identifier: MIT
// The members that size the component, read or write whole cells and switch what is seen. Rows and Cols
// are in prueba_filas_y_columnas.cpp.
#include "core/superficie.h"
#include "tests/base/error_de.h"
#include "tests/core/mesa.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

using namespace Qlt4_Tabla;

namespace {

constexpr std::int32_t MINIMO = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t MAXIMO = std::numeric_limits<std::int32_t>::max();

struct Superficie : testing::Test, Mesa {
    Superficie() {
        pon_tamano(5, 4);
        t().selecciona(1, 1, 1, 1);
        p.vista.recoge();
    }

    T_FormatoColumna& f(int col) { return formato(e, col); }

    std::string escrito(T_formato forma, std::int16_t decimales, std::string_view valor) {
        pon_formato(2, forma, decimales);
        TextMatrix(e, 1, 2, valor);
        return celda(1, 2);
    }

    std::string leido(T_formato forma, std::string_view texto) {
        pon_formato(2, forma);
        t().TextMatrix(1, 2, texto);
        return TextMatrix(e, 1, 2);
    }
};

constexpr T_formato NUMERICOS[] = {
    T_formato::Entero, T_formato::EntPos, T_formato::Real__, T_formato::RealPo};
constexpr T_formato NO_NUMERICOS[] = {T_formato::Alfanm, T_formato::ListaU, T_formato::Color_,
    T_formato::Imagen, static_cast<T_formato>(8), static_cast<T_formato>(-1)};

} // namespace

// --- Size of the component ---

TEST_F(Superficie, ancho_y_alto_se_ponen_por_separado) {
    Width(e, 5000);
    Height(e, 1234.5);
    EXPECT_EQ(p.marco.ancho(), 5000.0F);
    EXPECT_EQ(p.marco.alto(), 1234.5F);
    EXPECT_EQ(Width(e), Variante(5000.0F));
    EXPECT_EQ(Height(e), Variante(1234.5F));
}

TEST_F(Superficie, el_ancho_es_de_precision_simple) {
    Width(e, 0.1);
    EXPECT_EQ(Width(e).tipo(), TipoVariante::Simple);
    EXPECT_EQ(p.marco.ancho(), 0.1F);
    Width(e, 16777217);
    EXPECT_EQ(p.marco.ancho(), 16777216.0F);
}

TEST_F(Superficie, el_ancho_acepta_el_texto_de_un_numero) {
    Width(e, "1500,5");
    Height(e, " 700 ");
    EXPECT_EQ(p.marco.ancho(), 1500.5F);
    EXPECT_EQ(p.marco.alto(), 700.0F);
}

TEST_F(Superficie, lo_que_no_es_una_medida_es_un_error_y_no_cambia_nada) {
    const std::string antes = foto();
    for (const Variante& valor : {Variante("ancho"), Variante(""), Variante::omitido(), Variante("12 m")}) {
        EXPECT_EQ(error_de([&] { Width(e, valor); }), 13);
        EXPECT_EQ(error_de([&] { Height(e, valor); }), 13);
    }
    EXPECT_EQ(error_de([&] { Width(e, 1E39); }), 6);
    for (const double valor : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
        EXPECT_EQ(error_de([&] { Width(e, valor); }), 6);
        EXPECT_EQ(error_de([&] { Height(e, static_cast<float>(valor)); }), 6);
    }
    EXPECT_EQ(foto(), antes);
    EXPECT_EQ(p.marco.veces_tamano, 0);
}

// --- Writing cells ---

TEST_F(Superficie, una_columna_real_guarda_sus_decimales) {
    const struct {
        std::int16_t decimales;
        std::string valor, esperado;
    } casos[] = {{2, "3.14159", "3.14"}, {2, "2,675", "2.68"}, {3, "1", "1.000"}, {2, "abc", "0.00"},
        {2, "", "0.00"}, {0, "3.14159", "3.14159"}, {0, "", ""}, {0, "2,5", "2,5"}, {-1, "x", "x"},
        {20, "1.5", "1.500000000000000"}};
    for (const auto& caso : casos)
        for (const auto forma : {T_formato::Real__, T_formato::RealPo})
            EXPECT_EQ(escrito(forma, caso.decimales, caso.valor), caso.esperado) << caso.valor;
}

TEST_F(Superficie, las_demas_columnas_guardan_el_texto_tal_cual) {
    for (const auto forma : {T_formato::Entero, T_formato::EntPos})
        for (const char* valor : {"3.14159", "2,5", "abc", " 7", ""})
            EXPECT_EQ(escrito(forma, 2, valor), valor);
    for (const auto forma : NO_NUMERICOS)
        for (const char* valor : {"3.14159", "2,5", "Añil\n", ""}) EXPECT_EQ(escrito(forma, 2, valor), valor);
}

TEST_F(Superficie, la_cabecera_se_escribe_sin_formato) {
    pon_formato(2, T_formato::Real__, 2);
    TextMatrix(e, 0, 2, "3.14159");
    EXPECT_EQ(celda(0, 2), "3.14159");
    EXPECT_EQ(TextMatrix(e, 0, 2), "3.14159");
}

TEST_F(Superficie, la_columna_0_se_escribe_como_otra) {
    pon_formato(0, T_formato::Alfanm);
    TextMatrix(e, 2, 0, "b");
    EXPECT_EQ(columna(0), (Textos{"1", "b", "3"}));
}

TEST_F(Superficie, escribir_fuera_de_la_tabla_no_hace_nada) {
    const std::string antes = foto();
    const struct {
        std::int32_t fila, col;
    } casos[] = {{4, 1}, {1, 5}, {-1, 1}, {1, -1}, {MAXIMO, 1}, {1, MAXIMO}, {MINIMO, MINIMO}, {1, 26}};
    for (const auto& caso : casos) TextMatrix(e, caso.fila, caso.col, "x");
    EXPECT_EQ(foto(), antes);
}

TEST_F(Superficie, solo_la_primera_escritura_captura_y_antes_de_cambiar) {
    t().TextMatrix(1, 1, "antes");
    std::string visto;
    p.pasos.al_capturar = [&] { visto = celda(1, 1); };
    TextMatrix(e, 99, 1, "x");
    EXPECT_EQ(p.pasos.capturas, 0);
    pon_formato(1, T_formato::Alfanm);
    TextMatrix(e, 1, 1, "después");
    EXPECT_EQ(visto, "antes");
    TextMatrix(e, 1, 1, "otra");
    TextMatrix(e, 0, 1, "otra");
    EXPECT_EQ(p.registro, (Registro{"captura"}));
}

TEST_F(Superficie, la_cabecera_tambien_es_la_primera_escritura) {
    TextMatrix(e, 0, 1, "X");
    TextMatrix(e, 1, 1, "1");
    EXPECT_EQ(p.pasos.capturas, 1);
}

TEST_F(Superficie, las_escrituras_del_servidor_no_marcan_Modificado) {
    TextMatrix(e, 1, 1, "1");
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(Superficie, una_fila_de_datos_mas_alla_de_la_columna_25_es_el_error_9) {
    pon_tamano(27, 4);
    const std::string antes = foto();
    EXPECT_EQ(error_de([&] { TextMatrix(e, 1, 26, "x"); }), 9);
    EXPECT_EQ(error_de([&] { (void)TextMatrix(e, 1, 26); }), 9);
    EXPECT_EQ(foto(), antes);
    TextMatrix(e, 0, 26, "cabecera");
    EXPECT_EQ(TextMatrix(e, 0, 26), "cabecera");
    EXPECT_EQ(error_de([&] { TextMatrix(e, 1, 25, "x"); }), 0);
}

TEST_F(Superficie, escribir_un_real_refresca_ComaDecimal) {
    p.separador.coma = true;
    EXPECT_EQ(escrito(T_formato::Alfanm, 2, "1"), "1");
    EXPECT_FALSE(e.ComaDecimal);
    EXPECT_EQ(escrito(T_formato::Real__, 2, "1"), "1.00");
    EXPECT_TRUE(e.ComaDecimal);
}

// --- Reading cells ---

TEST_F(Superficie, los_numeros_se_leen_con_coma_y_nunca_vacios) {
    for (const auto forma : NUMERICOS) {
        EXPECT_EQ(leido(forma, "12.5"), "12,5");
        EXPECT_EQ(leido(forma, ""), "0");
        EXPECT_EQ(leido(forma, "1.2.3"), "1,2.3");
        EXPECT_EQ(leido(forma, "abc"), "abc");
        EXPECT_EQ(leido(forma, " "), " ");
    }
}

TEST_F(Superficie, lo_demas_se_lee_como_esta) {
    for (const auto forma : NO_NUMERICOS) {
        EXPECT_EQ(leido(forma, "12.5"), "12.5");
        EXPECT_EQ(leido(forma, ""), "");
    }
}

TEST_F(Superficie, la_cabecera_se_lee_como_esta) {
    pon_formato(2, T_formato::Real__, 2);
    t().TextMatrix(0, 2, "Cota 1.5");
    EXPECT_EQ(TextMatrix(e, 0, 2), "Cota 1.5");
    EXPECT_EQ(TextMatrix(e, 0, 3), "");
}

TEST_F(Superficie, leer_fuera_de_la_tabla_da_el_texto_vacio) {
    const struct {
        std::int32_t fila, col;
    } casos[] = {{4, 1}, {1, 5}, {-1, 1}, {1, -1}, {0, 5}, {MAXIMO, MAXIMO}, {MINIMO, 1}, {1, 26}};
    for (const auto& caso : casos) EXPECT_EQ(TextMatrix(e, caso.fila, caso.col), "");
}

TEST_F(Superficie, leer_no_pregunta_por_el_separador_ni_captura) {
    p.separador.coma = true;
    (void)leido(T_formato::Real__, "12.5");
    EXPECT_EQ(p.separador.preguntas, 0);
    EXPECT_EQ(p.registro, Registro{});
}

// --- The rest of the members ---

TEST_F(Superficie, Clear_deja_solo_la_cabecera_con_su_nombre_y_color) {
    t().TextMatrix(0, 2, "Cota");
    t().color_fondo(Bloque{0, 2, 0, 2}, COLOR_CABECERA_BLOQUEADA);
    f(2).Nombre = "Cota";
    Clear(e);
    EXPECT_EQ(t().Rows(), 1);
    EXPECT_EQ(t().Cols(), 5);
    EXPECT_EQ(celda(0, 2), "Cota");
    EXPECT_EQ(t().color_fondo(0, 2), COLOR_CABECERA_BLOQUEADA);
    EXPECT_EQ(f(2).Nombre, "Cota");
    EXPECT_EQ(t().Row(), 0);
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Superficie, MergeCells_solo_toma_de_0_a_3) {
    const struct {
        std::int16_t modo, queda;
    } casos[] = {{1, 1}, {4, 1}, {2, 2}, {-1, 2}, {3, 3}, {32767, 3}, {0, 0}, {-32768, 0}};
    for (const auto& caso : casos) {
        MergeCells(e, caso.modo);
        EXPECT_EQ(t().MergeCells(), caso.queda) << caso.modo;
    }
}

TEST_F(Superficie, A_fila_Activa_pasa_por_16_bits) {
    EXPECT_EQ(A_fila_Activa(e), 1);
    pon_tamano(2, 32769);
    t().Row(32767);
    EXPECT_EQ(A_fila_Activa(e), 32767);
    t().Row(32768);
    EXPECT_EQ(error_de([&] { (void)A_fila_Activa(e); }), 6);
}

TEST_F(Superficie, A_RowTop_queda_entre_1_y_la_ultima_fila) {
    pon_tamano(5, 1000);
    const struct {
        std::int32_t valor, queda;
    } casos[] = {{5, 5}, {0, 1}, {999, 999}, {1000, 999}, {MAXIMO, 999}, {MINIMO, 1}, {1, 1}};
    for (const auto& caso : casos) {
        A_RowTop(e, caso.valor);
        EXPECT_EQ(t().TopRow(), caso.queda) << caso.valor;
    }
    Rows(e, 1);
    A_RowTop(e, 7);
    EXPECT_EQ(t().TopRow(), 1);
}

TEST_F(Superficie, A_Pon_Alto_hace_actual_la_fila_y_le_da_su_alto) {
    t().selecciona(1, 2, 1, 2);
    A_Pon_Alto(e, 3, 600);
    EXPECT_EQ(t().RowHeight(3), 600);
    EXPECT_EQ(t().RowHeight(2), t().alto_normal());
    EXPECT_EQ(t().Row(), 3);
    EXPECT_EQ(t().RowSel(), 3);
    EXPECT_EQ(t().Col(), 2);
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Superficie, A_Pon_Alto_con_alto_negativo_solo_mueve_la_fila) {
    A_Pon_Alto(e, 2, 600);
    A_Pon_Alto(e, 1, 600);
    A_Pon_Alto(e, 2, -5);
    EXPECT_EQ(t().RowHeight(2), 600);
    EXPECT_EQ(t().Row(), 2);
    A_Pon_Alto(e, 2, 0);
    EXPECT_EQ(t().RowHeight(2), 0);
}

TEST_F(Superficie, A_Pon_Alto_y_A_Pon_Imagen_fuera_de_la_tabla_no_hacen_nada) {
    const std::string antes = foto();
    for (const int fila : {4, -1, 32767, -32768}) A_Pon_Alto(e, static_cast<std::int16_t>(fila), 600);
    const auto imagen = std::make_shared<ImagenMemoria>("punto");
    A_Pon_Imagen(e, 4, 1, imagen);
    A_Pon_Imagen(e, 1, 5, imagen);
    A_Pon_Imagen(e, -1, 1, imagen);
    A_Pon_Imagen(e, 1, -1, imagen);
    EXPECT_EQ(foto(), antes);
    EXPECT_EQ(imagen.use_count(), 1);
    EXPECT_EQ(p.vista.avisos, Textos{});
}

TEST_F(Superficie, A_Pon_Imagen_pone_y_quita_la_imagen_y_deja_el_texto) {
    t().TextMatrix(2, 3, "texto");
    const auto imagen = std::make_shared<ImagenMemoria>("punto");
    A_Pon_Imagen(e, 2, 3, imagen);
    EXPECT_EQ(t().CellPicture(2, 3), imagen);
    EXPECT_EQ(t().CellPicture(3, 2), nullptr);
    EXPECT_EQ(celda(2, 3), "texto");
    EXPECT_EQ(t().Row(), 1);
    A_Pon_Imagen(e, 2, 3, nullptr);
    EXPECT_EQ(t().CellPicture(2, 3), nullptr);
}

TEST_F(Superficie, A_ExtensionFche_solo_toma_cinco_caracteres_que_empiezan_por_asterisco_y_punto) {
    const struct {
        std::string valor, queda;
    } casos[] = {{"*.tb0", "*.tb0"}, {"*.tabl", "*.tb0"}, {"*.t", "*.tb0"}, {"tabla", "*.tb0"},
        {".*tb0", "*.tb0"}, {"", "*.tb0"}, {"*.año", "*.año"}, {"*.p  ", "*.p"}, {" *.tb", "*.p"}};
    for (const auto& caso : casos) {
        A_ExtensionFche(e, caso.valor);
        EXPECT_EQ(e.nombres.extension(), caso.queda) << caso.valor;
    }
    EXPECT_EQ(p.registro, Registro(3, "propiedad A_ExtensionFche"));
}

TEST_F(Superficie, Ficheros_en_menu_oculta_y_muestra_tres_opciones) {
    const auto visibles = [&] {
        return Textos{e.menus[Opcion::Mnu_Tabla_Guardar_como].visible ? "si" : "no",
            e.menus[Opcion::Mnu_Tabla_Leer].visible ? "si" : "no",
            e.menus[Opcion::mn_dd].visible ? "si" : "no"};
    };
    Ficheros_en_menu(e, false);
    EXPECT_EQ(visibles(), (Textos{"no", "no", "no"}));
    int ocultas = 0;
    for (std::size_t i = 0; i < NUM_OPCIONES; ++i) ocultas += !e.menus[static_cast<Opcion>(i)].visible;
    EXPECT_EQ(ocultas, 3);
    Ficheros_en_menu(e, true);
    EXPECT_EQ(visibles(), (Textos{"si", "si", "si"}));
    EXPECT_EQ(p.marco.veces_menus, 2);
}
