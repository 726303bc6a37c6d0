// SPDX-License-Identifier: MIT
// Navegacion: where the cursor goes. The advance after a value, the grid's own keys (arrows, pages, Home,
// End), clicks, dragging and the wheel, as far as they move the cursor, the selection or the view.
// A move of the user raises SelChange once, when something changed. Keys and mouse put the cursor on data
// cells only (rows and columns from 1 on). Keys and the advance scroll the cell into view; the mouse
// scrolls only when it is dragged outside the window.
#pragma once

#include "base/publico.h"
#include "base/teclas.h"
#include "core/estado_tabla.h"
#include "core/geometria.h"

namespace Qlt4_Tabla {

class TABLA_API Navegacion {
public:
    explicit Navegacion(EstadoTabla& e) : e_(e) {}

    /// The advance: horizontal when `MN_avance_horizontal` is marked, else down, making a row at the end.
    /// Horizontal passes invisible and locked columns and does nothing where there are no others.
    void Avanza_Cursor();

    /// Arrow, Page, Home and End keys with Shift (extends the selection) and Ctrl (to the ends of the row, the
    /// column, the table). Left, right, Home and End pass columns of width 0. Returns whether the key was
    /// one of them; with Alt it is not.
    bool tecla(int KeyCode, Modificadores mods);

    /// Left button pressed on a cell (with Shift: extends), dragged to a place, released. The header selects
    /// columns, the row numbers rows, the corner everything, each from row or column 1 on. Beyond the last
    /// row or column, or without data cells: nothing.
    void raton_abajo(Celda celda, Modificadores mods);
    /// Twips in the grid's coordinates; extends what the last press selected. Without a press: nothing.
    void arrastra(int x, int y);
    /// Click (after the button is released on the grid): sets the selection mode; a second click on the same
    /// cell of a list column writes the next value of the list. Errors are ignored.
    void clic(Celda celda);
    /// One notch of the wheel: -1 towards the user (down), +1 away (up). Never raises.
    void rueda(int signo);

    /// Makes the block the selection as a user's move does and shows its current cell. Out of range: nothing.
    void elige_bloque(int fila, int col, int fila_sel, int col_sel);

private:
    /// What the pressed button drags.
    enum class Arrastre { Nada, Celdas, Filas, Columnas, Todo };

    void Avance_Horizontal();
    void mueve(int fila, int col, int fila_sel, int col_sel);
    void mueve(int fila, int col) { mueve(fila, col, fila, col); }
    void selecciona(const Bloque& b);
    void acompana_pagina(int filas);
    void fija_modo(int col);
    void cicla(Celda celda);
    [[nodiscard]] bool selecciona_filas(int col) const;
    [[nodiscard]] Arrastre arrastre_de(Celda celda) const;

    EstadoTabla& e_;
    Arrastre arrastre_ = Arrastre::Nada;
};

} // namespace Qlt4_Tabla
