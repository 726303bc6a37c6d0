// SPDX-License-Identifier: MIT
// The members that size the table, read and write cells, and act on rows, through the class and through
// the dispatcher.
#include "tests/control/mesa.h"

#include <limits>
#include <memory>

namespace {

using namespace prueba;

class Celdas : public Mesa {};
TRES_VIAS(Celdas);

// --- As it comes ---

TEST_P(Celdas, ANewTableIsReady) {
    EXPECT_EQ(t.Rows(), 4);
    EXPECT_EQ(t.Cols(), 5);
    EXPECT_EQ(t.A_fila_Activa(), 1);
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
    EXPECT_EQ(t.A_ExtensionFche(), "*.tb0");
    EXPECT_EQ(t.A_GrabaRevoca(), "NO");
    EXPECT_EQ(celda(3, 0), "3");
    EXPECT_TRUE(g().Redraw());
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(Celdas, TwoTablesShareNothing) {
    PlataformaMemoria otra_plataforma;
    Tabla0 otra(otra_plataforma.plataforma(), otra_plataforma.eventos);
    t.Rows(9);
    t.A_Edicion_pon_Color();
    EXPECT_EQ(otra.Rows(), 4);
    EXPECT_FALSE(otra.estado().edicionColor);
}

// --- Size of the component ---

TEST_P(Celdas, WidthAndHeightTakeWhatConvertsToANumber) {
    t.Width(5000);
    t.Height("1234.5");
    EXPECT_EQ(t.Width(), Variante(5000.0F));
    EXPECT_EQ(t.Height(), Variante(1234.5F));
    EXPECT_EQ(p.marco.ancho(), 5000.0F);
}

TEST_P(Celdas, AWidthOrHeightThatIsNoNumberIsShown) {
    EXPECT_EQ(numero_error([&] { t.Width("ancho"); }), 0);
    EXPECT_EQ(numero_error([&] { t.Height("alto"); }), 0);
    EXPECT_EQ(p.registro,
        (Registro{"mensaje|16||Tabla Width - Error nº 13: No coinciden los tipos",
            "mensaje|16||Tabla Height - Error nº 13: No coinciden los tipos"}));
    EXPECT_EQ(t.Width(), Variante(4000.0F));
}

TEST_P(Celdas, AWidthBeyondASingleIsShown) {
    t.Width(1e300);
    EXPECT_EQ(p.registro, (Registro{"mensaje|16||Tabla Width - Error nº 6: Desbordamiento"}));
}

// --- Rows and columns ---

TEST_P(Celdas, MoreRowsAreNumberedAndTheRowCountFollows) {
    t.Tablero_Nombres("", "Puntos", "*.tb0");
    t.Rows(13);
    EXPECT_EQ(t.Rows(), 13);
    EXPECT_EQ(celda(12, 0), "12");
    EXPECT_EQ(tabla.estado().etiquetas.labNumeroFilas.texto, "Nº de Puntos = 12");
    EXPECT_EQ(p.registro, (Registro{"propiedad Rows"}));
}

TEST_P(Celdas, FewerRowsDropTheLast) {
    t.TextMatrix(1, 1, "a");
    t.Rows(2);
    EXPECT_EQ(t.Rows(), 2);
    EXPECT_EQ(t.TextMatrix(1, 1), "a");
}

TEST_P(Celdas, RowsBelowOneAreIgnored) {
    for (const std::int32_t n : {0, -1, std::numeric_limits<std::int32_t>::min()}) t.Rows(n);
    EXPECT_EQ(t.Rows(), 4);
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(Celdas, MoreCellsThanAGridHasAreShownAndChangeNothing) {
    EXPECT_EQ(numero_error([&] { t.Rows((1 << 28) / 5 + 1); }), 0);
    EXPECT_EQ(numero_error([&] { t.Cols(std::numeric_limits<std::int32_t>::max()); }), 0);
    EXPECT_EQ(p.registro,
        (Registro{"mensaje|16||Tabla Rows - Error nº 7: Memoria insuficiente",
            "mensaje|16||Tabla Cols - Error nº 7: Memoria insuficiente"}));
    EXPECT_EQ(t.Rows(), 4);
    EXPECT_EQ(t.Cols(), 5);
}

TEST_P(Celdas, AddedColumnsGetNameAndDefaults) {
    t.Cols(7);
    EXPECT_EQ(t.Cols(), 7);
    EXPECT_EQ(formato(6).Nombre, "Col 6");
    EXPECT_EQ(formato(6).Decimales, 3);
    EXPECT_EQ(formato(6).Formato, 4);
    EXPECT_EQ(formato(6).Longitud, 10);
    EXPECT_EQ(formato(4).Nombre, "");
    EXPECT_EQ(p.registro, (Registro{"propiedad Cols"}));
}

TEST_P(Celdas, ClearLeavesTheHeader) {
    t.TextMatrix(0, 1, "X");
    t.Clear();
    EXPECT_EQ(t.Rows(), 1);
    EXPECT_EQ(t.TextMatrix(0, 1), "X");
}

// --- Cells ---

TEST_P(Celdas, RealColumnsShowTheirDecimalsAndComeBackWithAComma) {
    da_formato(1, T_formato::Real__, 2);
    t.TextMatrix(1, 1, "3.14159");
    EXPECT_EQ(celda(1, 1), "3.14");
    EXPECT_EQ(t.TextMatrix(1, 1), "3,14");
}

TEST_P(Celdas, WholeColumnsKeepTheTextAndComeBackWithAComma) {
    da_formato(1, T_formato::Entero);
    t.TextMatrix(1, 1, "3.14159");
    EXPECT_EQ(celda(1, 1), "3.14159");
    EXPECT_EQ(t.TextMatrix(1, 1), "3,14159");
}

TEST_P(Celdas, AnEmptyNumericCellReadsZeroAndAHeaderReadsAsItIs) {
    da_formato(1, T_formato::RealPo, 2);
    t.TextMatrix(0, 1, "Cota 1.5");
    EXPECT_EQ(t.TextMatrix(2, 1), "0");
    EXPECT_EQ(t.TextMatrix(0, 1), "Cota 1.5");
}

TEST_P(Celdas, OutsideTheGridNothingIsWrittenAndNothingRead) {
    for (const auto& [fila, col] : {std::pair{4, 1}, {1, 5}, {-1, 1}, {1, -1}}) {
        EXPECT_EQ(numero_error([&, f = fila, c = col] { t.TextMatrix(f, c, "x"); }), 0);
        EXPECT_EQ(t.TextMatrix(fila, col), "");
    }
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(Celdas, AColumnBeyondTwentyFiveRaisesErrorNineInDataRows) {
    t.Cols(28);
    p.registro.clear();
    EXPECT_EQ(numero_error([&] { t.TextMatrix(1, 26, "x"); }), 9);
    EXPECT_EQ(numero_error([&] { static_cast<void>(t.TextMatrix(1, 26)); }), 9);
    t.TextMatrix(0, 26, "x");
    EXPECT_EQ(t.TextMatrix(0, 26), "x");
    EXPECT_EQ(p.registro, (Registro{"captura"}));
}

TEST_P(Celdas, OnlyTheFirstWriteCallsTheCapturePoint) {
    t.TextMatrix(1, 1, "a");
    t.TextMatrix(1, 2, "b");
    EXPECT_EQ(p.registro, (Registro{"captura"}));
    EXPECT_EQ(tabla.estado().Modificado, 0);
}

// --- Rows made and shown ---

TEST_P(Celdas, ANewRowIsFilledByTheColumnsActions) {
    da_formato(1, T_formato::Alfanm, 0, T_Accion::Increm);
    da_formato(2, T_formato::Alfanm, 0, T_Accion::Repite);
    t.TextMatrix(3, 1, "P9");
    t.TextMatrix(3, 2, "roca");
    t.crea_una_fila();
    EXPECT_EQ(t.Rows(), 5);
    EXPECT_EQ(celda(4, 1), "P10");
    EXPECT_EQ(celda(4, 2), "roca");
    EXPECT_EQ(p.registro, (Registro{"captura", "captura"}));
}

TEST_P(Celdas, ARowOfMoreThanTwentySixColumnsRaisesErrorNine) {
    t.Cols(27);
    EXPECT_EQ(numero_error([&] { t.crea_una_fila(); }), 9);
}

TEST_P(Celdas, ARowHeightMakesTheRowCurrent) {
    t.A_Pon_Alto(2, 500);
    EXPECT_EQ(g().RowHeight(2), 500);
    EXPECT_EQ(t.A_fila_Activa(), 2);
    t.A_Pon_Alto(4, 700);
    t.A_Pon_Alto(-1, 700);
    EXPECT_EQ(t.A_fila_Activa(), 2);
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(Celdas, APictureGoesIntoItsCellBesideTheText) {
    const auto imagen = std::make_shared<ImagenMemoria>("punto");
    t.TextMatrix(2, 3, "x");
    t.A_Pon_Imagen(2, 3, imagen);
    EXPECT_EQ(g().CellPicture(2, 3), imagen);
    EXPECT_EQ(celda(2, 3), "x");
    t.A_Pon_Imagen(2, 3, nullptr);
    EXPECT_EQ(g().CellPicture(2, 3), nullptr);
    EXPECT_EQ(numero_error([&] { t.A_Pon_Imagen(9, 9, imagen); }), 0);
}

TEST_P(Celdas, TheCurrentRowGoesThroughSixteenBits) {
    t.Rows(40000);
    static_cast<void>(t.Color_Matrix(32767, 1)); // makes the cell current
    EXPECT_EQ(t.A_fila_Activa(), 32767);
    static_cast<void>(t.Color_Matrix(32768, 1));
    EXPECT_EQ(numero_error([&] { t.A_fila_Activa(); }), 6);
    EXPECT_TRUE(p.mensajes.vistos.empty());
}

TEST_P(Celdas, TheTopRowStaysAmongTheDataRows) {
    t.A_RowTop(3);
    EXPECT_EQ(g().TopRow(), 3);
    t.A_RowTop(0);
    EXPECT_EQ(g().TopRow(), 1);
    t.A_RowTop(99);
    EXPECT_EQ(g().TopRow(), 3);
    t.A_RowTop(-5);
    EXPECT_EQ(g().TopRow(), 1);
}

TEST_P(Celdas, ACurrentColumnGivenByTheHostChangesNothing) {
    p.vista.recoge();
    t.A_Col(3);
    t.A_Col(-1);
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
    EXPECT_TRUE(p.vista.avisos.empty());
}

// --- Redrawing and merging ---

TEST_P(Celdas, WhileRedrawingIsOffTheViewHearsNothing) {
    static_cast<void>(p.vista.recoge());
    t.Redraw(false);
    t.TextMatrix(1, 1, "a");
    EXPECT_TRUE(p.vista.avisos.empty());
    t.Redraw(true);
    EXPECT_FALSE(p.vista.avisos.empty());
}

TEST_P(Celdas, ColumnsAreMarkedForMergingInsideTheGridOnly) {
    t.MergeCol(1, true);
    EXPECT_TRUE(t.MergeCol(1));
    EXPECT_FALSE(t.MergeCol(2));
    for (const std::int16_t col : {std::int16_t{-1}, std::int16_t{5}, std::int16_t{32767}}) {
        EXPECT_EQ(numero_error([&] { t.MergeCol(col, true); }), 0);
        EXPECT_FALSE(t.MergeCol(col));
    }
    t.MergeCol(1, false);
    EXPECT_FALSE(t.MergeCol(1));
}

TEST_P(Celdas, MergeModesOutsideZeroToThreeAreIgnored) {
    for (const std::int16_t modo : {std::int16_t{1}, std::int16_t{2}, std::int16_t{0}, std::int16_t{3}}) {
        t.MergeCells(modo);
        EXPECT_EQ(t.MergeCells(), modo);
    }
    t.MergeCells(4);
    t.MergeCells(-1);
    EXPECT_EQ(t.MergeCells(), 3);
    EXPECT_TRUE(p.registro.empty());
}

} // namespace
