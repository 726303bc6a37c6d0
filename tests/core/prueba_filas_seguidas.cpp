// SPDX-License-Identifier: MIT
// AlmacenCeldas filled row after row, cell after cell, as hosts do: such a row keeps room for as many cells as the
// one above has, and nobody may notice.
#include "core/almacen_celdas.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Qlt4_Tabla {
namespace {

class Filas_seguidas : public testing::Test {
protected:
    static constexpr int FILAS = 1000;
    static constexpr int COLUMNAS = 12;
    AlmacenCeldas a;

    void SetUp() override {
        a.pon_columnas(COLUMNAS);
        a.pon_filas(FILAS);
    }

    static std::string texto(int fila, int col) { return std::to_string(fila) + "." + std::to_string(col); }

    void llena(int fila, int hasta_col) {
        for (int c = 1; c <= hasta_col; ++c) EXPECT_TRUE(a.pon_texto(fila, c, texto(fila, c)));
    }

    void espera(int fila, int hasta_col) {
        for (int c = 1; c < COLUMNAS; ++c)
            EXPECT_EQ(a.texto(fila, c), c <= hasta_col ? texto(fila, c) : "") << fila << "," << c;
    }

    /// A wide row, and the one below with two cells.
    void llena_ancha_y_estrecha() {
        llena(1, 11);
        llena(2, 2);
    }
};

TEST_F(Filas_seguidas, cada_celda_se_lee_en_cuanto_se_escribe) {
    llena(1, 11);
    for (int c = 1; c <= 11; ++c) {
        a.pon_texto(2, c, texto(2, c));
        espera(2, c);
    }
    espera(1, 11);
}

TEST_F(Filas_seguidas, una_fila_puede_saltar_celdas_y_volver_a_ellas) {
    llena(1, 11);
    a.pon_texto(2, 3, "c");
    a.pon_texto(2, 7, "g");
    a.pon_texto(2, 5, "e");
    a.pon_texto(2, 7, "gg");
    EXPECT_EQ(a.texto(2, 3), "c");
    EXPECT_EQ(a.texto(2, 5), "e");
    EXPECT_EQ(a.texto(2, 7), "gg");
    for (const int c : {1, 2, 4, 6, 8, 9, 10, 11}) EXPECT_EQ(a.texto(2, c), "") << c;
}

TEST_F(Filas_seguidas, los_mismos_textos_de_la_fila_a_medias_no_la_cambian) {
    llena_ancha_y_estrecha();
    EXPECT_FALSE(a.pon_fila(2, 1, std::vector<std::string_view>{"2.1", "2.2", "", ""}));
    llena(3, 1);
    EXPECT_FALSE(a.pon_texto(3, 5, ""));
    const auto da = [](int) {
        static constexpr std::string_view UNO[] = {"3.1"};
        return std::span<const std::string_view>(UNO);
    };
    EXPECT_FALSE(a.pon_filas(3, 3, 1, da).hay());
}

TEST_F(Filas_seguidas, la_fila_a_medias_se_vacia_y_se_alarga) {
    llena_ancha_y_estrecha();
    a.pon_texto(2, 2, "");
    espera(2, 1);
    a.pon_texto(2, 1, "");
    espera(2, 0);
    llena(2, 11);
    espera(2, 11);
}

TEST_F(Filas_seguidas, las_demas_filas_no_cambian_al_dejar_una_a_medias) {
    llena(1, 11);
    llena(3, 11);
    llena(2, 2);
    a.pon_texto(3, 1, "otro texto");
    a.pon_texto(1, 11, "y otro");
    espera(2, 2);
    EXPECT_EQ(a.texto(3, 1), "otro texto");
    EXPECT_EQ(a.texto(1, 11), "y otro");
    EXPECT_EQ(a.texto(3, 11), texto(3, 11));
}

TEST_F(Filas_seguidas, la_fila_a_medias_va_con_lo_que_se_hace_a_las_filas) {
    llena_ancha_y_estrecha();
    a.inserta(2, 3);
    EXPECT_EQ(a.texto(5, 2), "2.2");
    llena(6, 1);
    a.numera();
    EXPECT_EQ(a.texto(6, 0), "6");
    EXPECT_EQ(a.texto(6, 1), "6.1");
    llena(7, 3);
    a.pon_columnas(3);
    EXPECT_EQ(a.texto(7, 2), "7.2");
    llena(8, 1);
    a.borra(0, 8);
    EXPECT_EQ(a.texto(0, 1), "8.1");
    EXPECT_EQ(a.texto(0, 2), "");
}

TEST_F(Filas_seguidas, los_restos_de_dos_trozos_se_juntan_con_la_fila_a_medias) {
    for (int f = 1; f < 300; ++f) llena(f, 11);
    llena(300, 2);
    a.borra(2, 298); // both ends are short now
    espera(1, 11);
    EXPECT_EQ(a.texto(2, 2), "300.2");
    EXPECT_EQ(a.texto(2, 3), "");
    EXPECT_FALSE(a.pon_fila(2, 1, std::vector<std::string_view>{"300.1", "300.2", ""}));
}

TEST_F(Filas_seguidas, un_texto_de_la_misma_fila_se_copia_aunque_tenga_que_crecer) {
    llena(1, 11);
    const std::string largo(200, 'x');
    for (int f = 2; f < 200; ++f) {
        a.pon_texto(f, 1, largo);
        for (int c = 2; c < COLUMNAS; ++c) a.pon_texto(f, c, a.texto(f, c - 1));
        for (int c = 1; c < COLUMNAS; ++c) ASSERT_EQ(a.texto(f, c), largo) << f << "," << c;
    }
}

TEST_F(Filas_seguidas, un_texto_de_la_fila_a_medias_se_copia_a_la_siguiente) {
    llena_ancha_y_estrecha();
    a.pon_texto(3, 1, a.texto(2, 2));
    EXPECT_EQ(a.texto(3, 1), "2.2");
    a.pon_texto(4, 5, a.texto(3, 1)); // beyond what the row above stores
    EXPECT_EQ(a.texto(4, 5), "2.2");
    espera(2, 2);
}

TEST_F(Filas_seguidas, una_fila_toma_los_textos_de_la_fila_a_medias) {
    llena_ancha_y_estrecha();
    EXPECT_TRUE(a.pon_fila(3, 1, std::vector<std::string_view>{a.texto(2, 2), a.texto(2, 1)}));
    EXPECT_EQ(a.texto(3, 1), "2.2");
    EXPECT_EQ(a.texto(3, 2), "2.1");
    espera(2, 2);
}

TEST_F(Filas_seguidas, acepta_textos_largos_y_vacios_a_medio_llenar) {
    llena(1, 11);
    a.pon_texto(2, 1, "a");
    a.pon_texto(2, 2, std::string(300, 'L'));
    a.pon_texto(2, 3, "");
    a.pon_texto(2, 4, "d");
    a.pon_texto(3, 1, "b");
    EXPECT_EQ(a.texto(2, 2), std::string(300, 'L'));
    EXPECT_EQ(a.texto(2, 4), "d");
    EXPECT_EQ(a.texto(3, 1), "b");
}

TEST_F(Filas_seguidas, las_filas_estrechas_bajo_una_ancha_no_ocupan_como_ella) {
    const auto bytes_con = [](int ancho_primera) {
        AlmacenCeldas b;
        b.pon_columnas(31);
        b.pon_filas(20'000);
        for (int c = 1; c <= ancho_primera; ++c) b.pon_texto(0, c, "x");
        for (int f = 1; f < 20'000; ++f) b.pon_texto(f, 1, "y");
        return b.bytes();
    };
    EXPECT_LT(bytes_con(30), bytes_con(1) + 2'000);
}

} // namespace
} // namespace Qlt4_Tabla
