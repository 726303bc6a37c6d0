// SPDX-License-Identifier: MIT
// Column computations and array exchange through the class and through the dispatcher: what is shown, what
// reaches the caller. Their rules in every detail: tests/core/prueba_computos.cpp, prueba_columnas_matriz.cpp.
#include "tests/control/mesa.h"

#include <limits>

namespace {

using namespace prueba;

class ComputosTabla : public Mesa {
protected:
    ComputosTabla() {
        t.Tablero_Nombres("Replanteo", "Puntos", "*.tb0");
        for (std::int16_t c = 1; c <= 4; ++c) da_formato(c, T_formato::Real__, 2);
        t.Tablero_establece_Formato();
        p.registro.clear();
    }

    void escribe(int col, const std::vector<std::string>& textos) {
        int fila = 0;
        for (const std::string& texto : textos) t.TextMatrix(++fila, col, texto);
        p.registro.clear();
    }

    std::vector<std::string> columna(int col) const {
        std::vector<std::string> textos;
        for (int f = 1; f < g().Rows(); ++f) textos.push_back(celda(f, col));
        return textos;
    }

    static std::string fuera(const std::string& miembro) {
        return "mensaje|16||Tabla " + miembro + " - Error nº 9: Subíndice fuera del intervalo";
    }
};

TRES_VIAS(ComputosTabla);

using Textos = std::vector<std::string>;
constexpr double NADA = std::numeric_limits<double>::quiet_NaN();

TEST_P(ComputosTabla, SumAndDifferenceOfTwoColumns) {
    escribe(1, {"1", "", "4"});
    escribe(2, {"2.5", "3", "5"});
    t.m_Sumar_dos_ColumnasAyB(1, 2, 3);
    t.m_Restar_dos_ColumnasA_B(1, 2, 4);
    EXPECT_EQ(columna(3), (Textos{"3.50", "3.00", "9.00"}));
    EXPECT_EQ(columna(4), (Textos{"-1.50", "-3.00", "-1.00"}));
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(ComputosTabla, NegativeDifferencesTurnRedAndTheLastIsCurrent) {
    escribe(1, {"10", "12", "9"});
    t.m_Diferencia_Parcial_1Columna(1, 2, true);
    EXPECT_EQ(columna(2), (Textos{"", "2.00", "-3.00"}));
    EXPECT_EQ(g().color_texto(2, 2), 0);
    EXPECT_EQ(g().color_texto(3, 2), 0x0000FF);
    EXPECT_EQ(seleccion(), (std::vector{3, 2, 3, 2}));
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(ComputosTabla, RedIsNeverTakenAway) {
    t.Color_1Celda(3, 2, T_colores::Rojo);
    escribe(1, {"1", "2", "3"});
    t.m_Diferencia_Parcial_1Columna(1, 2, true);
    EXPECT_EQ(g().color_texto(3, 2), 0x0000FF);
}

TEST_P(ComputosTabla, WithoutTheSwitchNothingIsColoured) {
    escribe(1, {"3", "2", "1"});
    t.m_Diferencia_Parcial_1Columna(1, 2, false);
    EXPECT_EQ(g().color_texto(2, 2), 0);
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
}

TEST(ComputosDespacho, TheSwitchMayBeLeftOut) {
    PlataformaMemoria p;
    Tabla0 tabla(p.plataforma(), p.eventos);
    tabla.TextMatrix(1, 1, "2");
    Despacho(tabla).invoca("m_Diferencia_Parcial_1Columna", Acceso::Metodo, {Variante(1), Variante(2)});
    EXPECT_EQ(tabla.tablero().TextMatrix(2, 2), "-2");
    EXPECT_EQ(tabla.tablero().color_texto(2, 2), 0);
}

TEST_P(ComputosTabla, AListIsWarnedOfAndComputedAllTheSame) {
    da_formato(3, T_formato::ListaU);
    t.Lista(3, Matriz<std::string>(0, {"uno"}));
    t.m_Sumar_dos_ColumnasAyB(1, 2, 3);
    EXPECT_EQ(p.registro, (Registro{"mensaje|16||ERROR en Tabla.ocx:la columna no es Sumable: 3 ->Puntos"}));
    EXPECT_EQ(columna(3), (Textos{"uno", "uno", "uno"}));
    p.registro.clear();
    t.m_Diferencia_Parcial_1Columna(3, 3);
    EXPECT_EQ(p.registro,
        (Registro{"mensaje|16||ERROR en Tabla.ocx:la columna no es numérica: 3 ->Puntos",
            "mensaje|16||ERROR en Tabla.ocx:la columna no  numérica: 3 ->Puntos"}));
}

TEST_P(ComputosTabla, AColumnWithoutFormatReachesTheCaller) {
    for (const std::int32_t mala : {26, -1}) {
        EXPECT_EQ(numero_error([&] { t.m_Sumar_dos_ColumnasAyB(mala, 1, 2); }), 9);
        EXPECT_EQ(numero_error([&] { t.m_Restar_dos_ColumnasA_B(1, mala, 2); }), 9);
        EXPECT_EQ(numero_error([&] { t.m_Sumar_dos_ColumnasAyB(1, 2, mala); }), 9);
        EXPECT_EQ(numero_error([&] { t.m_Diferencia_Parcial_1Columna(mala, 1); }), 9);
        EXPECT_EQ(numero_error([&] { t.m_Diferencia_Parcial_1Columna(1, mala); }), 9);
    }
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(ComputosTabla, TheErrorOfAColumnComesAfterTheWarningsBeforeIt) {
    da_formato(1, T_formato::Imagen);
    EXPECT_EQ(numero_error([&] { t.m_Sumar_dos_ColumnasAyB(1, 26, 1); }), 9);
    EXPECT_EQ(p.registro.size(), 1U);
}

TEST_P(ComputosTabla, AColumnBeyondTheGridIsShownAndNothingIsWritten) {
    escribe(3, {"1", "2", "3"});
    t.m_Sumar_dos_ColumnasAyB(1, 5, 3);
    t.m_Restar_dos_ColumnasA_B(25, 1, 3);
    t.m_Diferencia_Parcial_1Columna(5, 3, true);
    EXPECT_EQ(p.registro,
        (Registro{fuera("m_Sumar_dos_ColumnasAyB"), fuera("m_Restar_dos_ColumnasA_B"),
            fuera("m_Diferencia_Parcial_1Columna")}));
    EXPECT_EQ(columna(3), (Textos{"1.00", "2.00", "3.00"}));
}

TEST_P(ComputosTabla, AResultThatIsNotFiniteReachesTheCallerAndTheRowsDoneStay) {
    da_formato(1, T_formato::Alfanm);
    escribe(1, {"1", "1E308", "1"});
    EXPECT_EQ(numero_error([&] { t.m_Sumar_dos_ColumnasAyB(1, 1, 2); }), 6);
    EXPECT_EQ(columna(2), (Textos{"2.000000000", "", ""}));
    EXPECT_TRUE(p.registro.empty());
}

// --- Arrays ---

TEST_P(ComputosTabla, ANumericColumnAsArray) {
    escribe(1, {"1.5", "", "-2"});
    Matriz<double> m(3, {9.0});
    t.m_Obten_Matriz_Numerica_de_columna(1, m);
    EXPECT_EQ(m, Matriz<double>(1, {1.5, 0, -2}));
}

TEST_P(ComputosTabla, ATextColumnAsArray) {
    da_formato(1, T_formato::Alfanm);
    escribe(1, {"a", "", "c"});
    Matriz<std::string> m;
    t.m_Obten_Matriz_Alfanume_de_columna(1, m);
    EXPECT_EQ(m, Matriz<std::string>(1, {"a", "", "c"}));
}

TEST_P(ComputosTabla, AColumnOfTheOtherKindLeavesANewArray) {
    Matriz<std::string> textos(5, {"x"});
    t.m_Obten_Matriz_Alfanume_de_columna(1, textos);
    EXPECT_EQ(textos, Matriz<std::string>(1, {"", "", ""}));
    da_formato(1, T_formato::Alfanm);
    Matriz<double> numeros(5, {9.0});
    t.m_Obten_Matriz_Numerica_de_columna(1, numeros);
    EXPECT_EQ(numeros, Matriz<double>(1, {0, 0, 0}));
    EXPECT_EQ(p.registro.size(), 2U);
}

TEST_P(ComputosTabla, AHeaderOnlyTableGivesAnArrayWithoutElements) {
    t.Clear();
    Matriz<double> m;
    t.m_Obten_Matriz_Numerica_de_columna(1, m);
    EXPECT_EQ(m, Matriz<double>(1, 0));
    EXPECT_TRUE(p.mensajes.vistos.empty());
}

TEST_P(ComputosTabla, ArraysIntoColumns) {
    t.m_Asigna_Matriz_Numerica_a_Columna(1, Matriz<double>(1, {1, 2, 3, 4, 5}));
    t.m_Asigna_Matriz_Numerica_a_Columna(2, Matriz<double>(0, {9, 1, 2}));
    da_formato(3, T_formato::Alfanm);
    t.m__Asigna_Matriz_Alfanume_a_Columna(3, Matriz<std::string>(1, {"a", "b"}));
    EXPECT_EQ(columna(1), (Textos{"1.00", "2.00", "3.00"}));
    EXPECT_EQ(columna(2), (Textos{"1.00", "2.00", ""}));
    EXPECT_EQ(columna(3), (Textos{"a", "b", ""}));
}

TEST_P(ComputosTabla, ArraysOfTheOtherKindAreRefusedWithAMessage) {
    t.m__Asigna_Matriz_Alfanume_a_Columna(1, Matriz<std::string>(1, {"a"}));
    da_formato(2, T_formato::ListaU);
    t.m_Asigna_Matriz_Numerica_a_Columna(2, Matriz<double>(2, {NADA})); // the column is looked at first
    EXPECT_EQ(p.registro.size(), 2U);
    EXPECT_EQ(columna(1), (Textos{"", "", ""}));
    EXPECT_EQ(columna(2), (Textos{"", "", ""}));
}

TEST_P(ComputosTabla, ErrorsOfArraysReachTheCaller) {
    Matriz<double> numeros(1, {1.0});
    Matriz<std::string> textos(1, {"a"});
    const auto asigna = [&](std::int32_t col, const Matriz<double>& m) {
        return numero_error([&] { t.m_Asigna_Matriz_Numerica_a_Columna(col, m); });
    };
    for (const std::int32_t mala : {26, -1}) {
        EXPECT_EQ(asigna(mala, numeros), 9);
        EXPECT_EQ(numero_error([&] { t.m__Asigna_Matriz_Alfanume_a_Columna(mala, textos); }), 9);
        EXPECT_EQ(numero_error([&] { t.m_Obten_Matriz_Numerica_de_columna(mala, numeros); }), 9);
        EXPECT_EQ(numero_error([&] { t.m_Obten_Matriz_Alfanume_de_columna(mala, textos); }), 9);
    }
    EXPECT_EQ(numeros, Matriz<double>(1, {1.0}));
    EXPECT_EQ(asigna(1, Matriz<double>()), 9);
    EXPECT_EQ(asigna(1, Matriz<double>(2, {1.0})), 9);
    EXPECT_EQ(asigna(1, Matriz<double>(1, 2, 2)), 9);
    EXPECT_EQ(asigna(1, Matriz<double>(1, {1.0, NADA})), 6);
    da_formato(2, T_formato::Alfanm);
    EXPECT_EQ(
        numero_error([&] { t.m__Asigna_Matriz_Alfanume_a_Columna(2, Matriz<std::string>(2, {"a"})); }), 9);
    EXPECT_EQ(columna(1), (Textos{"", "", ""}));
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(ComputosTabla, ArraysOfAColumnBeyondTheGridAreShownAsErrors) {
    da_formato(10, T_formato::Alfanm);
    Matriz<double> numeros;
    Matriz<std::string> textos;
    t.m_Obten_Matriz_Numerica_de_columna(9, numeros);
    t.m_Obten_Matriz_Alfanume_de_columna(10, textos);
    t.m_Asigna_Matriz_Numerica_a_Columna(9, numeros);
    t.m__Asigna_Matriz_Alfanume_a_Columna(10, textos);
    EXPECT_EQ(p.registro,
        (Registro{fuera("m_Obten_Matriz_Numerica_de_columna"), fuera("m_Obten_Matriz_Alfanume_de_columna"),
            fuera("m_Asigna_Matriz_Numerica_a_Columna"), fuera("m__Asigna_Matriz_Alfanume_a_Columna")}));
    EXPECT_EQ(numeros, Matriz<double>(1, {0, 0, 0}));
}

// --- The same for hosts in C++ ---

class ComputosAnfitrion : public ::testing::Test {
protected:
    ComputosAnfitrion() {
        tabla.FormatoColumnas(
            1, false, false, T_formato::Real__, 1, T_Alineacion::Izqda, T_Accion::Nada__, 10, "X");
    }

    PlataformaMemoria p;
    Tabla0 tabla{p.plataforma(), p.eventos};
};

TEST_F(ComputosAnfitrion, AVectorGoesIntoAColumnAndComesBack) {
    const std::vector<double> valores{1, 2.25, -3};
    tabla.m_Asigna_Matriz_Numerica_a_Columna(1, valores);
    EXPECT_EQ(tabla.tablero().TextMatrix(2, 1), "2.3");
    std::vector<double> leidos(7, 9.0);
    tabla.m_Obten_Matriz_Numerica_de_columna(1, leidos);
    EXPECT_EQ(leidos, (std::vector<double>{1, 2.3, -3}));
}

TEST_F(ComputosAnfitrion, APartOfAnArrayGoesIntoTheFirstRows) {
    const double valores[] = {7, 8, 9, 10};
    tabla.m_Asigna_Matriz_Numerica_a_Columna(1, std::span(valores).subspan(2));
    EXPECT_EQ(tabla.tablero().TextMatrix(1, 1), "9.0");
    EXPECT_EQ(tabla.tablero().TextMatrix(3, 1), "");
}

TEST_F(ComputosAnfitrion, ErrorsAndMessagesAreThoseOfTheMember) {
    std::vector<double> valores{NADA};
    EXPECT_THROW(tabla.m_Asigna_Matriz_Numerica_a_Columna(1, valores), Error);
    EXPECT_THROW(tabla.m_Asigna_Matriz_Numerica_a_Columna(26, valores), Error);
    EXPECT_THROW(tabla.m_Obten_Matriz_Numerica_de_columna(26, valores), Error);
    EXPECT_EQ(valores.size(), 1U);
    tabla.FormatoColumnas(
        1, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 10, "X");
    tabla.m_Asigna_Matriz_Numerica_a_Columna(1, valores);
    tabla.m_Obten_Matriz_Numerica_de_columna(1, valores);
    EXPECT_EQ(valores, (std::vector<double>{0, 0, 0}));
    EXPECT_EQ(p.mensajes.vistos.size(), 2U);
}

} // namespace
