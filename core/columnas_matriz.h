// SPDX-License-Identifier: MIT
// Exchange of columns with arrays: a column's data cells as numbers or texts, and numbers or texts as data
// cells. The first element belongs to row 1; an array of the host is cut so by `desde_fila_1`.
// Main names: se_puede_obtener, se_puede_asignar, obtiene_columna, asigna_columna, desde_fila_1.
//
// Numbers go with columns of numbers, texts with all others. Errors: 9 column outside the grid, before any
// change. The grid's rows never grow.
#pragma once

#include "core/estado_tabla.h"

#include <cstdint>
#include <span>
#include <string>

namespace Qlt4_Tabla {

/// What an array holds.
enum class ClaseMatriz { Numeros, Textos };

/// Does an array of this kind go with the column? If not: false, after a message. Error 9: column outside
/// 0..25.
[[nodiscard]] bool se_puede_obtener(EstadoTabla& e, std::int32_t columna, ClaseMatriz clase);
[[nodiscard]] bool se_puede_asignar(EstadoTabla& e, std::int32_t columna, ClaseMatriz clase);

/// The elements from index 1 on. Error 9: not one-dimensional, or first index above 1.
template <class T>
[[nodiscard]] std::span<const T> desde_fila_1(const Matriz<T>& matriz) {
    if (matriz.dimensiones() != 1 || matriz.LBound() > 1) lanza(NumError::Subindice);
    const auto antes = static_cast<std::size_t>(std::int64_t{1} - matriz.LBound());
    const std::span<const T> todos(matriz.begin(), matriz.end());
    return todos.size() > antes ? todos.subspan(antes) : std::span<const T>();
}

/// The data cells as numbers, as they stand; `valores` has Rows - 1 elements.
void obtiene_columna(const EstadoTabla& e, std::int32_t columna, std::span<double> valores);
/// The data cells' texts.
void obtiene_columna(const EstadoTabla& e, std::int32_t columna, std::span<std::string> valores);

/// Numbers into the data cells, in the column's format; a whole-number column keeps the blank in front of a
/// number that is not negative (" 12"). Elements beyond the last row are not looked at, rows beyond the
/// elements stay. Error 6: an element that would be written is not finite; nothing is written then.
void asigna_columna(EstadoTabla& e, std::int32_t columna, std::span<const double> valores);
/// Texts into the data cells, as they are.
void asigna_columna(EstadoTabla& e, std::int32_t columna, std::span<const std::string> valores);

} // namespace Qlt4_Tabla
