// SPDX-License-Identifier: MIT
// Line ends of texts from other programs, and the signs that part a block of text.
#include "base/lineas.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace Qlt4_Tabla;
using namespace std::string_literals;

namespace {

struct CasoLineas {
    std::string entra;
    std::string sale;
};

/// Where they stand, the size of the text behind the last one.
std::vector<std::size_t> separadores(std::string_view texto) {
    std::vector<std::size_t> lugares;
    Separadores todos(texto);
    do lugares.push_back(todos.siguiente());
    while (lugares.back() < texto.size());
    return lugares;
}

std::vector<std::size_t> separadores_despacio(std::string_view texto) {
    std::vector<std::size_t> lugares;
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (texto[i] == '\t' || texto[i] == '\r' || texto[i] == '\n') lugares.push_back(i);
    lugares.push_back(texto.size());
    return lugares;
}

} // namespace

TEST(CierraLineas, toda_linea_acaba_en_CR_LF) {
    const CasoLineas casos[] = {
        {"", ""},
        {"a", "a\r\n"},
        {"a\tb", "a\tb\r\n"},
        {"a\n", "a\r\n"},
        {"a\nb", "a\r\nb\r\n"},
        {"a\r", "a\r\n"},
        {"a\rb\r", "a\r\nb\r\n"},
        {"a\r\n", "a\r\n"},
        {"a\r\nb", "a\r\nb\r\n"},
        {"a\r\nb\r\n", "a\r\nb\r\n"},
        {"a\nb\rc\r\nd", "a\r\nb\r\nc\r\nd\r\n"},
        {"\n", "\r\n"},
        {"\r", "\r\n"},
        {"\r\n", "\r\n"},
        {"\n\n", "\r\n\r\n"},
        {"\r\r", "\r\n\r\n"},
        {"\n\r", "\r\n\r\n"},
        {"\r\r\n", "\r\n\r\n"},
        {"\r\n\n", "\r\n\r\n"},
        {"\t", "\t\r\n"},
        {"a\t\n\tb", "a\t\r\n\tb\r\n"},
        {"año\nñ", "año\r\nñ\r\n"},
        {"a\0b\n"s, "a\0b\r\n"s},
    };
    for (const CasoLineas& c : casos) {
        EXPECT_EQ(cierra_lineas(c.entra), c.sale) << c.entra;
        EXPECT_EQ(cierra_lineas(c.sale), c.sale) << c.entra;
    }
}

TEST(Separadores, da_todos_en_orden_y_ningun_otro) {
    // Every byte beside every separator, at every place of a block of 64 bytes, of the next one and of a rest.
    for (int byte = 0; byte < 256; ++byte) {
        for (std::size_t lugar = 0; lugar < 150; ++lugar) {
            std::string texto(150, 'x');
            texto[lugar] = static_cast<char>(byte);
            if (lugar > 0) texto[lugar - 1] = "\t\n\ry"[lugar % 4];
            ASSERT_EQ(separadores(texto), separadores_despacio(texto)) << byte << ' ' << lugar;
        }
    }
}

TEST(Separadores, de_textos_de_cualquier_longitud) {
    for (std::size_t n = 0; n < 200; ++n) {
        const std::string todos(n, '\t');
        const std::string ninguno(n, '\v');
        ASSERT_EQ(separadores(todos), separadores_despacio(todos)) << n;
        ASSERT_EQ(separadores(ninguno), std::vector{n}) << n;
    }
}

TEST(Separadores, detras_del_ultimo_da_siempre_el_final) {
    Separadores todos("a\tb");
    EXPECT_EQ(todos.siguiente(), 1U);
    EXPECT_EQ(todos.siguiente(), 3U);
    EXPECT_EQ(todos.siguiente(), 3U);
}
