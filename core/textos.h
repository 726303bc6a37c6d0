// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees: captions of menu items, labels and messages. Odd spellings
// ("cabezera", "Reh&acer", small letters, missing accents) are intended and kept byte for byte.
// Main names: textos::titulos_menu, the parts of the row-count labels. Read on in core/estado_menus.h.
#pragma once

#include <array>
#include <string_view>

namespace Qlt4_Tabla::textos {

// What a long command is doing, in the strip below the table.
inline constexpr std::string_view calculando = "Calculando";
inline constexpr std::string_view dando_formato = "Dando formato";

/// Design captions, in the order of `Opcion`. "&" marks the accelerator, "-" a separator line.
inline constexpr std::array<std::string_view, 29> titulos_menu{
    "&Deshacer",
    "Reh&acer",
    "Cortar",
    "Copiar",
    "Pegar",
    "Especiales",
    "Copiar todo con cabezera",
    "Copiar y cambiar \".\" por \",\"",
    "Pegar y cambiar \",\" por \".\"",
    "Pegar al final",
    "Filas",
    "Insertar Filas",
    "Eliminar Filas",
    "Añadir Filas",
    "Eliminar Filas vacias",
    "Borrar seleccion",
    "-",
    "Abrir ...",
    "Guardar como...",
    "Avance Horizontal",
    "Configuración...",
    "Salir",
    "Añadir punto",
    "Copia selección",
    "Avance horizontal",
    "Configuración...",
    "Cancelar",
    "Copiar",
    "Pegar",
};

// The items that the menu of changing entries always has.
inline constexpr std::string_view menu_cancelar = "Cancelar";
inline constexpr std::string_view menu_separador = "-";

// Captions of undo and redo with a step count: this, the number, ")".
inline constexpr std::string_view deshacer_paso = "&Deshacer (";
inline constexpr std::string_view rehacer_paso = "Reh&acer (";
inline constexpr std::string_view cierra_paso = ")";

/// Caption of `labMensaje` before its first message; never seen.
inline constexpr std::string_view mensaje_inicial = "Errores";
// Row count of start-up, of the `Rows` let and of the status text: this, subtitle, " =", Str(rows).
inline constexpr std::string_view numero_de = "Nº de ";
inline constexpr std::string_view igual = " =";
/// Row count of the formatted table: subtitle, this, Str(rows).
inline constexpr std::string_view numero_de_filas = ": Nº de filas =";

/// Header of a column that was added without a name: this and its number.
inline constexpr std::string_view columna_sin_nombre = "Col ";
/// Extension pattern of table files until the host gives another.
inline constexpr std::string_view extension_inicial = "*.tb0";
/// And of a stored layout that has none; the capital letter is intended.
inline constexpr std::string_view extension_de_ajustes = "*.Tb0";

// Values for a column that is no list column: this, Str(column), the end.
inline constexpr std::string_view no_es_lista_antes = "ERROR tabla.ocx: la columna ";
inline constexpr std::string_view no_es_lista_despues = " no es una lista";

// Columns that hold no numbers, in computations: one of these, Str(column), the arrow, subtitle. The
// last one lacks a word and has two blanks; intended.
inline constexpr std::string_view no_sumable = "ERROR en Tabla.ocx:la columna no es Sumable:";
inline constexpr std::string_view no_numerica = "ERROR en Tabla.ocx:la columna no es numérica:";
inline constexpr std::string_view no_numerica_resultado = "ERROR en Tabla.ocx:la columna no  numérica:";
inline constexpr std::string_view flecha = " ->";

// A column of the other kind, in the exchange with arrays: one of the first two, one of the others.
inline constexpr std::string_view obtener_matriz = "ERROR Tabla.ocx: Obtener una matriz de una columna\r\n";
inline constexpr std::string_view asignar_matriz = "ERROR Tabla.ocx: Asignar una matriz a una columna\r\n";
inline constexpr std::string_view ha_de_ser_numerica = "tiene que ser una columna numérica";
inline constexpr std::string_view ha_de_ser_alfanumerica = "tiene que ser una columna alfanumérica";

} // namespace Qlt4_Tabla::textos
