// SPDX-License-Identifier: MIT
// The filters of the keys typed into numeric cells.
#include "core/reglas_valor.h"

#include <gtest/gtest.h>

#include <string>

using namespace Qlt4_Tabla;

namespace {

// The two kinds of sign mark, and what the filter is asked with.
constexpr const char* con_signo = "-";
constexpr const char* sin_signo = "+";

void espera_pasa(int tecla, const char* signos, bool decimales, const char* casilla) {
    const ResultadoFiltro r = Filtra_Tecla(tecla, signos, decimales, casilla);
    EXPECT_EQ(r.KeyAscii, tecla) << tecla << " en \"" << casilla << '"';
    EXPECT_FALSE(r.reescrito);
}

void espera_tirada(int tecla, const char* signos, bool decimales, const char* casilla) {
    const ResultadoFiltro r = Filtra_Tecla(tecla, signos, decimales, casilla);
    EXPECT_EQ(r.KeyAscii, 0) << tecla << " en \"" << casilla << '"';
    EXPECT_FALSE(r.reescrito) << tecla << " en \"" << casilla << '"';
}

void espera_reescrita(int tecla, const char* casilla, const char* texto) {
    const ResultadoFiltro r = Filtra_Tecla(tecla, con_signo, true, casilla);
    EXPECT_EQ(r.KeyAscii, 0);
    EXPECT_TRUE(r.reescrito) << casilla;
    EXPECT_EQ(r.texto, texto);
}

bool es_cifra(int tecla) { return tecla >= 48 && tecla <= 57; }

} // namespace

TEST(FiltraTecla, pasan_las_cifras_en_todas_las_columnas) {
    for (int tecla = '0'; tecla <= '9'; ++tecla)
        for (const char* signos : {con_signo, sin_signo})
            for (const char* casilla : {"", "4.2", "-", "abc"}) espera_pasa(tecla, signos, false, casilla);
}

TEST(FiltraTecla, el_punto_pasa_una_vez_y_solo_con_decimales) {
    espera_pasa('.', con_signo, true, "");
    espera_pasa('.', sin_signo, true, "42");
    espera_pasa('.', con_signo, true, "4,2");
    espera_tirada('.', con_signo, true, "4.2");
    espera_tirada('.', con_signo, true, ".");
    espera_tirada('.', con_signo, false, "42");
    espera_tirada('.', sin_signo, false, "");
}

TEST(FiltraTecla, el_mas_quita_el_primer_caracter_de_lo_que_no_es_positivo) {
    espera_reescrita('+', "-4.2", "4.2");
    espera_reescrita('+', "0", "");
    espera_reescrita('+', "abc", "bc");
    espera_reescrita('+', "-", "");
    espera_reescrita('+', "-3,75", "3,75");
    espera_reescrita('+', "ñ1", "1");
    espera_reescrita('+', " -5", "-5");
    espera_reescrita('+',
        "\xFF"
        "1",
        "1");
}

TEST(FiltraTecla, el_mas_no_cambia_lo_positivo_ni_lo_vacio) {
    espera_tirada('+', con_signo, true, "4.2");
    espera_tirada('+', con_signo, true, "0,5");
    espera_tirada('+', con_signo, true, "");
}

TEST(FiltraTecla, el_menos_pasa_en_la_casilla_vacia) {
    espera_pasa('-', con_signo, true, "");
    espera_pasa('-', con_signo, false, "");
}

TEST(FiltraTecla, el_menos_se_antepone_a_lo_que_no_tiene_ninguno) {
    espera_reescrita('-', "4.2", "-4.2");
    espera_reescrita('-', "0", "-0");
    espera_reescrita('-', "abc", "-abc");
    espera_tirada('-', con_signo, true, "-4.2");
    espera_tirada('-', con_signo, true, "1e-5");
}

TEST(FiltraTecla, en_columnas_positivas_los_signos_no_hacen_nada) {
    for (const char* casilla : {"", "4.2", "-4.2", "0", "abc"}) {
        espera_tirada('+', sin_signo, true, casilla);
        espera_tirada('-', sin_signo, true, casilla);
    }
}

TEST(FiltraTecla, los_demas_codigos_de_1_a_255_se_tiran) {
    for (int tecla = 1; tecla <= 255; ++tecla) {
        if (es_cifra(tecla) || tecla == 8 || tecla == '.' || tecla == '+' || tecla == '-') continue;
        for (const char* signos : {con_signo, sin_signo}) espera_tirada(tecla, signos, true, "4.2");
    }
}

TEST(FiltraTecla, pasan_retroceso_el_0_los_negativos_y_los_mayores_de_255) {
    for (const int tecla : {8, 0, -1, -32768, 256, 0x044F, 32767, 0x1D11E}) {
        espera_pasa(tecla, con_signo, false, "4.2");
        espera_pasa(tecla, sin_signo, true, "");
    }
}

TEST(FiltraTeclaTablero, pasan_cifras_menos_y_retroceso) {
    for (int tecla = '0'; tecla <= '9'; ++tecla) EXPECT_EQ(Filtra_Tecla_Tablero(tecla, false), tecla);
    EXPECT_EQ(Filtra_Tecla_Tablero('-', false), '-');
    EXPECT_EQ(Filtra_Tecla_Tablero('-', true), '-');
    EXPECT_EQ(Filtra_Tecla_Tablero(8, false), 8);
}

TEST(FiltraTeclaTablero, el_punto_pasa_solo_con_decimales) {
    EXPECT_EQ(Filtra_Tecla_Tablero('.', true), '.');
    EXPECT_EQ(Filtra_Tecla_Tablero('.', false), 0);
}

TEST(FiltraTeclaTablero, los_demas_codigos_de_1_a_255_se_tiran) {
    for (int tecla = 1; tecla <= 255; ++tecla) {
        if (es_cifra(tecla) || tecla == 8 || tecla == '.' || tecla == '-') continue;
        EXPECT_EQ(Filtra_Tecla_Tablero(tecla, true), 0) << tecla;
    }
}

TEST(FiltraTeclaTablero, pasan_el_0_y_los_mayores_de_255) {
    for (const int tecla : {0, 256, 0x044F, 32767}) EXPECT_EQ(Filtra_Tecla_Tablero(tecla, false), tecla);
}
