// SPDX-License-Identifier: MIT
// Colouring of cells: which cells, which colour plane, what becomes of the current cell, what is refused.
#include "colours/celdas.h"

#include "core/ciclo_vida.h"
#include "headless/plataforma_memoria.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace Qlt4_Tabla;

class Celdas : public ::testing::Test {
protected:
    Celdas() : e(p.plataforma(), p.eventos) {
        arranca(e); // 4 rows, 5 columns, current cell (1, 1)
        p.registro.clear();
    }

    // Row, Col, RowSel, ColSel.
    std::vector<int> seleccion() const {
        return {e.tablero.Row(), e.tablero.Col(), e.tablero.RowSel(), e.tablero.ColSel()};
    }

    std::vector<std::int32_t> textos_fila(int fila) const {
        std::vector<std::int32_t> colores;
        for (int c = 0; c < e.tablero.Cols(); ++c) colores.push_back(e.tablero.color_texto(fila, c));
        return colores;
    }

    std::vector<std::int32_t> fondos_fila(int fila) const {
        std::vector<std::int32_t> colores;
        for (int c = 0; c < e.tablero.Cols(); ++c) colores.push_back(e.tablero.color_fondo(fila, c));
        return colores;
    }

    std::string texto(int fila, int col) const { return std::string(e.tablero.TextMatrix(fila, col)); }

    PlataformaMemoria p;
    EstadoTabla e;
};

const std::string NEGATIVO = "mensaje|16|Tabla color|color negativo";
const std::vector<std::pair<std::int32_t, std::int32_t>> FUERA{{-1, 1}, {4, 1}, {1, -1}, {1, 5},
    {std::numeric_limits<std::int32_t>::max(), 1}, {1, std::numeric_limits<std::int32_t>::min()}};

TEST_F(Celdas, AColumnIsColouredInItsDataRowsOnly) {
    Color_Columna(e, 2, T_colores::Azul);
    EXPECT_EQ(e.tablero.color_texto(0, 2), 0);
    for (int f = 1; f <= 3; ++f) EXPECT_EQ(textos_fila(f), (std::vector<std::int32_t>{0, 0, 0xFF0000, 0, 0}));
    EXPECT_FALSE(e.tablero.tiene_fondo(1, 2));
}

TEST_F(Celdas, ColouringAColumnKeepsTheCellAndCollapsesTheSelection) {
    e.tablero.selecciona(2, 1, 3, 4);
    e.tablero.FillStyle(Relleno::Celda);
    Color_Columna(e, 0, T_colores::Rojo);
    EXPECT_EQ(seleccion(), (std::vector{2, 1, 2, 1}));
    EXPECT_EQ(e.tablero.FillStyle(), Relleno::Celda);
    EXPECT_EQ(e.tablero.color_texto(3, 0), 0x0000FF);
    EXPECT_TRUE(p.registro.empty());
}

TEST_F(Celdas, AColumnOutsideIsIgnored) {
    e.tablero.selecciona(2, 1, 3, 4);
    for (const std::int32_t col : {-1, 5, 26, std::numeric_limits<std::int32_t>::max()})
        Color_Columna(e, col, T_colores::Rojo);
    EXPECT_EQ(seleccion(), (std::vector{2, 1, 3, 4}));
}

TEST_F(Celdas, AColumnOfAHeaderOnlyTableHasNothingToColour) {
    e.tablero.Rows(1);
    Color_Columna(e, 1, T_colores::Rojo);
    EXPECT_EQ(e.tablero.color_texto(0, 1), 0);
}

TEST_F(Celdas, OneCellGetsItsTextColourAndBecomesCurrent) {
    e.tablero.selecciona(1, 1, 3, 3);
    ColMatrix(e, 2, 4, T_colores::Ciano);
    EXPECT_EQ(textos_fila(2), (std::vector<std::int32_t>{0, 0, 0, 0, 0xFFFF00}));
    EXPECT_EQ(seleccion(), (std::vector{2, 4, 2, 4}));
    EXPECT_FALSE(e.tablero.tiene_fondo(2, 4));
    EXPECT_TRUE(p.registro.empty());
}

TEST_F(Celdas, HeaderAndRowNumberCanBeColoured) {
    ColMatrix(e, 0, 0, T_colores::Verde);
    EXPECT_EQ(e.tablero.color_texto(0, 0), 0x00FF00);
    EXPECT_EQ(seleccion(), (std::vector{0, 0, 0, 0}));
}

TEST_F(Celdas, UnknownNamedColoursAreBlack) {
    ColMatrix(e, 1, 1, T_colores::Rojo);
    ColMatrix(e, 1, 1, static_cast<T_colores>(9));
    EXPECT_EQ(e.tablero.color_texto(1, 1), 0);
}

TEST_F(Celdas, OneCellOutsideMovesNothing) {
    for (const auto& [fila, col] : FUERA) {
        ColMatrix(e, fila, col, T_colores::Rojo);
        Color_Matrix(e, fila, col, 0x123456);
        EXPECT_EQ(Color_Matrix(e, fila, col), 0);
        EXPECT_EQ(Color_Matrix_en_VB(e, fila, col), 0);
        Color_Matrix_en_Cad(e, fila, col, 1);
        Color_Matrix_de_Cad(e, fila, col, 1);
        Color_Matrix_en_Cad_dado_N_VB(e, fila, col, 1);
        Color_Matrix_en_Cad_dado_N_cad(e, fila, col, 1);
        Color_Fila(e, fila, col, col, T_colores::Rojo);
        EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1})) << fila << ' ' << col;
    }
    EXPECT_TRUE(p.registro.empty());
}

TEST_F(Celdas, ARowIsPaintedBetweenTwoColumnsInEitherOrder) {
    Color_Fila(e, 2, 3, 1, T_colores::Amarll);
    EXPECT_EQ(fondos_fila(2), (std::vector<std::int32_t>{0, 0x00FFFF, 0x00FFFF, 0x00FFFF, 0}));
    EXPECT_EQ(textos_fila(2), (std::vector<std::int32_t>{0, 0, 0, 0, 0}));
    EXPECT_EQ(seleccion(), (std::vector{2, 3, 2, 3}));
}

TEST_F(Celdas, ARowIsPaintedAsFarAsItGoes) {
    Color_Fila(e, 1, -7, 90, T_colores::Verde);
    EXPECT_EQ(fondos_fila(1), (std::vector<std::int32_t>(5, 0x00FF00)));
    EXPECT_EQ(seleccion(), (std::vector{1, 4, 1, 4}));
    Color_Fila(e, 3, std::numeric_limits<std::int32_t>::min(), -1, T_colores::Verde);
    EXPECT_EQ(seleccion(), (std::vector{1, 4, 1, 4}));
}

TEST_F(Celdas, ARowPaintedBlackIsBlackAndNotUnset) {
    Color_Fila(e, 1, 1, 1, T_colores::Negro);
    EXPECT_TRUE(e.tablero.tiene_fondo(1, 1));
    EXPECT_EQ(e.tablero.color_fondo(1, 1), 0);
}

TEST_F(Celdas, PaintingARowKeepsTheRedrawSwitch) {
    Color_Fila(e, 1, 1, 2, T_colores::Rojo);
    EXPECT_TRUE(e.tablero.Redraw());
    e.tablero.Redraw(false);
    Color_Fila(e, 1, 1, 2, T_colores::Rojo);
    EXPECT_FALSE(e.tablero.Redraw());
}

TEST_F(Celdas, WithoutColourEveryDataCellIsBlackAndBackgroundsStay) {
    for (int c = 0; c < 5; ++c) ColMatrix(e, 0, c, T_colores::Rojo);
    for (int c = 0; c < 5; ++c) Color_Columna(e, c, T_colores::Rojo);
    Color_Fila(e, 2, 1, 4, T_colores::Azul);
    tablero_sin_color(e);
    for (int f = 1; f <= 3; ++f) EXPECT_EQ(textos_fila(f), (std::vector<std::int32_t>(5, 0)));
    EXPECT_EQ(textos_fila(0), (std::vector<std::int32_t>(5, 0x0000FF)));
    EXPECT_EQ(fondos_fila(2), (std::vector<std::int32_t>{0, 0xFF0000, 0xFF0000, 0xFF0000, 0xFF0000}));
    EXPECT_EQ(seleccion(), (std::vector{3, 4, 3, 4}));
}

TEST_F(Celdas, WithoutColourRedrawingEndsOn) {
    e.tablero.Redraw(false);
    tablero_sin_color(e);
    EXPECT_TRUE(e.tablero.Redraw());
}

TEST_F(Celdas, WithoutColourAHeaderOnlyTableStaysAsItIs) {
    e.tablero.Rows(1);
    const std::vector<int> antes = seleccion();
    tablero_sin_color(e);
    EXPECT_EQ(seleccion(), antes);
}

TEST_F(Celdas, ABackgroundIsAnyScreenColour) {
    EXPECT_EQ(Color_Matrix(e, 2, 3), 0);
    for (const std::int32_t color : {0x123456, 0, -1, static_cast<std::int32_t>(0x8000000FU)}) {
        Color_Matrix(e, 2, 3, color);
        EXPECT_EQ(Color_Matrix(e, 2, 3), color);
        EXPECT_TRUE(e.tablero.tiene_fondo(2, 3));
    }
}

TEST_F(Celdas, ReadingABackgroundMakesTheCellCurrentToo) {
    static_cast<void>(Color_Matrix(e, 3, 2));
    EXPECT_EQ(seleccion(), (std::vector{3, 2, 3, 2}));
    static_cast<void>(Color_Matrix_en_VB(e, 2, 0)); // its row number reads as a palette index
    EXPECT_EQ(seleccion(), (std::vector{2, 0, 2, 0}));
}

// --- Colour cells ---

TEST_F(Celdas, WithoutColourEditingOnlyTheNameIsWritten) {
    Color_Matrix_en_Cad(e, 1, 1, 1);
    Color_Matrix_en_Cad_dado_N_VB(e, 1, 2, 0x00FF00);
    Color_Matrix_en_Cad_dado_N_cad(e, 1, 3, 5);
    Color_Matrix_de_Cad(e, 1, 4, 25);
    EXPECT_EQ(texto(1, 1), "rojo");
    EXPECT_EQ(texto(1, 2), "verde");
    EXPECT_EQ(texto(1, 3), "azul");
    EXPECT_EQ(texto(1, 4), "25");
    for (int c = 1; c <= 4; ++c) EXPECT_FALSE(e.tablero.tiene_fondo(1, c));
    EXPECT_EQ(seleccion(), (std::vector{1, 4, 1, 4}));
}

TEST_F(Celdas, WithColourEditingEachSetterPaintsInItsOwnWay) {
    e.edicionColor = true;
    Color_Matrix_en_Cad(e, 1, 1, 1); // named as index, painted as screen colour
    Color_Matrix_en_Cad_dado_N_VB(e, 1, 2, 0x123456);
    Color_Matrix_en_Cad_dado_N_cad(e, 1, 3, 1);
    Color_Matrix_de_Cad(e, 1, 4, 1);
    EXPECT_EQ(fondos_fila(1), (std::vector<std::int32_t>{0, 1, 0x123456, 0x0000FF, 0}));
    EXPECT_FALSE(e.tablero.tiene_fondo(1, 4));
    EXPECT_EQ(texto(1, 1), "rojo");
    EXPECT_EQ(texto(1, 2), "7");
    EXPECT_EQ(texto(1, 3), "rojo");
    EXPECT_EQ(texto(1, 4), "rojo");
}

TEST_F(Celdas, ZeroIsByLayerOrBlack) {
    e.edicionColor = true;
    Color_Matrix_en_Cad(e, 1, 1, 0);
    Color_Matrix_en_Cad_dado_N_VB(e, 1, 2, 0);
    Color_Matrix_en_Cad_dado_N_cad(e, 1, 3, 0);
    EXPECT_EQ(texto(1, 1), "por capa");
    EXPECT_EQ(texto(1, 2), "7");
    EXPECT_EQ(texto(1, 3), "por capa");
    EXPECT_EQ(fondos_fila(1), (std::vector<std::int32_t>{0, 0, 0, 0x807C80, 0}));
    EXPECT_TRUE(e.tablero.tiene_fondo(1, 1));
}

TEST_F(Celdas, NumbersBeyondThePaletteKeepTheirDigits) {
    e.edicionColor = true;
    Color_Matrix_en_Cad(e, 1, 1, 0x00FF00);
    Color_Matrix_en_Cad_dado_N_cad(e, 1, 2, 300);
    EXPECT_EQ(texto(1, 1), "65280");
    EXPECT_EQ(texto(1, 2), "300");
    EXPECT_EQ(e.tablero.color_fondo(1, 1), 0x00FF00);
    EXPECT_EQ(e.tablero.color_fondo(1, 2), 0xFFFFFF);
}

TEST_F(Celdas, NegativeColoursAreRefusedWithAMessage) {
    e.edicionColor = true;
    Color_Matrix_en_Cad(e, 2, 2, -1);
    Color_Matrix_de_Cad(e, 2, 2, -1);
    Color_Matrix_en_Cad_dado_N_VB(e, 2, 2, -1);
    Color_Matrix_en_Cad_dado_N_cad(e, 2, 2, -1);
    EXPECT_EQ(p.registro, (Registro(4, NEGATIVO)));
    EXPECT_EQ(texto(2, 2), "");
    EXPECT_FALSE(e.tablero.tiene_fondo(2, 2));
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
}

TEST_F(Celdas, TheRefusalComesBeforeTheRange) {
    Color_Matrix_en_Cad(e, 99, 99, -1);
    EXPECT_EQ(p.registro, (Registro{NEGATIVO}));
}

TEST_F(Celdas, ColouringIsNoEditByTheUser) {
    e.edicionColor = true;
    Color_Matrix_en_Cad_dado_N_cad(e, 1, 1, 1);
    EXPECT_EQ(e.Modificado, 0);
    EXPECT_TRUE(p.registro.empty());
}

TEST_F(Celdas, WithoutColourEditingTheNameTellsTheScreenColour) {
    const std::vector<std::pair<const char*, std::int32_t>> casos{{"azul", 0xFF0000}, {"por capa", 0x807C80},
        {"12", 0x0000D0}, {"255", 0xFFFFFF}, {"-3", 0xFFFFFF}, {"300", 0xFFFFFF}, {"2.5", 0x00FFFF}};
    for (const auto& [nombre, color] : casos) {
        e.tablero.TextMatrix(1, 1, nombre);
        e.tablero.color_fondo({1, 1, 1, 1}, 0x123456);
        EXPECT_EQ(Color_Matrix_en_VB(e, 1, 1), color) << nombre;
    }
}

TEST_F(Celdas, WithColourEditingTheBackgroundTellsIt) {
    e.edicionColor = true;
    e.tablero.TextMatrix(1, 1, "Rojo");
    EXPECT_EQ(Color_Matrix_en_VB(e, 1, 1), 0);
    e.tablero.color_fondo({1, 1, 1, 1}, 0x123456);
    EXPECT_EQ(Color_Matrix_en_VB(e, 1, 1), 0x123456);
}

TEST_F(Celdas, ATextThatIsNoColourRaisesItsError) {
    const std::vector<std::pair<const char*, int>> casos{
        {"Rojo", 13}, {"", 13}, {"rojo ", 13}, {"32768", 6}, {"-32769", 6}};
    for (const auto& [nombre, numero] : casos) {
        e.tablero.TextMatrix(2, 1, nombre);
        try {
            static_cast<void>(Color_Matrix_en_VB(e, 2, 1));
            ADD_FAILURE() << nombre;
        } catch (const Error& error) {
            EXPECT_EQ(error.numero(), numero) << nombre;
        }
    }
    EXPECT_EQ(seleccion(), (std::vector{2, 1, 2, 1}));
}

} // namespace
