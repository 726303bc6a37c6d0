// SPDX-License-Identifier: MIT
// What the columns and cells of the grid are called when they are read out.
// Main names: nombre_de_celda, lugar_de_celda, nombre_de_columna.
#pragma once

#include <QString>

namespace Qlt4_Tabla {

class Tabla0;
class Tablero;

/// Is the column locked against editing? Columns without a format are not.
[[nodiscard]] bool bloqueada(const Tabla0& tabla, int col);
/// The header text, or "columna 3" where there is none. The column must exist.
[[nodiscard]] QString nombre_de_columna(const Tablero& t, int col);
/// Column and row of a cell as they are read out: "X, fila 3". The cell must exist.
[[nodiscard]] QString lugar_de_celda(const Tabla0& tabla, int fila, int col);
/// The whole name: "X, fila 3, 12.500, bloqueada". The cell must exist.
[[nodiscard]] QString nombre_de_celda(const Tabla0& tabla, int fila, int col);

} // namespace Qlt4_Tabla
