// SPDX-License-Identifier: MIT
// AvisosUnidos: the way of a grid's notices to its view. Held back, they are joined: rows that came or went
// once, and then one rectangle of cells; or one notice that anything may have changed where they are of several
// kinds. What the cursor and the scrolling are told is the grid's own business (Tablero::Redraw).
#pragma once

#include "platform/vista_tablero.h"

namespace Qlt4_Tabla {

class AvisosUnidos {
public:
    explicit AvisosUnidos(VistaTablero& vista) : vista_(&vista) {}

    void celdas_cambiadas(int fila1, int col1, int fila2, int col2);
    void filas_insertadas(int fila, int n);
    void filas_borradas(int fila, int n);
    void columnas_cambiadas();
    void ancho_cambiado(int col);
    void alto_cambiado(int fila);
    void fusion_cambiada();
    /// Anything may have changed.
    void todo_cambiado();

    [[nodiscard]] VistaTablero& vista() const { return *vista_; }

    [[nodiscard]] bool retenidos() const { return retenidos_; }

    void retiene() { retenidos_ = true; }

    /// Gives what was joined, if anything, and lets the next ones through.
    void suelta();

private:
    enum class Clase { Nada, Celdas, Filas, Columnas, Ancho, Alto, Fusion, Todo };

    [[nodiscard]] bool une(Clase clase, int indice);
    [[nodiscard]] bool une_filas(int fila, int n);

    VistaTablero* vista_;
    bool retenidos_ = false;
    Clase clase_ = Clase::Nada; // of all that is held back
    int indice_ = 0; // the column of Ancho, the row of Alto, the first one of Filas
    int n_ = 0; // how many rows came, or went where negative
    bool hay_celdas_ = false;
    int fila1_ = 0, col1_ = 0, fila2_ = 0, col2_ = 0; // of the cells that changed after the rows
};

} // namespace Qlt4_Tabla
