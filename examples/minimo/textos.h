// SPDX-License-Identifier: MIT
// The texts of the minimal host.
#pragma once

#include <QString>

namespace minimo {

inline const QString TITULO = QStringLiteral("Mínimo - Tabla");
inline const QString AYUDA =
    QStringLiteral("minimo: una tabla de tres columnas que escribe cada casilla cambiada.\n"
                   "  --captura FICHERO.png  dibuja la ventana en el fichero y termina\n"
                   "  --oscuro               colores oscuros\n"
                   "  --ayuda                esta ayuda");
inline constexpr char TITULO_TABLA[] = "Tabla mínima";
inline constexpr char SUBTITULO[] = "Puntos";
inline constexpr char NOMBRE[] = "Nombre";
inline constexpr char X[] = "X";
inline constexpr char Y[] = "Y";

} // namespace minimo
