// SPDX-License-Identifier: MIT
// The colour menu: its entries, its cells, what each entry does, what stays as it was.
#include "colours/menu_color.h"

#include "core/ciclo_vida.h"
#include "headless/plataforma_memoria.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace Qlt4_Tabla;

using Textos = std::vector<std::string>;

class MenuColor : public ::testing::Test {
protected:
    MenuColor() : e(p.plataforma(), p.eventos) {
        arranca(e); // 4 rows, 5 columns
        e.tablero.selecciona(3, 2, 1, 2); // upwards
        static_cast<void>(p.recoge());
        static_cast<void>(p.vista.recoge());
    }

    // Opens the menu, clicks the entry of that text, closes it.
    void elige(const std::string& titulo) {
        const Bloque bloque = abre_menu_color(e);
        const auto& elementos = e.menu_cambio.elementos();
        for (std::size_t i = 0; i < elementos.size(); ++i)
            if (elementos[i].titulo == titulo) e.menu_cambio.marca(i);
        cierra_menu_color(e, bloque);
    }

    void usuario(const std::string& texto) {
        p.dialogo_color.usuario.push_back([texto](ModeloColor& m) {
            m.teclea(texto);
            m.boton(BotonColor::Aceptar);
        });
    }

    std::int32_t preseleccionado() {
        elige("Otro....");
        return p.dialogo_color.vistos.back().color;
    }

    Textos columna(int col) const {
        Textos textos;
        for (int f = 0; f < e.tablero.Rows(); ++f) textos.emplace_back(e.tablero.TextMatrix(f, col));
        return textos;
    }

    std::vector<int> seleccion() const {
        return {e.tablero.Row(), e.tablero.Col(), e.tablero.RowSel(), e.tablero.ColSel()};
    }

    PlataformaMemoria p;
    EstadoTabla e;
};

TEST_F(MenuColor, TenEntriesBehindCancelAndASeparator) {
    static_cast<void>(abre_menu_color(e));
    Textos titulos;
    for (const MenuCambio::Elemento& o : e.menu_cambio.elementos()) {
        titulos.push_back(o.titulo);
        EXPECT_FALSE(o.marcada);
    }
    EXPECT_EQ(titulos,
        (Textos{"Cancelar", "-", "rojo", "amarillo", "verde", "ciano", "azul", "magenta", "blanco",
            "gris oscuro", "gris claro", "Otro...."}));
}

TEST_F(MenuColor, ItsCellsAreTheSelectedOnesOfTheCurrentColumn) {
    EXPECT_EQ(abre_menu_color(e), (Bloque{1, 2, 3, 2}));
    e.tablero.selecciona(0, 4, 2, 1);
    EXPECT_EQ(abre_menu_color(e), (Bloque{0, 4, 2, 4}));
    EXPECT_TRUE(p.registro.empty());
}

TEST_F(MenuColor, EachEntryWritesItsName) {
    const std::vector<std::pair<std::string, std::string>> casos{{"rojo", "rojo"}, {"amarillo", "amarillo"},
        {"verde", "verde"}, {"ciano", "ciano"}, {"azul", "azul"}, {"magenta", "magenta"},
        {"blanco", "blanco"}, {"gris oscuro", "8"}, {"gris claro", "9"}};
    for (const auto& [titulo, nombre] : casos) {
        elige(titulo);
        EXPECT_EQ(columna(2), (Textos{"", nombre, nombre, nombre}));
        EXPECT_FALSE(e.tablero.tiene_fondo(1, 2));
    }
}

TEST_F(MenuColor, WhereColoursAreEditedTheBackgroundFollows) {
    e.edicionColor = true;
    const std::vector<std::pair<std::string, std::int32_t>> casos{{"rojo", 0x0000FF}, {"azul", 0xFF0000},
        {"blanco", 0xFFFFFF}, {"gris oscuro", 0x807C80}, {"gris claro", 0xC0BCC0}};
    for (const auto& [titulo, fondo] : casos) {
        elige(titulo);
        for (int f = 1; f <= 3; ++f) EXPECT_EQ(e.tablero.color_fondo(f, 2), fondo) << titulo;
    }
    EXPECT_EQ(e.tablero.color_fondo(0, 2), COLOR_CARA_BOTON);
    EXPECT_FALSE(e.tablero.tiene_fondo(1, 1));
}

TEST_F(MenuColor, OneCaptureBeforeTheChangeAndTheTableIsModified) {
    std::string antes = "?";
    p.pasos.al_capturar = [&] { antes = e.tablero.TextMatrix(1, 2); };
    elige("rojo");
    EXPECT_EQ(antes, "");
    EXPECT_EQ(p.registro, (Registro{"captura"}));
    EXPECT_EQ(e.Modificado, 1);
}

TEST_F(MenuColor, CellAndSelectionStayAndTheViewHearsOnce) {
    e.edicionColor = true;
    elige("verde");
    EXPECT_EQ(seleccion(), (std::vector{3, 2, 1, 2}));
    EXPECT_EQ(p.vista.recoge(), (Textos{"celdas 1 2 3 2"}));
}

TEST_F(MenuColor, NothingCheckedOrCancelMeansNothing) {
    cierra_menu_color(e, abre_menu_color(e));
    elige("Cancelar");
    EXPECT_EQ(columna(2), (Textos{"", "", "", ""}));
    EXPECT_TRUE(p.registro.empty());
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(MenuColor, TheMarkOfTheLastTimeIsForgotten) {
    elige("rojo");
    const Bloque bloque = abre_menu_color(e);
    EXPECT_FALSE(e.menu_cambio.marcada());
    e.tablero.TextMatrix(1, 2, "x");
    cierra_menu_color(e, bloque);
    EXPECT_EQ(e.tablero.TextMatrix(1, 2), "x");
}

TEST_F(MenuColor, OtherColoursComeFromThePicker) {
    e.edicionColor = true;
    usuario("14");
    elige("Otro....");
    EXPECT_EQ(columna(2), (Textos{"", "14", "14", "14"}));
    EXPECT_EQ(e.tablero.color_fondo(2, 2), 0x000098);
    EXPECT_EQ(seleccion(), (std::vector{3, 2, 1, 2}));
    EXPECT_EQ(p.registro,
        (Registro{"dialogo_color Elige Color:", "ajuste Quillet|Tabla Color Posicion|Left=1000",
            "ajuste Quillet|Tabla Color Posicion|Top=1000", "captura"}));
}

TEST_F(MenuColor, AScreenColourThatIsNoKeyIsNamedByThePalettesDefault) {
    e.edicionColor = true;
    usuario("12"); // 0x0000D0
    elige("Otro....");
    EXPECT_EQ(e.tablero.TextMatrix(1, 2), "7");
    EXPECT_EQ(e.tablero.color_fondo(1, 2), 0x0000D0);
}

TEST_F(MenuColor, ACancelledPickerChangesNothing) {
    elige("Otro....");
    EXPECT_EQ(columna(2), (Textos{"", "", "", ""}));
    EXPECT_EQ(p.pasos.capturas, 0);
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(MenuColor, ThePickerBeginsAtTheColourOfTheFirstCell) {
    EXPECT_EQ(preseleccionado(), 0xFFFFFF); // no colour yet
    e.tablero.TextMatrix(1, 2, "azul");
    e.tablero.TextMatrix(3, 2, "rojo");
    EXPECT_EQ(preseleccionado(), 0xFF0000);
    e.tablero.TextMatrix(1, 2, "250");
    EXPECT_EQ(preseleccionado(), 0x303430);
    e.tablero.TextMatrix(1, 2, "celeste");
    EXPECT_EQ(preseleccionado(), 0xFFFFFF);
    e.tablero.color_fondo({1, 2, 1, 2}, 0x123456);
    EXPECT_EQ(preseleccionado(), 0xFFFFFF);
    e.edicionColor = true;
    EXPECT_EQ(preseleccionado(), 0x123456);
}

TEST(MenuCambioTest, ClicksBeyondTheItemsMarkNothing) {
    MenuCambio menu;
    EXPECT_EQ(menu.elementos().size(), 2U);
    menu.marca(2);
    EXPECT_FALSE(menu.marcada());
    const std::string_view entradas[] = {"a", "b"};
    menu.prepara(entradas);
    menu.marca(1);
    EXPECT_FALSE(menu.marcada());
    menu.marca(3);
    EXPECT_EQ(menu.marcada(), 1U);
    menu.prepara({});
    EXPECT_EQ(menu.elementos().size(), 2U);
    EXPECT_FALSE(menu.elementos()[1].marcada);
}

} // namespace
