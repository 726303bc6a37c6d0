// SPDX-License-Identifier: MIT
// The record byte for byte: small tables written out by hand beside what is written, and read back.
#include "base/little_endian.h"
#include "files/escritor_tb0.h"
#include "files/lector_tb0.h"
#include "files/texto_1252.h"
#include "tests/core/mesa.h"
#include "tests/files/bytes_a_mano.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

namespace {

class PruebaEscritor : public testing::Test {
protected:
    std::string escrito(std::string_view subtitulo) { return bytes_tb0(m.t(), subtitulo, m.e.Formatos[25]); }

    int error_al_escribir() {
        try {
            static_cast<void>(bytes_tb0(m.t(), "", {}));
        } catch (const Error& e) {
            return e.numero();
        }
        return 0;
    }

    Mesa m;
};

TEST_F(PruebaEscritor, una_tabla_de_una_celda) {
    m.t().Cols(1);
    m.t().Rows(1);
    EXPECT_EQ(en_hexadecimal(escrito("Ejes")),
        en_hexadecimal(bytes("04 00 'Ejes'" // subtitle
                             " 00 00 00 00  00 00 00 00" // last column, last row
                             " 01 00  01 00 00 00  00 00 00 00" // one dimension, one row, from 0
                             " 01 00  01 00 00 00  00 00 00 00  00 00" // its one cell, empty
                             " 00*416"))); // 26 formats of 16 bytes
}

TEST_F(PruebaEscritor, filas_columnas_letras_y_el_formato_25) {
    m.pon_tamano(3, 2);
    m.t().TextMatrix(0, 1, "Año");
    m.t().TextMatrix(0, 2, "Precio €");
    m.t().TextMatrix(1, 1, "7");
    m.t().TextMatrix(1, 2, "Ω");
    m.e.Formatos[25] = {.Nombre = "Z",
        .Invisible = true,
        .Longitud = 10,
        .Formato = 2,
        .Decimales = 3,
        .Alineacion = 2,
        .Accion = -1};
    m.e.Formatos[3].Nombre = "not written";
    EXPECT_EQ(en_hexadecimal(escrito("Café")),
        en_hexadecimal(bytes("04 00 'Caf' E9"
                             " 02 00 00 00  01 00 00 00"
                             " 01 00  02 00 00 00  00 00 00 00"
                             " 01 00  03 00 00 00  00 00 00 00  00 00"
                             " 03 00 'A' F1 'o'  08 00 'Precio' 20 80"
                             " 01 00  03 00 00 00  00 00 00 00  01 00 '1'  01 00 '7'  01 00 '?'"
                             " 00*400" // 25 empty formats
                             " 01 00 'Z' FF FF 00 00 0A 00 02 00 03 00 02 00 FF FF")));
}

TEST_F(PruebaEscritor, tres_filas_y_cuatro_columnas_de_datos) {
    m.pon_tamano(5, 4);
    const auto examen = examina_tb0(escrito("S"));
    const auto& r = std::get<RegistroTb0>(examen);
    EXPECT_EQ(r.filas, 4);
    EXPECT_EQ(r.columnas, 5);
    EXPECT_EQ(r.bytes, escrito("S").size());
}

TEST_F(PruebaEscritor, el_texto_mas_largo_y_uno_de_mas) {
    m.pon_tamano(2, 2);
    m.t().TextMatrix(1, 1, std::string(65535, 'x'));
    EXPECT_EQ(error_al_escribir(), 0);
    m.t().TextMatrix(1, 1, std::string(65536, 'x'));
    EXPECT_EQ(error_al_escribir(), 5);
}

TEST_F(PruebaEscritor, la_longitud_es_la_de_los_bytes_escritos) {
    std::string enes;
    for (int i = 0; i < 65535; ++i) enes += "ñ"; // 131,070 bytes in memory, 65,535 in the file
    m.pon_tamano(2, 2);
    m.t().TextMatrix(1, 1, enes);
    EXPECT_EQ(error_al_escribir(), 0);
    m.e.Formatos[25].Nombre = std::string(70000, 'x');
    EXPECT_THROW(escrito("S"), Error);
}

TEST_F(PruebaEscritor, lo_que_no_se_podria_leer_no_se_escribe) {
    EXPECT_EQ(error_al_escribir(), 9); // no rows, no columns
    m.pon_tamano(26, 2);
    EXPECT_EQ(error_al_escribir(), 0);
    m.t().Cols(27);
    EXPECT_EQ(error_al_escribir(), 9);
}

TEST_F(PruebaEscritor, escrito_por_segunda_vez_no_se_dice_otra_vez_cuanto_va) {
    m.pon_tamano(3, 10'000);
    Avance avance(m.p.mensajes, "Guardando", 10'000);
    m.p.registro.clear();
    for (int vez = 0; vez < 2; ++vez)
        escribe_tb0(
            m.t(), "S", {}, [](std::string_view) {}, avance);
    EXPECT_EQ(m.p.registro.size(), 99U); // the last row is the 9,999th of those 10,000
}

// The rule written plainly: every text by itself.
std::string a_la_llana(const Tablero& t, std::string_view subtitulo) {
    std::string todo;
    const auto pon_con_longitud = [&todo](std::string_view texto) {
        const std::string b = a_1252(texto);
        pon16(todo, static_cast<std::uint16_t>(b.size()));
        todo += b;
    };
    const auto pon_matriz = [&todo](int n) {
        pon16(todo, std::uint16_t{1});
        pon32(todo, static_cast<std::uint32_t>(n));
        pon32(todo, std::uint32_t{0});
    };
    pon_con_longitud(subtitulo);
    pon32(todo, static_cast<std::uint32_t>(t.Cols() - 1));
    pon32(todo, static_cast<std::uint32_t>(t.Rows() - 1));
    pon_matriz(t.Rows());
    for (int fila = 0; fila < t.Rows(); ++fila) {
        pon_matriz(t.Cols());
        for (int col = 0; col < t.Cols(); ++col) pon_con_longitud(t.TextMatrix(fila, col));
    }
    return todo + std::string(416, '\0');
}

TEST_F(PruebaEscritor, tablas_al_azar_salen_como_dice_la_regla) {
    const std::array<std::string, 4> letras{"1", "z", "ñ", "Ω"};
    for (unsigned semilla = 0; semilla < 60; ++semilla) {
        std::mt19937 azar(semilla);
        const auto menor = [&azar](int n) { return std::uniform_int_distribution<int>(0, n - 1)(azar); };
        Mesa mesa;
        mesa.pon_tamano(1 + menor(26), 1 + menor(80));
        const int raras = menor(3) == 0 ? 4 : 2; // without letters beyond ASCII in most tables
        for (int n = menor(2000); n > 0; --n) {
            std::string texto;
            const int bytes = menor(10) == 0 ? menor(300) : menor(20);
            const std::string& letra = letras[static_cast<std::size_t>(menor(40) == 0 ? menor(raras) : 0)];
            for (int i = 0; i < bytes; ++i) texto += i % 7 == 3 ? letra : std::string("4");
            mesa.t().TextMatrix(menor(mesa.t().Rows()), menor(mesa.t().Cols()), texto);
        }
        ASSERT_TRUE(bytes_tb0(mesa.t(), "S", {}) == a_la_llana(mesa.t(), "S")) << semilla;
    }
}

TEST_F(PruebaEscritor, muchas_filas_de_todos_los_largos_vuelven_iguales) {
    m.pon_tamano(26, 300);
    for (int fila = 0; fila < 300; ++fila)
        for (int col = 1; col < 26; ++col)
            m.t().TextMatrix(fila, col, std::string(static_cast<std::size_t>((fila * col) % 400), 'a'));
    const std::string todo = escrito("S");
    const auto r = std::get<RegistroTb0>(examina_tb0(todo));
    BytesAbiertos fichero(todo);
    LectorTb0 filas(fichero);
    EXPECT_EQ(filas.cabeza().filas, r.filas);
    for (int fila = 0; fila < 300; ++fila) {
        const auto textos = filas.siguiente();
        ASSERT_EQ(textos[0], fila == 0 ? "" : std::to_string(fila));
        for (int col = 1; col < 26; ++col)
            ASSERT_EQ(textos[static_cast<std::size_t>(col)], m.t().TextMatrix(fila, col));
    }
}

} // namespace

} // namespace Qlt4_Tabla
