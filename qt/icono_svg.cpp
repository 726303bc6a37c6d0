// SPDX-License-Identifier: MIT
// Drawings of the toolbar as icons: qt/icono_svg.h.
#include "qt/icono_svg.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <utility>

// Outside any namespace, as the macro asks: the library may be linked statically.
static void carga_iconos() { Q_INIT_RESOURCE(iconos); }

namespace Qlt4_Tabla {

namespace {

constexpr qreal OPACIDAD_INACTIVO = 0.4;

class MotorSvg final : public QIconEngine {
public:
    MotorSvg(QByteArray suelto, QByteArray pulsado)
        : suelto_(std::move(suelto)), pulsado_(std::move(pulsado)) {}

    void paint(QPainter* p, const QRect& sitio, QIcon::Mode modo, QIcon::State estado) override {
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        if (modo == QIcon::Disabled) p->setOpacity(p->opacity() * OPACIDAD_INACTIVO);
        QSvgRenderer(estado == QIcon::On ? pulsado_ : suelto_).render(p, sitio);
        p->restore();
    }

    QPixmap pixmap(const QSize& tamano, QIcon::Mode modo, QIcon::State estado) override {
        QPixmap pixmap(tamano);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        paint(&p, QRect(QPoint(), tamano), modo, estado);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new MotorSvg(suelto_, pulsado_); }

private:
    QByteArray suelto_;
    QByteArray pulsado_;
};

QByteArray dibujo(const QString& nombre, const QPalette& paleta) {
    QFile fichero(QStringLiteral(":/Qlt4_Tabla/iconos/%1.svg").arg(nombre));
    if (!fichero.open(QIODevice::ReadOnly)) return {};
    QByteArray svg = fichero.readAll();
    svg.replace("#101010", paleta.color(QPalette::ButtonText).name().toLatin1());
    svg.replace("#fefefe", paleta.color(QPalette::Base).name().toLatin1());
    return svg;
}

} // namespace

QIcon icono_svg(const QString& nombre, const QString& pulsado, const QPalette& paleta) {
    carga_iconos();
    const QByteArray suelto = dibujo(nombre, paleta);
    return QIcon(new MotorSvg(suelto, pulsado.isEmpty() ? suelto : dibujo(pulsado, paleta)));
}

} // namespace Qlt4_Tabla
