// SPDX-License-Identifier: MIT
// Arrays with a lower and an upper bound.
#include "base/matriz.h"
#include "tests/base/error_de.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <string>

using namespace Qlt4_Tabla;

namespace {

constexpr std::int32_t minimo = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t maximo = std::numeric_limits<std::int32_t>::max();

} // namespace

TEST(Matriz, sin_dimensionar_no_tiene_limites) {
    const Matriz<double> m;
    EXPECT_FALSE(m.dimensionada());
    EXPECT_EQ(m.dimensiones(), 0);
    EXPECT_EQ(m.size(), 0u);
    EXPECT_EQ(error_de([&] { (void)m.LBound(); }), 9);
    EXPECT_EQ(error_de([&] { (void)m.UBound(); }), 9);
    EXPECT_EQ(error_de([&] { (void)m[0]; }), 9);
}

TEST(Matriz, tiene_los_limites_pedidos_y_elementos_vacios) {
    const Matriz<double> m(1, 3);
    EXPECT_TRUE(m.dimensionada());
    EXPECT_EQ(m.dimensiones(), 1);
    EXPECT_EQ(m.LBound(), 1);
    EXPECT_EQ(m.UBound(), 3);
    EXPECT_EQ(m.size(), 3u);
    EXPECT_EQ(std::accumulate(m.begin(), m.end(), 0.0), 0.0);
}

TEST(Matriz, de_1_a_0_tiene_limites_y_ningun_elemento) {
    const Matriz<std::string> m(1, 0);
    EXPECT_TRUE(m.dimensionada());
    EXPECT_EQ(m.LBound(), 1);
    EXPECT_EQ(m.UBound(), 0);
    EXPECT_TRUE(m.empty());
    EXPECT_EQ(error_de([&] { (void)m[1]; }), 9);
}

TEST(Matriz, el_indice_cuenta_desde_el_limite_inferior) {
    Matriz<double> m(-2, {10.0, 20.0, 30.0});
    EXPECT_EQ(m.UBound(), 0);
    EXPECT_EQ(m[-2], 10.0);
    EXPECT_EQ(m[0], 30.0);
    m[-1] = 21.0;
    EXPECT_EQ(m[-1], 21.0);
}

TEST(Matriz, fuera_de_los_limites_error_9) {
    Matriz<double> m(1, 3);
    for (const std::int64_t i : {std::int64_t{0}, std::int64_t{4}, std::int64_t{-1}, INT64_MAX, INT64_MIN})
        EXPECT_EQ(error_de([&] { m[i] = 1; }), 9) << i;
}

TEST(Matriz, limites_imposibles_error_9) {
    EXPECT_EQ(error_de([] { Matriz<double>(1, -1); }), 9);
    EXPECT_EQ(error_de([] { Matriz<double>(maximo, minimo); }), 9);
    EXPECT_EQ(error_de([] { Matriz<double>(1, 3, 0); }), 9);
}

TEST(Matriz, los_limites_pueden_estar_en_los_extremos) {
    EXPECT_EQ(Matriz<double>(maximo, maximo).UBound(), maximo);
    EXPECT_EQ(Matriz<double>(minimo, minimo + 1)[minimo], 0.0);
}

TEST(Matriz, lo_que_no_cabe_en_la_memoria_es_error_7_y_no_cambia_nada) {
    struct Grande { // so many of them that no address space holds them
        char bytes[std::size_t{1} << 33];
    };
    Matriz<Grande> m;
    EXPECT_EQ(error_de([&] { m.redimensiona(minimo, maximo); }), 7);
    EXPECT_FALSE(m.dimensionada());
}

TEST(Matriz, redimensionar_borra_los_valores) {
    Matriz<double> m(1, {1.0, 2.0});
    m.redimensiona(1, 3);
    EXPECT_EQ(m, (Matriz<double>(1, {0.0, 0.0, 0.0})));
}

TEST(Matriz, redimensionar_conservando_guarda_los_que_caben) {
    Matriz<std::string> m(1, {"a", "b", "c"});
    m.redimensiona_conservando(1, 4);
    EXPECT_EQ(m, (Matriz<std::string>(1, {"a", "b", "c", ""})));
    m.redimensiona_conservando(1, 2);
    EXPECT_EQ(m, (Matriz<std::string>(1, {"a", "b"})));
}

TEST(Matriz, redimensionar_conservando_guarda_cada_valor_en_su_indice) {
    Matriz<double> m(1, {1.0, 2.0, 3.0});
    m.redimensiona_conservando(0, 2);
    EXPECT_EQ(m, (Matriz<double>(0, {0.0, 1.0, 2.0})));
    m.redimensiona_conservando(1, 3);
    EXPECT_EQ(m, (Matriz<double>(1, {1.0, 2.0, 0.0})));
    m.redimensiona_conservando(5, 6);
    EXPECT_EQ(m, (Matriz<double>(5, {0.0, 0.0})));
    m.redimensiona_conservando(5, 4);
    EXPECT_TRUE(m.empty());
}

TEST(Matriz, redimensionar_conservando_sirve_tambien_sin_dimensionar) {
    Matriz<double> m;
    m.redimensiona_conservando(1, 2);
    EXPECT_EQ(m, (Matriz<double>(1, {0.0, 0.0})));
}

TEST(Matriz, un_error_al_redimensionar_no_cambia_nada) {
    Matriz<double> m(1, {1.0, 2.0});
    EXPECT_EQ(error_de([&] { m.redimensiona_conservando(1, -5); }), 9);
    EXPECT_EQ(error_de([&] { m.redimensiona(1, -5); }), 9);
    EXPECT_EQ(m, (Matriz<double>(1, {1.0, 2.0})));
}

TEST(Matriz, borrar_la_deja_sin_dimensionar) {
    Matriz<double> m(1, 2);
    m.borra();
    EXPECT_FALSE(m.dimensionada());
    EXPECT_EQ(m, Matriz<double>());
}

TEST(Matriz, dice_que_es_de_varias_dimensiones) {
    Matriz<double> m(0, 3, 2);
    EXPECT_EQ(m.dimensiones(), 2);
    EXPECT_EQ(m.UBound(), 3);
    m.redimensiona(1, 2);
    EXPECT_EQ(m.dimensiones(), 1);
}

TEST(Matriz, es_igual_por_limites_y_valores) {
    EXPECT_EQ(Matriz<double>(1, 2), Matriz<double>(1, 2));
    EXPECT_FALSE(Matriz<double>(1, 2) == Matriz<double>(0, 1));
    EXPECT_FALSE(Matriz<double>(1, 0) == Matriz<double>());
    EXPECT_FALSE(Matriz<double>(1, 2) == Matriz<double>(1, 2, 2));
}
