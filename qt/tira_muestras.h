// SPDX-License-Identifier: MIT
// TiraMuestras: one strip of the colour picker's swatches. It draws them, frames the marked one and the one
// under the pointer, names the latter in a tooltip, and tells clicks and arrow keys to the picker's model.
#pragma once

#include "platform/dialogo_color.h"

#include <QWidget>

namespace Qlt4_Tabla {

class TiraMuestras final : public QWidget {
    Q_OBJECT

public:
    /// Each swatch is `muestra` pixels large.
    TiraMuestras(ModeloColor& modelo, TiraColor cual, QSize muestra, QWidget* padre);

    /// Does it hold the marked swatch?
    [[nodiscard]] bool tiene_marcada() const;
    /// The place of a swatch, counted row by row.
    [[nodiscard]] QRect rect_muestra(int n) const;

    /// The marked swatch may be another one.
    void refresca();

signals:
    /// The model was told something.
    void usada();
    /// A key that means nothing to swatches: the box may want it. A blank is nothing to begin with.
    void tecleada(QKeyEvent* e);

protected:
    bool event(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    [[nodiscard]] const MuestrasTira& tira() const { return modelo_.tira(cual_); }

    /// The swatch there, counted row by row; -1: none.
    [[nodiscard]] int muestra_en(QPointF p) const;
    [[nodiscard]] int marcada() const;
    void pinta(QPainter& p, int n) const;
    void resalta(int n);

    ModeloColor& modelo_;
    TiraColor cual_;
    QSize muestra_;
    int bajo_raton_ = -1;
};

/// A step of the picker for an arrow key, told to the model; false for any other key.
bool camina_con(ModeloColor& modelo, const QKeyEvent& e);

} // namespace Qlt4_Tabla
