// SPDX-License-Identifier: MIT
// The commands on files in memory: results, faults in words, exit codes, the road to text and back.
#include "headless/ficheros_memoria.h"
#include "tools/tabla/ordenes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace Qlt4_Tabla::herramienta {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class PruebaOrdenes : public testing::Test {
protected:
    int corre(const std::vector<std::string>& argumentos) {
        salida.str({});
        errores.str({});
        Entorno entorno{ficheros, entrada, salida, errores};
        return static_cast<int>(ejecuta(entorno, argumentos));
    }

    /// A table file out of lines of csv.
    void haz(const std::string& nombre, const std::string& csv, const std::string& subtitulo = "Puntos") {
        entrada.str(csv);
        entrada.clear();
        EXPECT_EQ(corre({"de-texto", "-f", "csv", "-s", subtitulo, "-o", nombre}), 0) << errores.str();
    }

    FicherosMemoria ficheros;
    std::istringstream entrada;
    std::ostringstream salida;
    std::ostringstream errores;
};

TEST_F(PruebaOrdenes, un_texto_va_y_vuelve_igual) {
    const std::string csv = "Nombre,\"X, este\",Año €\nP1,\"dijo \"\"sí\"\"\",\nP2,\"dos\nlíneas\",3\n";
    haz("t.tb0", csv);
    EXPECT_EQ(salida.str(), "");
    EXPECT_EQ(corre({"a-texto", "-f", "csv", "t.tb0"}), 0);
    EXPECT_EQ(salida.str(), csv);
    EXPECT_EQ(errores.str(), "");
}

TEST_F(PruebaOrdenes, los_tres_formatos) {
    haz("t.tb0", "A,B\n1,x\ty\n", "Ejes");
    EXPECT_EQ(corre({"a-texto", "t.tb0"}), 0);
    EXPECT_EQ(salida.str(), "A\tB\n1\t\"x\ty\"\n");
    EXPECT_EQ(corre({"a-texto", "-f", "csv", "-d", ";", "--numeros", "t.tb0"}), 0);
    EXPECT_EQ(salida.str(), ";A;B\n1;1;x\ty\n");
    EXPECT_EQ(corre({"a-texto", "-f", "json", "t.tb0"}), 0);
    EXPECT_EQ(salida.str(),
        "{\"subtitulo\":\"Ejes\",\n\"columnas\":[\"A\",\"B\"],\n\"filas\":[\n[\"1\",\"x\\ty\"]]}\n");
    EXPECT_EQ(corre({"a-texto", "-f", "json", "--sin-cabecera", "t.tb0"}), 0);
    EXPECT_EQ(salida.str(), "{\"subtitulo\":\"Ejes\",\n\"filas\":[\n[\"1\",\"x\\ty\"]]}\n");
}

TEST_F(PruebaOrdenes, sin_cabecera_la_primera_linea_es_una_fila) {
    entrada.str("1,2\n3\n");
    EXPECT_EQ(corre({"de-texto", "-fcsv", "--sin-cabecera", "-o", "t.tb0"}), 0);
    EXPECT_EQ(corre({"a-texto", "--numeros", "t.tb0"}), 0);
    EXPECT_EQ(salida.str(), "\t\t\n1\t1\t2\n2\t3\t\n");
    EXPECT_EQ(corre({"a-texto", "--sin-cabecera", "t.tb0"}), 0);
    EXPECT_EQ(salida.str(), "1\t2\n3\t\n");
}

TEST_F(PruebaOrdenes, info_dice_lo_que_hay) {
    haz("t.tb0", "Nombre,X\nP1,1\nP2,2\nP3,3\n");
    ficheros.contenidos["t.tb0"] += "resto";
    EXPECT_EQ(corre({"info", "t.tb0"}), 0);
    EXPECT_EQ(salida.str(),
        "Fichero:    t.tb0\nSubtítulo:  Puntos\nFilas:      3\nColumnas:   2\n             1 Nombre\n        "
        "     2 X\n"
        "Registro:   525 bytes\nDetrás:     5 bytes de un fichero anterior más largo\nFormatos:   ninguno\n");
}

TEST_F(PruebaOrdenes, comprueba_dice_lo_que_esta_mal_y_donde) {
    haz("bien.tb0", "A\n1\n");
    const std::string bueno = ficheros.contenidos["bien.tb0"];
    ficheros.contenidos["corto.tb0"] = bueno.substr(0, bueno.size() - 1);
    ficheros.contenidos["ancho.tb0"] = std::string("\x02\0Ej\x1A\0\0\0", 8) + std::string(99, '\0');
    EXPECT_EQ(corre({"comprueba", "bien.tb0", "corto.tb0", "ancho.tb0"}), 1);
    EXPECT_EQ(salida.str(),
        "bien.tb0: bien, 1 filas, 1 columnas\n"
        "corto.tb0: mal en el byte " +
            std::to_string(bueno.size() - 14) +
            ": el formato de la columna 25 necesita 14 bytes y quedan 13\n"
            "ancho.tb0: mal en el byte 4: el número de columnas es 26, y no puede pasar de 25\n");
    EXPECT_EQ(errores.str(), "");
    EXPECT_EQ(corre({"comprueba", "-q", "bien.tb0"}), 0);
    EXPECT_EQ(salida.str(), "");
}

TEST_F(PruebaOrdenes, cada_defecto_tiene_sus_palabras) {
    haz("t.tb0", "A\n1\n"); // subtitle 8 bytes; counts at 8 and 12; array at 16; row 0 at 26, its cells at 36
    const std::string bueno = ficheros.contenidos["t.tb0"];
    const auto con = [&](std::size_t lugar, const std::string& bytes) {
        std::string malo = bueno;
        ficheros.contenidos["m"] = malo.replace(lugar, bytes.size(), bytes);
        EXPECT_EQ(corre({"comprueba", "m"}), 1);
        return salida.str();
    };
    EXPECT_EQ(con(12, "\xFF\xFF\xFF\xFF"),
        "m: mal en el byte 12: el número de filas es -1, y no puede ser menor que 0\n");
    EXPECT_EQ(
        con(16, "\x02"), "m: mal en el byte 16: el número de dimensiones de las filas es 2, y debe ser 1\n");
    EXPECT_EQ(con(28, "\x07"), "m: mal en el byte 28: el número de celdas de la fila 0 es 7, y debe ser 2\n");
    EXPECT_THAT(con(36, "\xFF\xFF"),
        StartsWith("m: mal en el byte 36: la celda de la fila 0, columna 0 necesita 65537 bytes y quedan "));
    EXPECT_THAT(con(12, std::string("\x00\x00\x00\x40\x01\x00\x01\x00\x00\x40", 10)),
        StartsWith(
            "m: mal en el byte 12: el número de filas es 1073741824, y no cabe en los bytes que siguen, "));
}

TEST_F(PruebaOrdenes, un_fichero_malo_no_se_convierte) {
    ficheros.contenidos["m"] = "x";
    EXPECT_EQ(corre({"a-texto", "m"}), 1);
    EXPECT_EQ(salida.str(), "");
    EXPECT_EQ(errores.str(), "tabla: m: mal en el byte 0: el subtítulo necesita 2 bytes y quedan 1\n");
    EXPECT_EQ(corre({"info", "m"}), 1);
}

TEST_F(PruebaOrdenes, lo_que_no_se_puede_leer_o_escribir) {
    EXPECT_EQ(corre({"info", "nada"}), 3);
    EXPECT_EQ(errores.str(), "tabla: nada: No se ha encontrado el archivo\n");
    haz("t.tb0", "A\n");
    EXPECT_EQ(corre({"comprueba", "nada", "t.tb0"}), 3);
    EXPECT_THAT(salida.str(), HasSubstr("t.tb0: bien"));
    entrada.str("A\n");
    entrada.clear();
    ficheros.falla_en_paso(1, 61);
    EXPECT_EQ(corre({"de-texto", "-o", "lleno.tb0"}), 3);
    EXPECT_EQ(errores.str(), "tabla: lleno.tb0: Disco lleno\n");
    salida.setstate(std::ios::badbit);
    EXPECT_EQ(corre({"a-texto", "t.tb0"}), 3);
    EXPECT_EQ(errores.str(), "tabla: (salida estándar): no se pudo escribir todo\n");
}

TEST_F(PruebaOrdenes, la_extension_dice_si_es_csv) {
    ficheros.contenidos["p.csv"] = "A,B\n1,2\n";
    ficheros.contenidos["p.txt"] = "A,B\tC\n1\t2\n";
    EXPECT_EQ(corre({"de-texto", "p.csv", "-o", "t"}), 0);
    EXPECT_EQ(corre({"a-texto", "t"}), 0);
    EXPECT_EQ(salida.str(), "A\tB\n1\t2\n");
    EXPECT_EQ(corre({"de-texto", "p.txt", "-o", "t"}), 0);
    EXPECT_EQ(corre({"a-texto", "t"}), 0);
    EXPECT_EQ(salida.str(), "A,B\tC\n1\t2\n");
}

TEST_F(PruebaOrdenes, los_textos_que_no_son_una_tabla) {
    struct Caso {
        std::string texto;
        const char* fallo;
    };
    std::string ancha;
    for (int i = 0; i < 25; ++i) ancha += ",";
    for (const auto& [texto, fallo] :
        {Caso{"", "(entrada estándar): no hay ninguna línea"},
            Caso{"A\n" + ancha, "(entrada estándar): línea 2: 26 columnas, y caben 25"},
            Caso{"A\nB\n\"C", "(entrada estándar): línea 3: unas comillas no se cierran"},
            Caso{"A\n" + std::string(65536, 'x'),
                "(entrada estándar): línea 2: una celda pasa de 65535 bytes"},
            Caso{"Ejea\nA\xF1o",
                "(entrada estándar): no es UTF-8 en el byte 6 (¿está en Windows-1252? Pruebe con --1252)"}}) {
        entrada.str(texto);
        entrada.clear();
        EXPECT_EQ(corre({"de-texto", "-fcsv", "-o", "t"}), 1);
        EXPECT_EQ(errores.str(), std::string("tabla: ") + fallo + "\n");
        EXPECT_TRUE(ficheros.contenidos.empty());
    }
}

TEST_F(PruebaOrdenes, los_caracteres_que_no_caben_se_cuentan) {
    entrada.str("Ω≈\nñ\n");
    EXPECT_EQ(corre({"de-texto", "-o", "t"}), 0);
    EXPECT_EQ(errores.str(), "tabla: aviso: 2 caracteres no existen en Windows-1252 y quedan como «?»\n");
    EXPECT_EQ(corre({"a-texto", "t"}), 0);
    EXPECT_EQ(salida.str(), "??\nñ\n");
}

TEST_F(PruebaOrdenes, lee_1252_y_quita_la_marca_de_orden) {
    entrada.str("A\xF1o\x80\n");
    EXPECT_EQ(corre({"de-texto", "--1252", "-o", "t"}), 0);
    EXPECT_EQ(corre({"a-texto", "t"}), 0);
    EXPECT_EQ(salida.str(), "Año€\n");
    entrada.str("\xEF\xBB\xBF\"A\"\n");
    entrada.clear();
    EXPECT_EQ(corre({"de-texto", "-o", "t"}), 0);
    EXPECT_EQ(corre({"a-texto", "t"}), 0);
    EXPECT_EQ(salida.str(), "A\n");
}

TEST_F(PruebaOrdenes, un_subtitulo_que_ninguna_tabla_puede_tener_se_avisa) {
    entrada.str("A\n");
    EXPECT_EQ(corre({"de-texto", "-s", std::string(31, 's'), "-o", "t"}), 0);
    EXPECT_THAT(errores.str(), HasSubstr("30 caracteres"));
}

TEST_F(PruebaOrdenes, ayuda_version_y_orden_mal_escrita) {
    EXPECT_EQ(corre({"--help"}), 0);
    EXPECT_THAT(salida.str(), StartsWith("Uso: tabla ORDEN"));
    EXPECT_EQ(corre({"--version"}), 0);
    EXPECT_THAT(salida.str(), StartsWith("tabla 0."));
    EXPECT_EQ(corre({"mira"}), 2);
    EXPECT_EQ(errores.str(), "tabla: no hay ninguna orden «mira»\n«tabla --help» dice cómo se usa.\n");
    EXPECT_EQ(salida.str(), "");
}

TEST_F(PruebaOrdenes, el_trabajo_largo_dice_por_donde_va_y_luego_lo_borra) {
    haz("t.tb0", "A\n1\n");
    std::ostringstream terminal;
    Entorno entorno{ficheros, entrada, salida, errores, &terminal};
    EXPECT_EQ(ejecuta(entorno, std::vector<std::string>{"a-texto", "t.tb0"}), Salida::Bien);
    EXPECT_EQ(terminal.str(), ""); // short work shows nothing
}

} // namespace

} // namespace Qlt4_Tabla::herramienta
