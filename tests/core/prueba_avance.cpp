// SPDX-License-Identifier: MIT
// How far a long command is: a notice for each per cent, none of a short one; and one hourglass for commands
// within commands.
#include "core/avance.h"
#include "core/reloj_de_arena.h"
#include "tests/core/mesa.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Avances : public testing::Test {
protected:
    Registro tras(std::int64_t total, const std::vector<std::int64_t>& pasos) {
        Avance avance(p.mensajes, "Pegando", total);
        for (const std::int64_t paso : pasos) avance.hasta(paso);
        return p.recoge();
    }

    PlataformaMemoria p;
    EstadoTabla e{p.plataforma(), p.eventos};
};

TEST_F(Avances, cada_tanto_por_ciento_se_dice_una_vez) {
    Avance avance(p.mensajes, "Pegando", 20'000);
    for (int paso = 1; paso <= 20'000; ++paso) avance.hasta(paso);
    const Registro dicho = p.recoge();
    ASSERT_EQ(dicho.size(), 100U);
    EXPECT_EQ(dicho.front(), "avance Pegando 1");
    EXPECT_EQ(dicho[44], "avance Pegando 45");
    EXPECT_EQ(dicho.back(), "avance Pegando 100");
}

TEST_F(Avances, un_tanto_por_ciento_se_dice_cuando_esta_entero) {
    EXPECT_THAT(tras(10'050, {100}), IsEmpty()); // 0.995 %
    EXPECT_THAT(tras(10'050, {101}), ElementsAre("avance Pegando 1"));
    EXPECT_THAT(tras(10'050, {10'049, 10'050}), ElementsAre("avance Pegando 99", "avance Pegando 100"));
}

TEST_F(Avances, un_salto_se_dice_de_una_vez) {
    EXPECT_THAT(tras(10'000, {1, 4'599, 4'600, 4'601, 20'000, 20'001}),
        ElementsAre("avance Pegando 45", "avance Pegando 46", "avance Pegando 100"));
}

TEST_F(Avances, una_orden_corta_no_dice_nada) {
    EXPECT_THAT(tras(Avance::MINIMO - 1, {5'000, 9'999}), IsEmpty());
    EXPECT_THAT(tras(0, {0}), IsEmpty());
    EXPECT_THAT(tras(Avance::MINIMO, {100}), ElementsAre("avance Pegando 1"));
}

TEST_F(Avances, mas_pasos_que_32_bits) {
    constexpr std::int64_t TOTAL = 26LL << 28U;
    EXPECT_THAT(tras(TOTAL, {TOTAL / 2}), ElementsAre("avance Pegando 50"));
}

TEST_F(Avances, el_reloj_de_arena_es_uno_hasta_que_acaba_el_de_fuera) {
    {
        const RelojDeArena fuera(e);
        { const RelojDeArena dentro(e); }
        EXPECT_THAT(p.recoge(), ElementsAre("puntero 11"));
    }
    EXPECT_THAT(p.recoge(), ElementsAre("puntero 0"));
}

} // namespace

} // namespace Qlt4_Tabla
