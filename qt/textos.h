// SPDX-License-Identifier: MIT
// Texts of this folder: the buttons of message boxes, the menu of text boxes, the colour picker, and what a user hears from an
// assistive program: the names of the table, its cells and the editors over them ("X, fila 3, 12.500,
// bloqueada").
#pragma once

#include <array>
#include <string_view>

namespace Qlt4_Tabla::textos {

// Buttons of a message box; "&" marks the key.
inline constexpr std::string_view aceptar = "Aceptar";
inline constexpr std::string_view si = "&Sí";
inline constexpr std::string_view no = "&No";

// The menu of a text box.
namespace caja {

inline constexpr std::string_view deshacer = "Deshacer";
inline constexpr std::string_view rehacer = "Rehacer";
inline constexpr std::string_view cortar = "Cortar";
inline constexpr std::string_view copiar = "Copiar";
inline constexpr std::string_view pegar = "Pegar";
inline constexpr std::string_view eliminar = "Eliminar";
inline constexpr std::string_view seleccionar_todo = "Seleccionar todo";
inline constexpr std::string_view mayusculas = "Mayús+"; // in a shortcut

} // namespace caja

// The colour picker. The missing blank of the second one and the small letters are intended.
inline constexpr std::string_view color_elegido = "Color elegido:";
inline constexpr std::string_view de_1_a_255 = "de 1a 255";
inline constexpr std::string_view color_capa = "color capa principal :";
inline constexpr std::string_view otros = "otros ...";
inline constexpr std::string_view por_capa = "por capa";
inline constexpr std::string_view cancelar = "Cancelar";
// Its strips, read out.
inline constexpr std::string_view tira_normal = "Colores básicos";
inline constexpr std::string_view tira_grises = "Grises";
inline constexpr std::string_view tira_especial = "Todos los colores";

// The column editor: its menu, what buttons and menu items say, its first check box, its grid read out.
inline constexpr std::string_view menu_columnas = "&Columnas";
inline constexpr std::string_view aplicar_cambios = "Aplicar Cambios";
inline constexpr std::string_view reponer_originales = "Reponer valores originales";
inline constexpr std::string_view salir = "Salir";
inline constexpr std::string_view ver_columna0 = "Ver numeración";
inline constexpr std::string_view rejilla_columnas = "Columnas de la tabla";

/// In the strip below the table: what a long command does and how far it is. %1 the command, %p the per cent.
inline constexpr std::string_view formato_avance = "%1: %p %";

/// A table without a title.
inline constexpr std::string_view tabla = "Tabla";

// The name of a cell: column, row, value, lock.
inline constexpr std::string_view columna = "columna "; // and its number, where it has no name
inline constexpr std::string_view fila = "fila "; // and its number
inline constexpr std::string_view separa = ", ";
inline constexpr std::string_view vacia = "vacía";
inline constexpr std::string_view bloqueada = "bloqueada";

// The name of a header.
inline constexpr std::string_view esquina = "Esquina";
inline constexpr std::string_view cabecera_columna = "Columna "; // and its name

// The file dialog.
namespace fichero {

inline constexpr std::string_view buscar_en = "Buscar en:";
inline constexpr std::string_view nombre_fichero = "&Nombre:";
inline constexpr std::string_view tipo_fichero = "Tipo:";
inline constexpr std::string_view abrir = "&Abrir";
inline constexpr std::string_view guardar = "&Guardar";
inline constexpr std::string_view cancelar = "Cancelar";
inline constexpr std::string_view reemplazar = "&Reemplazar";
inline constexpr std::string_view atras = "Atrás";
inline constexpr std::string_view adelante = "Adelante";
inline constexpr std::string_view subir = "Carpeta superior";
inline constexpr std::string_view vista_lista = "Lista";
inline constexpr std::string_view vista_detalle = "Detalles";
/// Headers of the list of files.
inline constexpr std::array<std::string_view, 4> columnas_ficheros{
    "Nombre", "Tamaño", "Tipo", "Fecha de modificación"};
// Kinds of files; behind the second one stands the extension.
inline constexpr std::string_view carpeta = "Carpeta";
inline constexpr std::string_view archivo = "Archivo";
// Around a file's name.
inline constexpr std::string_view ya_existe_antes = "El archivo «";
inline constexpr std::string_view ya_existe_despues = "» ya existe. ¿Quiere reemplazarlo?";
inline constexpr std::string_view no_existe_antes = "No hay ningún archivo «";
inline constexpr std::string_view no_existe_despues = "» en esta carpeta.";
// Around a folder's name.
inline constexpr std::string_view no_hay_carpeta_antes = "No existe la carpeta «";
inline constexpr std::string_view no_hay_carpeta_despues = "».";
// In the list of folders: all drives, and the folders visited before.
inline constexpr std::string_view equipo = "Equipo";
inline constexpr std::string_view recientes = "Recientes";

} // namespace fichero

} // namespace Qlt4_Tabla::textos
