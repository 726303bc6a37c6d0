// SPDX-License-Identifier: MIT
// PlumaCeldas: writes the texts of cells, to the pixel as QPainter::drawText does. Texts of one colour are
// gathered and drawn in one go, from glyphs that were laid out before (qt/textos_preparados.h).
#pragma once

#include <QColor>
#include <QFontMetrics>
#include <QList>
#include <QPointF>
#include <QRect>

#include <string_view>

class QPainter;

namespace Qlt4_Tabla {

class TextosPreparados;
struct TextoPreparado;

class PlumaCeldas {
public:
    /// Both outlive it. The painter's font and transformation stay as they are.
    PlumaCeldas(QPainter& p, TextosPreparados& textos);

    /// Writes one line into `sitio`, centred vertically and cut with an ellipsis where it is longer. Nothing of
    /// it is seen outside `celda`.
    void escribe(const QRect& celda, const QRect& sitio, Qt::Alignment lado, std::string_view texto,
        const QColor& color);

    /// Draws what was written; before the painter's clip changes, and at the end.
    void vuelca();

private:
    [[nodiscard]] bool junta(
        const QRect& celda, const QRect& sitio, Qt::Alignment lado, const TextoPreparado& t);
    void escribe_solo(const QRect& celda, const QRect& sitio, Qt::Alignment lado, std::string_view texto,
        const QColor& color);

    QPainter& p_;
    TextosPreparados& textos_;
    QFontMetrics letra_;
    bool junta_ = false; // whether this painter draws gathered glyphs as it draws texts
    QColor color_; // of what is gathered
    QList<quint32> glifos_;
    QList<QPointF> sitios_;
};

} // namespace Qlt4_Tabla
