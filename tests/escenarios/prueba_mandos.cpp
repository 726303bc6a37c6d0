// SPDX-License-Identifier: MIT
// The front end's way in, where a script cannot look: errors stay inside and are shown, odd sequences of
// mouse and keys do no harm.
#include "base/teclas.h"
#include "control/tabla0.h"
#include "headless/plataforma_memoria.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PruebaMandos : public testing::Test {
protected:
    PruebaMandos() {
        for (std::int16_t col = 0; col < 5; ++col)
            tabla.FormatoColumnas(
                col, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 10, "C");
        tabla.Tablero_establece_Formato();
        m().vista_redimensionada(12000, 6000);
        p.registro.clear();
    }

    Mandos& m() { return tabla.mandos(); }

    const Tablero& t() { return tabla.tablero(); }

    int x(int col) { return x_columna(t(), col) + 50; }

    int y(int fila) { return y_fila(t(), fila) + 50; }

    /// A grid with more columns than there are formats, the cursor in the last one.
    void columna_sin_formato() {
        tabla.Cols(28);
        m().elige_celda(1, 27);
        p.registro.clear();
    }

    PlataformaMemoria p;
    Tabla0 tabla{p.plataforma(), p.eventos};
};

const std::string SUBINDICE = "mensaje|16||Tabla Tablero - Error nº 9: Subíndice fuera del intervalo";

TEST_F(PruebaMandos, los_errores_se_muestran_y_no_salen) {
    columna_sin_formato();
    EXPECT_TRUE(m().tecla_abajo(teclas::F2, {}));
    EXPECT_TRUE(m().tecla_pulsada('a'));
    EXPECT_TRUE(m().tecla_pulsada(teclas::ESPACIO));
    EXPECT_THAT(p.registro, ElementsAre(SUBINDICE, SUBINDICE, SUBINDICE));
}

TEST_F(PruebaMandos, un_error_en_la_casilla_nombra_la_casilla) {
    m().tecla_pulsada('a');
    p.pasos.al_capturar = [] { lanza(NumError::SinMemoria); };
    EXPECT_EQ(m().tecla_casilla(teclas::INTRO), 0);
    EXPECT_THAT(
        p.registro, ElementsAre("captura", "mensaje|16||Tabla Casilla - Error nº 7: Memoria insuficiente"));
    EXPECT_FALSE(m().editor().abierto());
}

TEST_F(PruebaMandos, un_error_en_una_orden_nombra_la_orden) {
    p.pasos.al_capturar = [] { lanza(NumError::SinMemoria); };
    EXPECT_TRUE(m().orden(Opcion::mn_insertar_filas));
    EXPECT_THAT(p.registro,
        ElementsAre("captura", "mensaje|16||Tabla mn_insertar_filas - Error nº 7: Memoria insuficiente"));
}

TEST_F(PruebaMandos, una_opcion_sin_orden_no_hace_nada) {
    m().tecla_pulsada('a');
    EXPECT_FALSE(m().orden(Opcion::mn_Filas));
    EXPECT_TRUE(m().editor().abierto());
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaMandos, un_boton_acaba_el_mensaje) {
    tabla.FormatoColumnas(
        1, false, true, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 10, "C");
    m().doble_clic(x(1), y(1));
    EXPECT_TRUE(tabla.estado().etiquetas.labMensaje.visible);
    EXPECT_TRUE(m().boton("Excel"));
    EXPECT_FALSE(tabla.estado().etiquetas.labMensaje.visible);
    EXPECT_FALSE(m().boton("Otro"));
}

TEST_F(PruebaMandos, lo_que_una_tecla_dice_de_si) {
    EXPECT_FALSE(m().tecla_abajo('A', {}));
    EXPECT_FALSE(m().tecla_abajo(teclas::TAB, {}));
    EXPECT_TRUE(m().tecla_abajo(teclas::ABAJO, {}));
    EXPECT_TRUE(m().tecla_abajo(teclas::SUPR, {}));
    EXPECT_FALSE(m().tecla_pulsada(teclas::ESPACIO)); // a text column
    EXPECT_TRUE(m().tecla_pulsada(teclas::ESCAPE));
    EXPECT_TRUE(m().tecla_pulsada('a'));
    tabla.A_Edicion_mn_Ratón_Off();
    EXPECT_FALSE(m().tecla_abajo(teclas::SUPR, {}));
}

TEST_F(PruebaMandos, un_formato_desconocido_cuenta_como_texto) {
    tabla.Formatcol(1, "-", "-", 9, 0, 0, 10, "C");
    EXPECT_EQ(tabla.estado().Formatos[1].Formato, 9);
    EXPECT_FALSE(m().tecla_pulsada(teclas::ESPACIO));
    EXPECT_EQ(t().Row(), 1);
    m().tecla_pulsada('a');
    EXPECT_EQ(m().tecla_casilla(teclas::ESPACIO), teclas::ESPACIO);
    EXPECT_TRUE(m().editor().abierta_casilla());
}

// Not in the scripts: on a window the open list lies over its cell and takes the click.
TEST_F(PruebaMandos, un_tercer_clic_rapido_cicla_tras_abrirse_la_lista) {
    tabla.FormatoColumnas(
        2, false, false, T_formato::ListaU, 0, T_Alineacion::Izqda, T_Accion::Nada__, 10, "Uso");
    tabla.Lista(2, Matriz<std::string>(0, {"A", "B", "C"}));
    tabla.TextMatrix(1, 2, "B");
    const auto clic = [&] {
        m().raton_abajo(x(2), y(1), Boton::Izquierdo, {});
        m().raton_arriba(x(2), y(1), Boton::Izquierdo);
    };
    clic();
    m().doble_clic(x(2), y(1));
    m().raton_arriba(x(2), y(1), Boton::Izquierdo);
    EXPECT_EQ(p.lista.texto(), "B");
    EXPECT_TRUE(p.lista.visible());
    p.registro.clear();
    clic();
    EXPECT_THAT(p.registro, ElementsAre("ACambiadoValorCombo 1 2"));
    EXPECT_FALSE(m().editor().abierto());
    EXPECT_EQ(t().TextMatrix(1, 2), "C");
}

TEST_F(PruebaMandos, soltar_sin_haber_pulsado_no_es_un_clic) {
    m().raton_arriba(x(2), y(2), Boton::Izquierdo);
    m().raton_mueve(x(3), y(3));
    EXPECT_EQ(tabla.estado().ultimaFilaRaton, -1);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaMandos, los_otros_botones_no_seleccionan) {
    for (const Boton boton : {Boton::Derecho, Boton::Central}) {
        m().raton_abajo(x(2), y(2), boton, {});
        m().raton_mueve(x(3), y(3));
        m().raton_arriba(x(2), y(2), boton);
    }
    EXPECT_EQ(tabla.estado().ultimaFilaRaton, -1);
    EXPECT_THAT(p.registro, ElementsAre("menu mn_raton raton"));
}

TEST_F(PruebaMandos, soltar_otro_boton_no_acaba_el_arrastre) {
    m().raton_abajo(x(1), y(1), Boton::Izquierdo, {});
    m().raton_arriba(x(1), y(1), Boton::Derecho);
    m().raton_mueve(x(3), y(3));
    EXPECT_EQ(t().RowSel(), 3);
}

TEST_F(PruebaMandos, soltar_tras_un_doble_clic_no_es_un_clic) {
    m().raton_abajo(x(2), y(2), Boton::Izquierdo, {});
    m().raton_arriba(x(2), y(2), Boton::Izquierdo);
    m().doble_clic(x(2), y(2));
    EXPECT_TRUE(m().editor().abierta_casilla());
    m().raton_mueve(x(3), y(3));
    m().raton_arriba(x(2), y(2), Boton::Izquierdo);
    EXPECT_TRUE(m().editor().abierta_casilla());
    EXPECT_EQ(t().RowSel(), 2);
}

TEST_F(PruebaMandos, un_doble_clic_acaba_el_arrastre_que_perdio_su_final) {
    m().raton_abajo(x(2), y(2), Boton::Izquierdo, {});
    m().doble_clic(x(2), y(2));
    m().raton_mueve(x(3), y(3));
    EXPECT_EQ(t().RowSel(), 2);
}

TEST_F(PruebaMandos, pulsar_donde_la_confirmacion_quito_la_fila_no_selecciona) {
    m().tecla_pulsada('a');
    p.eventos.al_suceder = [&](std::string_view evento) {
        if (evento == "CambiaCasilla") tabla.Rows(2);
    };
    m().raton_abajo(x(2), y(3), Boton::Izquierdo, {});
    m().raton_arriba(x(2), y(3), Boton::Izquierdo);
    m().raton_mueve(x(3), y(1));
    EXPECT_EQ(t().Row(), 1);
    EXPECT_EQ(t().Col(), 1);
    EXPECT_EQ(t().ColSel(), 1);
    EXPECT_FALSE(m().editor().abierto());
    EXPECT_THAT(p.registro, ElementsAre("captura", "CambiaCasilla", "propiedad Rows"));
}

TEST_F(PruebaMandos, varios_caracteres_de_una_vez_van_a_la_misma_casilla) {
    for (const int codigo : {0x4F60, 0x597D, int{'!'}}) EXPECT_TRUE(m().tecla_pulsada(codigo));
    EXPECT_EQ(p.casilla.texto(), "你好!");
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaMandos, un_borde_de_ninguna_columna_no_hace_nada) {
    m().arrastra_borde(-1, 100);
    m().arrastra_borde(5, 100);
    m().arrastra_borde(2, -100);
    EXPECT_EQ(t().ColWidth(2), 0);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaMandos, la_ventana_y_el_desplazamiento_llegan_al_tablero) {
    tabla.Rows(50);
    m().vista_redimensionada(1500, 1500);
    EXPECT_EQ(t().ancho_vista(), 1500);
    m().desplaza_filas(20);
    EXPECT_EQ(t().TopRow(), 20);
    m().desplaza_columnas(300);
    EXPECT_EQ(t().desplazamiento(), 300);
    m().alto_de_filas(400);
    EXPECT_EQ(t().alto_normal(), 400);
}

TEST_F(PruebaMandos, el_editor_abierto_va_con_la_ventana) {
    tabla.Rows(50);
    m().vista_redimensionada(1500, 1500);
    m().tecla_pulsada('a');
    m().alto_de_filas(400);
    EXPECT_EQ(p.casilla.celda(), rectangulo_celda(t(), 1, 1));
    m().desplaza_columnas(300);
    EXPECT_EQ(p.casilla.celda(), rectangulo_celda(t(), 1, 1));
    m().desplaza_filas(3);
    EXPECT_EQ(p.casilla.celda(), rectangulo_celda(t(), 1, 1));
}

TEST_F(PruebaMandos, un_error_estandar_del_anfitrion_se_muestra) {
    p.eventos.al_suceder = [](std::string_view) { throw std::runtime_error("host"); };
    m().tecla_abajo(teclas::ABAJO, {});
    EXPECT_THAT(p.registro,
        ElementsAre("SelChange",
            "mensaje|16||Tabla Tablero - Error nº 5: Llamada a procedimiento o argumento no válidos"));
}

} // namespace

} // namespace Qlt4_Tabla
