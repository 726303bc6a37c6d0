// SPDX-License-Identifier: MIT
// The drop-down over Qt's combo box: hands keys, choice and focus on to the in-cell editor.
#include "qt/lista_celda.h"

#include "qt/accesible.h"
#include "qt/casilla.h"
#include "qt/teclas_qt.h"
#include "qt/vista_rejilla.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

namespace Qlt4_Tabla {

ListaCelda::ListaCelda(VistaRejilla& vista)
    : QComboBox(vista.viewport()), vista_(vista), label1_(new QLabel(vista.viewport())) {
    setObjectName(QStringLiteral("cobLista"));
    label1_->setObjectName(QStringLiteral("label1"));
    label1_->setAutoFillBackground(true);
    label1_->setBackgroundRole(QPalette::Base);
    setFocusPolicy(Qt::ClickFocus);
    setInsertPolicy(QComboBox::NoInsert);
    view()->installEventFilter(this);
    view()->viewport()->installEventFilter(this);
    label1_->hide();
    hide();
}

Mandos& ListaCelda::mandos() { return vista_.tabla().mandos(); }

void ListaCelda::mueve(const QRect& celda) {
    label1_->setGeometry(celda);
    // The list keeps its own height, centred on the cell.
    const int alto = std::max(celda.height(), minimumSizeHint().height());
    setGeometry(celda.x(), celda.center().y() - alto / 2, celda.width(), alto);
}

void ListaCelda::muestra(const QRect& celda, const QStringList& entradas, int elegida) {
    clear();
    addItems(entradas);
    setCurrentIndex(elegida);
    setAccessibleName(lugar_de_celda(vista_.tabla(), vista_.tablero().Row(), vista_.tablero().Col()));
    mueve(celda);
    label1_->show();
    show();
    raise();
    setFocus(Qt::OtherFocusReason);
}

void ListaCelda::oculta() {
    hidePopup();
    hide();
    label1_->hide();
}

bool ListaCelda::event(QEvent* e) {
    if (e->type() == QEvent::ShortcutOverride) {
        auto* tecla = static_cast<QKeyEvent*>(e);
        const bool mando = (tecla->modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) != 0;
        if (!mando && codigo_tecla_abajo(*tecla) != teclas::NINGUNA) {
            e->accept();
            return true;
        }
    }
    return QComboBox::event(e);
}

void ListaCelda::keyPressEvent(QKeyEvent* e) {
    for (const int codigo : codigos_tecleados(*e)) {
        if (mandos().tecla_lista(codigo) == 0) return;
    }
    QComboBox::keyPressEvent(e);
    e->accept(); // a key that the list could not use is not a key of the grid
}

// The dropped list is a window of its own: Enter, Space and Escape there mean what they mean in the
// closed list, and a click on an entry chooses it and gives the focus back to the grid.
bool ListaCelda::eventFilter(QObject* objeto, QEvent* e) {
    if (objeto == view() && e->type() == QEvent::KeyPress) {
        const std::vector<int> codigos = codigos_tecleados(*static_cast<QKeyEvent*>(e));
        const int codigo = codigos.empty() ? 0 : codigos.front();
        if (codigo == teclas::INTRO || codigo == teclas::ESPACIO || codigo == teclas::ESCAPE) {
            if (codigo != teclas::ESCAPE && view()->currentIndex().isValid())
                setCurrentIndex(view()->currentIndex().row());
            hidePopup();
            mandos().tecla_lista(codigo);
            return true;
        }
    }
    if (objeto == view()->viewport() && e->type() == QEvent::MouseButtonRelease) {
        const QPoint sitio = static_cast<QMouseEvent*>(e)->position().toPoint();
        const QModelIndex entrada = view()->indexAt(sitio);
        if (entrada.isValid() && view()->isVisible()) {
            setCurrentIndex(entrada.row());
            hidePopup();
            mandos().clic_lista();
            return true;
        }
    }
    return QComboBox::eventFilter(objeto, e);
}

void ListaCelda::focusOutEvent(QFocusEvent* e) {
    QComboBox::focusOutEvent(e);
    mandos().lista_pierde_foco(motivo_de(e->reason()));
}

bool ListaCelda::focusNextPrevChild(bool siguiente) {
    vista_.setFocus(siguiente ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return vista_.sale_por_tabulador(siguiente);
}

// The wheel moves the table under the closed list, it does not change a value by accident.
void ListaCelda::wheelEvent(QWheelEvent* e) { e->ignore(); }

} // namespace Qlt4_Tabla
