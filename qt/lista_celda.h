// SPDX-License-Identifier: MIT
// ListaCelda: the drop-down `cobLista` laid over a list cell, with its companion box `label1`, which
// covers the cell behind it. What its keys and its focus do is decided by the core's in-cell editor.
#pragma once

#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "control/tabla0.h"
#endif

#include <QComboBox>
#include <QLabel>

namespace Qlt4_Tabla {

class VistaRejilla;

class ListaCelda final : public QComboBox {
    Q_OBJECT

public:
    explicit ListaCelda(VistaRejilla& vista);

    void muestra(const QRect& celda, const QStringList& entradas, int elegida);
    void oculta();
    void mueve(const QRect& celda);

    void showPopup() override;

protected:
    bool event(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void hideEvent(QHideEvent* e) override;
    bool focusNextPrevChild(bool siguiente) override;
    bool eventFilter(QObject* objeto, QEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;

private:
    [[nodiscard]] Mandos& mandos();

    VistaRejilla& vista_;
    bool desplegada_ = false; // it was, once: its view is made
    bool tecleando_ = false; // an entry chosen now was chosen with a key
    QLabel* label1_; // the viewport's child, beside the list
};

} // namespace Qlt4_Tabla
