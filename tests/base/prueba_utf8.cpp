// SPDX-License-Identifier: MIT
// Texts seen as characters, invalid bytes included.
#include "base/utf8.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace Qlt4_Tabla;
using namespace std::string_literals;

namespace {

// One character of each length: a, ñ, €, 𝄞.
const std::string mezcla = "añ€\xF0\x9D\x84\x9E";

std::vector<std::size_t> bordes_hacia_delante(std::string_view texto) {
    std::vector<std::size_t> bordes{0};
    while (bordes.back() < texto.size()) bordes.push_back(utf8::siguiente(texto, bordes.back()));
    return bordes;
}

std::vector<std::size_t> bordes_hacia_atras(std::string_view texto) {
    std::vector<std::size_t> bordes{texto.size()};
    while (bordes.back() > 0) bordes.push_back(utf8::anterior(texto, bordes.back()));
    return {bordes.rbegin(), bordes.rend()};
}

// Bytes that like to build sequences that are nearly right.
std::string azar(std::mt19937& motor) {
    constexpr unsigned char semillas[] = {'a', ' ', 0x00, 0x7F, 0x80, 0x9F, 0xA0, 0xBF, 0xC0, 0xC2, 0xC3,
        0xE0, 0xE2, 0xED, 0xEF, 0xF0, 0xF4, 0xF5, 0xFF};
    std::string texto(motor() % 24, '\0');
    for (char& c : texto)
        c = static_cast<char>(motor() % 4 ? semillas[motor() % std::size(semillas)] : motor() % 256);
    return texto;
}

} // namespace

TEST(Utf8, cada_punto_de_codigo_sobrevive_a_la_ida_y_vuelta) {
    std::size_t malos = 0;
    for (char32_t punto = 0; punto <= 0x10FFFF; ++punto) {
        if (punto == 0xD800) punto = 0xE000;
        const std::string texto = utf8::codifica(punto);
        const utf8::Caracter c = utf8::decodifica(texto, 0);
        if (!c.valido || c.punto != punto || c.bytes != texto.size()) ++malos;
    }
    EXPECT_EQ(malos, 0u);
}

TEST(Utf8, codifica_con_el_menor_numero_de_bytes) {
    EXPECT_EQ(utf8::codifica(U'a'), "a");
    EXPECT_EQ(utf8::codifica(0x7F), "\x7F");
    EXPECT_EQ(utf8::codifica(0x80), "\xC2\x80");
    EXPECT_EQ(utf8::codifica(0x7FF), "\xDF\xBF");
    EXPECT_EQ(utf8::codifica(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(utf8::codifica(0x20AC), "€");
    EXPECT_EQ(utf8::codifica(0xFFFF), "\xEF\xBF\xBF");
    EXPECT_EQ(utf8::codifica(0x10000), "\xF0\x90\x80\x80");
    EXPECT_EQ(utf8::codifica(0x10FFFF), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(utf8::codifica(0), "\0"s);
}

TEST(Utf8, lo_que_no_es_caracter_se_codifica_como_sustituto) {
    for (const char32_t punto :
        {char32_t{0xD800}, char32_t{0xDFFF}, char32_t{0x110000}, char32_t{0xFFFFFFFF}})
        EXPECT_EQ(utf8::codifica(punto), "\xEF\xBF\xBD");
}

TEST(Utf8, codifica_anade_al_final) {
    std::string texto = "a";
    utf8::codifica(U'ñ', texto);
    EXPECT_EQ(texto, "añ");
}

TEST(Utf8, longitud_cuenta_caracteres) {
    EXPECT_EQ(utf8::longitud(""), 0u);
    EXPECT_EQ(utf8::longitud("Configuración"), 13u);
    EXPECT_EQ(utf8::longitud(mezcla), 4u);
    EXPECT_EQ(utf8::longitud("a\0b"s), 3u);
}

TEST(Utf8, se_anda_en_las_dos_direcciones_por_los_mismos_bordes) {
    const std::vector<std::size_t> bordes{0, 1, 3, 6, 10};
    EXPECT_EQ(bordes_hacia_delante(mezcla), bordes);
    EXPECT_EQ(bordes_hacia_atras(mezcla), bordes);
}

TEST(Utf8, en_los_extremos_no_se_sale_del_texto) {
    EXPECT_EQ(utf8::siguiente("ab", 2), 2u);
    EXPECT_EQ(utf8::siguiente("ab", 99), 2u);
    EXPECT_EQ(utf8::anterior("ab", 0), 0u);
    EXPECT_EQ(utf8::anterior("ab", 99), 1u);
    EXPECT_EQ(utf8::anterior("", 5), 0u);
    EXPECT_EQ(utf8::decodifica("ab", 2).bytes, 0u);
    EXPECT_EQ(utf8::decodifica("ab", 99).bytes, 0u);
}

TEST(Utf8, cada_byte_que_sobra_es_un_caracter) {
    const std::string no_validos[] = {
        "\x80", "\xBF", "\xC0", "\xC1", "\xF5", "\xFF", // no byte that begins a sequence
        "\xC3", "\xE2\x82", "\xF0\x9D\x84", // cut off
        "\xC0\x80", "\xE0\x80\x80", "\xF0\x80\x80\x80", // overlong
        "\xED\xA0\x80", "\xED\xBF\xBF", // surrogates
        "\xF4\x90\x80\x80", "\xF8\x90\x80\x80", "\xFF\x90\x80\x80", // above 0x10FFFF
    };
    for (const std::string& texto : no_validos) {
        EXPECT_FALSE(utf8::es_valido(texto));
        EXPECT_EQ(utf8::longitud(texto), texto.size());
        EXPECT_EQ(utf8::decodifica(texto, 0).punto, utf8::sustituto);
        EXPECT_FALSE(utf8::decodifica(texto, 0).valido);
    }
}

TEST(Utf8, tras_un_byte_suelto_se_sigue_leyendo) {
    const std::string texto = "\xC3"
                              "ñ\x80"
                              "b";
    EXPECT_EQ(utf8::longitud(texto), 4u);
    EXPECT_EQ(utf8::decodifica(texto, 1).punto, U'ñ');
    EXPECT_EQ(utf8::anterior(texto, 3), 1u);
    EXPECT_EQ(utf8::anterior(texto, 4), 3u);
}

TEST(Utf8, es_valido_admite_todos_los_largos) {
    EXPECT_TRUE(utf8::es_valido(""));
    EXPECT_TRUE(utf8::es_valido(mezcla));
    EXPECT_TRUE(utf8::es_valido("\xED\x9F\xBF\xEE\x80\x80")); // the neighbours of the surrogates
    EXPECT_FALSE(utf8::es_valido(mezcla.substr(0, 9)));
}

TEST(Utf8, recorta_por_caracteres) {
    EXPECT_EQ(utf8::recorta("Añadir Filas", 0, 2), "Añ");
    EXPECT_EQ(utf8::recorta("Añadir Filas", 2, 4), "adir");
    EXPECT_EQ(utf8::recorta(mezcla, 2), mezcla.substr(3));
    EXPECT_EQ(utf8::recorta("abc", 1, 99), "bc");
    EXPECT_EQ(utf8::recorta("abc", 3, 1), "");
    EXPECT_EQ(utf8::recorta("abc", 99, 1), "");
    EXPECT_EQ(utf8::recorta("abc", 1, 0), "");
}

TEST(Utf8, byte_de_da_el_comienzo_de_cada_caracter) {
    EXPECT_EQ(utf8::byte_de(mezcla, 0), 0u);
    EXPECT_EQ(utf8::byte_de(mezcla, 3), 6u);
    EXPECT_EQ(utf8::byte_de(mezcla, 4), 10u);
    EXPECT_EQ(utf8::byte_de(mezcla, 5), 10u);
}

TEST(Utf8, sin_blancos_quita_solo_el_blanco_de_los_extremos) {
    EXPECT_EQ(utf8::sin_blancos("  a b  "), "a b");
    EXPECT_EQ(utf8::sin_blancos("    "), "");
    EXPECT_EQ(utf8::sin_blancos(""), "");
    EXPECT_EQ(utf8::sin_blancos("\ta\n"), "\ta\n");
    EXPECT_EQ(utf8::sin_blancos("\xC2\xA0"
                                "a"),
        "\xC2\xA0"
        "a");
}

TEST(Utf8, con_bytes_al_azar_no_se_pierde_ninguno) {
    std::mt19937 motor(1252);
    for (int vuelta = 0; vuelta < 100000; ++vuelta) {
        const std::string texto = azar(motor);
        const std::vector<std::size_t> bordes = bordes_hacia_delante(texto);
        ASSERT_EQ(bordes.back(), texto.size());
        ASSERT_EQ(bordes_hacia_atras(texto), bordes);
        ASSERT_EQ(utf8::longitud(texto), bordes.size() - 1);
        const std::size_t corte = motor() % (bordes.size() + 1);
        ASSERT_EQ(
            std::string(utf8::recorta(texto, 0, corte)) + std::string(utf8::recorta(texto, corte)), texto);
    }
}
