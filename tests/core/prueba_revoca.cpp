// SPDX-License-Identifier: MIT
// The undo capture point, the redo counters and the switch A_GrabaRevoca.
#include "core/revoca.h"
#include "headless/plataforma_memoria.h"

#include <gtest/gtest.h>

using namespace Qlt4_Tabla;

namespace {

struct Revocacion : testing::Test {
    PlataformaMemoria p;
    Revoca revoca{p.pasos};
    EstadoMenus menus;

    const EstadoOpcion& deshacer() { return menus[Opcion::mn_Deshacer]; }

    const EstadoOpcion& rehacer() { return menus[Opcion::mn_Rehacer]; }
};

} // namespace

TEST_F(Revocacion, la_captura_llega_al_almacen_y_no_cuenta_pasos) {
    revoca.Graba_Revoca();
    revoca.Graba_Revoca();
    EXPECT_EQ(p.pasos.capturas, 2);
    EXPECT_EQ(revoca.pasoActual(), 0);
    EXPECT_EQ(revoca.totalPasos(), 0);
}

TEST_F(Revocacion, sin_pasos_rehacer_solo_se_desactiva) {
    revoca.Graba_Revoca();
    p.recoge();
    revoca.Rehace(menus);
    EXPECT_FALSE(rehacer().activa);
    EXPECT_EQ(rehacer().titulo, "Reh&acer");
    EXPECT_TRUE(deshacer().activa);
    EXPECT_EQ(deshacer().titulo, "&Deshacer");
    EXPECT_EQ(revoca.pasoActual(), 0);
    EXPECT_EQ(p.registro, Registro{});
    revoca.Rehace(menus);
    EXPECT_FALSE(rehacer().activa);
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Revocacion, con_pasos_avanza_titula_y_restaura) {
    revoca.totalPasos(3);
    menus[Opcion::mn_Deshacer].activa = false;
    revoca.Rehace(menus);
    EXPECT_TRUE(deshacer().activa);
    EXPECT_EQ(deshacer().titulo, "&Deshacer (1)");
    EXPECT_EQ(rehacer().titulo, "Reh&acer (3)");
    revoca.Rehace(menus);
    EXPECT_EQ(deshacer().titulo, "&Deshacer (2)");
    EXPECT_EQ(rehacer().titulo, "Reh&acer (2)");
    revoca.Rehace(menus);
    EXPECT_EQ(deshacer().titulo, "&Deshacer (3)");
    EXPECT_EQ(rehacer().titulo, "Reh&acer (1)");
    EXPECT_TRUE(rehacer().activa);
    EXPECT_EQ(p.registro, (Registro{"restaura 1", "restaura 2", "restaura 3"}));
}

TEST_F(Revocacion, tras_el_ultimo_paso_rehacer_se_desactiva_y_los_titulos_quedan) {
    revoca.totalPasos(1);
    revoca.Rehace(menus);
    p.recoge();
    revoca.Rehace(menus);
    EXPECT_FALSE(rehacer().activa);
    EXPECT_EQ(rehacer().titulo, "Reh&acer (1)");
    EXPECT_EQ(deshacer().titulo, "&Deshacer (1)");
    EXPECT_EQ(revoca.pasoActual(), 1);
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Revocacion, el_interruptor_empieza_en_NO) { EXPECT_EQ(revoca.A_GrabaRevoca(), "NO"); }

TEST_F(Revocacion, el_interruptor_solo_toma_SI_y_NO) {
    const struct {
        std::string antes, valor, despues;
    } casos[] = {
        {"NO", "SI", "SI"},
        {"SI", "NO", "NO"},
        {"SI", "SI", "SI"},
        {"SI", "si", "SI"},
        {"NO", "si", "NO"},
        {"SI", "No", "SI"},
        {"SI", "", "SI"},
        {"SI", "NO ", "SI"},
        {"NO", " SI", "NO"},
        {"NO", "SÍ", "NO"},
        {"SI", "N", "SI"},
    };
    for (const auto& caso : casos) {
        revoca.A_GrabaRevoca(caso.antes);
        revoca.A_GrabaRevoca(caso.valor);
        EXPECT_EQ(revoca.A_GrabaRevoca(), caso.despues) << caso.antes << " <- " << caso.valor;
    }
}
