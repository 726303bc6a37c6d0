// SPDX-License-Identifier: MIT
// The drop-down over a list cell through real events: closed and dropped, by keyboard and by mouse.
#include "tests/qt/mesa_qt.h"

using namespace Qlt4_Tabla;

class TstLista : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void se_abre_con_sus_entradas_y_la_de_la_celda();
    void doble_clic_y_letra_tambien_la_abren();
    void Intro_escribe_directamente_y_avanza();
    void espacio_escribe_directamente_y_avanza();
    void Intro_en_la_lista_desplegada();
    void la_entrada_resaltada_es_la_que_se_escribe();
    void Escape_cierra_sin_escribir();
    void Escape_en_la_lista_desplegada_cierra_sin_escribir();
    void un_clic_en_una_entrada_confirma();
    void soltar_el_raton_al_desplegar_no_elige();
    void un_clic_fuera_confirma();
    void un_texto_ajeno_no_elige_nada();
    void sin_valores_no_se_abre();
    void con_dos_valores_se_abre();
    void label1_cubre_la_celda();
    void sigue_al_desplazamiento();
    void la_rueda_no_cambia_el_valor();
    void el_segundo_clic_pasa_al_valor_siguiente();
};

namespace {

void abre(MesaQt& m, const char* valor = "B") {
    m.pon(1, USO, valor);
    m.actual(1, USO);
    m.pulsa(Qt::Key_F2);
    QVERIFY(m.lista->isVisible() && m.lista->hasFocus());
}

void despliega(MesaQt& m) {
    m.lista->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(m.lista->view()->window()));
}

} // namespace

void TstLista::se_abre_con_sus_entradas_y_la_de_la_celda() {
    MesaQt m;
    abre(m);
    QCOMPARE(m.lista->count(), 3);
    QCOMPARE(m.lista->itemText(0) + m.lista->itemText(1) + m.lista->itemText(2), QStringLiteral("ABC"));
    QCOMPARE(m.lista->currentText(), QStringLiteral("B"));
    QVERIFY(!m.casilla->isVisible());
}

void TstLista::doble_clic_y_letra_tambien_la_abren() {
    MesaQt m;
    m.doble_clic(2, USO);
    QVERIFY(m.lista->isVisible());
    m.pulsa(Qt::Key_Escape);
    m.teclea("c");
    QVERIFY(m.lista->isVisible());
    QCOMPARE(m.lista->currentIndex(), -1);
}

void TstLista::Intro_escribe_directamente_y_avanza() {
    MesaQt m;
    abre(m);
    m.pulsa(Qt::Key_Down);
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, USO), QStringLiteral("C"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
    QCOMPARE(int(m.tabla().estado().Modificado), 0);
    QCOMPARE(m.donde(), QStringLiteral("2 4"));
    QVERIFY(!m.lista->isVisible() && m.vista->hasFocus());
}

void TstLista::espacio_escribe_directamente_y_avanza() {
    MesaQt m;
    abre(m);
    m.pulsa(Qt::Key_Up);
    m.pulsa(Qt::Key_Space);
    QCOMPARE(m.celda(1, USO), QStringLiteral("A"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
}

void TstLista::Intro_en_la_lista_desplegada() {
    MesaQt m;
    abre(m);
    despliega(m);
    m.pulsa(Qt::Key_Down);
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, USO), QStringLiteral("C"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
    QVERIFY(!m.lista->isVisible() && !m.lista->view()->isVisible());
    QVERIFY(m.vista->hasFocus());
    QCOMPARE(m.donde(), QStringLiteral("2 4"));
}

void TstLista::la_entrada_resaltada_es_la_que_se_escribe() {
    MesaQt m;
    abre(m, "C");
    despliega(m);
    m.pulsa(Qt::Key_Home);
    m.pulsa(Qt::Key_Space);
    QCOMPARE(m.celda(1, USO), QStringLiteral("A"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
    QCOMPARE(m.donde(), QStringLiteral("2 4"));
}

void TstLista::Escape_cierra_sin_escribir() {
    MesaQt m;
    abre(m);
    m.pulsa(Qt::Key_Down);
    m.pulsa(Qt::Key_Escape);
    QCOMPARE(m.celda(1, USO), QStringLiteral("B"));
    QVERIFY(!m.lista->isVisible() && m.vista->hasFocus());
    QCOMPARE(m.recoge(), QString());
}

void TstLista::Escape_en_la_lista_desplegada_cierra_sin_escribir() {
    MesaQt m;
    abre(m);
    despliega(m);
    m.pulsa(Qt::Key_Down);
    m.pulsa(Qt::Key_Escape);
    QCOMPARE(m.celda(1, USO), QStringLiteral("B"));
    QVERIFY(!m.lista->isVisible() && !m.lista->view()->isVisible() && m.vista->hasFocus());
    QCOMPARE(m.recoge(), QString());
}

void TstLista::un_clic_en_una_entrada_confirma() {
    MesaQt m;
    abre(m);
    despliega(m);
    QAbstractItemView* vista = m.lista->view();
    const QPoint sitio = vista->visualRect(vista->model()->index(2, 0)).center();
    QTest::qWait(QApplication::doubleClickInterval() + 50); // a click that drops it chooses nothing yet
    manos::mueve(*vista->viewport(), sitio);
    manos::clic(*vista->viewport(), sitio);
    QCOMPARE(m.celda(1, USO), QStringLiteral("C"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
    QCOMPARE(int(m.tabla().estado().Modificado), 1);
    QCOMPARE(m.donde(), QStringLiteral("1 4"));
    QVERIFY(!m.lista->isVisible() && m.vista->hasFocus());
}

void TstLista::soltar_el_raton_al_desplegar_no_elige() {
    MesaQt m;
    abre(m);
    manos::clic(*m.lista, m.lista->rect().center());
    QVERIFY(m.lista->isVisible() && m.lista->view()->isVisible());
    QCOMPARE(m.recoge(), QString());
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, USO), QStringLiteral("B"));
    QVERIFY(!m.lista->isVisible() && m.vista->hasFocus());
}

void TstLista::un_clic_fuera_confirma() {
    MesaQt m;
    abre(m);
    m.pulsa(Qt::Key_Down);
    manos::clic(*m.antes, m.antes->rect().center());
    QCOMPARE(m.celda(1, USO), QStringLiteral("C"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
}

void TstLista::un_texto_ajeno_no_elige_nada() {
    MesaQt m;
    abre(m, "Z");
    QCOMPARE(m.lista->currentIndex(), -1);
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, USO), QStringLiteral("Z"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
}

void TstLista::sin_valores_no_se_abre() {
    MesaQt m;
    m.tabla().Lista(USO, Matriz<std::string>());
    m.actual(1, USO);
    m.pulsa(Qt::Key_F2);
    QVERIFY(!m.lista->isVisible() && !m.casilla->isVisible());
    QVERIFY(m.vista->hasFocus());
}

void TstLista::con_dos_valores_se_abre() {
    MesaQt m;
    m.tabla().Lista(USO, valores({"si", "no"}));
    abre(m, "no");
    QCOMPARE(m.lista->count(), 2);
    QCOMPARE(m.lista->currentIndex(), 1);
}

void TstLista::label1_cubre_la_celda() {
    MesaQt m;
    abre(m);
    auto* label = m.widget->findChild<QLabel*>(QStringLiteral("label1"));
    QVERIFY(label->isVisible());
    QCOMPARE(label->geometry(), m.vista->rect_celda(1, USO));
    QCOMPARE(m.lista->x(), label->x());
    QCOMPARE(m.lista->width(), label->width());
    m.pulsa(Qt::Key_Escape);
    QVERIFY(!label->isVisible());
}

void TstLista::sigue_al_desplazamiento() {
    MesaQt m(100);
    m.actual(8, USO);
    m.pulsa(Qt::Key_F2);
    m.rueda({0, -120});
    QVERIFY(m.lista->isVisible());
    const int abajo = m.lista->geometry().center().y() - m.vista->rect_celda(8, USO).center().y();
    QVERIFY(std::abs(abajo) <= 1);
}

void TstLista::la_rueda_no_cambia_el_valor() {
    MesaQt m(100);
    abre(m);
    manos::rueda(*m.lista, m.lista->rect().center(), {0, -120});
    QCOMPARE(m.lista->currentText(), QStringLiteral("B"));
    QCOMPARE(m.tablero().TopRow(), 4);
}

void TstLista::el_segundo_clic_pasa_al_valor_siguiente() {
    MesaQt m;
    m.pon(2, USO, "B");
    m.clic(2, USO);
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
    m.clic(2, USO);
    QCOMPARE(m.celda(2, USO), QStringLiteral("C"));
    QCOMPARE(m.recoge(), QStringLiteral("ACambiadoValorCombo 2 4"));
    m.clic(2, USO);
    QCOMPARE(m.celda(2, USO), QStringLiteral("A"));
}

QTEST_MAIN(TstLista)
#include "tst_lista.moc"
