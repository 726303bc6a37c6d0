// SPDX-License-Identifier: MIT
// The parts of the adapter that need no process: the block of cells, the messages, the search for the helper.
#include "spreadsheet/bloque_csv.h"
#include "spreadsheet/busca_auxiliar.h"
#include "spreadsheet/protocolo.h"
#include "tests/base/error_de.h"
#include "tests/headless/carpeta_de_prueba.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

namespace {

TEST(Bloque, lleva_comillas_lo_que_ha_de_quedar_texto) {
    const std::vector<std::pair<std::string, std::string>> casos{{"", ""}, {"1.5", "1.5"}, {"1,5", "1,5"},
        {"a b", "a b"}, {" ", " "}, {"'x", "'x"}, {"+A1", "+A1"}, {"a=b", "a=b"}, {"ñ", "ñ"},
        {"=1+1", "\"=1+1\""}, {"=", "\"=\""}, {"a\tb", "\"a\tb\""}, {"a\r\nb", "\"a\r\nb\""},
        {"\n", "\"\n\""}, {"a\"b", "\"a\"\"b\""}, {"\"", "\"\"\"\""}, {"\"\"", "\"\"\"\"\"\""}};
    for (const auto& [celda, campo] : casos) {
        BloqueCsv b;
        b.pon(1, 1, celda);
        EXPECT_EQ(b.texto(), campo);
    }
}

TEST(Bloque, las_celdas_caen_en_su_fila_y_columna) {
    BloqueCsv b;
    b.pon(2, 2, "a");
    b.pon(2, 5, "b");
    b.pon(4, 1, "c");
    b.pon(4, 2, "");
    b.pon(5, 1, "");
    EXPECT_EQ(b.texto(), "\n\ta\t\t\tb\n\nc\t\n");
    b.vacia();
    b.pon(1, 1, "d");
    EXPECT_EQ(b.texto(), "d");
}

TEST(Bloque, fuera_de_la_hoja_o_de_orden_no_recoge_nada) {
    BloqueCsv b;
    b.pon(3, 3, "a");
    const std::string antes(b.texto());
    for (const auto& [fila, col] : {std::pair(1'048'577, 1), std::pair(3, 16'385)})
        EXPECT_EQ(error_de([&, f = fila, c = col] { b.pon(f, c, "x"); }), 1004) << fila << ", " << col;
    for (const auto& [fila, col] :
        {std::pair(3, 3), std::pair(3, 2), std::pair(2, 9), std::pair(4, 0), std::pair(0, 1)})
        EXPECT_EQ(error_de([&, f = fila, c = col] { b.pon(f, c, "x"); }), 5) << fila << ", " << col;
    EXPECT_EQ(b.texto(), antes);
    EXPECT_EQ(error_de([&] { b.pon(1'048'576, 16'384, "x"); }), 0);
}

struct Mensajes : testing::Test {
    LectorMensajes lector{1000};
    std::vector<std::pair<std::string, std::string>> leidos;

    void lee(std::string_view bytes, std::size_t trozo) {
        for (; !bytes.empty(); bytes.remove_prefix(std::min(trozo, bytes.size()))) {
            lector.anade(bytes.substr(0, trozo));
            while (auto m = lector.siguiente()) leidos.emplace_back(m->nombre, m->cuerpo);
        }
    }
};

TEST_F(Mensajes, se_leen_enteros_en_trozos_de_cualquier_tamano) {
    const std::string bytes =
        cabecera("uno", 3) + "a\nb" + cabecera("dos", 0) + cabecera("tres", 6) + "bien 0";
    for (std::size_t trozo = 1; trozo <= bytes.size(); ++trozo) {
        leidos.clear();
        lee(bytes, trozo);
        EXPECT_THAT(leidos,
            testing::ElementsAre(std::pair("uno", "a\nb"), std::pair("dos", ""), std::pair("tres", "bien 0")))
            << trozo;
    }
}

TEST_F(Mensajes, lo_que_no_es_un_mensaje_se_rechaza) {
    for (const std::string& malo : {std::string("hola\n"), std::string("bien -1\n"), std::string("bien 1x\n"),
             std::string("bien \n"), std::string("bien 1001\n"),
             std::string("bien 99999999999999999999999\n"), std::string(65, 'x')}) {
        LectorMensajes otro(1000);
        otro.anade(malo);
        EXPECT_EQ(error_de([&] { static_cast<void>(otro.siguiente()); }), 462) << malo;
    }
}

TEST_F(Mensajes, las_lineas_se_toman_una_a_una) {
    std::string_view texto = "a\n\nb";
    EXPECT_EQ(toma_linea(texto), "a");
    EXPECT_EQ(toma_linea(texto), "");
    EXPECT_EQ(toma_linea(texto), "b");
    EXPECT_EQ(texto, "");
    EXPECT_EQ(toma_linea(texto), "");
}

struct Busca : testing::Test {
    CarpetaDePrueba aqui;
    std::vector<std::filesystem::path> carpetas{aqui("uno"), aqui("dos"), aqui("tres")};

    void SetUp() override {
        for (const auto& c : carpetas) std::filesystem::create_directory(c);
    }

    std::filesystem::path programa(const char* carpeta) {
        const std::string ruta = aqui.pon(std::string(carpeta) + '/' + std::string(NOMBRE_AUXILIAR), "x");
        std::filesystem::permissions(ruta, std::filesystem::perms::owner_all);
        return ruta;
    }
};

TEST_F(Busca, vale_la_primera_carpeta_que_tiene_el_programa) {
    EXPECT_EQ(busca_auxiliar(carpetas), "");
    const auto tercero = programa("tres");
    EXPECT_EQ(busca_auxiliar(carpetas), tercero);
    const auto segundo = programa("dos");
    EXPECT_EQ(busca_auxiliar(carpetas), segundo);
}

TEST_F(Busca, ni_una_carpeta_ni_un_fichero_sin_permiso_son_el_programa) {
    std::filesystem::create_directory(carpetas[0] / NOMBRE_AUXILIAR);
    std::filesystem::permissions(programa("dos"), std::filesystem::perms::owner_read);
    const auto tercero = programa("tres");
    EXPECT_EQ(busca_auxiliar(carpetas), tercero);
}

TEST_F(Busca, mira_junto_al_programa_y_en_la_carpeta_de_al_lado) {
    const auto todas = carpetas_del_auxiliar();
    const auto nuestra = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    ASSERT_GE(todas.size(), 3U);
    EXPECT_EQ(todas[0], nuestra);
    EXPECT_EQ(todas[1], nuestra.parent_path() / "libexec" / "qlt4_tabla");
}

} // namespace

} // namespace Qlt4_Tabla
