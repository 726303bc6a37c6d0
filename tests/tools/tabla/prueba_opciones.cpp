// SPDX-License-Identifier: MIT
// The command line: what is understood and what is refused, with its words.
#include "tools/tabla/opciones.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Qlt4_Tabla::herramienta {

namespace {

using testing::ElementsAre;

std::string fallo(const std::vector<std::string>& argumentos) {
    try {
        static_cast<void>(lee_opciones(argumentos));
    } catch (const OrdenMalEscrita& e) {
        return e.what();
    }
    return "bien";
}

Opciones lee(const std::vector<std::string>& argumentos) { return lee_opciones(argumentos); }

TEST(Opciones, las_ordenes_y_sus_ficheros) {
    EXPECT_EQ(lee({"info", "t.tb0"}).orden, Orden::Info);
    EXPECT_EQ(lee({"a-texto", "t.tb0"}).orden, Orden::ATexto);
    EXPECT_THAT(lee({"comprueba", "a", "b"}).ficheros, ElementsAre("a", "b"));
    EXPECT_THAT(lee({"de-texto", "-o", "t"}).ficheros, ElementsAre("-"));
    EXPECT_THAT(lee({"de-texto", "-o", "t", "-"}).ficheros, ElementsAre("-"));
}

TEST(Opciones, un_valor_se_escribe_de_todas_las_maneras) {
    using Argumentos = std::vector<std::string>;
    for (const Argumentos& a : {Argumentos{"a-texto", "-f", "csv", "t"}, Argumentos{"a-texto", "-fcsv", "t"},
             Argumentos{"--formato", "csv", "a-texto", "t"}, Argumentos{"a-texto", "t", "--formato=csv"}})
        EXPECT_EQ(lee(a).formato, Formato::Csv);
    EXPECT_EQ(lee({"a-texto", "t", "--separador=;"}).separador, ';');
    EXPECT_EQ(lee({"a-texto", "t", "-d", "\\t"}).separador, '\t');
    EXPECT_EQ(lee({"de-texto", "-o", "t", "-s", "--raro"}).subtitulo, "--raro");
    EXPECT_EQ(lee({"de-texto", "-o", "t", "--subtitulo="}).subtitulo, "");
}

TEST(Opciones, tras_dos_guiones_todo_son_ficheros) {
    EXPECT_THAT(lee({"info", "--", "--help"}).ficheros, ElementsAre("--help"));
}

TEST(Opciones, la_ayuda_y_la_version_no_piden_orden) {
    EXPECT_EQ(lee({"--help"}).orden, Orden::Ayuda);
    EXPECT_EQ(lee({"-h"}).orden, Orden::Ayuda);
    EXPECT_EQ(lee({"info", "--help"}).orden, Orden::Ayuda);
    EXPECT_EQ(lee({"--version"}).orden, Orden::Version);
}

TEST(Opciones, lo_mal_escrito_se_dice) {
    EXPECT_EQ(fallo({}), "falta la orden");
    EXPECT_EQ(fallo({"mira", "t"}), "no hay ninguna orden «mira»");
    EXPECT_EQ(fallo({"info"}), "falta el fichero");
    EXPECT_EQ(fallo({"info", "a", "b"}), "sobra un fichero: «b»");
    EXPECT_EQ(fallo({"info", "--raro", "a"}), "no hay ninguna opción «--raro»");
    EXPECT_EQ(fallo({"comprueba", "-qz", "a"}), "no hay ninguna opción «-z»");
    EXPECT_EQ(fallo({"a-texto", "t", "-f"}), "falta lo que va detrás de «-f»");
    EXPECT_EQ(fallo({"a-texto", "t", "-f", "xls"}), "no hay ningún formato «xls»");
    EXPECT_EQ(fallo({"a-texto", "t", "--numeros=1"}), "no lleva ningún valor la opción «--numeros»");
    EXPECT_EQ(fallo({"info", "t", "--numeros"}), "a esta orden no le sirve la opción «--numeros»");
    EXPECT_EQ(fallo({"de-texto", "t"}), "falta el fichero que se ha de hacer: -o FICHERO");
    EXPECT_EQ(fallo({"de-texto", "-f", "json", "-o", "t"}), "de-texto lee tsv o csv, no json");
    for (const char* const malo : {"", "ab", "\"", "ñ", "\n"})
        EXPECT_EQ(fallo({"a-texto", "t", "-d", malo}),
            std::string("el separador ha de ser un solo signo, no comillas, y no «") + malo + "»");
}

} // namespace

} // namespace Qlt4_Tabla::herramienta
