// SPDX-License-Identifier: MIT
// Texts that every example program may say.
#pragma once

#include <QString>

namespace ejemplos::textos {

inline const QString FALTA_FICHERO = QStringLiteral("Falta el nombre del fichero: --captura FICHERO.png");
inline const QString MALAS_FILAS = QStringLiteral("--filas espera un número entero de 1 a %1.");
inline const QString OPCION_DESCONOCIDA = QStringLiteral("No se conoce la opción «%1».");
inline const QString VEA_AYUDA = QStringLiteral("Con --ayuda se muestran las opciones.");
inline const QString CAPTURA = QStringLiteral("Captura: %1");
inline const QString CAPTURA_VACIA = QStringLiteral("La captura está vacía: la ventana no se ha dibujado.");
inline const QString NO_SE_ESCRIBE = QStringLiteral("No se puede escribir la captura en «%1».");

} // namespace ejemplos::textos
