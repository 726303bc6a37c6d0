// SPDX-License-Identifier: MIT
// The export into a real office without windows: what its sheet holds afterwards, and what happens when it goes
// away. Each test starts an office on a profile of its own.
#include "tests/base/error_de.h"
#include "tests/spreadsheet/oficina/oficina_de_prueba.h"

#include <gtest/gtest.h>

#include <chrono>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <cstdio>
#include <cstdlib>
#include <signal.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using css::table::CellContentType;
using css::uno::Reference;
using css::uno::UNO_QUERY_THROW;

struct Separador final : SeparadorDecimal {
    bool coma = false;

    [[nodiscard]] bool es_coma() const override { return coma; }
};

struct Caso {
    std::string_view celda;
    CellContentType tipo;
    double valor;
};

constexpr auto NUMERO = css::table::CellContentType_VALUE;
constexpr auto TEXTO = css::table::CellContentType_TEXT;
constexpr auto VACIA = css::table::CellContentType_EMPTY;

struct Oficina : testing::Test {
    Separador separador;
    OficinaDePrueba oficina;
    HojaLibreOffice hoja{separador, oficina.opciones()};

    void empieza() {
        hoja.crea_aplicacion();
        hoja.anade_libro();
        hoja.toma_primera_hoja();
    }

    void acaba() {
        hoja.muestra();
        hoja.suelta();
    }

    /// One case a row, in column 2; the texts must come back as they went.
    void llegan(const std::vector<Caso>& casos) {
        empieza();
        int fila = 0;
        for (const Caso& c : casos) hoja.escribe_celda(++fila, 2, c.celda);
        acaba();
        const auto libro = oficina.libros().at(0);
        fila = 0;
        for (const Caso& c : casos) {
            const CeldaLeida leida = oficina.celda(libro, ++fila, 2);
            EXPECT_EQ(leida.tipo, c.tipo) << c.celda;
            EXPECT_DOUBLE_EQ(leida.valor, c.valor) << c.celda;
            if (c.tipo != TEXTO) continue;
            EXPECT_EQ(leida.texto, c.celda);
        }
    }
};

TEST_F(Oficina, en_punto_los_numeros_son_numeros_y_los_textos_textos) {
    llegan({{"1.5", NUMERO, 1.5}, {"-0.001", NUMERO, -0.001}, {"007", NUMERO, 7}, {"1e3", NUMERO, 1000},
        {"123456789.123", NUMERO, 123456789.123}, {"", VACIA, 0}, {"1,5", TEXTO, 0}, {"1.2.3", TEXTO, 0},
        {"P-1", TEXTO, 0}, {"=1+1", TEXTO, 0}, {"=A1", TEXTO, 0}, {"+A1", TEXTO, 0}, {"@x", TEXTO, 0},
        {"'x", TEXTO, 0}, {"a\tb", TEXTO, 0}, {"a\nb", TEXTO, 0}, {"di \"ñ\"", TEXTO, 0}, {"\"", TEXTO, 0},
        {" a ", TEXTO, 0}, {"€ 漢字 😀", TEXTO, 0}});
}

TEST_F(Oficina, en_coma_los_numeros_son_numeros_y_los_textos_textos) {
    separador.coma = true;
    llegan({{"1,5", NUMERO, 1.5}, {"-0,001", NUMERO, -0.001}, {"123456789,123", NUMERO, 123456789.123},
        {"1,5e3", NUMERO, 1500}, {"1,2.3", TEXTO, 0}, {"=1,5", TEXTO, 0}, {"a.b", TEXTO, 0}, {"", VACIA, 0}});
}

TEST_F(Oficina, el_libro_es_nuevo_modificado_y_con_su_hoja_nombrada) {
    empieza();
    hoja.escribe_celda(1, 1, "1");
    hoja.escribe_celda(3, 2, "2");
    acaba();
    const auto libros = oficina.libros();
    ASSERT_EQ(libros.size(), 1U);
    EXPECT_EQ(
        Reference<css::container::XNamed>(oficina.hoja(libros[0]), UNO_QUERY_THROW)->getName(), "Hoja1");
    EXPECT_TRUE(Reference<css::util::XModifiable>(libros[0], UNO_QUERY_THROW)->isModified());
    const Reference<css::frame::XStorable> guardable(libros[0], UNO_QUERY_THROW);
    EXPECT_FALSE(guardable->hasLocation());
    EXPECT_FALSE(guardable->isReadonly());
    EXPECT_EQ(oficina.celda(libros[0], 3, 2).valor, 2);
    EXPECT_EQ(oficina.celda(libros[0], 2, 1).tipo, VACIA);
}

TEST_F(Oficina, la_segunda_exportacion_usa_el_programa_ya_abierto) {
    for (int vez = 0; vez < 2; ++vez) {
        empieza();
        hoja.escribe_celda(1, 1, vez == 0 ? "10" : "20");
        acaba();
    }
    const auto libros = oficina.libros();
    ASSERT_EQ(libros.size(), 2U);
    EXPECT_EQ(oficina.celda(libros[0], 1, 1).valor + oficina.celda(libros[1], 1, 1).valor, 30);
}

TEST_F(Oficina, lo_que_no_llego_a_mostrarse_se_cierra_con_el_programa) {
    empieza();
    EXPECT_TRUE(oficina.responde());
    hoja.escribe_celda(1, 1, "1");
    hoja.suelta();
    for (int vez = 0; vez < 250 && oficina.tiene_procesos(); ++vez) ::usleep(20'000);
    EXPECT_FALSE(oficina.tiene_procesos());
}

TEST_F(Oficina, si_la_oficina_muere_por_el_camino_se_ha_perdido) {
    empieza();
    hoja.escribe_celda(1, 1, "1");
    oficina.muere();
    EXPECT_EQ(error_de([&] { hoja.muestra(); }), 462);
    EXPECT_EQ(error_de([&] { hoja.anade_libro(); }), 462);
    hoja.suelta();
}

TEST_F(Oficina, una_oficina_colgada_muere_al_acabar_el_plazo) {
    OpcionesHoja impaciente = oficina.opciones();
    impaciente.por_operacion = std::chrono::seconds(1);
    HojaLibreOffice h(separador, impaciente);
    h.crea_aplicacion();
    h.anade_libro();
    h.toma_primera_hoja();
    h.escribe_celda(1, 1, "1");
    EXPECT_TRUE(oficina.tiene_procesos());
    oficina.se_cuelga();
    EXPECT_EQ(error_de([&] { h.muestra(); }), 462);
    for (int vez = 0; vez < 100 && oficina.tiene_procesos(); ++vez) ::usleep(20'000);
    EXPECT_FALSE(oficina.tiene_procesos());
}

TEST_F(Oficina, un_millon_de_celdas_cabe_en_el_plazo) {
    empieza();
    std::string celda;
    for (int fila = 1; fila <= 100'000; ++fila)
        for (int col = 1; col <= 10; ++col) {
            celda = std::to_string(fila) + ".12" + std::to_string(col % 10);
            hoja.escribe_celda(fila, col, celda);
        }
    acaba();
    const auto libro = oficina.libros().at(0);
    EXPECT_DOUBLE_EQ(oficina.celda(libro, 1, 1).valor, 1.121);
    EXPECT_DOUBLE_EQ(oficina.celda(libro, 100'000, 10).valor, 100'000.120);
    const auto todas = oficina.hoja(libro)->getCellRangeByPosition(0, 49'999, 9, 49'999);
    const auto fila = Reference<css::sheet::XCellRangeData>(todas, UNO_QUERY_THROW)->getDataArray()[0];
    for (sal_Int32 i = 0; i < 10; ++i)
        EXPECT_DOUBLE_EQ(fila[i].get<double>(), 50'000.12 + (i + 1) % 10 / 1000.0);
}

} // namespace

} // namespace Qlt4_Tabla

// No tidy end: taking the bridges to offices that have gone down may hang.
int main(int argc, char** argv) {
    ::signal(SIGPIPE, SIG_IGN); // an office that goes away while it is asked something
    testing::InitGoogleTest(&argc, argv);
    const int fin = RUN_ALL_TESTS();
    std::fflush(nullptr);
    std::_Exit(fin);
}
