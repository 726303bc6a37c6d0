// SPDX-License-Identifier: MIT
// Overflow-checked arithmetic in 16 and 32 bits.
#include "base/aritmetica.h"
#include "tests/base/error_de.h"

#include <gtest/gtest.h>

using namespace Qlt4_Tabla;

// Usable where a constant is needed.
static_assert(entero16(32767) == 32767);
static_assert(producto16(273, 120) == 32760);
static_assert(producto32(-46340, 46340) == -2147395600);

TEST(Aritmetica, entero16_admite_su_intervalo_entero) {
    EXPECT_EQ(entero16(32767), 32767);
    EXPECT_EQ(entero16(-32768), -32768);
    EXPECT_EQ(entero16(0), 0);
}

TEST(Aritmetica, entero16_fuera_de_su_intervalo_desborda) {
    for (const std::int64_t n :
        {std::int64_t{32768}, std::int64_t{-32769}, std::int64_t{65536}, INT64_MAX, INT64_MIN})
        EXPECT_EQ(error_de([n] { entero16(n); }), 6) << n;
}

TEST(Aritmetica, entero32_admite_su_intervalo_entero) {
    EXPECT_EQ(entero32(2147483647), 2147483647);
    EXPECT_EQ(entero32(-2147483648), INT32_MIN);
}

TEST(Aritmetica, entero32_fuera_de_su_intervalo_desborda) {
    for (const std::int64_t n : {std::int64_t{2147483648}, std::int64_t{-2147483649}, INT64_MAX, INT64_MIN})
        EXPECT_EQ(error_de([n] { entero32(n); }), 6) << n;
}

TEST(Aritmetica, el_producto_de_16_bits_desborda_a_partir_de_274_por_120) {
    EXPECT_EQ(producto16(273, 120), 32760);
    EXPECT_EQ(error_de([] { producto16(274, 120); }), 6);
    EXPECT_EQ(producto16(-273, 120), -32760);
    EXPECT_EQ(error_de([] { producto16(-274, 120); }), 6);
    EXPECT_EQ(error_de([] { producto16(-32768, -1); }), 6);
}

TEST(Aritmetica, la_suma_y_la_resta_de_16_bits_desbordan_en_los_extremos) {
    EXPECT_EQ(suma16(32766, 1), 32767);
    EXPECT_EQ(error_de([] { suma16(32767, 1); }), 6);
    EXPECT_EQ(resta16(-32767, 1), -32768);
    EXPECT_EQ(error_de([] { resta16(-32768, 1); }), 6);
    EXPECT_EQ(error_de([] { resta16(0, -32768); }), 6);
}

TEST(Aritmetica, las_operaciones_de_32_bits_desbordan_en_los_extremos) {
    EXPECT_EQ(suma32(INT32_MAX, 0), INT32_MAX);
    EXPECT_EQ(error_de([] { suma32(INT32_MAX, 1); }), 6);
    EXPECT_EQ(resta32(INT32_MIN + 1, 1), INT32_MIN);
    EXPECT_EQ(error_de([] { resta32(INT32_MIN, 1); }), 6);
    EXPECT_EQ(producto32(65535, 32768), 2147450880);
    EXPECT_EQ(error_de([] { producto32(65536, 32768); }), 6);
    EXPECT_EQ(error_de([] { producto32(INT32_MIN, -1); }), 6);
}
