// SPDX-License-Identifier: MIT
// The export to a spreadsheet: the order of the calls, every cell, and what is left after an error at any of
// them.
#include "clipboard/hoja.h"
#include "tests/clipboard/mesa_portapapeles.h"

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::Pair;

struct Hoja : MesaPortapapeles {
    /// The pairs of row and column with their texts.
    [[nodiscard]] const auto& celdas() { return p.hoja_calculo.celdas; }
};

TEST_F(Hoja, los_datos_van_desde_su_primera_celda) {
    tabla(3, 3);
    pon(0, 1, "X");
    pon(1, 1, "1.5");
    pon(1, 2, "a");
    pon(2, 2, "1.2.3");
    marca(1, 1, 2, 2);
    Copiar_todo_Excel(e);
    EXPECT_THAT(celdas(),
        ElementsAre(
            Pair(Pair(1, 1), "1.5"), Pair(Pair(1, 2), "a"), Pair(Pair(2, 1), ""), Pair(Pair(2, 2), "1.2.3")));
    EXPECT_EQ(seleccion(), (std::vector{1, 1, 2, 2}));
    EXPECT_THAT(p.registro,
        ElementsAre("puntero 11", "hoja aplicacion", "hoja libro", "hoja primera", "hoja muestra",
            "hoja suelta", "puntero 0"));
    EXPECT_TRUE(p.hoja_calculo.visible);
}

TEST_F(Hoja, en_coma_cambia_el_primer_punto) {
    tabla(2, 4);
    pon(1, 1, "1.5");
    pon(1, 2, "1.2.3");
    pon(1, 3, "x");
    en_coma();
    Copiar_todo_Excel(e);
    EXPECT_THAT(
        celdas(), ElementsAre(Pair(Pair(1, 1), "1,5"), Pair(Pair(1, 2), "1,2.3"), Pair(Pair(1, 3), "x")));
}

TEST_F(Hoja, sin_datos_se_muestra_un_libro_vacio) {
    tabla(1, 3);
    Copiar_todo_Excel(e);
    EXPECT_EQ(p.hoja_calculo.escritas, 0);
    EXPECT_TRUE(p.hoja_calculo.visible);
    t().Rows(3);
    t().Cols(1);
    Copiar_todo_Excel(e);
    EXPECT_EQ(p.hoja_calculo.escritas, 0);
}

TEST_F(Hoja, un_error_en_cualquier_paso_sale_y_suelta_el_programa) {
    tabla(3, 3);
    for (const char* paso : {"aplicacion", "libro", "primera", "celda", "muestra", "suelta"}) {
        p.hoja_calculo.fallos = {{paso, Error(1004, "no")}};
        EXPECT_EQ(error_de([&] { Copiar_todo_Excel(e); }), 1004) << paso;
        EXPECT_FALSE(p.hoja_calculo.tomada) << paso;
        EXPECT_EQ(p.registro.back(), "puntero 0") << paso;
    }
}

TEST_F(Hoja, sin_programa_acaba_en_el_acto) {
    tabla(3, 3);
    p.hoja_calculo.fallos = {{"aplicacion", Error(429, "no hay")}};
    EXPECT_EQ(error_de([&] { Copiar_todo_Excel(e); }), 429);
    EXPECT_THAT(p.registro, ElementsAre("puntero 11", "hoja aplicacion", "puntero 0"));
}

TEST_F(Hoja, un_error_al_soltar_tras_otro_error_no_lo_tapa) {
    tabla(3, 3);
    p.hoja_calculo.fallos = {{"libro", Error(462, "perdido")}, {"suelta", Error(1004, "no")}};
    EXPECT_EQ(error_de([&] { Copiar_todo_Excel(e); }), 462);
}

TEST_F(Hoja, la_version_nula_no_puede_crear_el_programa) {
    HojaCalculoNula nula;
    EXPECT_EQ(error_de([&] { nula.crea_aplicacion(); }), 429);
    EXPECT_EQ(error_de([&] { nula.suelta(); }), 0);
}

} // namespace

} // namespace Qlt4_Tabla
