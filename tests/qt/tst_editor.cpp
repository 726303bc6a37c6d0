// SPDX-License-Identifier: MIT
// The box over a cell through real events: how it opens, what its keys do, what it writes, where it lies.
#include "tests/qt/mesa_qt.h"

using namespace Qlt4_Tabla;

class TstEditor : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void una_letra_abre_la_casilla_con_ella_y_el_cursor_detras();
    void Intro_escribe_avisa_una_vez_y_baja();
    void el_numero_se_escribe_con_los_decimales_de_la_columna();
    void la_primera_tecla_pasa_el_filtro_data();
    void la_primera_tecla_pasa_el_filtro();
    void dentro_de_la_casilla_filtra_la_columna_editada_data();
    void dentro_de_la_casilla_filtra_la_columna_editada();
    void el_cursor_guarda_su_distancia_al_final();
    void espacio_confirma_en_numeros_y_se_escribe_en_textos();
    void espacio_cerrado_avanza_solo_fuera_de_textos();
    void Escape_deja_el_valor_y_el_segundo_sale();
    void F2_abre_con_el_texto_y_nada_marcado();
    void doble_clic_abre_con_todo_marcado();
    void doble_clic_en_columna_fija_da_mensaje();
    void doble_clic_en_la_cabecera_no_abre();
    void una_letra_en_columna_fija_no_hace_nada();
    void F2_abre_tambien_la_columna_fija();
    void vaciar_y_confirmar_deja_el_valor_y_avanza();
    void el_mismo_valor_no_avisa_y_avanza();
    void retroceso_cerrado_abre();
    void la_ultima_fila_crece_con_Intro();
    void las_flechas_en_la_casilla_mueven_su_cursor();
    void la_casilla_cubre_su_celda_y_toma_su_alineacion();
    void la_casilla_sigue_al_desplazamiento_y_al_ancho();
    void el_texto_de_la_celda_editada_no_se_pinta_debajo();
    void la_celda_que_desaparece_cierra_la_casilla();
    void mover_la_celda_por_codigo_no_cambia_lo_editado();
    void el_anfitrion_puede_abrir_otra_al_oir_el_cambio();
};

void TstEditor::una_letra_abre_la_casilla_con_ella_y_el_cursor_detras() {
    MesaQt m;
    m.pon(1, NOMBRE, "viejo");
    m.teclea("n");
    QVERIFY(m.casilla->isVisible() && m.casilla->hasFocus());
    QCOMPARE(m.casilla->text(), QStringLiteral("n"));
    QCOMPARE(m.casilla->cursorPosition(), 1);
    QVERIFY(!m.casilla->hasSelectedText());
    m.teclea("uevo");
    QCOMPARE(m.casilla->text(), QStringLiteral("nuevo"));
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("viejo"));
}

void TstEditor::Intro_escribe_avisa_una_vez_y_baja() {
    MesaQt m;
    m.teclea("hola");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("hola"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla,SelChange"));
    QVERIFY(!m.casilla->isVisible() && m.vista->hasFocus());
    QCOMPARE(m.donde(), QStringLiteral("2 1"));
}

void TstEditor::el_numero_se_escribe_con_los_decimales_de_la_columna() {
    MesaQt m;
    m.actual(1, X);
    m.teclea("12.5");
    m.pulsa(Qt::Key_Enter);
    m.pulsa(Qt::Key_F2);
    m.compone("7"); // and from an input method
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, X), QStringLiteral("12.500"));
    QCOMPARE(m.celda(2, X), QStringLiteral("7.000"));
    m.actual(1, N);
    m.teclea("-7");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, N), QStringLiteral("-7"));
}

void TstEditor::la_primera_tecla_pasa_el_filtro_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("tecla");
    QTest::addColumn<bool>("abre");
    QTest::newRow("digit, whole") << int(N) << "1" << true;
    QTest::newRow("minus, whole") << int(N) << "-" << true;
    QTest::newRow("point, whole") << int(N) << "." << false;
    QTest::newRow("plus, whole") << int(N) << "+" << false;
    QTest::newRow("letter, whole") << int(N) << "a" << false;
    QTest::newRow("accent, whole") << int(N) << QStringLiteral("á") << false;
    QTest::newRow("point, real") << int(X) << "." << true;
    QTest::newRow("comma, real") << int(X) << "," << false;
    QTest::newRow("plus, real") << int(X) << "+" << false;
    QTest::newRow("letter, text") << int(NOMBRE) << "a" << true;
    QTest::newRow("plus, text") << int(NOMBRE) << "+" << true;
    QTest::newRow("accent, text") << int(NOMBRE) << QStringLiteral("ñ") << true;
    QTest::newRow("letter, colour") << int(COLOR) << "r" << true;
    QTest::newRow("letter, locked") << int(FIJA) << "a" << false;
    QTest::newRow("letter, invisible") << int(OCULTA) << "a" << false;
}

void TstEditor::la_primera_tecla_pasa_el_filtro() {
    QFETCH(int, col);
    QFETCH(QString, tecla);
    QFETCH(bool, abre);
    MesaQt m;
    m.actual(2, col);
    m.teclea(tecla);
    QCOMPARE(m.casilla->isVisible(), abre);
    if (abre) QCOMPARE(m.casilla->text(), tecla);
    QCOMPARE(m.recoge(), QString());
}

void TstEditor::dentro_de_la_casilla_filtra_la_columna_editada_data() {
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("teclas");
    QTest::addColumn<QString>("queda");
    QTest::newRow("letters dropped in whole") << int(N) << "1a2b"
                                              << "12";
    QTest::newRow("point dropped in whole") << int(N) << "1.5"
                                            << "15";
    QTest::newRow("comma dropped in real") << int(X) << "1,5"
                                           << "15";
    QTest::newRow("second point dropped in real") << int(X) << "1.5.2"
                                                  << "1.52";
    QTest::newRow("minus goes in front") << int(N) << "12-"
                                         << "-12";
    QTest::newRow("second minus changes nothing") << int(N) << "12--"
                                                  << "-12";
    QTest::newRow("plus takes the minus away") << int(N) << "12-+"
                                               << "12";
    QTest::newRow("accents dropped in whole") << int(N) << QStringLiteral("1ñ2") << "12";
    QTest::newRow("text takes all") << int(NOMBRE) << "a1.,-+"
                                    << "a1.,-+";
}

void TstEditor::dentro_de_la_casilla_filtra_la_columna_editada() {
    QFETCH(int, col);
    QFETCH(QString, teclas);
    QFETCH(QString, queda);
    MesaQt m;
    m.actual(1, col);
    m.teclea(teclas);
    QCOMPARE(m.casilla->text(), queda);
}

void TstEditor::el_cursor_guarda_su_distancia_al_final() {
    MesaQt m;
    m.actual(1, N);
    m.teclea("1234");
    m.pulsa(Qt::Key_Left);
    m.teclea("-");
    QCOMPARE(m.casilla->text(), QStringLiteral("-1234"));
    QCOMPARE(m.casilla->cursorPosition(), 4);
    QVERIFY(!m.casilla->hasSelectedText());
}

void TstEditor::espacio_confirma_en_numeros_y_se_escribe_en_textos() {
    MesaQt m;
    m.teclea("a b");
    QCOMPARE(m.casilla->text(), QStringLiteral("a b"));
    m.pulsa(Qt::Key_Return);
    m.actual(1, N);
    m.teclea("5 ");
    QVERIFY(!m.casilla->isVisible());
    QCOMPARE(m.celda(1, N), QStringLiteral("5"));
    QCOMPARE(m.donde(), QStringLiteral("2 3"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla,SelChange"));
}

void TstEditor::espacio_cerrado_avanza_solo_fuera_de_textos() {
    MesaQt m;
    m.pulsa(Qt::Key_Space);
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
    QVERIFY(!m.casilla->isVisible());
    m.actual(1, N);
    m.pulsa(Qt::Key_Space);
    QCOMPARE(m.donde(), QStringLiteral("2 3"));
    QVERIFY(!m.casilla->isVisible());
}

void TstEditor::Escape_deja_el_valor_y_el_segundo_sale() {
    MesaQt m;
    m.pon(1, NOMBRE, "viejo");
    m.teclea("x");
    m.pulsa(Qt::Key_Escape);
    QVERIFY(!m.casilla->isVisible() && m.vista->hasFocus());
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("viejo"));
    QCOMPARE(m.recoge(), QString());
    m.pulsa(Qt::Key_Escape);
    QCOMPARE(m.recoge(), QStringLiteral("Salir"));
}

void TstEditor::F2_abre_con_el_texto_y_nada_marcado() {
    MesaQt m;
    m.pon(1, NOMBRE, "señal");
    m.pulsa(Qt::Key_F2);
    QCOMPARE(m.casilla->text(), QStringLiteral("señal"));
    QCOMPARE(m.casilla->cursorPosition(), 5);
    QVERIFY(!m.casilla->hasSelectedText());
    m.pulsa(Qt::Key_F2); // in the open box the key is nobody's
    QVERIFY(m.casilla->isVisible());
}

void TstEditor::doble_clic_abre_con_todo_marcado() {
    MesaQt m;
    m.pon(3, NOMBRE, "punto");
    m.doble_clic(3, NOMBRE);
    QVERIFY(m.casilla->isVisible() && m.casilla->hasFocus());
    QCOMPARE(m.casilla->selectedText(), QStringLiteral("punto"));
    m.teclea("z");
    QCOMPARE(m.casilla->text(), QStringLiteral("z"));
}

void TstEditor::doble_clic_en_columna_fija_da_mensaje() {
    MesaQt m;
    m.doble_clic(2, FIJA);
    QVERIFY(!m.casilla->isVisible());
    QCOMPARE(m.label("labMensaje")->text(), QStringLiteral("La columna < Fija > no se puede editar"));
    m.clic(1, NOMBRE);
    QCOMPARE(m.label("labMensaje")->text(), QString());
}

void TstEditor::doble_clic_en_la_cabecera_no_abre() {
    MesaQt m;
    m.doble_clic(0, NOMBRE);
    QVERIFY(!m.casilla->isVisible());
    manos::doble_clic(*m.vista->viewport(), m.vista->viewport()->rect().bottomRight() - QPoint(3, 3));
    QVERIFY(!m.casilla->isVisible());
}

void TstEditor::una_letra_en_columna_fija_no_hace_nada() {
    MesaQt m;
    m.actual(1, FIJA);
    m.teclea("x");
    QVERIFY(!m.casilla->isVisible());
    QCOMPARE(m.label("labMensaje")->text(), QString());
}

void TstEditor::F2_abre_tambien_la_columna_fija() {
    MesaQt m;
    m.actual(1, FIJA);
    m.pulsa(Qt::Key_F2);
    m.teclea("si");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, FIJA), QStringLiteral("si"));
}

void TstEditor::vaciar_y_confirmar_deja_el_valor_y_avanza() {
    MesaQt m;
    m.pon(1, NOMBRE, "viejo");
    m.pulsa(Qt::Key_F2);
    m.pulsa(Qt::Key_A, Qt::ControlModifier);
    m.pulsa(Qt::Key_Delete);
    QCOMPARE(m.casilla->text(), QString());
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("viejo"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
    QCOMPARE(m.donde(), QStringLiteral("2 1"));
}

void TstEditor::el_mismo_valor_no_avisa_y_avanza() {
    MesaQt m;
    m.pon(1, NOMBRE, "igual");
    m.pulsa(Qt::Key_F2);
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.recoge(), QStringLiteral("SelChange"));
}

void TstEditor::retroceso_cerrado_abre() {
    MesaQt m;
    m.actual(1, N);
    m.pulsa(Qt::Key_Backspace);
    QVERIFY(m.casilla->isVisible());
}

void TstEditor::la_ultima_fila_crece_con_Intro() {
    MesaQt m(3);
    m.actual(3, NOMBRE);
    m.teclea("fin");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.tablero().Rows(), 5);
    QCOMPARE(m.celda(4, 0), QStringLiteral("4"));
    QCOMPARE(m.donde(), QStringLiteral("4 1"));
}

void TstEditor::las_flechas_en_la_casilla_mueven_su_cursor() {
    MesaQt m;
    m.teclea("abc");
    m.pulsa(Qt::Key_Left);
    m.pulsa(Qt::Key_Home);
    m.pulsa(Qt::Key_Down);
    m.pulsa(Qt::Key_PageDown);
    QVERIFY(m.casilla->isVisible());
    QCOMPARE(m.casilla->cursorPosition(), 0);
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
}

void TstEditor::la_casilla_cubre_su_celda_y_toma_su_alineacion() {
    MesaQt m;
    m.actual(2, X);
    m.pulsa(Qt::Key_F2);
    const QRect celda = m.vista->rect_celda(2, X);
    QVERIFY(celda.contains(m.casilla->geometry()));
    QVERIFY(celda.adjusted(3, 3, -3, -3).intersected(m.casilla->geometry()) == celda.adjusted(3, 3, -3, -3));
    QVERIFY(m.casilla->alignment().testFlag(Qt::AlignRight));
    m.pulsa(Qt::Key_Escape);
    m.actual(2, NOMBRE);
    m.pulsa(Qt::Key_F2);
    QVERIFY(m.casilla->alignment().testFlag(Qt::AlignLeft));
}

void TstEditor::la_casilla_sigue_al_desplazamiento_y_al_ancho() {
    MesaQt m(200);
    m.actual(8, X);
    m.pulsa(Qt::Key_F2);
    const auto encima = [&] { return m.vista->rect_celda(8, X).contains(m.casilla->geometry()); };
    m.rueda({0, -120});
    QCOMPARE(m.tablero().TopRow(), 4);
    QVERIFY(encima());
    const QRect cabecera = m.vista->rect_celda(0, NOMBRE);
    manos::arrastra(*m.vista->viewport(), QPoint(cabecera.right(), 5), QPoint(cabecera.right() + 30, 5));
    QVERIFY(encima());
    QVERIFY(m.casilla->isVisible());
    m.rueda({0, -120 * 10});
    QVERIFY(encima());
    QVERIFY(!m.casilla->geometry().intersects(m.vista->viewport()->rect()));
    m.teclea("9");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(8, X), QStringLiteral("9.000"));
}

void TstEditor::el_texto_de_la_celda_editada_no_se_pinta_debajo() {
    MesaQt m;
    m.pon(1, NOMBRE, "MMMMMMMM");
    const auto trazos = [&] { // dark pixels of the grid itself inside the cell's frame
        const QRect zona = m.vista->rect_celda(1, NOMBRE).adjusted(4, 4, -4, -4);
        QImage foto(zona.size(), QImage::Format_RGB32);
        m.vista->viewport()->render(&foto, QPoint(), zona, QWidget::RenderFlags());
        int n = 0;
        for (int y = 0; y < foto.height(); ++y)
            for (int x = 0; x < foto.width(); ++x) n += qGray(foto.pixel(x, y)) < 128 ? 1 : 0;
        return n;
    };
    QVERIFY(trazos() > 0);
    m.pulsa(Qt::Key_F2);
    QCOMPARE(trazos(), 0);
    m.pulsa(Qt::Key_Escape);
    QVERIFY(trazos() > 0);
}

void TstEditor::la_celda_que_desaparece_cierra_la_casilla() {
    MesaQt m;
    m.actual(8, NOMBRE);
    m.teclea("x");
    m.tabla().Rows(5);
    QVERIFY(!m.casilla->isVisible());
    QVERIFY(m.vista->hasFocus());
    QCOMPARE(m.recoge(), QString());
}

void TstEditor::mover_la_celda_por_codigo_no_cambia_lo_editado() {
    MesaQt m;
    m.teclea("uno");
    m.tabla().A_Pon_Alto(4, 300); // makes row 4 the current one
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("uno"));
    QCOMPARE(m.celda(4, NOMBRE), QString());
}

void TstEditor::el_anfitrion_puede_abrir_otra_al_oir_el_cambio() {
    MesaQt m;
    m.al_cambiar = [&] {
        m.al_cambiar = {};
        m.tabla().mandos().elige_celda(5, NOMBRE);
        m.tabla().mandos().editor().abre_por_F2();
    };
    m.teclea("uno");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("uno"));
    QVERIFY(m.casilla->isVisible() && m.casilla->hasFocus());
    QCOMPARE(m.donde(), QStringLiteral("5 1"));
    m.teclea("cinco");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(5, NOMBRE), QStringLiteral("cinco"));
}

QTEST_MAIN(TstEditor)
#include "tst_editor.moc"
