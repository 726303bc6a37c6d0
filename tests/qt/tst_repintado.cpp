// SPDX-License-Identifier: MIT
// What is painted again after a key, a commit, a new row or a scroll: the places that the paint events of the
// grid name. They depend on what is seen alone: a table of a million rows repaints what one of a thousand
// does, and no more than the rule asks for.
#include "tests/qt/mesa_qt.h"
#include "tests/qt/pantalla.h"

#include <QPaintEvent>
#include <QScrollBar>

#include <functional>
#include <vector>

using namespace Qlt4_Tabla;

namespace {

constexpr int MIL = 1000;
constexpr int MILLON = 1'000'000;

/// A table whose paint events are written down.
class MesaPintada : public QObject {
public:
    explicit MesaPintada(int filas) : m(filas) {
        QApplication::setCursorFlashTime(0);
        m.vista->viewport()->installEventFilter(this);
        olvida();
    }

    /// What is painted in consequence.
    QRegion tras(const std::function<void(MesaPintada&)>& hace) {
        olvida();
        hace(*this);
        QCoreApplication::processEvents();
        return region_;
    }

    void olvida() {
        QCoreApplication::processEvents();
        region_ = QRegion();
    }

    /// Whole rows of the window, from one cell's row to another's.
    [[nodiscard]] QRect filas(int desde, int hasta) const {
        const QRect a = m.vista->rect_celda(desde, 0);
        const QRect b = m.vista->rect_celda(hasta, 0);
        return {0, a.top(), m.vista->viewport()->width(), b.bottom() - a.top() + 1};
    }

    /// The row numbers from a row to the bottom of the window.
    [[nodiscard]] QRect numeros(int desde) {
        const QRect a = m.vista->rect_celda(desde, 0);
        const QRect b = m.vista->rect_celda(ultima_fila_visible(m.tablero()), 0);
        return QRect(a.topLeft(), b.bottomRight()) & m.vista->viewport()->rect();
    }

    [[nodiscard]] int ultima() { return m.tablero().Rows() - 1; }

    [[nodiscard]] QRect celda(int fila, int col) const { return m.vista->rect_celda(fila, col); }

    MesaQt m;

protected:
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint) region_ += static_cast<QPaintEvent*>(e)->region();
        return false;
    }

private:
    QRegion region_;
};

struct Accion {
    const char* nombre;
    std::function<void(MesaPintada&)> prepara;
    std::function<void(MesaPintada&)> hace;
};

void nada(MesaPintada&) {}

void al_final(MesaPintada& p) { p.m.pulsa(Qt::Key_End, Qt::ControlModifier); }

void en_medio(MesaPintada& p) { p.m.actual(p.ultima() / 2, NOMBRE); }

// The places on the window are the same for both tables, so that the regions can be compared.
const std::vector<Accion>& acciones() {
    static const std::vector<Accion> todas{
        {"a key down", nada, [](MesaPintada& p) { p.m.pulsa(Qt::Key_Down); }},
        {"a key to the right", nada, [](MesaPintada& p) { p.m.pulsa(Qt::Key_Right); }},
        {"a page", nada, [](MesaPintada& p) { p.m.pulsa(Qt::Key_PageDown); }},
        {"to the end", nada, [](MesaPintada& p) { p.m.pulsa(Qt::Key_End, Qt::ControlModifier); }},
        {"to the beginning", al_final, [](MesaPintada& p) { p.m.pulsa(Qt::Key_Home, Qt::ControlModifier); }},
        {"a selected block", nada, [](MesaPintada& p) { p.m.pulsa(Qt::Key_Down, Qt::ShiftModifier); }},
        {"a selected column", nada, [](MesaPintada& p) { p.m.clic(0, X); }},
        {"an editor", nada, [](MesaPintada& p) { p.m.teclea("a"); }},
        {"a commit", [](MesaPintada& p) { p.m.teclea("a"); },
            [](MesaPintada& p) { p.m.pulsa(Qt::Key_Return); }},
        {"a commit in the middle", [](MesaPintada& p) { en_medio(p), p.m.teclea("a"); },
            [](MesaPintada& p) { p.m.pulsa(Qt::Key_Return); }},
        {"a commit that appends",
            [](MesaPintada& p) { al_final(p), p.m.actual(p.ultima(), X), p.m.teclea("1"); },
            [](MesaPintada& p) { p.m.pulsa(Qt::Key_Return); }},
        {"a row appended at the end", al_final, [](MesaPintada& p) { p.m.tabla().crea_una_fila(); }},
        {"rows appended out of sight", nada,
            [](MesaPintada& p) { p.m.tabla().mandos().orden(Opcion::mn_añadir_filas); }},
        {"rows inserted in the middle", en_medio,
            [](MesaPintada& p) { p.m.tabla().mandos().orden(Opcion::mn_insertar_filas); }},
        {"rows deleted in the middle", en_medio,
            [](MesaPintada& p) { p.m.tabla().mandos().orden(Opcion::mn_eliminar_filas); }},
        {"a notch of the wheel", nada,
            [](MesaPintada& p) {
                p.m.rueda({0, -120});
            }},
        {"a notch upwards at the end", al_final,
            [](MesaPintada& p) {
                p.m.rueda({0, 120});
            }},
        {"a notch to the side", [](MesaPintada& p) { p.m.ventana.resize(400, 400); },
            [](MesaPintada& p) {
                p.m.rueda({-120, 0});
            }},
        {"the bar to the middle", nada,
            [](MesaPintada& p) {
                p.m.vista->verticalScrollBar()->setSliderPosition(
                    p.m.vista->verticalScrollBar()->maximum() / 2);
            }},
        {"a cell that is seen", nada, [](MesaPintada& p) { p.m.pon(3, NOMBRE, "nuevo"); }},
        {"a cell out of sight", nada, [](MesaPintada& p) { p.m.pon(p.ultima(), NOMBRE, "nuevo"); }},
        {"a column without width", nada, [](MesaPintada& p) { p.m.tabla().mandos().arrastra_borde(X, 0); }},
    };
    return todas;
}

} // namespace

class TstRepintado : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void con_un_millon_lo_que_con_mil_data();
    void con_un_millon_lo_que_con_mil();
    void una_tecla_repinta_las_dos_filas();
    void a_la_derecha_repinta_la_fila_y_la_cabecera();
    void abrir_el_editor_repinta_su_fila_y_la_cabecera();
    void confirmar_repinta_las_dos_filas_y_la_cabecera();
    void perder_el_foco_repinta_lo_marcado();
    void una_celda_repinta_la_celda();
    void lo_que_no_se_ve_no_repinta();
    void una_muesca_repinta_lo_que_asoma();
    void una_fila_al_final_repinta_dos_filas_y_la_suya();
    void insertar_repinta_la_fila_y_los_numeros();
    void borrar_repinta_la_fila_lo_que_asoma_y_los_numeros();
    void unas_celdas_repintan_su_rectangulo();
    void muchas_celdas_repintan_una_vez();
    void sin_redibujar_no_repinta_nada();
};

void TstRepintado::con_un_millon_lo_que_con_mil_data() {
    QTest::addColumn<int>("accion");
    for (int i = 0; i < static_cast<int>(acciones().size()); ++i)
        QTest::newRow(acciones()[static_cast<std::size_t>(i)].nombre) << i;
}

void TstRepintado::con_un_millon_lo_que_con_mil() {
    QFETCH(const int, accion);
    const Accion& a = acciones()[static_cast<std::size_t>(accion)];
    QRegion con[2];
    for (const int i : {0, 1}) {
        MesaPintada p(i == 0 ? MIL : MILLON);
        a.prepara(p);
        con[i] = p.tras(a.hace);
        QVERIFY(!manos::lugar_sin_pintar(*p.m.vista->viewport()));
    }
    QCOMPARE(con[1], con[0]);
}

void TstRepintado::una_tecla_repinta_las_dos_filas() {
    MesaPintada p(MILLON);
    QCOMPARE(p.tras([](MesaPintada& q) { q.m.pulsa(Qt::Key_Down); }), QRegion(p.filas(1, 2)));
}

void TstRepintado::a_la_derecha_repinta_la_fila_y_la_cabecera() {
    MesaPintada p(MILLON);
    QCOMPARE(p.tras([](MesaPintada& q) { q.m.pulsa(Qt::Key_Right); }), QRegion(p.filas(0, 1)));
}

void TstRepintado::abrir_el_editor_repinta_su_fila_y_la_cabecera() {
    MesaPintada p(MILLON);
    QCOMPARE(p.tras([](MesaPintada& q) { q.m.teclea("a"); }), QRegion(p.filas(0, 1)));
}

// Also the header: without the focus the grid could look another.
void TstRepintado::confirmar_repinta_las_dos_filas_y_la_cabecera() {
    MesaPintada p(MILLON);
    p.m.teclea("a");
    QCOMPARE(p.tras([](MesaPintada& q) { q.m.pulsa(Qt::Key_Return); }), QRegion(p.filas(0, 2)));
    QCOMPARE(p.m.celda(1, NOMBRE), QStringLiteral("a"));
}

void TstRepintado::perder_el_foco_repinta_lo_marcado() {
    MesaPintada p(MILLON);
    p.m.tabla().mandos().elige_bloque(3, X, 5, N);
    QCOMPARE(p.tras([](MesaPintada& q) { q.m.antes->setFocus(); }), QRegion(p.filas(0, 0)) + p.filas(3, 5));
    QVERIFY(!manos::lugar_sin_pintar(*p.m.vista->viewport()));
}

void TstRepintado::una_celda_repinta_la_celda() {
    MesaPintada p(MILLON);
    QCOMPARE(p.tras([](MesaPintada& q) { q.m.pon(3, NOMBRE, "nuevo"); }), QRegion(p.celda(3, NOMBRE)));
}

void TstRepintado::lo_que_no_se_ve_no_repinta() {
    MesaPintada p(MILLON);
    QCOMPARE(p.tras([](MesaPintada& q) { q.m.pon(q.ultima(), NOMBRE, "nuevo"); }), QRegion());
    QCOMPARE(p.tras([](MesaPintada& q) { q.m.tabla().Rows(MILLON + 5); }), QRegion());
}

// Three rows come up from below; the rest is moved as it is.
void TstRepintado::una_muesca_repinta_lo_que_asoma() {
    MesaPintada p(MILLON);
    const int alto = p.celda(1, 0).height();
    const QSize hoja = p.m.vista->viewport()->size();
    QCOMPARE(p.tras([](MesaPintada& q) {
        q.m.rueda({0, -120});
    }),
        QRegion(0, hoja.height() - 3 * alto, hoja.width(), 3 * alto));
}

// Enter on the last row makes the next one: the old current row and the new one, at the bottom of the window.
void TstRepintado::una_fila_al_final_repinta_dos_filas_y_la_suya() {
    MesaPintada p(MILLON);
    p.m.actual(MILLON, NOMBRE);
    const QRegion region = p.tras([](MesaPintada& q) { q.m.pulsa(Qt::Key_Return); });
    QCOMPARE(p.ultima(), MILLON + 1);
    const QSize hoja = p.m.vista->viewport()->size();
    const int alto = p.celda(1, 0).height();
    const QRect dos = p.filas(MILLON, MILLON + 1);
    QCOMPARE(region.intersected(QRect(0, 0, hoja.width(), dos.top())), QRegion());
    QVERIFY(dos.top() > hoja.height() - 3 * alto);
    QVERIFY(!manos::lugar_sin_pintar(*p.m.vista->viewport()));
}

// The new row, the one that was current and went down with its frame, and the numbers below.
void TstRepintado::insertar_repinta_la_fila_y_los_numeros() {
    MesaPintada p(MILLON);
    p.m.actual(4, NOMBRE);
    const QRegion region =
        p.tras([](MesaPintada& q) { q.m.tabla().mandos().orden(Opcion::mn_insertar_filas); });
    QCOMPARE(region, QRegion(p.filas(4, 5)) + p.numeros(4));
    QVERIFY(!manos::lugar_sin_pintar(*p.m.vista->viewport()));
}

void TstRepintado::borrar_repinta_la_fila_lo_que_asoma_y_los_numeros() {
    MesaPintada p(MILLON);
    p.m.actual(4, NOMBRE);
    const QSize hoja = p.m.vista->viewport()->size();
    const int alto = p.celda(1, 0).height();
    const QRegion region =
        p.tras([](MesaPintada& q) { q.m.tabla().mandos().orden(Opcion::mn_eliminar_filas); });
    QCOMPARE(
        region, QRegion(p.filas(4, 4)) + p.numeros(4) + QRect(0, hoja.height() - alto, hoja.width(), alto));
    QVERIFY(!manos::lugar_sin_pintar(*p.m.vista->viewport()));
}

void TstRepintado::unas_celdas_repintan_su_rectangulo() {
    MesaPintada p(MILLON);
    p.m.pon(3, X, "1");
    p.m.pon(4, X, "2");
    p.m.tabla().mandos().elige_bloque(3, X, 5, X);
    p.olvida();
    QCOMPARE(p.tras([](MesaPintada& q) { q.m.tabla().mandos().orden(Opcion::mn_borrar_seleccion); }),
        QRegion(p.celda(3, X) | p.celda(4, X)));
}

void TstRepintado::muchas_celdas_repintan_una_vez() {
    MesaPintada p(MIL);
    const QRegion region = p.tras([](MesaPintada& q) {
        for (int fila = 1; fila <= MIL; ++fila) q.m.pon(fila, NOMBRE, "nuevo");
    });
    QVERIFY(region.rectCount() < 64);
    QVERIFY(!manos::lugar_sin_pintar(*p.m.vista->viewport()));
}

void TstRepintado::sin_redibujar_no_repinta_nada() {
    MesaPintada p(MILLON);
    p.m.tabla().Redraw(false);
    QCOMPARE(p.tras([](MesaPintada& q) {
        q.m.pon(3, NOMBRE, "nuevo");
        q.m.pulsa(Qt::Key_Down);
    }),
        QRegion());
    p.m.tabla().Redraw(true);
    QVERIFY(!manos::lugar_sin_pintar(*p.m.vista->viewport()));
}

QTEST_MAIN(TstRepintado)
#include "tst_repintado.moc"
