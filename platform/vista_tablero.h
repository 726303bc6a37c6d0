// SPDX-License-Identifier: MIT
// VistaTablero: what the grid tells whoever shows it. The grid keeps all state; a view draws from
// it when it paints and keeps nothing but what it drew last. Notices may come in any number between
// two paintings; while redrawing is off none comes, and one joined set comes when it is on again.
#pragma once

#include "base/publico.h"

namespace Qlt4_Tabla {

class TABLA_API VistaTablero {
public:
    virtual ~VistaTablero() = default;

    /// Texts, colours or pictures changed in the rectangle; corners inclusive, ascending.
    virtual void celdas_cambiadas(int fila1, int col1, int fila2, int col2) = 0;
    /// `n` rows now stand at `fila`..`fila + n - 1`; what stood there moved down.
    virtual void filas_insertadas(int fila, int n) = 0;
    /// `n` rows that stood at `fila`..`fila + n - 1` are gone.
    virtual void filas_borradas(int fila, int n) = 0;
    /// The number of columns or an alignment changed.
    virtual void columnas_cambiadas() = 0;
    /// The current cell or the far corner of the selection changed.
    virtual void seleccion_cambiada() = 0;
    /// The top row or the horizontal offset changed.
    virtual void vista_desplazada() = 0;
    /// The width of one column changed.
    virtual void ancho_cambiado(int col) = 0;
    /// The height of one row changed, or of all rows (`fila` = -1).
    virtual void alto_cambiado(int fila) = 0;
    /// The merge mode or a column's merge switch changed.
    virtual void fusion_cambiada() = 0;
    /// Anything may have changed: the joined notice of changes of several kinds made while redrawing was off.
    virtual void todo_cambiado() = 0;
};

/// A view that shows nothing: for a grid that only computes.
class VistaNula final : public VistaTablero {
public:
    void celdas_cambiadas(int, int, int, int) override {}

    void filas_insertadas(int, int) override {}

    void filas_borradas(int, int) override {}

    void columnas_cambiadas() override {}

    void seleccion_cambiada() override {}

    void vista_desplazada() override {}

    void ancho_cambiado(int) override {}

    void alto_cambiado(int) override {}

    void fusion_cambiada() override {}

    void todo_cambiado() override {}
};

} // namespace Qlt4_Tabla
