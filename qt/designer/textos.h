// SPDX-License-Identifier: MIT
// Texts of this folder: what the widget box of the form editor says of the table.
#pragma once

#include <QString>

namespace Qlt4_Tabla::textos {

inline const QString GRUPO = QStringLiteral("Tablas");
inline const QString SUGERENCIA = QStringLiteral("Tabla de datos");
inline const QString QUE_ES =
    QStringLiteral("Una tabla cuyas columnas tienen formato propio: textos, números, listas y colores. "
                   "El programa pone los formatos y los datos.");

} // namespace Qlt4_Tabla::textos
