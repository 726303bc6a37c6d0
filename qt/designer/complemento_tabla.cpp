// SPDX-License-Identifier: MIT
// The table's entry in the widget box. The form that a dropped table begins with (tabla_nueva.ui) names
// every property: the editor keeps those it has been told of, and of the others only what was changed. Its
// header string gives the columns a width, which they have none of before a host sets formats.
#include "qt/designer/complemento_tabla.h"

#include "qt/designer/textos.h"
#include "qt/tabla_widget.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <QPixmap>

namespace Qlt4_Tabla {

QString ComplementoTabla::name() const { return QStringLiteral("Qlt4_Tabla::TablaWidget"); }

QString ComplementoTabla::group() const { return textos::GRUPO; }

QString ComplementoTabla::toolTip() const { return textos::SUGERENCIA; }

QString ComplementoTabla::whatsThis() const { return textos::QUE_ES; }

QString ComplementoTabla::includeFile() const { return QStringLiteral("qt/tabla_widget.h"); }

bool ComplementoTabla::isContainer() const { return false; }

QString ComplementoTabla::domXml() const {
    QFile forma(QStringLiteral(":/qlt4_tabla/tabla_nueva.ui"));
    return forma.open(QIODevice::ReadOnly) ? QString::fromUtf8(forma.readAll()) : QString();
}

QWidget* ComplementoTabla::createWidget(QWidget* padre) { return new TablaWidget(padre); }

// A small grid with its header and its row numbers.
QIcon ComplementoTabla::icon() const {
    constexpr int LADO = 22;
    QPixmap dibujo(LADO, LADO);
    dibujo.fill(Qt::white);
    QPainter p(&dibujo);
    p.fillRect(0, 0, LADO, 6, QColor(0x4A, 0x7E, 0xBB));
    p.fillRect(0, 6, 6, LADO, QColor(0xD0, 0xD7, 0xE0));
    p.setPen(QColor(0x70, 0x78, 0x82));
    for (int i = 6; i < LADO; i += 5) {
        p.drawLine(i, 0, i, LADO);
        p.drawLine(0, i, LADO, i);
    }
    p.drawRect(0, 0, LADO - 1, LADO - 1);
    return dibujo;
}

} // namespace Qlt4_Tabla
