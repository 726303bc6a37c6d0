// SPDX-License-Identifier: MIT
// Merging looks at neighbouring rows only; nothing about runs is kept.
#include "core/fusion.h"

#include <algorithm>

namespace Qlt4_Tabla {

namespace {

// Do rows `fila` and `fila` + 1 draw as one in a marked column?
bool unidas(const Tablero& t, int fila, int col) {
    const AlmacenCeldas& a = t.almacen();
    if (!a.iguales(fila, col, fila + 1, col) || a.texto(fila, col).empty()) return false;
    if (t.MergeCells() != 3) return true;
    for (int izquierda = col - 1; izquierda >= 0; --izquierda)
        if (t.MergeCol(izquierda)) return unidas(t, fila, izquierda);
    return true;
}

} // namespace

Tramo tramo_fundido(const Tablero& t, int fila, int col, int primera, int ultima) {
    Tramo tramo{fila, fila};
    const bool funde = t.MergeCells() == 1 || t.MergeCells() == 3;
    if (!funde || !t.MergeCol(col) || fila < 1 || fila >= t.Rows()) return tramo;
    const int arriba = std::max(primera, 1);
    const int abajo = std::min(ultima, t.Rows() - 1);
    while (tramo.desde > arriba && unidas(t, tramo.desde - 1, col)) --tramo.desde;
    while (tramo.hasta < abajo && unidas(t, tramo.hasta, col)) ++tramo.hasta;
    return tramo;
}

} // namespace Qlt4_Tabla
