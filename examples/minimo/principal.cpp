// SPDX-License-Identifier: MIT
// The smallest host, whole: a window with a table of three columns that prints every cell the user changes.
// The folder builds by itself on the installed library: copy it and begin from there.
// begin: todo
#include "qt/comodidades.h"
#include "qt/tabla_widget.h"

#include <QApplication>

#include <iostream>

using namespace Qlt4_Tabla;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    TablaWidget ventana;
    Tabla0& t = ventana.tabla();
    t.Tablero_Nombres("Levantamiento", "Puntos", "*.tb0"); // title, what a row is, pattern of its files
    // Column 0, the row numbers, is not seen before it has a width: 5 characters.
    t.FormatoColumnas(0, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 5, "");
    const auto metros = [](const QString& nombre) {
        return Columna{.nombre = nombre,
            .formato = T_formato::Real__,
            .decimales = 3,
            .alineacion = T_Alineacion::Drcha};
    };
    const Columna nombre{.nombre = "Nombre", .accion = T_Accion::Increm}; // new rows: P2, P3, ...
    pon_columnas(ventana, {nombre, metros("X"), metros("Y")}); // columns 1 to 3
    t.Rows(2); // the header and one row; Enter on the last row makes the next
    t.TextMatrix(1, 1, "P1"); // row, column, text

    QObject::connect(&ventana, &TablaWidget::CambiaCasilla, [&t] {
        const int fila = t.tablero().Row();
        const int col = t.tablero().Col();
        std::cout << t.TextMatrix(0, col) << ' ' << fila << ": " << t.TextMatrix(fila, col) << std::endl;
    });
    ventana.setWindowTitle("Levantamiento");
    ventana.resize(420, 260);
    ventana.show();
    return QApplication::exec();
}
// end: todo
