// SPDX-License-Identifier: MIT
// Conveniences for hosts: published members in the order that they ask for.
#include "qt/comodidades.h"

#include "base/error.h"
#include "base/matriz.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <cstdint>
#include <string>

namespace Qlt4_Tabla {

namespace {

constexpr std::size_t MAX_COLUMNAS_DATOS = 25;

Matriz<std::string> textos_de(const QStringList& lista) {
    Matriz<std::string> valores(0, static_cast<std::int32_t>(lista.size()) - 1);
    std::ranges::transform(lista, valores.begin(), &QString::toStdString);
    return valores;
}

std::int16_t corto(int n) {
    if (n != static_cast<std::int16_t>(n)) lanza(NumError::Desbordamiento);
    return static_cast<std::int16_t>(n);
}

} // namespace

void pon_columnas(TablaWidget& widget, std::span<const Columna> columnas) {
    if (columnas.size() > MAX_COLUMNAS_DATOS) lanza(NumError::Subindice);
    for (const Columna& c : columnas) { // all are looked at before any is set
        static_cast<void>(corto(c.decimales));
        static_cast<void>(corto(c.longitud));
    }
    Tabla0& t = widget.tabla();
    t.Cols(static_cast<std::int32_t>(columnas.size()) + 1);
    std::int16_t col = 1;
    for (const Columna& c : columnas) {
        t.FormatoColumnas(col, c.invisible, c.bloqueada, c.formato, corto(c.decimales), c.alineacion,
            c.accion, corto(c.longitud), c.nombre.toStdString());
        if (!c.lista.isEmpty()) t.Lista(col, textos_de(c.lista));
        ++col;
    }
    t.Tablero_establece_Formato();
}

void pon_columnas(TablaWidget& widget, std::initializer_list<Columna> columnas) {
    pon_columnas(widget, std::span<const Columna>(columnas.begin(), columnas.size()));
}

std::vector<double> columna_de(TablaWidget& widget, int col) {
    std::vector<double> valores;
    widget.tabla().m_Obten_Matriz_Numerica_de_columna(col, valores);
    return valores;
}

QList<double> columna_qlist(TablaWidget& widget, int col) {
    const std::vector<double> valores = columna_de(widget, col);
    return {valores.begin(), valores.end()};
}

void pon_columna(TablaWidget& widget, int col, std::span<const double> valores) {
    widget.tabla().m_Asigna_Matriz_Numerica_a_Columna(col, valores);
}

FilasElegidas::FilasElegidas(TablaWidget* widget, QObject* padre)
    : QObject(padre != nullptr ? padre : widget), widget_(widget), ultimas_(filas()) {
    connect(widget, &TablaWidget::SelChange, this, &FilasElegidas::mira);
}

TramoFilas FilasElegidas::filas() const {
    if (!widget_) return {};
    const Bloque sel = widget_->tabla().tablero().seleccion();
    return sel.fila2 < 1 ? TramoFilas{} : TramoFilas{std::max(sel.fila1, 1), sel.fila2};
}

void FilasElegidas::elige(int primera, int ultima) {
    if (!widget_) return;
    const auto [desde, hasta] = std::minmax(primera, ultima);
    const Tablero& t = widget_->tabla().tablero();
    if (desde < 1 || hasta >= t.Rows() || t.Cols() < 2) return;
    if (filas() == TramoFilas{desde, hasta}) return; // an echo: the current cell stays where the user put it
    const QScopedValueRollback<bool> callado(eligiendo_, true);
    widget_->tabla().mandos().elige_bloque(desde, 1, hasta, t.Cols() - 1);
    ultimas_ = filas();
}

void FilasElegidas::mira() {
    const TramoFilas ahora = filas();
    if (eligiendo_ || ahora == ultimas_) return;
    ultimas_ = ahora;
    emit cambiadas(ahora.primera, ahora.ultima);
}

} // namespace Qlt4_Tabla
