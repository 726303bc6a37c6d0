// SPDX-License-Identifier: MIT
// The drawings of the toolbar, each a few strokes: qt/dibujos_barra.h.
#include "qt/dibujos_barra.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include <initializer_list>

namespace Qlt4_Tabla {

namespace {

constexpr qreal CUADRADO = 24; // side of the square that the drawings are made on
constexpr qreal OPACIDAD_INACTIVO = 0.4;
constexpr QColor AZUL(0x2f, 0x7f, 0xd6);
constexpr QColor VERDE(0x2e, 0x9e, 0x5b);

/// The palette's ink and paper.
struct Tintas {
    QColor tinta;
    QColor papel;
};

/// Draws in units of the square.
class Lapiz {
public:
    using Puntos = std::initializer_list<QPointF>;

    explicit Lapiz(QPainter& p) : p_(p) {}

    /// A sheet with round corners.
    void hoja(const QRectF& r, const QBrush& relleno, const QColor& color, qreal grueso, qreal esquina = 1) {
        pon(relleno, color, grueso);
        p_.drawRoundedRect(
            r, por_ciento(esquina, r.width()), por_ciento(esquina, r.height()), Qt::RelativeSize);
    }

    void circulo(QPointF centro, qreal radio, const QBrush& relleno, const QColor& color, qreal grueso) {
        pon(relleno, color, grueso);
        p_.drawEllipse(centro, radio, radio);
    }

    /// Straight lines from point to point, all in one stroke.
    void lineas(std::initializer_list<Puntos> tramos, const QColor& color, qreal grueso) {
        QPainterPath camino;
        for (const Puntos& tramo : tramos) {
            camino.moveTo(*tramo.begin());
            for (const QPointF& p : tramo) camino.lineTo(p);
        }
        traza(camino, color, grueso);
    }

    void traza(const QPainterPath& camino, const QColor& color, qreal grueso) {
        pon(Qt::NoBrush, color, grueso);
        p_.drawPath(camino);
    }

    void banda(const QRectF& r, const QColor& color) { p_.fillRect(r, color); }

private:
    // Of half a side, as the painter wants corners; whole ones are fine enough.
    static int por_ciento(qreal esquina, qreal lado) { return static_cast<int>(200 * esquina / lado); }

    void pon(const QBrush& relleno, const QColor& color, qreal grueso) {
        QPen pluma(color, grueso, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
        pluma.setMiterLimit(4);
        p_.setPen(pluma);
        p_.setBrush(relleno);
    }

    QPainter& p_;
};

// A sheet of a table over the corner of another.
void copiar(Lapiz& l, const Tintas& t) {
    QPainterPath otra({5.5, 16.5});
    otra.arcTo(3.5, 14.5, 2, 2, 270, -90);
    otra.arcTo(3.5, 3.5, 2, 2, 180, -90);
    otra.arcTo(12.5, 3.5, 2, 2, 90, -90);
    otra.lineTo(14.5, 5.5);
    l.traza(otra, t.tinta, 1.6);
    l.hoja({8.5, 7.5, 12, 13}, t.papel, t.tinta, 1.6);
    l.lineas(
        {{{8.5, 11.8}, {20.5, 11.8}}, {{8.5, 16.1}, {20.5, 16.1}}, {{13, 7.5}, {13, 20.5}}}, t.tinta, 1.1);
    l.banda({9.3, 8.3, 10.4, 3}, AZUL);
}

// A sheet of a table over a clipboard.
void pegar(Lapiz& l, const Tintas& t) {
    l.hoja({3.5, 4.5, 13, 16}, Qt::NoBrush, t.tinta, 1.6, 1.2);
    l.hoja({7, 2.5, 6, 4}, AZUL, t.tinta, 1.2);
    l.hoja({9.5, 10.5, 11, 10}, t.papel, t.tinta, 1.6);
    l.lineas(
        {{{9.5, 13.8}, {20.5, 13.8}}, {{9.5, 17.1}, {20.5, 17.1}}, {{14, 10.5}, {14, 20.5}}}, t.tinta, 1.1);
}

// An arrow out of a green sheet, with a rim of paper around it.
void excel(Lapiz& l, const Tintas& t) {
    l.hoja({3.5, 3.5, 14, 17}, t.papel, VERDE, 1.7);
    l.lineas(
        {{{3.5, 8}, {17.5, 8}}, {{3.5, 12}, {17.5, 12}}, {{3.5, 16}, {17.5, 16}}, {{8.2, 3.5}, {8.2, 20.5}}},
        VERDE, 1.2);
    l.lineas({{{10.5, 12}, {21, 12}}, {{17.6, 8.4}, {21.4, 12}, {17.6, 15.6}}}, t.papel, 4.4);
    l.lineas({{{10.8, 12}, {20.8, 12}}, {{17.4, 8.2}, {21.4, 12}, {17.4, 15.8}}}, t.tinta, 1.9);
}

// Three sliders.
void opciones(Lapiz& l, const Tintas& t) {
    l.lineas({{{3, 6}, {21, 6}}, {{3, 12}, {21, 12}}, {{3, 18}, {21, 18}}}, t.tinta, 1.7);
    for (const QPointF centro : {QPointF(15.5, 6), QPointF(7.5, 12), QPointF(13, 18)})
        l.circulo(centro, 2.5, AZUL, t.tinta, 1.3);
}

// Three cells, and an arrow along them.
void avance_vertical(Lapiz& l, const Tintas& t) {
    l.hoja({3.5, 3.5, 8, 17}, t.papel, t.tinta, 1.6);
    l.lineas({{{3.5, 9.2}, {11.5, 9.2}}, {{3.5, 14.8}, {11.5, 14.8}}}, t.tinta, 1.1);
    l.lineas({{{17.5, 4}, {17.5, 18.6}}, {{13.9, 15}, {17.5, 19}, {21.1, 15}}}, AZUL, 2);
}

void avance_horizontal(Lapiz& l, const Tintas& t) {
    l.hoja({3.5, 3.5, 17, 8}, t.papel, t.tinta, 1.6);
    l.lineas({{{9.2, 3.5}, {9.2, 11.5}}, {{14.8, 3.5}, {14.8, 11.5}}}, t.tinta, 1.1);
    l.lineas({{{4, 17.5}, {18.6, 17.5}}, {{15, 13.9}, {19, 17.5}, {15, 21.1}}}, AZUL, 2);
}

void dibuja(Dibujo cual, Lapiz lapiz, const Tintas& tintas) {
    switch (cual) {
    case Dibujo::Copiar: return copiar(lapiz, tintas);
    case Dibujo::Pegar: return pegar(lapiz, tintas);
    case Dibujo::Excel: return excel(lapiz, tintas);
    case Dibujo::Opciones: return opciones(lapiz, tintas);
    case Dibujo::AvanceVertical: return avance_vertical(lapiz, tintas);
    case Dibujo::AvanceHorizontal: return avance_horizontal(lapiz, tintas);
    }
}

class MotorDibujo final : public QIconEngine {
public:
    MotorDibujo(Dibujo suelto, Dibujo pulsado, const Tintas& tintas)
        : suelto_(suelto), pulsado_(pulsado), tintas_(tintas) {}

    void paint(QPainter* p, const QRect& sitio, QIcon::Mode modo, QIcon::State estado) override {
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        if (modo == QIcon::Disabled) p->setOpacity(p->opacity() * OPACIDAD_INACTIVO);
        p->translate(sitio.topLeft());
        p->scale(sitio.width() / CUADRADO, sitio.height() / CUADRADO);
        dibuja(estado == QIcon::On ? pulsado_ : suelto_, Lapiz(*p), tintas_);
        p->restore();
    }

    QPixmap pixmap(const QSize& tamano, QIcon::Mode modo, QIcon::State estado) override {
        QPixmap pixmap(tamano);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        paint(&p, QRect(QPoint(), tamano), modo, estado);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new MotorDibujo(*this); }

private:
    Dibujo suelto_;
    Dibujo pulsado_;
    Tintas tintas_;
};

} // namespace

QIcon icono_de(Dibujo suelto, Dibujo pulsado, const QPalette& paleta) {
    const auto opaco = [&paleta](QPalette::ColorRole cual) { return QColor(paleta.color(cual).rgb()); };
    return QIcon(new MotorDibujo(suelto, pulsado, {opaco(QPalette::ButtonText), opaco(QPalette::Base)}));
}

} // namespace Qlt4_Tabla
