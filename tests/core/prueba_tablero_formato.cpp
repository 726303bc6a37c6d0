// SPDX-License-Identifier: MIT
// Tablero: the format string.
#include "base/error.h"
#include "core/tablero.h"
#include "headless/vista_memoria.h"

#include <gtest/gtest.h>

namespace Qlt4_Tabla {
namespace {

using Textos = std::vector<std::string>;

class Cadena_de_formato : public testing::Test {
protected:
    VistaMemoria vista;
    Tablero t{vista};

    Textos cabecera() {
        Textos textos;
        for (int c = 0; c < t.Cols(); ++c) textos.emplace_back(t.TextMatrix(0, c));
        return textos;
    }

    std::vector<int> anchos() {
        std::vector<int> anchos;
        for (int c = 0; c < t.Cols(); ++c) anchos.push_back(t.ColWidth(c));
        return anchos;
    }

    std::vector<int> alineaciones() {
        std::vector<int> codigos;
        for (int c = 0; c < t.Cols(); ++c) codigos.push_back(static_cast<int>(t.ColAlignment(c)));
        return codigos;
    }

    Textos numeros() {
        Textos textos;
        for (int f = 0; f < t.Rows(); ++f) textos.emplace_back(t.TextMatrix(f, 0));
        return textos;
    }
};

TEST_F(Cadena_de_formato, da_texto_ancho_y_alineacion_a_cada_columna) {
    t.FormatString("<Nº|^ Cota |>X");
    EXPECT_EQ(cabecera(), Textos({"Nº", " Cota ", "X"}));
    EXPECT_EQ(anchos(), std::vector<int>({240, 720, 120}));
    EXPECT_EQ(alineaciones(), std::vector<int>({1, 4, 7}));
    EXPECT_EQ(t.Rows(), 1);
}

TEST_F(Cadena_de_formato, sin_signo_la_alineacion_se_queda) {
    t.Cols(2);
    t.ColAlignment(1, AlineacionCelda::Centro);
    t.FormatString("a|b");
    EXPECT_EQ(alineaciones(), std::vector<int>({1, 4}));
}

TEST_F(Cadena_de_formato, solo_el_primer_signo_alinea) {
    t.FormatString(">>a");
    EXPECT_EQ(cabecera(), Textos({">a"}));
    EXPECT_EQ(anchos(), std::vector<int>({240}));
}

TEST_F(Cadena_de_formato, un_tramo_vacio_es_una_columna_sin_texto_ni_ancho) {
    t.FormatString("a||c|");
    EXPECT_EQ(cabecera(), Textos({"a", "", "c", ""}));
    EXPECT_EQ(anchos(), std::vector<int>({120, 0, 120, 0}));
}

TEST_F(Cadena_de_formato, tras_el_punto_y_coma_van_los_textos_de_la_columna_0) {
    t.FormatString("a|b;uno|<dos||4;5");
    EXPECT_EQ(cabecera(), Textos({"a", "b"}));
    EXPECT_EQ(numeros(), Textos({"a", "uno", "<dos", "", "4;5"}));
}

TEST_F(Cadena_de_formato, puede_dar_solo_los_textos_de_la_columna_0) {
    t.FormatString(";x|y");
    EXPECT_EQ(t.Cols(), 1);
    EXPECT_EQ(numeros(), Textos({"", "x", "y"}));
    EXPECT_EQ(anchos(), std::vector<int>({960}));
}

TEST_F(Cadena_de_formato, anade_y_nunca_quita) {
    t.Cols(3);
    t.Rows(4);
    t.numera_filas();
    t.TextMatrix(0, 2, "queda");
    t.TextMatrix(2, 1, "dato");
    t.FormatString("a;uno");
    EXPECT_EQ(cabecera(), Textos({"a", "", "queda"}));
    EXPECT_EQ(numeros(), Textos({"a", "uno", "2", "3"}));
    EXPECT_EQ(t.TextMatrix(2, 1), "dato");
    EXPECT_EQ(anchos(), std::vector<int>({120, 960, 960}));
}

TEST_F(Cadena_de_formato, se_lee_como_se_puso) {
    EXPECT_EQ(t.FormatString(), "");
    t.FormatString("<a|b;x");
    t.TextMatrix(0, 0, "otro");
    EXPECT_EQ(t.FormatString(), "<a|b;x");
    t.FormatString(t.FormatString());
    EXPECT_EQ(t.TextMatrix(0, 0), "a");
    t.FormatString("");
    EXPECT_EQ(t.FormatString(), "");
    EXPECT_EQ(t.Cols(), 2);
}

TEST_F(Cadena_de_formato, la_cadena_vacia_no_cambia_nada) {
    t.FormatString("");
    EXPECT_EQ(t.Cols(), 0);
    EXPECT_EQ(t.Rows(), 0);
    EXPECT_EQ(vista.recoge(), Textos());
}

TEST_F(Cadena_de_formato, avisa_una_vez) {
    t.FormatString("a|b|c;x");
    EXPECT_EQ(vista.recoge(), Textos({"todo"}));
    EXPECT_TRUE(t.Redraw());
}

TEST_F(Cadena_de_formato, con_el_redibujo_apagado_sigue_apagado) {
    t.Redraw(false);
    t.FormatString("a|b");
    EXPECT_FALSE(t.Redraw());
    EXPECT_EQ(vista.recoge(), Textos());
}

TEST_F(Cadena_de_formato, si_no_cabe_no_cambia_nada) {
    t.Cols(1);
    t.Rows(1 << 28);
    vista.recoge();
    EXPECT_THROW(t.FormatString("a|b"), Error);
    EXPECT_EQ(t.Cols(), 1);
    EXPECT_EQ(t.FormatString(), "");
    EXPECT_EQ(vista.recoge(), Textos());
}

} // namespace
} // namespace Qlt4_Tabla
