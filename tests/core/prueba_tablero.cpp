// SPDX-License-Identifier: MIT
// Tablero: counts, current cell, selection, scrolling, looks, pictures and errors. Its notices are in
// prueba_tablero_avisos.cpp, the format string in prueba_tablero_formato.cpp.
#include "base/error.h"
#include "core/tablero.h"
#include "platform/vista_tablero.h"
#include "tests/core/memoria_que_falla.h"

#include <gtest/gtest.h>

#include <limits>

namespace Qlt4_Tabla {
namespace {

using Textos = std::vector<std::string>;

template <class Hace>
int error_de(const Hace& hace) {
    try {
        hace();
        return 0;
    } catch (const Error& e) {
        return e.numero();
    }
}

class Rejilla : public testing::Test {
protected:
    VistaNula vista;
    Tablero t{vista};

    void pon_tamano(int filas, int columnas) {
        t.Cols(columnas);
        t.Rows(filas);
        t.numera_filas();
    }

    Textos columna(int col) {
        Textos textos;
        for (int f = 0; f < t.Rows(); ++f) textos.emplace_back(t.TextMatrix(f, col));
        return textos;
    }

    std::vector<int> cursor() { return {t.Row(), t.Col(), t.RowSel(), t.ColSel()}; }
};

struct UnaImagen final : Imagen {};

// Counts

TEST_F(Rejilla, nace_vacia_con_la_celda_0_0) {
    EXPECT_EQ(t.Rows(), 0);
    EXPECT_EQ(t.Cols(), 0);
    EXPECT_EQ(cursor(), std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(t.TopRow(), 1);
    EXPECT_TRUE(t.Redraw());
}

TEST_F(Rejilla, una_columna_nueva_mide_960_alinea_a_la_izquierda_y_no_funde) {
    pon_tamano(2, 3);
    EXPECT_EQ(t.ColWidth(2), 960);
    EXPECT_EQ(t.ColAlignment(2), AlineacionCelda::Izquierda);
    EXPECT_FALSE(t.MergeCol(2));
}

TEST_F(Rejilla, crecer_no_mueve_la_celda_actual) {
    pon_tamano(3, 3);
    t.selecciona(1, 2, 2, 1);
    t.Rows(10);
    t.Cols(10);
    EXPECT_EQ(cursor(), std::vector<int>({1, 2, 2, 1}));
}

TEST_F(Rejilla, menguar_trae_adentro_la_celda_la_seleccion_y_la_fila_superior) {
    pon_tamano(10, 5);
    t.selecciona(8, 4, 9, 3);
    t.TopRow(9);
    t.Rows(5);
    EXPECT_EQ(cursor(), std::vector<int>({4, 4, 4, 3}));
    EXPECT_EQ(t.TopRow(), 4);
    t.Cols(2);
    EXPECT_EQ(cursor(), std::vector<int>({4, 1, 4, 1}));
}

TEST_F(Rejilla, con_solo_la_cabecera_la_fila_actual_es_la_0) {
    pon_tamano(10, 5);
    t.selecciona(8, 4, 9, 3);
    t.Rows(1);
    EXPECT_EQ(cursor(), std::vector<int>({0, 4, 0, 3}));
    EXPECT_EQ(t.TopRow(), 1);
}

TEST_F(Rejilla, quitar_filas_conserva_el_indice_de_la_actual_si_cabe) {
    pon_tamano(10, 2);
    t.Row(5);
    t.borra_filas(1, 2);
    EXPECT_EQ(t.Row(), 5);
    t.borra_filas(1, 5);
    EXPECT_EQ(t.Row(), 2);
}

TEST_F(Rejilla, los_tamanos_imposibles_dan_error_y_no_cambian_nada) {
    pon_tamano(4, 3);
    t.TextMatrix(1, 1, "x");
    EXPECT_EQ(error_de([&] { t.Rows(-1); }), 5);
    EXPECT_EQ(error_de([&] { t.Cols(-1); }), 5);
    EXPECT_EQ(error_de([&] { t.Rows((1 << 28) / 3 + 1); }), 7);
    EXPECT_EQ(error_de([&] { t.Cols((1 << 28) / 4 + 1); }), 7);
    EXPECT_EQ(error_de([&] { t.Rows(std::numeric_limits<int>::max()); }), 7);
    EXPECT_EQ(error_de([&] { t.inserta_filas(1, std::numeric_limits<int>::max()); }), 7);
    EXPECT_EQ(t.Rows(), 4);
    EXPECT_EQ(t.Cols(), 3);
    EXPECT_EQ(t.TextMatrix(1, 1), "x");
}

TEST_F(Rejilla, caben_2_elevado_a_28_celdas) {
    pon_tamano(1 << 24, 16);
    t.TextMatrix((1 << 24) - 1, 15, "fin");
    EXPECT_EQ(t.TextMatrix((1 << 24) - 1, 15), "fin");
    EXPECT_EQ(t.TextMatrix((1 << 24) - 1, 0), "16777215");
    EXPECT_EQ(error_de([&] { t.Rows((1 << 24) + 1); }), 7);
}

TEST_F(Rejilla, sin_memoria_da_error_7_y_no_cambia_nada) {
    pon_tamano(300, 3);
    for (int f = 0; f < 300; ++f) t.TextMatrix(f, 1, "texto");
    const auto imagen = std::make_shared<UnaImagen>();
    const std::string largo(1000, 'x');
    const std::vector<std::function<void()>> llamadas{
        [&] { t.inserta_filas(60, 1000); },
        [&] { t.Rows(2000); },
        [&] { t.Cols(2000); },
        [&] { t.TextMatrix(1, 1, largo); },
        [&] {
            t.color_fondo({1, 1, 1, 1}, 5);
        },
        [&] { t.RowHeight(1, 5); },
        [&] { t.CellPicture(1, 1, imagen); },
    };
    for (std::size_t i = 0; i < llamadas.size(); ++i) {
        falla_tras(0);
        EXPECT_EQ(error_de(llamadas[i]), 7) << i;
    }
    falla_tras(-1);
    EXPECT_EQ(t.Rows(), 300);
    EXPECT_EQ(t.Cols(), 3);
    EXPECT_EQ(t.TextMatrix(1, 1), "texto");
    EXPECT_FALSE(t.tiene_fondo(1, 1));
    EXPECT_FALSE(t.hay_altos());
    EXPECT_EQ(t.CellPicture(1, 1), nullptr);
}

// Errors outside the grid

TEST_F(Rejilla, fuera_de_la_rejilla_da_error_9) {
    pon_tamano(3, 2);
    const std::vector<std::string_view> dos{"a", "b"};
    const auto nada = [](int, std::string_view, std::string&) { return false; };
    const std::vector<std::function<void()>> llamadas{
        [&] { t.Row(3); },
        [&] { t.Row(-1); },
        [&] { t.Col(2); },
        [&] { t.Col(-1); },
        [&] { t.RowSel(3); },
        [&] { t.ColSel(2); },
        [&] { t.selecciona(1, 1, 3, 1); },
        [&] { t.selecciona(1, 2, 1, 1); },
        [&] { static_cast<void>(t.TextMatrix(3, 0)); },
        [&] { static_cast<void>(t.TextMatrix(0, -1)); },
        [&] { t.TextMatrix(3, 0, "x"); },
        [&] { t.TextMatrix(0, 2, "x"); },
        [&] { t.pon_fila(1, 1, dos); },
        [&] { t.transforma_columna(1, 1, 3, nada); },
        [&] { t.transforma_columna(2, 1, 2, nada); },
        [&] { static_cast<void>(t.ColWidth(2)); },
        [&] { t.ColWidth(-1, 5); },
        [&] { static_cast<void>(t.ancho_visible(2)); },
        [&] { static_cast<void>(t.ColAlignment(2)); },
        [&] { t.ColAlignment(2, AlineacionCelda::Centro); },
        [&] { static_cast<void>(t.RowHeight(3)); },
        [&] { t.RowHeight(3, 100); },
        [&] { static_cast<void>(t.color_texto(3, 0)); },
        [&] {
            t.color_texto({1, 1, 3, 1}, 5);
        },
        [&] { static_cast<void>(t.color_fondo(0, 2)); },
        [&] { static_cast<void>(t.tiene_fondo(0, 2)); },
        [&] {
            t.color_fondo({1, 1, 1, 2}, 5);
        },
        [&] { static_cast<void>(t.CellPicture(3, 1)); },
        [&] { t.CellPicture(0, 2, std::make_shared<UnaImagen>()); },
        [&] { t.inserta_filas(4, 1); },
        [&] { t.inserta_filas(-1, 1); },
        [&] { t.borra_filas(3, 1); },
        [&] { t.borra_filas(1, 3); },
        [&] {
            t.borra_varias_filas(std::vector<int>{1, 3});
        },
    };
    for (std::size_t i = 0; i < llamadas.size(); ++i) EXPECT_EQ(error_de(llamadas[i]), 9) << i;
    EXPECT_EQ(cursor(), std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(t.Rows(), 3);
}

TEST_F(Rejilla, en_una_rejilla_vacia_colorear_la_celda_actual_da_error_9) {
    EXPECT_EQ(error_de([&] { t.CellBackColor(5); }), 9);
    EXPECT_EQ(error_de([&] { static_cast<void>(t.CellForeColor()); }), 9);
}

// The current cell and the selection

TEST_F(Rejilla, Row_mueve_RowSel_y_Col_mueve_ColSel) {
    pon_tamano(9, 9);
    t.selecciona(1, 2, 3, 4);
    t.Row(5);
    EXPECT_EQ(cursor(), std::vector<int>({5, 2, 5, 4}));
    t.Col(6);
    EXPECT_EQ(cursor(), std::vector<int>({5, 6, 5, 6}));
}

TEST_F(Rejilla, RowSel_y_ColSel_se_mueven_solas) {
    pon_tamano(9, 9);
    t.RowSel(5);
    t.ColSel(6);
    EXPECT_EQ(cursor(), std::vector<int>({0, 0, 5, 6}));
}

TEST_F(Rejilla, la_seleccion_es_ascendente_en_cualquier_orden) {
    pon_tamano(9, 9);
    t.selecciona(5, 2, 1, 7);
    EXPECT_EQ(t.seleccion(), (Bloque{1, 2, 5, 7}));
}

// What is seen

TEST_F(Rejilla, TopRow_queda_entre_1_y_la_ultima_fila) {
    pon_tamano(5, 2);
    t.TopRow(0);
    EXPECT_EQ(t.TopRow(), 1);
    t.TopRow(99);
    EXPECT_EQ(t.TopRow(), 4);
    t.Rows(1);
    t.TopRow(3);
    EXPECT_EQ(t.TopRow(), 1);
}

TEST_F(Rejilla, el_desplazamiento_no_pasa_de_lo_que_sobra_de_ancho) {
    pon_tamano(2, 5); // 4800 twips
    t.pon_vista(3000, 1000);
    t.desplazamiento(-5);
    EXPECT_EQ(t.desplazamiento(), 0);
    t.desplazamiento(9999);
    EXPECT_EQ(t.desplazamiento(), 1800);
    t.ColWidth(4, 460);
    EXPECT_EQ(t.desplazamiento(), 1300);
    t.pon_vista(4000, 1000);
    EXPECT_EQ(t.desplazamiento(), 300);
    t.Cols(4);
    EXPECT_EQ(t.desplazamiento(), 0);
}

TEST_F(Rejilla, un_ancho_negativo_se_guarda_y_se_ve_como_0) {
    pon_tamano(2, 2);
    t.ColWidth(1, -240);
    EXPECT_EQ(t.ColWidth(1), -240);
    EXPECT_EQ(t.ancho_visible(1), 0);
}

TEST_F(Rejilla, una_fila_tiene_su_alto_o_el_de_todas) {
    pon_tamano(4, 2);
    EXPECT_EQ(t.RowHeight(1), 300);
    t.alto_normal(400);
    t.RowHeight(1, 700);
    EXPECT_EQ(t.RowHeight(1), 700);
    EXPECT_EQ(t.RowHeight(2), 400);
    t.RowHeight(1, -1);
    EXPECT_EQ(t.RowHeight(1), 400);
    EXPECT_FALSE(t.hay_altos());
    t.alto_normal(0);
    EXPECT_EQ(t.RowHeight(2), 1);
}

TEST_F(Rejilla, MergeCol_fuera_de_la_rejilla_no_hace_nada) {
    pon_tamano(2, 2);
    t.MergeCol(1, true);
    t.MergeCol(2, true);
    t.MergeCol(-1, true);
    EXPECT_TRUE(t.MergeCol(1));
    EXPECT_FALSE(t.MergeCol(2));
    EXPECT_FALSE(t.MergeCol(-1));
}

// Colours and pictures

TEST_F(Rejilla, los_colores_van_a_la_celda_actual_o_a_la_seleccion) {
    pon_tamano(4, 4);
    t.selecciona(2, 2, 1, 1);
    t.CellForeColor(0xFF);
    EXPECT_EQ(t.color_texto(2, 2), 0xFF);
    EXPECT_EQ(t.color_texto(1, 1), 0);
    t.FillStyle(Relleno::Seleccion);
    t.CellBackColor(0xFF00);
    for (int f = 0; f < 4; ++f)
        for (int c = 0; c < 4; ++c) EXPECT_EQ(t.tiene_fondo(f, c), f >= 1 && f <= 2 && c >= 1 && c <= 2);
    EXPECT_EQ(t.CellBackColor(), 0xFF00);
    EXPECT_EQ(t.CellForeColor(), 0xFF);
}

TEST_F(Rejilla, las_imagenes_van_con_su_fila_y_dejan_el_texto) {
    pon_tamano(6, 3);
    const auto una = std::make_shared<UnaImagen>();
    const auto otra = std::make_shared<UnaImagen>();
    t.TextMatrix(2, 1, "texto");
    t.CellPicture(2, 1, una);
    t.CellPicture(4, 2, otra);
    t.inserta_filas(3, 2);
    EXPECT_EQ(t.CellPicture(2, 1), una);
    EXPECT_EQ(t.CellPicture(6, 2), otra);
    EXPECT_EQ(t.TextMatrix(2, 1), "texto");
    t.borra_filas(1, 2);
    EXPECT_EQ(t.CellPicture(4, 2), otra);
    EXPECT_EQ(una.use_count(), 1);
    t.borra_varias_filas(std::vector<int>{0, 2});
    EXPECT_EQ(t.CellPicture(2, 2), otra);
    t.Cols(2);
    EXPECT_EQ(otra.use_count(), 1);
}

TEST_F(Rejilla, una_imagen_nula_quita_la_que_habia) {
    pon_tamano(3, 3);
    const auto una = std::make_shared<UnaImagen>();
    t.CellPicture(1, 1, std::make_shared<UnaImagen>());
    t.CellPicture(1, 1, una);
    EXPECT_EQ(t.CellPicture(1, 1), una);
    t.CellPicture(1, 1, nullptr);
    EXPECT_EQ(t.CellPicture(1, 1), nullptr);
    EXPECT_EQ(una.use_count(), 1);
}

// Texts

TEST_F(Rejilla, los_numeros_de_fila_siguen_a_sus_filas) {
    pon_tamano(4, 2);
    t.inserta_filas(2, 1);
    EXPECT_EQ(columna(0), Textos({"", "1", "", "3", "4"}));
    t.numera_filas();
    EXPECT_EQ(columna(0), Textos({"", "1", "2", "3", "4"}));
    t.borra_varias_filas(std::vector<int>{1, 3});
    EXPECT_EQ(columna(0), Textos({"", "1", "2"}));
}

TEST_F(Rejilla, pon_fila_escribe_celdas_vecinas) {
    pon_tamano(3, 4);
    const std::vector<std::string_view> textos{"a", "b"};
    t.pon_fila(1, 2, textos);
    t.pon_fila(2, 0, textos);
    EXPECT_EQ(columna(0), Textos({"", "1", "a"}));
    EXPECT_EQ(columna(2), Textos({"", "a", ""}));
    EXPECT_EQ(columna(3), Textos({"", "b", ""}));
}

TEST_F(Rejilla, transforma_columna_reescribe_las_filas_que_se_le_dan) {
    pon_tamano(4, 2);
    t.transforma_columna(1, 2, 3, [](int fila, std::string_view, std::string& nuevo) {
        nuevo = std::to_string(fila * 10);
        return true;
    });
    EXPECT_EQ(columna(1), Textos({"", "", "20", "30"}));
    t.transforma_columna(1, 3, 2, [](int, std::string_view, std::string&) -> bool { throw 1; });
}

} // namespace
} // namespace Qlt4_Tabla
