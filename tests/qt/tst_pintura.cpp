// SPDX-License-Identifier: MIT
// What is drawn, to the pixel: colours of cells and texts, merges, pictures, the frame of the current cell,
// at several scales of the device. Drawn by PintorRejilla into a picture, without a window.
#include "core/formato_columna.h"
#include "core/geometria.h"
#include "platform/vista_tablero.h"
#include "qt/colores_qt.h"
#include "qt/imagen_qt.h"
#include "qt/pintor_rejilla.h"
#include "qt/textos_preparados.h"

#include <QImage>
#include <QPainter>
#include <QTest>
#include <QWidget>

#include <string>

using namespace Qlt4_Tabla;

namespace {

constexpr int ANCHO_COL = 1200; // 80 pixels
constexpr int ANCHO = 400;
constexpr int ALTO = 200;
const std::string BLOQUE = "\u2588\u2588\u2588\u2588"; // letters without holes: their colour can be read

// Five columns by ten rows; the current cell stands in the last row, out of the way.
class Lienzo {
public:
    Lienzo() : t(vista_) {
        t.Rows(10);
        t.Cols(5);
        for (int c = 0; c < 5; ++c) t.ColWidth(c, ANCHO_COL);
        t.pon_vista(u.twips_x(ANCHO), u.twips_y(ALTO));
        t.selecciona(9, 4, 9, 4);
        paleta = clara();
    }

    static QPalette clara() { return de(QColor(250, 250, 250), QColor(20, 20, 20), QColor(225, 225, 220)); }

    static QPalette oscura() { return de(QColor(30, 30, 30), QColor(235, 235, 235), QColor(60, 60, 60)); }

    QImage pinta(qreal escala = 1.0) {
        QImage foto(QSizeF(ANCHO * escala, ALTO * escala).toSize(), QImage::Format_RGB32);
        foto.setDevicePixelRatio(escala);
        foto.fill(Qt::magenta);
        QPainter p(&foto);
        PintorRejilla::Aspecto a{paleta, con_foco};
        PintorRejilla(t, u, p, textos, a, QSize(ANCHO, ALTO)).pinta(QRect(0, 0, ANCHO, ALTO));
        return foto;
    }

    QRect rect(int fila, int col) {
        const Rectangulo r = rectangulo_celda(t, fila, col);
        return {u.px_x(r.izquierda), u.px_y(r.arriba), u.px_x(r.ancho), u.px_y(r.alto)};
    }

    /// Where nothing but background is: the lower right part of the cell, off its lines.
    QColor fondo(int fila, int col) {
        return pinta().pixelColor(rect(fila, col).bottomRight() - QPoint(4, 3));
    }

    /// Inside the first letter of a cell that holds BLOQUE, left aligned.
    QColor letra(int fila, int col) {
        return pinta().pixelColor(rect(fila, col).left() + MARGEN_TEXTO_PX + 5, rect(fila, col).center().y());
    }

private:
    static QPalette de(const QColor& base, const QColor& texto, const QColor& boton) {
        QPalette p;
        p.setColor(QPalette::Base, base);
        p.setColor(QPalette::Text, texto);
        p.setColor(QPalette::Window, boton);
        p.setColor(QPalette::Button, boton);
        p.setColor(QPalette::ButtonText, texto);
        p.setColor(QPalette::Highlight, QColor(48, 120, 200));
        return p;
    }

    VistaNula vista_;
    QWidget medida_;

public:
    Tablero t;
    Unidades u{medida_};
    QPalette paleta;
    TextosPreparados textos;
    bool con_foco = true;
};

Bloque una(int fila, int col) { return {fila, col, fila, col}; }

constexpr std::int32_t AMARILLO = 0x00FFFF; // 0x00BBGGRR
constexpr std::int32_t AZUL_OSCURO = 0x800000;

} // namespace

class TstPintura : public QObject {
    Q_OBJECT

private slots:
    void sin_fondo_es_la_base_de_la_paleta();
    void fondo_cero_es_negro();
    void un_fondo_es_su_color();
    void el_texto_por_defecto_es_el_de_la_paleta();
    void sobre_un_fondo_el_texto_contrasta_data();
    void sobre_un_fondo_el_texto_contrasta();
    void un_color_de_texto_se_respeta();
    void la_cabecera_gris_fija_se_lee_en_oscuro();
    void la_cabecera_sin_color_es_de_la_paleta();
    void la_seleccion_tine_y_deja_ver_el_color();
    void la_celda_actual_lleva_marco_y_no_tinte();
    void sin_foco_el_marco_es_mas_apagado();
    void las_celdas_llevan_linea_a_derecha_y_abajo();
    void las_fundidas_son_una_celda_sin_linea();
    void el_texto_fundido_va_una_vez_en_medio();
    void fundidas_a_medias_se_pintan_desde_la_fila_de_arriba();
    void cada_fila_fundida_guarda_su_fondo();
    void el_modo_dos_no_funde();
    void la_alineacion_mueve_el_texto();
    void un_texto_largo_no_sale_de_su_celda();
    void una_columna_sin_ancho_no_se_pinta();
    void una_fila_sin_alto_no_se_pinta();
    void la_imagen_se_ajusta_a_la_celda();
    void imagen_y_texto_caben_juntos();
    void mas_alla_de_las_celdas_no_hay_celdas();
    void el_desplazamiento_pasa_por_debajo_de_las_fijas();
    void una_zona_sucia_se_pinta_igual_que_el_todo_data();
    void una_zona_sucia_se_pinta_igual_que_el_todo();
    void varias_zonas_con_un_pintor_dan_el_todo();
    void el_contraste_es_blanco_o_negro_data();
    void el_contraste_es_blanco_o_negro();
};

void TstPintura::sin_fondo_es_la_base_de_la_paleta() {
    Lienzo l;
    QCOMPARE(l.fondo(2, 2), QColor(250, 250, 250));
    l.paleta = Lienzo::oscura();
    QCOMPARE(l.fondo(2, 2), QColor(30, 30, 30));
}

void TstPintura::fondo_cero_es_negro() {
    Lienzo l;
    l.t.color_fondo(una(2, 2), 0);
    QCOMPARE(l.fondo(2, 2), QColor(Qt::black));
    QCOMPARE(l.fondo(3, 2), QColor(250, 250, 250));
    l.paleta = Lienzo::oscura();
    QCOMPARE(l.fondo(2, 2), QColor(Qt::black));
}

void TstPintura::un_fondo_es_su_color() {
    Lienzo l;
    l.t.color_fondo({1, 1, 3, 2}, 0x0000FF);
    QCOMPARE(l.fondo(1, 1), QColor(255, 0, 0));
    QCOMPARE(l.fondo(3, 2), QColor(255, 0, 0));
    QCOMPARE(l.fondo(4, 2), QColor(250, 250, 250));
}

void TstPintura::el_texto_por_defecto_es_el_de_la_paleta() {
    Lienzo l;
    l.t.TextMatrix(2, 2, BLOQUE);
    QCOMPARE(l.letra(2, 2), QColor(20, 20, 20));
    l.paleta = Lienzo::oscura();
    QCOMPARE(l.letra(2, 2), QColor(235, 235, 235));
}

void TstPintura::sobre_un_fondo_el_texto_contrasta_data() {
    QTest::addColumn<bool>("oscura");
    QTest::addColumn<int>("fondo");
    QTest::addColumn<QColor>("letra");
    for (const bool oscura : {false, true}) {
        const char* p = oscura ? "dark" : "light";
        QTest::addRow("%s palette, yellow", p) << oscura << int(AMARILLO) << QColor(Qt::black);
        QTest::addRow("%s palette, dark blue", p) << oscura << int(AZUL_OSCURO) << QColor(Qt::white);
        QTest::addRow("%s palette, black", p) << oscura << 0 << QColor(Qt::white);
        QTest::addRow("%s palette, white", p) << oscura << 0xFFFFFF << QColor(Qt::black);
    }
}

void TstPintura::sobre_un_fondo_el_texto_contrasta() {
    QFETCH(bool, oscura);
    QFETCH(int, fondo);
    QFETCH(QColor, letra);
    Lienzo l;
    if (oscura) l.paleta = Lienzo::oscura();
    l.t.TextMatrix(2, 2, BLOQUE);
    l.t.color_fondo(una(2, 2), fondo);
    QCOMPARE(l.letra(2, 2), letra);
}

void TstPintura::un_color_de_texto_se_respeta() {
    Lienzo l;
    l.t.TextMatrix(2, 2, BLOQUE);
    l.t.color_texto(una(2, 2), 0x0000FF);
    QCOMPARE(l.letra(2, 2), QColor(255, 0, 0));
    l.t.color_fondo(una(2, 2), AMARILLO);
    QCOMPARE(l.letra(2, 2), QColor(255, 0, 0));
    l.paleta = Lienzo::oscura();
    QCOMPARE(l.letra(2, 2), QColor(255, 0, 0));
}

void TstPintura::la_cabecera_gris_fija_se_lee_en_oscuro() {
    Lienzo l;
    l.paleta = Lienzo::oscura();
    l.t.TextMatrix(0, 2, BLOQUE);
    l.t.color_fondo(una(0, 2), COLOR_CABECERA_BLOQUEADA);
    QCOMPARE(l.fondo(0, 2), QColor(0xE0, 0xE0, 0xE0));
    QCOMPARE(l.letra(0, 2), QColor(Qt::black));
}

void TstPintura::la_cabecera_sin_color_es_de_la_paleta() {
    Lienzo l;
    l.t.TextMatrix(0, 2, BLOQUE);
    l.t.color_fondo(una(0, 3), COLOR_CARA_BOTON);
    l.t.TextMatrix(0, 3, BLOQUE);
    for (const int col : {2, 3}) {
        QCOMPARE(l.fondo(0, col), QColor(225, 225, 220));
        QCOMPARE(l.letra(0, col), QColor(20, 20, 20));
    }
    l.paleta = Lienzo::oscura();
    QCOMPARE(l.fondo(0, 3), QColor(60, 60, 60));
    QCOMPARE(l.letra(0, 3), QColor(235, 235, 235));
}

void TstPintura::la_seleccion_tine_y_deja_ver_el_color() {
    Lienzo l;
    l.t.color_fondo(una(3, 2), 0x0000FF);
    const QColor sin_tinte = l.fondo(3, 2);
    l.t.selecciona(2, 1, 4, 2);
    QVERIFY(l.fondo(4, 1) != QColor(250, 250, 250));
    QVERIFY(l.fondo(3, 2) != sin_tinte);
    QVERIFY(l.fondo(3, 2) != l.fondo(4, 2)); // red and white still differ
    QCOMPARE(l.fondo(5, 1), QColor(250, 250, 250));
    QCOMPARE(l.fondo(3, 3), QColor(250, 250, 250));
    QVERIFY(l.fondo(0, 1) != l.fondo(0, 3)); // the headers tell the selection too
    QVERIFY(l.fondo(3, 0) != l.fondo(5, 0));
}

void TstPintura::la_celda_actual_lleva_marco_y_no_tinte() {
    Lienzo l;
    l.t.selecciona(2, 1, 4, 2);
    QCOMPARE(l.fondo(2, 1), QColor(250, 250, 250));
    const QImage foto = l.pinta();
    const QRect r = l.rect(2, 1);
    for (const QPoint p :
        {r.topLeft(), r.topRight(), r.bottomLeft(), r.bottomRight(), QPoint(r.left() + 1, r.center().y())})
        QCOMPARE(foto.pixelColor(p), QColor(48, 120, 200));
    QVERIFY(foto.pixelColor(r.topLeft() + QPoint(MARCO_PX, MARCO_PX)) != QColor(48, 120, 200));
}

void TstPintura::sin_foco_el_marco_es_mas_apagado() {
    Lienzo l;
    l.con_foco = false;
    l.t.selecciona(2, 1, 2, 1);
    const QColor marco = l.pinta().pixelColor(l.rect(2, 1).topLeft());
    QVERIFY(marco != QColor(48, 120, 200));
    QVERIFY(marco != QColor(250, 250, 250));
}

void TstPintura::las_celdas_llevan_linea_a_derecha_y_abajo() {
    Lienzo l;
    const QImage foto = l.pinta();
    const QRect r = l.rect(2, 2);
    QVERIFY(foto.pixelColor(r.right(), r.center().y()) != QColor(250, 250, 250));
    QVERIFY(foto.pixelColor(r.center().x(), r.bottom()) != QColor(250, 250, 250));
    QCOMPARE(foto.pixelColor(r.topLeft()), QColor(250, 250, 250));
}

namespace {

Lienzo& con_fundidas(Lienzo& l, std::int16_t modo = 1) {
    for (int fila = 2; fila <= 4; ++fila) l.t.TextMatrix(fila, 2, BLOQUE);
    l.t.MergeCol(2, true);
    l.t.MergeCells(modo);
    return l;
}

// Rows of pixels, between the tops of two table rows, that hold letters.
int alto_de_letras(Lienzo& l, int desde_fila, int hasta_fila) {
    const QImage foto = l.pinta();
    const int x = l.rect(2, 2).left() + MARGEN_TEXTO_PX + 5;
    int n = 0;
    for (int y = l.rect(desde_fila, 2).top(); y <= l.rect(hasta_fila, 2).bottom(); ++y)
        n += foto.pixelColor(x, y) == QColor(20, 20, 20) ? 1 : 0;
    return n;
}

} // namespace

void TstPintura::las_fundidas_son_una_celda_sin_linea() {
    Lienzo l;
    const QImage foto = con_fundidas(l).pinta();
    const int x = l.rect(2, 2).right() - 5;
    for (int y = l.rect(2, 2).top(); y < l.rect(4, 2).bottom(); ++y)
        QCOMPARE(foto.pixelColor(x, y), QColor(250, 250, 250));
    QVERIFY(foto.pixelColor(x, l.rect(4, 2).bottom()) != QColor(250, 250, 250));
    QVERIFY(foto.pixelColor(l.rect(2, 3).center().x(), l.rect(2, 3).bottom()) != QColor(250, 250, 250));
}

void TstPintura::el_texto_fundido_va_una_vez_en_medio() {
    Lienzo l;
    const int una_letra = [] {
        Lienzo solo;
        solo.t.TextMatrix(2, 2, BLOQUE);
        return alto_de_letras(solo, 2, 2);
    }();
    con_fundidas(l);
    QVERIFY(una_letra > 5);
    const int todo = alto_de_letras(l, 2, 4);
    QVERIFY(todo >= una_letra && todo < 2 * una_letra); // a lone cell may cut what stands out of it
    QVERIFY(alto_de_letras(l, 3, 3) >= una_letra);
}

void TstPintura::fundidas_a_medias_se_pintan_desde_la_fila_de_arriba() {
    Lienzo l;
    con_fundidas(l);
    l.t.TopRow(3);
    const QImage foto = l.pinta();
    const QRect r = l.rect(3, 2);
    const int medio = (r.top() + l.rect(4, 2).bottom()) / 2; // of the part that is seen
    QCOMPARE(foto.pixelColor(r.left() + MARGEN_TEXTO_PX + 5, medio), QColor(20, 20, 20));
}

void TstPintura::cada_fila_fundida_guarda_su_fondo() {
    Lienzo l;
    con_fundidas(l);
    l.t.color_fondo(una(3, 2), AMARILLO);
    const QImage foto = l.pinta();
    const int x = l.rect(2, 2).right() - 5;
    QCOMPARE(foto.pixelColor(x, l.rect(2, 2).center().y()), QColor(250, 250, 250));
    QCOMPARE(foto.pixelColor(x, l.rect(3, 2).center().y()), QColor(255, 255, 0));
}

void TstPintura::el_modo_dos_no_funde() {
    Lienzo l;
    Lienzo suelto;
    con_fundidas(l, 2);
    con_fundidas(suelto, 0);
    QCOMPARE(l.pinta(), suelto.pinta());
}

void TstPintura::la_alineacion_mueve_el_texto() {
    Lienzo l;
    l.t.TextMatrix(2, 2, "\u2588");
    const auto primera = [&] { // first column of pixels with a letter
        const QImage foto = l.pinta();
        const QRect r = l.rect(2, 2);
        int x = r.left();
        while (x < r.right() && foto.pixelColor(x, r.center().y()) != QColor(20, 20, 20)) ++x;
        return x - r.left();
    };
    const int izquierda = primera();
    l.t.ColAlignment(2, AlineacionCelda::Centro);
    const int centro = primera();
    l.t.ColAlignment(2, AlineacionCelda::Derecha);
    const int derecha = primera();
    QVERIFY(izquierda >= MARGEN_TEXTO_PX && izquierda <= MARGEN_TEXTO_PX + 2);
    QVERIFY(centro > 30 && centro < 45);
    QVERIFY(derecha > 60 && derecha < 78);
}

void TstPintura::un_texto_largo_no_sale_de_su_celda() {
    Lienzo l;
    std::string largo;
    for (int i = 0; i < 30; ++i) largo += BLOQUE;
    const QImage antes = l.pinta();
    l.t.TextMatrix(2, 2, largo);
    const QImage despues = l.pinta();
    const QRect r = l.rect(2, 2);
    for (int x = 0; x < ANCHO; ++x) {
        if (x >= r.left() && x <= r.right()) continue;
        QCOMPARE(despues.pixelColor(x, r.center().y()), antes.pixelColor(x, r.center().y()));
    }
}

void TstPintura::una_columna_sin_ancho_no_se_pinta() {
    Lienzo l;
    l.t.TextMatrix(2, 2, BLOQUE);
    l.t.ColWidth(2, 0);
    Lienzo vacia;
    vacia.t.ColWidth(2, 0);
    QCOMPARE(l.pinta(), vacia.pinta());
    vacia.t.ColWidth(2, -500);
    QCOMPARE(l.pinta(), vacia.pinta());
}

void TstPintura::una_fila_sin_alto_no_se_pinta() {
    Lienzo l;
    l.t.TextMatrix(2, 2, BLOQUE);
    l.t.RowHeight(2, 0);
    Lienzo vacia;
    vacia.t.RowHeight(2, 0);
    QCOMPARE(l.pinta(), vacia.pinta());
}

void TstPintura::la_imagen_se_ajusta_a_la_celda() {
    Lienzo l;
    QImage cuadro(100, 100, QImage::Format_RGB32);
    cuadro.fill(Qt::green);
    l.t.CellPicture(2, 2, imagen_de(cuadro));
    const QImage foto = l.pinta();
    const QRect r = l.rect(2, 2);
    QCOMPARE(foto.pixelColor(r.center()), QColor(Qt::green));
    QCOMPARE(foto.pixelColor(r.left() + 5, r.center().y()), QColor(250, 250, 250)); // square, not stretched
    QCOMPARE(foto.pixelColor(r.center().x(), r.bottom() + 3), QColor(250, 250, 250));
    int alto = 0;
    for (int y = r.top(); y <= r.bottom(); ++y)
        alto += foto.pixelColor(r.center().x(), y) == QColor(Qt::green) ? 1 : 0;
    QVERIFY(alto > r.height() - 6);
}

void TstPintura::imagen_y_texto_caben_juntos() {
    Lienzo l;
    QImage cuadro(40, 40, QImage::Format_RGB32);
    cuadro.fill(Qt::green);
    l.t.CellPicture(2, 2, imagen_de(cuadro));
    l.t.TextMatrix(2, 2, "\u2588\u2588");
    const QImage foto = l.pinta();
    const QRect r = l.rect(2, 2);
    QCOMPARE(foto.pixelColor(r.left() + 6, r.center().y()), QColor(Qt::green));
    bool letra = false;
    for (int x = r.left() + r.height(); x < r.right(); ++x)
        letra |= foto.pixelColor(x, r.center().y()) == QColor(20, 20, 20);
    QVERIFY(letra);
}

void TstPintura::mas_alla_de_las_celdas_no_hay_celdas() {
    Lienzo l;
    l.t.Rows(3);
    l.t.Cols(2);
    const QImage foto = l.pinta();
    const QColor fuera = foto.pixelColor(ANCHO - 3, ALTO - 3);
    QVERIFY(fuera != QColor(250, 250, 250));
    QCOMPARE(foto.pixelColor(ANCHO - 3, 30), fuera);
    QCOMPARE(foto.pixelColor(100, ALTO - 3), fuera);
    l.t.Rows(0);
    QCOMPARE(l.pinta().pixelColor(10, 10), fuera);
}

void TstPintura::el_desplazamiento_pasa_por_debajo_de_las_fijas() {
    Lienzo l;
    l.t.pon_vista(l.u.twips_x(200), l.u.twips_y(ALTO));
    l.t.color_fondo({0, 1, 9, 1}, 0x0000FF);
    l.t.desplazamiento(600); // 40 pixels
    const QImage foto = l.pinta();
    QCOMPARE(foto.pixelColor(75, 55), foto.pixelColor(20, 55)); // still column 0
    QCOMPARE(foto.pixelColor(85, 50), QColor(255, 0, 0));
    QVERIFY(foto.pixelColor(125, 50) != QColor(255, 0, 0));
}

void TstPintura::una_zona_sucia_se_pinta_igual_que_el_todo_data() {
    QTest::addColumn<double>("escala");
    for (const double escala : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) QTest::addRow("%.2f", escala) << escala;
}

// Painting any part over the old picture gives the picture that painting it all gives.
void TstPintura::una_zona_sucia_se_pinta_igual_que_el_todo() {
    QFETCH(double, escala);
    Lienzo l;
    con_fundidas(l);
    for (int fila = 0; fila < 10; ++fila)
        for (int col = 0; col < 5; ++col)
            if (l.t.TextMatrix(fila, col).empty())
                l.t.TextMatrix(fila, col, "Texto " + std::to_string(fila * col));
    l.t.color_fondo({3, 1, 5, 3}, AMARILLO);
    l.t.selecciona(4, 2, 6, 3);
    const QImage todo = l.pinta(escala);
    const QRect zonas[] = {
        l.rect(4, 2), l.rect(0, 0), QRect(70, 0, 33, ALTO), QRect(0, 30, ANCHO, 41), QRect(171, 57, 1, 1)};
    for (const QRect& zona : zonas) {
        QImage foto = todo;
        QPainter p(&foto);
        PintorRejilla(l.t, l.u, p, l.textos, {l.paleta, true}, QSize(ANCHO, ALTO)).pinta(zona);
        p.end();
        QVERIFY2(foto == todo, qPrintable(QStringLiteral("%1 %2").arg(zona.x()).arg(zona.y())));
    }
}

// As a window does where an editor lies over the grid: the paint event has several rectangles.
void TstPintura::varias_zonas_con_un_pintor_dan_el_todo() {
    Lienzo l;
    l.t.Rows(3); // so that there is room beyond the cells
    l.t.selecciona(1, 1, 2, 2);
    const QImage todo = l.pinta();
    QImage foto(todo.size(), QImage::Format_RGB32);
    foto.fill(Qt::magenta);
    QPainter p(&foto);
    for (const QRect& zona : {QRect(0, 0, ANCHO, 30), QRect(0, 30, 70, 41), QRect(70, 30, ANCHO - 70, 41),
             QRect(0, 71, ANCHO, ALTO - 71)})
        PintorRejilla(l.t, l.u, p, l.textos, {l.paleta, true}, QSize(ANCHO, ALTO)).pinta(zona);
    p.end();
    QCOMPARE(foto, todo);
}

void TstPintura::el_contraste_es_blanco_o_negro_data() {
    QTest::addColumn<QColor>("fondo");
    QTest::addColumn<QColor>("letra");
    QTest::newRow("red") << QColor(255, 0, 0) << QColor(Qt::white);
    QTest::newRow("green") << QColor(0, 255, 0) << QColor(Qt::black);
    QTest::newRow("blue") << QColor(0, 0, 255) << QColor(Qt::white);
    QTest::newRow("cyan") << QColor(0, 255, 255) << QColor(Qt::black);
    QTest::newRow("header grey") << QColor(0xE0, 0xE0, 0xE0) << QColor(Qt::black);
}

void TstPintura::el_contraste_es_blanco_o_negro() {
    QFETCH(QColor, fondo);
    QFETCH(QColor, letra);
    QCOMPARE(contraste(fondo), letra);
}

QTEST_MAIN(TstPintura)
#include "tst_pintura.moc"
