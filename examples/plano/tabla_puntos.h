// SPDX-License-Identifier: MIT
// The table of the example: which columns it has, and how a host names, formats, fills and reads it.
// The order matters: names, formats and lists first, then rows and cells; formatting a column anew resets
// the cells of its list. Main names: Columna, prepara_tabla, carga_puntos, lee_numero.
#pragma once

#include "control/tabla0.h"
#include "muestras.h"

#include <optional>
#include <string_view>
#include <vector>

namespace plano {

enum Columna : int { NUMERO, NOMBRE, X, Y, COTA, ZINC, USO, INUNDACION, CUANTAS_COLUMNAS };

/// Names, formats and lists; the table has no points yet.
void prepara_tabla(Qlt4_Tabla::Tabla0& tabla, const std::vector<Muestra>& muestras);

/// `filas` rows of points: the samples, repeated side by side as often as needed.
void carga_puntos(Qlt4_Tabla::Tabla0& tabla, const std::vector<Muestra>& muestras, int filas);

/// The colour cell of the row takes the colour that was typed into it, by name or by palette number; what is
/// neither gives way to the name of the colour it had.
void colorea_escrito(Qlt4_Tabla::Tabla0& tabla, int fila);

/// A number as the table hands it out (with a decimal comma) or stores it (with a point).
[[nodiscard]] std::optional<double> lee_numero(std::string_view texto);

} // namespace plano
