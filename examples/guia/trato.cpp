// SPDX-License-Identifier: MIT
// What passes between host and table: events, selection, errors, calls by name, another thread.
#include "control/despacho.h"
#include "perfil.h"
#include "textos.h"

#include <QStatusBar>
#include <QThread>

#include <memory>
#include <string_view>

namespace guia {

using namespace Qlt4_Tabla;

// begin: sucesos
void escucha(TablaWidget& widget, QStatusBar& estado) {
    Tabla0& t = widget.tabla();
    QObject::connect(&widget, &TablaWidget::CambiaCasilla, &estado, [&t, &estado] {
        const Tablero& cual = t.tablero(); // the cell just written is still the current one
        estado.showMessage(textos::CAMBIADA.arg(cual.Row()).arg(cual.Col()));
        if (cual.Col() == TERRENO || cual.Col() == RASANTE) calcula(t);
    });
    QObject::connect(&widget, &TablaWidget::SelChange, &estado, [&t, &estado] {
        const Bloque sel = t.tablero().seleccion();
        estado.showMessage(textos::ELEGIDAS.arg(sel.fila1).arg(sel.fila2));
    });
    QObject::connect(&widget, &TablaWidget::ACambiadoValorCombo, &estado,
        [&estado](int fila, int col) { estado.showMessage(textos::DE_LISTA.arg(fila).arg(col)); });
    QObject::connect(&widget, &TablaWidget::Salir, &estado, [&estado] { estado.showMessage(textos::SALE); });
}
// end: sucesos

// begin: seleccion
void elige_filas(Tabla0& t, int desde, int hasta) {
    t.mandos().elige_bloque(desde, 1, hasta, t.Cols() - 1); // as a user would: raises SelChange once
    t.A_RowTop(desde); // and scrolls there
}
// end: seleccion

// begin: tamano
void pon_tamano(Tabla0& t) {
    t.Width(9000); // twips, 1440 an inch; a layout may overrule it
    t.Height(4000.0);
}
// end: tamano

// begin: errores
int error_de_columna(Tabla0& t) {
    try {
        t.Lista(26, {0, {textos::PVC}}); // there are formats for columns 0 to 25
    } catch (const Error& error) {
        return error.numero(); // 9; error.descripcion() is Spanish and meant for the user
    }
    return 0;
}
// end: errores

// begin: mensajes
class Avisos final : public Mensajes {
public:
    Mensajes* de_la_tabla = nullptr;
    std::vector<std::string> vistos;

    Respuesta mensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) override {
        if (estilo == EstiloMensaje::CriticoSiNo) return de_la_tabla->mensaje(texto, estilo, titulo);
        vistos.emplace_back(texto);
        return Respuesta::Aceptar;
    }

    void pitido() override { de_la_tabla->pitido(); }

    void puntero(Puntero forma) override { de_la_tabla->puntero(forma); }

    void avance(std::string_view que, int por_ciento) override { de_la_tabla->avance(que, por_ciento); }
};

std::vector<std::string> faltas_al_leer(const std::string& fichero) {
    Avisos avisos; // outlives the widget
    TablaWidget widget([&avisos](const Plataforma& p) {
        avisos.de_la_tabla = &p.mensajes;
        return Plataforma{p.vista, p.marco, p.casilla, p.lista, avisos, p.separador, p.pasos, p.ajustes,
            p.ficheros, p.dialogo_fichero, p.portapapeles, p.hoja_calculo, p.dialogo_color,
            p.dialogo_columnas};
    });
    widget.tabla().Tablero_Leer(fichero);
    return avisos.vistos; // none: it was read
}
// end: mensajes

// begin: despacho
std::string por_nombre(Tabla0& t) {
    Despacho despacho(t);
    despacho.invoca("TextMatrix", Acceso::Pone, {1, std::int32_t{TERRENO}, "101,5"});
    // By identifier: 0x68030013 is TextMatrix.
    return despacho.invoca(0x68030013, Acceso::Lee, {1, std::int32_t{TERRENO}}).a_texto();
}
// end: despacho

// begin: hilos
void mide_en_otro_hilo(TablaWidget& widget) {
    std::unique_ptr<QThread> hilo(QThread::create([&widget] {
        const std::string medida = "102.75"; // work that takes its time, without the table
        QMetaObject::invokeMethod(
            &widget, [&widget, medida] { widget.tabla().TextMatrix(1, TERRENO, medida); });
    }));
    hilo->start();
    hilo->wait();
}
// end: hilos

} // namespace guia
