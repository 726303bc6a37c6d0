// SPDX-License-Identifier: MIT
// Places texts with the arithmetic of QPainter::drawText: qt/pluma_celdas.h.
#include "qt/pluma_celdas.h"

#include "qt/texto_qt.h"
#include "qt/textos_preparados.h"

#include <QGlyphRun>
#include <QPainter>

#include <cmath>

namespace Qlt4_Tabla {

namespace {

// Painters place texts on whole 64ths of a pixel.
qreal en_64avos(qreal x) { return std::trunc(x * 64) / 64; }

} // namespace

PlumaCeldas::PlumaCeldas(QPainter& p, TextosPreparados& textos)
    : p_(p),
      textos_(textos),
      letra_(p.fontMetrics()),
      junta_(p.layoutDirection() != Qt::RightToLeft && p.worldTransform().type() <= QTransform::TxTranslate) {
    textos_.usa(p);
}

void PlumaCeldas::escribe(
    const QRect& celda, const QRect& sitio, Qt::Alignment lado, std::string_view texto, const QColor& color) {
    if (sitio.width() <= 0) return;
    const TextoPreparado* const t = junta_ ? textos_.prepara(texto, sitio.width()) : nullptr;
    if (color != color_) vuelca();
    color_ = color;
    if (t == nullptr || !junta(celda, sitio, lado, *t)) escribe_solo(celda, sitio, lado, texto, color);
}

bool PlumaCeldas::junta(const QRect& celda, const QRect& sitio, Qt::Alignment lado, const TextoPreparado& t) {
    const QSizeF sobra = QSizeF(sitio.size()) - QSizeF(t.avance, t.talla.height());
    const qreal x = lado == Qt::AlignLeft ? 0 : lado == Qt::AlignRight ? sobra.width() : sobra.width() / 2;
    const QPointF origen(en_64avos(sitio.x() + x), en_64avos(sitio.y() + sobra.height() / 2));
    const bool cabe = t.talla.width() <= sitio.width() && t.talla.height() <= sitio.height() &&
        QRectF(celda).contains(t.tinta.translated(origen).adjusted(-1, -1, 1, 1));
    if (!cabe) return false;
    for (const TextoPreparado::Glifo& g : t.glifos) {
        glifos_.push_back(g.numero);
        sitios_.push_back(origen + QPointF(static_cast<qreal>(g.x), t.base));
    }
    return true;
}

void PlumaCeldas::vuelca() {
    if (glifos_.empty()) return;
    QGlyphRun tanda;
    tanda.setRawFont(textos_.letra());
    tanda.setRawData(glifos_.constData(), sitios_.constData(), static_cast<int>(glifos_.size()));
    p_.setPen(color_);
    p_.drawGlyphRun(QPointF(), tanda);
    glifos_.clear();
    sitios_.clear();
}

void PlumaCeldas::escribe_solo(
    const QRect& celda, const QRect& sitio, Qt::Alignment lado, std::string_view texto, const QColor& color) {
    QString s = a_qstring(texto);
    if (letra_.horizontalAdvance(s) > sitio.width()) s = letra_.elidedText(s, Qt::ElideRight, sitio.width());
    p_.save();
    p_.setClipRect(celda, Qt::IntersectClip);
    p_.setPen(color);
    p_.drawText(sitio, static_cast<int>(lado | Qt::AlignVCenter) | Qt::TextSingleLine, s);
    p_.restore();
}

} // namespace Qlt4_Tabla
