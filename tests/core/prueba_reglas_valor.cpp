// SPDX-License-Identifier: MIT
// Cell texts as numbers and numbers as cell texts.
#include "base/numeros.h"
#include "core/reglas_valor.h"
#include "tests/base/error_de.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

using namespace Qlt4_Tabla;
using namespace std::string_literals;

namespace {

struct CasoValor {
    std::string texto;
    double valor;
};

struct CasoFormato {
    std::string texto;
    int ancho;
    int decimales;
    std::string resultado;
};

template <std::size_t N>
void espera_formato(const CasoFormato (&casos)[N]) {
    for (const CasoFormato& c : casos)
        EXPECT_EQ(Formato_Numero(c.texto, c.ancho, c.decimales), c.resultado)
            << '"' << c.texto << "\" " << c.ancho << ' ' << c.decimales;
}

// A text as cells hold them: mostly plain numbers, some with a comma, an exponent or rubbish.
std::string celda_al_azar(std::mt19937_64& motor) {
    std::string texto = motor() % 4 ? "" : "-";
    const std::size_t cifras = motor() % 18;
    for (std::size_t i = 0; i < cifras; ++i)
        texto += static_cast<char>('0' + (motor() % 3 ? motor() % 10 : motor() % 2 * 9));
    const std::size_t lugar = motor() % (texto.size() + 1);
    if (motor() % 4) texto.insert(lugar, motor() % 5 ? "." : ",");
    if (motor() % 8 == 0) texto.insert(motor() % (texto.size() + 1), 1, ".,-+eEdD &Hx\t\xC3"[motor() % 14]);
    return texto;
}

std::string bytes_al_azar(std::mt19937_64& motor) {
    std::string texto(motor() % 40, '\0');
    for (char& c : texto) c = static_cast<char>(motor());
    return texto;
}

} // namespace

TEST(ValorNumerico, lee_la_primera_coma_como_punto) {
    for (const CasoValor& c :
        {CasoValor{"1,5", 1.5}, {"1,234,5", 1.234}, {"1.234,5", 1.234}, {"1,234.5", 1.234},
            {"  -3,75", -3.75}, {",5", 0.5}, {"-,5", -0.5}, {",", 0}, {"1,", 1}, {"1e1,5", 10}})
        EXPECT_EQ(Valor_Numerico(c.texto), c.valor) << c.texto;
}

TEST(ValorNumerico, lee_el_numero_del_comienzo) {
    for (const CasoValor& c : {CasoValor{"", 0}, {"1e3", 1000}, {"1 000", 1000}, {"12.5 m", 12.5}, {"abc", 0},
             {"1D3", 1000}, {"&HFF", 255}, {"&HFFFF", -1}, {"&HFFFF&", 65535}, {"&O17", 15}, {"&H1,5", 1},
             {"1e", 1}, {"inf", 0}, {"nan", 0}, {"0x10", 0}, {"1e400", 0}, {"-1e400", 0}, {" 12", 12}})
        EXPECT_EQ(Valor_Numerico(c.texto), c.valor) << c.texto;
}

TEST(FormatoNumero, escribe_los_decimales_pedidos) {
    espera_formato({{"3.14159", 0, 2, "3.14"}, {"2,5", 0, 3, "2.500"}, {"7", 0, 1, "7.0"},
        {"-3.75", 0, 1, "-3.8"}, {"1000000", 0, 3, "1000000.000"}, {".5", 0, 2, "0.50"},
        {"-.5", 0, 2, "-0.50"}, {"5.", 0, 2, "5.00"}, {"007.10", 0, 2, "7.10"}, {"+4", 0, 2, "4.00"},
        {"1,5,5", 0, 2, "1.50"}, {"1.5,5", 0, 2, "1.50"}});
}

TEST(FormatoNumero, sin_decimales_deja_el_texto_como_esta) {
    espera_formato({{"7", 0, 0, "7"}, {"2.5", 0, 0, "2.5"}, {"2,5", 0, 0, "2,5"}, {"abc", 0, 0, "abc"},
        {"", 0, 0, ""}, {" 12", 0, 0, " 12"}, {"3.14159", 0, -1, "3.14159"}, {"1E+15", 0, -32768, "1E+15"},
        {"\xFF\xC3", 0, 0, "\xFF\xC3"}});
}

TEST(FormatoNumero, muestra_15_decimales_como_mucho) {
    espera_formato({{"3.14159", 0, 20, "3.141590000000000"}, {"3.14159", 0, 15, "3.141590000000000"},
        {"1", 0, 32767, "1.000000000000000"}});
}

TEST(FormatoNumero, redondea_la_mitad_alejandose_de_cero) {
    espera_formato({{"2.675", 0, 2, "2.68"}, {"1.005", 0, 2, "1.01"}, {"-0.125", 0, 2, "-0.13"},
        {"0.125", 0, 2, "0.13"}, {"-12.25", 0, 1, "-12.3"}, {"99.995", 0, 2, "100.00"},
        {"999999999999.995", 0, 2, "1000000000000.00"}, {"0.4999999999999999", 0, 1, "0.5"},
        {"2.4449999999999999999", 0, 2, "2.45"}});
}

TEST(FormatoNumero, conserva_el_signo_de_lo_redondeado_a_cero) {
    espera_formato({{"-0", 0, 2, "0.00"}, {"-0.000", 0, 2, "0.00"}, {"-0.004", 0, 2, "-0.00"},
        {"0.004", 0, 2, "0.00"}, {"-1E-20", 0, 2, "-0.00"}});
}

TEST(FormatoNumero, mas_alla_de_la_cifra_15_hay_ceros) {
    espera_formato({{"1234567890123456", 0, 2, "1234567890123460.00"},
        {"0.1234567890123456", 0, 15, "0.123456789012346"},
        {"12.34567890123456", 0, 15, "12.345678901234600"}, {"1E+20", 0, 1, "100000000000000000000.0"},
        {"1e308", 0, 1, "1" + std::string(308, '0') + ".0"}, {std::string(31, '0') + "1.5", 0, 1, "1.5"}});
}

TEST(FormatoNumero, lo_que_no_se_lee_es_0) {
    espera_formato({{"", 0, 2, "0.00"}, {"abc", 0, 2, "0.00"}, {"-", 0, 2, "0.00"}, {".", 0, 2, "0.00"},
        {"-.", 0, 2, "0.00"}, {"1e400", 0, 2, "0.00"}, {"-1e400", 0, 2, "0.00"}, {"inf", 0, 2, "0.00"},
        {"nan", 0, 2, "0.00"}, {"--5", 0, 2, "0.00"}});
}

TEST(FormatoNumero, admite_todo_lo_que_lee_valor_numerico) {
    espera_formato({{"12.5 m", 0, 2, "12.50"}, {"1 000", 0, 2, "1000.00"}, {"1e3", 0, 2, "1000.00"},
        {"&HFFFF&", 0, 1, "65535.0"}, {"3.33333333333333E-02", 0, 3, "0.033"}, {"5-", 0, 1, "5.0"}});
}

TEST(FormatoNumero, rellena_con_blancos_la_parte_entera) {
    espera_formato({{"3.5", 6, 2, "     3.50"}, {"-12.25", 4, 1, " -12.3"}, {"3.5", 1, 2, "3.50"},
        {"123.5", 2, 1, "123.5"}, {"123.5", 3, 1, "123.5"}, {"123.5", 4, 1, " 123.5"}, {"1.5", -4, 1, "1.5"},
        {"1", 4, 20, "   1.000000000000000"}, {"-0.004", 4, 2, "  -0.00"}});
}

TEST(FormatoNumero, sin_decimales_cuenta_el_texto_entero_por_caracteres) {
    espera_formato({{"7", 4, 0, "   7"}, {"2.5", 4, 0, " 2.5"}, {"12345", 4, 0, "12345"}, {"", 3, 0, "   "},
        {"ñ€", 4, 0, "  ñ€"}, {"abcd", 4, 0, "abcd"}});
}

TEST(FormatoNumero, la_forma_con_destino_da_lo_mismo_y_borra_lo_anterior) {
    std::string destino = "lo que hubiera antes, y bien largo";
    Formato_Numero("3.5", 6, 2, destino);
    EXPECT_EQ(destino, "     3.50");
    Formato_Numero("abc", 0, 0, destino);
    EXPECT_EQ(destino, "abc");
    Formato_Numero(2.5, 0, 1, destino);
    EXPECT_EQ(destino, "2.5");
}

TEST(FormatoNumero, el_camino_corto_de_los_textos_llanos_da_lo_mismo_que_el_largo) {
    std::mt19937_64 motor(1);
    std::string corto;
    for (int vuelta = 0; vuelta < 1000000; ++vuelta) {
        const std::string texto = celda_al_azar(motor);
        const int decimales = 1 + static_cast<int>(motor() % 15);
        Formato_Numero(texto, 0, decimales, corto);
        ASSERT_EQ(corto, formato_fijo(Valor_Numerico(texto), decimales))
            << '"' << texto << "\" " << decimales;
    }
}

TEST(FormatoNumero, de_un_real_da_lo_mismo_que_de_su_texto) {
    std::mt19937_64 motor(2);
    const auto compara = [](double x, int ancho, int decimales) {
        EXPECT_EQ(Formato_Numero(x, ancho, decimales), Formato_Numero(numero_a_texto(x), ancho, decimales))
            << x << ' ' << decimales;
    };
    for (int vuelta = 0; vuelta < 200000; ++vuelta) {
        const double x = vuelta % 2
            ? std::bit_cast<double>(std::uint64_t{motor()})
            : static_cast<double>(static_cast<std::int64_t>(motor()) >> (motor() % 60)) / 1000.0;
        if (std::isfinite(x)) compara(x, static_cast<int>(motor() % 12), static_cast<int>(motor() % 18) - 1);
    }
    for (const double x : {0.0, -0.0, 5e-324, -5e-324, 2.2250738585072014e-308, 1.7976931348623157e308,
             -1.7976931348623157e308, 1.797693134862315e308, 1.7976931348623e308, 1.79769313486231e308, 1e15,
             999999999999999.9, 1.0 / 3})
        for (const int decimales : {0, 1, 2, 15}) compara(x, 0, decimales);
}

TEST(FormatoNumero, de_un_real_que_no_es_finito_error_6) {
    for (const double x :
        {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), std::nan("")})
        for (const int decimales : {0, 2}) EXPECT_EQ(error_de([&] { Formato_Numero(x, 0, decimales); }), 6);
}

TEST(FormatoNumero, con_bytes_al_azar_no_falla) {
    std::mt19937_64 motor(4);
    for (int vuelta = 0; vuelta < 100000; ++vuelta) {
        const std::string texto = bytes_al_azar(motor);
        ASSERT_EQ(Formato_Numero(texto, 0, 2), formato_fijo(Valor_Numerico(texto), 2));
        ASSERT_EQ(Formato_Numero(texto, 0, 0), texto);
    }
}

TEST(PuntoAComa, cambia_solo_el_primer_punto) {
    EXPECT_EQ(Punto_a_Coma("1.5"), "1,5");
    EXPECT_EQ(Punto_a_Coma("1.2.3"), "1,2.3");
    EXPECT_EQ(Punto_a_Coma("1,5"), "1,5");
    EXPECT_EQ(Punto_a_Coma("Fin."), "Fin,");
    EXPECT_EQ(Punto_a_Coma(""), "");
}

TEST(ComaAPunto, cambia_solo_la_primera_coma) {
    EXPECT_EQ(Coma_a_Punto("1,5"), "1.5");
    EXPECT_EQ(Coma_a_Punto("1,2,3"), "1.2,3");
    EXPECT_EQ(Coma_a_Punto("1.5"), "1.5");
    EXPECT_EQ(Coma_a_Punto("a, b"), "a. b");
    EXPECT_EQ(Coma_a_Punto(""), "");
}
