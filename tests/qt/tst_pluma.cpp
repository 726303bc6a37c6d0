// SPDX-License-Identifier: MIT
// What the pen of the cells writes, against QPainter::drawText, to the pixel: many texts, fonts, widths, sides
// and scales of the device; and that what it keeps is bounded.
#include "qt/pluma_celdas.h"
#include "qt/texto_qt.h"
#include "qt/textos_preparados.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <QTransform>

#include <optional>
#include <string>
#include <vector>

using namespace Qlt4_Tabla;

namespace {

constexpr int ALTO = 24;
constexpr int MARGEN = 4;

const std::vector<std::string>& textos() {
    static const std::vector<std::string> todos{"1", "0.125", "-12345.678", "1111111.111", "4711",
        "AVATAR To. WAY", "Texto corto", "Ángulo, cañón y pingüino",
        "office fi ffl --> == !=", " blanco delante", "blanco detrás ", "dos  blancos", "a\tb", "a\nb",
        "con & y _", "x\u0301 y n\u0303 e\u0301\u0323", "\u1EBE\u1EC6",
        "\u0395\u03BB\u03BB\u03B7\u03BD\u03B9\u03BA\u03AC", "\u0416\u0438\u0440\u043D\u044B\u0439",
        "\u05E9\u05DC\u05D5\u05DD", "abc \u0634\u0645\u0633 12", "\u2192 flecha \u2588", "a\u00ADb",
        "a\u200Bb\u200Ec", "un texto que es más ancho que su celda", "9999999999999999999999999999",
        "\u4E2D\u6587", "\U0001F600", std::string(200, 'w'), "\u00A0"};
    return todos;
}

struct Caso {
    QFont fuente;
    qreal escala;
    int ancho;
    Qt::Alignment lado;
};

/// One cell below the other, each with its text; written by `escribe`.
template <class Escribe>
QImage hoja(const Caso& c, const Escribe& escribe) {
    const int filas = static_cast<int>(textos().size());
    QImage foto((QSizeF(c.ancho + 60, filas * ALTO) * c.escala).toSize(), QImage::Format_RGB32);
    foto.setDevicePixelRatio(c.escala);
    foto.fill(Qt::white);
    QPainter p(&foto);
    p.setFont(c.fuente);
    for (int i = 0; i < filas; ++i) {
        const QRect celda(30, i * ALTO, c.ancho, ALTO);
        escribe(p, celda, celda.adjusted(MARGEN, 0, -MARGEN - 1, -1), textos()[static_cast<std::size_t>(i)]);
    }
    return foto;
}

QImage con_la_pluma(const Caso& c, TextosPreparados& guardados) {
    std::optional<PlumaCeldas> pluma;
    const auto escribe = [&](QPainter& p, const QRect& celda, const QRect& sitio, const std::string& texto) {
        if (!pluma) pluma.emplace(p, guardados);
        pluma->escribe(celda, sitio, c.lado, texto, Qt::black);
        if (&texto == &textos().back()) pluma->vuelca();
    };
    return hoja(c, escribe);
}

QImage con_draw_text(const Caso& c) {
    return hoja(c, [&](QPainter& p, const QRect& celda, const QRect& sitio, const std::string& texto) {
        QString s = a_qstring(texto);
        if (p.fontMetrics().horizontalAdvance(s) > sitio.width())
            s = p.fontMetrics().elidedText(s, Qt::ElideRight, sitio.width());
        p.setClipRect(celda);
        p.drawText(sitio, static_cast<int>(c.lado | Qt::AlignVCenter) | Qt::TextSingleLine, s);
    });
}

/// The first row whose picture differs, or -1.
int primera_distinta(const QImage& a, const QImage& b, qreal escala) {
    if (a == b) return -1;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y)) return static_cast<int>(y / escala / ALTO);
    return -1;
}

std::vector<QFont> fuentes() {
    QFont normal;
    QFont cursiva = normal;
    cursiva.setItalic(true);
    QFont negra = normal;
    negra.setBold(true);
    QFont grande = normal;
    grande.setPointSizeF(13.5);
    QFont sin_ajuste = normal;
    sin_ajuste.setHintingPreference(QFont::PreferNoHinting);
    QFont subrayada = normal;
    subrayada.setUnderline(true);
    QFont espaciada = normal;
    espaciada.setLetterSpacing(QFont::AbsoluteSpacing, 1.3);
    QFont fija(QStringLiteral("DejaVu Sans Mono"));
    fija.setPixelSize(11);
    QFont serifa(QStringLiteral("DejaVu Serif"), 9);
    return {normal, cursiva, negra, grande, sin_ajuste, subrayada, espaciada, fija, serifa};
}

} // namespace

class TstPluma : public QObject {
    Q_OBJECT

private slots:
    void escribe_como_draw_text_data();
    void escribe_como_draw_text();
    void los_textos_corrientes_se_preparan();
    void se_guardan_los_ultimos();
    void otra_letra_olvida_lo_guardado();
};

void TstPluma::escribe_como_draw_text_data() {
    QTest::addColumn<int>("fuente");
    QTest::addColumn<double>("escala");
    for (int f = 0; f < static_cast<int>(fuentes().size()); ++f)
        for (const double escala : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
            QTest::addRow("font %d at %.2f", f, escala) << f << escala;
}

// Twice: laid out, and as it was kept.
void TstPluma::escribe_como_draw_text() {
    QFETCH(const int, fuente);
    QFETCH(const double, escala);
    TextosPreparados guardados;
    for (const Qt::Alignment lado : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
        for (const int ancho : {80, 81, 107, 240}) {
            const Caso c{fuentes()[static_cast<std::size_t>(fuente)], escala, ancho, lado};
            const QImage debe = con_draw_text(c);
            for (const int vez : {1, 2}) {
                const int fila = primera_distinta(con_la_pluma(c, guardados), debe, escala);
                QVERIFY2(fila < 0,
                    fila < 0 ? ""
                             : qPrintable(QStringLiteral("time %1, width %2, side %3: %4")
                                              .arg(vez)
                                              .arg(ancho)
                                              .arg(int(lado))
                                              .arg(a_qstring(textos()[static_cast<std::size_t>(fila)]))));
            }
        }
    }
}

// Numbers and words in the font's own letters are what a table is full of.
void TstPluma::los_textos_corrientes_se_preparan() {
    QImage foto(10, 10, QImage::Format_RGB32);
    const QPainter p(&foto);
    TextosPreparados guardados;
    guardados.usa(p);
    for (const char* const texto :
        {"0", "-12345.678", "Ángulo, cañón", "un texto que es más ancho que su celda"})
        QVERIFY2(guardados.prepara(texto, 80) != nullptr, texto);
    for (const char* const texto : {"", "a\tb", "\u05E9\u05DC", "a\u00ADb"})
        QVERIFY2(guardados.prepara(texto, 80) == nullptr, texto);
}

void TstPluma::se_guardan_los_ultimos() {
    QImage foto(10, 10, QImage::Format_RGB32);
    const QPainter p(&foto);
    TextosPreparados guardados;
    guardados.usa(p);
    constexpr int MUCHOS = 3 * static_cast<int>(TextosPreparados::MAX_TEXTOS);
    for (int i = 0; i < MUCHOS; ++i) {
        QVERIFY(guardados.prepara(std::to_string(i), 80) != nullptr);
        QVERIFY(guardados.prepara("0", 80)->glifos.size() == 1);
        QVERIFY(guardados.cuantos() <= TextosPreparados::MAX_TEXTOS);
    }
}

void TstPluma::otra_letra_olvida_lo_guardado() {
    QImage foto(10, 10, QImage::Format_RGB32);
    QPainter p(&foto);
    TextosPreparados guardados;
    guardados.usa(p);
    const qreal antes = guardados.prepara("4711", 80)->avance;
    p.setFont(fuentes()[3]); // larger
    guardados.usa(p);
    QVERIFY(guardados.prepara("4711", 80)->avance > antes);
}

QTEST_MAIN(TstPluma)
#include "tst_pluma.moc"
