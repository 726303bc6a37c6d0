// SPDX-License-Identifier: MIT
// The cursor where a script cannot look: notices to the view, errors, odd calls. What a user sees is in
// the scenario scripts.
#include "tests/editing/mesa_edicion.h"

#include <algorithm>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PruebaNavegacion : public MesaEdicion {
protected:
    void muescas(int signo, int veces) {
        for (int i = 0; i < veces; ++i) navegacion.rueda(signo);
    }
};

TEST_F(PruebaNavegacion, un_avance_da_un_solo_aviso_de_seleccion) {
    p.vista.avisos.clear();
    navegacion.Avanza_Cursor();
    EXPECT_THAT(p.vista.avisos, ElementsAre("seleccion"));
    EXPECT_THAT(p.registro, ElementsAre("SelChange"));
}

TEST_F(PruebaNavegacion, el_avance_horizontal_acaba_con_todas_las_columnas_bloqueadas) {
    e.menus[Opcion::MN_avance_horizontal].marcada = true;
    for (T_FormatoColumna& f : e.Formatos) f.Bloqueada = true;
    navegacion.Avanza_Cursor();
    EXPECT_EQ(t().Row(), 1);
    EXPECT_EQ(t().Col(), 1);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaNavegacion, el_avance_horizontal_sin_columnas_de_datos_no_hace_nada) {
    e.menus[Opcion::MN_avance_horizontal].marcada = true;
    t().Cols(1);
    navegacion.Avanza_Cursor();
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaNavegacion, el_avance_con_mas_columnas_que_formatos_da_error_9) {
    e.menus[Opcion::MN_avance_horizontal].marcada = true;
    t().Cols(28);
    va(1, 25);
    EXPECT_EQ(error_de([&] { navegacion.Avanza_Cursor(); }), 9);
    EXPECT_EQ(t().Col(), 25);
}

TEST_F(PruebaNavegacion, las_teclas_que_no_son_suyas_quedan) {
    for (int codigo = 0; codigo < 256; ++codigo) {
        const bool suya = codigo >= teclas::REPAG && codigo <= teclas::ABAJO;
        EXPECT_EQ(navegacion.tecla(codigo, {}), suya) << codigo;
    }
    EXPECT_FALSE(navegacion.tecla(teclas::ABAJO, teclas::ALT));
    EXPECT_FALSE(navegacion.tecla(teclas::ABAJO, teclas::ALT | teclas::MAYUSCULAS));
}

TEST_F(PruebaNavegacion, sin_columnas_visibles_las_teclas_no_salen_de_la_columna) {
    for (int col = 1; col < t().Cols(); ++col) t().ColWidth(col, 0);
    for (const int codigo : {teclas::IZQUIERDA, teclas::DERECHA, teclas::INICIO})
        EXPECT_TRUE(navegacion.tecla(codigo, {}));
    EXPECT_EQ(t().Col(), 1);
}

TEST_F(PruebaNavegacion, una_ventana_sin_sitio_pasa_pagina_fila_a_fila) {
    t().pon_vista(0, 0);
    navegacion.tecla(teclas::AVPAG, {});
    EXPECT_EQ(t().Row(), 2);
    navegacion.tecla(teclas::REPAG, {});
    EXPECT_EQ(t().Row(), 1);
}

TEST_F(PruebaNavegacion, una_seleccion_de_fila_entera_no_desplaza_hacia_un_lado) {
    t().pon_vista(2000, 6000);
    navegacion.raton_abajo({2, 0}, {});
    EXPECT_EQ(t().ColSel(), 6);
    EXPECT_EQ(t().desplazamiento(), 0);
}

TEST_F(PruebaNavegacion, arrastrar_sin_haber_pulsado_no_selecciona) {
    navegacion.arrastra(3000, 1000);
    EXPECT_THAT(p.registro, IsEmpty());
    navegacion.raton_abajo({-1, 2}, {});
    navegacion.arrastra(3000, 1000);
    navegacion.raton_abajo({0, 0}, {});
    p.registro.clear();
    navegacion.arrastra(3000, 1000);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaNavegacion, arrastrar_fuera_desplaza_y_dentro_no) {
    t().Rows(100);
    t().pon_vista(3000, t().RowHeight(0) + 5 * t().alto_normal() + 100);
    navegacion.raton_abajo({1, 1}, {});
    const int dentro = t().alto_vista() - 10; // on the sixth row, seen in part
    navegacion.arrastra(x_columna(t(), 1) + 100, dentro);
    EXPECT_EQ(t().RowSel(), 6);
    EXPECT_EQ(t().TopRow(), 1);
    navegacion.arrastra(x_columna(t(), 1) + 100, t().alto_vista() + 100);
    EXPECT_GT(t().TopRow(), 1);
    EXPECT_EQ(t().Row(), 1);
    const int abajo = t().RowSel();
    EXPECT_GE(abajo, 6);
    for (int i = 0; i < 5; ++i) navegacion.arrastra(x_columna(t(), 1) + 100, t().alto_vista() + 100);
    EXPECT_EQ(t().RowSel(), abajo + 5);
    for (int i = 0; i < 20; ++i) navegacion.arrastra(x_columna(t(), 1) + 100, -100);
    EXPECT_EQ(t().RowSel(), 1);
    EXPECT_EQ(t().TopRow(), 1);
}

TEST_F(PruebaNavegacion, un_arrastre_que_no_cambia_nada_no_se_cuenta) {
    navegacion.raton_abajo({2, 2}, {});
    p.registro.clear();
    const Rectangulo r = rectangulo_celda(t(), 2, 2);
    navegacion.arrastra(r.izquierda + 10, r.arriba + 10);
    navegacion.arrastra(r.izquierda + 20, r.arriba + 20);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaNavegacion, el_clic_recuerda_su_celda_tambien_fuera) {
    EXPECT_EQ(e.ultimaFilaRaton, -1);
    navegacion.clic({2, 3});
    EXPECT_EQ(e.ultimaFilaRaton, 2);
    EXPECT_EQ(e.ultimaColRaton, 3);
    navegacion.clic({-1, -1});
    EXPECT_EQ(e.ultimaFilaRaton, -1);
    EXPECT_EQ(e.ultimaColRaton, -1);
}

TEST_F(PruebaNavegacion, los_errores_del_clic_se_callan) {
    t().Cols(28);
    va(1, 27);
    navegacion.clic({1, 27});
    navegacion.clic({1, 27});
    EXPECT_EQ(e.ultimaColRaton, 27);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaNavegacion, un_error_del_anfitrion_al_cambiar_el_valor_se_calla) {
    p.eventos.al_suceder = [](std::string_view) { lanza(NumError::LlamadaNoValida); };
    va(1, 4);
    navegacion.clic({1, 4});
    navegacion.clic({1, 4});
    EXPECT_EQ(celda(1, 4), "B");
    EXPECT_EQ(e.ultimaFilaRaton, 1);
}

TEST_F(PruebaNavegacion, el_segundo_clic_no_captura) {
    va(1, 4);
    navegacion.clic({1, 4});
    navegacion.clic({1, 4});
    EXPECT_THAT(p.registro, ElementsAre("ACambiadoValorCombo 1 4"));
    EXPECT_EQ(p.pasos.capturas, 0);
}

TEST_F(PruebaNavegacion, el_segundo_clic_en_otra_columna_que_la_actual_no_cambia_nada) {
    navegacion.clic({1, 4});
    va(1, 1);
    navegacion.clic({1, 4});
    EXPECT_EQ(celda(1, 4), "");
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaNavegacion, una_rueda_sin_signo_no_mueve) {
    t().TopRow(2);
    navegacion.rueda(0);
    EXPECT_EQ(t().TopRow(), 2);
}

TEST_F(PruebaNavegacion, la_rueda_no_pasa_de_los_bordes) {
    t().Rows(1000);
    muescas(-1, 2000);
    EXPECT_LE(t().TopRow(), 999);
    EXPECT_GE(t().TopRow(), 998);
    muescas(1, 2000);
    EXPECT_EQ(t().TopRow(), 1);
    EXPECT_THAT(p.registro, IsEmpty());
}

TEST_F(PruebaNavegacion, elegir_un_bloque_ya_elegido_no_se_cuenta) {
    navegacion.elige_bloque(2, 2, 3, 3);
    navegacion.elige_bloque(2, 2, 3, 3);
    EXPECT_THAT(p.registro, ElementsAre("SelChange"));
}

} // namespace

} // namespace Qlt4_Tabla
