// SPDX-License-Identifier: MIT
// Keys: moves of the cursor, keys claimed from a host's shortcuts, dead keys and input methods, the keypad.
#include "tests/qt/mesa_qt.h"

#include <QAction>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QShortcut>

using namespace Qlt4_Tabla;

class TstTeclado : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void las_flechas_mueven_la_celda();
    void Mayus_y_flechas_extienden();
    void Inicio_y_Fin();
    void las_paginas_mueven_la_vista();
    void Supr_vacia_la_seleccion();
    void sin_raton_Supr_no_vacia();
    void las_columnas_invisibles_se_saltan();
    void la_rejilla_pide_sus_teclas_data();
    void la_rejilla_pide_sus_teclas();
    void la_casilla_pide_las_suyas_data();
    void la_casilla_pide_las_suyas();
    void un_atajo_del_anfitrion_sigue_siendo_suyo();
    void Ctrl_C_V_X_Z_son_de_la_casilla();
    void Ctrl_con_letra_no_abre();
    void Alt_con_tecla_no_es_de_la_rejilla();
    void Ctrl_Intro_no_es_Intro();
    void AltGr_escribe();
    void una_tecla_que_nadie_usa_llega_al_anfitrion();
    void el_metodo_de_entrada_abre_con_su_texto();
    void el_metodo_de_entrada_pasa_el_filtro();
    void la_composicion_a_medias_no_es_texto();
    void la_rejilla_admite_metodos_de_entrada();
    void el_decimal_del_teclado_numerico_es_un_punto_data();
    void el_decimal_del_teclado_numerico_es_un_punto();
    void el_decimal_del_teclado_numerico_en_textos_es_lo_que_es();
    void teclear_deprisa_no_pierde_nada();
};

void TstTeclado::las_flechas_mueven_la_celda() {
    MesaQt m;
    m.pulsa(Qt::Key_Down);
    m.pulsa(Qt::Key_Right);
    QCOMPARE(m.donde(), QStringLiteral("2 2"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange,SelChange"));
    m.pulsa(Qt::Key_Up);
    m.pulsa(Qt::Key_Up);
    m.pulsa(Qt::Key_Left);
    m.pulsa(Qt::Key_Left);
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
    QCOMPARE(m.recoge(), QStringLiteral("SelChange,SelChange"));
}

void TstTeclado::Mayus_y_flechas_extienden() {
    MesaQt m;
    m.actual(3, X);
    m.pulsa(Qt::Key_Down, Qt::ShiftModifier);
    m.pulsa(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(m.seleccion(), QStringLiteral("3 2 4 3"));
    m.pulsa(Qt::Key_Down);
    QCOMPARE(m.seleccion(), QStringLiteral("4 2 4 2"));
}

void TstTeclado::Inicio_y_Fin() {
    MesaQt m(100);
    m.actual(5, N);
    m.pulsa(Qt::Key_Home);
    QCOMPARE(m.donde(), QStringLiteral("5 1"));
    m.pulsa(Qt::Key_End);
    QCOMPARE(m.donde(), QStringLiteral("5 6"));
    m.pulsa(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(m.donde(), QStringLiteral("100 6"));
    QVERIFY(m.vista->viewport()->rect().contains(m.vista->rect_celda(100, FIJA)));
    m.pulsa(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
    QCOMPARE(m.tablero().TopRow(), 1);
}

void TstTeclado::las_paginas_mueven_la_vista() {
    MesaQt m(200);
    const int pagina = filas_visibles(m.tablero());
    QVERIFY(pagina > 5 && pagina < 30);
    m.pulsa(Qt::Key_PageDown);
    QCOMPARE(m.tablero().Row(), 1 + pagina);
    QCOMPARE(m.tablero().TopRow(), 1 + pagina);
    m.pulsa(Qt::Key_PageUp);
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
    QCOMPARE(m.tablero().TopRow(), 1);
}

void TstTeclado::Supr_vacia_la_seleccion() {
    MesaQt m;
    m.pon(1, NOMBRE, "a");
    m.pon(2, NOMBRE, "b");
    m.pulsa(Qt::Key_Down, Qt::ShiftModifier);
    m.pulsa(Qt::Key_Delete);
    QCOMPARE(m.celda(1, NOMBRE) + m.celda(2, NOMBRE), QString());
    QVERIFY(!m.casilla->isVisible());
}

void TstTeclado::sin_raton_Supr_no_vacia() {
    MesaQt m;
    m.pon(1, NOMBRE, "a");
    m.tabla().A_Edicion_mn_Ratón_Off();
    m.pulsa(Qt::Key_Delete);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("a"));
    QVERIFY(!m.casilla->isVisible());
}

void TstTeclado::las_columnas_invisibles_se_saltan() {
    MesaQt m;
    m.actual(1, FIJA);
    m.pulsa(Qt::Key_Right);
    QCOMPARE(m.donde(), QStringLiteral("1 6"));
}

namespace {

void teclas_data() {
    QTest::addColumn<int>("tecla");
    QTest::addColumn<int>("mods");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<bool>("suya");
}

void tecla(const char* nombre, Qt::Key t, Qt::KeyboardModifiers mods, const char* texto, bool suya) {
    QTest::newRow(nombre) << int(t) << int(mods) << QString::fromUtf8(texto) << suya;
}

bool pide(QWidget& w) {
    QFETCH(int, tecla);
    QFETCH(int, mods);
    QFETCH(QString, texto);
    QKeyEvent e(QEvent::ShortcutOverride, tecla, Qt::KeyboardModifiers(mods), texto);
    e.ignore();
    QApplication::sendEvent(&w, &e);
    return e.isAccepted();
}

} // namespace

void TstTeclado::la_rejilla_pide_sus_teclas_data() {
    teclas_data();
    tecla("letter", Qt::Key_A, {}, "a", true);
    tecla("Enter", Qt::Key_Return, {}, "\r", true);
    tecla("Space", Qt::Key_Space, {}, " ", true);
    tecla("Escape", Qt::Key_Escape, {}, "\x1b", true);
    tecla("Delete", Qt::Key_Delete, {}, "\x7f", true);
    tecla("Down", Qt::Key_Down, {}, "", true);
    tecla("Ctrl+Home", Qt::Key_Home, Qt::ControlModifier, "", true);
    tecla("F2", Qt::Key_F2, {}, "", true);
    tecla("F5", Qt::Key_F5, {}, "", false);
    tecla("Tab", Qt::Key_Tab, {}, "\t", false);
    tecla("Ctrl+C", Qt::Key_C, Qt::ControlModifier, "\x03", true);
    tecla("Ctrl+Shift+C", Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier, "\x03", false);
    tecla("Ctrl+S", Qt::Key_S, Qt::ControlModifier, "\x13", false);
    tecla("Ctrl+Delete", Qt::Key_Delete, Qt::ControlModifier, "", false);
    tecla("Meta+Right", Qt::Key_Right, Qt::MetaModifier, "", false);
    tecla("Alt+A", Qt::Key_A, Qt::AltModifier, "a", false);
    tecla("Ctrl+Space", Qt::Key_Space, Qt::ControlModifier, " ", false);
    tecla("Alt+Left", Qt::Key_Left, Qt::AltModifier, "", false);
    tecla("Alt+Enter", Qt::Key_Return, Qt::AltModifier, "\r", false);
    tecla("Ctrl+Enter", Qt::Key_Return, Qt::ControlModifier, "\r", false);
}

void TstTeclado::la_rejilla_pide_sus_teclas() {
    QFETCH(bool, suya);
    MesaQt m;
    QCOMPARE(pide(*m.vista), suya);
}

void TstTeclado::la_casilla_pide_las_suyas_data() {
    teclas_data();
    tecla("letter", Qt::Key_A, {}, "a", true);
    tecla("Enter", Qt::Key_Return, {}, "\r", true);
    tecla("Escape", Qt::Key_Escape, {}, "\x1b", true);
    tecla("Delete", Qt::Key_Delete, {}, "\x7f", true);
    tecla("Down", Qt::Key_Down, {}, "", true);
    tecla("Ctrl+C", Qt::Key_C, Qt::ControlModifier, "\x03", true);
    tecla("Ctrl+V", Qt::Key_V, Qt::ControlModifier, "\x16", true);
    tecla("Ctrl+X", Qt::Key_X, Qt::ControlModifier, "\x18", true);
    tecla("Ctrl+Z", Qt::Key_Z, Qt::ControlModifier, "\x1a", true);
    tecla("Ctrl+S", Qt::Key_S, Qt::ControlModifier, "\x13", false);
    tecla("F2", Qt::Key_F2, {}, "", true);
    tecla("F5", Qt::Key_F5, {}, "", false);
    tecla("Tab", Qt::Key_Tab, {}, "\t", false);
}

void TstTeclado::la_casilla_pide_las_suyas() {
    QFETCH(bool, suya);
    MesaQt m;
    m.teclea("x");
    QCOMPARE(pide(*m.casilla), suya);
}

void TstTeclado::un_atajo_del_anfitrion_sigue_siendo_suyo() {
    MesaQt m;
    int ctrl_s = 0;
    int supr = 0;
    QShortcut uno(QKeySequence(Qt::CTRL | Qt::Key_S), &m.ventana, [&] { ++ctrl_s; });
    QShortcut dos(QKeySequence(Qt::Key_Delete), &m.ventana, [&] { ++supr; });
    m.pon(1, NOMBRE, "a");
    m.pulsa(Qt::Key_S, Qt::ControlModifier);
    m.pulsa(Qt::Key_Delete);
    QCOMPARE(ctrl_s, 1);
    QCOMPARE(supr, 0);
    QCOMPARE(m.celda(1, NOMBRE), QString());
    m.teclea("x");
    m.pulsa(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(ctrl_s, 2);
    QVERIFY(m.casilla->isVisible());
}

void TstTeclado::Ctrl_C_V_X_Z_son_de_la_casilla() {
    MesaQt m;
    QStringList oidos;
    QList<QAction*> acciones;
    for (const char* atajo : {"Ctrl+C", "Ctrl+V", "Ctrl+X", "Ctrl+Z"}) {
        auto* accion = new QAction(m.widget);
        accion->setShortcut(QKeySequence(QString::fromLatin1(atajo)));
        accion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(
            accion, &QAction::triggered, [&oidos, atajo] { oidos << QString::fromLatin1(atajo); });
        m.widget->addAction(accion);
    }
    m.pon(1, NOMBRE, "texto");
    m.doble_clic(1, NOMBRE);
    m.pulsa(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("texto"));
    m.pulsa(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(m.casilla->text(), QString());
    m.pulsa(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m.casilla->text(), QStringLiteral("texto"));
    m.teclea("s");
    m.pulsa(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(m.casilla->text() != QStringLiteral("textos"));
    QCOMPARE(oidos.size(), 0);
}

void TstTeclado::Ctrl_con_letra_no_abre() {
    MesaQt m;
    m.pulsa(Qt::Key_B, Qt::ControlModifier);
    m.pulsa(Qt::Key_B, Qt::AltModifier);
    m.pulsa(Qt::Key_B, Qt::MetaModifier);
    QVERIFY(!m.casilla->isVisible());
}

void TstTeclado::Alt_con_tecla_no_es_de_la_rejilla() {
    MesaQt m;
    m.pon(1, NOMBRE, "valor");
    m.pulsa(Qt::Key_F2, Qt::AltModifier);
    m.pulsa(Qt::Key_F2, Qt::MetaModifier);
    QVERIFY(!m.casilla->isVisible());
    m.pulsa(Qt::Key_Delete, Qt::AltModifier);
    m.pulsa(Qt::Key_Delete, Qt::MetaModifier);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("valor"));
    m.pulsa(Qt::Key_Delete);
    QCOMPARE(m.celda(1, NOMBRE), QString());
}

void TstTeclado::Ctrl_Intro_no_es_Intro() {
    MesaQt m;
    m.pulsa(Qt::Key_Return, Qt::ControlModifier);
    m.pulsa(Qt::Key_Return, Qt::AltModifier);
    m.pulsa(Qt::Key_Backspace, Qt::ControlModifier);
    m.pulsa(Qt::Key_Escape, Qt::ControlModifier);
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
    QVERIFY(!m.casilla->isVisible());
    QCOMPARE(m.recoge(), QString());
}

void TstTeclado::AltGr_escribe() {
    MesaQt m;
    manos::pulsa(*m.widget, Qt::Key_At, QStringLiteral("@"), Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(m.casilla->text(), QStringLiteral("@"));
    m.pulsa(Qt::Key_Escape);
    manos::pulsa(*m.widget, Qt::Key_unknown, QStringLiteral("€"), Qt::GroupSwitchModifier);
    QCOMPARE(m.casilla->text(), QStringLiteral("€"));
}

void TstTeclado::una_tecla_que_nadie_usa_llega_al_anfitrion() {
    struct Ventana : QWidget {
        int teclas = 0;

        void keyPressEvent(QKeyEvent* e) override { teclas += e->key() == Qt::Key_F7 ? 1 : 0; }
    } ventana;
    TablaWidget tabla(&ventana);
    ventana.show();
    ventana.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&ventana));
    tabla.setFocus();
    manos::pulsa(tabla, Qt::Key_F7);
    QCOMPARE(ventana.teclas, 1);
}

void TstTeclado::el_metodo_de_entrada_abre_con_su_texto() {
    MesaQt m;
    m.compone(QStringLiteral("á"));
    QVERIFY(m.casilla->isVisible() && m.casilla->hasFocus());
    QCOMPARE(m.casilla->text(), QStringLiteral("á"));
    m.compone(QStringLiteral("ño"));
    QCOMPARE(m.casilla->text(), QStringLiteral("áño"));
    m.pulsa(Qt::Key_Escape);
    m.compone(QStringLiteral("señal")); // several characters at once
    QCOMPARE(m.casilla->text(), QStringLiteral("señal"));
}

void TstTeclado::el_metodo_de_entrada_pasa_el_filtro() {
    MesaQt m;
    m.actual(1, N);
    m.compone(QStringLiteral("a"));
    QVERIFY(!m.casilla->isVisible());
    m.compone(QStringLiteral("1"));
    m.compone(QStringLiteral("b2.3-"));
    QCOMPARE(m.casilla->text(), QStringLiteral("-123"));
}

void TstTeclado::la_composicion_a_medias_no_es_texto() {
    MesaQt m;
    m.teclea("x");
    QInputMethodEvent e(QStringLiteral("´"), {});
    QApplication::sendEvent(m.casilla, &e);
    QCOMPARE(m.casilla->text(), QStringLiteral("x"));
    QVERIFY(m.casilla->isVisible());
    m.compone(QStringLiteral("é"));
    QCOMPARE(m.casilla->text(), QStringLiteral("xé"));
}

void TstTeclado::la_rejilla_admite_metodos_de_entrada() {
    MesaQt m;
    QVERIFY(m.vista->testAttribute(Qt::WA_InputMethodEnabled));
    m.actual(3, N);
    QInputMethodQueryEvent e(Qt::ImEnabled | Qt::ImCursorRectangle);
    QApplication::sendEvent(m.vista, &e);
    QVERIFY(e.value(Qt::ImEnabled).toBool());
    QCOMPARE(e.value(Qt::ImCursorRectangle).toRect(), m.vista->rect_celda(3, N));
}

void TstTeclado::el_decimal_del_teclado_numerico_es_un_punto_data() {
    QTest::addColumn<int>("tecla");
    QTest::addColumn<QString>("texto");
    QTest::newRow("comma layout") << int(Qt::Key_Comma) << QStringLiteral(",");
    QTest::newRow("point layout") << int(Qt::Key_Period) << QStringLiteral(".");
}

void TstTeclado::el_decimal_del_teclado_numerico_es_un_punto() {
    QFETCH(int, tecla);
    QFETCH(QString, texto);
    MesaQt m;
    m.actual(1, X);
    const auto decimal = [&] {
        manos::pulsa(*m.widget, static_cast<Qt::Key>(tecla), texto, Qt::KeypadModifier);
    };
    decimal(); // opens the box
    QCOMPARE(m.casilla->text(), QStringLiteral("."));
    m.teclea("5");
    decimal(); // there is one
    QCOMPARE(m.casilla->text(), QStringLiteral(".5"));
    m.pulsa(Qt::Key_Return);
    m.teclea("2");
    decimal();
    m.teclea("25");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, X) + QLatin1Char(' ') + m.celda(2, X), QStringLiteral("0.500 2.250"));
    m.actual(1, N);
    m.teclea("2");
    decimal(); // a whole number has none
    QCOMPARE(m.casilla->text(), QStringLiteral("2"));
}

void TstTeclado::el_decimal_del_teclado_numerico_en_textos_es_lo_que_es() {
    MesaQt m;
    m.teclea("a");
    manos::pulsa(*m.widget, Qt::Key_Comma, QStringLiteral(","), Qt::KeypadModifier);
    QCOMPARE(m.casilla->text(), QStringLiteral("a,"));
}

void TstTeclado::teclear_deprisa_no_pierde_nada() {
    MesaQt m;
    // Two characters in one event, as a fast keyboard or a tool sends them.
    manos::pulsa(*m.widget, Qt::Key_unknown, QStringLiteral("ab"));
    QCOMPARE(m.casilla->text(), QStringLiteral("ab"));
}

QTEST_MAIN(TstTeclado)
#include "tst_teclado.moc"
