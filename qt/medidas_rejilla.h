// SPDX-License-Identifier: MIT
// Measures that every window of a grid shares: the height of its rows, places of cells in pixels, its scroll
// bars, what is seen of an editor over a cell. Main names: alto_de_fila, en_px, pon_barras_de, recorta.
#pragma once

#include "core/geometria.h"
#include "qt/unidades.h"

#include <QAbstractScrollArea>
#include <QFontMetrics>
#include <QRect>
#include <QScrollBar>

#include <algorithm>

namespace Qlt4_Tabla {

/// One step of the horizontal scroll bar.
inline constexpr int PASO_HORIZONTAL_PX = 24;

/// Height of a row in pixels: its font's and some air.
[[nodiscard]] inline int alto_de_fila(const QWidget& w) {
    constexpr int AIRE_PX = 7;
    return w.fontMetrics().height() + AIRE_PX;
}

/// Twips of the grid as pixels of its viewport; neighbours share their edges.
[[nodiscard]] inline QRect en_px(const Rectangulo& r, const Unidades& u) {
    const int x = u.px_x(r.izquierda);
    const int y = u.px_y(r.arriba);
    return {x, y, u.px_x(r.derecha()) - x, u.px_y(r.abajo()) - y};
}

/// Rows go by one, columns by pixels.
inline void pon_barras_de(QAbstractScrollArea& area, const Tablero& t, const Unidades& u) {
    QScrollBar* v = area.verticalScrollBar();
    v->setRange(1, std::max(fila_superior_maxima(t), t.TopRow()));
    v->setPageStep(filas_visibles(t));
    v->setValue(t.TopRow());
    QScrollBar* h = area.horizontalScrollBar();
    const int sobra = u.px_x(ancho_total(t)) - area.viewport()->width();
    h->setRange(0, std::max(0, sobra));
    h->setPageStep(area.viewport()->width());
    h->setValue(u.px_x(t.desplazamiento()));
}

/// Bars of a grid have no menu: Qt's would be in the program's language.
inline void sin_menu_en_barras(QAbstractScrollArea& area) {
    for (QScrollBar* barra : {area.verticalScrollBar(), area.horizontalScrollBar()})
        barra->setContextMenuPolicy(Qt::NoContextMenu);
}

/// What lies over a cell is seen only as far as the cell is: `visto` is that part, in the coordinates of the
/// parent. Rows are scrolled whole, so it is cut at the sides; nothing is seen of a cell that is not.
inline void recorta(QWidget& encima, const QRect& visto) {
    const QRect entero = encima.geometry();
    const QRect queda(visto.left(), entero.top(), visto.width(), entero.height());
    if (visto.left() <= entero.left() && visto.right() >= entero.right())
        encima.clearMask();
    else // an empty region would mean no mask
        encima.setMask(
            queda.isEmpty() ? QRegion(-1, -1, 1, 1) : QRegion(queda.translated(-entero.topLeft())));
}

} // namespace Qlt4_Tabla
