// SPDX-License-Identifier: MIT
// Layouts of columns in the real settings store: every format comes back byte for byte, the whole way of a user
// from the column editor to the next run of the program, and a store that cannot be written.
#include "base/error.h"
#include "tests/qt/mesa_columnas.h"

#include <QFile>

#include <limits>

using namespace Qlt4_Tabla;

class TstForma : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void los_26_formatos_vuelven_del_almacen_de_verdad();
    void la_forma_sobrevive_al_programa();
    void escribir_sin_sitio_deja_la_forma_de_antes();
};

void TstForma::los_26_formatos_vuelven_del_almacen_de_verdad() {
    const QTemporaryDir carpeta;
    const QString fichero = carpeta.filePath(QStringLiteral("forma.ini"));
    const auto nombre = [](int col) { return "Columna \"" + std::to_string(col) + "\"; ñ=€, \\x \t% "; };
    constexpr std::int16_t MENOR = std::numeric_limits<std::int16_t>::min();
    {
        TablaWidget w;
        w.pon_fichero_ajustes(fichero);
        for (std::int16_t col = 0; col < 26; ++col)
            w.tabla().Formatcol(col, col % 2 == 0 ? "-" : "", col % 3 == 0 ? "-" : "X", col % 8, MENOR,
                static_cast<std::int16_t>(col - 5), static_cast<std::int16_t>(10 * col), nombre(col),
                col % 4);
        w.tabla().A_ExtensionFche("*.Pñ1");
        w.tabla().Tablero_Graba_Formato_Win("Mi programa", "Sección / 1");
    }
    TablaWidget otra;
    otra.pon_fichero_ajustes(fichero);
    otra.tabla().Tablero_Lee_Formato_Win("Mi programa", "Sección / 1");
    for (int col = 1; col < 26; ++col) {
        const T_FormatoColumna& f = otra.tabla().estado().Formatos[static_cast<std::size_t>(col)];
        QCOMPARE(f.Nombre, nombre(col));
        QCOMPARE(f.Invisible, col % 2 != 0);
        QCOMPARE(f.Bloqueada, col % 3 != 0);
        QCOMPARE(int{f.Formato}, col % 8);
        QCOMPARE(f.Decimales, MENOR);
        QCOMPARE(int{f.Alineacion}, col - 5);
        QCOMPARE(int{f.Longitud}, 10 * col);
        QCOMPARE(int{f.Accion}, col % 4);
    }
    QCOMPARE(otra.tabla().estado().Formatos[0].Nombre, nombre(0));
    QCOMPARE(otra.tabla().A_ExtensionFche(), std::string("*.Pñ1"));
}

// The whole way of a user: changed in the editor, applied, the program ended and started again.
void TstForma::la_forma_sobrevive_al_programa() {
    const QTemporaryDir carpeta;
    const QString fichero = carpeta.filePath(QStringLiteral("forma.ini"));
    {
        MesaColumnas m;
        m.widget->pon_fichero_ajustes(fichero);
        m.edita({[&] {
                     m.clic_celda(F_N, ED_VISIBLE);
                     m.escribe(F_X, ED_NOMBRE, "Este");
                     m.escribe(F_X, ED_ANCHO, "14");
                     m.aplica();
                 },
            [] {}});
        m.tabla().Tablero_Graba_Formato_Win("Plano", "Puntos");
    }
    MesaColumnas m;
    m.widget->pon_fichero_ajustes(fichero);
    QCOMPARE(m.celda(0, X), QStringLiteral("X"));
    m.tabla().Tablero_Lee_Formato_Win("Plano", "Puntos");
    QCOMPARE(m.celda(0, X), QStringLiteral("Este"));
    QCOMPARE(m.tablero().ColWidth(X), 1680);
    QCOMPARE(m.tablero().ColWidth(N), 0);
}

void TstForma::escribir_sin_sitio_deja_la_forma_de_antes() {
    MesaColumnas m;
    const QString fichero = m.carpeta.filePath(QStringLiteral("a.ini"));
    m.tabla().Tablero_Graba_Formato_Win("Plano", "Puntos");
    QFile lleno(fichero);
    QVERIFY(lleno.open(QIODevice::ReadOnly));
    const QByteArray antes = lleno.readAll();
    m.widget->pon_fichero_ajustes(fichero + QStringLiteral("/dentro.ini"));
    int numero = 0;
    try {
        m.tabla().Tablero_Graba_Formato_Win("Plano", "Puntos");
    } catch (const Error& e) {
        numero = e.numero();
    }
    QCOMPARE(numero, 75);
    lleno.seek(0);
    QCOMPARE(lleno.readAll(), antes);
}

QTEST_MAIN(TstForma)
#include "tst_forma.moc"
