// SPDX-License-Identifier: MIT
// What a window has really painted, piece by piece, against the whole of it painted anew: a piece that was
// not asked to be repainted still shows what was there before. Main name: lugar_sin_pintar.
#pragma once

#include <QBackingStore>
#include <QCoreApplication>
#include <QImage>
#include <QPoint>
#include <QWidget>

#include <optional>

namespace Qlt4_Tabla::manos {

/// The window of `w` as its backing store holds it; null where the platform keeps none in memory.
inline QImage pintado(const QWidget& w) {
    const QBackingStore* almacen = w.window()->backingStore();
    if (almacen == nullptr) return {};
    const auto* imagen = dynamic_cast<const QImage*>(const_cast<QBackingStore*>(almacen)->paintDevice());
    return imagen == nullptr ? QImage() : imagen->convertToFormat(QImage::Format_RGB32);
}

/// The first pixel of `w`, in its own coordinates, that would come out another if it were painted anew.
/// Carets must stand still: QApplication::setCursorFlashTime(0).
inline std::optional<QPoint> lugar_sin_pintar(QWidget& w) {
    QCoreApplication::processEvents();
    const QImage hay = pintado(w).copy(QRect(w.mapTo(w.window(), QPoint(0, 0)), w.size()));
    QImage debe(w.size(), QImage::Format_RGB32);
    debe.fill(Qt::magenta); // what a painter leaves out shows
    w.render(&debe);
    if (hay.isNull() || hay.size() != debe.size()) return QPoint(-1, -1);
    for (int y = 0; y < hay.height(); ++y)
        for (int x = 0; x < hay.width(); ++x)
            if (hay.pixel(x, y) != debe.pixel(x, y)) return QPoint(x, y);
    return std::nullopt;
}

} // namespace Qlt4_Tabla::manos
