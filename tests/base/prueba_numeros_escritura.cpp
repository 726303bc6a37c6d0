// SPDX-License-Identifier: MIT
// Numbers written as text: the standard form, Str and a fixed number of decimals.
#include "base/numeros.h"
#include "tests/base/decimal_exacto.h"
#include "tests/base/error_de.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

using namespace Qlt4_Tabla;

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();
constexpr double nan_ = std::numeric_limits<double>::quiet_NaN();
constexpr double mayor = std::numeric_limits<double>::max();
constexpr double menor = std::numeric_limits<double>::denorm_min();

struct CasoEscritura {
    double x;
    const char* texto;
};

struct CasoFijo {
    double x;
    int decimales;
    std::string texto;
};

// Any finite double, all bit patterns alike.
double real_al_azar(std::mt19937_64& motor) {
    for (;;) {
        const double x = std::bit_cast<double>(std::uint64_t{motor()});
        if (std::isfinite(x)) return x;
    }
}

// A whole number of at most 15 digits with its point moved: the plain text, made without the library.
std::string texto_llano(std::uint64_t cifras, std::size_t decimales) {
    std::string texto = std::to_string(cifras);
    if (texto.size() <= decimales) texto.insert(0, decimales + 1 - texto.size(), '0');
    if (decimales == 0) return texto;
    texto.insert(texto.size() - decimales, ".");
    texto.erase(texto.find_last_not_of('0') + 1);
    if (texto.back() == '.') texto.pop_back();
    return texto;
}

} // namespace

TEST(NumeroATexto, escribe_llano_lo_que_cabe) {
    for (const CasoEscritura& caso :
        {CasoEscritura{0, "0"}, {-0.0, "0"}, {1, "1"}, {-1, "-1"}, {0.5, "0.5"}, {-0.5, "-0.5"},
            {12.5, "12.5"}, {100, "100"}, {1.0 / 3, "0.333333333333333"}, {2.0 / 3, "0.666666666666667"},
            {-1.0 / 3, "-0.333333333333333"}, {0.1 + 0.2, "0.3"}, {125.0 / 7, "17.8571428571429"},
            {0.01, "0.01"}, {123456789.123456, "123456789.123456"}, {999999999999999, "999999999999999"},
            {123456789012345, "123456789012345"}, {1e14, "100000000000000"},
            {99999999999999.9, "99999999999999.9"}, {0.000000000000001, "0.000000000000001"},
            {0.000000000000123, "0.000000000000123"}, {0.012345678901234, "0.012345678901234"}})
        EXPECT_EQ(numero_a_texto(caso.x), caso.texto);
}

TEST(NumeroATexto, escribe_con_exponente_lo_demas) {
    for (const CasoEscritura& caso : {CasoEscritura{1e15, "1E+15"}, {-1e15, "-1E+15"}, {1.5e15, "1.5E+15"},
             {1234567890123456.0, "1.23456789012346E+15"}, {1.0 / 30, "3.33333333333333E-02"},
             {-1.0 / 30, "-3.33333333333333E-02"}, {1e-16, "1E-16"},
             {0.0123456789012345, "1.23456789012345E-02"}, {1.25e-15, "1.25E-15"}, {1e300, "1E+300"},
             {1.5e-300, "1.5E-300"}, {1e100, "1E+100"}, {mayor, "1.79769313486232E+308"},
             {-menor, "-4.94065645841247E-324"}})
        EXPECT_EQ(numero_a_texto(caso.x), caso.texto);
}

TEST(NumeroATexto, decide_despues_de_redondear_a_15_cifras) {
    EXPECT_EQ(numero_a_texto(999999999999999.9), "1E+15");
    EXPECT_EQ(numero_a_texto(99999999999999.99), "100000000000000");
    EXPECT_EQ(numero_a_texto(0.99999999999999999), "1");
    EXPECT_EQ(numero_a_texto(0.0999999999999999999), "0.1");
}

TEST(NumeroATexto, lo_que_no_es_finito_desborda) {
    for (const double x : {infinito, -infinito, nan_}) {
        EXPECT_EQ(error_de([x] { numero_a_texto(x); }), 6);
        EXPECT_EQ(error_de([x] { Str(x); }), 6);
        EXPECT_EQ(error_de([x] { formato_fijo(x, 2); }), 6);
    }
}

TEST(NumeroATexto, los_enteros_son_exactos) {
    EXPECT_EQ(numero_a_texto(INT64_MAX), "9223372036854775807");
    EXPECT_EQ(numero_a_texto(INT64_MIN), "-9223372036854775808");
    EXPECT_EQ(numero_a_texto(std::int32_t{-12}), "-12");
    EXPECT_EQ(numero_a_texto(std::int16_t{-32768}), "-32768");
    EXPECT_EQ(numero_a_texto(std::size_t{0}), "0");
}

TEST(NumeroATexto, un_simple_tiene_7_cifras) {
    for (const auto& [x, texto] :
        {std::pair{0.1F, "0.1"}, {2.5F, "2.5"}, {1.0F / 3, "0.3333333"}, {9999999.0F, "9999999"},
            {1e7F, "1E+07"}, {0.01234567F, "1.234567E-02"}, {16777216.0F, "1.677722E+07"}, {-0.0F, "0"}})
        EXPECT_EQ(numero_a_texto(x), texto);
    EXPECT_EQ(Str(0.1F), " 0.1");
}

TEST(NumeroATexto, lo_escrito_con_15_cifras_se_lee_y_se_vuelve_a_escribir_igual) {
    std::mt19937_64 motor(15);
    for (int vuelta = 0; vuelta < 100000; ++vuelta) {
        const double x = real_al_azar(motor);
        if (std::fabs(x) > 1.7e308) continue; // may round up beyond the largest double
        const std::string texto = numero_a_texto(x);
        ASSERT_EQ(numero_a_texto(Val(texto)), texto);
        ASSERT_LE(std::fabs(Val(texto) - x), std::fabs(x) * 1e-14 + menor);
    }
}

TEST(NumeroATexto, todo_decimal_de_15_cifras_se_escribe_como_es) {
    std::mt19937_64 motor(16);
    for (int vuelta = 0; vuelta < 100000; ++vuelta) {
        const std::uint64_t limite = static_cast<std::uint64_t>(std::pow(10, motor() % 16));
        const std::string texto = texto_llano(motor() % limite, motor() % 16);
        ASSERT_EQ(numero_a_texto(Val(texto)), texto);
    }
}

TEST(EscribeNumero, escribe_lo_mismo_en_la_memoria_dada) {
    char memoria[capacidad_numero];
    for (const double x : {0.0, -1.0 / 3, mayor, -mayor, -menor, 1e15, -0.000000000000001}) {
        const std::size_t n = escribe_numero(x, memoria, sizeof memoria);
        EXPECT_EQ(std::string(memoria, n), numero_a_texto(x));
    }
}

TEST(EscribeNumero, con_memoria_de_menos_error_5) {
    char memoria[capacidad_fijo];
    EXPECT_EQ(error_de([&] { escribe_numero(1, memoria, capacidad_numero - 1); }), 5);
    EXPECT_EQ(error_de([&] { escribe_fijo(1, 2, memoria, capacidad_fijo - 1); }), 5);
}

TEST(Str, deja_lugar_al_signo) {
    EXPECT_EQ(Str(12.5), " 12.5");
    EXPECT_EQ(Str(-12.5), "-12.5");
    EXPECT_EQ(Str(0.0), " 0");
    EXPECT_EQ(Str(-0.0), " 0");
    EXPECT_EQ(Str(1e15), " 1E+15");
    EXPECT_EQ(Str(3), " 3");
    EXPECT_EQ(Str(-3), "-3");
    EXPECT_EQ(Str(std::int64_t{1} << 60), " 1152921504606846976");
}

TEST(FormatoFijo, redondea_la_mitad_alejandose_de_cero) {
    for (const CasoFijo& caso : {CasoFijo{2.675, 2, "2.68"}, {1.005, 2, "1.01"}, {-0.125, 2, "-0.13"},
             {0.125, 2, "0.13"}, {2.5, 0, "3"}, {-2.5, 0, "-3"}, {0.5, 0, "1"}, {0.05, 1, "0.1"},
             {0.45, 1, "0.5"}, {1.15, 1, "1.2"}, {1.25, 1, "1.3"}, {1.35, 1, "1.4"}, {-12.25, 1, "-12.3"},
             {1.0049999, 2, "1.00"}, {1e-3, 2, "0.00"}, {0.005, 2, "0.01"}, {0.0049999, 2, "0.00"},
             {99.995, 2, "100.00"}, {0.99999, 3, "1.000"}, {9.5, 0, "10"}})
        EXPECT_EQ(formato_fijo(caso.x, caso.decimales), caso.texto);
}

TEST(FormatoFijo, redondea_primero_a_15_cifras) {
    // The double nearest to the text lies below the half; its 15 digits lie on it.
    EXPECT_EQ(formato_fijo(1.00499999999999989, 2), "1.01");
    EXPECT_EQ(formato_fijo(0.285, 2), "0.29");
    EXPECT_EQ(formato_fijo(0.1 + 0.2, 15), "0.300000000000000");
    EXPECT_EQ(formato_fijo(0.49999999999999994, 0), "1");
}

TEST(FormatoFijo, mas_alla_de_la_cifra_15_hay_ceros) {
    EXPECT_EQ(formato_fijo(1.0 / 3, 15), "0.333333333333333");
    EXPECT_EQ(formato_fijo(10.0 / 3, 15), "3.333333333333330");
    EXPECT_EQ(formato_fijo(1e6 / 3, 12), "333333.333333333000");
    EXPECT_EQ(formato_fijo(12345678901234567890.0, 2), "12345678901234600000.00");
    EXPECT_EQ(formato_fijo(1e22, 1), "10000000000000000000000.0");
    EXPECT_EQ(formato_fijo(mayor, 1), "179769313486232" + std::string(294, '0') + ".0");
}

TEST(FormatoFijo, el_cero_no_tiene_signo_pero_lo_redondeado_a_cero_si) {
    EXPECT_EQ(formato_fijo(0.0, 2), "0.00");
    EXPECT_EQ(formato_fijo(-0.0, 2), "0.00");
    EXPECT_EQ(formato_fijo(-0.004, 2), "-0.00");
    EXPECT_EQ(formato_fijo(0.004, 2), "0.00");
    EXPECT_EQ(formato_fijo(-menor, 15), "-0.000000000000000");
    EXPECT_EQ(formato_fijo(-0.4, 0), "-0");
    EXPECT_EQ(formato_fijo(0.0, 0), "0");
}

TEST(FormatoFijo, los_decimales_van_de_0_a_15) {
    EXPECT_EQ(formato_fijo(3.14159, 2), "3.14");
    EXPECT_EQ(formato_fijo(3.14159, 20), "3.141590000000000");
    EXPECT_EQ(formato_fijo(3.14159, 15), "3.141590000000000");
    EXPECT_EQ(formato_fijo(3.14159, -1), "3");
    EXPECT_EQ(formato_fijo(7, 3), "7.000");
    EXPECT_EQ(formato_fijo(0.000000000000001, 15), "0.000000000000001");
}

TEST(FormatoFijo, el_texto_mas_largo_cabe_en_su_capacidad) {
    char memoria[capacidad_fijo];
    const std::size_t n = escribe_fijo(-mayor, 15, memoria, sizeof memoria);
    EXPECT_EQ(n, std::size_t{1 + 309 + 1 + 15});
    EXPECT_EQ(std::string(memoria, n), formato_fijo(-mayor, 15));
}

TEST(FormatoFijo, coincide_con_la_cuenta_exacta_de_cualquier_doble) {
    std::mt19937_64 motor(17);
    for (int vuelta = 0; vuelta < 3000; ++vuelta) {
        const double x = real_al_azar(motor);
        const int decimales = static_cast<int>(motor() % 16);
        ASSERT_EQ(formato_fijo(x, decimales), fijo_exacto(x, decimales)) << vuelta;
    }
}

TEST(FormatoFijo, coincide_con_la_cuenta_exacta_en_tamanos_corrientes) {
    std::mt19937_64 motor(18);
    std::uniform_real_distribution<double> exponente(-18, 20);
    for (int vuelta = 0; vuelta < 50000; ++vuelta) {
        const double x = std::pow(10, exponente(motor)) * (motor() % 2 ? 1 : -1);
        const int decimales = static_cast<int>(motor() % 16);
        ASSERT_EQ(formato_fijo(x, decimales), fijo_exacto(x, decimales)) << vuelta;
    }
}

TEST(FormatoFijo, coincide_con_la_cuenta_exacta_cerca_de_las_mitades) {
    std::mt19937_64 motor(19);
    for (int vuelta = 0; vuelta < 50000; ++vuelta) {
        const int decimales = static_cast<int>(motor() % 8);
        const double mitad = (static_cast<double>(motor() % 1000000) + 0.5) / std::pow(10, decimales);
        for (const double x : {mitad, std::nextafter(mitad, 0), std::nextafter(mitad, infinito)})
            ASSERT_EQ(formato_fijo(-x, decimales), fijo_exacto(-x, decimales)) << vuelta;
    }
}
