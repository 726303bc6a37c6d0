// SPDX-License-Identifier: MIT
// VistaRejilla: the grid on the window. It draws the core's Tablero, translates keys, mouse, wheel and
// size into calls of Mandos, and obeys the notices of the grid (VistaTablero, by way of PuertosQt). It
// holds no state of the table but what it drew last. Drawing itself: qt/pintor_rejilla.h.
#pragma once

#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "control/tabla0.h"
#endif
#include "qt/textos_preparados.h"
#include "qt/unidades.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>

namespace Qlt4_Tabla {

class VistaRejilla final : public QAbstractScrollArea {
    Q_OBJECT

public:
    VistaRejilla(Tabla0& tabla, QWidget* padre);

    [[nodiscard]] Tabla0& tabla() { return tabla_; }

    [[nodiscard]] const Tablero& tablero() const { return tabla_.tablero(); }

    [[nodiscard]] Unidades unidades() const { return Unidades(*viewport()); }

    /// The place of a cell in viewport pixels, whether seen or not.
    [[nodiscard]] QRect rect_celda(int fila, int col) const;

    /// What is seen of the cell under the open editor, in viewport pixels; empty: nothing.
    [[nodiscard]] QRect vista_del_editor() const;

    /// Where the mouse was at its last event over the grid, on the screen.
    [[nodiscard]] QPoint sitio_del_raton() const { return raton_; }

    /// Tab pressed in an open editor: the focus goes on from the grid, as in any form.
    bool sale_por_tabulador(bool siguiente) { return focusNextPrevChild(siguiente); }

    /// An editor is about to be shown over a cell. Closing the window commits it before the host hears of it.
    void editor_mostrado();
    /// An editor, open or not, was hidden: itself, with the table, with a parent or the window. Commits.
    void editor_oculto();

    // What the grid tells; each asks for the smallest repaint.
    void celdas_cambiadas(int fila1, int col1, int fila2, int col2);
    /// Rows from `desde` on stand `n` rows further down, further up where negative.
    void filas_movidas(int desde, int n);
    void seleccion_cambiada();
    void vista_desplazada();
    void todo_cambiado();

signals:
    /// The current cell or the selection was drawn anew (for accessibility).
    void cursor_movido();
    /// The current cell got another text, colour or picture.
    void celda_actual_cambiada();

protected:
    bool event(QEvent* e) override;
    bool eventFilter(QObject* objeto, QEvent* e) override;
    bool viewportEvent(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void changeEvent(QEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void inputMethodEvent(QInputMethodEvent* e) override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery que) const override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void timerEvent(QTimerEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    // The picture as it stands, with what waits to be painted.
    struct Dibujado {
        Bloque seleccion;
        int fila = 0;
        int fila_superior = 1;
        int desplazamiento = 0;
    };

    [[nodiscard]] QPoint a_twips(const QPointF& px) const;
    [[nodiscard]] int borde_bajo(const QPointF& px) const;
    void arrastra_borde(int x_px);
    void ajusta_ancho(int col);
    void mide_filas();
    void pon_barras();
    [[nodiscard]] bool filas_iguales() const;
    void sigue_vista();
    void mueve(const QRect& zona, int dx, int dy);
    void repinta(const QRect& zona);
    void repinta_todo();
    void repinta_filas(int fila1, int fila2);
    void repinta_filas(int fila1, int fila2, int x1, int x2);
    void repinta_seleccion();
    void repinta_realce();
    [[nodiscard]] bool columna_numerica() const;
    void confirma_editor();

    Tabla0& tabla_;
    Dibujado dibujado_;
    TextosPreparados textos_;
    int pedidos_ = 0; // pieces to be repainted since the last painting, and what moves cost
    bool a_medias_ = false; // some was painted while the grid kept its notices: moving would mix old and new
    QPoint raton_;
    QPoint arrastrado_; // in twips, where the mouse was dragged last
    QBasicTimer arrastre_; // while it is dragged: held beside the cells it goes on scrolling
    int columna_en_mano_ = -1; // column whose edge is dragged
    int agarre_ = 0; // where the mouse took the edge, less the width then
    int rueda_y_ = 0; // wheel steps of less than a notch, added up
    int rueda_x_ = 0;
    bool poniendo_barras_ = false;
    bool menu_encima_ = false; // the focus went to a menu and will be back
    const QMetaObject* clase_ventana_ = nullptr; // of the window that the editor was shown on
};

} // namespace Qlt4_Tabla
