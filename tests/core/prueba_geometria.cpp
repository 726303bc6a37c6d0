// SPDX-License-Identifier: MIT
// Geometry of the grid: places, rectangles, hits, borders and scrolling to a cell. All figures are twips.
#include "core/geometria.h"
#include "platform/vista_tablero.h"

#include <gtest/gtest.h>

namespace Qlt4_Tabla {
namespace {

/// 100 rows of 200 and 5 columns: row numbers 300, data 1000, 500, 0 (hidden), 2000. The window is 2300
/// wide and 1300 high: data have 2000 by 1100, so 5 whole rows and half of another.
class Geometria : public testing::Test {
protected:
    VistaNula vista;
    Tablero t{vista};

    Geometria() {
        t.Cols(5);
        t.Rows(100);
        t.alto_normal(200);
        for (int col = 0; const int ancho : {300, 1000, 500, -100, 2000}) t.ColWidth(col++, ancho);
        t.pon_vista(2300, 1300);
    }
};

TEST_F(Geometria, las_columnas_estan_una_tras_otra) {
    EXPECT_EQ(x_columna(t, 0), 0);
    EXPECT_EQ(x_columna(t, 1), 300);
    EXPECT_EQ(x_columna(t, 2), 1300);
    EXPECT_EQ(x_columna(t, 3), 1800);
    EXPECT_EQ(x_columna(t, 4), 1800);
    EXPECT_EQ(x_columna(t, 5), 3800);
    EXPECT_EQ(ancho_total(t), 3800);
}

TEST_F(Geometria, el_desplazamiento_no_mueve_la_columna_0) {
    t.desplazamiento(1200);
    EXPECT_EQ(x_columna(t, 0), 0);
    EXPECT_EQ(x_columna(t, 1), -900);
    EXPECT_EQ(x_columna(t, 2), 100);
    EXPECT_EQ(x_columna(t, 5), 2600);
}

TEST_F(Geometria, las_filas_empiezan_bajo_la_cabecera_con_la_superior) {
    EXPECT_EQ(y_fila(t, 0), 0);
    EXPECT_EQ(y_fila(t, 1), 200);
    EXPECT_EQ(y_fila(t, 4), 800);
    t.TopRow(10);
    EXPECT_EQ(y_fila(t, 0), 0);
    EXPECT_EQ(y_fila(t, 10), 200);
    EXPECT_EQ(y_fila(t, 12), 600);
    EXPECT_EQ(y_fila(t, 9), -200);
}

TEST_F(Geometria, una_fila_bajo_la_ventana_esta_bajo_ella) {
    EXPECT_EQ(y_fila(t, 6), 1200);
    EXPECT_GE(y_fila(t, 7), 1300);
    EXPECT_GE(y_fila(t, 99), 1300);
    t.Rows(1 << 25);
    EXPECT_GE(y_fila(t, (1 << 25) - 1), 1300);
    t.RowHeight(3, 100);
    EXPECT_GE(y_fila(t, (1 << 25) - 1), 1300);
}

TEST_F(Geometria, las_filas_con_alto_propio_mueven_las_de_debajo) {
    t.RowHeight(2, 50);
    t.RowHeight(0, 400);
    EXPECT_EQ(y_fila(t, 1), 400);
    EXPECT_EQ(y_fila(t, 2), 600);
    EXPECT_EQ(y_fila(t, 3), 650);
    EXPECT_EQ(rectangulo_celda(t, 2, 1), (Rectangulo{300, 600, 1000, 50}));
}

TEST_F(Geometria, el_rectangulo_de_una_celda) {
    EXPECT_EQ(rectangulo_celda(t, 2, 4), (Rectangulo{1800, 400, 2000, 200}));
    EXPECT_EQ(rectangulo_celda(t, 2, 3), (Rectangulo{1800, 400, 0, 200}));
    EXPECT_EQ(rectangulo_celda(t, 0, 0), (Rectangulo{0, 0, 300, 200}));
}

TEST_F(Geometria, la_parte_visible_acaba_en_la_ventana) {
    EXPECT_EQ(parte_visible(t, 6, 4), (Rectangulo{1800, 1200, 500, 100}));
    EXPECT_EQ(parte_visible(t, 1, 1), (Rectangulo{300, 200, 1000, 200}));
}

TEST_F(Geometria, la_parte_visible_empieza_tras_lo_fijo) {
    t.desplazamiento(1200);
    EXPECT_EQ(parte_visible(t, 1, 2), (Rectangulo{300, 200, 300, 200}));
    EXPECT_EQ(parte_visible(t, 0, 2), (Rectangulo{300, 0, 300, 200}));
    EXPECT_EQ(parte_visible(t, 1, 0), (Rectangulo{0, 200, 300, 200}));
}

TEST_F(Geometria, lo_que_no_se_ve_no_tiene_parte_visible) {
    t.TopRow(10);
    t.desplazamiento(1000);
    EXPECT_EQ(parte_visible(t, 9, 2), Rectangulo());
    EXPECT_EQ(parte_visible(t, 16, 2), Rectangulo());
    EXPECT_EQ(parte_visible(t, 10, 1), Rectangulo());
    EXPECT_EQ(parte_visible(t, 10, 3), Rectangulo());
    EXPECT_EQ(parte_visible(t, 99, 4), Rectangulo());
}

TEST_F(Geometria, la_celda_bajo_un_punto) {
    EXPECT_EQ(celda_en(t, 0, 0), (Celda{0, 0}));
    EXPECT_EQ(celda_en(t, 299, 199), (Celda{0, 0}));
    EXPECT_EQ(celda_en(t, 300, 199), (Celda{0, 1}));
    EXPECT_EQ(celda_en(t, 299, 200), (Celda{1, 0}));
    EXPECT_EQ(celda_en(t, 1299, 399), (Celda{1, 1}));
    EXPECT_EQ(celda_en(t, 1300, 400), (Celda{2, 2}));
    EXPECT_EQ(celda_en(t, 1800, 1299), (Celda{6, 4}));
}

TEST_F(Geometria, lo_fijo_gana_a_lo_desplazado_detras) {
    t.desplazamiento(1200);
    t.TopRow(10);
    EXPECT_EQ(celda_en(t, 150, 100), (Celda{0, 0}));
    EXPECT_EQ(celda_en(t, 150, 300), (Celda{10, 0}));
    EXPECT_EQ(celda_en(t, 300, 100), (Celda{0, 2}));
    EXPECT_EQ(celda_en(t, 600, 400), (Celda{11, 4}));
}

TEST_F(Geometria, mas_alla_de_la_ultima_no_hay_celda) {
    t.Rows(3);
    EXPECT_EQ(celda_en(t, 400, 599), (Celda{2, 1}));
    EXPECT_EQ(celda_en(t, 400, 600), (Celda{-1, 1}));
    EXPECT_EQ(celda_en(t, 3799, 300), (Celda{1, 4}));
    EXPECT_EQ(celda_en(t, 3800, 300), (Celda{1, -1}));
    EXPECT_EQ(celda_en(t, -1, -1), (Celda{-1, -1}));
    t.RowHeight(1, 100);
    EXPECT_EQ(celda_en(t, 400, 499), (Celda{2, 1}));
    EXPECT_EQ(celda_en(t, 400, 500), (Celda{-1, 1}));
}

TEST_F(Geometria, en_una_rejilla_vacia_no_hay_celda) {
    t.Rows(0);
    t.Cols(0);
    EXPECT_EQ(celda_en(t, 10, 10), (Celda{-1, -1}));
    EXPECT_EQ(celda_mas_cercana(t, 10, 10), (Celda{-1, -1}));
    EXPECT_EQ(borde_en(t, 0, 100), -1);
    EXPECT_EQ(ancho_total(t), 0);
    EXPECT_EQ(ultima_fila_visible(t), 0);
    EXPECT_EQ(fila_superior_maxima(t), 1);
}

TEST_F(Geometria, la_celda_mas_cercana_dentro_es_la_del_punto) {
    EXPECT_EQ(celda_mas_cercana(t, 1300, 400), (Celda{2, 2}));
    EXPECT_EQ(celda_mas_cercana(t, 300, 200), (Celda{1, 1}));
}

TEST_F(Geometria, la_celda_mas_cercana_fuera_es_la_siguiente_que_hay_que_mostrar) {
    t.TopRow(10);
    t.desplazamiento(200);
    EXPECT_EQ(celda_mas_cercana(t, 1300, -50), (Celda{9, 2}));
    EXPECT_EQ(celda_mas_cercana(t, 1300, 199), (Celda{9, 2}));
    EXPECT_EQ(celda_mas_cercana(t, 1300, 1300), (Celda{15, 2})); // half seen
    EXPECT_EQ(celda_mas_cercana(t, 1300, 99999), (Celda{15, 2}));
    EXPECT_EQ(celda_mas_cercana(t, 100, 300), (Celda{10, 1})); // partly behind the row numbers
    EXPECT_EQ(celda_mas_cercana(t, -9999, 300), (Celda{10, 1}));
    EXPECT_EQ(celda_mas_cercana(t, 2300, 300), (Celda{10, 4}));
}

TEST_F(Geometria, la_celda_mas_cercana_pasa_a_la_fila_y_columna_de_al_lado) {
    t.pon_vista(2300, 1200); // 5 whole rows
    EXPECT_EQ(celda_mas_cercana(t, 400, 1200), (Celda{6, 1}));
    t.desplazamiento(1000); // column 1 just gone, column 2 at the edge
    EXPECT_EQ(celda_mas_cercana(t, 0, 300), (Celda{1, 1}));
    t.desplazamiento(1500); // column 4 fills the rest
    EXPECT_EQ(celda_mas_cercana(t, 0, 300), (Celda{1, 2}));
}

TEST_F(Geometria, la_celda_mas_cercana_se_queda_en_los_datos) {
    t.Rows(3);
    EXPECT_EQ(celda_mas_cercana(t, 0, 0), (Celda{1, 1}));
    EXPECT_EQ(celda_mas_cercana(t, 400, 1000), (Celda{2, 1}));
    t.ColWidth(4, 100);
    EXPECT_EQ(celda_mas_cercana(t, 2200, 300), (Celda{1, 4}));
    t.Rows(1);
    EXPECT_EQ(celda_mas_cercana(t, 400, 1000), (Celda{-1, 1}));
}

TEST_F(Geometria, el_borde_derecho_de_una_columna) {
    EXPECT_EQ(borde_en(t, 300, 50), 0);
    EXPECT_EQ(borde_en(t, 250, 50), 0);
    EXPECT_EQ(borde_en(t, 249, 50), -1);
    EXPECT_EQ(borde_en(t, 350, 50), 0);
    EXPECT_EQ(borde_en(t, 351, 50), -1);
    EXPECT_EQ(borde_en(t, 1300, 50), 1);
    EXPECT_EQ(borde_en(t, 3800, 0), 4);
}

TEST_F(Geometria, una_columna_sin_ancho_no_tiene_borde) {
    EXPECT_EQ(borde_en(t, 1800, 50), 2);
    t.ColWidth(2, 0);
    EXPECT_EQ(borde_en(t, 1300, 50), 1);
    t.ColWidth(0, 0);
    EXPECT_EQ(borde_en(t, 0, 50), -1);
}

TEST_F(Geometria, entre_dos_bordes_vale_el_mas_cercano) {
    t.ColWidth(2, 60);
    EXPECT_EQ(borde_en(t, 1320, 50), 1);
    EXPECT_EQ(borde_en(t, 1340, 50), 2);
}

TEST_F(Geometria, un_borde_detras_de_lo_fijo_no_se_coge) {
    t.desplazamiento(1000);
    EXPECT_EQ(borde_en(t, 300, 50), 0);
    t.desplazamiento(1050);
    EXPECT_EQ(borde_en(t, 250, 10), -1);
}

TEST_F(Geometria, cuantas_filas_caben) {
    EXPECT_EQ(filas_visibles(t), 5);
    EXPECT_EQ(ultima_fila_visible(t), 6);
    t.pon_vista(2300, 1200);
    EXPECT_EQ(filas_visibles(t), 5);
    EXPECT_EQ(ultima_fila_visible(t), 5);
    t.TopRow(97);
    EXPECT_EQ(filas_visibles(t), 5); // also beyond the end
    EXPECT_EQ(ultima_fila_visible(t), 99);
    t.pon_vista(2300, 100);
    EXPECT_EQ(filas_visibles(t), 1);
    EXPECT_EQ(ultima_fila_visible(t), 97);
}

TEST_F(Geometria, cuantas_filas_caben_con_altos_propios) {
    t.RowHeight(2, 600);
    EXPECT_EQ(filas_visibles(t), 3); // 200 + 600 + 200 of 1100
    EXPECT_EQ(ultima_fila_visible(t), 4);
    t.TopRow(2);
    EXPECT_EQ(filas_visibles(t), 3);
    t.TopRow(98);
    EXPECT_EQ(filas_visibles(t), 5);
    t.RowHeight(98, 5000);
    EXPECT_EQ(filas_visibles(t), 1);
}

TEST_F(Geometria, al_crecer_la_ventana_vuelven_las_filas_de_arriba) {
    t.TopRow(95); // 95 to 99 fill the five whole rows
    t.pon_vista(2300, 1700); // seven
    EXPECT_EQ(t.TopRow(), 93);
    t.pon_vista(2300, 1200); // five: what was on top stays there
    EXPECT_EQ(t.TopRow(), 93);
    t.pon_vista(2300, 1600);
    EXPECT_EQ(t.TopRow(), 93);
    t.pon_vista(2300, 100000);
    EXPECT_EQ(t.TopRow(), 1);
}

TEST_F(Geometria, en_medio_crecer_la_ventana_no_mueve_filas) {
    t.TopRow(50);
    t.pon_vista(2300, 6000);
    EXPECT_EQ(t.TopRow(), 50);
}

TEST_F(Geometria, un_hueco_que_ya_estaba_se_queda) {
    t.TopRow(98); // by the host: 98 and 99, and room for three
    t.pon_vista(2300, 1700);
    EXPECT_EQ(t.TopRow(), 98);
}

TEST_F(Geometria, con_filas_mas_bajas_tambien_vuelven) {
    t.TopRow(95);
    t.alto_normal(100); // the header too: twelve rows
    EXPECT_EQ(t.TopRow(), 88);
}

TEST_F(Geometria, la_fila_superior_maxima_muestra_la_ultima_abajo) {
    EXPECT_EQ(fila_superior_maxima(t), 95);
    t.RowHeight(98, 500);
    EXPECT_EQ(fila_superior_maxima(t), 96);
    t.RowHeight(99, 5000);
    EXPECT_EQ(fila_superior_maxima(t), 99);
    t.Rows(3);
    EXPECT_EQ(fila_superior_maxima(t), 1);
}

TEST_F(Geometria, mostrar_una_celda_que_se_ve_no_desplaza) {
    t.TopRow(10);
    t.desplazamiento(1000);
    muestra_celda(t, 14, 2);
    muestra_celda(t, 0, 0);
    EXPECT_EQ(t.TopRow(), 10);
    EXPECT_EQ(t.desplazamiento(), 1000);
}

TEST_F(Geometria, mostrar_una_fila_desplaza_lo_justo) {
    muestra_celda(t, 6, 1); // was half seen
    EXPECT_EQ(t.TopRow(), 2);
    muestra_celda(t, 50, 1);
    EXPECT_EQ(t.TopRow(), 46);
    muestra_celda(t, 40, 1);
    EXPECT_EQ(t.TopRow(), 40);
    muestra_celda(t, 99, 1);
    EXPECT_EQ(t.TopRow(), 95);
}

TEST_F(Geometria, mostrar_una_fila_cuenta_con_los_altos) {
    t.RowHeight(48, 700);
    muestra_celda(t, 50, 1);
    EXPECT_EQ(t.TopRow(), 48);
    t.RowHeight(60, 5000); // higher than the window
    muestra_celda(t, 60, 1);
    EXPECT_EQ(t.TopRow(), 60);
}

TEST_F(Geometria, mostrar_una_columna_desplaza_lo_justo) {
    t.ColWidth(4, 1800);
    muestra_celda(t, 1, 4);
    EXPECT_EQ(t.desplazamiento(), 1300);
    muestra_celda(t, 1, 2);
    EXPECT_EQ(t.desplazamiento(), 1000);
    muestra_celda(t, 1, 1);
    EXPECT_EQ(t.desplazamiento(), 0);
}

TEST_F(Geometria, de_una_columna_mas_ancha_que_la_ventana_se_muestra_el_principio) {
    t.ColWidth(4, 3000);
    muestra_celda(t, 1, 4);
    EXPECT_EQ(t.desplazamiento(), 1500);
    EXPECT_EQ(x_columna(t, 4), 300);
}

TEST_F(Geometria, sin_ventana_no_se_desplaza_nada) {
    t.pon_vista(0, 0);
    muestra_celda(t, 50, 4);
    EXPECT_EQ(t.TopRow(), 1);
    EXPECT_EQ(t.desplazamiento(), 0);
}

// With heights of their own or without, equal heights give equal places.
TEST_F(Geometria, sumar_altos_da_lo_mismo_que_multiplicar) {
    VistaNula otra_vista;
    Tablero con_altos(otra_vista);
    con_altos.Cols(5);
    con_altos.Rows(100);
    con_altos.alto_normal(200);
    con_altos.RowHeight(99, 200);
    for (const int alto : {0, 150, 1199, 1200, 1201, 1300, 50'000}) {
        for (const int superior : {1, 2, 94, 95, 96, 99}) {
            for (Tablero* rejilla : {&t, &con_altos}) {
                rejilla->pon_vista(2300, alto);
                rejilla->TopRow(superior);
            }
            ASSERT_EQ(filas_visibles(t), filas_visibles(con_altos)) << alto << " " << superior;
            ASSERT_EQ(ultima_fila_visible(t), ultima_fila_visible(con_altos)) << alto << " " << superior;
            ASSERT_EQ(fila_superior_maxima(t), fila_superior_maxima(con_altos)) << alto;
            for (const int fila : {0, 1, 2, 50, 95, 99}) ASSERT_EQ(y_fila(t, fila), y_fila(con_altos, fila));
            for (const int y : {0, 199, 200, 399, 400, 1299, 30'000})
                ASSERT_EQ(celda_en(t, 0, y).fila, celda_en(con_altos, 0, y).fila);
            for (const int fila : {1, 50, 99}) {
                muestra_celda(t, fila, 1);
                muestra_celda(con_altos, fila, 1);
                ASSERT_EQ(t.TopRow(), con_altos.TopRow()) << alto << " " << fila;
            }
        }
    }
}

} // namespace
} // namespace Qlt4_Tabla
