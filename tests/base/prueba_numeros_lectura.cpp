// SPDX-License-Identifier: MIT
// Texts read as numbers: the leading number, whole texts, whole numbers and Booleans.
#include "base/numeros.h"
#include "tests/base/error_de.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

using namespace Qlt4_Tabla;
using namespace std::string_literals;

namespace {

struct CasoLectura {
    std::string texto;
    double valor;
};

template <std::size_t N>
void espera_val(const CasoLectura (&casos)[N]) {
    for (const CasoLectura& caso : casos) EXPECT_EQ(Val(caso.texto), caso.valor) << '"' << caso.texto << '"';
}

using Limites = std::numeric_limits<double>;

std::string numero_al_azar(std::mt19937_64& motor) {
    constexpr char piezas[] = "0123456789012345678901234567890123456789.eEdD+-&hHoO,x ";
    std::string texto(motor() % 30, '\0');
    for (char& c : texto) c = piezas[motor() % (sizeof piezas - 1)];
    return texto;
}

} // namespace

TEST(Val, lee_el_numero_del_comienzo) {
    espera_val({{"0", 0}, {"7", 7}, {"-7", -7}, {"+7", 7}, {"12.5", 12.5}, {"-3.75", -3.75}, {".5", 0.5},
        {"-.5", -0.5}, {"5.", 5}, {"00012", 12}, {"0.1", 0.1}, {"123456789.123456789", 123456789.123456789},
        {"9007199254740993", 9007199254740992.0}, {"2.2250738585072014e-308", 2.2250738585072014e-308}});
}

TEST(Val, se_detiene_en_el_primer_caracter_ajeno) {
    espera_val({{"12.5 m", 12.5}, {"12m5", 12}, {"1.2.3", 1.2}, {"1,5", 1}, {"1.234,5", 1.234}, {"3-2", 3},
        {"3+2", 3}, {"7%", 7}, {"1_000", 1}, {"0x10", 0}, {"12ñ", 12}, {"1\r2", 1}, {"1\0"s + "2", 1},
        {"1\xC2\xA0"
         "2",
            1},
        {"1\v2", 1}, {"1\f2", 1}, {"5&", 5}, {"1#", 1}});
}

TEST(Val, sin_numero_es_0) {
    espera_val({{"", 0}, {" ", 0}, {"abc", 0}, {"-", 0}, {"+", 0}, {".", 0}, {"-.", 0}, {"e5", 0}, {"-e5", 0},
        {".e5", 0}, {"--5", 0}, {"+-5", 0}, {"-+5", 0}, {"inf", 0}, {"-inf", 0}, {"Infinity", 0}, {"nan", 0},
        {"NAN", 0}, {"$5", 0}, {"\r5", 0},
        {"\xC2\xA0"
         "5",
            0},
        {"\xFF", 0}, {",5", 0}});
}

TEST(Val, salta_blancos_tabuladores_y_saltos_en_todas_partes) {
    espera_val({{"  -3.75", -3.75}, {"1 000", 1000}, {"- 5", -5}, {"1 . 5", 1.5}, {"\t1\n2\t", 12},
        {"1 e 3", 1000}, {"1 e - 3", 0.001}, {"1e3 0", 1e30}, {" & H F F ", 255},
        {"1 2 . 3 4 E + 0 1", 123.4}, {"7   ", 7}});
}

TEST(Val, admite_exponente_con_e_o_d) {
    espera_val({{"1e3", 1000}, {"1E3", 1000}, {"1d3", 1000}, {"1D3", 1000}, {"1E+15", 1e15}, {"1D-2", 0.01},
        {"-2.5e2", -250}, {"5.e1", 50}, {".5e1", 5}, {"1e0003", 1000}, {"1e2.5", 100}, {"1e2e3", 100}});
}

TEST(Val, un_exponente_sin_cifras_no_cuenta) {
    espera_val({{"1e", 1}, {"1E+", 1}, {"1d-", 1}, {"2.5ee3", 2.5}, {"1e+-5", 1}, {"4e.5", 4}, {"3de2", 3}});
}

TEST(Val, lo_que_no_cabe_en_un_doble_es_0) {
    espera_val({{"1e309", 0}, {"-1e309", 0}, {"1.8e308", 0}, {"1e99999999999999999999", 0},
        {"1" + std::string(400, '0'), 0}, {"1e-400", 0}, {"-1e-400", 0}, {"1e-99999999999999999999", 0}});
    EXPECT_EQ(Val("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(Val("5e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(Val, sin_tope_lo_enorme_es_infinito_con_su_signo) {
    constexpr double INFINITO = std::numeric_limits<double>::infinity();
    for (const char* texto : {"1e309", "1.8e308 m", "&H100000000"}) EXPECT_EQ(Val_sin_tope(texto), INFINITO);
    EXPECT_EQ(Val_sin_tope(" -1e309"), -INFINITO);
    EXPECT_EQ(Val_sin_tope("1e-400"), 0);
    EXPECT_EQ(Val_sin_tope("12.5 m"), 12.5);
}

TEST(Val, el_cero_no_tiene_signo) {
    for (const char* texto : {"-0", "-0.0", "-0e5", "-1e-400", "-", "-abc"})
        EXPECT_FALSE(std::signbit(Val(texto))) << texto;
}

TEST(Val, lee_hexadecimales_de_16_bits_con_signo) {
    espera_val(
        {{"&H0", 0}, {"&HFF", 255}, {"&hff", 255}, {"&Hff", 255}, {"&H7FFF", 32767}, {"&H8000", -32768},
            {"&HFFFF", -1}, {"&hFfFf", -1}, {"&H0000FFFF", -1}, {"&HFFFFg", -1}, {"&HFFFF.5", -1}});
}

TEST(Val, lee_hexadecimales_de_32_bits_con_signo) {
    espera_val({{"&H10000", 65536}, {"&H7FFFFFFF", 2147483647}, {"&H80000000", -2147483648.0},
        {"&HFFFFFFFF", -1}, {"&HBBGGRR", 0xBB}, {"&H00FFFFFF", 16777215}});
}

TEST(Val, el_ampersand_final_pide_32_bits) {
    espera_val({{"&HFFFF&", 65535}, {"&H8000&", 32768}, {"&HFF&", 255}, {"&HFFFFFFFF&", -1},
        {"&HFFFF &", 65535}, {"&O177777&", 65535}, {"&HFFFF&&", 65535}});
}

TEST(Val, lee_octales) {
    espera_val({{"&O17", 15}, {"&o17", 15}, {"&O77777", 32767}, {"&O100000", -32768}, {"&O177777", -1},
        {"&O200000", 65536}, {"&O37777777777", -1}, {"&O18", 1}});
}

TEST(Val, un_hexadecimal_demasiado_largo_o_vacio_es_0) {
    espera_val(
        {{"&H100000000", 0}, {"&H1FFFFFFFF", 0}, {"&O40000000000", 0}, {"&H" + std::string(300, 'F'), 0},
            {"&H10000000000000005", 0}, {"&H", 0}, {"&O", 0}, {"&", 0}, {"&&", 0}, {"&HG", 0}, {"&O8", 0},
            {"&H&", 0}, {"&5", 0}, {"&D5", 0}, {"-&HFF", 0}, {"+&HFF", 0}, {"5&HFF", 5}, {"H", 0}});
    EXPECT_EQ(Val("&H" + std::string(300, '0') + "FF"), 255);
}

TEST(Val, no_tiene_limite_de_cifras) {
    EXPECT_EQ(Val(std::string(1000, '0') + "12.5"), 12.5);
    EXPECT_EQ(Val("0." + std::string(250, '0') + "1"), 1e-251);
    EXPECT_EQ(Val("1" + std::string(300, '0')), 1e300);
    EXPECT_EQ(Val("2.5" + std::string(1000, '0') + "1e1"), 25.0);
    EXPECT_EQ(Val("12" + std::string(5000, ' ') + "34"), 1234);
}

TEST(Val, alrededor_del_largo_de_la_memoria_propia_da_lo_mismo) {
    for (std::size_t ceros = 90; ceros < 110; ++ceros)
        EXPECT_EQ(Val("7." + std::string(ceros, '0') + "e2"), 700) << ceros;
}

TEST(Val, los_blancos_intercalados_no_cambian_el_valor) {
    std::mt19937_64 motor(7);
    for (int vuelta = 0; vuelta < 50000; ++vuelta) {
        const std::string texto = numero_al_azar(motor);
        std::string blancos;
        for (const char c : texto) blancos += " \t\n"s.substr(0, motor() % 4) + c;
        ASSERT_EQ(Val(texto), Val(blancos)) << texto;
    }
}

TEST(Val, siempre_da_un_numero_finito) {
    std::mt19937_64 motor(8);
    for (int vuelta = 0; vuelta < 100000; ++vuelta) {
        std::string texto = numero_al_azar(motor);
        if (vuelta % 2 == 0)
            for (char& c : texto) c = motor() % 3 ? c : static_cast<char>(motor() % 256);
        ASSERT_TRUE(std::isfinite(Val(texto))) << texto;
    }
}

TEST(NumeroDeTexto, lee_un_texto_que_es_todo_numero) {
    for (const CasoLectura& caso :
        {CasoLectura{"12", 12}, {" 12 ", 12}, {"\t-2.5", -2.5}, {"2,5", 2.5}, {"1e3", 1000}, {"1D3", 1000},
            {".5", 0.5}, {"5.", 5}, {"&HFF", 255}, {"&HFFFF&", 65535}, {"+5", 5}, {"1e-400", 0},
            {"1e-99999999999999999999", 0}, {"0." + std::string(400, '0') + "1", 0}, {"-0", 0}})
        EXPECT_EQ(numero_de_texto(caso.texto), caso.valor) << caso.texto;
}

TEST(NumeroDeTexto, ningun_otro_texto_es_numero) {
    for (const char* texto :
        {"", " ", "abc", "12 m", "1 2", "12m", "1e", "1e+", "-", ".", "1.2.3", "1,2,3", "1.234,5", "inf",
            "nan", "0x10", "&H", "&HG", "&HFF 0", "&H1,5", "--5", "5-", "1\r", "1\n2", "12\xC2\xA0"})
        EXPECT_EQ(numero_de_texto(texto), std::nullopt) << texto;
}

TEST(NumeroDeTexto, fuera_de_un_doble_error_6) {
    for (const std::string& texto : {"1e309"s, "-1e309"s, "1" + std::string(400, '0'), "&H100000000"s,
             "1e99999999999999999999"s, std::string(320, '9') + "e-5"})
        EXPECT_EQ(error_de([&] { (void)numero_de_texto(texto); }), 6) << texto;
}

TEST(Entero16DeTexto, redondea_las_mitades_al_par) {
    for (const CasoLectura& caso : {CasoLectura{"2.5", 2}, {"3.5", 4}, {"-2.5", -2}, {"-3.5", -4}, {"0.5", 0},
             {"-0.5", 0}, {"1.5", 2}, {"2.51", 3}, {"2.49", 2}, {"-2.51", -3}, {" 12 ", 12}, {"7,6", 8},
             {"&HFFFF", -1}, {"1e2", 100}, {"32767.4", 32767}, {"-32768.5", -32768}, {"32767", 32767},
             {"-32768", -32768}, {"2.500000000000001", 3}, {"0.49999999999999994", 0}})
        EXPECT_EQ(entero16_de_texto(caso.texto), caso.valor) << caso.texto;
}

TEST(Entero16DeTexto, sin_numero_error_13) {
    for (const char* texto : {"", " ", "abc", "12 m", "1e", "nan", "por capa"})
        EXPECT_EQ(error_de([&] { entero16_de_texto(texto); }), 13) << texto;
}

TEST(Entero16DeTexto, fuera_del_intervalo_error_6) {
    for (const char* texto : {"32768", "32767.5", "-32769", "-32768.51", "1e300", "1e400", "&HFFFF&"})
        EXPECT_EQ(error_de([&] { entero16_de_texto(texto); }), 6) << texto;
}

TEST(Entero32DeTexto, redondea_y_comprueba_igual_en_32_bits) {
    EXPECT_EQ(entero32_de_texto("2147483647.4"), 2147483647);
    EXPECT_EQ(entero32_de_texto("-2147483648.5"), INT32_MIN);
    EXPECT_EQ(entero32_de_texto("65536.5"), 65536);
    EXPECT_EQ(error_de([] { entero32_de_texto("2147483647.5"); }), 6);
    EXPECT_EQ(error_de([] { entero32_de_texto("x"); }), 13);
}

TEST(EnteroDeReal, lo_que_no_es_finito_desborda) {
    for (const double x : {Limites::infinity(), -Limites::infinity(), Limites::quiet_NaN(), 1e300, -1e300}) {
        EXPECT_EQ(error_de([x] { entero16_de_real(x); }), 6) << x;
        EXPECT_EQ(error_de([x] { entero32_de_real(x); }), 6) << x;
    }
}

TEST(EnteroDeReal, todas_las_mitades_de_16_bits_van_al_par) {
    for (int n = -32768; n < 32767; ++n) {
        ASSERT_EQ(entero16_de_real(n + 0.5), n % 2 == 0 ? n : n + 1) << n;
        ASSERT_EQ(entero16_de_real(n + 0.25), n) << n;
        ASSERT_EQ(entero16_de_real(n + 0.75), n + 1) << n;
    }
}

TEST(BooleanoDeTexto, entiende_las_palabras_y_los_numeros) {
    for (const char* texto :
        {"True", "true", "TRUE", " True ", "Verdadero", "verdadero", "-1", "1", "0.1", "&HFF"})
        EXPECT_TRUE(booleano_de_texto(texto)) << texto;
    for (const char* texto : {"False", "false", "Falso", "FALSO", "0", "0.0", "-0", "&H0"})
        EXPECT_FALSE(booleano_de_texto(texto)) << texto;
}

TEST(BooleanoDeTexto, lo_demas_es_error_13) {
    for (const char* texto : {"", "si", "Tru", "Truee", "0 1"})
        EXPECT_EQ(error_de([&] { booleano_de_texto(texto); }), 13) << texto;
}

TEST(BooleanoATexto, escribe_las_palabras_que_se_guardan) {
    EXPECT_EQ(booleano_a_texto(true), "True");
    EXPECT_EQ(booleano_a_texto(false), "False");
}
