// SPDX-License-Identifier: MIT
// The host from a form: ventana.ui was made in Qt Designer, with the table dragged from the widget box; the
// counts and the header texts come with it. The program only fills the cells and follows the selection.
#include "../comun/ejemplo.h"
#include "qt/tabla_widget.h"
#include "textos.h"
#include "ui_ventana.h"

#include <QApplication>

using namespace Qlt4_Tabla;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const ejemplos::Opciones opciones(app.arguments(), forma::AYUDA);
    if (opciones.fin) return *opciones.fin;
    ejemplos::viste(opciones.oscuro);

    QWidget ventana;
    Ui::Ventana ui;
    ui.setupUi(&ventana);
    Tabla0& t = ui.tabla->tabla();
    if (t.Rows() != 6 || t.Cols() != 4 || t.TextMatrix(0, 3) != "      Cota") {
        ejemplos::di(stderr, forma::NO_TRAE);
        return 1;
    }
    for (int fila = 1; fila < t.Rows(); ++fila) t.TextMatrix(fila, 1, forma::ESTACIONES[fila - 1]);
    const auto muestra = [&] {
        ui.elegida->setText(forma::CELDA.arg(t.tablero().Row()).arg(t.tablero().Col()));
    };
    QObject::connect(ui.tabla, &TablaWidget::SelChange, muestra);
    muestra();
    return ejemplos::corre(ventana, opciones);
}
