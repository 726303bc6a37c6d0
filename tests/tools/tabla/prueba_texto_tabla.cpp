// SPDX-License-Identifier: MIT
// Rows as lines of text and back, quotes and ends of line among them; JSON.
#include "tools/tabla/texto_tabla.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla::herramienta {

namespace {

using testing::ElementsAre;
using Fila = std::vector<std::string>;

std::vector<Fila> filas(std::string_view texto, char separador = ',') {
    LectorTexto lector(texto, separador);
    std::vector<std::string_view> celdas;
    std::vector<Fila> todas;
    while (lector.siguiente(celdas)) todas.emplace_back(celdas.begin(), celdas.end());
    return todas;
}

std::string linea(const std::vector<std::string_view>& celdas, char separador = ',') {
    std::string texto;
    anade_linea(celdas, separador, texto);
    return texto;
}

TEST(TextoTabla, las_lineas_acaban_de_tres_maneras) {
    EXPECT_THAT(filas("a,b\nc\r\nd\re"), ElementsAre(Fila{"a", "b"}, Fila{"c"}, Fila{"d"}, Fila{"e"}));
    EXPECT_THAT(filas("a\n"), ElementsAre(Fila{"a"}));
    EXPECT_THAT(filas("a\n\nb"), ElementsAre(Fila{"a"}, Fila{""}, Fila{"b"}));
    EXPECT_THAT(filas("\n"), ElementsAre(Fila{""}));
    EXPECT_TRUE(filas("").empty());
    EXPECT_THAT(filas(",\n,"), ElementsAre(Fila{"", ""}, Fila{"", ""}));
}

TEST(TextoTabla, las_comillas_guardan_lo_que_hay_dentro) {
    EXPECT_THAT(filas("\"a,b\",c"), ElementsAre(Fila{"a,b", "c"}));
    EXPECT_THAT(filas("\"a \"\"b\"\"\"\n1"), ElementsAre(Fila{"a \"b\""}, Fila{"1"}));
    EXPECT_THAT(filas("\"a\r\nb\"\nc"), ElementsAre(Fila{"a\r\nb"}, Fila{"c"}));
    EXPECT_THAT(filas("5\",6\""), ElementsAre(Fila{"5\"", "6\""})); // inches, not quotes
    EXPECT_THAT(filas("\"a\"b,c"), ElementsAre(Fila{"ab", "c"}));
    EXPECT_THAT(filas("\"\",\"\"\n"), ElementsAre(Fila{"", ""}));
}

TEST(TextoTabla, sabe_en_que_linea_esta_y_que_unas_comillas_no_se_cierran) {
    LectorTexto lector("a\n\"b\n\nc\"\nd\n\"e\nf", ',');
    std::vector<std::string_view> celdas;
    std::vector<std::size_t> lineas;
    while (lector.siguiente(celdas)) lineas.push_back(lector.linea());
    EXPECT_THAT(lineas, ElementsAre(1, 2, 5, 6));
    EXPECT_TRUE(lector.comillas_abiertas());
}

TEST(TextoTabla, solo_lleva_comillas_lo_que_las_pide) {
    EXPECT_EQ(linea({"a", "b c", ""}), "a,b c,\n");
    EXPECT_EQ(linea({"a,b", "c;d"}, ';'), "a,b;\"c;d\"\n");
    EXPECT_EQ(linea({"a\"b", "c\nd", "e\rf"}, '\t'), "\"a\"\"b\"\t\"c\nd\"\t\"e\rf\"\n");
}

TEST(TextoTabla, toda_fila_vuelve_igual) {
    const std::vector<std::string_view> raros{
        "", "a", "\"", "\"\"", ",", "\t", "\n", "\r", "\r\n", " a ", "a\"b,c\td\r\n", "ñ€"};
    for (const char separador : {',', ';', '\t'}) {
        for (const std::string_view a : raros)
            for (const std::string_view b : raros)
                EXPECT_THAT(filas(linea({a, b, "z"}, separador), separador),
                    ElementsAre(Fila{std::string(a), std::string(b), "z"}));
    }
}

TEST(TextoTabla, json_escapa_lo_que_debe) {
    std::string texto;
    anade_json("a\"b\\c\n\r\t\x01ñ/", texto);
    EXPECT_EQ(texto, "\"a\\\"b\\\\c\\n\\r\\t\\u0001ñ/\"");
    texto.clear();
    anade_json(std::vector<std::string_view>{"1", "", "x"}, texto);
    EXPECT_EQ(texto, "[\"1\",\"\",\"x\"]");
}

} // namespace

} // namespace Qlt4_Tabla::herramienta
