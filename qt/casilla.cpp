// SPDX-License-Identifier: MIT
// The text box over Qt's line edit: hands keys, text and focus on to the in-cell editor.
#include "qt/casilla.h"

#include "qt/accesible.h"
#include "qt/medidas_rejilla.h"
#include "qt/pintor_rejilla.h"
#include "qt/teclas_qt.h"
#include "qt/vista_rejilla.h"

#include <QHideEvent>
#include <QKeyEvent>

namespace Qlt4_Tabla {

MotivoFoco motivo_de(Qt::FocusReason razon) {
    if (razon == Qt::PopupFocusReason || razon == Qt::MenuBarFocusReason) return MotivoFoco::Menu;
    return razon == Qt::ActiveWindowFocusReason ? MotivoFoco::Ventana : MotivoFoco::Otro;
}

Casilla::Casilla(VistaRejilla& vista) : CajaLinea(vista.viewport()), vista_(vista) {
    setObjectName(QStringLiteral("Casilla"));
    setFrame(false);
    setFocusPolicy(Qt::ClickFocus); // Tab never lands here: it leaves the table
    setTextMargins(MARGEN_TEXTO_PX - MARCO_PX - 2, 0, 0, 0);
    hide();
}

Mandos& Casilla::mandos() { return vista_.tabla().mandos(); }

bool Casilla::columna_numerica() {
    const int col = mandos().editor().col();
    return col < MAX_COLUMNAS &&
        es_numerico(vista_.tabla().estado().Formatos[static_cast<std::size_t>(col)].Formato);
}

// Inside the frame of the current cell, which the grid draws around it.
void Casilla::mueve(const QRect& celda) {
    setGeometry(celda.adjusted(MARCO_PX, MARCO_PX, -MARCO_PX, -MARCO_PX));
    recorta(*this, vista_.vista_del_editor());
}

void Casilla::muestra(const QRect& celda, std::string_view texto) {
    mueve(celda);
    const int col = vista_.tablero().Col();
    switch (vista_.tablero().ColAlignment(col)) {
    case AlineacionCelda::Izquierda: setAlignment(Qt::AlignLeft | Qt::AlignVCenter); break;
    case AlineacionCelda::Centro: setAlignment(Qt::AlignHCenter | Qt::AlignVCenter); break;
    case AlineacionCelda::Derecha: setAlignment(Qt::AlignRight | Qt::AlignVCenter); break;
    }
    pon(texto);
    setAccessibleName(lugar_de_celda(vista_.tabla(), vista_.tablero().Row(), col));
    vista_.editor_mostrado();
    show();
    setFocus(Qt::OtherFocusReason);
}

int Casilla::tecla(int KeyAscii) { return mandos().tecla_casilla(KeyAscii); }

bool Casilla::event(QEvent* e) {
    // While it is open the box owns its keys, those that the host or the table bind as shortcuts too.
    if (e->type() == QEvent::ShortcutOverride) {
        auto* tecla = static_cast<QKeyEvent*>(e);
        if (codigo_tecla_abajo(*tecla) != teclas::NINGUNA) {
            e->accept();
            return true;
        }
    }
    return CajaLinea::event(e);
}

void Casilla::keyPressEvent(QKeyEvent* e) {
    if (es_decimal_del_teclado_numerico(*e) && columna_numerica()) {
        if (tecla('.') != 0) insert(QStringLiteral("."));
        return;
    }
    const std::vector<int> codigos = codigos_tecleados(*e);
    for (const int codigo : codigos) {
        if (tecla(codigo) == 0) return;
    }
    CajaLinea::keyPressEvent(e);
    e->accept(); // a key that the box could not use, such as Up, is not a key of the grid
}

void Casilla::focusOutEvent(QFocusEvent* e) {
    CajaLinea::focusOutEvent(e);
    mandos().casilla_pierde_foco(motivo_de(e->reason()));
}

// A window that is hidden takes the focus away too late to know why.
void Casilla::hideEvent(QHideEvent* e) {
    CajaLinea::hideEvent(e);
    if (!e->spontaneous()) vista_.editor_oculto();
}

bool Casilla::focusNextPrevChild(bool siguiente) {
    vista_.setFocus(siguiente ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return vista_.sale_por_tabulador(siguiente);
}

} // namespace Qlt4_Tabla
