// SPDX-License-Identifier: MIT
// Texts of the program `tabla` that its user sees: help, results, warnings, faults.
#pragma once

#include <string_view>

namespace Qlt4_Tabla::herramienta::textos {

inline constexpr std::string_view ayuda =
    R"(Uso: tabla ORDEN [OPCIÓN]... [FICHERO]...
Mira, convierte y comprueba ficheros de tabla (.tb0).

Órdenes:
  info FICHERO           dice qué hay en un fichero de tabla
  a-texto FICHERO        escribe la tabla como texto
  de-texto [FICHERO]     hace un fichero de tabla con el texto de FICHERO o, sin
                         él, de la entrada estándar
  comprueba FICHERO...   dice si los ficheros están bien o qué está mal y en qué byte

Opciones:
  -f, --formato FORMATO  tsv, csv o json (json solo en a-texto); si falta, es tsv, y en
                         de-texto csv si el fichero se llama .csv
  -d, --separador SIGNO  lo que separa las celdas de csv; si falta, la coma
  -o, --salida FICHERO   el fichero de tabla que se hace (de-texto)
  -s, --subtitulo TEXTO  el subtítulo de la tabla que se hace (de-texto); la orden Abrir
                         solo acepta los ficheros con el subtítulo de su tabla
      --sin-cabecera     la primera línea de texto no lleva los nombres de las columnas
      --numeros          con la columna de los números de fila (a-texto)
      --1252             el texto de entrada está en Windows-1252 y no en UTF-8 (de-texto)
  -q, --callado          calla los ficheros que están bien (comprueba)
  -h, --help             muestra esta ayuda
      --version          muestra la versión

a-texto escribe en la salida estándar, en UTF-8. FICHERO puede ser «-» en de-texto: la
entrada estándar.

Códigos de salida: 0 todo bien; 1 un fichero o un texto está mal; 2 la orden está mal
escrita; 3 no se pudo leer o escribir.

Ejemplos:
  tabla info puntos.tb0
  tabla a-texto --formato csv puntos.tb0 > puntos.csv
  tabla de-texto --subtitulo Puntos -o puntos.tb0 puntos.csv
  tabla comprueba *.tb0
)";

inline constexpr std::string_view programa = "tabla ";
inline constexpr std::string_view antes_de_fallo = "tabla: ";
inline constexpr std::string_view pista_ayuda = "«tabla --help» dice cómo se usa.\n";

// A wrong command line; the first part stands before what was written.
inline constexpr std::string_view falta_orden = "falta la orden";
inline constexpr std::string_view orden_desconocida = "no hay ninguna orden «";
inline constexpr std::string_view opcion_desconocida = "no hay ninguna opción «";
inline constexpr std::string_view opcion_sin_valor = "falta lo que va detrás de «";
inline constexpr std::string_view opcion_con_valor = "no lleva ningún valor la opción «";
inline constexpr std::string_view opcion_ajena = "a esta orden no le sirve la opción «";
inline constexpr std::string_view formato_desconocido = "no hay ningún formato «";
inline constexpr std::string_view separador_malo =
    "el separador ha de ser un solo signo, no comillas, y no «";
inline constexpr std::string_view cierra = "»";
inline constexpr std::string_view falta_fichero = "falta el fichero";
inline constexpr std::string_view sobra_fichero = "sobra un fichero: «";
inline constexpr std::string_view falta_salida = "falta el fichero que se ha de hacer: -o FICHERO";
inline constexpr std::string_view json_no_se_lee = "de-texto lee tsv o csv, no json";

// info
inline constexpr std::string_view info_fichero = "Fichero:    ";
inline constexpr std::string_view info_subtitulo = "Subtítulo:  ";
inline constexpr std::string_view info_filas = "Filas:      ";
inline constexpr std::string_view info_columnas = "Columnas:   ";
inline constexpr std::string_view info_registro = "Registro:   ";
inline constexpr std::string_view info_detras = "Detrás:     ";
inline constexpr std::string_view info_formatos = "Formatos:   ";
inline constexpr std::string_view bytes = " bytes";
inline constexpr std::string_view de_otro_fichero = " bytes de un fichero anterior más largo";
inline constexpr std::string_view de_la_columna = "de la columna ";
inline constexpr std::string_view ningun_formato = "ninguno";

// comprueba
inline constexpr std::string_view bien = ": bien, ";
inline constexpr std::string_view filas = " filas, ";
inline constexpr std::string_view columnas = " columnas";
inline constexpr std::string_view y_detras = ", y detrás ";
inline constexpr std::string_view mal_en_byte = ": mal en el byte ";
inline constexpr std::string_view dos_puntos = ": ";

// The parts of a record, in the order of ParteTb0.
inline constexpr std::string_view partes[] = {"el subtítulo", "el número de columnas", "el número de filas",
    "el número de dimensiones de las filas", "el número de elementos de las filas",
    "el límite inferior de las filas", "el número de dimensiones de la fila",
    "el número de celdas de la fila", "el límite inferior de la fila", "la celda",
    "el formato de la columna"};
inline constexpr std::string_view de_la_fila = " de la fila ";
inline constexpr std::string_view columna = ", columna ";
inline constexpr std::string_view numero = " ";
inline constexpr std::string_view necesita = " necesita ";
inline constexpr std::string_view y_quedan = " bytes y quedan ";
inline constexpr std::string_view es = " es ";
inline constexpr std::string_view y_no_puede_ser_negativo = ", y no puede ser menor que 0";
inline constexpr std::string_view y_no_puede_pasar_de = ", y no puede pasar de ";
inline constexpr std::string_view y_debe_ser = ", y debe ser ";
inline constexpr std::string_view y_no_cabe = ", y no cabe en los bytes que siguen, ";

// Texts that cannot become a table.
inline constexpr std::string_view en_linea = ": línea ";
inline constexpr std::string_view demasiadas_columnas = " columnas, y caben 25";
inline constexpr std::string_view comillas_abiertas = "unas comillas no se cierran";
inline constexpr std::string_view texto_largo = "una celda pasa de 65535 bytes";
inline constexpr std::string_view sin_lineas = ": no hay ninguna línea";
inline constexpr std::string_view no_es_utf8 = ": no es UTF-8 en el byte ";
inline constexpr std::string_view pista_1252 = " (¿está en Windows-1252? Pruebe con --1252)";
inline constexpr std::string_view subtitulo_largo = "el subtítulo pasa de 65535 bytes";
inline constexpr std::string_view aviso_no_caben =
    " caracteres no existen en Windows-1252 y quedan como «?»\n";
inline constexpr std::string_view aviso_subtitulo_cortado =
    "una tabla solo puede llamarse con 30 caracteres; con este subtítulo la orden Abrir no aceptará el "
    "fichero\n";
inline constexpr std::string_view aviso = "aviso: ";

// Input and output.
inline constexpr std::string_view entrada_estandar = "(entrada estándar)";
inline constexpr std::string_view salida_estandar = "(salida estándar)";
inline constexpr std::string_view no_se_escribio = ": no se pudo escribir todo";
inline constexpr std::string_view no_se_leyo = ": no se pudo leer";
inline constexpr std::string_view error_numero = " (error ";

// Progress: name, this, per cent, sign.
inline constexpr std::string_view por_ciento = " %";

} // namespace Qlt4_Tabla::herramienta::textos
