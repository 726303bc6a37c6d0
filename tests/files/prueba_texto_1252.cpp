// SPDX-License-Identifier: MIT
// Texts to and from the code page of the files, short and long, in every length around a machine word.
#include "files/texto_1252.h"

#include <gtest/gtest.h>

#include <string>

namespace Qlt4_Tabla {

namespace {

struct Par {
    const char* utf8;
    const char* bytes;
};

class ParDeTextos : public testing::TestWithParam<Par> {};

TEST_P(ParDeTextos, van_y_vienen) {
    EXPECT_EQ(a_1252(GetParam().utf8), GetParam().bytes);
    EXPECT_EQ(de_1252(GetParam().bytes), GetParam().utf8);
}

INSTANTIATE_TEST_SUITE_P(pares, ParDeTextos,
    testing::Values(Par{"", ""}, Par{"a", "a"}, Par{"Año", "A\xF1o"}, Par{"€", "\x80"},
        Par{"Œuvre – “x”", "\x8Cuvre \x96 \x93x\x94"}, Par{"ÿ", "\xFF"}, Par{"12.500", "12.500"},
        Par{"áéíóúñ¿¡ºª", "\xE1\xE9\xED\xF3\xFA\xF1\xBF\xA1\xBA\xAA"}));

TEST(Texto1252, cada_byte_sobrevive) {
    std::string todos;
    for (int c = 0; c < 256; ++c) todos += static_cast<char>(c);
    EXPECT_EQ(a_1252(de_1252(todos)), todos);
}

TEST(Texto1252, los_cinco_sin_definir_son_los_puntos_del_mismo_numero) {
    EXPECT_EQ(de_1252("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(Texto1252, lo_que_no_cabe_es_una_interrogacion) {
    EXPECT_EQ(a_1252("Ω≈1"), "??1");
    EXPECT_EQ(a_1252("\xF0\x9F\x98\x80x"), "?x");
    EXPECT_EQ(a_1252("a\xFF\xFE b"), "a?? b"); // no UTF-8: one for each byte
    EXPECT_EQ(a_1252("\xC2\x80"), "?"); // this code point has no place: its code is the euro sign
}

TEST(Texto1252, de_todos_los_largos_y_con_una_letra_en_cada_lugar) {
    for (std::size_t n = 0; n < 40; ++n) {
        const std::string llano = std::string("0123456789abcdefghijklmnopqrstuvwxyzABCD").substr(0, n);
        std::string copia(n, '#');
        EXPECT_TRUE(copia_ascii(copia.data(), llano.data(), n));
        EXPECT_EQ(copia, llano);
        EXPECT_TRUE(es_ascii(llano));
        for (std::size_t i = 0; i < n; ++i) {
            std::string otro = llano;
            otro[i] = '\xF1';
            EXPECT_FALSE(copia_ascii(copia.data(), otro.data(), n));
            EXPECT_FALSE(es_ascii(otro));
            EXPECT_EQ(a_1252(de_1252(otro)), otro);
        }
    }
}

} // namespace

} // namespace Qlt4_Tabla
