// SPDX-License-Identifier: MIT
// The drawing host: a table of measured points beside their plan. Where to read on: tabla_puntos.cpp sets the
// table up and fills it, ventana.cpp joins table and plan, vista_plano.cpp is the plan.
#include "../comun/ejemplo.h"
#include "muestras.h"
#include "textos.h"
#include "ventana.h"

#include <QApplication>

int main(int argc, char** argv) {
    constexpr int MAX_FILAS = 1'000'000;
    QApplication app(argc, argv);
    QApplication::setApplicationDisplayName(plano::textos::PROGRAMA);
    const ejemplos::Opciones opciones(QApplication::arguments(), plano::textos::AYUDA, MAX_FILAS);
    if (opciones.fin) return *opciones.fin;
    ejemplos::viste(opciones.oscuro);

    const std::vector<plano::Muestra> muestras = plano::lee_muestras();
    if (muestras.empty()) {
        ejemplos::di(stderr, plano::textos::SIN_DATOS);
        return 1;
    }
    const int filas = opciones.filas > 0 ? opciones.filas : static_cast<int>(muestras.size());
    // A picture is of the table as it comes, unless its file of settings is named.
    const bool con_forma = opciones.captura.isEmpty() || !opciones.ajustes.isEmpty();
    plano::Ventana ventana(muestras, filas,
        con_forma ? plano::Ventana::Recuerdo::Forma : plano::Ventana::Recuerdo::Nada, opciones.ajustes);
    return ejemplos::corre(ventana, opciones);
}
