// SPDX-License-Identifier: MIT
// The recording platform itself: one ordered record, answers, failures, focus and the windowless editors.
#include "headless/plataforma_memoria.h"
#include "tests/base/error_de.h"

#include <gtest/gtest.h>

using namespace Qlt4_Tabla;

namespace {

struct Plataforma_en_memoria : testing::Test {
    PlataformaMemoria p;
};

} // namespace

TEST_F(Plataforma_en_memoria, todo_queda_en_un_registro_en_su_orden) {
    const Plataforma q = p.plataforma();
    std::int32_t fila = 2;
    std::int32_t col = 3;
    q.pasos.graba_paso();
    p.eventos.CambiaCasilla();
    p.eventos.SelChange();
    p.eventos.ACambiadoValorCombo(fila, col);
    p.eventos.Salir();
    q.mensajes.mensaje("texto", EstiloMensaje::Critico, "titulo");
    q.mensajes.pitido();
    q.mensajes.puntero(Puntero::RelojDeArena);
    q.marco.propiedad_cambiada("Rows");
    q.pasos.restaura_paso(1);
    EXPECT_EQ(p.recoge(),
        (Registro{"captura", "CambiaCasilla", "SelChange", "ACambiadoValorCombo 2 3", "Salir",
            "mensaje|16|titulo|texto", "pitido", "puntero 11", "propiedad Rows", "restaura 1"}));
    EXPECT_EQ(p.registro, Registro{});
    EXPECT_EQ(p.mensajes.forma, Puntero::RelojDeArena);
}

TEST_F(Plataforma_en_memoria, avisos_de_vista_etiquetas_y_menus_van_aparte) {
    const Plataforma q = p.plataforma();
    q.vista.celdas_cambiadas(1, 2, 3, 4);
    q.vista.filas_insertadas(3, 2);
    q.vista.filas_borradas(3, 2);
    q.vista.columnas_cambiadas();
    q.vista.seleccion_cambiada();
    q.vista.vista_desplazada();
    q.vista.ancho_cambiado(2);
    q.vista.alto_cambiado(-1);
    q.vista.fusion_cambiada();
    q.vista.todo_cambiado();
    q.marco.etiquetas_cambiadas();
    q.marco.menus_cambiados();
    EXPECT_EQ(p.vista.recoge(),
        (Registro{"celdas 1 2 3 4", "filas+ 3 2", "filas- 3 2", "columnas", "seleccion", "desplazada",
            "ancho 2", "alto -1", "fusion", "todo"}));
    EXPECT_EQ(p.marco.veces_etiquetas, 1);
    EXPECT_EQ(p.marco.veces_menus, 1);
    EXPECT_EQ(p.registro, Registro{});
}

TEST_F(Plataforma_en_memoria, las_respuestas_salen_de_la_cola_y_despues_la_caja_se_cierra) {
    p.mensajes.respuestas = {Respuesta::Si};
    EXPECT_EQ(p.mensajes.mensaje("a", EstiloMensaje::CriticoSiNo, ""), Respuesta::Si);
    EXPECT_EQ(p.mensajes.mensaje("b", EstiloMensaje::CriticoSiNo, ""), Respuesta::No);
    EXPECT_EQ(p.mensajes.mensaje("c", EstiloMensaje::Informacion, ""), Respuesta::Aceptar);
    EXPECT_EQ(p.mensajes.vistos[1], (MensajesMemoria::Visto{"b", EstiloMensaje::CriticoSiNo, ""}));
}

TEST_F(Plataforma_en_memoria, un_servidor_puede_responder_a_un_suceso) {
    p.eventos.al_suceder = [&](std::string_view suceso) {
        if (suceso == "CambiaCasilla") p.registro.emplace_back("servidor");
    };
    p.eventos.CambiaCasilla();
    p.eventos.SelChange();
    EXPECT_EQ(p.registro, (Registro{"CambiaCasilla", "servidor", "SelChange"}));
}

TEST_F(Plataforma_en_memoria, el_marco_guarda_su_tamano) {
    p.marco.pon_tamano(5000, -1);
    EXPECT_EQ(p.marco.ancho(), 5000.0F);
    EXPECT_EQ(p.marco.alto(), 0.0F);
    EXPECT_EQ(p.marco.veces_tamano, 1);
}

TEST_F(Plataforma_en_memoria, la_bolsa_guarda_y_falla_cuando_se_le_pide) {
    p.bolsa.escribe("Cols", 5);
    EXPECT_EQ(p.bolsa.lee("Cols", 2), Variante(5));
    EXPECT_EQ(p.bolsa.lee("Rows", 2), Variante(2));
    p.bolsa.falla_en("Rows", 57);
    EXPECT_EQ(error_de([&] { p.bolsa.escribe("Rows", 1); }), 57);
    EXPECT_EQ(error_de([&] { p.bolsa.escribe("Cols", 1); }), 0);
    p.bolsa.falla(75);
    EXPECT_EQ(error_de([&] { (void)p.bolsa.lee("Cols", 1); }), 75);
    p.bolsa.falla(0);
    EXPECT_EQ(p.bolsa.lee("Cols", 2), Variante(1));
    EXPECT_EQ(p.bolsa.claves, (Registro{"Cols", "Cols", "Rows", "Cols", "Cols"}));
}

TEST_F(Plataforma_en_memoria, la_caja_tiene_texto_cursor_y_seleccion) {
    p.casilla.muestra({10, 20, 300, 40}, "Año");
    EXPECT_TRUE(p.casilla.visible());
    EXPECT_EQ(p.casilla.celda(), (Rectangulo{10, 20, 300, 40}));
    EXPECT_EQ(p.casilla.cursor(), 3);
    EXPECT_EQ(p.casilla.longitud_seleccion(), 0);
    p.casilla.selecciona(1, 99);
    EXPECT_EQ(p.casilla.inicio_seleccion(), 1);
    EXPECT_EQ(p.casilla.longitud_seleccion(), 2);
    p.casilla.inserta("é€");
    EXPECT_EQ(p.casilla.texto(), "Aé€");
    EXPECT_EQ(p.casilla.cursor(), 3);
    p.casilla.selecciona(2, 0);
    p.casilla.retrocede();
    EXPECT_EQ(p.casilla.texto(), "A€");
    EXPECT_EQ(p.casilla.cursor(), 1);
    p.casilla.selecciona(0, 2);
    p.casilla.retrocede();
    EXPECT_EQ(p.casilla.texto(), "");
    p.casilla.retrocede();
    EXPECT_EQ(p.casilla.cursor(), 0);
}

TEST_F(Plataforma_en_memoria, la_lista_tiene_entradas_y_una_elegida_o_ninguna) {
    const std::vector<std::string> entradas{"eje", "borde"};
    p.lista.muestra({}, entradas, 1);
    EXPECT_EQ(p.lista.texto(), "borde");
    p.lista.elige("eje");
    EXPECT_EQ(p.lista.elegida(), 0);
    p.lista.elige("otra");
    EXPECT_EQ(p.lista.texto(), "");
    p.lista.elige(2);
    EXPECT_EQ(p.lista.elegida(), -1);
    EXPECT_TRUE(p.lista.visible());
}

TEST_F(Plataforma_en_memoria, quien_pierde_el_foco_lo_dice_una_vez) {
    int casilla = 0;
    int lista = 0;
    p.foco.casilla_pierde = [&] { ++casilla; };
    p.foco.lista_pierde = [&] { ++lista; };
    p.casilla.muestra({}, "x");
    EXPECT_EQ(p.foco.actual(), Foco::Casilla);
    p.marco.enfoca_tablero();
    EXPECT_EQ(casilla, 1);
    p.casilla.oculta();
    EXPECT_EQ(casilla, 1);
    p.lista.muestra({}, {}, -1);
    p.lista.oculta();
    EXPECT_EQ(lista, 1);
    EXPECT_EQ(p.foco.actual(), Foco::Nadie);
}
