// SPDX-License-Identifier: MIT
// Mandos: the front end's way in. Every event of the window (keys, mouse, wheel, focus, size) is translated
// into one call here; the core decides and answers through the seams of the platform. A front end holds no
// rule of the table. Places are twips in the grid's own coordinates (see core/geometria.h).
#pragma once

#include "base/teclas.h"
#include "core/estado_tabla.h"
#include "core/geometria.h"
#include "editing/editor_celda.h"
#include "editing/navegacion.h"

namespace Qlt4_Tabla {

enum class Boton { Izquierdo, Derecho, Central };

class Mandos {
public:
    Mandos(EstadoTabla& e, EditorCelda& editor, Navegacion& navegacion);

    // Keys on the closed grid. A key first comes as key down; when that returns false and it has a character,
    // the character comes as key press (see base/pagina1252.h for its code). Ctrl combinations and Tab never
    // come as key presses.
    bool tecla_abajo(int KeyCode, Modificadores mods);
    /// Returns whether the key was used.
    bool tecla_pulsada(int KeyAscii);

    // Mouse on the grid.
    void raton_abajo(int x, int y, Boton boton, Modificadores mods);
    void raton_mueve(int x, int y);
    void raton_arriba(int x, int y, Boton boton);
    void doble_clic(int x, int y);
    void rueda(int signo);

    // The user drags the right edge of a column: the grid's width follows; formats take it over later.
    void arrastra_borde(int col, int ancho);

    // The editors: keys, focus, a click in the list.
    EditorCelda& editor() { return editor_; }

    // The window.
    void vista_redimensionada(int ancho, int alto);
    /// The font changed: height of the rows without one of their own, in twips.
    void alto_de_filas(int twips) {
        e_.tablero.alto_normal(twips);
        editor_.recoloca();
    }
    void desplaza_filas(int fila_superior);
    void desplaza_columnas(int twips);
    /// Moves the current cell as a user's move does (accessibility, a host's plan): selection collapsed on
    /// it, shown, SelChange raised when it changed. Out of range: nothing.
    void elige_celda(int fila, int col);
    /// Selects the block as a user's move does; see elige_celda.
    void elige_bloque(int fila, int col, int fila_sel, int col_sel);

private:
    EstadoTabla& e_;
    EditorCelda& editor_;
    Navegacion& navegacion_;
    bool arrastrando_ = false;
};

} // namespace Qlt4_Tabla
