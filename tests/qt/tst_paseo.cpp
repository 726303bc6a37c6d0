// SPDX-License-Identifier: MIT
// Random walks on the widget, by real events; after each step the screen is compared with a whole repaint.
#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "tests/guion/paseo.h"
#include "tests/guion_qt/conductor_qt.h"
#endif

#include <QTest>

using namespace Qlt4_Tabla;

class TstPaseo : public QObject {
    Q_OBJECT

private slots:
    void nada_se_rompe_data();
    void nada_se_rompe();
};

namespace {

constexpr int PASOS = 1000;

} // namespace

void TstPaseo::nada_se_rompe_data() {
    QTest::addColumn<quint32>("semilla");
    for (quint32 semilla = 1; semilla <= 5; ++semilla) QTest::addRow("%u", semilla) << semilla;
}

void TstPaseo::nada_se_rompe() {
    QFETCH(const quint32, semilla);
    ConductorQt conductor;
    Paseo paseo(conductor, semilla);
    for (int i = 0; i < PASOS; ++i) {
        const std::string falla = paseo.paso();
        QVERIFY2(falla.empty(), falla.c_str());
    }
}

QTEST_MAIN(TstPaseo)

#include "tst_paseo.moc"
