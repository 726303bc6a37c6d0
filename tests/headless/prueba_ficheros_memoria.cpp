// SPDX-License-Identifier: MIT
// Files and file dialog in memory: the same errors as the machine's, failures on request.
#include "headless/dialogo_fichero_memoria.h"
#include "headless/ficheros_memoria.h"
#include "tests/base/error_de.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;

class PruebaMemoria : public testing::Test {
protected:
    int al_leer(std::string_view nombre) {
        return error_de([&] { static_cast<void>(f.lee(nombre)); });
    }

    int al_escribir(std::string_view nombre, std::string_view bytes = "x") {
        return error_de([&] { f.escribe_al_inicio(nombre, bytes); });
    }

    FicherosMemoria f;
};

TEST_F(PruebaMemoria, escribe_al_inicio_y_deja_lo_de_detras) {
    EXPECT_EQ(al_escribir("t", "0123456789"), 0);
    EXPECT_EQ(al_escribir("t", "abc"), 0);
    EXPECT_EQ(f.lee("t").vista(), "abc3456789");
}

TEST_F(PruebaMemoria, los_bytes_pueden_venir_a_piezas_y_faltar_a_medias) {
    f.escribe_al_inicio("t", [](const TomaBytes& toma) {
        toma("abc");
        toma("");
        toma("de");
    });
    EXPECT_EQ(f.contenidos["t"], "abcde");
    const auto falta = [](const TomaBytes& toma) {
        toma("XYZ");
        lanza(NumError::LlamadaNoValida);
    };
    EXPECT_EQ(error_de([&] { f.escribe_al_inicio("t", falta); }), 5);
    EXPECT_EQ(f.contenidos["t"], "abcde");
    EXPECT_EQ(f.contenidos.size(), 1U);
}

TEST_F(PruebaMemoria, lo_abierto_es_lo_que_habia_y_se_lee_por_partes) {
    f.contenidos["t"] = "0123456789";
    const auto abierto = f.abre("t");
    f.contenidos.erase("t");
    char letras[4] = {};
    EXPECT_EQ(abierto->tamano(), 10U);
    EXPECT_EQ(abierto->lee(3, letras, 3), 3U);
    EXPECT_STREQ(letras, "345");
    EXPECT_EQ(abierto->lee(8, letras, 3), 2U);
    EXPECT_EQ(abierto->lee(10, letras, 3), 0U);
}

TEST_F(PruebaMemoria, los_errores_de_los_nombres) {
    EXPECT_EQ(al_leer("nada"), 53);
    EXPECT_EQ(al_leer(""), 75);
    EXPECT_EQ(al_leer("/casa"), 75);
    EXPECT_EQ(al_escribir("/otra/t"), 76);
    EXPECT_EQ(al_escribir("/casa/t"), 0);
    f.falla("/casa/t", 70);
    EXPECT_EQ(al_leer("/casa/t"), 70);
    EXPECT_EQ(al_escribir("/casa/t"), 70);
    f.falla("/casa/t", 0);
    EXPECT_EQ(al_leer("/casa/t"), 0);
}

TEST_F(PruebaMemoria, falla_en_el_paso_pedido_y_deja_el_viejo) {
    const std::string viejo(200, 'v');
    const std::string nuevo(150, 'n');
    f.contenidos["t"] = viejo;
    for (int paso = 1; paso <= 6; ++paso) { // make, four pieces, rename
        f.falla_en_paso(paso, 61);
        EXPECT_EQ(al_escribir("t", nuevo), 61);
        EXPECT_EQ(f.contenidos["t"], viejo);
        EXPECT_EQ(f.contenidos.size(), 1U);
    }
    EXPECT_EQ(al_escribir("t", nuevo), 0);
    EXPECT_EQ(f.contenidos["t"], nuevo + viejo.substr(150));
}

TEST_F(PruebaMemoria, un_corte_deja_el_temporal) {
    f.contenidos["t"] = "viejo";
    f.interrumpe_en_paso(3);
    EXPECT_EQ(al_escribir("t", "nuevo"), 57);
    EXPECT_EQ(f.contenidos["t"], "viejo");
    EXPECT_EQ(f.contenidos["t.tmp"], "nuevo");
}

TEST(PruebaDialogoFichero, apunta_lo_que_se_le_pide_y_da_lo_elegido) {
    Registro registro;
    DialogoFicheroMemoria d(registro);
    d.rutas = {"/casa/t.tb0"};
    d.movido_a = {30.0F, 40.0F};
    const RespuestaFichero r = d.pide({ModoFichero::Guardar, "T", "F|*.f", "/casa", "n", "f", 1, 2});
    EXPECT_EQ(r.ruta, "/casa/t.tb0");
    EXPECT_EQ(r.izquierda, 30.0F);
    EXPECT_EQ(r.arriba, 40.0F);
    EXPECT_EQ(d.pide({}).ruta, "");
    EXPECT_THAT(
        registro, ElementsAre("dialogo_fichero guardar|T|F|*.f|/casa|n|f", "dialogo_fichero abrir|||||"));
}

} // namespace

} // namespace Qlt4_Tabla
