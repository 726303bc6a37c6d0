// SPDX-License-Identifier: MIT
// Names of columns and cells for assistive programs.
#include "qt/nombres_accesibles.h"

#include "control/tabla0.h"
#include "core/formato_columna.h"
#include "qt/texto_qt.h"
#include "qt/textos.h"

namespace Qlt4_Tabla {

bool bloqueada(const Tabla0& tabla, int col) {
    return col < MAX_COLUMNAS && tabla.estado().Formatos[static_cast<std::size_t>(col)].Bloqueada;
}

QString nombre_de_columna(const Tablero& t, int col) {
    const QString nombre = a_qstring(t.TextMatrix(0, col));
    return nombre.isEmpty() ? a_qstring(textos::columna) + QString::number(col) : nombre;
}

QString lugar_de_celda(const Tabla0& tabla, int fila, int col) {
    return nombre_de_columna(tabla.tablero(), col) + a_qstring(textos::separa) + a_qstring(textos::fila) +
        QString::number(fila);
}

QString nombre_de_celda(const Tabla0& tabla, int fila, int col) {
    const Tablero& t = tabla.tablero();
    const QString texto = a_qstring(t.TextMatrix(fila, col));
    QString nombre;
    if (fila == 0 && col == 0)
        nombre = texto.isEmpty() ? a_qstring(textos::esquina) : texto;
    else if (fila == 0)
        nombre = a_qstring(textos::cabecera_columna) + nombre_de_columna(t, col);
    else if (col == 0)
        nombre = a_qstring(textos::fila) + QString::number(fila);
    else
        nombre = lugar_de_celda(tabla, fila, col) + a_qstring(textos::separa) +
            (texto.isEmpty() ? a_qstring(textos::vacia) : texto);
    if (col > 0 && bloqueada(tabla, col)) nombre += a_qstring(textos::separa) + a_qstring(textos::bloqueada);
    return nombre;
}

} // namespace Qlt4_Tabla
