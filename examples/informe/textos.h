// SPDX-License-Identifier: MIT
// The texts of the batch job: what it says, and the names in the report.
#pragma once

namespace informe {

inline constexpr char AYUDA[] =
    "informe ENTRADA.csv SALIDA.tb0: hace la tabla de una nivelación, con sus desniveles.\n"
    "Cada línea de la entrada: estación, distancia, cota.";
inline constexpr char TITULO[] = "Nivelación";
inline constexpr char SUBTITULO[] = "Estaciones";
inline constexpr char ESTACION[] = "Estación";
inline constexpr char DISTANCIA[] = "Distancia";
inline constexpr char COTA[] = "Cota";
inline constexpr char DESNIVEL[] = "Desnivel";
inline constexpr char NO_SE_LEE[] = "No se puede leer «";
inline constexpr char CIERRA[] = "»";
inline constexpr char HECHAS[] = " estaciones en ";

} // namespace informe
