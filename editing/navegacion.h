// SPDX-License-Identifier: MIT
// Navegacion: where the cursor goes. The advance after a value, the grid's own keys (arrows, pages, Home,
// End), clicks, dragging and the wheel, as far as they move the cursor, the selection or the view.
#pragma once

#include "base/teclas.h"
#include "core/estado_tabla.h"
#include "core/geometria.h"

namespace Qlt4_Tabla {

class Navegacion {
public:
    explicit Navegacion(EstadoTabla& e) : e_(e) {}

    /// The advance: horizontal when `MN_avance_horizontal` is marked, else down, making a row at the end.
    void Avanza_Cursor();

    /// Arrow, Page, Home and End keys with Shift (extends the selection) and Ctrl. Returns whether the key
    /// was one of them.
    bool tecla(int KeyCode, Modificadores mods);

    /// Left button pressed on a cell (with Shift: extends), dragged to a place, released.
    void raton_abajo(Celda celda, Modificadores mods);
    void arrastra(int x, int y);
    /// Click (after the button is released on the grid).
    void clic(Celda celda);
    /// One notch of the wheel: -1 towards the user (down), +1 away (up). Never raises.
    void rueda(int signo);

private:
    void Avance_Horizontal();
    void mueve(int fila, int col, int fila_sel, int col_sel);

    EstadoTabla& e_;
};

} // namespace Qlt4_Tabla
