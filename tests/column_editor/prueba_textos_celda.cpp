// SPDX-License-Identifier: MIT
// Fields of a format as texts of cells, and the repair of values outside their range.
#include "column_editor/textos_celda.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>

using namespace Qlt4_Tabla;

namespace {

struct Caso {
    std::int16_t valor;
    std::string_view texto;
    std::int16_t queda;
};

void comprueba(std::string_view (*texto)(std::int16_t&) noexcept, std::initializer_list<Caso> casos) {
    for (const Caso& c : casos) {
        std::int16_t valor = c.valor;
        EXPECT_EQ(texto(valor), c.texto) << c.valor;
        EXPECT_EQ(valor, c.queda) << c.valor;
    }
}

} // namespace

TEST(Textos_de_celda, visible_y_bloqueada) {
    EXPECT_EQ(texto_visible(true), "No");
    EXPECT_EQ(texto_visible(false), "Si");
    EXPECT_EQ(texto_bloqueada(true), "Si");
    EXPECT_EQ(texto_bloqueada(false), "No");
}

TEST(Textos_de_celda, formato) {
    comprueba(texto_formato,
        {{0, "Entero", 0}, {1, "Entero_positivo", 1}, {2, "Real", 2}, {3, "Real_positivo", 3},
            {4, "Alfanumérico", 4}, {5, "Lista", 5}, {6, "Color", 6}, {7, "Entero", 0}, {-1, "Entero", 0}});
}

TEST(Textos_de_celda, alineacion) {
    comprueba(texto_alineacion,
        {{0, "Izquierda", 0}, {1, "Centrado", 1}, {2, "Derecha", 2}, {3, "Izquierda", 0}, {5, "Izquierda", 0},
            {-1, "Izquierda", 0}, {32767, "Izquierda", 0}, {-32768, "Izquierda", 0}});
}

TEST(Textos_de_celda, accion) {
    comprueba(texto_accion,
        {{0, "Off", 0}, {1, "Repite", 1}, {2, "Increm", 2}, {3, "Decrem", 3}, {4, "Off", 0}, {-1, "Off", 0}});
}
