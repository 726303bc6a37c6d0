// SPDX-License-Identifier: MIT
// Merging of equal neighbours for drawing.
#include "core/fusion.h"
#include "platform/vista_tablero.h"

#include <gtest/gtest.h>

namespace Qlt4_Tabla {
namespace {

class Fusion : public testing::Test {
protected:
    VistaNula vista;
    Tablero t{vista};

    /// Rows from 1 on, texts of the columns from 1 on, one character each ("." is empty); header "a".
    void pon(const std::vector<std::string>& filas) {
        t.Cols(static_cast<int>(filas.front().size()) + 1);
        t.Rows(static_cast<int>(filas.size()) + 1);
        t.numera_filas();
        for (int c = 1; c < t.Cols(); ++c) t.TextMatrix(0, c, "a");
        for (int f = 1; const std::string& fila : filas) {
            for (int c = 1; const char letra : fila)
                t.TextMatrix(f, c++, letra == '.' ? "" : std::string(1, letra));
            ++f;
        }
    }

    void marca(const std::vector<int>& columnas) {
        for (const int c : columnas) t.MergeCol(c, true);
    }

    /// The runs of a column, each row's as "from-to".
    std::vector<std::string> tramos(int col) {
        std::vector<std::string> tramos;
        for (int f = 0; f < t.Rows(); ++f) {
            const Tramo tramo = tramo_fundido(t, f, col, 1, t.Rows() - 1);
            tramos.push_back(std::to_string(tramo.desde) + "-" + std::to_string(tramo.hasta));
        }
        return tramos;
    }
};

using Tramos = std::vector<std::string>;

TEST_F(Fusion, el_modo_1_funde_los_iguales_de_una_columna_marcada) {
    pon({"a", "a", "b", "b", "b", "a"});
    marca({1});
    t.MergeCells(1);
    EXPECT_EQ(tramos(1), Tramos({"0-0", "1-2", "1-2", "3-5", "3-5", "3-5", "6-6"}));
}

TEST_F(Fusion, los_modos_0_y_2_no_funden) {
    pon({"a", "a"});
    marca({1});
    EXPECT_EQ(tramos(1), Tramos({"0-0", "1-1", "2-2"}));
    t.MergeCells(2);
    EXPECT_EQ(tramos(1), Tramos({"0-0", "1-1", "2-2"}));
}

TEST_F(Fusion, una_columna_sin_marcar_no_se_funde) {
    pon({"aa", "aa"});
    marca({1});
    t.MergeCells(1);
    EXPECT_EQ(tramos(2), Tramos({"0-0", "1-1", "2-2"}));
}

TEST_F(Fusion, las_celdas_vacias_no_se_funden) {
    pon({"a", ".", ".", "a"});
    marca({1});
    t.MergeCells(1);
    EXPECT_EQ(tramos(1), Tramos({"0-0", "1-1", "2-2", "3-3", "4-4"}));
}

TEST_F(Fusion, la_cabecera_no_se_funde_con_la_primera_fila) {
    pon({"a", "a"});
    marca({1});
    t.MergeCells(1);
    EXPECT_EQ(tramo_fundido(t, 0, 1, 0, 2), (Tramo{0, 0}));
    EXPECT_EQ(tramo_fundido(t, 1, 1, 0, 2), (Tramo{1, 2}));
}

TEST_F(Fusion, los_numeros_de_fila_no_se_funden) {
    pon({"a", "a"});
    marca({0});
    t.MergeCells(1);
    EXPECT_EQ(tramos(0), Tramos({"0-0", "1-1", "2-2"}));
}

TEST_F(Fusion, solo_se_mira_entre_las_filas_dadas) {
    pon({"a", "a", "a", "a", "a"});
    marca({1});
    t.MergeCells(1);
    EXPECT_EQ(tramo_fundido(t, 3, 1, 2, 4), (Tramo{2, 4}));
    EXPECT_EQ(tramo_fundido(t, 3, 1, 3, 99), (Tramo{3, 5}));
    EXPECT_EQ(tramo_fundido(t, 3, 1, 3, 3), (Tramo{3, 3}));
}

TEST_F(Fusion, el_modo_1_no_mira_a_la_izquierda) {
    pon({"xa", "ya"});
    marca({1, 2});
    t.MergeCells(1);
    EXPECT_EQ(tramos(2), Tramos({"0-0", "1-2", "1-2"}));
}

TEST_F(Fusion, el_modo_3_no_pasa_del_fin_de_un_tramo_de_la_marcada_a_su_izquierda) {
    pon({"xa", "xa", "ya", "ya"});
    marca({1, 2});
    t.MergeCells(3);
    EXPECT_EQ(tramos(1), Tramos({"0-0", "1-2", "1-2", "3-4", "3-4"}));
    EXPECT_EQ(tramos(2), Tramos({"0-0", "1-2", "1-2", "3-4", "3-4"}));
}

TEST_F(Fusion, el_modo_3_salta_las_columnas_sin_marcar) {
    pon({"xpa", "xqa", "yqa"});
    marca({1, 3});
    t.MergeCells(3);
    EXPECT_EQ(tramos(3), Tramos({"0-0", "1-2", "1-2", "3-3"}));
}

TEST_F(Fusion, en_el_modo_3_la_de_la_izquierda_tambien_se_corta_por_la_suya) {
    pon({"xpa", "ypa", "ypa"});
    marca({1, 2, 3});
    t.MergeCells(3);
    EXPECT_EQ(tramos(3), Tramos({"0-0", "1-1", "2-3", "2-3"}));
}

TEST_F(Fusion, en_el_modo_3_una_celda_vacia_a_la_izquierda_es_un_tramo_por_si_sola) {
    pon({".a", ".a", "xa", "xa"});
    marca({1, 2});
    t.MergeCells(3);
    EXPECT_EQ(tramos(2), Tramos({"0-0", "1-1", "2-2", "3-4", "3-4"}));
}

TEST_F(Fusion, en_el_modo_3_sin_marcadas_a_la_izquierda_es_como_el_1) {
    pon({"xa", "ya"});
    marca({2});
    t.MergeCells(3);
    EXPECT_EQ(tramos(2), Tramos({"0-0", "1-2", "1-2"}));
}

} // namespace
} // namespace Qlt4_Tabla
