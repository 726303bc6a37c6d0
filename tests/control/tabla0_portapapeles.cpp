// SPDX-License-Identifier: MIT
// The members that export to a spreadsheet, and the commands that copy and paste where editing has its part:
// what their errors say and what is left after them.
#include "tests/control/mesa.h"

#include <gmock/gmock.h>

using namespace Qlt4_Tabla;
using prueba::Mesa;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ExportaTabla : public Mesa {
protected:
    ExportaTabla() {
        t.Cols(3);
        t.Rows(3);
        t.TextMatrix(1, 1, "1.5");
        t.TextMatrix(2, 2, "b");
        p.registro.clear();
    }

    // Each of the two members.
    template <class F>
    void con_cada_uno(F&& comprueba) {
        for (const bool excel : {false, true}) {
            p.registro.clear();
            if (excel)
                t.Copiar_todo_Excel();
            else
                t.Copiar_Todo();
            comprueba();
        }
    }
};

TEST_P(ExportaTabla, FillsAndShowsTheSpreadsheet) {
    con_cada_uno([&] {
        EXPECT_EQ((p.hoja_calculo.celdas[{1, 1}]), "1.5");
        EXPECT_EQ((p.hoja_calculo.celdas[{2, 2}]), "b");
        EXPECT_TRUE(p.hoja_calculo.visible);
        EXPECT_FALSE(p.hoja_calculo.tomada);
        EXPECT_THAT(p.mensajes.vistos, IsEmpty());
        p.hoja_calculo.celdas.clear();
        p.hoja_calculo.visible = false;
    });
}

TEST_P(ExportaTabla, SaysNumberAndDescriptionOfAnError) {
    p.hoja_calculo.fallos = {{"aplicacion", Error(NumError::SinComponente)}};
    con_cada_uno([&] {
        EXPECT_THAT(p.registro,
            ElementsAre("puntero 11", "hoja aplicacion", "puntero 0",
                "mensaje|16||copiar todo - Error nº 429:El componente ActiveX no puede crear el objeto"));
    });
}

TEST_P(ExportaTabla, SaysWhatTheProgramSaid) {
    p.hoja_calculo.fallos = {{"celda", Error(-2147221, "hoja protegida")}};
    con_cada_uno([&] {
        EXPECT_EQ(p.registro.back(), "mensaje|16||copiar todo - Error nº -2147221:hoja protegida");
        EXPECT_EQ(p.mensajes.forma, Puntero::Normal);
    });
}

TRES_VIAS(ExportaTabla);

class OrdenesPortapapeles : public ::testing::Test {
protected:
    OrdenesPortapapeles() {
        tabla.TextMatrix(1, 1, "uno");
        p.registro.clear();
    }

    Mandos& m() { return tabla.mandos(); }

    PlataformaMemoria p;
    Tabla0 tabla{p.plataforma(), p.eventos};
};

TEST_F(OrdenesPortapapeles, CutCapturesCopiesAndEmpties) {
    EXPECT_TRUE(m().orden(Opcion::mn_cortar));
    EXPECT_THAT(p.registro, ElementsAre("captura", "puntero 11", "puntero 0", "captura"));
    EXPECT_EQ(p.portapapeles.texto, "uno\r\n");
    EXPECT_EQ(tabla.tablero().TextMatrix(1, 1), "");
    EXPECT_EQ(tabla.estado().Modificado, 1);
}

TEST_F(OrdenesPortapapeles, CutEmptiesNothingThatIsNotOnTheClipboard) {
    p.portapapeles.error_al_escribir = 521;
    EXPECT_TRUE(m().orden(Opcion::mn_cortar));
    EXPECT_EQ(tabla.tablero().TextMatrix(1, 1), "uno");
    EXPECT_EQ(tabla.estado().Modificado, 0);
}

TEST_F(OrdenesPortapapeles, TheNullClipboardLetsNothingBeCut) {
    PortapapelesNulo nulo;
    EXPECT_EQ(nulo.lee(), "");
    EXPECT_THROW(nulo.escribe("x"), Error);
}

TEST_F(OrdenesPortapapeles, ShortcutsNeedCtrlAlone) {
    for (const Modificadores mods :
        {Modificadores(), teclas::CONTROL | teclas::MAYUSCULAS, teclas::CONTROL | teclas::ALT, teclas::ALT}) {
        for (const int tecla : {teclas::C, teclas::X, teclas::V, teclas::Z}) m().tecla_abajo(tecla, mods);
    }
    EXPECT_EQ(p.portapapeles.escrituras + p.portapapeles.lecturas, 0);
    for (const int tecla : {teclas::C, teclas::V, teclas::Z, teclas::X})
        EXPECT_TRUE(m().tecla_abajo(tecla, teclas::CONTROL));
    EXPECT_EQ(p.portapapeles.escrituras, 2);
    EXPECT_EQ(p.portapapeles.lecturas, 1);
}

TEST_F(OrdenesPortapapeles, ButtonsGiveTheFocusBack) {
    const int antes = p.marco.veces_enfoca;
    EXPECT_TRUE(m().boton("Copiar"));
    EXPECT_TRUE(m().boton("Pegar"));
    EXPECT_TRUE(m().boton("Excel"));
    EXPECT_EQ(p.marco.veces_enfoca, antes + 3);
    EXPECT_TRUE(p.hoja_calculo.visible);
    EXPECT_FALSE(m().boton("c1"));
    EXPECT_FALSE(m().boton("copiar"));
}

TEST_F(OrdenesPortapapeles, AtTheEndARowIsAddedFirst) {
    p.portapapeles.texto = "7\t5\r\n";
    EXPECT_TRUE(m().orden(Opcion::mn_pegar_al_final));
    EXPECT_EQ(tabla.Rows(), 5);
    EXPECT_EQ(tabla.tablero().TextMatrix(4, 0), "7");
    EXPECT_EQ(tabla.tablero().TextMatrix(4, 1), "5");
    EXPECT_EQ(p.pasos.capturas, 3); // the host's first write, the added row, the paste
}

} // namespace
