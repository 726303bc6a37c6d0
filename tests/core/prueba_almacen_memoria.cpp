// SPDX-License-Identifier: MIT
// AlmacenCeldas without memory: each operation is tried with the first, the second, ... allocation failing
// until it succeeds; after each failure the table has to be as it was. The runs of bytes themselves come
// from std::realloc, which does not fail here.
#include "core/almacen_celdas.h"
#include "tests/core/memoria_que_falla.h"

#include <gtest/gtest.h>

#include <new>

namespace Qlt4_Tabla {
namespace {

class Almacen_sin_memoria : public testing::Test {
protected:
    AlmacenCeldas a;

    /// Rows of 10 columns with texts, some long, and colours.
    void llena(int filas) {
        a.pon_columnas(10);
        a.pon_filas(filas);
        for (int f = 1; f < filas; ++f)
            for (int c = 1; c < 10; ++c)
                a.pon_texto(f, c, f % 50 == 0 ? std::string(300, 'L') : std::to_string(f * c));
        a.pon_color_fondo(1, 1, filas / 2, 2, 255);
    }

    [[nodiscard]] std::string foto() const {
        std::string foto = std::to_string(a.filas()) + "x" + std::to_string(a.columnas());
        for (int f = 0; f < a.filas(); ++f)
            for (int c = 0; c < a.columnas(); ++c)
                foto += "|" + std::string(a.texto(f, c)) + (a.tiene_fondo(f, c) ? "*" : "");
        return foto;
    }

    /// Returns how often `hace` failed before it succeeded; what it does must be all or nothing.
    template <class Hace>
    int falla_y_al_fin_puede(const Hace& hace) {
        const std::string antes = foto();
        for (int n = 0;; ++n) {
            falla_tras(n);
            bool fallo = false;
            try {
                hace();
            } catch (const std::bad_alloc&) {
                fallo = true;
            }
            falla_tras(-1);
            if (!fallo) return n;
            EXPECT_EQ(foto(), antes);
            if (HasFailure()) return n;
        }
    }
};

TEST_F(Almacen_sin_memoria, escribir_un_texto_largo) {
    llena(200);
    const std::string texto(1000, 'x');
    EXPECT_GT(falla_y_al_fin_puede([&] { a.pon_texto(77, 3, texto); }), 0);
    EXPECT_EQ(a.texto(77, 3), texto);
}

TEST_F(Almacen_sin_memoria, escribir_en_una_fila_de_un_trozo_sin_textos) {
    a.pon_columnas(3);
    a.pon_filas(100'000);
    a.numera();
    EXPECT_GT(falla_y_al_fin_puede([&] { a.pon_texto(50'000, 1, "x"); }), 0);
    EXPECT_EQ(a.texto(50'000, 1), "x");
    EXPECT_EQ(a.texto(50'001, 0), "50001");
}

TEST_F(Almacen_sin_memoria, escribir_un_texto_largo_en_una_fila_de_un_trozo_sin_textos) {
    a.pon_columnas(3);
    a.pon_filas(1000);
    const std::string texto(100'000, 'x');
    EXPECT_GT(falla_y_al_fin_puede([&] { a.pon_texto(500, 1, texto); }), 0);
    EXPECT_EQ(a.texto(500, 1), texto);
    EXPECT_LT(a.bytes(), 2 * texto.size()); // those of the failures are gone
}

TEST_F(Almacen_sin_memoria, insertar_filas_en_medio) {
    llena(257);
    EXPECT_GT(falla_y_al_fin_puede([&] { a.inserta(100, 1000); }), 0);
    EXPECT_EQ(a.filas(), 1257);
    EXPECT_EQ(a.texto(1101, 2), "202");
}

TEST_F(Almacen_sin_memoria, insertar_una_fila_en_un_trozo_lleno) {
    llena(300);
    EXPECT_GT(falla_y_al_fin_puede([&] { a.inserta(60, 1); }), 0);
    EXPECT_EQ(a.filas(), 301);
    EXPECT_EQ(a.texto(61, 1), "60");
}

TEST_F(Almacen_sin_memoria, anadir_filas_al_final) {
    llena(128);
    EXPECT_GT(falla_y_al_fin_puede([&] { a.pon_filas(1'000'000); }), 0);
    EXPECT_EQ(a.filas(), 1'000'000);
}

TEST_F(Almacen_sin_memoria, partir_un_trozo_que_pesa_demasiado) {
    a.pon_columnas(200);
    a.pon_filas(20);
    const std::string texto(200, 'x');
    for (int f = 0; f < 20; ++f)
        for (int c = 1; c < 40; ++c) a.pon_texto(f, c, texto);
    a.pon_color_fondo(0, 1, 19, 1, 255); // both parts need their own colours
    int fallos = 0;
    for (int c = 40; c < 200; ++c) fallos += falla_y_al_fin_puede([&] { a.pon_texto(10, c, texto); });
    EXPECT_GT(fallos, 0);
}

TEST_F(Almacen_sin_memoria, borrar_no_la_necesita) {
    llena(1000);
    EXPECT_EQ(falla_y_al_fin_puede([&] { a.borra(300, 100); }), 0);
    std::vector<int> pares;
    for (int f = 0; f < a.filas(); f += 2) pares.push_back(f);
    EXPECT_EQ(falla_y_al_fin_puede([&] { a.borra_varias(pares); }), 0);
    EXPECT_EQ(falla_y_al_fin_puede([&] { a.pon_columnas(3); }), 0);
    EXPECT_EQ(falla_y_al_fin_puede([&] { a.numera(); }), 0);
    EXPECT_EQ(falla_y_al_fin_puede([&] { a.pon_filas(1); }), 0);
    EXPECT_EQ(a.filas(), 1);
}

// Small neighbours are joined after a removal; without memory they stay apart, which nobody sees.
TEST_F(Almacen_sin_memoria, borrar_junta_los_restos_o_los_deja) {
    for (const long n : {0, 1, 2, 3, 99}) {
        AlmacenCeldas b;
        b.pon_columnas(2);
        b.pon_filas(256);
        for (int f = 0; f < 256; ++f) b.pon_texto(f, 1, std::to_string(f));
        b.pon_color_fondo(230, 1, 230, 1, 7);
        b.pon_color_texto(231, 1, 231, 1, 8);
        falla_tras(n);
        b.borra(40, 170);
        falla_tras(-1);
        ASSERT_EQ(b.filas(), 86);
        for (int f = 0; f < 86; ++f) {
            ASSERT_EQ(b.texto(f, 1), std::to_string(f < 40 ? f : f + 170)) << n;
            ASSERT_EQ(b.color_fondo(f, 1), f == 60 ? 7 : 0) << n;
            ASSERT_EQ(b.color_texto(f, 1), f == 61 ? 8 : 0) << n;
        }
    }
}

} // namespace
} // namespace Qlt4_Tabla
