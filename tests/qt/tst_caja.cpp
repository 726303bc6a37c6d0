// SPDX-License-Identifier: MIT
// The line edit of all our boxes, by real events: what comes in from the clipboard and by drop is one line, a
// text that nobody touched stays as it was, the menu is Spanish. As the box of a cell and of the column
// editor; the colour picker's is in its own test.
#include "qt/dialogo_fichero_qt.h"
#include "tests/qt/mesa_columnas.h"

#include <QAction>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileIconProvider>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTimer>

using namespace Qlt4_Tabla;

class TstCaja : public QObject {
    Q_OBJECT

private slots:
    void init() {
        avisos_son_fallos();
        QApplication::clipboard()->clear();
    }

    void lo_pegado_es_una_linea_data();
    void lo_pegado_es_una_linea();
    void lo_pegado_entra_donde_esta_el_cursor();
    void pegar_del_menu_es_una_linea();
    void lo_soltado_es_una_linea();
    void en_el_editor_de_columnas_tambien();
    void un_valor_sin_tocar_no_cambia_data();
    void un_valor_sin_tocar_no_cambia();
    void un_nombre_sin_tocar_no_cambia();
    void cada_caracter_compuesto_ve_los_anteriores_data();
    void cada_caracter_compuesto_ve_los_anteriores();
    void el_menu_esta_en_espanol();
    void el_menu_no_confirma_ni_cierra();
    void el_menu_del_nombre_de_fichero_tambien();
    void las_barras_no_tienen_menu();
    void no_tapa_los_numeros_de_fila();
    void no_tapa_los_numeros_de_fila_la_lista();
    void no_tapa_la_cabecera_la_lista();
};

namespace {

constexpr const char* BLOQUE = "P7\r\nP8\tx\r\n"; // rows of cells, as the table itself copies them

void copia(const char* texto) { QApplication::clipboard()->setText(QString::fromUtf8(texto)); }

void pega(const QWidget& w) { manos::pulsa(w, Qt::Key_V, Qt::ControlModifier); }

// The menu over a box, as the right button asks for it.
QMenu* menu_sobre(QLineEdit& caja) {
    const QPoint p = caja.rect().center();
    QContextMenuEvent e(QContextMenuEvent::Mouse, p, caja.mapToGlobal(p));
    QApplication::sendEvent(&caja, &e);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

void elige(QMenu& menu, const char* nombre) {
    const QAction* a = menu.findChild<QAction*>(QString::fromLatin1(nombre));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(const_cast<QAction*>(a)).center());
}

// What another program lets fall on a widget.
void suelta(const QWidget& w, const char* texto) {
    QMimeData datos;
    datos.setText(QString::fromUtf8(texto));
    const QPoint p = manos::en_ventana(w, w.rect().center());
    QDragEnterEvent entra(p, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(manos::de(w), &entra);
    QDropEvent cae(p, Qt::CopyAction, &datos, Qt::LeftButton, {});
    QApplication::sendEvent(manos::de(w), &cae);
}

} // namespace

void TstCaja::lo_pegado_es_una_linea_data() {
    QTest::addColumn<QString>("copiado");
    QTest::addColumn<QString>("queda");
    QTest::newRow("one cell") << "P7\r\n"
                              << "P7";
    QTest::newRow("two cells of a row") << "P7\tP8\r\n"
                                        << "P7 P8";
    QTest::newRow("two rows") << "P7\r\nP8\r\n"
                              << "P7";
    QTest::newRow("line feed alone") << "P7\nP8"
                                     << "P7";
    QTest::newRow("an empty first line") << "\r\nP8"
                                         << "";
    QTest::newRow("line separator") << QStringLiteral("P7\u2028P8") << "P7";
    QTest::newRow("blanks stay") << " P  7 "
                                 << " P  7 ";
}

void TstCaja::lo_pegado_es_una_linea() {
    QFETCH(QString, copiado);
    QFETCH(QString, queda);
    MesaQt m;
    QApplication::clipboard()->setText(copiado);
    m.pulsa(Qt::Key_F2);
    pega(*m.widget);
    QCOMPARE(m.casilla->text(), queda);
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, NOMBRE), queda);
}

void TstCaja::lo_pegado_entra_donde_esta_el_cursor() {
    MesaQt m;
    copia(BLOQUE);
    m.teclea("abcd");
    m.pulsa(Qt::Key_Left);
    m.pulsa(Qt::Key_Left, Qt::ShiftModifier); // "c" is marked
    pega(*m.widget);
    QCOMPARE(m.casilla->text(), QStringLiteral("abP7d"));
    QCOMPARE(m.casilla->cursorPosition(), 4);
    m.pulsa(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m.casilla->text(), QStringLiteral("abcd"));
}

void TstCaja::pegar_del_menu_es_una_linea() {
    MesaQt m;
    copia(BLOQUE);
    m.pulsa(Qt::Key_F2);
    QMenu* menu = menu_sobre(*m.casilla);
    QVERIFY(menu != nullptr);
    elige(*menu, "edit-paste");
    QCOMPARE(m.casilla->text(), QStringLiteral("P7"));
}

void TstCaja::lo_soltado_es_una_linea() {
    MesaQt m;
    m.pulsa(Qt::Key_F2);
    suelta(*m.casilla, BLOQUE);
    QCOMPARE(m.casilla->text(), QStringLiteral("P7"));
    QVERIFY(m.casilla->isVisible());
}

void TstCaja::en_el_editor_de_columnas_tambien() {
    MesaColumnas m;
    copia("Cota\r\nZ\r\n");
    m.edita({[&] {
        m.clic_celda(F_NOMBRE, 1);
        m.pulsa_ed(Qt::Key_F2);
        m.pulsa_ed(Qt::Key_Home);
        manos::pulsa(*m.dialogo, Qt::Key_End, Qt::ShiftModifier);
        pega(*m.dialogo);
        QCOMPARE(m.caja()->text(), QStringLiteral("Cota"));
        m.pulsa_ed(Qt::Key_Return);
        QCOMPARE(m.dice(F_NOMBRE, 1), QStringLiteral("Cota"));
    }});
}

void TstCaja::un_valor_sin_tocar_no_cambia_data() {
    QTest::addColumn<QByteArray>("valor");
    QTest::newRow("longer than 32767") << QByteArray(40000, 'x');
    QTest::newRow("starts with a byte order mark") << QByteArray("\xEF\xBB\xBFP7");
    QTest::newRow("not UTF-8") << QByteArray("P\xF1\x80 7");
    QTest::newRow("two lines") << QByteArray("P7\r\nP8\tx");
}

void TstCaja::un_valor_sin_tocar_no_cambia() {
    QFETCH(QByteArray, valor);
    MesaQt m;
    m.pon(1, NOMBRE, valor.constData());
    const auto deshacer = [&] { return m.tabla().estado().menus[Opcion::mn_Deshacer].activa; };
    const bool antes = deshacer();
    m.pulsa(Qt::Key_F2);
    m.pulsa(Qt::Key_Return);
    QCOMPARE(QByteArray::fromStdString(std::string(m.tablero().TextMatrix(1, NOMBRE))), valor);
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
    QCOMPARE(m.tabla().estado().Modificado, std::int16_t{0});
    QCOMPARE(deshacer(), antes);
}

void TstCaja::un_nombre_sin_tocar_no_cambia() {
    MesaColumnas m;
    const std::string nombre = "P\xF1\x80 7";
    m.tabla().FormatoColumnas(
        NOMBRE, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 10, nombre);
    m.edita({[&] {
        m.clic_celda(F_NOMBRE, 1);
        m.pulsa_ed(Qt::Key_F2);
        m.pulsa_ed(Qt::Key_Return);
        const Tablero& t = m.modelo().tablero();
        QCOMPARE(std::string(t.TextMatrix(F_NOMBRE, 1)), nombre);
        QVERIFY(!m.puede_aplicar());
    }});
}

void TstCaja::cada_caracter_compuesto_ve_los_anteriores_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("compuesto");
    QTest::addColumn<QString>("queda");
    QTest::newRow("one point only") << int(X) << "..5"
                                    << "1.5";
    QTest::newRow("no letters") << int(X) << "a.b5"
                                << "1.5";
    QTest::newRow("minus goes in front, and away") << int(X) << "-2+3"
                                                   << "123";
    QTest::newRow("text takes all") << int(NOMBRE) << "..5"
                                    << "1..5";
}

void TstCaja::cada_caracter_compuesto_ve_los_anteriores() {
    QFETCH(int, col);
    QFETCH(QString, compuesto);
    QFETCH(QString, queda);
    MesaQt m;
    m.actual(1, col);
    m.teclea("1");
    m.compone(compuesto);
    QCOMPARE(m.casilla->text(), queda);
    QCOMPARE(m.casilla->cursorPosition(), static_cast<int>(queda.size()));
}

void TstCaja::el_menu_esta_en_espanol() {
    MesaQt m;
    copia("x");
    m.pon(1, NOMBRE, "valor");
    m.doble_clic(1, NOMBRE); // all of it marked
    QMenu* menu = menu_sobre(*m.casilla);
    QVERIFY(menu != nullptr);
    QStringList titulos;
    for (const QAction* a : menu->actions()) titulos << a->text().section(QLatin1Char('\t'), 0, 0);
    QCOMPARE(titulos,
        QStringList(
            {"Deshacer", "Rehacer", "", "Cortar", "Copiar", "Pegar", "Eliminar", "", "Seleccionar todo"}));
    const auto atajo = [&](int i) { return menu->actions().at(i)->text().section(QLatin1Char('\t'), 1); };
    QCOMPARE(atajo(3), QStringLiteral("Ctrl+X"));
    QCOMPARE(atajo(5), QStringLiteral("Ctrl+V"));
    const auto puede = [&](int i) { return menu->actions().at(i)->isEnabled(); };
    QVERIFY(puede(3) && puede(4) && puede(5) && puede(6));
    QVERIFY(!puede(0) && !puede(1) && !puede(8)); // nothing was typed, all is marked
    menu->close();
}

void TstCaja::el_menu_no_confirma_ni_cierra() {
    MesaQt m;
    m.teclea("nuevo");
    QMenu* menu = menu_sobre(*m.casilla);
    QVERIFY(menu != nullptr && m.casilla->isVisible());
    elige(*menu, "select-all");
    QVERIFY(m.casilla->isVisible() && m.casilla->hasFocus());
    QCOMPARE(m.casilla->selectedText(), QStringLiteral("nuevo"));
    menu = menu_sobre(*m.casilla);
    manos::pulsa(*menu, Qt::Key_Escape); // the menu goes, the box stays
    m.activa(); // this platform forgets the window that was active before
    QVERIFY(m.casilla->isVisible() && m.casilla->hasFocus());
    QCOMPARE(m.recoge(), QString());
    QCOMPARE(m.celda(1, NOMBRE), QString());
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("nuevo"));
}

void TstCaja::el_menu_del_nombre_de_fichero_tambien() {
    QFileIconProvider iconos;
    PeticionFichero peticion;
    peticion.nombre = "a.tb0";
    VentanaFichero ventana(peticion, iconos, nullptr);
    ventana.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ventana));
    QMenu* menu = menu_sobre(*ventana.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")));
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->actions().first()->text().section(QLatin1Char('\t'), 0, 0), QStringLiteral("Deshacer"));
    menu->close();
}

void TstCaja::las_barras_no_tienen_menu() {
    MesaQt m(200, QSize(300, 400));
    bool hubo = false;
    QTimer cierra; // Qt's own menu would wait for a choice
    QObject::connect(&cierra, &QTimer::timeout, [&] {
        if (QWidget* menu = QApplication::activePopupWidget()) {
            hubo = true;
            menu->close();
        }
    });
    cierra.start(10);
    for (QScrollBar* barra : {m.vista->verticalScrollBar(), m.vista->horizontalScrollBar()}) {
        QVERIFY(barra->isVisible());
        manos::clic(*barra, barra->rect().center(), {}, Qt::RightButton);
        const QPoint p = barra->rect().center();
        QContextMenuEvent e(QContextMenuEvent::Mouse, p, barra->mapToGlobal(p));
        QApplication::sendEvent(barra, &e);
    }
    QVERIFY(!hubo && QApplication::activePopupWidget() == nullptr);
}

void TstCaja::no_tapa_los_numeros_de_fila() {
    MesaQt m(10, QSize(300, 400));
    m.pon(1, 0, "1");
    m.pulsa(Qt::Key_F2);
    const QRect numeros = m.vista->rect_celda(1, 0);
    const QImage antes = m.vista->viewport()->grab(numeros).toImage();
    m.rueda({0, -120}, Qt::ShiftModifier); // 72 pixels: 8 of the cell are left
    QCOMPARE(m.vista->rect_celda(1, NOMBRE).left(), numeros.right() + 1 - 72);
    QVERIFY(m.casilla->isVisible());
    QCOMPARE(m.vista->viewport()->grab(numeros).toImage(), antes);
    const auto encima = [&](int x) { return m.vista->viewport()->childAt(x, numeros.center().y()); };
    QVERIFY(encima(numeros.right() - 2) == nullptr); // nor does it take the mouse there
    QVERIFY(encima(numeros.right() + 4) == m.casilla);
    m.rueda({0, -120}, Qt::ShiftModifier); // and none
    QCOMPARE(m.vista->viewport()->grab(numeros).toImage(), antes);
    m.rueda({0, 240}, Qt::ShiftModifier);
    QVERIFY(encima(numeros.right() + 40) == m.casilla && m.casilla->mask().isEmpty());
    m.teclea("x");
    QCOMPARE(m.casilla->text(), QStringLiteral("x"));
}

void TstCaja::no_tapa_los_numeros_de_fila_la_lista() {
    MesaQt m(10, QSize(300, 400));
    m.actual(1, USO);
    m.pulsa(Qt::Key_F2);
    QVERIFY(m.lista->isVisible());
    const QRect numeros = m.vista->rect_celda(1, 0);
    const QImage antes = m.vista->viewport()->grab(numeros).toImage();
    const int falta = m.vista->rect_celda(1, USO).left() - numeros.right() - 1;
    m.vista->horizontalScrollBar()->setValue(m.vista->horizontalScrollBar()->value() + falta + 30);
    QCOMPARE(m.vista->rect_celda(1, USO).left(), numeros.right() + 1 - 30);
    QVERIFY(m.lista->isVisible());
    QCOMPARE(m.vista->viewport()->grab(numeros).toImage(), antes);
}

void TstCaja::no_tapa_la_cabecera_la_lista() {
    MesaQt m(200);
    QFont grande = m.lista->font();
    grande.setPointSize(3 * grande.pointSize()); // the list is higher than its cell then
    m.lista->setFont(grande);
    m.actual(1, USO);
    const QRect cabecera = m.vista->rect_celda(0, USO);
    const QImage antes = m.vista->viewport()->grab(cabecera).toImage();
    m.pulsa(Qt::Key_F2);
    m.rueda({0, -120});
    QVERIFY(m.lista->isVisible());
    QVERIFY(m.vista->viewport()->childAt(cabecera.center().x(), 0) == nullptr);
    QCOMPARE(m.vista->viewport()->grab(cabecera).toImage(), antes);
}

QTEST_MAIN(TstCaja)
#include "tst_caja.moc"
