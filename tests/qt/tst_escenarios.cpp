// SPDX-License-Identifier: MIT
// Every scene of every script in escenarios/guiones/ on the widget, with real events: one row of data each,
// named after the script and the line of its scene. Scenes that no window can run say why and are skipped;
// they must be few.
#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "tests/guion/guion.h"
#include "tests/guion_qt/conductor_qt.h"
#endif
#include "tests/qt/mesa_qt.h"

#include <QFileInfo>

#include <sstream>

using namespace Qlt4_Tabla;

class TstEscenarios : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void hay_y_todos_se_leen();
    void un_guion_falso_falla_data();
    void un_guion_falso_falla();
    void escena_data();
    void escena();
};

namespace {

const GuionesLeidos& leidos() {
    static const GuionesLeidos todos = lee_carpeta(TABLA_DIR_PRUEBAS "/escenarios/guiones");
    return todos;
}

std::string corre(const QString& pasos) {
    std::istringstream entrada(
        "formato 1 A Entero\nformato 2 B ListaU\nlista 2 x|y\nestablece\nescena una\n" + pasos.toStdString());
    const Guion guion = lee_guion(entrada, "g");
    ConductorQt conductor;
    return ejecuta(guion, guion.escenas.front(), conductor);
}

} // namespace

void TstEscenarios::hay_y_todos_se_leen() {
    QVERIFY(!leidos().guiones.empty());
    for (const std::string& fallo : leidos().fallos) QFAIL(fallo.c_str());
}

// The hands can fail: what a window does not show, what happened besides, what did not happen.
void TstEscenarios::un_guion_falso_falla_data() {
    QTest::addColumn<QString>("pasos");
    QTest::addColumn<QString>("fallo");
    const auto fila = [](const char* nombre, const char* pasos, const char* fallo) {
        QTest::newRow(nombre) << QString::fromUtf8(pasos) << QString::fromUtf8(fallo);
    };
    fila("as it is", "clic 2 1\n> SelChange\nteclea 7\n? casilla abierta 7\n", "");
    fila("an event too many", "clic 2 1\n",
        "g:6: clic 2 1\n  expected:\n    (nothing)\n  happened:\n    SelChange");
    fila("an event too few", "clic 1 1\n> SelChange\n",
        "g:6: clic 1 1\n  expected:\n    SelChange\n  happened:\n    (nothing)");
    fila("another answer", "teclea 7\n? casilla abierta 8\n", "g:7: expected <8>, found <7>");
    fila("no such cell", "clic 3 9\n", "g:6: error 9");
    fila("no list open", "entrada x\n", "g:6: the list is not open");
    fila("no such entry", "elige 2 2\n> SelChange\npulsa F2\nentrada z\n", "g:9: no such entry: z");
    fila("key to nobody", "foco fuera\nteclea 7\n? casilla abierta 7\n",
        "g:8: expected <open>, found <closed>");
}

void TstEscenarios::un_guion_falso_falla() {
    QFETCH(const QString, pasos);
    QFETCH(const QString, fallo);
    QCOMPARE(QString::fromStdString(corre(pasos)), fallo);
}

void TstEscenarios::escena_data() {
    QTest::addColumn<const Guion*>("guion");
    QTest::addColumn<const Escena*>("escena");
    for (const Guion& guion : leidos().guiones) {
        const std::string nombre =
            QFileInfo(QString::fromStdString(guion.fichero)).completeBaseName().toStdString();
        for (const Escena& escena : guion.escenas)
            QTest::newRow((nombre + ':' + std::to_string(escena.linea)).c_str()) << &guion << &escena;
    }
}

void TstEscenarios::escena() {
    QFETCH(const Guion*, guion);
    QFETCH(const Escena*, escena);
    ConductorQt conductor;
    const std::string fallo = ejecuta(*guion, *escena, conductor);
    QVERIFY2(fallo.empty(), (fallo + "\n  in the scene: " + escena->nombre).c_str());
}

QTEST_MAIN(TstEscenarios)
#include "tst_escenarios.moc"
