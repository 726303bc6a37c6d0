// SPDX-License-Identifier: MIT
// Rows that come, go and scroll keep their pixels on the window: after any commands of one turn, given before
// anything is painted, the window shows what painting it anew shows; at several scales of the device.
#include "tests/qt/mesa_qt.h"
#include "tests/qt/pantalla.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QScrollBar>

#include <functional>
#include <random>
#include <string>
#include <vector>

using namespace Qlt4_Tabla;

namespace {

constexpr int FILAS = 60;
constexpr int TURNOS = 100;
constexpr const char* ESCALA = "QT_SCALE_FACTOR";

QPalette oscura() {
    QPalette p(QColor(50, 50, 54));
    p.setColor(QPalette::Base, QColor(30, 30, 32));
    p.setColor(QPalette::Text, QColor(230, 230, 230));
    return p;
}

/// A table with a text of its own in each cell, so that no row looks like another.
class MesaLlena {
public:
    MesaLlena() : m(FILAS, QSize(430, 380)) {
        QApplication::setCursorFlashTime(0);
        for (int fila = 1; fila <= FILAS; ++fila)
            for (int col = NOMBRE; col < OCULTA; ++col)
                t().TextMatrix(fila, static_cast<std::int16_t>(col), std::to_string(fila * 7 + col));
        t().mandos().elige_celda(8, X);
    }

    Tabla0& t() { return m.tabla(); }

    [[nodiscard]] int ultima() { return m.tablero().Rows() - 1; }

    /// Any data row.
    [[nodiscard]] int una(int n) { return 1 + n % ultima(); }

    /// Takes the selected rows away, but not all.
    void borra() {
        const Bloque b = m.tablero().seleccion();
        if (b.fila2 - b.fila1 + 9 < ultima()) t().mandos().orden(Opcion::mn_eliminar_filas);
    }

    [[nodiscard]] bool bien() const { return !manos::lugar_sin_pintar(*m.vista->viewport()); }

    MesaQt m;
};

// What one turn may hold. `n` is any number.
using Paso = std::function<void(MesaLlena&, int n)>;

void alarga(MesaLlena& q, int n) { q.t().Rows(std::clamp(q.ultima() + n % 12 - 3, 9, 2 * FILAS)); }

// Joined into the notices of one moment.
void a_la_vez(MesaLlena& q, int n) {
    q.t().Redraw(false);
    if (n % 2 == 0) q.t().mandos().elige_celda(q.una(n), X);
    if (n % 3 == 0) q.t().mandos().desplaza_filas(q.t().tablero().TopRow() + n % 5 - 2);
    if (n % 5 < 2) alarga(q, n);
    q.t().TextMatrix(q.una(n), N, std::to_string(n));
    q.t().TextMatrix(q.t().tablero().TopRow(), X, std::to_string(n));
    q.t().Redraw(true);
}

// So many that the window cannot stay where it is.
void borra_el_final(MesaLlena& q, int n) {
    q.t().mandos().elige_bloque(std::max(3, q.ultima() - n % 30), 1, q.ultima() - n % 3, 4);
    q.borra();
}

const std::vector<Paso>& pasos() {
    static const std::vector<Paso> todos{
        [](MesaLlena& q, int) { q.t().mandos().tecla_pulsada(teclas::INTRO); },
        [](MesaLlena& q, int) { q.t().mandos().tecla_pulsada('7'); }, // opens the editor
        [](MesaLlena& q, int) { q.t().mandos().orden(Opcion::mn_insertar_filas); },
        [](MesaLlena& q, int) { q.borra(); },
        [](MesaLlena& q, int) { q.t().mandos().orden(Opcion::mn_añadir_filas); },
        [](MesaLlena& q, int n) { q.t().mandos().rueda(n % 2 == 0 ? 1 : -1); },
        [](MesaLlena& q, int n) { q.t().mandos().desplaza_filas(q.una(n)); },
        [](MesaLlena& q, int n) { q.m.vista->horizontalScrollBar()->setValue(n % 200); },
        [](MesaLlena& q, int n) { q.t().mandos().elige_celda(q.una(n), 1 + n % 5); },
        [](MesaLlena& q, int n) { q.t().mandos().elige_bloque(q.una(n), 1, 1 + n % 3, 4); },
        [](MesaLlena& q, int n) { q.t().TextMatrix(q.una(n), X, std::to_string(n)); },
        [](MesaLlena& q, int) { q.t().mandos().tecla_abajo(teclas::ABAJO, {}); },
        [](MesaLlena& q, int) { q.t().mandos().tecla_abajo(teclas::ESCAPE, {}); },
        alarga,
        a_la_vez,
        borra_el_final,
    };
    return todos;
}

/// Turns of one to four steps; the first one after which the window is wrong, or -1.
int turno_malo(MesaLlena& q, unsigned semilla) {
    std::mt19937 azar(semilla);
    const auto dado = [&azar](int n) { return static_cast<int>(azar() % static_cast<unsigned>(n)); };
    for (int turno = 0; turno < TURNOS; ++turno) {
        for (int i = 1 + dado(4); i > 0; --i)
            pasos()[static_cast<std::size_t>(dado(static_cast<int>(pasos().size())))](q, dado(1000));
        if (!q.bien()) return turno;
    }
    return -1;
}

} // namespace

class TstMudanza : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void al_azar_data();
    void al_azar();
    void a_otra_escala_data();
    void a_otra_escala();
    void con_un_editor_abierto();
    void pintada_a_medias_no_se_mueve();
    void muchas_filas_en_una_vuelta();
};

void TstMudanza::al_azar_data() {
    QTest::addColumn<bool>("de_noche");
    for (const bool de_noche : {false, true})
        for (int semilla = 1; semilla <= 3; ++semilla)
            QTest::addRow("%d%s", semilla, de_noche ? " dark" : "") << de_noche;
}

void TstMudanza::al_azar() {
    QFETCH(const bool, de_noche);
    MesaLlena q;
    if (de_noche) q.m.ventana.setPalette(oscura());
    QVERIFY(q.bien());
    QCOMPARE(turno_malo(q, static_cast<unsigned>(QByteArray(QTest::currentDataTag()).left(1).toInt())), -1);
}

void TstMudanza::a_otra_escala_data() {
    QTest::addColumn<QString>("escala");
    for (const char* const escala : {"1.25", "1.5", "1.75", "2"})
        QTest::newRow(escala) << QString::fromLatin1(escala);
}

// A program has one scale from its start to its end.
void TstMudanza::a_otra_escala() {
    if (qEnvironmentVariableIsSet(ESCALA)) return;
    QFETCH(const QString, escala);
    QProcess otro;
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(QString::fromLatin1(ESCALA), escala);
    otro.setProcessEnvironment(entorno);
    otro.start(QCoreApplication::applicationFilePath(), {QStringLiteral("-silent")});
    QVERIFY(otro.waitForFinished(120'000));
    QVERIFY2(otro.exitCode() == 0, otro.readAllStandardOutput().constData());
}

void TstMudanza::con_un_editor_abierto() {
    MesaLlena q;
    q.m.teclea(QStringLiteral("7"));
    QVERIFY(q.m.casilla->isVisible());
    q.t().Rows(FILAS + 9);
    QVERIFY(q.bien());
    q.t().mandos().rueda(-1);
    QVERIFY(q.bien());
    q.t().mandos().rueda(1);
    QVERIFY(q.bien());
}

// A host that lets the window be painted in the middle of its work.
void TstMudanza::pintada_a_medias_no_se_mueve() {
    MesaLlena q;
    q.t().mandos().desplaza_filas(FILAS - 25);
    QVERIFY(q.bien());
    q.t().Redraw(false);
    q.t().mandos().desplaza_filas(FILAS - 29);
    q.m.vista->viewport()->update(0, 100, 300, 60);
    QCoreApplication::processEvents();
    q.t().Redraw(true);
    QVERIFY(q.bien());
}

void TstMudanza::muchas_filas_en_una_vuelta() {
    MesaLlena q;
    q.t().mandos().elige_celda(q.ultima(), X);
    for (int i = 0; i < 200; ++i) q.t().mandos().tecla_pulsada(teclas::INTRO);
    QCOMPARE(q.ultima(), FILAS + 200);
    QVERIFY(q.bien());
}

QTEST_MAIN(TstMudanza)
#include "tst_mudanza.moc"
