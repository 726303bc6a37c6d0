// SPDX-License-Identifier: MIT
// The in-cell editor where a script cannot look: order of the steps, keys out of place, errors in the
// middle, hosts that act inside the events. What a user sees is in the scenario scripts.
#include "base/teclas.h"
#include "tests/editing/mesa_edicion.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using PruebaEditor = MesaEdicion;

// --- Order of the steps ---

TEST_F(PruebaEditor, la_captura_ve_la_celda_de_antes_y_el_suceso_la_de_despues) {
    t().TextMatrix(1, 3, "1");
    std::string al_capturar;
    std::string al_cambiar;
    p.pasos.al_capturar = [&] { al_capturar = celda(1, 3); };
    p.eventos.al_suceder = [&](std::string_view evento) {
        if (evento == "CambiaCasilla") al_cambiar = celda(1, 3);
    };
    edita(1, 3, "2");
    editor.tecla_casilla(teclas::INTRO);
    EXPECT_EQ(al_capturar, "1");
    EXPECT_EQ(al_cambiar, "2");
}

TEST_F(PruebaEditor, la_casilla_esta_oculta_antes_de_avanzar_y_el_foco_va_despues) {
    bool visible = true;
    Foco foco = Foco::Tablero;
    p.eventos.al_suceder = [&](std::string_view evento) {
        if (evento != "SelChange") return;
        visible = p.casilla.visible();
        foco = p.foco.actual();
    };
    edita(1, 3, "2");
    editor.tecla_casilla(teclas::INTRO);
    EXPECT_FALSE(visible);
    EXPECT_NE(foco, Foco::Tablero);
    EXPECT_EQ(p.foco.actual(), Foco::Tablero);
}

TEST_F(PruebaEditor, en_el_suceso_el_editor_ya_cuenta_como_cerrado) {
    bool abierto = true;
    p.eventos.al_suceder = [&](std::string_view evento) {
        if (evento == "CambiaCasilla") abierto = editor.abierto();
    };
    edita(1, 3, "2");
    editor.casilla_pierde_foco(MotivoFoco::Otro);
    EXPECT_FALSE(abierto);
    EXPECT_FALSE(p.casilla.visible());
}

TEST_F(PruebaEditor, confirmar_un_numero_pregunta_por_la_coma) {
    p.separador.coma = true;
    e.ComaDecimal = false;
    edita(1, 2, "1.5");
    editor.tecla_casilla(teclas::INTRO);
    EXPECT_TRUE(e.ComaDecimal);
    EXPECT_EQ(celda(1, 2), "1.50");
}

TEST_F(PruebaEditor, una_coma_pegada_es_el_separador) {
    edita(1, 2, "1,5");
    editor.tecla_casilla(teclas::INTRO);
    EXPECT_EQ(celda(1, 2), "1.50");
}

struct Escrito {
    int col;
    const char* tecleado;
    const char* guardado;
};

TEST_F(PruebaEditor, lo_que_se_escribe_por_formato) {
    const std::vector<Escrito> casos{{2, "abc", "0.00"}, {2, "12.5 m", "12.50"}, {2, "1.234,5", "1.23"},
        {2, "1e3", "1000.00"}, {2, " - 3 ", "-3.00"}, {2, "1e999", "0.00"}, {2, "&HFFFF&", "65535.00"},
        {2, "-0", "0.00"}, {3, "2.5", "2.5"}, {3, "1e15", "1E+15"}, {3, "x", "0"}, {3, " 7 ", "7"},
        {1, " x ", " x "}, {5, "rojo", "rojo"}, {6, "x", ""}};
    for (const Escrito& caso : casos) {
        edita(1, caso.col, caso.tecleado);
        editor.tecla_casilla(teclas::INTRO);
        EXPECT_EQ(celda(1, caso.col), caso.guardado) << caso.col << ' ' << caso.tecleado;
    }
}

// --- Keys out of place ---

TEST_F(PruebaEditor, Intro_con_la_casilla_cerrada_solo_avanza) {
    EXPECT_EQ(editor.tecla_casilla(teclas::INTRO), 0);
    EXPECT_EQ(t().Row(), 2);
    EXPECT_THAT(p.registro, ElementsAre("SelChange"));
    EXPECT_EQ(editor.tecla_lista(teclas::INTRO), 0);
    EXPECT_EQ(t().Row(), 3);
}

TEST_F(PruebaEditor, Escape_con_todo_cerrado_da_el_foco_al_tablero) {
    p.foco.pide(Foco::Nadie);
    EXPECT_EQ(editor.tecla_casilla(teclas::ESCAPE), 0);
    EXPECT_EQ(p.foco.actual(), Foco::Tablero);
    p.foco.pide(Foco::Nadie);
    EXPECT_EQ(editor.tecla_lista(teclas::ESCAPE), 0);
    EXPECT_EQ(p.foco.actual(), Foco::Tablero);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaEditor, perder_el_foco_con_todo_cerrado_no_hace_nada) {
    editor.casilla_pierde_foco(MotivoFoco::Otro);
    editor.lista_pierde_foco(MotivoFoco::Otro);
    editor.clic_lista();
    editor.confirma_y_cierra();
    editor.descarta();
    editor.recoloca();
    EXPECT_THAT(p.registro, IsEmpty());
    EXPECT_EQ(p.marco.veces_enfoca, 0);
}

TEST_F(PruebaEditor, la_otra_caja_no_confirma_la_que_esta_abierta) {
    edita(1, 3, "2");
    editor.lista_pierde_foco(MotivoFoco::Otro);
    EXPECT_TRUE(editor.abierta_casilla());
    editor.descarta();
    va(1, 4);
    editor.abre_por_F2();
    editor.casilla_pierde_foco(MotivoFoco::Otro);
    EXPECT_TRUE(editor.abierta_lista());
}

TEST_F(PruebaEditor, los_codigos_de_control_no_abren_salvo_Retroceso) {
    for (int codigo = -2; codigo <= 32; ++codigo) {
        editor.abre_por_tecla(codigo);
        EXPECT_EQ(editor.abierto(), codigo == teclas::RETROCESO) << codigo;
        editor.descarta();
    }
    for (const int codigo : {33, 127, 128, 255, 256, 0x1F600}) {
        editor.abre_por_tecla(codigo);
        EXPECT_TRUE(editor.abierto()) << codigo;
        editor.descarta();
    }
}

TEST_F(PruebaEditor, en_columnas_numericas_solo_pasan_los_codigos_del_filtro) {
    va(1, 3);
    for (int codigo = 0; codigo <= 255; ++codigo) {
        editor.abre_por_tecla(codigo);
        const bool pasa = (codigo >= '0' && codigo <= '9') || codigo == '-' || codigo == 8;
        EXPECT_EQ(editor.abierto(), pasa) << codigo;
        editor.descarta();
    }
}

TEST_F(PruebaEditor, el_codigo_de_la_tecla_da_su_caracter) {
    const std::vector<std::pair<int, std::string>> casos{
        {'a', "a"}, {128, "€"}, {241, "ñ"}, {0x3A9, "Ω"}, {0x1F600, "😀"}};
    for (const auto& [codigo, texto] : casos) {
        editor.abre_por_tecla(codigo);
        EXPECT_EQ(p.casilla.texto(), texto);
        EXPECT_EQ(p.casilla.cursor(), 1);
        editor.descarta();
    }
}

TEST_F(PruebaEditor, las_teclas_que_no_filtra_vuelven_como_vinieron) {
    edita(1, 1, "x");
    for (const int codigo : {8, 32, int{'a'}, int{'+'}, 241, 0x3A9})
        EXPECT_EQ(editor.tecla_casilla(codigo), codigo);
    editor.descarta();
    edita(1, 2, "");
    for (const int codigo : {8, int{'1'}, int{'.'}, int{'-'}, 0x3A9})
        EXPECT_EQ(editor.tecla_casilla(codigo), codigo);
    for (const int codigo : {int{'a'}, int{','}, int{'+'}, 241}) EXPECT_EQ(editor.tecla_casilla(codigo), 0);
}

TEST_F(PruebaEditor, las_teclas_de_la_lista_vuelven_como_vinieron) {
    va(1, 4);
    editor.abre_por_F2();
    for (const int codigo : {8, int{'a'}, 241}) EXPECT_EQ(editor.tecla_lista(codigo), codigo);
    EXPECT_TRUE(editor.abierta_lista());
}

TEST_F(PruebaEditor, lo_que_llega_al_tablero_con_la_casilla_abierta_se_teclea_en_ella) {
    edita(1, 1, "ab");
    p.casilla.selecciona(1, 0);
    for (const int codigo : {241, int{'x'}, 0x1F600}) editor.teclea(codigo);
    EXPECT_EQ(p.casilla.texto(), "añx😀b");
    EXPECT_EQ(p.casilla.cursor(), 4);
    editor.teclea(teclas::RETROCESO);
    EXPECT_EQ(p.casilla.texto(), "añx😀b");
    editor.teclea(teclas::INTRO);
    EXPECT_EQ(celda(1, 1), "añx😀b");
    editor.teclea('z');
    EXPECT_FALSE(editor.abierto());
}

TEST_F(PruebaEditor, lo_que_llega_al_tablero_pasa_el_filtro_de_la_casilla) {
    edita(1, 3, "1");
    for (const int codigo : {int{'a'}, int{'2'}, int{'.'}, int{'-'}}) editor.teclea(codigo);
    EXPECT_EQ(p.casilla.texto(), "-12");
    EXPECT_EQ(p.casilla.cursor(), 3);
}

TEST_F(PruebaEditor, lo_que_llega_al_tablero_con_la_lista_abierta_es_de_la_lista) {
    va(1, 4);
    editor.abre_por_F2();
    editor.teclea('b');
    EXPECT_TRUE(editor.abierta_lista());
    editor.teclea(teclas::ESCAPE);
    EXPECT_FALSE(editor.abierto());
}

// --- Columns beyond the formats ---

TEST_F(PruebaEditor, una_columna_sin_formato_da_error_9_y_no_abre) {
    t().Cols(28);
    va(1, 27);
    EXPECT_EQ(error_de([&] { editor.abre_por_F2(); }), 9);
    EXPECT_EQ(error_de([&] { editor.abre_por_tecla('a'); }), 9);
    EXPECT_EQ(error_de([&] { editor.abre_por_doble_clic(); }), 9);
    EXPECT_FALSE(editor.abierto());
    EXPECT_FALSE(p.casilla.visible());
}

// --- Errors in the middle ---

TEST_F(PruebaEditor, un_error_al_confirmar_cierra_la_casilla) {
    p.pasos.al_capturar = [] { lanza(NumError::SinMemoria); };
    edita(1, 3, "2");
    EXPECT_EQ(error_de([&] { editor.tecla_casilla(teclas::INTRO); }), 7);
    EXPECT_FALSE(editor.abierto());
    EXPECT_FALSE(p.casilla.visible());
    EXPECT_EQ(celda(1, 3), "");
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(PruebaEditor, un_error_al_confirmar_deja_el_foco_en_el_tablero) {
    p.pasos.al_capturar = [] { lanza(NumError::SinMemoria); };
    edita(1, 3, "2");
    EXPECT_EQ(error_de([&] { editor.tecla_casilla(teclas::INTRO); }), 7);
    EXPECT_EQ(p.foco.actual(), Foco::Tablero);
    edita(1, 3, "2");
    EXPECT_EQ(error_de([&] { editor.confirma_y_cierra(); }), 7);
    EXPECT_EQ(p.foco.actual(), Foco::Tablero);
}

TEST_F(PruebaEditor, un_error_al_avanzar_deja_el_foco_en_el_tablero) {
    edita(4, 3, "2");
    p.pasos.al_capturar = [this] {
        if (p.pasos.capturas == 2) lanza(NumError::SinMemoria);
    };
    EXPECT_EQ(error_de([&] { editor.tecla_casilla(teclas::INTRO); }), 7);
    EXPECT_EQ(celda(4, 3), "2");
    EXPECT_FALSE(editor.abierto());
    EXPECT_EQ(p.foco.actual(), Foco::Tablero);
}

// --- Hosts that act inside the events ---

TEST_F(PruebaEditor, perder_el_foco_dentro_del_suceso_no_confirma_otra_vez) {
    p.eventos.al_suceder = [&](std::string_view evento) {
        if (evento == "CambiaCasilla") p.foco.pide(Foco::Nadie);
    };
    edita(1, 3, "2");
    editor.tecla_casilla(teclas::INTRO);
    EXPECT_EQ(std::count(p.registro.begin(), p.registro.end(), "CambiaCasilla"), 1);
    EXPECT_EQ(p.pasos.capturas, 1);
}

TEST_F(PruebaEditor, confirmar_dentro_del_suceso_no_confirma_otra_vez) {
    p.eventos.al_suceder = [&](std::string_view evento) {
        if (evento == "CambiaCasilla") editor.confirma_y_cierra();
    };
    edita(1, 3, "2");
    editor.casilla_pierde_foco(MotivoFoco::Otro);
    EXPECT_THAT(p.registro, ElementsAre("captura", "CambiaCasilla"));
}

TEST_F(PruebaEditor, una_edicion_que_el_anfitrion_abre_en_el_suceso_sigue_abierta) {
    p.eventos.al_suceder = [&](std::string_view evento) {
        if (evento != "CambiaCasilla" || p.pasos.capturas > 1) return;
        va(3, 2);
        editor.abre_por_F2();
    };
    edita(1, 3, "2");
    editor.tecla_casilla(teclas::INTRO);
    EXPECT_EQ(celda(1, 3), "2");
    EXPECT_TRUE(editor.abierta_casilla());
    EXPECT_TRUE(p.casilla.visible());
    EXPECT_EQ(editor.fila(), 3);
    EXPECT_EQ(t().Row(), 3);
    EXPECT_EQ(p.foco.actual(), Foco::Casilla);
    EXPECT_THAT(p.registro, ElementsAre("captura", "CambiaCasilla"));
}

TEST_F(PruebaEditor, una_lista_que_el_anfitrion_abre_en_el_suceso_sigue_abierta) {
    p.eventos.al_suceder = [&](std::string_view evento) {
        if (evento != "CambiaCasilla") return;
        va(3, 4);
        editor.abre_por_F2();
    };
    edita(1, 3, "2");
    editor.confirma_y_cierra();
    EXPECT_TRUE(editor.abierta_lista());
    EXPECT_FALSE(p.casilla.visible());
    EXPECT_TRUE(p.lista.visible());
    EXPECT_EQ(p.foco.actual(), Foco::Lista);
}

TEST_F(PruebaEditor, una_edicion_que_el_anfitrion_abre_al_avanzar_sigue_abierta) {
    p.eventos.al_suceder = [&](std::string_view evento) {
        if (evento == "SelChange") editor.abre_por_F2();
    };
    edita(1, 3, "2");
    editor.tecla_casilla(teclas::INTRO);
    EXPECT_TRUE(editor.abierta_casilla());
    EXPECT_EQ(editor.fila(), 2);
    EXPECT_EQ(p.foco.actual(), Foco::Casilla);
}

TEST_F(PruebaEditor, abrir_con_otra_abierta_confirma_la_primera) {
    edita(1, 3, "2");
    va(2, 3);
    editor.abre_por_F2();
    EXPECT_EQ(celda(1, 3), "2");
    EXPECT_EQ(editor.fila(), 2);
    EXPECT_THAT(p.registro, ElementsAre("captura", "CambiaCasilla"));
}

TEST_F(PruebaEditor, sin_su_celda_la_casilla_solo_se_cierra) {
    for (const bool filas : {true, false}) {
        edita(4, 3, "2");
        if (filas)
            t().Rows(3);
        else
            t().Cols(3);
        editor.tecla_casilla(teclas::INTRO);
        EXPECT_FALSE(p.casilla.visible());
        EXPECT_EQ(p.foco.actual(), Foco::Tablero);
        t().Rows(6);
    }
    EXPECT_THAT(p.registro, IsEmpty());
    EXPECT_EQ(e.Modificado, 0);
}

TEST_F(PruebaEditor, recoloca_lleva_la_casilla_tras_su_celda_y_la_cierra_sin_ella) {
    edita(3, 2, "9");
    t().ColWidth(1, 5000);
    editor.recoloca();
    EXPECT_EQ(p.casilla.celda(), rectangulo_celda(t(), 3, 2));
    t().Rows(3);
    editor.recoloca();
    EXPECT_FALSE(editor.abierto());
    EXPECT_FALSE(p.casilla.visible());
    EXPECT_EQ(p.foco.actual(), Foco::Tablero);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaEditor, recoloca_lleva_la_lista_tras_su_celda) {
    va(3, 4);
    editor.abre_por_F2();
    t().ColWidth(1, 5000);
    editor.recoloca();
    EXPECT_EQ(p.lista.celda(), rectangulo_celda(t(), 3, 4));
}

// --- Colours ---

TEST_F(PruebaEditor, una_tecla_en_la_casilla_trae_de_vuelta_su_celda) {
    t().Rows(100);
    edita(2, 1, "a");
    t().TopRow(50);
    EXPECT_EQ(editor.tecla_casilla('b'), 'b');
    EXPECT_EQ(t().TopRow(), 2);
    EXPECT_EQ(p.casilla.celda(), rectangulo_celda(t(), 2, 1));
    t().TopRow(50);
    editor.tecla_casilla(teclas::ESCAPE); // nothing more is typed
    EXPECT_EQ(t().TopRow(), 50);
}

TEST_F(PruebaEditor, una_tecla_en_la_lista_trae_de_vuelta_su_celda) {
    t().Rows(100);
    va(2, 4);
    editor.abre_por_F2();
    t().TopRow(50);
    EXPECT_EQ(editor.tecla_lista('b'), 'b');
    EXPECT_EQ(t().TopRow(), 2);
    EXPECT_EQ(p.lista.celda(), rectangulo_celda(t(), 2, 4));
}

TEST_F(PruebaEditor, el_fondo_de_una_celda_de_color_sigue_como_estaba) {
    e.edicionColor = true;
    t().color_fondo({1, 5, 1, 5}, 255);
    va(1, 5);
    editor.abre_por_F2();
    EXPECT_EQ(t().color_fondo(1, 5), 255);
    EXPECT_TRUE(t().tiene_fondo(1, 5));
    va(2, 5);
    editor.abre_por_F2();
    EXPECT_FALSE(t().tiene_fondo(2, 5));
}

TEST_F(PruebaEditor, un_fondo_negro_puesto_sigue_puesto) {
    e.edicionColor = true;
    t().color_fondo({1, 5, 1, 5}, 0);
    const bool puesto = t().tiene_fondo(1, 5);
    va(1, 5);
    editor.abre_por_F2();
    EXPECT_EQ(t().tiene_fondo(1, 5), puesto);
}

} // namespace

} // namespace Qlt4_Tabla
