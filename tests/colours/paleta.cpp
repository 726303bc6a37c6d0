// SPDX-License-Identifier: MIT
// The palette, its key list and the names, every entry against the published lists.
#include "colours/paleta.h"

#include "tests/colours/tabla_paleta.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace Qlt4_Tabla;

constexpr std::int32_t BLANCO = 0xFFFFFF;

TEST(Paleta, TheListOfTheTestsIsWhole) {
    EXPECT_EQ(paleta_publicada::tabla().size(), 256U);
    EXPECT_EQ(paleta_publicada::claves_distintas().size(), 71U);
}

TEST(Paleta, EveryIndexGivesItsScreenColour) {
    const std::vector<std::int32_t> tabla = paleta_publicada::tabla();
    for (std::int32_t i = 0; i <= 255; ++i)
        EXPECT_EQ(paleta_a_pantalla(i), tabla.at(static_cast<std::size_t>(i))) << i;
}

TEST(Paleta, IndicesOutsideAreWhite) {
    for (const std::int32_t i : {-1, -5, 256, 300, 32767, -32768, std::numeric_limits<std::int32_t>::min(),
             std::numeric_limits<std::int32_t>::max()})
        EXPECT_EQ(paleta_a_pantalla(i), BLANCO) << i;
}

TEST(Paleta, ZeroLooksLikeEight) {
    EXPECT_EQ(paleta_a_pantalla(0), 0x807C80);
    EXPECT_EQ(paleta_a_pantalla(8), 0x807C80);
}

TEST(Paleta, EveryDifferentKeyGivesItsIndexAndItsPaletteColourGivesWhite) {
    const std::vector<std::int32_t> tabla = paleta_publicada::tabla();
    for (const auto& [indice, clave] : paleta_publicada::claves_distintas()) {
        EXPECT_EQ(pantalla_a_paleta(clave), indice) << std::hex << clave;
        EXPECT_EQ(pantalla_a_paleta(tabla.at(static_cast<std::size_t>(indice))), 7) << indice;
    }
}

TEST(Paleta, EveryOtherColourComesBackAsItsIndex) {
    const std::vector<std::int32_t> tabla = paleta_publicada::tabla();
    const auto distintas = paleta_publicada::claves_distintas();
    const std::set<std::int16_t> repetidos{0, 10, 170, 210, 255};
    int vueltas = 0;
    for (std::int16_t i = 0; i <= 255; ++i) {
        if (distintas.count(i) != 0 || repetidos.count(i) != 0) continue;
        EXPECT_EQ(pantalla_a_paleta(tabla.at(static_cast<std::size_t>(i))), i);
        ++vueltas;
    }
    EXPECT_EQ(vueltas, 256 - 71 - 5);
}

TEST(Paleta, OfEqualColoursTheFirstIndexCountsButNeverZero) {
    const std::vector<std::pair<std::int32_t, int>> casos{
        {0x807C80, 8}, {0x0000FF, 1}, {0xFF0000, 5}, {0xFF00FF, 6}, {0xFFFFFF, 7}};
    for (const auto& [color, indice] : casos)
        EXPECT_EQ(pantalla_a_paleta(color), indice) << std::hex << color;
}

TEST(Paleta, ColoursThatAreNoKeyAreWhite) {
    for (const std::int32_t color : {0x000000, 0x123456, 0x0000D0, 0x0000FE, 0x0100FF, -1, 0x0F0000FF,
             static_cast<std::int32_t>(0x8000000FU), std::numeric_limits<std::int32_t>::max()})
        EXPECT_EQ(pantalla_a_paleta(color), 7) << std::hex << color;
    EXPECT_EQ(pantalla_a_paleta(0x0000C8), 12);
    EXPECT_EQ(pantalla_a_paleta(0x000050), 18);
}

TEST(Nombres, TheTenNamesGiveTheirNumber) {
    const std::vector<std::pair<const char*, const char*>> casos{{"por capa", "0"}, {"rojo", "1"},
        {"amarillo", "2"}, {"verde", "3"}, {"ciano", "4"}, {"azul", "5"}, {"magenta", "6"}, {"blanco", "7"},
        {"8", "8"}, {"9", "9"}};
    for (const auto& [nombre, numero] : casos) EXPECT_EQ(nombre_a_numero(nombre), numero);
}

TEST(Nombres, AnyOtherTextStaysAsItIs) {
    for (const char* texto : {"Rojo", "ROJO", "rojo ", " rojo", "12", "", "por  capa", "negro", "-3"})
        EXPECT_EQ(nombre_a_numero(texto), texto);
}

TEST(Nombres, ANumberGivesItsNameOrItsDigits) {
    const std::vector<std::pair<std::int32_t, const char*>> casos{{0, "por capa"}, {1, "rojo"},
        {2, "amarillo"}, {3, "verde"}, {4, "ciano"}, {5, "azul"}, {6, "magenta"}, {7, "blanco"}, {8, "8"},
        {9, "9"}, {10, "10"}, {25, "25"}, {300, "300"}, {-5, "5"}, {-1, "1"}, {32767, "32767"},
        {-32768, "32768"}};
    for (const auto& [numero, nombre] : casos) {
        EXPECT_EQ(numero_a_nombre(numero), nombre);
        EXPECT_EQ(numero_a_nombre(static_cast<std::int16_t>(numero)), nombre);
    }
}

TEST(Nombres, LongNumbersKeepEveryDigit) {
    EXPECT_EQ(numero_a_nombre(std::int32_t{0xFFFFFF}), "16777215");
    EXPECT_EQ(numero_a_nombre(std::numeric_limits<std::int32_t>::max()), "2147483647");
    EXPECT_EQ(numero_a_nombre(std::numeric_limits<std::int32_t>::min()), "2147483648");
}

TEST(Nombres, AScreenColourGivesItsNameOrItsIndex) {
    const std::vector<std::pair<std::int32_t, const char*>> casos{{0xFFFFFF, "blanco"}, {0xFFFF00, "ciano"},
        {0xFF0000, "azul"}, {0xFF00FF, "magenta"}, {0xC0BCC0, "9"}, {0x807C80, "8"}, {0x00FFFF, "amarillo"},
        {0x0000FF, "rojo"}, {0x00FF00, "verde"}, {0x123456, "7"}, {0x000000, "7"}, {0x0000C8, "12"},
        {0x303430, "250"}, {-1, "7"}};
    for (const auto& [color, nombre] : casos)
        EXPECT_EQ(pantalla_a_nombre(color), nombre) << std::hex << color;
}

TEST(Nombres, NoScreenColourIsByLayer) {
    for (std::int32_t i = 0; i <= 255; ++i) EXPECT_NE(pantalla_a_nombre(paleta_a_pantalla(i)), "por capa");
}

TEST(TColores, GiveTheirScreenColourAndBlackOutside) {
    const std::vector<std::pair<int, std::int32_t>> casos{{0, 0}, {1, 0x0000FF}, {2, 0x00FFFF}, {3, 0x00FF00},
        {4, 0xFFFF00}, {5, 0xFF0000}, {6, 0xFF00FF}, {7, 0xFFFFFF}, {8, 0}, {9, 0}, {-1, 0}, {40000, 0}};
    for (const auto& [valor, color] : casos)
        EXPECT_EQ(T_colores_a_pantalla(static_cast<T_colores>(valor)), color) << valor;
}

TEST(TColores, OneToSevenAreThePaletteIndices) {
    for (int i = 1; i <= 7; ++i)
        EXPECT_EQ(T_colores_a_pantalla(static_cast<T_colores>(i)), paleta_a_pantalla(i));
}

} // namespace
