// SPDX-License-Identifier: MIT
// The texts of the host that calls by identifier.
#pragma once

namespace por_identificador {

inline constexpr char COTA[] = "Cota";
inline constexpr char FILAS[] = "Filas: ";
inline constexpr char CELDA[] = "Celda: ";
inline constexpr char COLUMNA[] = "Columna:";
inline constexpr char RECHAZADA[] = "Rechazada, error ";

} // namespace por_identificador
