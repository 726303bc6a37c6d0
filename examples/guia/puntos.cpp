// SPDX-License-Identifier: MIT
// Points as vectors, in and out; a drawing that follows the table; the file of a table when its window closes.
#include "perfil.h"
#include "qt/comodidades.h"
#include "seccion.h"
#include "textos.h"

#include <QPainter>

#include <algorithm>

namespace guia {

using namespace Qlt4_Tabla;

// begin: puntos
void carga_puntos(TablaWidget& widget, const std::vector<double>& xs, const std::vector<double>& ys) {
    const auto metros = [](const QString& nombre) {
        return Qlt4_Tabla::Columna{.nombre = nombre, .formato = T_formato::Real__, .decimales = 3};
    };
    pon_columnas(widget, {{.nombre = textos::PUNTO}, metros(textos::X), metros(textos::Y)});
    const auto cuantos = static_cast<std::int32_t>(xs.size());
    Matriz<std::string> nombres(1, cuantos); // element r is row r
    for (int fila = 1; fila <= cuantos; ++fila) nombres[fila] = "P" + std::to_string(fila);
    Tabla0& t = widget.tabla();
    t.Redraw(false);
    t.Rows(cuantos + 1); // what follows adds no rows
    t.m__Asigna_Matriz_Alfanume_a_Columna(1, nombres);
    pon_columna(widget, 2, xs); // element 0 goes into row 1
    pon_columna(widget, 3, ys);
    t.Redraw(true);
}

std::vector<double> lee_xs(TablaWidget& widget) {
    widget.tabla().mandos().editor().confirma_y_cierra(); // what the user is still typing counts, too
    return columna_de(widget, 2);
}
// end: puntos

// begin: dibujo
Seccion::Seccion(TablaWidget& tabla, QWidget* padre) : QWidget(padre), tabla_(tabla) {
    const auto anota = [this] { // only notes it: more changes may come before the next painting
        al_dia_ = false;
        update();
    };
    connect(&tabla, &TablaWidget::celdas_cambiadas, this, anota);
    connect(&tabla, &TablaWidget::filas_insertadas, this, anota);
    connect(&tabla, &TablaWidget::filas_borradas, this, anota);
    connect(&tabla, &TablaWidget::contenido_cambiado, this, anota);
}

void Seccion::paintEvent(QPaintEvent*) {
    if (!al_dia_) cotas_ = columna_de(tabla_, TERRENO);
    al_dia_ = true;
    if (cotas_.size() < 2) return;
    const auto [baja, alta] = std::ranges::minmax(cotas_);
    const double paso = width() / static_cast<double>(cotas_.size() - 1);
    QPolygonF linea;
    for (std::size_t i = 0; i < cotas_.size(); ++i)
        linea << QPointF(
            static_cast<double>(i) * paso, height() * (1 - (cotas_[i] - baja) / (alta - baja + 1)));
    QPainter(this).drawPolyline(linea);
}
// end: dibujo

// begin: cierre
bool puede_cerrar(TablaWidget& widget, const std::string& fichero) {
    Tabla0& t = widget.tabla();
    t.mandos().editor().confirma_y_cierra(); // what the user is still typing belongs into the file
    if (t.estado().Modificado != 0) t.Tablero_Grabar(fichero);
    return t.estado().Modificado == 0; // else it could not be written, and the user was told
}
// end: cierre

} // namespace guia
