// SPDX-License-Identifier: MIT
// Rows and Cols: the counts, what added rows and columns get, what the current cell does.
#include "core/superficie.h"
#include "tests/base/error_de.h"
#include "tests/core/mesa.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qlt4_Tabla;

namespace {

constexpr std::int32_t MINIMO = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t MAXIMO = std::numeric_limits<std::int32_t>::max();

struct Filas_y_columnas : testing::Test, Mesa {
    Filas_y_columnas() {
        pon_tamano(5, 4);
        t().selecciona(1, 1, 1, 1);
    }

    T_FormatoColumna& f(int col) { return formato(e, col); }
};

} // namespace

// --- Rows ---

TEST_F(Filas_y_columnas, Rows_por_debajo_de_1_deja_la_tabla_como_estaba) {
    const std::string antes = foto();
    for (const std::int32_t n : {0, -1, MINIMO}) Rows(e, n);
    EXPECT_EQ(foto(), antes);
    EXPECT_EQ(p.marco.veces_etiquetas, 0);
}

TEST_F(Filas_y_columnas, Rows_crece_y_numera_todas_las_filas) {
    t().TextMatrix(1, 0, "a");
    t().TextMatrix(1, 1, "dato");
    Rows(e, 7);
    EXPECT_EQ(columna(0), (Textos{"1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(columna(1), (Textos{"dato", "", "", "", "", ""}));
    EXPECT_EQ(p.registro, (Registro{"propiedad Rows"}));
}

TEST_F(Filas_y_columnas, Rows_al_menguar_corta_y_no_numera) {
    t().TextMatrix(1, 0, "a");
    Rows(e, 3);
    EXPECT_EQ(columna(0), (Textos{"a", "2"}));
    Rows(e, 3);
    EXPECT_EQ(columna(0), (Textos{"a", "2"}));
    EXPECT_EQ(p.registro, (Registro{"propiedad Rows", "propiedad Rows"}));
}

TEST_F(Filas_y_columnas, las_filas_que_vuelven_estan_vacias) {
    escribe(1, {"uno", "dos", "tres"});
    Rows(e, 2);
    Rows(e, 4);
    EXPECT_EQ(columna(1), (Textos{"uno", "", ""}));
}

TEST_F(Filas_y_columnas, Rows_refresca_la_cuenta_de_filas) {
    e.nombres.Tablero_Pon_Nombre(2, true, "Ejes");
    Rows(e, 9);
    EXPECT_EQ(e.etiquetas.labNumeroFilas.texto, "Nº de Ejes = 8");
    Rows(e, 1);
    EXPECT_EQ(e.etiquetas.labNumeroFilas.texto, "Nº de Ejes = 0");
    EXPECT_FALSE(e.etiquetas.labNumeroFilas.visible);
}

TEST_F(Filas_y_columnas, Rows_no_mueve_una_celda_que_sigue_dentro) {
    t().selecciona(2, 3, 1, 4);
    Rows(e, 9);
    Rows(e, 3);
    EXPECT_EQ(t().Row(), 2);
    EXPECT_EQ(t().Col(), 3);
    EXPECT_EQ(t().RowSel(), 1);
    EXPECT_EQ(t().ColSel(), 4);
}

TEST_F(Filas_y_columnas, Rows_al_menguar_lleva_la_celda_dentro) {
    t().selecciona(3, 2, 3, 2);
    Rows(e, 3);
    EXPECT_EQ(t().Row(), 2);
    Rows(e, 1);
    EXPECT_EQ(t().Row(), 0);
    EXPECT_EQ(t().RowSel(), 0);
    EXPECT_EQ(t().Col(), 2);
}

TEST_F(Filas_y_columnas, tras_Rows_la_celda_actual_no_queda_en_la_cabecera) {
    Rows(e, 1);
    Rows(e, 4);
    EXPECT_EQ(t().Row(), 1);
    EXPECT_EQ(t().RowSel(), 1);
    t().selecciona(0, 0, 0, 0);
    Rows(e, 4);
    EXPECT_EQ(t().Row(), 1);
    EXPECT_EQ(t().Col(), 1);
    EXPECT_EQ(p.registro, (Registro{"propiedad Rows", "propiedad Rows", "propiedad Rows"}));
}

TEST_F(Filas_y_columnas, con_una_sola_columna_la_celda_queda_en_la_0) {
    pon_tamano(1, 1);
    Rows(e, 3);
    EXPECT_EQ(t().Row(), 1);
    EXPECT_EQ(t().Col(), 0);
}

TEST_F(Filas_y_columnas, demasiadas_filas_es_el_error_7_y_no_cambia_nada) {
    const std::string antes = foto();
    EXPECT_EQ(error_de([&] { Rows(e, 53687092); }), 7); // x 5 columns: 268435460, above 2^28
    EXPECT_EQ(error_de([&] { Rows(e, MAXIMO); }), 7);
    EXPECT_EQ(foto(), antes);
}

// --- Cols ---

TEST_F(Filas_y_columnas, Cols_da_nombre_y_formato_a_las_columnas_nuevas) {
    Cols(e, 8);
    EXPECT_EQ(t().Cols(), 8);
    for (int col = 5; col < 8; ++col)
        EXPECT_EQ(f(col),
            (T_FormatoColumna{
                .Nombre = "Col " + std::to_string(col), .Longitud = 10, .Formato = 4, .Decimales = 3}));
    EXPECT_EQ(f(4), T_FormatoColumna{});
    EXPECT_EQ(f(8), T_FormatoColumna{});
    EXPECT_EQ(p.registro, (Registro{"propiedad Cols"}));
}

TEST_F(Filas_y_columnas, Cols_solo_toca_los_formatos_de_trabajo_y_no_formatea) {
    const auto dados = e.Formatos_por_defecto;
    Cols(e, 8);
    EXPECT_EQ(e.Formatos_por_defecto, dados);
    EXPECT_EQ(celda(0, 7), "");
    EXPECT_FALSE(t().tiene_fondo(0, 7));
    EXPECT_TRUE(t().Redraw());
}

TEST_F(Filas_y_columnas, Cols_deja_lo_que_ya_tenia_una_columna) {
    f(5) = {.Nombre = "Cota"};
    f(6) = {.Nombre = "", .Bloqueada = true, .Longitud = 7, .Formato = 2, .Alineacion = 2};
    f(7) = {.Nombre = "", .Decimales = -1};
    const T_FormatoColumna con_nombre = f(5);
    Cols(e, 8);
    EXPECT_EQ(f(5), con_nombre);
    EXPECT_EQ(f(6),
        (T_FormatoColumna{.Nombre = "Col 6",
            .Bloqueada = true,
            .Longitud = 7,
            .Formato = 2,
            .Decimales = 3,
            .Alineacion = 2}));
    EXPECT_EQ(f(7), (T_FormatoColumna{.Nombre = "Col 7", .Longitud = 10, .Formato = 4, .Decimales = -1}));
}

TEST_F(Filas_y_columnas, Cols_al_menguar_o_quedar_igual_no_da_formatos) {
    Cols(e, 5);
    Cols(e, 3);
    for (int col = 0; col < 26; ++col) EXPECT_EQ(f(col), T_FormatoColumna{});
    EXPECT_EQ(t().Cols(), 3);
    Cols(e, 4);
    EXPECT_EQ(f(3).Nombre, "Col 3");
    EXPECT_EQ(f(4).Nombre, "");
}

TEST_F(Filas_y_columnas, Cols_de_25_da_formatos_y_de_26_no) {
    Cols(e, 26);
    EXPECT_EQ(t().Cols(), 26);
    EXPECT_EQ(f(5).Nombre, "");
    Cols(e, 24);
    Cols(e, 25);
    EXPECT_EQ(f(24).Nombre, "Col 24");
    EXPECT_EQ(f(23).Nombre, "");
    Cols(e, 30);
    EXPECT_EQ(t().Cols(), 30);
    EXPECT_EQ(f(25).Nombre, "");
}

TEST_F(Filas_y_columnas, Cols_por_debajo_de_1_deja_la_tabla_y_solo_marca_la_propiedad) {
    const int columnas = t().Cols();
    for (const std::int32_t n : {0, -1, MINIMO}) Cols(e, n);
    EXPECT_EQ(t().Cols(), columnas);
    for (int col = 0; col < 26; ++col) EXPECT_EQ(f(col), T_FormatoColumna{});
    EXPECT_EQ(p.registro, (Registro{"propiedad Cols", "propiedad Cols", "propiedad Cols"}));
}

TEST_F(Filas_y_columnas, Cols_al_menguar_lleva_la_celda_dentro) {
    t().selecciona(2, 4, 2, 3);
    Cols(e, 3);
    EXPECT_EQ(t().Col(), 2);
    EXPECT_EQ(t().ColSel(), 2);
    EXPECT_EQ(t().Row(), 2);
}

TEST_F(Filas_y_columnas, demasiadas_columnas_es_el_error_7_y_no_cambia_nada) {
    const std::string antes = foto();
    EXPECT_EQ(error_de([&] { Cols(e, 67108865); }), 7); // x 4 rows: 268435460, above 2^28
    EXPECT_EQ(error_de([&] { Cols(e, MAXIMO); }), 7);
    EXPECT_EQ(foto(), antes);
}
