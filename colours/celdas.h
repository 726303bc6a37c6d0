// SPDX-License-Identifier: MIT
// Colouring of cells, as rules over the state; members of the same names in control/ call these.
// Rows and columns are 0-based, header and row numbers included. A row or column outside the grid:
// nothing, the current cell stays, a reading gives 0. A member that colours or reads one cell makes it
// current, with the selection collapsed on it, and raises no event. Screen colours are 0x00BBGGRR.
#pragma once

#include "core/estado_tabla.h"

#include <cstdint>
#include <string_view>

namespace Qlt4_Tabla {

/// Text colour of a column's data cells. The current cell stays; the selection collapses on it.
void Color_Columna(EstadoTabla& e, std::int32_t columna, T_colores Color);
/// Text colour of one cell (Color_1Celda is the same).
void ColMatrix(EstadoTabla& e, std::int32_t fila, std::int32_t colm, T_colores valor);
/// Background of the cells between two columns of one row, in either order. The last one painted
/// becomes current.
void Color_Fila(
    EstadoTabla& e, std::int32_t fila, std::int32_t columIni, std::int32_t colmFin, T_colores valor);
/// Text colour of every data cell and row number back to the default; backgrounds stay. The last cell
/// becomes current; redrawing is on afterwards, whatever it was.
void tablero_sin_color(EstadoTabla& e);

/// Background of one cell. Get: 0 when never set.
void Color_Matrix(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int32_t valor);
[[nodiscard]] std::int32_t Color_Matrix(EstadoTabla& e, std::int32_t fila, std::int32_t colm);
/// Colour of a colour cell: its background while colour cells are painted, else the colour of the name
/// or number it holds (error 13: neither; error 6: beyond 16 bits).
[[nodiscard]] std::int32_t Color_Matrix_en_VB(EstadoTabla& e, std::int32_t fila, std::int32_t colm);

// Value of a colour cell. Below 0: message, nothing else, also outside the grid. The text becomes the
// colour's name or number; the background follows where colour cells are painted.
/// The value counts as palette index for the name and, on purpose, as screen colour for the background.
void Color_Matrix_en_Cad(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int32_t valor);
/// A palette index; never paints.
void Color_Matrix_de_Cad(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int16_t valor);
/// A screen colour.
void Color_Matrix_en_Cad_dado_N_VB(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int32_t valor);
/// A palette index.
void Color_Matrix_en_Cad_dado_N_cad(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int16_t valor);

/// Many colour cells at once: all take the text, and the background where colour cells are painted. Nothing
/// is selected. Error 9: a cell outside the grid, before any change.
void pon_color(EstadoTabla& e, const Bloque& celdas, std::string_view nombre, std::int32_t fondo);

} // namespace Qlt4_Tabla
