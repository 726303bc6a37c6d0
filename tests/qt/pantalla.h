// SPDX-License-Identifier: MIT
// What a window has really painted, piece by piece, against the whole of it painted anew: a piece that was
// not asked to be repainted still shows what was there before. Main name: lugar_sin_pintar.
#pragma once

#include <QBackingStore>
#include <QCoreApplication>
#include <QImage>
#include <QPoint>
#include <QWidget>
#include <QtMath>

#include <optional>

namespace Qlt4_Tabla::manos {

/// The window of `w` as its backing store holds it; null where the platform keeps none in memory.
inline QImage pintado(const QWidget& w) {
    const QBackingStore* almacen = w.window()->backingStore();
    if (almacen == nullptr) return {};
    const auto* imagen = dynamic_cast<const QImage*>(const_cast<QBackingStore*>(almacen)->paintDevice());
    return imagen == nullptr ? QImage() : imagen->convertToFormat(QImage::Format_RGB32);
}

/// The first pixel of `w`, counted on the device from the window's corner, that would come out another if `w`
/// were painted anew. Carets must stand still: QApplication::setCursorFlashTime(0).
inline std::optional<QPoint> lugar_sin_pintar(QWidget& w) {
    QCoreApplication::processEvents();
    const QImage hay = pintado(w);
    const qreal escala = w.devicePixelRatio();
    const QPoint esquina = w.mapTo(w.window(), QPoint(0, 0));
    const QRectF todo(QPointF(esquina) * escala, QSizeF(w.size()) * escala);
    const QRect dentro(QPoint(qCeil(todo.left()), qCeil(todo.top())), // without the pixels it shares
        QPoint(qFloor(todo.right()) - 1, qFloor(todo.bottom()) - 1));
    if (!hay.rect().contains(dentro)) return QPoint(-1, -1);
    QImage debe(hay.size(), QImage::Format_RGB32);
    debe.setDevicePixelRatio(escala);
    debe.fill(Qt::magenta); // what a painter leaves out shows
    w.render(&debe, esquina);
    for (int y = dentro.top(); y <= dentro.bottom(); ++y)
        for (int x = dentro.left(); x <= dentro.right(); ++x)
            if (hay.pixel(x, y) != debe.pixel(x, y)) return QPoint(x, y);
    return std::nullopt;
}

} // namespace Qlt4_Tabla::manos
