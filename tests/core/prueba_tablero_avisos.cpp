// SPDX-License-Identifier: MIT
// Tablero: exactly which notices a view gets, one by one and joined; an extra one fails like a missing one.
// The words are those of headless/vista_memoria.h.
#include "core/tablero.h"
#include "headless/vista_memoria.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Qlt4_Tabla {
namespace {

using Avisos = std::vector<std::string>;

struct ImagenAvisada final : Imagen {};

class Avisos_de_rejilla : public testing::Test {
protected:
    VistaMemoria vista;
    Tablero t{vista};

    /// 6 rows, numbered, and 4 columns of 960 twips in a window of 2000; nothing told so far.
    Avisos_de_rejilla() {
        t.Cols(4);
        t.Rows(6);
        t.numera_filas();
        t.pon_vista(2000, 1500);
        vista.recoge();
    }

    template <class Hace>
    Avisos de(const Hace& hace) {
        hace();
        return vista.recoge();
    }
};

TEST_F(Avisos_de_rejilla, una_celda_que_cambia) {
    EXPECT_EQ(de([&] { t.TextMatrix(2, 1, "x"); }), Avisos({"celdas 2 1 2 1"}));
    EXPECT_EQ(de([&] { t.TextMatrix(2, 1, "x"); }), Avisos());
    EXPECT_EQ(de([&] { t.TextMatrix(3, 0, "3"); }), Avisos());
}

TEST_F(Avisos_de_rejilla, una_fila_que_se_escribe_de_una_vez) {
    const std::vector<std::string_view> textos{"a", "", "b"};
    EXPECT_EQ(de([&] { t.pon_fila(2, 1, textos); }), Avisos({"celdas 2 1 2 3"}));
    EXPECT_EQ(de([&] { t.pon_fila(2, 1, textos); }), Avisos());
    EXPECT_EQ(de([&] { t.pon_fila(2, 1, {}); }), Avisos());
}

TEST_F(Avisos_de_rejilla, filas_de_distinto_ancho_avisan_hasta_la_mas_ancha_que_cambia) {
    const std::vector<std::vector<std::string_view>> filas{{"a"}, {"b", "c"}, {"d", "", ""}};
    const auto da = [&](int fila) { return std::span(filas[static_cast<std::size_t>(fila - 2)]); };
    EXPECT_EQ(de([&] { t.pon_filas({2, 1, 4, 3}, da); }), Avisos({"celdas 2 1 4 3"}));
    EXPECT_EQ(de([&] { t.pon_filas({2, 1, 4, 3}, da); }), Avisos());
    t.TextMatrix(2, 1, "x");
    t.TextMatrix(3, 2, "x");
    t.TextMatrix(4, 3, "z");
    vista.recoge();
    EXPECT_EQ(de([&] { t.pon_filas({2, 1, 3, 3}, da); }), Avisos({"celdas 2 1 3 2"}));
    EXPECT_EQ(t.TextMatrix(4, 3), "z"); // beyond what is written
}

TEST_F(Avisos_de_rejilla, todas_las_celdas_de_una_vez) {
    AlmacenCeldas celdas;
    celdas.pon_columnas(3);
    celdas.pon_filas(5);
    celdas.numera();
    celdas.pon_texto(2, 1, "dos");
    t.TextMatrix(3, 1, "viejo");
    t.ColWidth(1, 700);
    t.selecciona(5, 3, 5, 3);
    vista.recoge();
    EXPECT_EQ(de([&] { t.pon_celdas(std::move(celdas)); }), Avisos({"todo", "seleccion"}));
    EXPECT_EQ(t.Rows(), 5);
    EXPECT_EQ(t.Cols(), 3);
    EXPECT_EQ(t.TextMatrix(2, 1), "dos");
    EXPECT_EQ(t.TextMatrix(3, 1), "");
    EXPECT_EQ(t.TextMatrix(4, 0), "4");
    EXPECT_EQ(t.ColWidth(1), 700);
    EXPECT_EQ(t.seleccion(), (Bloque{4, 2, 4, 2}));
}

TEST_F(Avisos_de_rejilla, una_columna_que_se_transforma) {
    const auto en_3_y_4 = [](int fila, std::string_view, std::string& nuevo) {
        nuevo = "x";
        return fila == 3 || fila == 4;
    };
    EXPECT_EQ(de([&] { t.transforma_columna(1, 1, 5, en_3_y_4); }), Avisos({"celdas 3 1 4 1"}));
    EXPECT_EQ(de([&] { t.transforma_columna(1, 1, 5, en_3_y_4); }), Avisos());
}

TEST_F(Avisos_de_rejilla, una_transformacion_que_falla_avisa_de_todo_lo_que_pudo_cambiar) {
    const auto falla = [](int, std::string_view, std::string&) -> bool { throw std::runtime_error("no"); };
    EXPECT_EQ(de([&] { EXPECT_THROW(t.transforma_columna(1, 2, 5, falla), std::runtime_error); }),
        Avisos({"celdas 2 1 5 1"}));
}

TEST_F(Avisos_de_rejilla, filas_que_crecen_y_menguan_por_el_final) {
    EXPECT_EQ(de([&] { t.Rows(8); }), Avisos({"filas+ 6 2"}));
    EXPECT_EQ(de([&] { t.Rows(8); }), Avisos());
    EXPECT_EQ(de([&] { t.Rows(5); }), Avisos({"filas- 5 3"}));
}

TEST_F(Avisos_de_rejilla, filas_insertadas_y_los_numeros_que_bajan) {
    EXPECT_EQ(de([&] { t.inserta_filas(2, 3); }), Avisos({"filas+ 2 3", "celdas 5 0 8 0"}));
    EXPECT_EQ(de([&] { t.numera_filas(); }), Avisos({"celdas 2 0 4 0"}));
    EXPECT_EQ(de([&] { t.numera_filas(); }), Avisos());
    EXPECT_EQ(de([&] { t.inserta_filas(2, 0); }), Avisos());
}

TEST_F(Avisos_de_rejilla, filas_borradas_y_los_numeros_que_suben) {
    EXPECT_EQ(de([&] { t.borra_filas(2, 3); }), Avisos({"filas- 2 3", "celdas 2 0 2 0"}));
    EXPECT_EQ(de([&] { t.numera_filas(); }), Avisos());
}

TEST_F(Avisos_de_rejilla, varias_filas_borradas) {
    EXPECT_EQ(de([&] {
        t.borra_varias_filas(std::vector<int>{1, 2});
    }),
        Avisos({"filas- 1 2", "celdas 1 0 3 0"}));
    EXPECT_EQ(de([&] { t.borra_varias_filas(std::vector<int>{1, 3}); }), Avisos({"todo", "celdas 1 0 1 0"}));
    EXPECT_EQ(de([&] { t.borra_varias_filas({}); }), Avisos());
}

TEST_F(Avisos_de_rejilla, menguar_avisa_de_la_celda_y_de_la_fila_superior_si_se_mueven) {
    t.selecciona(5, 3, 5, 3);
    t.TopRow(5);
    vista.recoge();
    EXPECT_EQ(de([&] { t.Rows(3); }), Avisos({"filas- 3 3", "seleccion", "desplazada"}));
    EXPECT_EQ(de([&] { t.Cols(3); }), Avisos({"columnas", "seleccion"}));
    EXPECT_EQ(de([&] { t.Cols(3); }), Avisos());
}

TEST_F(Avisos_de_rejilla, la_seleccion) {
    EXPECT_EQ(de([&] { t.Row(2); }), Avisos({"seleccion"}));
    EXPECT_EQ(de([&] { t.Row(2); }), Avisos());
    EXPECT_EQ(de([&] { t.selecciona(1, 1, 2, 2); }), Avisos({"seleccion"}));
    EXPECT_EQ(de([&] { t.RowSel(2); }), Avisos());
    EXPECT_EQ(de([&] { t.ColSel(3); }), Avisos({"seleccion"}));
    EXPECT_EQ(de([&] { t.modo_seleccion(ModoSeleccion::PorFilas); }), Avisos());
}

TEST_F(Avisos_de_rejilla, la_parte_que_se_ve) {
    EXPECT_EQ(de([&] { t.TopRow(3); }), Avisos({"desplazada"}));
    EXPECT_EQ(de([&] { t.TopRow(3); }), Avisos());
    EXPECT_EQ(de([&] { t.desplazamiento(500); }), Avisos({"desplazada"}));
    EXPECT_EQ(de([&] { t.pon_vista(3500, 1500); }), Avisos({"desplazada"}));
    EXPECT_EQ(de([&] { t.pon_vista(3500, 1800); }), Avisos());
}

TEST_F(Avisos_de_rejilla, anchos_altos_y_alineaciones) {
    EXPECT_EQ(de([&] { t.ColWidth(2, 500); }), Avisos({"ancho 2"}));
    EXPECT_EQ(de([&] { t.ColWidth(2, 500); }), Avisos());
    EXPECT_EQ(de([&] { t.ColAlignment(2, AlineacionCelda::Derecha); }), Avisos({"columnas"}));
    EXPECT_EQ(de([&] { t.ColAlignment(2, AlineacionCelda::Derecha); }), Avisos());
    EXPECT_EQ(de([&] { t.RowHeight(3, 500); }), Avisos({"alto 3"}));
    EXPECT_EQ(de([&] { t.RowHeight(3, 500); }), Avisos());
    EXPECT_EQ(de([&] { t.alto_normal(500); }), Avisos({"alto -1"}));
    EXPECT_EQ(de([&] { t.alto_normal(500); }), Avisos());
}

TEST_F(Avisos_de_rejilla, estrechar_una_columna_puede_desplazar) {
    t.desplazamiento(1840);
    vista.recoge();
    EXPECT_EQ(de([&] { t.ColWidth(3, 900); }), Avisos({"ancho 3", "desplazada"}));
}

TEST_F(Avisos_de_rejilla, colores_e_imagenes) {
    const auto imagen = std::make_shared<ImagenAvisada>();
    EXPECT_EQ(de([&] { t.color_fondo({1, 1, 3, 2}, 5); }), Avisos({"celdas 1 1 3 2"}));
    EXPECT_EQ(de([&] { t.color_fondo({1, 1, 3, 2}, 5); }), Avisos());
    EXPECT_EQ(de([&] { t.color_texto({1, 1, 1, 1}, 5); }), Avisos({"celdas 1 1 1 1"}));
    EXPECT_EQ(de([&] { t.color_texto({1, 1, 1, 1}, 5); }), Avisos());
    EXPECT_EQ(de([&] { t.CellBackColor(7); }), Avisos({"celdas 0 0 0 0"}));
    EXPECT_EQ(de([&] { t.CellPicture(2, 2, imagen); }), Avisos({"celdas 2 2 2 2"}));
    EXPECT_EQ(de([&] { t.CellPicture(2, 2, imagen); }), Avisos());
}

TEST_F(Avisos_de_rejilla, fusiones) {
    EXPECT_EQ(de([&] { t.MergeCells(1); }), Avisos({"fusion"}));
    EXPECT_EQ(de([&] { t.MergeCells(1); }), Avisos());
    EXPECT_EQ(de([&] { t.MergeCol(1, true); }), Avisos({"fusion"}));
    EXPECT_EQ(de([&] { t.MergeCol(1, true); }), Avisos());
    EXPECT_EQ(de([&] { t.MergeCol(9, true); }), Avisos());
}

// Held back

class Avisos_unidos : public Avisos_de_rejilla {
protected:
    template <class Hace>
    Avisos juntos(const Hace& hace) {
        t.Redraw(false);
        hace();
        EXPECT_EQ(vista.recoge(), Avisos());
        t.Redraw(true);
        return vista.recoge();
    }
};

TEST_F(Avisos_unidos, sin_cambios_no_hay_aviso) {
    EXPECT_EQ(juntos([] {}), Avisos());
}

TEST_F(Avisos_unidos, las_celdas_se_unen_en_un_rectangulo) {
    EXPECT_EQ(juntos([&] {
        t.TextMatrix(4, 1, "a");
        t.TextMatrix(2, 3, "b");
        t.color_fondo({3, 2, 3, 2}, 5);
    }),
        Avisos({"celdas 2 1 4 3"}));
    EXPECT_EQ(juntos([&] { t.TextMatrix(5, 1, "a"); }), Avisos({"celdas 5 1 5 1"}));
}

TEST_F(Avisos_unidos, filas_insertadas_o_borradas_una_vez_y_las_celdas_de_despues) {
    EXPECT_EQ(juntos([&] { t.inserta_filas(3, 2); }), Avisos({"filas+ 3 2", "celdas 5 0 7 0"}));
    EXPECT_EQ(juntos([&] { t.borra_filas(3, 2); }), Avisos({"filas- 3 2", "celdas 3 0 5 0"}));
    EXPECT_EQ(juntos([&] { t.Rows(7); }), Avisos({"filas+ 6 1"}));
    EXPECT_EQ(juntos([&] {
        t.inserta_filas(3, 1);
        t.TextMatrix(2, 3, "x");
        t.Row(5);
    }),
        Avisos({"filas+ 3 1", "celdas 2 0 7 3", "seleccion"}));
}

TEST_F(Avisos_unidos, filas_dos_veces_o_tras_otro_cambio_lo_cambian_todo) {
    EXPECT_EQ(juntos([&] { t.inserta_filas(3, 1), t.inserta_filas(3, 1); }), Avisos({"todo"}));
    EXPECT_EQ(juntos([&] { t.borra_filas(3, 1), t.borra_filas(3, 1); }), Avisos({"todo"}));
    EXPECT_EQ(juntos([&] { t.TextMatrix(1, 1, "x"), t.borra_filas(3, 1); }), Avisos({"todo"}));
    EXPECT_EQ(juntos([&] { t.borra_filas(3, 1), t.ColWidth(1, 5); }), Avisos({"todo"}));
    EXPECT_EQ(juntos([&] { t.TextMatrix(1, 2, "y"); }), Avisos({"celdas 1 2 1 2"}));
}

TEST_F(Avisos_unidos, una_sola_clase_se_dice_como_tal) {
    EXPECT_EQ(juntos([&] { t.ColWidth(1, 5), t.ColWidth(1, 6); }), Avisos({"ancho 1"}));
    EXPECT_EQ(juntos([&] { t.RowHeight(2, 5), t.RowHeight(2, 6); }), Avisos({"alto 2"}));
    EXPECT_EQ(juntos([&] { t.alto_normal(5); }), Avisos({"alto -1"}));
    EXPECT_EQ(juntos([&] { t.Cols(5), t.Cols(6); }), Avisos({"columnas"}));
    EXPECT_EQ(juntos([&] { t.MergeCells(1), t.MergeCol(1, true); }), Avisos({"fusion"}));
}

TEST_F(Avisos_unidos, varias_clases_lo_cambian_todo) {
    EXPECT_EQ(juntos([&] { t.ColWidth(1, 5), t.ColWidth(2, 6); }), Avisos({"todo"}));
    EXPECT_EQ(juntos([&] { t.RowHeight(1, 5), t.RowHeight(2, 6); }), Avisos({"todo"}));
    EXPECT_EQ(juntos([&] { t.MergeCells(1), t.TextMatrix(1, 1, "x"); }), Avisos({"todo"}));
}

TEST_F(Avisos_unidos, la_seleccion_y_el_desplazamiento_se_dicen_aparte_y_despues) {
    EXPECT_EQ(juntos([&] {
        t.Row(3);
        t.TopRow(2);
        t.TextMatrix(1, 1, "x");
        t.desplazamiento(100);
        t.Col(2);
    }),
        Avisos({"celdas 1 1 1 1", "seleccion", "desplazada"}));
}

TEST_F(Avisos_unidos, lo_que_vuelve_a_su_sitio_no_se_dice) {
    EXPECT_EQ(juntos([&] {
        t.selecciona(3, 3, 4, 1);
        t.TopRow(4);
        t.selecciona(0, 0, 0, 0);
        t.TopRow(1);
    }),
        Avisos());
}

TEST_F(Avisos_unidos, el_interruptor_no_cuenta_las_veces) {
    t.Redraw(false);
    t.Redraw(false);
    t.TextMatrix(1, 1, "x");
    t.Redraw(true);
    EXPECT_TRUE(t.Redraw());
    EXPECT_EQ(vista.recoge(), Avisos({"celdas 1 1 1 1"}));
    t.Redraw(true);
    EXPECT_EQ(vista.recoge(), Avisos());
}

TEST_F(Avisos_unidos, lo_que_sigue_al_encender_se_dice_al_momento) {
    juntos([&] { t.TextMatrix(1, 1, "x"); });
    EXPECT_EQ(de([&] { t.TextMatrix(2, 2, "y"); }), Avisos({"celdas 2 2 2 2"}));
    EXPECT_EQ(juntos([&] { t.TextMatrix(3, 3, "z"); }), Avisos({"celdas 3 3 3 3"}));
}

} // namespace
} // namespace Qlt4_Tabla
