// SPDX-License-Identifier: MIT
// Key codes and modifier sets.
#include "base/teclas.h"

#include <gtest/gtest.h>

using namespace Qlt4_Tabla;

TEST(Teclas, tienen_los_codigos_de_los_avisos_de_tecla) {
    using namespace teclas;
    struct {
        int tecla, codigo;
    } const casos[] = {{NINGUNA, 0}, {RETROCESO, 8}, {TAB, 9}, {INTRO, 13}, {ESCAPE, 27}, {ESPACIO, 32},
        {REPAG, 33}, {AVPAG, 34}, {FIN, 35}, {INICIO, 36}, {IZQUIERDA, 37}, {ARRIBA, 38}, {DERECHA, 39},
        {ABAJO, 40}, {INSERTAR, 45}, {SUPR, 46}, {A, 'A'}, {C, 'C'}, {V, 'V'}, {X, 'X'}, {Y, 'Y'}, {Z, 'Z'},
        {F1, 112}, {F2, 113}, {F3, 114}, {F4, 115}, {F5, 116}, {F6, 117}, {F7, 118}, {F8, 119}, {F9, 120},
        {F10, 121}, {F11, 122}, {F12, 123}};
    for (const auto& caso : casos) EXPECT_EQ(caso.tecla, caso.codigo);
}

TEST(Modificadores, se_juntan_y_se_preguntan) {
    const Modificadores dos = teclas::CONTROL | teclas::MAYUSCULAS;
    EXPECT_TRUE(dos.contiene(teclas::CONTROL));
    EXPECT_TRUE(dos.contiene(teclas::MAYUSCULAS));
    EXPECT_FALSE(dos.contiene(teclas::ALT));
    EXPECT_FALSE(teclas::CONTROL.contiene(dos));
    EXPECT_FALSE(dos.vacio());
}

TEST(Modificadores, vacio_de_principio) {
    EXPECT_TRUE(Modificadores().vacio());
    EXPECT_EQ(Modificadores().bits(), 0);
    EXPECT_TRUE(Modificadores().contiene(Modificadores()));
}

TEST(Modificadores, sus_bits_son_1_2_y_4) {
    EXPECT_EQ(teclas::MAYUSCULAS.bits(), 1);
    EXPECT_EQ(teclas::CONTROL.bits(), 2);
    EXPECT_EQ(teclas::ALT.bits(), 4);
    EXPECT_EQ(Modificadores::de_bits(3), teclas::MAYUSCULAS | teclas::CONTROL);
    EXPECT_EQ(Modificadores::de_bits(8 + 4), teclas::ALT);
}
