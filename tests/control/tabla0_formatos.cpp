// SPDX-License-Identifier: MIT
// The members of formats, names, lists, switches and design-time properties, and those without a rule.
#include "tests/control/mesa.h"

namespace {

using namespace prueba;

class FormatosTabla : public Mesa {};
TRES_VIAS(FormatosTabla);

TEST_P(FormatosTabla, TheTextFormReadsADashAsAClearFlag) {
    t.Formatcol(3, "-", "-", 2, 2, 2, 10, "Cota");
    t.Formatcol(2, "", "X", 4, 0, 0, 8, "Nota", 1);
    t.Tablero_establece_Formato();
    EXPECT_EQ(g().ColWidth(3), 1200);
    EXPECT_EQ(t.TextMatrix(0, 3), "Cota");
    EXPECT_EQ(g().ColAlignment(3), AlineacionCelda::Derecha);
    EXPECT_EQ(formato(3).Accion, 0);
    EXPECT_TRUE(formato(2).Invisible);
    EXPECT_TRUE(formato(2).Bloqueada);
    EXPECT_EQ(formato(2).Accion, 1);
    EXPECT_EQ(g().ColWidth(2), 0);
}

TEST_P(FormatosTabla, TheTypedFormKeepsEveryField) {
    t.FormatoColumnas(1, true, true, T_formato::Imagen, 4, T_Alineacion::Centr, T_Accion::Decrem, 12, "Foto");
    const T_FormatoColumna esperado{"Foto", true, true, 12, 7, 4, 1, 3};
    EXPECT_EQ(formato(1), esperado);
    EXPECT_EQ(tabla.estado().Formatos_por_defecto[1], esperado);
}

TEST_P(FormatosTabla, AColumnOutsideRaisesErrorNineAndStoresNothing) {
    for (const std::int16_t col : {std::int16_t{26}, std::int16_t{-1}, std::int16_t{32767}}) {
        EXPECT_EQ(numero_error([&] { t.Formatcol(col, "-", "-", 2, 2, 2, 10, "Cota"); }), 9);
        EXPECT_EQ(numero_error([&] { da_formato(col, T_formato::Entero); }), 9);
    }
    for (const T_FormatoColumna& f : tabla.estado().Formatos) EXPECT_EQ(f.Nombre, "");
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(FormatosTabla, AnEnumerationBeyondSixteenBitsRaisesErrorSix) {
    EXPECT_EQ(numero_error([&] { da_formato(1, static_cast<T_formato>(32768)); }), 6);
    EXPECT_EQ(numero_error([&] {
        t.FormatoColumnas(1, false, false, T_formato::Entero, 0, static_cast<T_Alineacion>(-32769),
            T_Accion::Nada__, 10, "C");
    }),
        6);
    EXPECT_EQ(formato(1).Nombre, "");
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(FormatosTabla, AWidthBeyondSixteenBitsRaisesErrorSixAndRedrawingStaysOff) {
    t.FormatoColumnas(2, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 274, "C");
    EXPECT_EQ(numero_error([&] { t.Tablero_establece_Formato(); }), 6);
    EXPECT_FALSE(g().Redraw());
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(FormatosTabla, ATwentySeventhColumnRaisesErrorNineAndRedrawingStaysOff) {
    da_formato(25, T_formato::Alfanm);
    t.Cols(27);
    EXPECT_EQ(numero_error([&] { t.Tablero_establece_Formato(); }), 9);
    EXPECT_EQ(t.TextMatrix(0, 25), "C");
    EXPECT_FALSE(g().Redraw());
}

TEST_P(FormatosTabla, AListColumnWithoutValuesRaisesErrorNineAtItsFirstText) {
    da_formato(1, T_formato::ListaU);
    EXPECT_EQ(numero_error([&] { t.Tablero_establece_Formato(); }), 0);
    t.TextMatrix(2, 1, "x");
    EXPECT_EQ(numero_error([&] { t.Tablero_establece_Formato(); }), 9);
}

TEST_P(FormatosTabla, AListGivesItsFirstValueToEveryText) {
    da_formato(1, T_formato::ListaU);
    t.Lista(1, Matriz<std::string>(0, {"A", "B"}));
    t.TextMatrix(2, 1, "x");
    t.Tablero_establece_Formato();
    EXPECT_EQ(t.TextMatrix(2, 1), "A");
    EXPECT_EQ(t.TextMatrix(1, 1), "");
}

TEST_P(FormatosTabla, AListForAnyOtherColumnIsRefusedWithAMessage) {
    da_formato(3, T_formato::Real__, 2);
    t.Lista(3, Matriz<std::string>(0, {"A"}));
    EXPECT_EQ(p.registro, (Registro{"mensaje|16||ERROR tabla.ocx: la columna  3 no es una lista"}));
    EXPECT_FALSE(tabla.estado().listas[3].Col.dimensionada());
}

TEST_P(FormatosTabla, AListForAColumnOutsideRaisesErrorNine) {
    for (const std::int16_t col : {std::int16_t{26}, std::int16_t{-1}})
        EXPECT_EQ(numero_error([&] { t.Lista(col, Matriz<std::string>(0, {"A"})); }), 9);
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(FormatosTabla, ChangingTheKindRewritesTheNumbers) {
    da_formato(1, T_formato::Alfanm);
    t.TextMatrix(1, 1, "1,5");
    t.TextMatrix(2, 1, "2.25");
    da_formato(1, T_formato::Real__, 3);
    t.Tablero_establece_Formato();
    EXPECT_EQ(celda(1, 1), "1.500");
    EXPECT_EQ(celda(2, 1), "2.250");
}

TEST_P(FormatosTabla, DraggedWidthsAreTakenOverAndTheDefaultTakenBack) {
    da_formato(1, T_formato::Alfanm);
    t.Tablero_establece_Formato();
    tabla.mandos().arrastra_borde(1, 2000);
    t.Editor_Tabl_graba();
    EXPECT_EQ(formato(1).Longitud, 16);
    t.Tablero_Formato_por_defecto();
    EXPECT_EQ(formato(1).Longitud, 10);
}

// 273 units of 120 twips are the most that 16 bits hold.
TEST_P(FormatosTabla, NoDragMakesAColumnTooWideForItsFormat) {
    da_formato(1, T_formato::Alfanm);
    tabla.mandos().arrastra_borde(1, 100000);
    t.Editor_Tabl_graba();
    EXPECT_EQ(formato(1).Longitud, 273);
    t.Tablero_establece_Formato();
    EXPECT_EQ(g().ColWidth(1), 32760);
}

TEST_P(FormatosTabla, TakingWidthsOverRaisesItsErrors) {
    t.FormatoColumnas(1, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 300, "C");
    tabla.mandos().arrastra_borde(1, 2000);
    EXPECT_EQ(numero_error([&] { t.Editor_Tabl_graba(); }), 6);
    da_formato(1, T_formato::Alfanm);
    t.Cols(27);
    EXPECT_EQ(numero_error([&] { t.Editor_Tabl_graba(); }), 9);
    EXPECT_TRUE(p.mensajes.vistos.empty());
}

TEST_P(FormatosTabla, TheRowNumbersGiveWayToTheRowCount) {
    t.Tablero_Nombres("T", "Ejes", "*.tb0");
    t.Tablero_Fila_0_Off();
    EXPECT_EQ(g().ColWidth(0), 0);
    t.Rows(1);
    t.Tablero_establece_Formato();
    EXPECT_TRUE(tabla.estado().etiquetas.labNumeroFilas.visible);
    EXPECT_EQ(tabla.estado().etiquetas.labNumeroFilas.texto, "Ejes: Nº de filas = 0");
}

TEST_P(FormatosTabla, NamesAreKeptAndXTakesTheFileItemsAway) {
    t.Tablero_Nombres("Un título", "Puntos", "X");
    EXPECT_EQ(tabla.estado().nombres.titulo(), "Un título");
    EXPECT_EQ(tabla.estado().nombres.subtitulo(), "Puntos");
    EXPECT_EQ(t.A_ExtensionFche(), "X");
    for (const Opcion o :
        {Opcion::mn_pegar_cXp, Opcion::mn_copiar_pXc, Opcion::Mnu_Tabla_Leer, Opcion::Mnu_Tabla_Guardar_como})
        EXPECT_FALSE(tabla.estado().menus[o].visible);
}

TEST_P(FormatosTabla, TheExtensionTakesFiveCharactersBehindAnAsterisk) {
    t.A_ExtensionFche("*.pto");
    for (const char* mala : {"*.tb01", "tb0", "x.tb0", "", "*.t"}) t.A_ExtensionFche(mala);
    EXPECT_EQ(t.A_ExtensionFche(), "*.pto");
    EXPECT_EQ(p.registro, (Registro{"propiedad A_ExtensionFche"}));
}

TEST_P(FormatosTabla, TheFileItemsComeAndGo) {
    for (const bool si : {false, true}) {
        t.Ficheros_en_menu(si);
        for (const Opcion o : {Opcion::Mnu_Tabla_Leer, Opcion::Mnu_Tabla_Guardar_como, Opcion::mn_dd})
            EXPECT_EQ(tabla.estado().menus[o].visible, si);
    }
}

TEST_P(FormatosTabla, TheUndoSwitchKnowsTwoWords) {
    for (const auto& [valor, queda] : {std::pair{"si", "NO"}, {"SI", "SI"}, {"", "SI"}, {"NO", "NO"}}) {
        t.A_GrabaRevoca(valor);
        EXPECT_EQ(t.A_GrabaRevoca(), queda);
    }
}

TEST_P(FormatosTabla, TheHostsSwitchesStayOn) {
    t.A_Edicion_pon_Color();
    t.A_Edicion_mn_Ratón_Off();
    t.A_Especial_puntos_ON();
    EXPECT_TRUE(tabla.estado().edicionColor);
    EXPECT_TRUE(tabla.estado().ratonOff);
    EXPECT_TRUE(tabla.estado().especialPuntos);
    EXPECT_TRUE(p.registro.empty());
}

// --- Members that do nothing ---

TEST_P(FormatosTabla, TheMisspeltPickerChangesNoArgument) {
    std::int32_t vb = 3;
    std::int32_t cad = 4;
    std::string nombre = "x";
    t.Show_Eleige_Color("1", true, 2, true, vb, cad, nombre);
    EXPECT_EQ(vb, 3);
    EXPECT_EQ(cad, 4);
    EXPECT_EQ(nombre, "x");
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(FormatosTabla, TheLayoutComesBackFromTheSettings) {
    da_formato(1, T_formato::Real__, 2);
    t.Tablero_Nombres("Plano", "Puntos", "*.pt");
    t.Tablero_Graba_Formato_Win("Plano", "Puntos");
    const T_FormatoColumna escrito = formato(1);
    t.Formatcol(1, "", "X", 4, 0, 0, 3, "Otro");
    t.A_ExtensionFche("*.zz");
    t.TextMatrix(1, 1, "1");
    t.Tablero_Lee_Formato_Win("Plano", "Puntos");
    EXPECT_EQ(formato(1), escrito);
    EXPECT_EQ(t.A_ExtensionFche(), "*.pt");
    EXPECT_EQ(celda(1, 1), "1.00");
    EXPECT_EQ(g().ColWidth(1), 1200);
}

TEST_P(FormatosTabla, WritingTheLayoutTellsTheStoresErrorAndReadingNone) {
    p.ajustes.falla(75);
    EXPECT_EQ(numero_error([&] { t.Tablero_Graba_Formato_Win("a", "b"); }), 75);
    t.FormatoColumnas(
        1, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 300, "Ancha");
    EXPECT_EQ(numero_error([&] { t.Tablero_Lee_Formato_Win("a", "b"); }), 0);
    EXPECT_TRUE(g().Redraw());
    EXPECT_TRUE(p.registro.empty());
}

TEST_P(FormatosTabla, TrueAppliesTheFormatsAndFalseDoesNothing) {
    da_formato(1, T_formato::Alfanm);
    t.A_actualizaEditor(false);
    EXPECT_EQ(celda(0, 1), "");
    t.A_actualizaEditor(true);
    EXPECT_EQ(celda(0, 1), "C");
    t.FormatoColumnas(
        1, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 300, "Ancha");
    EXPECT_EQ(numero_error([&] { t.A_actualizaEditor(true); }), 6);
}

// Their rules are still to come; until then a host may call them without harm.
TEST_P(FormatosTabla, MembersWithoutRuleLeaveTheTableAlone) {
    da_formato(1, T_formato::Entero);
    t.TextMatrix(1, 1, "5");
    p.registro.clear();
    static_cast<void>(p.vista.recoge());
    t.A_Edicion_Columnas_Off();
    EXPECT_TRUE(p.vista.avisos.empty());
    EXPECT_TRUE(p.registro.empty());
}

// --- Design-time properties: the front end's, not members ---

class Propiedades : public ::testing::Test {
protected:
    PlataformaMemoria p;
    Tabla0 tabla{p.plataforma(), p.eventos};
};

TEST_F(Propiedades, ComeBackFromTheHostsForm) {
    tabla.Width(5000);
    tabla.Cols(3);
    tabla.A_FormatString("|<Nombre|>X");
    tabla.escribe_propiedades(p.bolsa);
    EXPECT_EQ(p.bolsa.valores.at("Widht"), Variante(5000.0F));

    PlataformaMemoria q;
    Tabla0 otra(q.plataforma(), q.eventos);
    otra.lee_propiedades(p.bolsa);
    EXPECT_EQ(otra.Width(), Variante(5000.0F));
    EXPECT_EQ(otra.Cols(), 3);
    EXPECT_EQ(otra.A_FormatString(), "|<Nombre|>X");
    EXPECT_EQ(otra.TextMatrix(0, 1), "Nombre");
}

TEST_F(Propiedades, ErrorsOfTheStoreReachTheCaller) {
    p.bolsa.falla(70);
    EXPECT_THROW(tabla.escribe_propiedades(p.bolsa), Error);
    EXPECT_THROW(tabla.lee_propiedades(p.bolsa), Error);
    EXPECT_TRUE(p.registro.empty());
}

} // namespace
