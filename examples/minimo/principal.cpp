// SPDX-License-Identifier: MIT
// The smallest host: a window with a table of three columns that prints every cell the user changes.
#include "../comun/ejemplo.h"
#include "qt/tabla_widget.h"
#include "textos.h"

#include <QApplication>

#include <iostream>

using namespace Qlt4_Tabla;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const ejemplos::Opciones opciones(app.arguments(), minimo::AYUDA);
    if (opciones.fin) return *opciones.fin;
    ejemplos::viste(opciones.oscuro);

    // begin: tabla
    TablaWidget ventana;
    Tabla0& t = ventana.tabla();
    t.Tablero_Nombres(minimo::TITULO_TABLA, minimo::SUBTITULO, "*.tb0");
    t.Cols(4); // column 0 holds the row numbers
    t.FormatoColumnas(0, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 5, "");
    t.FormatoColumnas(
        1, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Increm, 14, minimo::NOMBRE);
    t.FormatoColumnas(
        2, false, false, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 14, minimo::X);
    t.FormatoColumnas(
        3, false, false, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 14, minimo::Y);
    t.Tablero_establece_Formato();
    t.Rows(2); // the header and one row; Enter on the last row makes the next
    t.TextMatrix(1, 1, "P1");
    QObject::connect(&ventana, &TablaWidget::CambiaCasilla, [&t] {
        const int fila = t.tablero().Row();
        const int col = t.tablero().Col();
        std::cout << t.TextMatrix(0, col) << ' ' << fila << ": " << t.TextMatrix(fila, col) << std::endl;
    });
    // end: tabla

    ventana.setWindowTitle(minimo::TITULO);
    ventana.resize(420, 260);
    return ejemplos::corre(ventana, opciones);
}
