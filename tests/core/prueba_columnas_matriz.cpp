// SPDX-License-Identifier: MIT
// Columns as arrays and arrays as columns: which columns, which elements, what is written, what is refused.
#include "core/columnas_matriz.h"
#include "tests/core/mesa.h"

#include <array>
#include <limits>
#include <vector>

namespace {

using namespace Qlt4_Tabla;

constexpr int C = 2;
constexpr double INFINITO = std::numeric_limits<double>::infinity();
constexpr double NADA = std::numeric_limits<double>::quiet_NaN();

class ColumnasMatriz : public ::testing::Test {
protected:
    ColumnasMatriz() {
        mesa.pon_tamano(4, 4);
        mesa.pon_formato(0, T_formato::Alfanm);
        mesa.pon_formato(C, T_formato::Real__, 2);
        mesa.escribe(C, {"a", "b", "c"});
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

    void asigna(const std::vector<double>& valores) { asigna_columna(e, C, std::span(valores)); }

    void asigna(const Textos& valores) { asigna_columna(e, C, std::span(valores)); }

    Mesa mesa;
    EstadoTabla& e = mesa.e;
};

// --- Which column goes with which array ---

TEST_F(ColumnasMatriz, NumbersGoWithNumericColumnsTextsWithAllOthers) {
    for (int clase = -1; clase <= 8; ++clase) {
        mesa.pon_formato(C, static_cast<T_formato>(clase));
        const bool numerica = clase >= 0 && clase <= 3;
        EXPECT_EQ(se_puede_obtener(e, C, ClaseMatriz::Numeros), numerica) << clase;
        EXPECT_EQ(se_puede_obtener(e, C, ClaseMatriz::Textos), !numerica) << clase;
        EXPECT_EQ(se_puede_asignar(e, C, ClaseMatriz::Numeros), numerica) << clase;
        EXPECT_EQ(se_puede_asignar(e, C, ClaseMatriz::Textos), !numerica) << clase;
    }
}

TEST_F(ColumnasMatriz, TheRefusalIsTwoLines) {
    EXPECT_FALSE(se_puede_obtener(e, C, ClaseMatriz::Textos));
    EXPECT_FALSE(se_puede_asignar(e, C, ClaseMatriz::Textos));
    EXPECT_FALSE(se_puede_obtener(e, 0, ClaseMatriz::Numeros));
    EXPECT_FALSE(se_puede_asignar(e, 0, ClaseMatriz::Numeros));
    const std::string obtener = "mensaje|16||ERROR Tabla.ocx: Obtener una matriz de una columna\r\n";
    const std::string asignar = "mensaje|16||ERROR Tabla.ocx: Asignar una matriz a una columna\r\n";
    EXPECT_EQ(mesa.p.registro,
        (Registro{obtener + "tiene que ser una columna alfanumérica",
            asignar + "tiene que ser una columna alfanumérica",
            obtener + "tiene que ser una columna numérica", asignar + "tiene que ser una columna numérica"}));
}

TEST_F(ColumnasMatriz, AColumnWithoutFormatIsAnError) {
    for (const int fuera : {-1, 26, 1000000}) {
        for (const ClaseMatriz clase : {ClaseMatriz::Numeros, ClaseMatriz::Textos}) {
            EXPECT_EQ(numero_error([&] { static_cast<void>(se_puede_obtener(e, fuera, clase)); }), 9);
            EXPECT_EQ(numero_error([&] { static_cast<void>(se_puede_asignar(e, fuera, clase)); }), 9);
        }
    }
    EXPECT_TRUE(mesa.p.registro.empty());
}

TEST_F(ColumnasMatriz, AColumnBeyondTheGridIsAnErrorAndNothingIsWritten) {
    const std::string antes = mesa.foto();
    std::vector<double> numeros(3);
    Textos textos(3);
    for (const int fuera : {-1, 4, 25}) {
        EXPECT_EQ(numero_error([&] { obtiene_columna(e, fuera, std::span(numeros)); }), 9);
        EXPECT_EQ(numero_error([&] { obtiene_columna(e, fuera, std::span(textos)); }), 9);
        EXPECT_EQ(numero_error([&] { asigna_columna(e, fuera, std::span<const double>(numeros)); }), 9);
        EXPECT_EQ(numero_error([&] { asigna_columna(e, fuera, std::span<const std::string>(textos)); }), 9);
    }
    EXPECT_EQ(mesa.foto(), antes);
}

// --- Elements of an array by row ---

TEST_F(ColumnasMatriz, TheElementOfIndexOneBelongsToRowOne) {
    const auto numeros = [](const Matriz<double>& m) {
        const std::span<const double> s = desde_fila_1(m);
        return std::vector<double>(s.begin(), s.end());
    };
    using V = std::vector<double>;
    EXPECT_EQ(numeros(Matriz<double>(1, {10, 11})), (V{10, 11}));
    EXPECT_EQ(numeros(Matriz<double>(0, {9, 10, 11})), (V{10, 11}));
    EXPECT_EQ(numeros(Matriz<double>(-2, {7, 8, 9, 10})), (V{10}));
    EXPECT_EQ(numeros(Matriz<double>(-2, {7, 8, 9})), V());
    EXPECT_EQ(numeros(Matriz<double>(0, {9})), V());
    EXPECT_EQ(numeros(Matriz<double>(1, 0)), V());
    EXPECT_EQ(numeros(Matriz<double>(std::numeric_limits<std::int32_t>::min(), {1})), V());
}

TEST_F(ColumnasMatriz, ArraysOfAnotherShapeAreRefused) {
    const std::array<Matriz<double>, 4> malas{
        Matriz<double>(), Matriz<double>(1, 3, 2), Matriz<double>(2, {1}), Matriz<double>(2, 1)};
    for (const Matriz<double>& m : malas)
        EXPECT_EQ(numero_error([&] { static_cast<void>(desde_fila_1(m)); }), 9);
}

// --- Column to array ---

TEST_F(ColumnasMatriz, NumbersAreReadAsTheyStand) {
    mesa.escribe(C, {" 12", "-3,75", "12.5 m"});
    std::vector<double> valores(3, 99);
    obtiene_columna(e, C, std::span(valores));
    EXPECT_EQ(valores, (std::vector<double>{12, -3.75, 12.5}));
    mesa.escribe(C, {"", "abc", "1e400"});
    obtiene_columna(e, C, std::span(valores));
    EXPECT_EQ(valores, (std::vector<double>{0, 0, 0}));
}

TEST_F(ColumnasMatriz, TextsAreReadAsTheyStand) {
    mesa.escribe(C, {"ñandú", "", " 1,50 "});
    Textos valores(3, "x");
    obtiene_columna(e, C, std::span(valores));
    EXPECT_EQ(valores, (Textos{"ñandú", "", " 1,50 "}));
    obtiene_columna(e, 0, std::span(valores));
    EXPECT_EQ(valores, (Textos{"1", "2", "3"}));
}

// --- Array to column ---

TEST_F(ColumnasMatriz, RealColumnsShowTheirDecimals) {
    asigna({1.005, -2, 1e-3});
    EXPECT_EQ(mesa.columna(C), (Textos{"1.01", "-2.00", "0.00"}));
}

TEST_F(ColumnasMatriz, WholeNumberColumnsKeepThePlaceOfTheSign) {
    for (const T_formato clase : {T_formato::Entero, T_formato::EntPos}) {
        mesa.pon_formato(C, clase, 2);
        asigna({12, -7, 2.5});
        EXPECT_EQ(mesa.columna(C), (Textos{" 12", "-7", " 2.5"}));
    }
}

TEST_F(ColumnasMatriz, RealColumnsWithoutDecimalsAreLikeWholeOnes) {
    for (const std::int16_t decimales : {std::int16_t{0}, std::int16_t{-1}}) {
        mesa.pon_formato(C, T_formato::RealPo, decimales);
        asigna({0, -7.25, 1e20});
        EXPECT_EQ(mesa.columna(C), (Textos{" 0", "-7.25", " 1E+20"}));
    }
}

TEST_F(ColumnasMatriz, ElementsBeyondTheLastRowAreIgnored) {
    asigna({1, 2, 3, 4, NADA});
    EXPECT_EQ(mesa.columna(C), (Textos{"1.00", "2.00", "3.00"}));
    EXPECT_EQ(mesa.t().Rows(), 4);
}

TEST_F(ColumnasMatriz, RowsBeyondTheArrayKeepTheirCells) {
    asigna({1, 2});
    EXPECT_EQ(mesa.columna(C), (Textos{"1.00", "2.00", "c"}));
    asigna(std::vector<double>());
    EXPECT_EQ(mesa.columna(C), (Textos{"1.00", "2.00", "c"}));
}

TEST_F(ColumnasMatriz, AnElementThatIsNotFiniteIsAnErrorBeforeAnyWrite) {
    const std::string antes = mesa.foto();
    for (const double malo : {INFINITO, -INFINITO, NADA})
        EXPECT_EQ(numero_error([&] { asigna({1, 2, malo}); }), 6);
    EXPECT_EQ(mesa.foto(), antes);
}

TEST_F(ColumnasMatriz, TextsAreWrittenAsTheyAre) {
    mesa.pon_formato(C, T_formato::ListaU);
    asigna(Textos{"1,5", "", "ñ", "beyond"});
    EXPECT_EQ(mesa.columna(C), (Textos{"1,5", "", "ñ"}));
    asigna(Textos{"z"});
    EXPECT_EQ(mesa.columna(C), (Textos{"z", "", "ñ"}));
}

TEST_F(ColumnasMatriz, TheViewHearsOnceAndOnlyOfChanges) {
    asigna({1, 2, 3});
    EXPECT_EQ(mesa.p.vista.recoge(), (Textos{"celdas 1 2 3 2"}));
    asigna({1, 5, 3});
    EXPECT_EQ(mesa.p.vista.recoge(), (Textos{"celdas 2 2 2 2"}));
    asigna({1, 5, 3});
    EXPECT_TRUE(mesa.p.vista.recoge().empty());
    EXPECT_TRUE(mesa.p.registro.empty());
}

TEST_F(ColumnasMatriz, AHeaderOnlyTableTakesNothing) {
    mesa.t().Rows(1);
    mesa.t().TextMatrix(0, C, "X");
    asigna({1, NADA});
    asigna(Textos{"a"});
    EXPECT_EQ(mesa.celda(0, C), "X");
    obtiene_columna(e, C, std::span<double>());
}

TEST_F(ColumnasMatriz, TheDecimalSeparatorIsAskedForWhereNumbersAreWritten) {
    mesa.p.separador.coma = true;
    asigna({1, 2});
    EXPECT_TRUE(e.ComaDecimal);
    EXPECT_EQ(mesa.p.separador.preguntas, 1);
    asigna(Textos{"a"});
    EXPECT_EQ(mesa.p.separador.preguntas, 1);
}

} // namespace
