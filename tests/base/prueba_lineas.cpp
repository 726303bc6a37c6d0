// SPDX-License-Identifier: MIT
// Line ends of texts from other programs, and the search for the signs that part a block of text.
#include "base/lineas.h"

#include <gtest/gtest.h>

#include <string>

using namespace Qlt4_Tabla;
using namespace std::string_literals;

namespace {

struct CasoLineas {
    std::string entra;
    std::string sale;
};

std::size_t busca_despacio(std::string_view texto, std::size_t desde) {
    const std::size_t i = texto.find_first_of("\t\r\n", desde);
    return i == std::string_view::npos ? texto.size() : i;
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

TEST(BuscaSeparador, da_el_primero_en_cualquier_sitio) {
    // Every byte beside every separator, at every place of two eight-byte words.
    for (int byte = 0; byte < 256; ++byte) {
        for (std::size_t lugar = 0; lugar < 20; ++lugar) {
            std::string texto(20, 'x');
            texto[lugar] = static_cast<char>(byte);
            for (const char fin : {'\t', '\n', '\r', 'y'}) {
                texto.back() = fin;
                for (std::size_t desde = 0; desde <= texto.size(); ++desde)
                    ASSERT_EQ(busca_separador(texto, desde), busca_despacio(texto, desde))
                        << byte << ' ' << lugar << ' ' << desde;
            }
        }
    }
    EXPECT_EQ(busca_separador("", 0), 0U);
}
