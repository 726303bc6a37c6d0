// SPDX-License-Identifier: MIT
// The drop-down over Qt's combo box: hands keys, choice and focus on to the in-cell editor.
#include "qt/lista_celda.h"

#include "qt/accesible.h"
#include "qt/casilla.h"
#include "qt/medidas_rejilla.h"
#include "qt/teclas_qt.h"
#include "qt/vista_rejilla.h"

#include <QAbstractItemView>
#include <QHideEvent>
#include <QKeyEvent>
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
    connect(this, &QComboBox::activated, this, [this] {
        if (!tecleando_) mandos().clic_lista();
    });
    label1_->hide();
    hide();
}

Mandos& ListaCelda::mandos() { return vista_.tabla().mandos(); }

void ListaCelda::mueve(const QRect& celda) {
    label1_->setGeometry(celda);
    // The list keeps its own height, centred on the cell.
    const int alto = std::max(celda.height(), minimumSizeHint().height());
    setGeometry(celda.x(), celda.center().y() - alto / 2, celda.width(), alto);
    for (QWidget* w : {static_cast<QWidget*>(this), static_cast<QWidget*>(label1_)})
        recorta(*w, vista_.vista_del_editor());
}

void ListaCelda::muestra(const QRect& celda, const QStringList& entradas, int elegida) {
    clear();
    addItems(entradas);
    setCurrentIndex(elegida);
    setAccessibleName(lugar_de_celda(vista_.tabla(), vista_.tablero().Row(), vista_.tablero().Col()));
    mueve(celda);
    vista_.editor_mostrado();
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

// The dropped list is a window with a view and much else that most tables never show: it is made here.
void ListaCelda::showPopup() {
    desplegada_ = true;
    view()->installEventFilter(this);
    sin_menu_en_barras(*view());
    QComboBox::showPopup();
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
    tecleando_ = true;
    QComboBox::keyPressEvent(e);
    tecleando_ = false;
    e->accept(); // a key that the list could not use is not a key of the grid
}

// The dropped list is a window of its own: Enter, Space and Escape there mean what they mean in the
// closed list. The toolkit would choose already on the question whether the key is a shortcut.
bool ListaCelda::eventFilter(QObject* objeto, QEvent* e) {
    const bool pulsada = e->type() == QEvent::KeyPress;
    if (objeto == view() && (pulsada || e->type() == QEvent::ShortcutOverride)) {
        const std::vector<int> codigos = codigos_tecleados(*static_cast<QKeyEvent*>(e));
        const int codigo = codigos.empty() ? 0 : codigos.front();
        if (codigo == teclas::INTRO || codigo == teclas::ESPACIO || codigo == teclas::ESCAPE) {
            e->accept();
            if (pulsada && codigo != teclas::ESCAPE && view()->currentIndex().isValid())
                setCurrentIndex(view()->currentIndex().row());
            if (pulsada) mandos().tecla_lista(codigo);
            return true;
        }
    }
    return QComboBox::eventFilter(objeto, e);
}

void ListaCelda::focusOutEvent(QFocusEvent* e) {
    QComboBox::focusOutEvent(e);
    // The dropped list takes the focus for itself.
    const bool propia = desplegada_ && view()->hasFocus();
    mandos().lista_pierde_foco(propia ? MotivoFoco::Menu : motivo_de(e->reason()));
}

void ListaCelda::hideEvent(QHideEvent* e) {
    QComboBox::hideEvent(e);
    if (!e->spontaneous()) vista_.editor_oculto();
}

bool ListaCelda::focusNextPrevChild(bool siguiente) {
    vista_.setFocus(siguiente ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return vista_.sale_por_tabulador(siguiente);
}

// The wheel moves the table under the closed list, it does not change a value by accident.
void ListaCelda::wheelEvent(QWheelEvent* e) { e->ignore(); }

} // namespace Qlt4_Tabla
