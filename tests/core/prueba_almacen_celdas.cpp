// SPDX-License-Identifier: MIT
// AlmacenCeldas: its contract case by case: row numbers, long texts, colours, heights, size. What random
// sequences do is in prueba_almacen_azar.cpp.
#include "core/almacen_celdas.h"

#include <gtest/gtest.h>

#include <numeric>
#include <stdexcept>

namespace Qlt4_Tabla {
namespace {

using Textos = std::vector<std::string>;

class Almacen : public testing::Test {
protected:
    AlmacenCeldas a;

    void pon_tamano(int filas, int columnas) {
        a.pon_columnas(columnas);
        a.pon_filas(filas);
    }

    Textos columna(int col) const {
        Textos textos;
        for (int f = 0; f < a.filas(); ++f) textos.emplace_back(a.texto(f, col));
        return textos;
    }

    Textos numeros() const { return columna(0); }

    /// Writes texts down a column from row 1 on.
    void escribe(int col, const Textos& textos) {
        for (int f = 1; const std::string& t : textos) a.pon_texto(f++, col, t);
    }
};

TEST_F(Almacen, nace_sin_filas_ni_columnas) {
    EXPECT_EQ(a.filas(), 0);
    EXPECT_EQ(a.columnas(), 0);
}

TEST_F(Almacen, las_celdas_nacen_vacias_y_sin_numero) {
    pon_tamano(3, 2);
    EXPECT_EQ(numeros(), Textos({"", "", ""}));
    EXPECT_EQ(columna(1), Textos({"", "", ""}));
}

TEST_F(Almacen, guarda_cada_texto_en_su_celda) {
    pon_tamano(3, 4);
    a.pon_texto(2, 3, "tres");
    a.pon_texto(2, 1, "uno");
    a.pon_texto(1, 2, "ñandú");
    EXPECT_EQ(a.texto(2, 1), "uno");
    EXPECT_EQ(a.texto(2, 2), "");
    EXPECT_EQ(a.texto(2, 3), "tres");
    EXPECT_EQ(a.texto(1, 2), "ñandú");
}

TEST_F(Almacen, escribir_dice_si_el_texto_era_otro) {
    pon_tamano(2, 2);
    EXPECT_TRUE(a.pon_texto(1, 1, "x"));
    EXPECT_FALSE(a.pon_texto(1, 1, "x"));
    EXPECT_TRUE(a.pon_texto(1, 1, ""));
    EXPECT_FALSE(a.pon_texto(1, 1, ""));
}

TEST_F(Almacen, los_textos_guardan_ceros_y_cualquier_byte) {
    pon_tamano(2, 2);
    const std::string texto("a\0\xFF\n", 4);
    a.pon_texto(1, 1, texto);
    EXPECT_EQ(a.texto(1, 1), texto);
}

TEST_F(Almacen, acepta_textos_de_cualquier_longitud) {
    pon_tamano(2, 3);
    for (const std::size_t n : {std::size_t{1}, std::size_t{253}, std::size_t{254}, std::size_t{255},
             std::size_t{256}, std::size_t{100'000}}) {
        a.pon_texto(1, 1, std::string(n, 'x'));
        a.pon_texto(1, 2, "detrás");
        EXPECT_EQ(a.texto(1, 1), std::string(n, 'x'));
        EXPECT_EQ(a.texto(1, 2), "detrás");
    }
}

TEST_F(Almacen, una_celda_toma_el_texto_de_otra_por_su_vista) {
    pon_tamano(3, 3);
    a.pon_texto(1, 1, "uno");
    a.pon_texto(1, 2, a.texto(1, 1));
    a.pon_texto(2, 1, a.texto(1, 2));
    a.pon_texto(1, 1, a.texto(1, 1).substr(1));
    EXPECT_EQ(a.texto(1, 1), "no");
    EXPECT_EQ(a.texto(1, 2), "uno");
    EXPECT_EQ(a.texto(2, 1), "uno");
}

TEST_F(Almacen, una_fila_toma_los_textos_de_la_de_arriba) {
    pon_tamano(3, 4);
    const Textos textos{"a", "", std::string(300, 'b')};
    a.pon_fila(1, 1, std::vector<std::string_view>(textos.begin(), textos.end()));
    std::vector<std::string_view> leidos(3);
    a.lee_fila(1, 1, leidos);
    EXPECT_TRUE(a.pon_fila(2, 1, leidos));
    EXPECT_EQ(columna(1), Textos({"", "a", "a"}));
    EXPECT_EQ(columna(3), Textos({"", textos[2], textos[2]}));
    EXPECT_FALSE(a.pon_fila(2, 1, leidos));
}

TEST_F(Almacen, pon_fila_deja_las_celdas_de_los_lados) {
    pon_tamano(2, 5);
    for (int c = 1; c < 5; ++c) a.pon_texto(1, c, "v");
    const std::vector<std::string_view> nuevos{"x", ""};
    EXPECT_TRUE(a.pon_fila(1, 2, nuevos));
    std::vector<std::string_view> fila(5);
    a.lee_fila(1, 0, fila);
    EXPECT_EQ(fila, std::vector<std::string_view>({"", "v", "x", "", "v"}));
}

TEST_F(Almacen, un_tramo_de_los_textos_de_una_fila) {
    pon_tamano(2, 6);
    for (const int c : {1, 2, 4}) a.pon_texto(1, c, std::string(static_cast<std::size_t>(c), 'x'));
    const auto longitudes = [this](std::size_t primero, std::size_t n) {
        const TextosSeguidos tramo = a.fila_seguida(1)->textos.tramo(primero, n);
        std::vector<std::size_t> bytes;
        tramo.recorre([&bytes](std::string_view t) { bytes.push_back(t.size()); });
        return bytes;
    };
    EXPECT_EQ(
        longitudes(0, 9), (std::vector<std::size_t>{0, 1, 2, 0, 4})); // nothing stands behind the last text
    EXPECT_EQ(longitudes(1, 3), (std::vector<std::size_t>{1, 2, 0}));
    EXPECT_EQ(longitudes(4, 1), (std::vector<std::size_t>{4}));
    EXPECT_EQ(longitudes(5, 1), std::vector<std::size_t>{});
    EXPECT_EQ(longitudes(90, 2), std::vector<std::size_t>{});
    EXPECT_EQ(*a.fila_seguida(1)->textos.tramo(2, 1).inicio, 'x');
    EXPECT_EQ(a.fila_seguida(0)->textos.longitudes.size(), 0U);
}

TEST_F(Almacen, la_fila_0_no_muestra_numero_y_un_texto_largo_no_se_da_seguido) {
    pon_tamano(3, 3);
    a.numera();
    EXPECT_FALSE(a.fila_seguida(0)->numerada);
    EXPECT_TRUE(a.fila_seguida(2)->numerada);
    a.pon_texto(2, 1, std::string(254, 'x'));
    EXPECT_TRUE(a.fila_seguida(2)->numerada);
    a.pon_texto(2, 2, std::string(255, 'x'));
    EXPECT_FALSE(a.fila_seguida(2));
    a.pon_texto(2, 2, "");
    a.pon_texto(2, 0, "n");
    EXPECT_FALSE(a.fila_seguida(2)->numerada);
}

// Row numbers

TEST_F(Almacen, numera_da_su_numero_a_cada_fila_de_datos) {
    pon_tamano(4, 2);
    const FilasCambiadas c = a.numera();
    EXPECT_EQ(numeros(), Textos({"", "1", "2", "3"}));
    EXPECT_EQ(c.primera, 1);
    EXPECT_EQ(c.ultima, 3);
}

TEST_F(Almacen, numera_dos_veces_no_cambia_nada) {
    pon_tamano(4, 2);
    a.numera();
    EXPECT_FALSE(a.numera().hay());
}

TEST_F(Almacen, el_numero_sigue_a_la_fila_que_se_mueve) {
    pon_tamano(4, 2);
    a.numera();
    escribe(1, {"a", "b", "c"});
    a.inserta(2, 2);
    EXPECT_EQ(numeros(), Textos({"", "1", "", "", "4", "5"}));
    EXPECT_EQ(columna(1), Textos({"", "a", "", "", "b", "c"}));
    a.borra(1, 2);
    EXPECT_EQ(numeros(), Textos({"", "", "2", "3"}));
}

TEST_F(Almacen, lo_escrito_en_la_columna_0_va_con_su_fila_hasta_que_se_numera) {
    pon_tamano(4, 2);
    a.numera();
    a.pon_texto(2, 0, "dos");
    a.inserta(1, 1);
    EXPECT_EQ(numeros(), Textos({"", "", "2", "dos", "4"}));
    const FilasCambiadas c = a.numera();
    EXPECT_EQ(numeros(), Textos({"", "1", "2", "3", "4"}));
    EXPECT_EQ(c.primera, 1);
    EXPECT_EQ(c.ultima, 3);
}

TEST_F(Almacen, escribir_el_numero_de_la_fila_es_numerarla) {
    pon_tamano(3, 2);
    EXPECT_TRUE(a.pon_texto(1, 0, "1"));
    a.pon_texto(2, 0, "02");
    a.inserta(1, 1);
    EXPECT_EQ(numeros(), Textos({"", "", "2", "02"}));
}

TEST_F(Almacen, un_numero_se_puede_vaciar) {
    pon_tamano(3, 2);
    a.numera();
    EXPECT_TRUE(a.pon_texto(1, 0, ""));
    EXPECT_EQ(numeros(), Textos({"", "", "2"}));
}

TEST_F(Almacen, la_fila_0_conserva_su_texto_al_numerar) {
    pon_tamano(3, 2);
    a.pon_texto(0, 0, "Nº");
    a.numera();
    EXPECT_EQ(numeros(), Textos({"Nº", "1", "2"}));
}

TEST_F(Almacen, la_fila_0_no_muestra_numero_ni_cuando_baja_y_vuelve) {
    pon_tamano(3, 2);
    a.numera();
    a.borra(0, 1);
    EXPECT_EQ(numeros(), Textos({"", "1"}));
    a.inserta(0, 1);
    EXPECT_EQ(numeros(), Textos({"", "1", "2"}));
}

TEST_F(Almacen, dos_numeros_de_fila_solo_son_iguales_si_son_la_misma) {
    pon_tamano(300, 2);
    a.numera();
    a.pon_texto(20, 1, "10");
    EXPECT_FALSE(a.iguales(10, 0, 20, 0));
    EXPECT_TRUE(a.iguales(10, 0, 10, 0));
    EXPECT_TRUE(a.iguales(10, 0, 20, 1));
}

TEST_F(Almacen, sin_columnas_las_filas_pierden_su_numero) {
    pon_tamano(3, 2);
    a.numera();
    a.pon_columnas(0);
    a.pon_columnas(1);
    EXPECT_EQ(numeros(), Textos({"", "", ""}));
    EXPECT_TRUE(a.numera().hay());
}

// transforma

TEST_F(Almacen, transforma_cambia_las_celdas_que_se_le_dicen) {
    pon_tamano(5, 2);
    escribe(1, {"a", "b", "c", "d"});
    const FilasCambiadas c = a.transforma(1, 1, 4, [](int fila, std::string_view texto, std::string& nuevo) {
        nuevo = std::string(texto) + std::to_string(fila);
        return fila == 2 || fila == 3;
    });
    EXPECT_EQ(columna(1), Textos({"", "a", "b2", "c3", "d"}));
    EXPECT_EQ(c.primera, 2);
    EXPECT_EQ(c.ultima, 3);
}

TEST_F(Almacen, transforma_que_escribe_lo_mismo_no_cambia_nada) {
    pon_tamano(3, 2);
    escribe(1, {"a", "b"});
    const auto igual = [](int, std::string_view texto, std::string& nuevo) {
        nuevo = texto;
        return true;
    };
    EXPECT_FALSE(a.transforma(1, 0, 2, igual).hay());
}

TEST_F(Almacen, transforma_que_falla_conserva_lo_hecho_y_no_pierde_nada) {
    pon_tamano(4, 2);
    escribe(1, {"a", "b", "c"});
    const auto falla = [](int fila, std::string_view, std::string& nuevo) {
        if (fila == 2) throw std::runtime_error("no");
        nuevo = "hecho";
        return true;
    };
    EXPECT_THROW(a.transforma(1, 1, 3, falla), std::runtime_error);
    EXPECT_EQ(columna(1), Textos({"", "hecho", "b", "c"}));
}

TEST_F(Almacen, transforma_lee_las_demas_celdas_de_la_fila) {
    pon_tamano(300, 4);
    escribe(1, Textos(299, "ab"));
    const auto copia = [this](int fila, std::string_view, std::string& nuevo) {
        nuevo = std::string(a.texto(fila, 1)) + std::string(a.texto(fila - 1, 1));
        return true;
    };
    a.transforma(3, 1, 299, copia);
    EXPECT_EQ(a.texto(1, 3), "ab");
    for (int f = 2; f < 300; ++f) ASSERT_EQ(a.texto(f, 3), "abab");
    EXPECT_EQ(a.texto(299, 2), "");
}

TEST_F(Almacen, transforma_vacia_la_ultima_columna_y_la_vuelve_a_llenar) {
    pon_tamano(200, 3);
    a.numera();
    escribe(1, Textos(199, "uno"));
    escribe(2, Textos(199, "dos"));
    const auto vacia = [](int fila, std::string_view, std::string&) { return fila % 2 == 0; };
    EXPECT_EQ(a.transforma(2, 1, 199, vacia).ultima, 198);
    const auto llena = [](int, std::string_view texto, std::string& nuevo) {
        nuevo = "tres";
        return texto.empty();
    };
    EXPECT_EQ(a.transforma(2, 1, 199, llena).primera, 2);
    for (int f = 1; f < 200; ++f) {
        ASSERT_EQ(a.texto(f, 0), std::to_string(f));
        ASSERT_EQ(a.texto(f, 1), "uno");
        ASSERT_EQ(a.texto(f, 2), f % 2 == 0 ? "tres" : "dos");
    }
}

TEST_F(Almacen, transforma_pone_textos_que_no_caben_en_los_trozos) {
    pon_tamano(500, 3);
    escribe(1, Textos(499, "x"));
    const auto texto = [](int fila) { return std::string(static_cast<std::size_t>(200 + fila % 100), 'g'); };
    for (const int col : {1, 2}) {
        a.transforma(col, 1, 499, [&](int fila, std::string_view, std::string& nuevo) {
            nuevo = texto(fila);
            return true;
        });
    }
    for (int f = 1; f < 500; ++f)
        for (const int col : {1, 2}) ASSERT_EQ(a.texto(f, col), texto(f)) << f << "," << col;
}

// Rows

TEST_F(Almacen, borra_varias_quita_justo_esas_filas) {
    pon_tamano(1000, 2);
    for (int f = 0; f < 1000; ++f) a.pon_texto(f, 1, std::to_string(f));
    std::vector<int> pares;
    for (int f = 0; f < 1000; f += 2) pares.push_back(f);
    a.borra_varias(pares);
    ASSERT_EQ(a.filas(), 500);
    for (int f = 0; f < 500; ++f) ASSERT_EQ(a.texto(f, 1), std::to_string(2 * f + 1));
}

TEST_F(Almacen, se_pueden_borrar_todas_y_empezar_otra_vez) {
    pon_tamano(500, 2);
    a.pon_texto(300, 1, "x");
    std::vector<int> todas(500);
    std::iota(todas.begin(), todas.end(), 0);
    a.borra_varias(todas);
    EXPECT_EQ(a.filas(), 0);
    a.pon_filas(2);
    EXPECT_EQ(columna(1), Textos({"", ""}));
}

TEST_F(Almacen, quitar_columnas_pierde_sus_textos) {
    pon_tamano(2, 4);
    for (int c = 0; c < 4; ++c) a.pon_texto(1, c, "v");
    a.pon_columnas(2);
    a.pon_columnas(4);
    std::vector<std::string_view> fila(4);
    a.lee_fila(1, 0, fila);
    EXPECT_EQ(fila, std::vector<std::string_view>({"v", "v", "", ""}));
}

TEST_F(Almacen, caben_mas_columnas_que_las_de_un_byte_o_dos) {
    pon_tamano(2, 100'000);
    for (const int c : {30, 31, 32, 255, 256, 4095, 4096, 99'999}) a.pon_texto(1, c, std::to_string(c));
    for (const int c : {30, 31, 32, 255, 256, 4095, 4096, 99'999})
        EXPECT_EQ(a.texto(1, c), std::to_string(c));
    EXPECT_EQ(a.texto(1, 99'998), "");
}

TEST_F(Almacen, caben_filas_de_mas_bytes_que_un_trozo) {
    pon_tamano(10, 400);
    const std::string texto(250, 'x');
    for (int f = 9; f > 0; --f)
        for (int c = 1; c < 400; ++c) a.pon_texto(f, c, texto);
    for (int f = 1; f < 10; ++f)
        for (int c = 1; c < 400; ++c) ASSERT_EQ(a.texto(f, c), texto);
}

// Colours and heights

TEST_F(Almacen, el_color_de_texto_0_es_no_tener_color) {
    pon_tamano(3, 3);
    EXPECT_FALSE(a.pon_color_texto(1, 1, 2, 2, 0));
    EXPECT_TRUE(a.pon_color_texto(1, 1, 2, 2, 0xFF));
    EXPECT_FALSE(a.pon_color_texto(2, 2, 2, 2, 0xFF));
    EXPECT_EQ(a.color_texto(2, 2), 0xFF);
    EXPECT_EQ(a.color_texto(0, 2), 0);
    EXPECT_TRUE(a.pon_color_texto(2, 2, 2, 2, 0));
    EXPECT_EQ(a.color_texto(2, 2), 0);
}

TEST_F(Almacen, el_fondo_negro_no_es_no_tener_fondo) {
    pon_tamano(3, 3);
    EXPECT_FALSE(a.tiene_fondo(1, 1));
    EXPECT_TRUE(a.pon_color_fondo(1, 1, 1, 1, 0));
    EXPECT_TRUE(a.tiene_fondo(1, 1));
    EXPECT_EQ(a.color_fondo(1, 1), 0);
    EXPECT_FALSE(a.tiene_fondo(1, 2));
}

TEST_F(Almacen, los_colores_van_con_su_fila) {
    pon_tamano(4, 2);
    a.pon_color_fondo(2, 1, 2, 1, 7);
    a.pon_color_texto(2, 1, 2, 1, 8);
    a.inserta(1, 300);
    EXPECT_EQ(a.color_fondo(302, 1), 7);
    EXPECT_EQ(a.color_texto(302, 1), 8);
    EXPECT_FALSE(a.tiene_fondo(2, 1));
    a.borra(0, 302);
    EXPECT_EQ(a.color_fondo(0, 1), 7);
}

TEST_F(Almacen, una_columna_quitada_pierde_sus_colores) {
    pon_tamano(2, 3);
    a.pon_color_fondo(0, 0, 1, 2, 7);
    a.pon_columnas(2);
    a.pon_columnas(3);
    EXPECT_TRUE(a.tiene_fondo(1, 1));
    EXPECT_FALSE(a.tiene_fondo(1, 2));
}

TEST_F(Almacen, los_altos_van_con_su_fila_y_se_sabe_si_hay) {
    pon_tamano(500, 2);
    EXPECT_FALSE(a.hay_altos());
    EXPECT_TRUE(a.pon_alto(300, 700));
    EXPECT_FALSE(a.pon_alto(300, 700));
    a.borra(10, 100);
    EXPECT_EQ(a.alto(200), 700);
    EXPECT_EQ(a.alto(300), -1);
    EXPECT_TRUE(a.hay_altos());
    a.borra(200, 1);
    EXPECT_FALSE(a.hay_altos());
}

TEST_F(Almacen, un_alto_negativo_quita_el_propio) {
    pon_tamano(5, 2);
    a.pon_alto(2, 0);
    EXPECT_EQ(a.alto(2), 0);
    EXPECT_TRUE(a.pon_alto(2, -5));
    EXPECT_EQ(a.alto(2), -1);
    EXPECT_FALSE(a.hay_altos());
}

// Size

TEST_F(Almacen, las_filas_sin_nada_no_ocupan_aunque_sean_millones) {
    pon_tamano(1 << 24, 16);
    a.numera();
    EXPECT_LT(a.bytes(), 10'000U);
    EXPECT_EQ(a.texto(1 << 23, 0), "8388608");
}

TEST_F(Almacen, una_celda_ocupa_poco_mas_que_su_texto) {
    constexpr int FILAS = 20'000;
    constexpr int COLUMNAS = 10;
    pon_tamano(FILAS, COLUMNAS);
    a.numera();
    std::size_t bytes_textos = 0;
    for (int f = 1; f < FILAS; ++f) {
        for (int c = 1; c < COLUMNAS; ++c) {
            const std::string texto = std::to_string(f * c);
            bytes_textos += texto.size();
            a.pon_texto(f, c, texto);
        }
    }
    EXPECT_LT(a.bytes() - bytes_textos, 3U * FILAS * COLUMNAS);
    EXPECT_LT(a.bytes(), 16U * FILAS * COLUMNAS);
}

TEST_F(Almacen, una_columna_escrita_de_una_vez_ocupa_lo_que_escrita_celda_a_celda) {
    constexpr int FILAS = 20'000;
    const auto bytes_tras = [](const auto& escribe_columna) {
        AlmacenCeldas b;
        b.pon_columnas(10);
        b.pon_filas(FILAS);
        for (int f = 0; f < FILAS; ++f)
            for (int c = 1; c < 9; ++c) b.pon_texto(f, c, c == 5 ? "" : std::to_string(f * c));
        escribe_columna(b);
        return b.bytes();
    };
    const std::size_t celda_a_celda = bytes_tras([](AlmacenCeldas& b) {
        for (int f = 0; f < FILAS; ++f) b.pon_texto(f, 5, "123456.789");
    });
    const std::size_t de_una_vez = bytes_tras([](AlmacenCeldas& b) {
        b.transforma(5, 0, FILAS - 1, [](int, std::string_view, std::string& nuevo) {
            nuevo = "123456.789";
            return true;
        });
    });
    EXPECT_LT(de_una_vez, celda_a_celda + 100'000); // the block that is kept
}

TEST_F(Almacen, vaciar_las_celdas_devuelve_su_memoria) {
    constexpr int FILAS = 5'000;
    pon_tamano(FILAS, 4);
    const std::string texto(100, 'x');
    for (int f = 0; f < FILAS; ++f)
        for (int c = 1; c < 4; ++c) a.pon_texto(f, c, texto);
    const std::size_t llenas = a.bytes();
    for (int c = 1; c < 4; ++c)
        for (int f = 0; f < FILAS; ++f) a.pon_texto(f, c, "");
    EXPECT_LT(a.bytes(), llenas / 4);
}

TEST_F(Almacen, las_filas_quitadas_una_a_una_devuelven_su_memoria) {
    pon_tamano(20'000, 2);
    for (int f = 0; f < a.filas(); ++f) a.pon_texto(f, 1, std::string(100, 'x'));
    const std::size_t llenas = a.bytes();
    for (int f = 10'000; f > 0; --f) a.borra(f * 2 - 1, 1);
    EXPECT_LT(a.bytes(), llenas * 3 / 4);
    for (int f = a.filas() - 1; f > 10; --f) a.borra(f * 7919 % f, 1);
    EXPECT_LT(a.bytes(), llenas / 20);
}

// Every way in which a long text can go gives its memory back: the size stays that of one or two.
TEST_F(Almacen, los_textos_largos_que_se_van_no_quedan_guardados) {
    pon_tamano(3, 3);
    const std::string largo(100'000, 'x');
    const std::vector<std::string_view> fila{"a", "b"};
    const auto sustituye = [](int, std::string_view, std::string& nuevo) {
        nuevo = "corto";
        return true;
    };
    const std::vector<std::function<void()>> maneras{
        [&] { a.pon_texto(1, 1, "corto"); },
        [&] { a.pon_texto(1, 1, std::string(100'000, 'y')); },
        [&] { a.pon_texto(1, 1, ""); },
        [&] { a.pon_fila(1, 1, fila); },
        [&] { a.transforma(1, 0, 2, sustituye); },
        [&] { a.borra(1, 1), a.inserta(1, 1); },
        [&] { a.borra_varias(std::vector<int>{1}), a.inserta(1, 1); },
        [&] { a.pon_filas(1), a.pon_filas(3); },
        [&] { a.pon_columnas(1), a.pon_columnas(3); },
    };
    for (const auto& se_va : maneras) {
        for (int n = 0; n < 20; ++n) {
            a.pon_texto(1, 1, largo);
            se_va();
        }
        EXPECT_LT(a.bytes(), 350'000U);
    }
    for (int n = 0; n < 20; ++n) {
        a.pon_texto(1, 0, largo);
        if (n % 2 == 0) a.numera();
        if (n % 2 != 0) a.pon_texto(1, 0, "1");
    }
    EXPECT_LT(a.bytes(), 350'000U);
}

} // namespace
} // namespace Qlt4_Tabla
