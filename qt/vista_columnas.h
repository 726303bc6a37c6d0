// SPDX-License-Identifier: MIT
// VistaColumnas: the grid of the column editor on its window, and CasillaEditor, the text box over it. They
// draw the model's grid with the same painter as the table, hand keys and mouse on, and obey.
// The form around them: qt/dialogo_columnas.h. The model: platform/dialogo_columnas.h.
#pragma once

#include "platform/dialogo_columnas.h"
#include "qt/caja_linea.h"
#include "qt/unidades.h"

#include <QAbstractScrollArea>

namespace Qlt4_Tabla {

class VistaColumnas;

class CasillaEditor final : public CajaLinea {
    Q_OBJECT

public:
    CasillaEditor(RejillaColumnas& modelo, VistaColumnas& vista);

    /// Over the cell, as the model says; text and marking are set when it opens.
    void sigue();

protected:
    [[nodiscard]] int tecla(int KeyAscii) override;
    bool event(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    bool focusNextPrevChild(bool siguiente) override;

private:
    void abre();

    RejillaColumnas& modelo_;
    VistaColumnas& vista_;
};

class VistaColumnas final : public QAbstractScrollArea {
    Q_OBJECT

public:
    VistaColumnas(RejillaColumnas& modelo, QWidget* padre);

    [[nodiscard]] const RejillaColumnas& modelo() const { return modelo_; }

    [[nodiscard]] Unidades unidades() const { return Unidades(*viewport()); }

    /// The place of a cell in viewport pixels, whether seen or not.
    [[nodiscard]] QRect rect_celda(int fila, int col) const;
    /// Shows the model as it is now.
    void refresca();
    /// The model was told something.
    void usa();

    /// Tab pressed in the box: the focus goes on from the grid.
    bool sale_por_tabulador(bool siguiente) { return focusNextPrevChild(siguiente); }

signals:
    void usada();

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void changeEvent(QEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void inputMethodEvent(QInputMethodEvent* e) override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery que) const override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void mide();
    void describe();

    RejillaColumnas& modelo_;
    CasillaEditor* casilla_;
    bool refrescando_ = false;
};

} // namespace Qlt4_Tabla
