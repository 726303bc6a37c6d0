// SPDX-License-Identifier: MIT
// The Qt clipboard: texts of other programs in the table's form, the table's texts as plain text and nothing
// else, and the keys on the grid.
#include "qt/portapapeles_qt.h"
#include "tests/qt/mesa_qt.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTest>
#include <QUrl>

using namespace Qlt4_Tabla;

namespace {

QClipboard& sistema() { return *QGuiApplication::clipboard(); }

QString leido() { return QString::fromStdString(PortapapelesQt().lee()); }

} // namespace

class TstPortapapeles : public QObject {
    Q_OBJECT

private slots:
    void init() {
        avisos_son_fallos();
        sistema().clear();
    }

    void textos_de_otros_programas_data() {
        QTest::addColumn<QString>("suyo");
        QTest::addColumn<QString>("nuestro");
        QTest::newRow("LF") << "1\t2\n3\t4\n"
                            << "1\t2\r\n3\t4\r\n";
        QTest::newRow("last line open") << "1\t2\n3\t4"
                                        << "1\t2\r\n3\t4\r\n";
        QTest::newRow("CR") << "1\r2\r"
                            << "1\r\n2\r\n";
        QTest::newRow("CR LF") << "1\r\n2\r\n"
                               << "1\r\n2\r\n";
        QTest::newRow("mixed") << "1\n2\r3\r\n4"
                               << "1\r\n2\r\n3\r\n4\r\n";
        QTest::newRow("only a line end") << "\n"
                                         << "\r\n";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("letters") << QStringLiteral("ñandú €\n😀") << QStringLiteral("ñandú €\r\n😀\r\n");
    }

    void textos_de_otros_programas() {
        QFETCH(QString, suyo);
        sistema().setText(suyo);
        QTEST(leido(), "nuestro");
    }

    void lo_que_no_es_texto_cuenta_como_nada() {
        QCOMPARE(leido(), QString());
        sistema().setImage(QImage(2, 2, QImage::Format_RGB32));
        QCOMPARE(leido(), QString());
        auto* datos = new QMimeData;
        datos->setUrls({QUrl(QStringLiteral("file:///x"))});
        datos->setHtml(QStringLiteral("<b>x</b>"));
        sistema().setMimeData(datos);
        QCOMPARE(leido(), QString());
    }

    void se_ofrece_texto_simple_y_nada_mas() {
        sistema().setImage(QImage(2, 2, QImage::Format_RGB32));
        PortapapelesQt().escribe("1,5\tñ\r\n2\t\r\n");
        QCOMPARE(sistema().mimeData()->formats(), QStringList{QStringLiteral("text/plain")});
        QCOMPARE(sistema().text(), QStringLiteral("1,5\tñ\r\n2\t\r\n"));
        QCOMPARE(leido(), QStringLiteral("1,5\tñ\r\n2\t\r\n"));
        PortapapelesQt().escribe("");
        QCOMPARE(leido(), QString());
    }

    void las_teclas_copian_cortan_y_pegan() {
        MesaQt mesa(5);
        mesa.widget->pon_coma_decimal(false);
        mesa.pon(1, NOMBRE, "P1");
        mesa.pon(1, X, "12.5");
        mesa.tabla().mandos().elige_bloque(1, NOMBRE, 1, X);
        mesa.pulsa(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(sistema().text(), QStringLiteral("P1\t12.500\r\n"));
        mesa.pulsa(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(mesa.celda(1, NOMBRE), QString());
        sistema().setText(QStringLiteral("A\t1,25\nB\t2"));
        mesa.actual(5, NOMBRE);
        mesa.pulsa(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(mesa.tablero().Rows(), 7);
        QCOMPARE(mesa.celda(5, X), QStringLiteral("1.250"));
        QCOMPARE(mesa.celda(6, NOMBRE), QStringLiteral("B"));
        QCOMPARE(mesa.celda(6, X), QStringLiteral("2.000"));
    }

    void las_teclas_son_de_la_casilla_mientras_esta_abierta() {
        MesaQt mesa(5);
        mesa.pon(1, NOMBRE, "celda");
        mesa.teclea(QStringLiteral("xyz"));
        QVERIFY(mesa.casilla->isVisible());
        mesa.casilla->selectAll();
        mesa.pulsa(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(sistema().text(), QStringLiteral("xyz"));
        QVERIFY(mesa.casilla->isVisible());
        mesa.pulsa(Qt::Key_Escape);
    }

    void el_separador_es_el_del_anfitrion() {
        MesaQt mesa(5);
        mesa.pon(1, X, "12.5");
        mesa.actual(1, X);
        mesa.widget->pon_coma_decimal(true);
        mesa.pulsa(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(sistema().text(), QStringLiteral("12,500\r\n"));
        mesa.actual(2, X);
        mesa.pulsa(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(mesa.celda(2, X), QStringLiteral("12.500"));
    }

    void el_reloj_de_arena_se_va() {
        MesaQt mesa(5);
        mesa.pulsa(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::overrideCursor(), nullptr);
        qunsetenv("DISPLAY"); // else an office that is installed would come up
        qunsetenv("WAYLAND_DISPLAY");
        mesa.tabla().Copiar_todo_Excel();
        QCOMPARE(QApplication::overrideCursor(), nullptr);
        QCOMPARE(mesa.mensajes.size(), 1);
        QVERIFY(mesa.mensajes.takeFirst().endsWith(
            QStringLiteral("copiar todo - Error nº 429:El componente ActiveX no puede crear el objeto")));
    }
};

QTEST_MAIN(TstPortapapeles)
#include "tst_portapapeles.moc"
