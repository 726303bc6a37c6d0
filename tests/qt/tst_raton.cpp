// SPDX-License-Identifier: MIT
// The mouse on the grid: selections, column widths, wheel, scroll bars.
#include "tests/qt/mesa_qt.h"

#include <QDialog>
#include <QScrollBar>

using namespace Qlt4_Tabla;

class TstRaton : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void un_clic_lleva_la_celda();
    void Mayus_clic_extiende();
    void arrastrar_selecciona_un_bloque();
    void el_numero_de_fila_selecciona_la_fila();
    void la_cabecera_selecciona_la_columna();
    void la_esquina_selecciona_todo();
    void fuera_de_las_celdas_no_cambia_nada();
    void el_boton_derecho_no_selecciona();
    void arrastrar_mas_alla_del_borde_desplaza();
    void parado_mas_alla_del_borde_sigue_desplazando_hasta_que_se_suelta();
    void un_dialogo_encima_para_el_desplazamiento();
    void soltar_fuera_no_es_clic();
    void el_borde_de_una_columna_se_arrastra();
    void el_ancho_arrastrado_lo_lee_el_editor_de_columnas();
    void arrastrar_sin_mover_deja_los_twips_como_se_dieron();
    void el_ancho_no_baja_de_cero();
    void doble_clic_en_el_borde_ajusta();
    void sobre_el_borde_cambia_el_puntero();
    void la_rueda_mueve_tres_filas_sin_mover_la_celda();
    void los_pasos_pequenos_se_suman();
    void la_rueda_se_detiene_en_los_extremos();
    void Mayus_rueda_desplaza_columnas();
    void la_barra_de_filas_y_la_vista_van_juntas();
    void la_barra_de_columnas_desplaza();
    void arrastrar_la_barra_con_la_casilla_abierta_la_deja_abierta();
    void a_lo_sumo_la_ultima_fila_queda_arriba();
};

namespace {

QPoint borde_derecho(MesaQt& m, int col) { return {m.vista->rect_celda(0, col).right(), 6}; }

void ensancha(MesaQt& m, int col, int px) {
    manos::arrastra(*m.vista->viewport(), borde_derecho(m, col), borde_derecho(m, col) + QPoint(px, 0));
}

// A selection is dragged from row 3 to below the cells and held there.
QPoint arrastra_debajo(MesaQt& m) {
    QWidget* v = m.vista->viewport();
    const QPoint debajo(m.centro(3, NOMBRE).x(), v->height() + 5);
    manos::aprieta(*v, m.centro(3, NOMBRE));
    manos::mueve(*v, debajo);
    return debajo;
}

} // namespace

void TstRaton::un_clic_lleva_la_celda() {
    MesaQt m;
    m.clic(3, X);
    QCOMPARE(m.seleccion(), QStringLiteral("3 2 3 2"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
    m.clic(3, X);
    QCOMPARE(m.recoge(), QString());
}

void TstRaton::Mayus_clic_extiende() {
    MesaQt m;
    m.clic(3, X);
    m.clic(5, USO, Qt::ShiftModifier);
    QCOMPARE(m.seleccion(), QStringLiteral("3 2 5 4"));
    m.clic(1, NOMBRE, Qt::ShiftModifier);
    QCOMPARE(m.seleccion(), QStringLiteral("3 2 1 1"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange,SelChange,SelChange"));
}

void TstRaton::arrastrar_selecciona_un_bloque() {
    MesaQt m;
    m.arrastra(2, NOMBRE, 6, N);
    QCOMPARE(m.seleccion(), QStringLiteral("2 1 6 3"));
    m.arrastra(6, N, 2, NOMBRE);
    QCOMPARE(m.seleccion(), QStringLiteral("6 3 2 1"));
    QVERIFY(!m.casilla->isVisible());
}

void TstRaton::el_numero_de_fila_selecciona_la_fila() {
    MesaQt m;
    m.clic(4, 0);
    QCOMPARE(m.seleccion(), QStringLiteral("4 1 4 7"));
    m.arrastra(2, 0, 5, 0);
    QCOMPARE(m.seleccion(), QStringLiteral("2 1 5 7"));
    QCOMPARE(m.tablero().modo_seleccion(), ModoSeleccion::PorFilas);
    m.clic(2, X);
    QCOMPARE(m.tablero().modo_seleccion(), ModoSeleccion::Libre);
}

void TstRaton::la_cabecera_selecciona_la_columna() {
    MesaQt m;
    m.clic(0, X);
    QCOMPARE(m.seleccion(), QStringLiteral("1 2 10 2"));
}

void TstRaton::la_esquina_selecciona_todo() {
    MesaQt m;
    m.clic(0, 0);
    QCOMPARE(m.seleccion(), QStringLiteral("1 1 10 7"));
}

void TstRaton::fuera_de_las_celdas_no_cambia_nada() {
    MesaQt m(3);
    m.actual(2, X);
    manos::clic(*m.vista->viewport(), m.vista->viewport()->rect().bottomRight() - QPoint(4, 4));
    QCOMPARE(m.seleccion(), QStringLiteral("2 2 2 2"));
    QCOMPARE(m.recoge(), QString());
}

void TstRaton::el_boton_derecho_no_selecciona() {
    MesaQt m;
    manos::clic(*m.vista->viewport(), m.centro(5, N), {}, Qt::RightButton);
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
    QCOMPARE(m.recoge(), QString());
}

void TstRaton::arrastrar_mas_alla_del_borde_desplaza() {
    MesaQt m(200);
    QWidget* v = m.vista->viewport();
    const QPoint debajo = arrastra_debajo(m);
    for (int i = 1; i < 4; ++i) manos::mueve(*v, debajo + QPoint(i, 0));
    manos::suelta(*v, debajo);
    QVERIFY(m.tablero().TopRow() > 1);
    QCOMPARE(m.tablero().Row(), 3);
    QVERIFY(m.tablero().RowSel() > 15);
    const int hasta = m.tablero().RowSel();
    manos::mueve(*v, m.centro(m.tablero().TopRow(), X)); // the button is up again
    QCOMPARE(m.tablero().RowSel(), hasta);
}

void TstRaton::parado_mas_alla_del_borde_sigue_desplazando_hasta_que_se_suelta() {
    MesaQt m(200);
    QWidget* v = m.vista->viewport();
    const QPoint debajo = arrastra_debajo(m);
    const int fila = m.tablero().RowSel();
    QTRY_VERIFY(m.tablero().RowSel() >= fila + 3);
    manos::suelta(*v, debajo);
    const int hasta = m.tablero().RowSel();
    QTest::qWait(200);
    QCOMPARE(m.tablero().RowSel(), hasta);
    QCOMPARE(m.tablero().Row(), 3);
}

void TstRaton::un_dialogo_encima_para_el_desplazamiento() {
    MesaQt m(200);
    QWidget* v = m.vista->viewport();
    const QPoint debajo = arrastra_debajo(m);
    QDialog encima;
    encima.setModal(true);
    encima.show();
    const int fila = m.tablero().RowSel();
    QTest::qWait(200);
    QCOMPARE(m.tablero().RowSel(), fila);
    encima.close();
    manos::suelta(*v, debajo);
}

void TstRaton::soltar_fuera_no_es_clic() {
    MesaQt m;
    m.pon(2, USO, "A");
    m.clic(2, USO);
    QWidget* v = m.vista->viewport();
    manos::aprieta(*v, m.centro(2, USO));
    manos::mueve(*v, m.centro(3, USO));
    manos::suelta(*v, m.centro(3, USO));
    QCOMPARE(m.celda(2, USO), QStringLiteral("A"));
}

void TstRaton::el_borde_de_una_columna_se_arrastra() {
    MesaQt m;
    ensancha(m, X, 40);
    QCOMPARE(m.vista->rect_celda(0, X).width(), 120);
    QCOMPARE(m.tablero().ColWidth(X), 1800); // 120 pixels of 15 twips
    QCOMPARE(m.seleccion(), QStringLiteral("1 1 1 1"));
    QCOMPARE(m.recoge(), QString());
    // From the right side of the edge too.
    const QPoint detras = borde_derecho(m, NOMBRE) + QPoint(3, 0);
    manos::arrastra(*m.vista->viewport(), detras, detras + QPoint(20, 0));
    QVERIFY(std::abs(m.vista->rect_celda(0, NOMBRE).width() - 100) <= 4);
}

void TstRaton::el_ancho_arrastrado_lo_lee_el_editor_de_columnas() {
    MesaQt m;
    ensancha(m, X, 40);
    QCOMPARE(int(m.tabla().estado().Formatos[X].Longitud), 10);
    m.tabla().Editor_Tabl_graba();
    QCOMPARE(int(m.tabla().estado().Formatos[X].Longitud), 15);
    m.tabla().Tablero_establece_Formato();
    QCOMPARE(m.vista->rect_celda(0, X).width(), 120);
}

void TstRaton::arrastrar_sin_mover_deja_los_twips_como_se_dieron() {
    MesaQt m;
    m.tabla().FormatoColumnas(
        X, false, false, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 7, "X");
    m.tabla().Tablero_establece_Formato();
    manos::clic(*m.vista->viewport(), borde_derecho(m, X));
    QCOMPARE(m.tablero().ColWidth(X), 840);
    QCOMPARE(m.recoge(), QString());
}

void TstRaton::el_ancho_no_baja_de_cero() {
    MesaQt m;
    ensancha(m, X, -300);
    QCOMPARE(m.tablero().ColWidth(X), 0);
}

void TstRaton::doble_clic_en_el_borde_ajusta() {
    MesaQt m;
    m.pon(3, NOMBRE, "un texto bastante largo para su columna");
    manos::doble_clic(*m.vista->viewport(), borde_derecho(m, NOMBRE));
    const int ancho = m.vista->fontMetrics().horizontalAdvance(m.celda(3, NOMBRE));
    const int px = m.vista->rect_celda(0, NOMBRE).width();
    QVERIFY(px > ancho && px < ancho + 20);
    QVERIFY(!m.casilla->isVisible());
    m.pon(3, NOMBRE, "a");
    manos::doble_clic(*m.vista->viewport(), borde_derecho(m, NOMBRE));
    QVERIFY(m.vista->rect_celda(0, NOMBRE).width() >=
        m.vista->fontMetrics().horizontalAdvance(m.celda(0, NOMBRE)));
    QVERIFY(m.vista->rect_celda(0, NOMBRE).width() < 80);
}

void TstRaton::sobre_el_borde_cambia_el_puntero() {
    MesaQt m;
    QWidget* v = m.vista->viewport();
    manos::mueve(*v, borde_derecho(m, X));
    QCOMPARE(v->cursor().shape(), Qt::SplitHCursor);
    manos::mueve(*v, m.centro(0, X));
    QCOMPARE(v->cursor().shape(), Qt::ArrowCursor);
    manos::mueve(*v, borde_derecho(m, X) + QPoint(0, 100));
    QCOMPARE(v->cursor().shape(), Qt::ArrowCursor);
}

void TstRaton::la_rueda_mueve_tres_filas_sin_mover_la_celda() {
    MesaQt m(200);
    m.rueda({0, -120});
    QCOMPARE(m.tablero().TopRow(), 4);
    m.rueda({0, -240});
    QCOMPARE(m.tablero().TopRow(), 10);
    m.rueda({0, 120});
    QCOMPARE(m.tablero().TopRow(), 7);
    QCOMPARE(m.seleccion(), QStringLiteral("1 1 1 1"));
    QCOMPARE(m.recoge(), QString());
}

void TstRaton::los_pasos_pequenos_se_suman() {
    MesaQt m(200);
    for (int i = 0; i < 7; ++i) m.rueda({0, -15});
    QCOMPARE(m.tablero().TopRow(), 1);
    m.rueda({0, -15});
    QCOMPARE(m.tablero().TopRow(), 4);
    for (int i = 0; i < 12; ++i) m.rueda({0, -40});
    QCOMPARE(m.tablero().TopRow(), 16);
}

void TstRaton::la_rueda_se_detiene_en_los_extremos() {
    MesaQt m(20);
    m.rueda({0, 120 * 5});
    QCOMPARE(m.tablero().TopRow(), 1);
    m.rueda({0, -120 * 50});
    QVERIFY(m.tablero().TopRow() <= 20 && m.tablero().TopRow() >= 16);
}

void TstRaton::Mayus_rueda_desplaza_columnas() {
    MesaQt m(20, QSize(300, 400));
    m.rueda({0, -120}, Qt::ShiftModifier);
    QVERIFY(m.tablero().desplazamiento() > 0);
    QCOMPARE(m.tablero().TopRow(), 1);
    m.rueda({120, 0});
    QCOMPARE(m.tablero().desplazamiento(), 0);
}

void TstRaton::la_barra_de_filas_y_la_vista_van_juntas() {
    MesaQt m(200);
    QScrollBar* barra = m.vista->verticalScrollBar();
    QCOMPARE(barra->minimum(), 1);
    QCOMPARE(barra->value(), 1);
    barra->setValue(50);
    QCOMPARE(m.tablero().TopRow(), 50);
    m.tabla().A_RowTop(80);
    QCOMPARE(barra->value(), 80);
    barra->setValue(barra->maximum());
    QVERIFY(m.vista->viewport()->rect().contains(m.vista->rect_celda(200, 1)));
    m.tabla().Rows(400);
    QVERIFY(barra->maximum() > 350);
    QCOMPARE(m.seleccion(), QStringLiteral("1 1 1 1"));
}

void TstRaton::la_barra_de_columnas_desplaza() {
    MesaQt m(20, QSize(300, 400));
    QScrollBar* barra = m.vista->horizontalScrollBar();
    QVERIFY(barra->maximum() > 0);
    const int x = m.vista->rect_celda(1, X).x();
    barra->setValue(37);
    QCOMPARE(m.vista->rect_celda(1, X).x(), x - 37);
    QCOMPARE(m.vista->rect_celda(1, 0).x(), 0);
    barra->setValue(barra->maximum());
    QCOMPARE(m.vista->rect_celda(1, FIJA).right(), m.vista->viewport()->width() - 1);
}

void TstRaton::arrastrar_la_barra_con_la_casilla_abierta_la_deja_abierta() {
    MesaQt m(200);
    m.teclea("x");
    QScrollBar* barra = m.vista->verticalScrollBar();
    manos::clic(*barra, QPoint(barra->width() / 2, barra->height() - 40));
    QVERIFY(m.tablero().TopRow() > 1);
    QVERIFY(m.casilla->isVisible() && m.casilla->hasFocus());
    QCOMPARE(m.recoge(), QString());
}

void TstRaton::a_lo_sumo_la_ultima_fila_queda_arriba() {
    MesaQt m(50);
    m.tabla().A_RowTop(50);
    QCOMPARE(m.tablero().TopRow(), 50);
    QCOMPARE(m.vista->verticalScrollBar()->value(), 50);
    m.clic(50, NOMBRE);
    QCOMPARE(m.donde(), QStringLiteral("50 1"));
}

QTEST_MAIN(TstRaton)
#include "tst_raton.moc"
