// SPDX-License-Identifier: MIT
// The short ways over the digits of a text and over columns that have their form already, beside the plain
// rules written out here, on millions of random texts: each must give the same bytes.
#include "base/decimal.h"
#include "base/numeros.h"
#include "core/computos.h"
#include "core/formatos.h"
#include "core/reglas_valor.h"
#include "tests/core/mesa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace Qlt4_Tabla {
namespace {

/// One more at the last place of a row of digits.
void sube(std::string& cifras) {
    std::size_t i = cifras.size();
    while (i > 0 && cifras[i - 1] == '9') cifras[--i] = '0';
    if (i > 0)
        ++cifras[i - 1];
    else
        cifras.insert(cifras.begin(), '1');
}

/// formato_fijo by the book: 15 digits of the number, then those rounded half away from zero.
std::string fijo_llano(double x, int decimales) {
    char memoria[64];
    std::snprintf(memoria, sizeof memoria, "%.14e", std::fabs(x));
    const int exponente = std::atoi(memoria + 17);
    std::string cifras = std::string(1, memoria[0]) + std::string(memoria + 2, 14);
    int enteras = exponente + 1;
    if (enteras <= 0) {
        cifras.insert(0, static_cast<std::size_t>(1 - enteras), '0');
        enteras = 1;
    }
    const auto quedan = static_cast<std::size_t>(enteras + decimales);
    if (cifras.size() > quedan) {
        const bool arriba = cifras[quedan] >= '5';
        cifras.resize(quedan);
        if (arriba) sube(cifras);
        enteras += static_cast<int>(cifras.size() - quedan);
    }
    cifras.resize(static_cast<std::size_t>(enteras + decimales), '0');
    cifras.insert(static_cast<std::size_t>(enteras), decimales > 0 ? "." : "");
    return (x < 0 ? "-" : "") + cifras;
}

/// What a cell of a numeric column shows.
std::string forma_llana(const std::string& texto, int decimales) {
    const double x = Valor_Numerico(texto);
    if (decimales == 0) return numero_a_texto(x);
    const bool grande = texto.find_first_of("eEdD") != std::string::npos;
    return grande ? Formato_Numero(x, 0, decimales) : fijo_llano(x, decimales);
}

class Azar {
public:
    explicit Azar(unsigned semilla) : azar_(semilla) {}

    [[nodiscard]] int hasta(int n) { return static_cast<int>(azar_() % static_cast<unsigned>(n + 1)); }

    [[nodiscard]] bool una_de(int n) { return hasta(n - 1) == 0; }

    /// Mostly a plain number, sometimes with what does not belong into one.
    [[nodiscard]] std::string numero(int enteras, int decimales) {
        std::string t = una_de(3) ? "-" : "";
        cifras(t, hasta(enteras));
        if (!una_de(4)) {
            t += una_de(4) ? ',' : '.';
            cifras(t, hasta(decimales));
        }
        if (una_de(40)) t.insert(static_cast<std::size_t>(hasta(static_cast<int>(t.size()))), raro());
        return t;
    }

private:
    void cifras(std::string& t, int n) {
        const int clase = hasta(5); // runs of zeros and nines are where rounding goes wrong
        for (; n > 0; --n) t += clase == 0 ? '0' : clase == 1 ? '9' : static_cast<char>('0' + hasta(9));
    }

    [[nodiscard]] const char* raro() {
        static constexpr const char* RAROS[] = {
            " ", "e5", "E308", "E-9", "+", "-", ".", "m", "&H1F", "\t", "ñ"};
        return RAROS[hasta(10)];
    }

    std::mt19937 azar_;
};

TEST(CaminosCortos, ATextIsTheNumberThatTheLongWayReads) {
    Azar azar(7);
    for (int i = 0; i < 1'000'000; ++i) {
        const std::string t = azar.numero(azar.una_de(2) ? 17 : 5, 14);
        const double largo = Val(Coma_a_Punto(t));
        ASSERT_EQ(Valor_Numerico(t), largo) << t;
        ASSERT_EQ(std::signbit(Valor_Numerico(t)), std::signbit(largo)) << t;
    }
}

TEST(CaminosCortos, ATextIsFormattedAsItsNumberIs) {
    Azar azar(1);
    std::string hecho;
    for (int i = 0; i < 700'000; ++i) {
        const std::string t = azar.numero(17, 12);
        const int decimales = 1 + azar.hasta(9);
        Formato_Numero(t, 0, decimales, hecho);
        ASSERT_EQ(hecho, fijo_llano(Valor_Numerico(t), decimales)) << t << " with " << decimales;
    }
}

TEST(CaminosCortos, ANumberShowsItsFifteenDigits) {
    Azar azar(8);
    char memoria[64];
    for (int i = 0; i < 700'000; ++i) {
        double x = Val(azar.numero(9, azar.hasta(12)));
        if (azar.una_de(4)) x /= 1 + azar.hasta(1000);
        const int decimales = azar.hasta(12);
        ASSERT_EQ(formato_fijo(x, decimales), fijo_llano(x, decimales)) << x << " with " << decimales;
        if (std::fabs(x) < 0.1 || std::fabs(x) >= 1e15) continue; // those may need an exponent
        std::snprintf(memoria, sizeof memoria, "%.15g", x);
        ASSERT_EQ(numero_a_texto(x), memoria);
    }
}

TEST(CaminosCortos, ATextThatIsSaidToHaveItsFormHasIt) {
    Azar azar(2);
    int con_forma = 0;
    for (int i = 0; i < 700'000; ++i) {
        const int decimales = azar.hasta(6);
        const std::string t = azar.numero(12, decimales);
        if (!tiene_forma_de_numero(t, decimales)) continue;
        ++con_forma;
        ASSERT_EQ(forma_llana(t, decimales), t) << decimales;
    }
    EXPECT_GT(con_forma, 20'000);
    EXPECT_TRUE(tiene_forma_de_numero("-123456.789", 3));
    EXPECT_TRUE(tiene_forma_de_numero("0", 0));
}

TEST(CaminosCortos, ASumOfDigitsShowsWhatTheSumOfTheNumbersShows) {
    Azar azar(3);
    int exactas = 0;
    for (int i = 0; i < 1'000'000; ++i) {
        const int enteras = 1 + azar.hasta(12);
        const auto a = decimal_de_texto(azar.numero(enteras, 9));
        const auto b = decimal_de_texto(azar.numero(azar.una_de(2) ? enteras : 7, 9));
        if (!a || !b) continue;
        const auto s = suma_exacta(*a, *b);
        if (!s) continue;
        ++exactas;
        char texto[capacidad_fijo];
        const auto valor = [&texto](const Decimal& d) {
            return Val({texto, escribe_fijo(d, d.decimales, texto)});
        };
        const double suma = valor(*a) + valor(*b);
        ASSERT_EQ(std::string(texto, escribe_fijo(*s, 9, texto)), fijo_llano(suma, 9))
            << valor(*a) << " + " << valor(*b);
    }
    EXPECT_GT(exactas, 300'000);
}

TEST(CaminosCortos, SumAndDifferenceOfColumnsFollowTheNumbers) {
    constexpr int FILAS = 100'000;
    Mesa mesa;
    mesa.pon_tamano(5, FILAS + 1);
    for (const int col : {0, 3, 4}) mesa.pon_formato(col, T_formato::Alfanm);
    Azar azar(4);
    std::vector<double> sumas;
    std::vector<double> restas;
    for (int fila = 1; fila <= FILAS; ++fila) {
        const std::string a = azar.numero(9, 9);
        const std::string b = azar.una_de(8) ? a : azar.numero(9, 9);
        mesa.t().TextMatrix(fila, 1, a);
        mesa.t().TextMatrix(fila, 2, b);
        sumas.push_back(Valor_Numerico(a) + Valor_Numerico(b));
        restas.push_back(Valor_Numerico(a) - Valor_Numerico(b));
    }
    suma_columnas(mesa.e, 1, 2, 3);
    resta_columnas(mesa.e, 1, 2, 4);
    for (int fila = 1; fila <= FILAS; ++fila) {
        const auto i = static_cast<std::size_t>(fila - 1);
        ASSERT_EQ(mesa.celda(fila, 3), Formato_Numero(sumas[i], 0, 9)) << "row " << fila;
        ASSERT_EQ(mesa.celda(fila, 4), Formato_Numero(restas[i], 0, 9)) << "row " << fila;
    }
}

TEST(CaminosCortos, AResultInItsFormIsWhatFormattingTheResultMakesIt) {
    constexpr int FILAS = 50'000;
    Mesa mesa;
    mesa.pon_tamano(5, FILAS + 1);
    for (const int col : {0, 1, 2, 3}) mesa.pon_formato(col, T_formato::Alfanm);
    Azar azar(6);
    for (int fila = 1; fila <= FILAS; ++fila)
        for (const int col : {1, 2}) mesa.t().TextMatrix(fila, col, azar.numero(9, 9));
    for (const int decimales : {0, 1, 3, 9, 12}) {
        mesa.pon_formato(
            4, decimales == 0 ? T_formato::Entero : T_formato::Real__, static_cast<std::int16_t>(decimales));
        resta_columnas(mesa.e, 1, 2, 3);
        resta_columnas(mesa.e, 1, 2, 4);
        for (int fila = 1; fila <= FILAS; ++fila)
            ASSERT_EQ(mesa.celda(fila, 4), forma_llana(mesa.celda(fila, 3), decimales)) << "row " << fila;
        diferencia_parcial(mesa.e, 1, 3, {});
        diferencia_parcial(mesa.e, 1, 4, {});
        for (int fila = 2; fila <= FILAS; ++fila)
            ASSERT_EQ(mesa.celda(fila, 4), forma_llana(mesa.celda(fila, 3), decimales)) << "row " << fila;
    }
}

/// A column of a table and the same texts in a vector, to which the plain rule is put every time.
class ColumnaYModelo {
public:
    ColumnaYModelo() {
        mesa_.pon_tamano(3, 31);
        modelo_.resize(30);
        mesa_.pon_formato(0, T_formato::Alfanm);
        mesa_.pon_formato(2, T_formato::Alfanm);
    }

    void da_un_paso(Azar& azar) {
        const int filas = static_cast<int>(modelo_.size());
        const int fila = azar.hasta(filas - 1);
        switch (azar.hasta(9)) {
        case 0: return inserta(fila, 1 + azar.hasta(2));
        case 1: return borra(fila, filas > 10 ? 1 : 0);
        case 2: return formatea(2 * azar.hasta(1), 5);
        case 3: return formatea(0, azar.hasta(1));
        case 4: return escribe_varias(fila, azar);
        case 5: return azar.una_de(3) ? sin_formato() : escribe_varias(fila, azar);
        default: return escribe(fila, azar.una_de(5) ? "1.7976931348623157E308" : azar.numero(9, 4));
        }
    }

    [[nodiscard]] bool iguales() { return mesa_.columna(1) == modelo_; }

private:
    static std::ptrdiff_t en(int fila) { return static_cast<std::ptrdiff_t>(fila); }

    void escribe(int fila, const std::string& t) {
        mesa_.t().TextMatrix(fila + 1, 1, t);
        modelo_[static_cast<std::size_t>(fila)] = t;
    }

    /// Some rows at once, of which some have the form that the column may have.
    void escribe_varias(int fila, Azar& azar) {
        const int ultima = std::min(fila + 4, static_cast<int>(modelo_.size()) - 1);
        for (int f = fila; f <= ultima; ++f) {
            const std::string numero = azar.numero(9, 4);
            modelo_[static_cast<std::size_t>(f)] =
                azar.una_de(3) ? numero : forma_llana(numero, azar.hasta(2));
        }
        std::array<std::string_view, 1> uno;
        mesa_.t().pon_filas({fila + 1, 1, ultima + 1, 1}, [&](int f) {
            uno.front() = modelo_[static_cast<std::size_t>(f - 1)];
            return std::span<const std::string_view>(uno);
        });
    }

    void sin_formato() {
        mesa_.pon_formato(1, T_formato::Alfanm);
        Tablero_Formato_Columna(mesa_.e, 1);
    }

    void inserta(int fila, int n) {
        mesa_.t().inserta_filas(fila + 1, n);
        modelo_.insert(modelo_.begin() + en(fila), static_cast<std::size_t>(n), "");
    }

    void borra(int fila, int n) {
        mesa_.t().borra_filas(fila + 1, n);
        modelo_.erase(modelo_.begin() + en(fila), modelo_.begin() + en(fila + n));
    }

    void formatea(int decimales, int lista) {
        if (lista == 0) {
            mesa_.pon_formato(1, T_formato::ListaU);
            mesa_.e.listas[1].Col = Matriz<std::string>(0, {"Pino"});
        } else {
            mesa_.pon_formato(1, T_formato::Real__, static_cast<std::int16_t>(decimales));
        }
        Tablero_Formato_Columna(mesa_.e, 1);
        for (std::string& t : modelo_)
            if (!t.empty()) t = lista == 0 ? "Pino" : forma_llana(t, decimales);
    }

    Mesa mesa_;
    Textos modelo_;
};

TEST(CaminosCortos, AColumnInItsFormIsWhatFormattingEveryCellMakesIt) {
    Azar azar(5);
    for (int vuelta = 0; vuelta < 300; ++vuelta) {
        ColumnaYModelo c;
        for (int paso = 0; paso < 60; ++paso) {
            c.da_un_paso(azar);
            ASSERT_TRUE(c.iguales()) << "round " << vuelta << ", step " << paso;
        }
    }
}

TEST(CaminosCortos, ACellWrittenAfterwardsGetsItsForm) {
    Mesa mesa;
    mesa.pon_tamano(3, 6);
    mesa.pon_formato(1, T_formato::Real__, 2);
    mesa.escribe(1, {"1", "2,5", "", "x", "-0.001"});
    for (int vez = 0; vez < 3; ++vez) Tablero_Formato_Columna(mesa.e, 1);
    EXPECT_EQ(mesa.columna(1), (Textos{"1.00", "2.50", "", "0.00", "0.00"}));
    mesa.t().TextMatrix(3, 1, "7");
    Tablero_Formato_Columna(mesa.e, 1);
    EXPECT_EQ(mesa.celda(3, 1), "7.00");
    mesa.pon_formato(1, T_formato::Real__, 1);
    Tablero_Formato_Columna(mesa.e, 1);
    EXPECT_EQ(mesa.columna(1), (Textos{"1.0", "2.5", "7.0", "0.0", "0.0"}));
}

TEST(CaminosCortos, OnlyRowsThatMayLackTheFormAreLookedAt) {
    Mesa mesa;
    mesa.pon_tamano(3, 4);
    std::vector<int> miradas;
    const FormaCeldas en_x{"x",
        [&](int fila, std::string_view, std::string& nuevo) {
            miradas.push_back(fila);
            nuevo = "x";
            return true;
        },
        [](std::string_view texto) { return texto == "x"; }};
    const auto miradas_al_formar = [&] {
        miradas.clear();
        mesa.t().da_forma(1, en_x);
        return miradas;
    };
    EXPECT_EQ(miradas_al_formar(), (std::vector{1, 2, 3}));
    miradas_al_formar(); // those that changed are looked at once more
    mesa.t().Rows(8);
    EXPECT_EQ(miradas_al_formar(), (std::vector<int>{})); // empty
    const std::vector<std::string_view> textos{"", "", "", "", "x", "y", "z", "x"};
    mesa.t().pon_filas(
        {4, 1, 7, 1}, [&](int fila) { return std::span(textos).subspan(static_cast<std::size_t>(fila), 1); });
    EXPECT_EQ(miradas_al_formar(), (std::vector{5, 6}));
    mesa.t().quita_forma(1);
    EXPECT_EQ(miradas_al_formar(), (std::vector{1, 2, 3, 4, 5, 6, 7}));
}

} // namespace
} // namespace Qlt4_Tabla
