// SPDX-License-Identifier: MIT
// The words of the scripts: what the host does, what the user does, what is asked. Each file holds one
// table from the first word to its action.
#pragma once

#include "tests/guion/conductor.h"
#include "tests/guion/palabras.h"

#include <string_view>

namespace Qlt4_Tabla {

// Steps of the host (anfitrion.cpp):
//   nombres TITLE SUBTITLE EXTENSION        columnas N          filas N
//   formato COL NAME KIND [options]         kind as in T_formato; options: a number (decimals), invisible,
//                                           bloqueada, ancho=N, an alignment, a fill action
//   establece                               applies the formats
//   lista COL A|B|C                         values of a list column; without values: an empty list
//   texto ROW COL TEXT                      fondo ROW COL COLOUR        alto ROW TWIPS
//   llama MEMBER ARGUMENTS...               any published method         pone MEMBER ARGUMENTS... VALUE
//   elige_color COLOUR = CHOSEN             shows the picker and compares what it gives
/// False when the first word is none of them.
[[nodiscard]] bool paso_anfitrion(Conductor& conductor, std::string_view palabra, Palabras& resto);

// Steps of the user (usuario.cpp):
//   pulsa [Mayus+][Ctrl+][Alt+]KEY          one key by its name (tecla is the same word)
//   teclea TEXT                             the keys of a text, one after another
//   compone TEXT                            a text of an input method or a dead key
//   clic ROW COL [Mayus]    clic fuera      doble ROW COL
//   arrastra ROW COL ROW COL [Mayus]        rueda SIGN [TIMES]
//   entrada TEXT            clic_entrada TEXT      in the open list, by the keyboard or with the mouse
//   barra ROW                               the bar of the rows is dragged until ROW is the top one
//   foco fuera|menu|ventana|vuelve          borde COL TWIPS
//   ventana WIDTH ROWS                      room for so many data rows below the header
//   elige ROW COL [ROW COL]                 as an assistive program or the host moves the cursor
//   orden ITEM                              a command by the name of its menu item
//   boton KEY                               a button of the toolbar by its key
//   derecho ROW COL                         the right button
//   menu ITEM         cambio CAPTION        chooses from the menu that has opened: an item by its name, or
//                                           an entry of the menu of changing entries
[[nodiscard]] bool paso_usuario(Conductor& conductor, std::string_view palabra, Palabras& resto);

// Steps of the world around (entorno.cpp):
//   portapapeles TEXT                       puts a text on the clipboard, in the table's own form
//   portapapeles_cerrado                    from now on it can be neither read nor written
//   responde si|no                          the answer to the next question
//   elige_fichero PATH                      what the user chooses in the next file dialog; "" cancels
//   corta_fichero PATH N                    the file is cut to its first N bytes
//   falla_fichero PATH NUMBER               from now on reading and writing it give this error
//   coma si|no                              does the platform write decimals with a comma?
//   color STEP|STEP|...                     what the user does in the next colour picker: muestra INDEX,
//                                           teclea TEXT (all of the box), Izquierda, Derecha, Arriba, Abajo, Aceptar, Cancelar,
//                                           otros (all strips), capa (by layer)
[[nodiscard]] bool paso_entorno(Conductor& conductor, std::string_view palabra, Palabras& resto);

// Questions (preguntas.cpp), each after "?":
//   celda ROW COL = TEXT    leida ROW COL = TEXT (as the host reads it)     fondo ROW COL = COLOUR|nada
//   letra ROW COL = COLOUR (of the text)
//   filas N    columnas N   actual ROW COL   seleccion ROW COL ROW COL (current cell, far corner)
//   modo libre|filas        arriba ROW       ve ROW COL (the cell is seen whole)    ancho COL = TWIPS
//   casilla abierta TEXT [cursor N] [marca START LENGTH]      casilla cerrada
//   lista abierta TEXT      lista cerrada    entradas A|B|C   editor cerrado
//   editor sobre ROW COL                     which cell is edited, and the editor lies over it
//   mensaje visible TEXT    mensaje oculto   mensaje estado TEXT (hidden, with this caption)
//   etiqueta TEXT (of labNumeroFilas)        foco tablero|casilla|lista|fuera
//   modificado 0|1          marcada ITEM si|no      activa ITEM si|no       portapapeles = TEXT
//   fichero PATH si|no                       is there such a file?
/// Fails with a FalloGuion when the answer is another one.
void pregunta(Conductor& conductor, std::string_view texto);

/// A menu item by its name; fails when there is none.
[[nodiscard]] Opcion opcion_de_nombre(std::string_view nombre);

} // namespace Qlt4_Tabla
