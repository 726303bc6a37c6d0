// SPDX-License-Identifier: MIT
// The texts of the host from a form, but for those in ventana.ui.
#pragma once

#include <QString>

namespace forma {

inline const QString AYUDA =
    QStringLiteral("forma: una tabla puesta en una forma de Qt Designer.\n"
                   "  --captura FICHERO.png  dibuja la ventana en el fichero y termina\n"
                   "  --oscuro               colores oscuros\n"
                   "  --ayuda                esta ayuda");
inline const QString CELDA = QStringLiteral("Fila %1, columna %2");
inline const QString NO_TRAE = QStringLiteral("La forma no trae la tabla que dice ventana.ui.");
inline constexpr char ESTACIONES[][3] = {"E1", "E2", "E3", "E4", "E5"};

} // namespace forma
