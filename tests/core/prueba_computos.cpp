// SPDX-License-Identifier: MIT
// Column computations: results, formats, warnings, errors in the middle, what the view hears.
#include "core/computos.h"
#include "core/formatos.h"
#include "tests/core/mesa.h"

#include <utility>
#include <vector>

namespace {

using namespace Qlt4_Tabla;

constexpr int A = 1;
constexpr int B = 2;
constexpr int R = 3;

class Computos : public ::testing::Test {
protected:
    Computos() {
        mesa.pon_tamano(5, 4);
        for (const int col : {0, R, 4}) mesa.pon_formato(col, T_formato::Alfanm);
        for (const int col : {A, B}) mesa.pon_formato(col, T_formato::Real__, 2);
        for (int col = 0; col < 5; ++col) {
            mesa.e.Formatos[static_cast<std::size_t>(col)].Longitud = 10;
            mesa.t().ColWidth(col, 1200);
        }
        e.nombres.Tablero_Pon_Nombre(2, true, "Puntos");
        static_cast<void>(mesa.p.vista.recoge());
    }

    template <class F>
    static int numero_error(F&& orden) {
        try {
            orden();
        } catch (const Error& error) {
            return error.numero();
        }
        return 0;
    }

    void suma() { suma_columnas(e, A, B, R); }

    void diferencia(int col, int resultado) { diferencia_parcial(e, col, resultado, {}); }

    // The cells told of as negative: row, column.
    std::vector<std::pair<int, int>> negativos(int col, int resultado) {
        std::vector<std::pair<int, int>> celdas;
        try {
            diferencia_parcial(
                e, col, resultado, [&](EstadoTabla&, int f, int c) { celdas.emplace_back(f, c); });
        } catch (const Error&) { // NOLINT(bugprone-empty-catch): the cells told of before it
        }
        return celdas;
    }

    Mesa mesa;
    EstadoTabla& e = mesa.e;
};

using P = std::vector<std::pair<int, int>>;

// --- Sum and difference of two columns ---

TEST_F(Computos, EveryRowGetsItsSumAndEmptyCellsCountAsZero) {
    mesa.escribe(A, {"1", "", "x"});
    mesa.escribe(B, {"2.5", "3", ""});
    suma();
    EXPECT_EQ(mesa.columna(R), (Textos{"3.500000000", "3.000000000", "0.000000000"}));
}

TEST_F(Computos, TheDifferenceIsTheFirstColumnLessTheSecond) {
    mesa.escribe(A, {"1,5", "2", "-4"});
    mesa.escribe(B, {"0.25", "5", "-1"});
    resta_columnas(e, A, B, R);
    EXPECT_EQ(mesa.columna(R), (Textos{"1.250000000", "-3.000000000", "-3.000000000"}));
}

TEST_F(Computos, TheResultTakesTheFormatOfItsColumn) {
    mesa.escribe(A, {"1", "0.125", "1e3"});
    mesa.escribe(B, {"2", "0", "0.5"});
    mesa.pon_formato(R, T_formato::Real__, 2);
    suma();
    EXPECT_EQ(mesa.columna(R), (Textos{"3.00", "0.13", "1000.50"}));
    mesa.pon_formato(R, T_formato::Entero);
    suma();
    EXPECT_EQ(mesa.columna(R), (Textos{"3", "0.125", "1000.5"}));
}

TEST_F(Computos, TheResultIsRoundedToNineDecimalsBeforeItsColumnsFormat) {
    mesa.escribe(A, {"0.0049999996", "0.00000000049", "1"});
    mesa.pon_formato(R, T_formato::RealPo, 2);
    suma();
    EXPECT_EQ(mesa.columna(R), (Textos{"0.01", "0.00", "1.00"})); // 0.005 after nine decimals
}

TEST_F(Computos, AColumnMayBeItsOwnSummandAndResult) {
    mesa.escribe(A, {"1", "2", "3"});
    suma_columnas(e, A, A, A);
    EXPECT_EQ(mesa.columna(A), (Textos{"2.00", "4.00", "6.00"}));
    resta_columnas(e, A, A, A);
    EXPECT_EQ(mesa.columna(A), (Textos{"0.00", "0.00", "0.00"}));
}

TEST_F(Computos, RowNumbersAreNumbersToo) {
    mesa.escribe(A, {"10", "10", "10"});
    suma_columnas(e, 0, A, R);
    EXPECT_EQ(mesa.columna(R), (Textos{"11.000000000", "12.000000000", "13.000000000"}));
    suma_columnas(e, 0, 0, 0);
    EXPECT_EQ(mesa.columna(0), (Textos{"2.000000000", "4.000000000", "6.000000000"}));
}

TEST_F(Computos, ASumIntoAListColumnFallsBackToTheFirstValue) {
    mesa.pon_formato(R, T_formato::ListaU);
    e.listas[R].Col = Matriz<std::string>(0, {"uno", "dos"});
    suma();
    EXPECT_EQ(mesa.columna(R), (Textos{"uno", "uno", "uno"}));
}

TEST_F(Computos, AListWithoutValuesIsAnErrorAfterTheResultsWereWritten) {
    mesa.pon_formato(R, T_formato::ListaU);
    e.Formatos[R].Invisible = true;
    EXPECT_EQ(numero_error([&] { suma(); }), 9);
    EXPECT_EQ(mesa.celda(3, R), "0.000000000");
    EXPECT_EQ(mesa.t().ColWidth(R), 0);
    EXPECT_TRUE(mesa.t().Redraw());
}

TEST_F(Computos, AnInvisibleResultIsFormattedAndStaysHidden) {
    mesa.pon_formato(R, T_formato::Real__, 1);
    e.Formatos[R].Invisible = true;
    mesa.t().ColWidth(R, 0);
    suma();
    EXPECT_EQ(mesa.celda(1, R), "0.0");
    EXPECT_EQ(mesa.t().ColWidth(R), 0);
    diferencia(A, R);
    EXPECT_EQ(mesa.t().ColWidth(R), 0);
}

TEST_F(Computos, AVisibleResultHasTheWidthOfItsFormatAgain) {
    mesa.t().ColWidth(R, 77);
    suma();
    EXPECT_EQ(mesa.t().ColWidth(R), 1200);
}

TEST_F(Computos, AHeaderOnlyTableHasNothingToCompute) {
    mesa.t().Rows(1);
    mesa.t().TextMatrix(0, R, "R");
    suma();
    diferencia(A, R);
    EXPECT_EQ(mesa.celda(0, R), "R");
    EXPECT_EQ(mesa.p.separador.preguntas, 0);
}

TEST_F(Computos, AnInfiniteSumIsAnErrorAndTheRowsDoneStay) {
    mesa.escribe(A, {"1", "1E308", "1"});
    mesa.escribe(B, {"1", "1E308", "1"});
    mesa.escribe(R, {"a", "b", "c"});
    EXPECT_EQ(numero_error([&] { suma(); }), 6);
    EXPECT_EQ(mesa.columna(R), (Textos{"2.000000000", "b", "c"}));
    EXPECT_TRUE(mesa.t().Redraw());
}

TEST_F(Computos, AfterAnErrorTheRowsDoneHaveNoFormatYet) {
    mesa.escribe(A, {"1", "1E308", "1"});
    mesa.escribe(B, {"1", "1E308", "1"});
    mesa.escribe(R, {"a", "b", "c"});
    mesa.pon_formato(R, T_formato::Real__, 2);
    mesa.t().ColWidth(R, 77);
    EXPECT_EQ(numero_error([&] { suma(); }), 6);
    EXPECT_EQ(mesa.columna(R), (Textos{"2.000000000", "b", "c"}));
    EXPECT_EQ(mesa.t().ColWidth(R), 77);
    EXPECT_EQ(mesa.columna(A), (Textos{"1", "1E308", "1"}));
}

TEST_F(Computos, AWidthBeyond16BitsIsAnErrorAfterTheResultsWereWritten) {
    mesa.escribe(A, {"1", "2", "3"});
    mesa.pon_formato(R, T_formato::Real__, 2);
    e.Formatos[R].Longitud = 300;
    EXPECT_EQ(numero_error([&] { suma(); }), 6);
    EXPECT_EQ(mesa.columna(R), (Textos{"1.000000000", "2.000000000", "3.000000000"}));
}

TEST_F(Computos, ANegativeSumThatRoundsToZeroLosesItsSignTheNextTimeItIsFormatted) {
    mesa.escribe(A, {"-0.001", "1", "1"});
    mesa.pon_formato(R, T_formato::Real__, 2);
    suma();
    EXPECT_EQ(mesa.celda(1, R), "-0.00");
    Tablero_Formato_Columna(e, R);
    EXPECT_EQ(mesa.celda(1, R), "0.00");
}

TEST_F(Computos, TheViewHearsOnceOfTheResultColumn) {
    mesa.escribe(A, {"1", "2", "3"});
    static_cast<void>(mesa.p.vista.recoge());
    mesa.pon_formato(R, T_formato::Real__, 2);
    suma();
    EXPECT_EQ(mesa.p.vista.recoge(), (Textos{"celdas 1 3 3 3"}));
}

TEST_F(Computos, ARedrawSwitchedOffStaysOff) {
    mesa.t().Redraw(false);
    suma();
    diferencia(A, R);
    EXPECT_FALSE(mesa.t().Redraw());
}

TEST_F(Computos, ColumnsBeyondTheGridAreRefusedBeforeAnyChange) {
    mesa.escribe(R, {"a", "b", "c"});
    const std::string antes = mesa.foto();
    for (const int fuera : {-1, 5, 25, 26}) {
        EXPECT_EQ(numero_error([&] { suma_columnas(e, fuera, B, R); }), 9);
        EXPECT_EQ(numero_error([&] { suma_columnas(e, A, fuera, R); }), 9);
        EXPECT_EQ(numero_error([&] { resta_columnas(e, A, B, fuera); }), 9);
        EXPECT_EQ(numero_error([&] { diferencia(fuera, R); }), 9);
        EXPECT_EQ(numero_error([&] { diferencia(A, fuera); }), 9);
    }
    EXPECT_EQ(mesa.foto(), antes);
}

TEST_F(Computos, TheDecimalSeparatorIsAskedForOnceAComputation) {
    mesa.p.separador.coma = true;
    suma();
    EXPECT_EQ(mesa.p.separador.preguntas, 1);
    EXPECT_TRUE(e.ComaDecimal);
}

TEST_F(Computos, NothingIsRaisedAndTheCellStays) {
    mesa.t().selecciona(2, 1, 3, 2);
    suma();
    diferencia(A, R);
    EXPECT_TRUE(mesa.p.registro.empty());
    EXPECT_EQ(mesa.t().seleccion(), (Bloque{2, 1, 3, 2}));
    EXPECT_EQ(e.Modificado, 0);
}

// --- Partial difference ---

TEST_F(Computos, EachRowLessTheOneAboveAndTheFirstEmpty) {
    mesa.escribe(A, {"10", "12", "9"});
    mesa.escribe(R, {"x", "x", "x"});
    diferencia(A, R);
    EXPECT_EQ(mesa.columna(R), (Textos{"", "2.000000000", "-3.000000000"}));
    mesa.pon_formato(R, T_formato::Entero);
    diferencia(A, R);
    EXPECT_EQ(mesa.columna(R), (Textos{"", "2", "-3"}));
}

TEST_F(Computos, OnItsOwnColumnTheRowAboveIsAlreadyTheNewOne) {
    mesa.escribe(A, {"10", "12", "9"});
    diferencia(A, A);
    EXPECT_EQ(mesa.columna(A), (Textos{"", "12.00", "-3.00"})); // 12 - nothing, 9 - 12
}

TEST_F(Computos, OnItsOwnColumnTheNewOneHasNineDecimals) {
    mesa.pon_formato(A, T_formato::Alfanm);
    mesa.escribe(A, {"0", "0.00000000049", "1"});
    diferencia(A, A);
    EXPECT_EQ(mesa.columna(A), (Textos{"", "0.000000000", "1.000000000"}));
}

TEST_F(Computos, NegativeResultsAreToldFromTheTop) {
    mesa.escribe(A, {"5", "4", "3"});
    EXPECT_EQ(negativos(A, R), (P{{2, R}, {3, R}}));
    mesa.escribe(A, {"5", "5", "9"});
    EXPECT_EQ(negativos(A, R), P());
}

TEST_F(Computos, ANegativeResultThatShowsAsZeroIsStillToldOf) {
    mesa.escribe(A, {"1", "0.9999999999", "2"});
    EXPECT_EQ(negativos(A, R), (P{{2, R}}));
    EXPECT_EQ(mesa.celda(2, R), "-0.000000000");
}

TEST_F(Computos, TheFirstRowIsNeverNegative) {
    mesa.escribe(A, {"-5", "-4", "-3"});
    EXPECT_EQ(negativos(A, R), P());
}

TEST_F(Computos, AnErrorInTheMiddleLeavesTheRowsDoneAndTellsTheirNegatives) {
    mesa.pon_tamano(5, 5);
    mesa.escribe(A, {"1", "0", "-1E308", "1E308"});
    EXPECT_EQ(negativos(A, R), (P{{2, R}, {3, R}}));
    EXPECT_EQ(mesa.celda(2, R), "-1.000000000");
    EXPECT_EQ(mesa.celda(4, R), "");
    EXPECT_EQ(numero_error([&] { diferencia(A, R); }), 6);
}

TEST_F(Computos, NegativesBeforeAnErrorAreToldOnceInAColumnWithFormatToo) {
    mesa.pon_tamano(5, 5);
    mesa.pon_formato(R, T_formato::Real__, 1);
    mesa.escribe(A, {"1", "0", "-1E308", "1E308"});
    EXPECT_EQ(negativos(A, R), (P{{2, R}, {3, R}}));
    EXPECT_EQ(mesa.celda(2, R), "-1.000000000");
    mesa.escribe(A, {"1", "0", "2", "1"});
    EXPECT_EQ(negativos(A, R), (P{{2, R}, {4, R}}));
    EXPECT_EQ(mesa.columna(R), (Textos{"", "-1.0", "2.0", "-1.0"}));
}

// --- Warnings ---

TEST_F(Computos, ColumnsWithoutNumbersAreWarnedOfOneByOne) {
    for (const int col : {A, B, R}) mesa.pon_formato(col, T_formato::ListaU);
    avisa_no_sumables(e, A, B, R);
    EXPECT_EQ(mesa.p.recoge(),
        (Registro{"mensaje|16||ERROR en Tabla.ocx:la columna no es Sumable: 1 ->Puntos",
            "mensaje|16||ERROR en Tabla.ocx:la columna no es Sumable: 2 ->Puntos",
            "mensaje|16||ERROR en Tabla.ocx:la columna no es Sumable: 3 ->Puntos"}));
    avisa_no_numericas(e, A, R);
    EXPECT_EQ(mesa.p.recoge(),
        (Registro{"mensaje|16||ERROR en Tabla.ocx:la columna no es numérica: 1 ->Puntos",
            "mensaje|16||ERROR en Tabla.ocx:la columna no  numérica: 3 ->Puntos"}));
}

TEST_F(Computos, NumbersAndTextsPassListsColoursAndPicturesDoNot) {
    const std::vector<std::pair<int, bool>> casos{{-1, true}, {0, true}, {1, true}, {2, true}, {3, true},
        {4, true}, {5, false}, {6, false}, {7, false}, {8, false}};
    for (const auto& [clase, pasa] : casos) {
        mesa.pon_formato(A, static_cast<T_formato>(clase));
        avisa_no_sumables(e, A, B, R);
        avisa_no_numericas(e, A, R);
        EXPECT_EQ(mesa.p.recoge().size(), pasa ? 0U : 2U) << clase;
    }
}

TEST_F(Computos, AColumnWithoutFormatIsAnErrorAfterTheWarningsBeforeIt) {
    mesa.pon_formato(A, T_formato::Color_);
    for (const int fuera : {26, -1}) {
        EXPECT_EQ(numero_error([&] { avisa_no_sumables(e, A, fuera, A); }), 9);
        EXPECT_EQ(mesa.p.recoge().size(), 1U);
        EXPECT_EQ(numero_error([&] { avisa_no_numericas(e, fuera, A); }), 9);
        EXPECT_TRUE(mesa.p.recoge().empty());
    }
    avisa_no_sumables(e, 25, 25, 25);
    EXPECT_TRUE(mesa.p.registro.empty());
}

} // namespace
