// SPDX-License-Identifier: MIT
// The fixed-width names: fields, padding, cutting, and which calls do nothing.
#include "core/nombres_tabla.h"

#include <gtest/gtest.h>

#include <string>

using namespace Qlt4_Tabla;

namespace {

std::string repetido(std::string_view texto, int veces) {
    std::string todo;
    for (int i = 0; i < veces; ++i) todo += texto;
    return todo;
}

} // namespace

TEST(NombresTabla, empiezan_vacios) {
    const NombresTabla n;
    for (int campo = 1; campo <= 4; ++campo) EXPECT_EQ(n.Tablero_Lee_Nombre(campo, true), "") << campo;
}

TEST(NombresTabla, cada_campo_guarda_lo_suyo) {
    NombresTabla n;
    n.Tablero_Pon_Nombre(4, true, "ab");
    n.Tablero_Pon_Nombre(3, true, "*.tb0");
    n.Tablero_Pon_Nombre(2, true, "Ejes");
    n.Tablero_Pon_Nombre(1, true, "Planta");
    EXPECT_EQ(n.titulo(), "Planta");
    EXPECT_EQ(n.subtitulo(), "Ejes");
    EXPECT_EQ(n.extension(), "*.tb0");
    EXPECT_EQ(n.Tablero_Lee_Nombre(4, true), "ab");
}

TEST(NombresTabla, un_texto_largo_se_corta_al_ancho_del_campo) {
    const struct {
        int campo;
        int ancho;
    } casos[] = {{1, 40}, {2, 30}, {3, 5}, {4, 2}};
    for (const auto& caso : casos) {
        NombresTabla n;
        n.Tablero_Pon_Nombre(caso.campo, true, repetido("x", caso.ancho + 1));
        EXPECT_EQ(n.Tablero_Lee_Nombre(caso.campo, true), repetido("x", caso.ancho)) << caso.campo;
    }
}

TEST(NombresTabla, un_campo_lleno_no_toca_a_sus_vecinos) {
    NombresTabla n;
    for (int campo = 1; campo <= 4; ++campo)
        n.Tablero_Pon_Nombre(campo, true, repetido(std::to_string(campo), 50));
    EXPECT_EQ(n.titulo(), repetido("1", 40));
    EXPECT_EQ(n.subtitulo(), repetido("2", 30));
    EXPECT_EQ(n.extension(), "33333");
    EXPECT_EQ(n.Tablero_Lee_Nombre(4, true), "44");
}

TEST(NombresTabla, el_ancho_cuenta_caracteres_y_no_bytes) {
    NombresTabla n;
    n.Tablero_Pon_Nombre(1, true, repetido("ñ", 41));
    n.Tablero_Pon_Nombre(2, true, "Año €𝄞");
    EXPECT_EQ(n.titulo(), repetido("ñ", 40));
    EXPECT_EQ(n.subtitulo(), "Año €𝄞");
}

TEST(NombresTabla, un_texto_mas_corto_borra_el_anterior) {
    NombresTabla n;
    n.Tablero_Pon_Nombre(1, true, "Un título largo");
    n.Tablero_Pon_Nombre(1, true, "Uno");
    EXPECT_EQ(n.titulo(), "Uno");
    n.Tablero_Pon_Nombre(1, true, "");
    EXPECT_EQ(n.titulo(), "");
}

TEST(NombresTabla, al_leer_se_quitan_los_blancos_de_los_extremos) {
    NombresTabla n;
    n.Tablero_Pon_Nombre(1, true, "  Eje  de la vía  ");
    n.Tablero_Pon_Nombre(2, true, "\tEje\t");
    EXPECT_EQ(n.titulo(), "Eje  de la vía");
    EXPECT_EQ(n.subtitulo(), "\tEje\t");
}

TEST(NombresTabla, los_blancos_de_delante_cuentan_al_cortar) {
    NombresTabla n;
    n.Tablero_Pon_Nombre(3, true, "  *.tb0");
    EXPECT_EQ(n.extension(), "*.t");
}

TEST(NombresTabla, sin_activar_o_con_otro_campo_no_hacen_nada) {
    NombresTabla n;
    n.Tablero_Pon_Nombre(1, true, "Planta");
    n.Tablero_Pon_Nombre(1, false, "otro");
    for (const int campo : {0, 5, -1, 100}) n.Tablero_Pon_Nombre(campo, true, "otro");
    EXPECT_EQ(n.titulo(), "Planta");
    EXPECT_EQ(n.Tablero_Lee_Nombre(1, false), "");
    for (const int campo : {0, 5, -1, 100}) EXPECT_EQ(n.Tablero_Lee_Nombre(campo, true), "") << campo;
    for (int campo = 2; campo <= 4; ++campo) EXPECT_EQ(n.Tablero_Lee_Nombre(campo, true), "") << campo;
}
