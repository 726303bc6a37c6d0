// SPDX-License-Identifier: MIT
// The colour picker without its window: swatches, the box, buttons, arrows, properties, where it stands.
#include "colours/selector_color.h"

#include "colours/paleta.h"
#include "headless/plataforma_memoria.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace Qlt4_Tabla;

constexpr auto NORMAL = TiraColor::Normal;
constexpr auto GRISES = TiraColor::Grises;
constexpr auto ESPECIAL = TiraColor::Especial;

class Selector : public ::testing::Test {
protected:
    // What the box, the sample and the label show after the user typed a text.
    struct Tecleado {
        std::string escribe;
        std::string texto;
        std::int32_t color;
        int indice;
        int pitidos;
    };

    const VistoColor& v() const { return s.visto(); }

    int elige(TiraColor tira, double x, double y, double ancho, double alto) {
        s.C_color_elegido_Vb(0x123456);
        s.clic(tira, x, y, ancho, alto);
        return v().indice;
    }

    int camina(int desde, PasoColor paso) {
        s.C_NumColorAutocaD(desde);
        s.camina(paso);
        return v().indice;
    }

    // Shows it, with a user who does this.
    void ejecuta(std::function<void(ModeloColor&)> usuario = {}) {
        if (usuario) p.dialogo_color.usuario.push_back(std::move(usuario));
        s.C_ejecuta();
    }

    void pon_sitio(const std::string& izquierda, const std::string& arriba) {
        p.ajustes.valores[{"Quillet", "Tabla Color Posicion", "Left"}] = izquierda;
        p.ajustes.valores[{"Quillet", "Tabla Color Posicion", "Top"}] = arriba;
    }

    std::pair<float, float> abierto_en() {
        ejecuta();
        return {p.dialogo_color.vistos.back().izquierda, p.dialogo_color.vistos.back().arriba};
    }

    PlataformaMemoria p;
    F_color s{p.dialogo_color, p.mensajes, p.ajustes};
};

void acepta(ModeloColor& m) { m.boton(BotonColor::Aceptar); }

void cancela(ModeloColor& m) { m.boton(BotonColor::Cancelar); }

// --- Swatches ---

TEST_F(Selector, TheBasicStripHoldsNineColours) {
    for (int i = 1; i <= 9; ++i) EXPECT_EQ(elige(NORMAL, 100 * i - 50, 5, 900, 10), i);
    EXPECT_EQ(elige(NORMAL, 0, 0, 900, 10), 1);
    EXPECT_EQ(elige(NORMAL, 99.9, 9.9, 900, 10), 1);
    EXPECT_EQ(elige(NORMAL, 100, 0, 900, 10), 2);
}

TEST_F(Selector, TheGreyStripHoldsSix) {
    for (int i = 250; i <= 255; ++i) EXPECT_EQ(elige(GRISES, 10 * (i - 250) + 5, 5, 60, 10), i);
    EXPECT_EQ(elige(GRISES, 15, 0, 60, 10), 251);
}

TEST_F(Selector, TheBlockHoldsAHueAColumnInThePalettesOrder) {
    constexpr int DESDE_ARRIBA[] = {8, 6, 4, 2, 0, 1, 3, 5, 7, 9};
    for (int col = 0; col < 24; ++col)
        for (int fila = 0; fila < 10; ++fila)
            EXPECT_EQ(
                elige(ESPECIAL, col * 20 + 1, fila * 30 + 29, 480, 300), (col + 1) * 10 + DESDE_ARRIBA[fila]);
    EXPECT_EQ(elige(ESPECIAL, 0, 0, 480, 300), 18);
    EXPECT_EQ(elige(ESPECIAL, 479, 299, 480, 300), 249);
}

TEST_F(Selector, AnyUnitOfTheStripGivesTheSameSwatch) {
    EXPECT_EQ(elige(ESPECIAL, 6480 - 1, 2700 - 1, 6480, 2700), 249);
    EXPECT_EQ(elige(ESPECIAL, 0.99, 0.99, 1, 1), 249);
    EXPECT_EQ(elige(NORMAL, std::nextafter(97, 0), 0, 97, 1), 9);
}

TEST_F(Selector, ClicksOutsideOrOnTheFarEdgeAreIgnored) {
    for (const TiraColor tira : TIRAS_COLOR) {
        EXPECT_EQ(elige(tira, -0.1, 5, 100, 10), -1);
        EXPECT_EQ(elige(tira, 100, 5, 100, 10), -1);
        EXPECT_EQ(elige(tira, 5, -0.1, 100, 10), -1);
        EXPECT_EQ(elige(tira, 5, 10, 100, 10), -1);
        EXPECT_EQ(elige(tira, 1e9, 1e9, 100, 10), -1);
        EXPECT_EQ(elige(tira, std::nan(""), 5, 100, 10), -1);
        EXPECT_EQ(elige(tira, 0, 0, 0, 0), -1);
    }
    EXPECT_EQ(s.C_color_elegido_Vb(), 0x123456);
}

TEST_F(Selector, AClickNamesTheColourInTheBoxAndChoosesIt) {
    s.clic(NORMAL, 0, 0, 9, 1);
    EXPECT_EQ(v().texto, "rojo");
    EXPECT_EQ(v().color, 0x0000FF);
    s.clic(NORMAL, 7, 0, 9, 1);
    EXPECT_EQ(v().texto, "8");
    s.clic(GRISES, 0, 0, 6, 1);
    EXPECT_EQ(v().texto, "250");
    EXPECT_EQ(v().color, 0x303430);
    s.clic(ESPECIAL, 0, 2, 24, 10);
    EXPECT_EQ(v().texto, "14");
    EXPECT_EQ(v().color, 0x000098);
}

TEST_F(Selector, EveryColourButTheFirstHasOneSwatchInItsOwnColour) {
    std::set<int> indices;
    for (const TiraColor cual : TIRAS_COLOR) {
        const MuestrasTira& tira = s.tira(cual);
        EXPECT_EQ(tira.muestras.size(), static_cast<std::size_t>(tira.columnas * tira.filas));
        for (const MuestraColor& m : tira.muestras) {
            EXPECT_TRUE(indices.insert(m.indice).second) << m.indice;
            EXPECT_EQ(m.color, paleta_a_pantalla(m.indice));
        }
    }
    EXPECT_EQ(indices.size(), 255U);
    EXPECT_EQ(*indices.begin(), 1);
}

TEST_F(Selector, ASwatchIsCalledByItsNameAndIndex) {
    EXPECT_EQ(s.tira(NORMAL).muestras[0].nombre, "rojo (1)");
    EXPECT_EQ(s.tira(NORMAL).muestras[6].nombre, "blanco (7)");
    EXPECT_EQ(s.tira(NORMAL).muestras[8].nombre, "9");
    EXPECT_EQ(s.tira(ESPECIAL).muestras[0].nombre, "18");
}

// --- The box ---

TEST_F(Selector, TextsOfTheBox) {
    const std::vector<Tecleado> casos{
        {"rojo", "rojo", 0x0000FF, 1, 0},
        {" ROJO ", " ROJO ", 0x0000FF, 1, 0},
        {"Amarillo", "Amarillo", 0x00FFFF, 2, 0},
        {"verde", "verde", 0x00FF00, 3, 0},
        {"ciano", "ciano", 0xFFFF00, 4, 0},
        {"azul", "azul", 0xFF0000, 5, 0},
        {"magenta", "magenta", 0xFF00FF, 6, 0},
        {"blanco", "blanco", 0xFFFFFF, 7, 0},
        {"1", "1", 0x0000FF, 1, 0},
        {"8", "8", 0x807C80, 8, 0},
        {"9", "9", 0xC0BCC0, 9, 0},
        {"12 m", "12 m", 0x0000D0, 12, 0},
        {"255", "255", 0xFFFFFF, 255, 0},
        {"2.5", "2.5", 0x00FFFF, 2, 0},
        {"0", "0", 0x807C80, -1, 0},
        {"", "", 0x807C80, -1, 0},
        {"rojos", "rojos", 0x807C80, -1, 0},
        {"por capa", "por capa", 0x807C80, -1, 0},
        {"-", "-", 0x807C80, -1, 0},
        {"256", "7", 0xFFFFFF, 7, 0},
        {"300", "7", 0xFFFFFF, 7, 0},
        {"40000", "7", 0xFFFFFF, 7, 0},
        {"1E300", "7", 0xFFFFFF, 7, 0},
        {"1e999", "7", 0xFFFFFF, 7, 0},
        {"1e999 m", "7", 0xFFFFFF, 7, 0},
        {"&HFFFFFFFFF", "7", 0xFFFFFF, 7, 0},
        {"-1", "7", 0xFFFFFF, 7, 1},
        {"-1e999", "7", 0xFFFFFF, 7, 1},
        {"-40000", "7", 0xFFFFFF, 7, 1},
    };
    for (const Tecleado& caso : casos) {
        p.mensajes.pitidos = 0;
        s.teclea(caso.escribe);
        EXPECT_EQ(v().texto, caso.texto) << caso.escribe;
        EXPECT_EQ(v().color, caso.color) << caso.escribe;
        EXPECT_EQ(v().indice, caso.indice) << caso.escribe;
        EXPECT_EQ(p.mensajes.pitidos, caso.pitidos) << caso.escribe;
    }
}

// --- Accepting and cancelling ---

TEST_F(Selector, OnlyColoursAboveBlackAreAccepted) {
    const std::vector<std::pair<std::int32_t, bool>> casos{{0x000001, true}, {0xFFFFFF, true},
        {0x123456, true}, {0x000000, false}, {0x1000000, false}, {-1, false},
        {static_cast<std::int32_t>(0x8000000FU), false}};
    for (const auto& [color, pasa] : casos) {
        p.mensajes.pitidos = 0;
        s.C_color_elegido_Vb(color);
        ejecuta([](ModeloColor& m) {
            m.boton(BotonColor::Aceptar);
            if (m.visto().abierto) {
                EXPECT_EQ(m.visto().error, "Color no válido");
            }
        });
        EXPECT_EQ(s.aceptado(), pasa) << color;
        EXPECT_EQ(p.mensajes.pitidos, pasa ? 0 : 1) << color;
        EXPECT_EQ(s.C_color_elegido_Vb(), color);
    }
}

TEST_F(Selector, TheErrorGoesAwayWithTheNextChoice) {
    s.C_color_elegido_Vb(0);
    acepta(s);
    EXPECT_EQ(v().error, "Color no válido");
    s.teclea("5");
    EXPECT_EQ(v().error, "");
    s.C_color_elegido_Vb(0);
    acepta(s);
    s.clic(NORMAL, 0, 0, 9, 1);
    EXPECT_EQ(v().error, "");
}

TEST_F(Selector, CancellingOrLeavingItOpenAcceptsNothing) {
    s.C_color_elegido_Vb(0x0000FF);
    ejecuta(acepta);
    EXPECT_TRUE(s.aceptado());
    ejecuta(cancela);
    EXPECT_FALSE(s.aceptado());
    ejecuta([](ModeloColor& m) { m.teclea("azul"); });
    EXPECT_FALSE(s.aceptado());
    EXPECT_FALSE(v().abierto);
}

TEST_F(Selector, ANewShowingBeginsWithoutError) {
    s.C_color_elegido_Vb(0);
    ejecuta(acepta);
    ejecuta();
    EXPECT_EQ(p.dialogo_color.vistos.back().error, "");
}

// --- Properties ---

TEST_F(Selector, ThePreselectedColourIsShownAsThePaletteCallsIt) {
    const std::vector<std::tuple<std::int32_t, std::string, int>> casos{{0x0000FF, "rojo", 1},
        {0xFFFFFF, "blanco", 7}, {0x807C80, "8", 8}, {0x0000D0, "12", 12}, {0x0000C8, "12", 12},
        {0x123456, "", -1}, {0, "", -1}, {-1, "", -1}};
    for (const auto& [color, texto, indice] : casos) {
        s.C_color_elegido_Vb(color);
        EXPECT_EQ(s.C_color_elegido_Vb(), color);
        EXPECT_EQ(v().texto, texto) << color;
        EXPECT_EQ(v().indice, indice) << color;
    }
}

TEST_F(Selector, TheIndexIsConvertedBothWays) {
    s.C_NumColorAutocaD(12);
    EXPECT_EQ(s.C_color_elegido_Vb(), 0x0000D0);
    EXPECT_EQ(s.C_NumColorAutocaD(), 7); // its screen colour is no key
    EXPECT_EQ(v().texto, "12");
    EXPECT_EQ(v().indice, 12);
    s.C_NumColorAutocaD(10);
    EXPECT_EQ(v().indice, 10);
    EXPECT_EQ(s.C_NumColorAutocaD(), 1);
    s.C_NumColorAutocaD(0);
    EXPECT_EQ(s.C_color_elegido_Vb(), 0x807C80);
    s.C_NumColorAutocaD(-3);
    EXPECT_EQ(s.C_color_elegido_Vb(), 0xFFFFFF);
}

TEST_F(Selector, TheNameIsThatOfTheScreenColour) {
    s.teclea("azul");
    EXPECT_EQ(s.C_NomColorAutocaD(), "azul");
    s.teclea("11");
    EXPECT_EQ(s.C_NomColorAutocaD(), "11");
    s.C_color_elegido_Vb(0x123456);
    EXPECT_EQ(s.C_NomColorAutocaD(), "7");
}

TEST_F(Selector, TheByLayerButtonChoosesTheLayersColour) {
    s.C_añadir_BT_por_Capa(true);
    s.C_Por_capa(0x00FF00);
    s.teclea("rojo");
    EXPECT_EQ(v().nombre_capa, "");
    s.boton(BotonColor::PorCapa);
    EXPECT_EQ(s.C_color_elegido_Vb(), 0x00FF00);
    EXPECT_EQ(v().nombre_capa, "verde");
    EXPECT_EQ(s.C_NomColorAutocaD(), "por capa");
    EXPECT_EQ(s.C_NumColorAutocaD(), 3);
    s.teclea("rojo");
    EXPECT_EQ(s.C_NomColorAutocaD(), "rojo");
}

TEST_F(Selector, ALayerWithoutNameIsCalledByItsIndex) {
    s.C_añadir_BT_por_Capa(true);
    s.C_Por_capa(0x000098);
    s.boton(BotonColor::PorCapa);
    EXPECT_EQ(v().nombre_capa, "14");
}

TEST_F(Selector, WithoutTheByLayerChoiceItsButtonDoesNothing) {
    s.C_Por_capa(0x00FF00);
    s.teclea("rojo");
    s.boton(BotonColor::PorCapa);
    EXPECT_EQ(s.C_color_elegido_Vb(), 0x0000FF);
    EXPECT_EQ(s.C_NomColorAutocaD(), "rojo");
}

TEST_F(Selector, ItOpensAsTheCallerSaysAndUnfoldsForGood) {
    s.C_Titulo("Elige");
    ejecuta([](ModeloColor& m) { m.boton(BotonColor::Otros); });
    EXPECT_EQ(p.dialogo_color.vistos.back().titulo, "Elige");
    EXPECT_FALSE(p.dialogo_color.vistos.back().desplegado);
    EXPECT_TRUE(v().desplegado);
    s.boton(BotonColor::Otros);
    EXPECT_TRUE(v().desplegado);
    F_color otro(p.dialogo_color, p.mensajes, p.ajustes);
    otro.C_expandir_colores(true);
    EXPECT_TRUE(otro.visto().desplegado);
}

// --- Arrows ---

TEST_F(Selector, ArrowsWalkTheBasicStripAndStopAtItsEnds) {
    EXPECT_EQ(camina(1, PasoColor::Derecha), 2);
    EXPECT_EQ(v().texto, "amarillo");
    EXPECT_EQ(v().color, 0x00FFFF);
    EXPECT_EQ(camina(2, PasoColor::Izquierda), 1);
    EXPECT_EQ(camina(1, PasoColor::Izquierda), 1);
    EXPECT_EQ(camina(9, PasoColor::Derecha), 9);
    EXPECT_EQ(camina(4, PasoColor::Arriba), 4);
    EXPECT_EQ(camina(4, PasoColor::Abajo), 4); // the other strips are not seen
}

TEST_F(Selector, UnfoldedTheyWalkFromStripToStrip) {
    s.C_expandir_colores(true);
    EXPECT_EQ(camina(4, PasoColor::Abajo), 253);
    EXPECT_EQ(camina(9, PasoColor::Abajo), 255);
    EXPECT_EQ(camina(253, PasoColor::Abajo), 48);
    EXPECT_EQ(camina(253, PasoColor::Arriba), 4);
    EXPECT_EQ(camina(48, PasoColor::Arriba), 253);
    EXPECT_EQ(camina(248, PasoColor::Arriba), 255);
    EXPECT_EQ(camina(48, PasoColor::Abajo), 46);
    EXPECT_EQ(camina(40, PasoColor::Abajo), 41);
    EXPECT_EQ(camina(49, PasoColor::Abajo), 49);
    EXPECT_EQ(camina(240, PasoColor::Derecha), 240);
    EXPECT_EQ(camina(240, PasoColor::Izquierda), 230);
    EXPECT_EQ(camina(250, PasoColor::Izquierda), 250);
}

TEST_F(Selector, WhereNothingIsMarkedTheyBeginAtTheFirst) {
    s.C_color_elegido_Vb(0x123456);
    s.camina(PasoColor::Izquierda);
    EXPECT_EQ(v().indice, 1);
    EXPECT_EQ(camina(253, PasoColor::Derecha), 1); // marked where it is not seen
}

// --- Where it stands ---

TEST_F(Selector, ItStandsAtAThousandTwipsUntilItWasMoved) {
    EXPECT_EQ(abierto_en(), (std::pair{1000.0F, 1000.0F}));
    p.dialogo_color.movido_a = {{-250.5F, 3000.0F}};
    EXPECT_EQ(abierto_en(), (std::pair{1000.0F, 1000.0F}));
    EXPECT_EQ(abierto_en(), (std::pair{-250.5F, 3000.0F}));
}

TEST_F(Selector, ItIsWrittenWheneverItCloses) {
    ejecuta(cancela);
    EXPECT_EQ(p.registro,
        (Registro{"dialogo_color Gama de colores", "ajuste Quillet|Tabla Color Posicion|Left=1000",
            "ajuste Quillet|Tabla Color Posicion|Top=1000"}));
}

TEST_F(Selector, KeysThatAreNoNumbersCountAsMissing) {
    for (const std::string malo : {"", "x", "12 m", "1E999", "-1E999", "1E300", "inf"}) {
        pon_sitio(malo, "40");
        EXPECT_EQ(abierto_en(), (std::pair{1000.0F, 40.0F})) << malo;
    }
    pon_sitio("12,5", " -7 ");
    EXPECT_EQ(abierto_en(), (std::pair{12.5F, -7.0F}));
}

TEST_F(Selector, AStoreThatFailsIsTheCallersBusiness) {
    p.ajustes.falla(75);
    s.C_color_elegido_Vb(0x0000FF);
    EXPECT_THROW(ejecuta(acepta), Error);
    EXPECT_TRUE(s.aceptado());
}

// --- The table's own use, and the list's labels ---

TEST_F(Selector, TheTableShowsItPlainUnderItsTitle) {
    EstadoTabla e(p.plataforma(), p.eventos);
    p.dialogo_color.usuario.push_back([](ModeloColor& m) {
        m.teclea("azul");
        acepta(m);
    });
    std::int32_t color = 0x0000FF;
    EXPECT_TRUE(elige_color(e, color));
    EXPECT_EQ(color, 0xFF0000);
    const VistoColor& visto = p.dialogo_color.vistos.back();
    EXPECT_EQ(visto.titulo, "Elige Color:");
    EXPECT_EQ(visto.color, 0x0000FF);
    EXPECT_FALSE(visto.desplegado);
    EXPECT_FALSE(visto.ofrece_por_capa);
    p.dialogo_color.usuario.push_back([](ModeloColor& m) { m.teclea("verde"); });
    EXPECT_FALSE(elige_color(e, color));
    EXPECT_EQ(color, 0xFF0000);
}

TEST(ListaDeColores, SixteenLabels) {
    const std::vector<std::string> todas{"1 Rojo", "2 Amarillo", "3 Verde", "4 Ciano", "5 Azul", "6 Magenta",
        "7 Blanco", "8 Negro", "9 Rojo mate ", "10 Amarillo mate", "11 Verde mate", "12 Ciano mate",
        "13 Azul mate", "14 Magenta mate", "15 Blanco mate", "16 Negro mate"};
    for (int i = 1; i <= 16; ++i) EXPECT_EQ(etiqueta_lista(i), todas[static_cast<std::size_t>(i - 1)]);
    for (const int i : {-1, 0, 17}) EXPECT_EQ(etiqueta_lista(i), "");
}

} // namespace
