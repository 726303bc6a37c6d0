// SPDX-License-Identifier: MIT
// The code page and the key codes made from it.
#include "base/pagina1252.h"

#include <gtest/gtest.h>

#include <set>

using namespace Qlt4_Tabla;

TEST(Pagina1252, cada_codigo_sobrevive_a_la_ida_y_vuelta) {
    std::set<char32_t> puntos;
    for (int n = 0; n < 256; ++n) {
        const char32_t punto = punto_de_1252(static_cast<std::uint8_t>(n));
        puntos.insert(punto);
        EXPECT_EQ(codigo_1252(punto), n);
    }
    EXPECT_EQ(puntos.size(), 256u);
}

TEST(Pagina1252, los_codigos_propios_son_los_de_la_pagina) {
    struct {
        int codigo;
        char32_t punto;
    } const casos[] = {{0x80, U'€'}, {0x82, U'‚'}, {0x83, U'ƒ'}, {0x84, U'„'}, {0x85, U'…'}, {0x86, U'†'},
        {0x87, U'‡'}, {0x88, U'ˆ'}, {0x89, U'‰'}, {0x8A, U'Š'}, {0x8B, U'‹'}, {0x8C, U'Œ'}, {0x8E, U'Ž'},
        {0x91, U'‘'}, {0x92, U'’'}, {0x93, U'“'}, {0x94, U'”'}, {0x95, U'•'}, {0x96, U'–'}, {0x97, U'—'},
        {0x98, U'˜'}, {0x99, U'™'}, {0x9A, U'š'}, {0x9B, U'›'}, {0x9C, U'œ'}, {0x9E, U'ž'}, {0x9F, U'Ÿ'},
        {0xA0, 0xA0}, {0xD1, U'Ñ'}, {0xF1, U'ñ'}, {0xFF, U'ÿ'}, {0x41, U'A'}, {0x00, 0}, {0x7F, 0x7F}};
    for (const auto& caso : casos)
        EXPECT_EQ(punto_de_1252(static_cast<std::uint8_t>(caso.codigo)), caso.punto);
}

TEST(Pagina1252, los_cinco_codigos_sin_definir_son_su_mismo_numero) {
    for (const int n : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
        EXPECT_EQ(punto_de_1252(static_cast<std::uint8_t>(n)), static_cast<char32_t>(n));
        EXPECT_EQ(codigo_1252(static_cast<char32_t>(n)), n);
    }
}

TEST(Pagina1252, los_demas_caracteres_no_tienen_codigo) {
    for (const char32_t punto : {char32_t{0x80}, char32_t{0x92}, char32_t{0x9F}, U'Ā', U'Ω', U'я', U'中',
             char32_t{0x1D11E}, char32_t{0x10FFFF}, char32_t{0x120AC}})
        EXPECT_EQ(codigo_1252(punto), std::nullopt);
}

TEST(CodigoTecla, es_el_codigo_de_la_pagina_donde_lo_hay) {
    EXPECT_EQ(codigo_tecla(U'7'), 55);
    EXPECT_EQ(codigo_tecla(U'ñ'), 241);
    EXPECT_EQ(codigo_tecla(U'€'), 128);
    EXPECT_EQ(codigo_tecla(8), 8);
    EXPECT_EQ(codigo_tecla(0x9D), 0x9D);
}

TEST(CodigoTecla, es_el_punto_de_codigo_donde_no_lo_hay) {
    EXPECT_EQ(codigo_tecla(U'я'), 0x044F);
    EXPECT_EQ(codigo_tecla(0x1D11E), 0x1D11E);
}

TEST(PuntoDeTecla, es_la_inversa) {
    for (const char32_t punto : {U'7', U'ñ', U'€', U'Ÿ', U'я', char32_t{0x1D11E}, char32_t{0x10FFFF}})
        EXPECT_EQ(punto_de_tecla(codigo_tecla(punto)), punto);
}

TEST(PuntoDeTecla, lo_que_no_es_caracter_es_0) {
    for (const int codigo : {-1, -32768, 0x110000, 0xD800, 0xDFFF})
        EXPECT_EQ(punto_de_tecla(codigo), char32_t{0});
}
