// SPDX-License-Identifier: MIT
// The colouring members through the class and through the dispatcher. Their rules in every detail:
// tests/colours/celdas.cpp.
#include "tests/control/mesa.h"

namespace {

using namespace prueba;

class Colores : public Mesa {};
TRES_VIAS(Colores);

const std::string NEGATIVO = "mensaje|16|Tabla color|color negativo";

TEST_P(Colores, AColumnsTextTakesTheColourAndTheCellStays) {
    t.Color_Columna(2, T_colores::Azul);
    EXPECT_EQ(g().color_texto(0, 2), 0);
    for (int f = 1; f <= 3; ++f) EXPECT_EQ(g().color_texto(f, 2), 0xFF0000);
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
}

TEST_P(Colores, ACellsTextTakesTheColourByEitherMember) {
    t.ColMatrix(1, 2, T_colores::Rojo);
    t.Color_1Celda(2, 3, T_colores::Verde);
    EXPECT_EQ(g().color_texto(1, 2), 0x0000FF);
    EXPECT_EQ(g().color_texto(2, 3), 0x00FF00);
    EXPECT_EQ(seleccion(), (std::vector{2, 3, 2, 3}));
    t.ColMatrix(1, 2, static_cast<T_colores>(9));
    EXPECT_EQ(g().color_texto(1, 2), 0);
}

TEST_P(Colores, ARowIsPaintedInEitherOrder) {
    t.Color_Fila(1, 4, 2, T_colores::Magent);
    EXPECT_FALSE(g().tiene_fondo(1, 1));
    for (int c = 2; c <= 4; ++c) EXPECT_EQ(g().color_fondo(1, c), 0xFF00FF);
}

TEST_P(Colores, AllTextColoursAreTakenAwayAndBackgroundsStay) {
    t.ColMatrix(1, 1, T_colores::Rojo);
    t.Color_Matrix(1, 1, 0x123456);
    t.tablero_sin_color();
    EXPECT_EQ(g().color_texto(1, 1), 0);
    EXPECT_EQ(t.Color_Matrix(1, 1), 0x123456);
}

TEST_P(Colores, OutsideTheGridNothingHappensAndNothingIsRaised) {
    EXPECT_EQ(numero_error([&] {
        t.Color_Columna(99, T_colores::Rojo);
        t.ColMatrix(99, 1, T_colores::Rojo);
        t.Color_1Celda(1, 99, T_colores::Rojo);
        t.Color_Fila(99, 1, 2, T_colores::Rojo);
        t.Color_Matrix(-1, 1, 5);
        t.Color_Matrix_en_Cad(1, -1, 1);
        EXPECT_EQ(t.Color_Matrix(99, 1), 0);
        EXPECT_EQ(t.Color_Matrix_en_VB(99, 1), 0);
    }),
        0);
    EXPECT_TRUE(p.registro.empty());
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 1, 1}));
}

TEST_P(Colores, ColourCellsAreNamedAndPaintedOnceTheHostSaysSo) {
    t.Color_Matrix_en_Cad_dado_N_cad(1, 1, 1);
    EXPECT_FALSE(g().tiene_fondo(1, 1));
    t.A_Edicion_pon_Color();
    t.Color_Matrix_en_Cad_dado_N_cad(1, 1, 1);
    t.Color_Matrix_en_Cad(1, 2, 1);
    t.Color_Matrix_en_Cad_dado_N_VB(1, 3, 0x00FF00);
    t.Color_Matrix_de_Cad(1, 4, 5);
    EXPECT_EQ(celda(1, 1), "rojo");
    EXPECT_EQ(celda(1, 2), "rojo");
    EXPECT_EQ(celda(1, 3), "verde");
    EXPECT_EQ(celda(1, 4), "azul");
    EXPECT_EQ(t.Color_Matrix(1, 1), 0x0000FF);
    EXPECT_EQ(t.Color_Matrix(1, 2), 1);
    EXPECT_EQ(t.Color_Matrix(1, 3), 0x00FF00);
    EXPECT_FALSE(g().tiene_fondo(1, 4));
}

TEST_P(Colores, NegativeColoursAreRefusedWithAMessage) {
    t.Color_Matrix_en_Cad(1, 1, -1);
    t.Color_Matrix_de_Cad(1, 1, -1);
    t.Color_Matrix_en_Cad_dado_N_VB(1, 1, -1);
    t.Color_Matrix_en_Cad_dado_N_cad(1, 1, -1);
    EXPECT_EQ(p.registro, (Registro(4, NEGATIVO)));
    EXPECT_EQ(celda(1, 1), "");
}

TEST_P(Colores, AColourCellTellsItsScreenColour) {
    t.TextMatrix(1, 1, "azul");
    t.TextMatrix(1, 2, "por capa");
    EXPECT_EQ(t.Color_Matrix_en_VB(1, 1), 0xFF0000);
    EXPECT_EQ(t.Color_Matrix_en_VB(1, 2), 0x807C80);
    t.A_Edicion_pon_Color();
    EXPECT_EQ(t.Color_Matrix_en_VB(1, 1), 0);
}

TEST_P(Colores, ATextThatIsNoColourRaisesItsErrorToTheCaller) {
    t.TextMatrix(1, 1, "celeste");
    t.TextMatrix(1, 2, "40000");
    EXPECT_EQ(numero_error([&] { static_cast<void>(t.Color_Matrix_en_VB(1, 1)); }), 13);
    EXPECT_EQ(numero_error([&] { static_cast<void>(t.Color_Matrix_en_VB(1, 2)); }), 6);
    EXPECT_TRUE(p.mensajes.vistos.empty());
}

// --- The picker ---

TEST_P(Colores, ThePickerGivesTheChosenColour) {
    p.dialogo_color.usuario.push_back([](ModeloColor& m) {
        clic_en_muestra(m, 14);
        m.boton(BotonColor::Aceptar);
    });
    EXPECT_EQ(t.Show_Elige_Color(0x0000FF), 0x000098);
    EXPECT_EQ(p.dialogo_color.vistos.back().titulo, "Elige Color:");
    EXPECT_EQ(p.dialogo_color.vistos.back().texto, "rojo");
    EXPECT_EQ(t.Show_Elige_Color(0x123456), 0x123456); // cancelled
}

TEST_P(Colores, APreselectedBlackCannotBeAccepted) {
    p.dialogo_color.usuario.push_back([](ModeloColor& m) {
        m.boton(BotonColor::Aceptar);
        EXPECT_EQ(m.visto().error, "Color no válido");
        EXPECT_TRUE(m.visto().abierto);
    });
    EXPECT_EQ(t.Show_Elige_Color(0), 0);
    EXPECT_EQ(p.mensajes.pitidos, 1);
}

TEST_P(Colores, AnErrorOfThePickerIsToldInItsOwnWordsAndTheChoiceKept) {
    p.ajustes.falla(75);
    p.dialogo_color.usuario.push_back([](ModeloColor& m) { m.boton(BotonColor::Aceptar); });
    EXPECT_EQ(t.Show_Elige_Color(0x0000FF), 0x0000FF);
    p.dialogo_color.usuario.push_back([](ModeloColor& m) {
        m.teclea("azul");
        m.boton(BotonColor::Aceptar);
    });
    EXPECT_EQ(t.Show_Elige_Color(0x0000FF), 0xFF0000);
    const std::string esperado =
        "ERROR en Vdk_Sys.DLL Nº75\r\n Error de acceso a la ruta o al archivo\r\n.S_color";
    EXPECT_EQ(
        p.mensajes.vistos, (std::vector<MensajesMemoria::Visto>(2, {esperado, EstiloMensaje::Critico, ""})));
}

} // namespace
