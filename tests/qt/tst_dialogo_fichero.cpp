// SPDX-License-Identifier: MIT
// The file dialog by real events on real files: what it shows, what a typed name becomes, what it asks, and
// where it stands.
#include "qt/dialogo_fichero_qt.h"
#include "tests/qt/estilo_con_dibujos.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>

using namespace Qlt4_Tabla;

class TstDialogoFichero : public QObject {
    Q_OBJECT

private slots:
    void init() {
        carpeta_ = std::make_unique<QTemporaryDir>();
        pon("hay.tb0");
        pon("sin_punto");
    }

    void lo_que_se_pide_se_ve();
    void cancelar_no_elige_nada();
    void un_nombre_escrito_data();
    void un_nombre_escrito();
    void abrir_lo_que_no_hay_se_dice();
    void reemplazar_se_pregunta_con_el_nombre_entero();
    void el_nombre_de_una_carpeta_entra_en_ella();
    void una_carpeta_que_no_hay_se_dice_data();
    void una_carpeta_que_no_hay_se_dice();
    void la_tilde_es_la_carpeta_del_usuario();
    void las_columnas_caben_al_abrirse();
    void la_lista_de_carpetas_habla_castellano();
    void los_botones_no_llevan_dibujos();
    void todos_son_todos();
    void el_sitio_se_guarda();
    void fuera_de_la_pantalla_se_ve_igual();

private:
    void pon(const char* nombre) {
        QFile f(carpeta_->filePath(QString::fromLatin1(nombre)));
        QVERIFY(f.open(QIODevice::WriteOnly));
    }

    PeticionFichero peticion(ModoFichero modo) const {
        return {modo, "Abrir Tabla de Puntos...", "Tabla (*.tb0)|*.tb0|Todos (*.*)|*.*",
            carpeta_->path().toStdString(), "propuesto.tb0", "tb0", 600, 750};
    }

    /// Shows the dialog, does `hace` in it, and gives the answer.
    RespuestaFichero muestra(const PeticionFichero& p, const std::function<void(VentanaFichero&)>& hace) {
        QWidget padre;
        padre.show();
        QTimer::singleShot(0, this, [&] {
            auto* const ventana = qobject_cast<VentanaFichero*>(QApplication::activeModalWidget());
            QVERIFY(ventana != nullptr);
            hace(*ventana);
            if (ventana->isVisible()) ventana->reject();
        });
        return DialogoFicheroQt(padre).pide(p);
    }

    static QLineEdit& caja(const VentanaFichero& v) {
        return *v.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    }

    static void escribe(const VentanaFichero& v, const QString& nombre) {
        caja(v).selectAll();
        QTest::keyClicks(&caja(v), nombre);
        QTest::keyClick(&caja(v), Qt::Key_Return);
    }

    static QModelIndex fila_unica(const QTreeView& lista, int col) {
        return lista.model()->index(0, col, lista.rootIndex());
    }

    /// Answers the message box that comes next with its button of that text; keeps its text.
    void responde(const QString& boton) {
        mensaje_.clear();
        QTimer::singleShot(50, this, [this, boton] {
            auto* const m = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(m != nullptr);
            mensaje_ = m->text();
            for (QAbstractButton* b : m->buttons())
                if (b->text().remove(QLatin1Char('&')) == boton) return b->click();
            m->reject();
        });
    }

    QString en(const char* nombre) const { return carpeta_->filePath(QString::fromLatin1(nombre)); }

    std::unique_ptr<QTemporaryDir> carpeta_;
    QString mensaje_;
};

void TstDialogoFichero::lo_que_se_pide_se_ve() {
    muestra(peticion(ModoFichero::Guardar), [&](VentanaFichero& v) {
        QCOMPARE(v.windowTitle(), QStringLiteral("Abrir Tabla de Puntos..."));
        QCOMPARE(caja(v).text(), QStringLiteral("propuesto.tb0"));
        auto* const tipos = v.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        QCOMPARE(tipos->itemText(0), QStringLiteral("Tabla (*.tb0)"));
        QCOMPARE(tipos->itemText(1), QStringLiteral("Todos (*.*)"));
        QCOMPARE(v.directory().absolutePath(), QFileInfo(carpeta_->path()).absoluteFilePath());
        QStringList botones;
        for (QAbstractButton* b : v.findChild<QDialogButtonBox*>()->buttons()) botones << b->text();
        QVERIFY(botones.contains(QStringLiteral("&Guardar")));
        QVERIFY(botones.contains(QStringLiteral("Cancelar")));
        const auto* const lista = v.findChild<QTreeView*>(QStringLiteral("treeView"));
        QCOMPARE(lista->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Tamaño"));
    });
}

void TstDialogoFichero::cancelar_no_elige_nada() {
    const auto r =
        muestra(peticion(ModoFichero::Abrir), [](VentanaFichero& v) { QTest::keyClick(&v, Qt::Key_Escape); });
    QCOMPARE(r.ruta, std::string());
}

void TstDialogoFichero::un_nombre_escrito_data() {
    QTest::addColumn<int>("modo");
    QTest::addColumn<QString>("escrito");
    QTest::addColumn<QString>("elegido");
    const int abrir = static_cast<int>(ModoFichero::Abrir);
    const int guardar = static_cast<int>(ModoFichero::Guardar);
    const auto fila = [](const char* nombre, int modo, const char* escrito, const char* elegido) {
        QTest::newRow(nombre) << modo << QString::fromLatin1(escrito) << QString::fromLatin1(elegido);
    };
    fila("open whole", abrir, "hay.tb0", "hay.tb0");
    fila("open without extension", abrir, "hay", "hay.tb0");
    fila("open one without a point", abrir, "sin_punto", "sin_punto");
    fila("save whole", guardar, "nuevo.txt", "nuevo.txt");
    fila("save without extension", guardar, "nuevo", "nuevo.tb0");
    fila("save beside one without a point", guardar, "sin_punto", "sin_punto.tb0");
}

void TstDialogoFichero::un_nombre_escrito() {
    QFETCH(int, modo);
    QFETCH(QString, escrito);
    QFETCH(QString, elegido);
    const auto r =
        muestra(peticion(static_cast<ModoFichero>(modo)), [&](VentanaFichero& v) { escribe(v, escrito); });
    QCOMPARE(QString::fromStdString(r.ruta), QFileInfo(carpeta_->filePath(elegido)).absoluteFilePath());
}

void TstDialogoFichero::abrir_lo_que_no_hay_se_dice() {
    const auto r = muestra(peticion(ModoFichero::Abrir), [&](VentanaFichero& v) {
        responde(QStringLiteral("Aceptar"));
        escribe(v, QStringLiteral("nada"));
        QVERIFY(v.isVisible());
    });
    QCOMPARE(mensaje_, QStringLiteral("No hay ningún archivo «nada.tb0» en esta carpeta."));
    QCOMPARE(r.ruta, std::string());
    QVERIFY(!QFile::exists(en("nada.tb0")));
}

void TstDialogoFichero::reemplazar_se_pregunta_con_el_nombre_entero() {
    const auto p = peticion(ModoFichero::Guardar);
    auto r = muestra(p, [&](VentanaFichero& v) {
        responde(QStringLiteral("Cancelar"));
        escribe(v, QStringLiteral("hay"));
        QVERIFY(v.isVisible());
    });
    QCOMPARE(mensaje_, QStringLiteral("El archivo «hay.tb0» ya existe. ¿Quiere reemplazarlo?"));
    QCOMPARE(r.ruta, std::string());
    r = muestra(p, [&](VentanaFichero& v) {
        responde(QStringLiteral("Reemplazar"));
        escribe(v, QStringLiteral("hay"));
    });
    QCOMPARE(QString::fromStdString(r.ruta), QFileInfo(en("hay.tb0")).absoluteFilePath());
}

void TstDialogoFichero::el_nombre_de_una_carpeta_entra_en_ella() {
    QVERIFY(QDir(carpeta_->path()).mkdir(QStringLiteral("dentro")));
    muestra(peticion(ModoFichero::Abrir), [&](VentanaFichero& v) {
        escribe(v, QStringLiteral("dentro"));
        QVERIFY(v.isVisible());
        QCOMPARE(v.directory().dirName(), QStringLiteral("dentro"));
    });
}

void TstDialogoFichero::una_carpeta_que_no_hay_se_dice_data() {
    QTest::addColumn<int>("modo");
    QTest::newRow("open") << static_cast<int>(ModoFichero::Abrir);
    QTest::newRow("save") << static_cast<int>(ModoFichero::Guardar);
}

void TstDialogoFichero::una_carpeta_que_no_hay_se_dice() {
    QFETCH(int, modo);
    const auto r = muestra(peticion(static_cast<ModoFichero>(modo)), [&](VentanaFichero& v) {
        responde(QStringLiteral("Aceptar"));
        escribe(v, QStringLiteral("perdida/a.tb0"));
        QVERIFY(v.isVisible());
        QCOMPARE(caja(v).text(), QStringLiteral("perdida/a.tb0"));
    });
    const QString perdida = QFileInfo(carpeta_->filePath(QStringLiteral("perdida"))).absoluteFilePath();
    QCOMPARE(mensaje_, QStringLiteral("No existe la carpeta «%1».").arg(perdida));
    QCOMPARE(r.ruta, std::string());
}

void TstDialogoFichero::la_tilde_es_la_carpeta_del_usuario() {
    const QByteArray antes = qgetenv("HOME");
    qputenv("HOME", carpeta_->path().toLocal8Bit());
    PeticionFichero p = peticion(ModoFichero::Guardar);
    p.carpeta = QDir::tempPath().toStdString();
    const auto r = muestra(p, [&](VentanaFichero& v) { escribe(v, QStringLiteral("~/con tilde")); });
    muestra(p, [&](VentanaFichero& v) {
        escribe(v, QStringLiteral("~"));
        QCOMPARE(v.directory().absolutePath(), QDir(carpeta_->path()).absolutePath());
    });
    qputenv("HOME", antes);
    QCOMPARE(QString::fromStdString(r.ruta), QDir(carpeta_->path()).absoluteFilePath("con tilde.tb0"));
}

void TstDialogoFichero::las_columnas_caben_al_abrirse() {
    muestra(peticion(ModoFichero::Abrir), [&](VentanaFichero& v) {
        const auto& lista = *v.findChild<QTreeView*>(QStringLiteral("treeView"));
        QTRY_COMPARE(lista.model()->rowCount(lista.rootIndex()), 1); // hay.tb0
        QTRY_VERIFY(lista.columnWidth(1) >= lista.sizeHintForIndex(fila_unica(lista, 1)).width());
        for (int col = 0; col < 4; ++col) {
            const int hace_falta = std::max(
                lista.sizeHintForIndex(fila_unica(lista, col)).width(), lista.header()->sectionSizeHint(col));
            QVERIFY2(lista.columnWidth(col) >= hace_falta, qPrintable(QString::number(col)));
        }
        QVERIFY(lista.header()->length() <= lista.viewport()->width());
        QVERIFY(lista.columnWidth(0) >= 20 * lista.fontMetrics().averageCharWidth());
    });
}

void TstDialogoFichero::la_lista_de_carpetas_habla_castellano() {
    QVERIFY(QDir(carpeta_->path()).mkdir(QStringLiteral("dentro")));
    muestra(peticion(ModoFichero::Abrir), [&](VentanaFichero& v) {
        escribe(v, QStringLiteral("dentro")); // so there is a folder visited before
        auto* const carpetas = v.findChild<QComboBox*>(QStringLiteral("lookInCombo"));
        carpetas->showPopup();
        QStringList entradas;
        for (int i = 0; i < carpetas->count(); ++i) entradas << carpetas->itemText(i);
        carpetas->hidePopup();
        QVERIFY2(entradas.contains(QStringLiteral("Equipo")), qPrintable(entradas.join(u'|')));
        QVERIFY2(entradas.contains(QStringLiteral("Recientes")), qPrintable(entradas.join(u'|')));
        QVERIFY(!entradas.contains(QStringLiteral("Computer")));
        QVERIFY(!entradas.contains(QStringLiteral("Recent Places")));
    });
}

void TstDialogoFichero::los_botones_no_llevan_dibujos() {
    QApplication::setStyle(new EstiloConDibujos);
    int botones = 0;
    int dibujos = 0;
    muestra(peticion(ModoFichero::Guardar), [&](VentanaFichero& v) {
        for (const auto* b : v.findChildren<QPushButton*>()) {
            ++botones;
            dibujos += b->icon().isNull() ? 0 : 1;
        }
        v.reject();
    });
    QApplication::setStyle(QStringLiteral("fusion"));
    QCOMPARE(botones, 2);
    QCOMPARE(dibujos, 0);
}

void TstDialogoFichero::todos_son_todos() {
    muestra(peticion(ModoFichero::Abrir), [&](VentanaFichero& v) {
        auto* const tipos = v.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        tipos->setFocus();
        QTest::keyClick(tipos, Qt::Key_Down);
        QCOMPARE(tipos->currentIndex(), 1);
        QTRY_VERIFY(v.findChild<QFileSystemModel*>()->nameFilters().isEmpty());
    });
}

void TstDialogoFichero::el_sitio_se_guarda() {
    auto r = muestra(peticion(ModoFichero::Abrir), [](VentanaFichero& v) {
        QCOMPARE(v.pos().x(), qRound(600.0 * v.logicalDpiX() / 1440));
        v.reject();
    });
    QCOMPARE(r.izquierda, 600.0F);
    QCOMPARE(r.arriba, 750.0F);
    int dpi = 96;
    r = muestra(peticion(ModoFichero::Abrir), [&](VentanaFichero& v) {
        dpi = v.logicalDpiX();
        v.move(20, 30);
    });
    QCOMPARE(r.izquierda, static_cast<float>(qRound(20.0 * 1440 / dpi)));
}

void TstDialogoFichero::fuera_de_la_pantalla_se_ve_igual() {
    for (const float lejos : {-9000.0F, 900000.0F, 1e30F}) {
        PeticionFichero p = peticion(ModoFichero::Abrir);
        p.izquierda = lejos;
        p.arriba = 900000;
        const auto r = muestra(p,
            [](VentanaFichero& v) { QVERIFY(v.screen()->availableGeometry().contains(v.frameGeometry())); });
        QCOMPARE(r.izquierda, lejos); // nobody moved it
    }
}

QTEST_MAIN(TstDialogoFichero)
#include "tst_dialogo_fichero.moc"
