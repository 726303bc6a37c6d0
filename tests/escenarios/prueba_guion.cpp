// SPDX-License-Identifier: MIT
// The runner itself: a script must be able to fail. Each small script runs without a window and gives the
// failure that it deserves, or none.
#include "tests/guion/conductor_memoria.h"
#include "tests/guion/guion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>

namespace Qlt4_Tabla {

namespace {

using testing::HasSubstr;

const std::string MESA = "formato 1 A Entero\nformato 2 B Alfanm\nestablece\nescena una\n";

std::string corre(const std::string& texto) {
    std::istringstream entrada(texto);
    const Guion guion = lee_guion(entrada, "g");
    ConductorMemoria conductor;
    return ejecuta(guion, guion.escenas.front(), conductor);
}

std::string lee_mal(const std::string& texto) {
    std::istringstream entrada(texto);
    try {
        static_cast<void>(lee_guion(entrada, "g"));
    } catch (const std::runtime_error& e) {
        return e.what();
    }
    return "read";
}

TEST(Guion, pasa_lo_que_es_asi) { EXPECT_EQ(corre(MESA + "clic 2 1\n> SelChange\n? actual 2 1\n"), ""); }

TEST(Guion, falla_un_suceso_de_mas) {
    EXPECT_THAT(corre(MESA + "clic 2 1\n? actual 2 1\n"), HasSubstr("g:5: clic 2 1\n  expected:"));
}

TEST(Guion, falla_un_suceso_de_menos) {
    EXPECT_THAT(corre(MESA + "clic 1 1\n> SelChange\n"), HasSubstr("g:5: clic 1 1"));
}

TEST(Guion, falla_un_suceso_fuera_de_orden) {
    EXPECT_THAT(corre(MESA + "teclea 1\npulsa Intro\n> CambiaCasilla\n> captura\n> SelChange\n"),
        HasSubstr("g:6: pulsa Intro"));
}

TEST(Guion, falla_una_respuesta_distinta) {
    EXPECT_EQ(corre(MESA + "? celda 0 1 = B\n"), "g:5: expected <B>, found <A>");
    EXPECT_EQ(corre(MESA + "? actual 1 2\n"), "g:5: expected <1 2>, found <1 1>");
}

TEST(Guion, falla_lo_que_no_conoce) {
    EXPECT_EQ(corre(MESA + "salta 1\n"), "g:5: no such step: salta");
    EXPECT_EQ(corre(MESA + "? color 1 1\n"), "g:5: no such question: color");
    EXPECT_EQ(corre(MESA + "pulsa F99\n"), "g:5: no such key: F99");
    EXPECT_EQ(corre(MESA + "clic 1 1 2\n"), "g:5: too many words, from 2");
    EXPECT_EQ(corre(MESA + "clic 1\n"), "g:5: a word is missing at the end");
}

TEST(Guion, falla_una_celda_que_no_se_ve) {
    EXPECT_EQ(corre(MESA + "clic 1 3\n"), "g:5: the cell is not seen");
    EXPECT_EQ(corre(MESA + "clic 1 9\n"), "g:5: error 9");
}

TEST(Guion, una_linea_esperada_va_tras_su_estimulo) {
    EXPECT_EQ(corre(MESA + "? actual 1 1\n> SelChange\n"),
        "g:6: an expected line must follow its stimulus at once");
}

TEST(Guion, el_anfitrion_responde_dentro_de_un_suceso) {
    EXPECT_EQ(corre(MESA +
                  "cuando SelChange texto 1 1 7\nclic 2 1\n> SelChange\n> captura\n"
                  "? celda 1 1 = 7\nclic 1 1\n> SelChange\n"),
        "");
}

TEST(Guion, un_fallo_dentro_de_un_suceso_se_cuenta) {
    EXPECT_EQ(corre(MESA + "cuando SelChange salta\nclic 2 1\n> SelChange\n"), "g:6: no such step: salta");
}

TEST(Guion, repite_escribe_los_turnos) {
    EXPECT_EQ(corre(MESA + "repite 2\nclic {i+1} {i}\n> SelChange\n? actual {i+1} {i}\nfin\n"), "");
}

TEST(Guion, un_texto_entre_comillas_guarda_blancos_y_almohadillas) {
    EXPECT_EQ(corre(MESA + "texto 1 2 \" #a  b\" # comment\n> captura\n? celda 1 2 = \" #a  b\"\n"), "");
}

TEST(Guion, se_niega_a_leer_lo_que_no_es_un_guion) {
    EXPECT_EQ(lee_mal(""), "g:0: no scene");
    EXPECT_EQ(lee_mal("escena a\nrepite 2\nclic 1 1\n"), "g:3: repite without fin");
    EXPECT_EQ(lee_mal("escena a\nfin\n"), "g:2: fin without repite");
    EXPECT_EQ(lee_mal("escena \"a\n"), "g:1: a quote is not closed");
}

TEST(Guion, falla_lo_que_el_mundo_no_tiene) {
    EXPECT_EQ(corre(MESA + "corta_fichero no 3\n"), "g:5: no file that can be cut so: no");
    EXPECT_EQ(corre(MESA + "color Aceptar|salta\n"), "g:5: no such step in the colour picker: salta");
    EXPECT_EQ(corre(MESA + "color muestra\n"), "g:5: a word is missing at the end");
    EXPECT_EQ(corre(MESA + "? fichero no si\n"), "g:5: expected <si>, found <no>");
}

TEST(Guion, falla_un_color_que_no_es_el_elegido) {
    EXPECT_EQ(corre(MESA + "color Cancelar\nelige_color 255 = 1\n"), "g:6: the picker gave 255");
}

} // namespace

} // namespace Qlt4_Tabla
