// SPDX-License-Identifier: MIT
// The text that follows another in a list.
#include "core/incrementa_texto.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace Qlt4_Tabla;

namespace {

struct Caso {
    std::string texto;
    std::string siguiente;
};

} // namespace

TEST(IncrementaTexto, suma_uno_al_numero_final) {
    for (const Caso& caso :
        {Caso{"P12", "P13"}, {"P7", "P8"}, {"7", "8"}, {"0", "1"}, {"9", "10"}, {"P999", "P1000"},
            {"P1299", "P1300"}, {"A1B2", "A1B3"}, {"P 12", "P 13"}, {"ñ9", "ñ10"}, {"12-", "12-1"}})
        EXPECT_EQ(Incrementa_Texto(caso.texto), caso.siguiente);
}

TEST(IncrementaTexto, no_conserva_los_ceros_de_delante) {
    for (const Caso& caso :
        {Caso{"P09", "P10"}, {"P009", "P10"}, {"P000", "P1"}, {"00", "1"}, {"P0099", "P100"}, {"0012", "13"}})
        EXPECT_EQ(Incrementa_Texto(caso.texto), caso.siguiente);
}

TEST(IncrementaTexto, sin_numero_final_pone_un_1) {
    for (const Caso& caso : {Caso{"ABC", "ABC1"}, {"", "1"}, {"   ", "1"}, {"12.", "12.1"},
             {"P12 m", "P12 m1"}, {"²", "²1"}, {"٣", "٣1"}})
        EXPECT_EQ(Incrementa_Texto(caso.texto), caso.siguiente);
}

TEST(IncrementaTexto, un_decimal_cuenta_solo_en_sus_ultimas_cifras) {
    EXPECT_EQ(Incrementa_Texto("12.5"), "12.6");
    EXPECT_EQ(Incrementa_Texto("12.9"), "12.10");
    EXPECT_EQ(Incrementa_Texto("1,09"), "1,10");
}

TEST(IncrementaTexto, el_signo_es_parte_del_comienzo) {
    EXPECT_EQ(Incrementa_Texto("-5"), "-6");
    EXPECT_EQ(Incrementa_Texto("+9"), "+10");
}

TEST(IncrementaTexto, quita_los_blancos_de_los_extremos_y_nada_mas) {
    EXPECT_EQ(Incrementa_Texto("  P12  "), "P13");
    EXPECT_EQ(Incrementa_Texto(" ABC "), "ABC1");
    EXPECT_EQ(Incrementa_Texto("\tP1"), "\tP2");
    EXPECT_EQ(Incrementa_Texto("P1\t"), "P1\t1");
    EXPECT_EQ(Incrementa_Texto("P1\xC2\xA0"),
        "P1\xC2\xA0"
        "1");
}

TEST(IncrementaTexto, es_exacto_con_cualquier_largo) {
    EXPECT_EQ(Incrementa_Texto("P1234567890123456789012345678901234567890"),
        "P1234567890123456789012345678901234567891");
    EXPECT_EQ(Incrementa_Texto("9999999999999999"), "10000000000000000");
    EXPECT_EQ(Incrementa_Texto("9007199254740992"), "9007199254740993");
    EXPECT_EQ(Incrementa_Texto(std::string(5000, '9')), "1" + std::string(5000, '0'));
    EXPECT_EQ(Incrementa_Texto(std::string(5000, '0') + "9"), "10");
    EXPECT_EQ(Incrementa_Texto(std::string(5000, '0')), "1");
}

TEST(IncrementaTexto, cuenta_como_los_enteros) {
    for (std::uint64_t n = 0; n < 20000; ++n)
        ASSERT_EQ(Incrementa_Texto("P" + std::to_string(n)), "P" + std::to_string(n + 1));
}

TEST(IncrementaTexto, con_bytes_al_azar_acaba_siempre_en_numero) {
    std::mt19937 motor(3);
    for (int vuelta = 0; vuelta < 50000; ++vuelta) {
        std::string texto(motor() % 16, '\0');
        for (char& c : texto) c = static_cast<char>(motor() % 2 ? motor() % 256 : '0' + motor() % 10);
        const std::string siguiente = Incrementa_Texto(texto);
        ASSERT_FALSE(siguiente.empty());
        ASSERT_TRUE(siguiente.back() >= '0' && siguiente.back() <= '9');
        ASSERT_LE(siguiente.size(), texto.size() + 1);
    }
}
