// SPDX-License-Identifier: MIT
// The open editors and the focus: what commits, what does not, and what happens to an open box when its
// widget is hidden, moved to another parent, closed or destroyed.
#include "tests/qt/mesa_qt.h"

#include <QDialog>
#include <QMenu>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTimer>

using namespace Qlt4_Tabla;

class TstFoco : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void Tab_confirma_y_va_al_siguiente();
    void Mayus_Tab_confirma_y_va_al_anterior();
    void Tab_sale_de_la_tabla_cerrada();
    void Tab_entra_en_la_rejilla_y_no_en_la_casilla();
    void Tab_confirma_la_lista_y_sale();
    void un_clic_en_otro_control_confirma();
    void setFocus_en_otro_control_confirma();
    void un_clic_en_otra_celda_confirma_la_editada();
    void el_clic_que_confirma_va_a_la_celda_senalada();
    void el_clic_derecho_confirma_tambien();
    void un_menu_no_confirma();
    void el_menu_de_la_propia_casilla_no_confirma();
    void un_mensaje_no_confirma();
    void otra_ventana_no_confirma();
    void un_mensaje_al_confirmar_no_confirma_dos_veces();
    void el_foco_no_pasa_por_otro_control_al_cerrar();
    void ocultar_la_tabla_confirma_una_vez();
    void ocultar_el_padre_confirma_una_vez();
    void cambiar_de_pagina_confirma_una_vez();
    void cerrar_la_ventana_confirma_una_vez();
    void destruir_la_tabla_abierta_no_falla_data();
    void destruir_la_tabla_abierta_no_falla();
    void destruir_la_ventana_abierta_no_avisa();
    void al_cerrar_el_anfitrion_lee_lo_escrito();
    void destruir_la_tabla_al_oir_el_cambio();
    void cambiar_de_padre_con_la_casilla_abierta();
    void desactivar_la_tabla_confirma_una_vez();
    void la_tabla_toma_el_foco_por_su_rejilla();
};

namespace {

void escribe(MesaQt& m, const char* texto = "dato") {
    m.teclea(QString::fromLatin1(texto));
    QVERIFY(m.casilla->isVisible() && m.casilla->hasFocus());
}

} // namespace

void TstFoco::Tab_confirma_y_va_al_siguiente() {
    MesaQt m;
    escribe(m);
    m.pulsa(Qt::Key_Tab);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QVERIFY(m.despues->hasFocus() && !m.casilla->isVisible());
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
}

void TstFoco::Mayus_Tab_confirma_y_va_al_anterior() {
    MesaQt m;
    escribe(m);
    m.pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QVERIFY(m.antes->hasFocus() && !m.casilla->isVisible());
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
}

void TstFoco::Tab_sale_de_la_tabla_cerrada() {
    MesaQt m;
    m.pulsa(Qt::Key_Tab);
    QVERIFY(m.despues->hasFocus());
    m.pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m.vista->hasFocus());
    m.pulsa(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m.antes->hasFocus());
    QCOMPARE(m.recoge(), QString());
}

void TstFoco::Tab_entra_en_la_rejilla_y_no_en_la_casilla() {
    MesaQt m;
    m.antes->setFocus();
    m.pulsa(Qt::Key_Tab);
    QVERIFY(m.vista->hasFocus());
    m.teclea("x");
    QVERIFY(m.casilla->isVisible());
}

void TstFoco::Tab_confirma_la_lista_y_sale() {
    MesaQt m;
    m.pon(1, USO, "A");
    m.actual(1, USO);
    m.pulsa(Qt::Key_F2);
    m.pulsa(Qt::Key_Down);
    m.pulsa(Qt::Key_Tab);
    QCOMPARE(m.celda(1, USO), QStringLiteral("B"));
    QVERIFY(m.despues->hasFocus() && !m.lista->isVisible());
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
}

void TstFoco::un_clic_en_otro_control_confirma() {
    MesaQt m;
    escribe(m);
    manos::clic(*m.despues, m.despues->rect().center());
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QVERIFY(m.despues->hasFocus() && !m.casilla->isVisible());
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
}

void TstFoco::setFocus_en_otro_control_confirma() {
    MesaQt m;
    escribe(m);
    m.antes->setFocus();
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QVERIFY(m.antes->hasFocus());
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
}

void TstFoco::un_clic_en_otra_celda_confirma_la_editada() {
    MesaQt m;
    escribe(m);
    m.clic(4, X);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QCOMPARE(m.donde(), QStringLiteral("4 2"));
    QVERIFY(m.vista->hasFocus() && !m.casilla->isVisible());
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla,SelChange"));
}

void TstFoco::el_clic_que_confirma_va_a_la_celda_senalada() {
    MesaQt m(200);
    m.teclea("x");
    m.al_cambiar = [&] { m.tabla().A_RowTop(11); }; // row 15 stands now where row 5 was
    m.clic(5, X);
    QCOMPARE(m.tablero().TopRow(), 11);
    QCOMPARE(m.seleccion(), QStringLiteral("5 2 5 2"));
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("x"));
    QVERIFY(m.vista->hasFocus());
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla,SelChange"));
}

void TstFoco::el_clic_derecho_confirma_tambien() {
    MesaQt m;
    m.teclea("x");
    manos::clic(*m.vista->viewport(), m.centro(5, X), {}, Qt::RightButton);
    QVERIFY(!m.casilla->isVisible());
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("x"));
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
}

void TstFoco::un_menu_no_confirma() {
    MesaQt m;
    escribe(m);
    QMenu menu(&m.ventana);
    menu.addAction(QStringLiteral("x"));
    menu.popup(m.ventana.mapToGlobal(QPoint(5, 5)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QVERIFY(m.casilla->isVisible());
    menu.close();
    QVERIFY(m.casilla->isVisible());
    QCOMPARE(m.recoge(), QString());
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla,SelChange"));
}

void TstFoco::el_menu_de_la_propia_casilla_no_confirma() {
    MesaQt m;
    escribe(m);
    QPointer<QWidget> menu;
    manos::clic(*m.casilla, m.casilla->rect().center(), {}, Qt::RightButton);
    QContextMenuEvent e(QContextMenuEvent::Mouse, m.casilla->rect().center(),
        m.casilla->mapToGlobal(m.casilla->rect().center()));
    QApplication::sendEvent(m.casilla, &e);
    menu = QApplication::activePopupWidget();
    QVERIFY(menu);
    QVERIFY(m.casilla->isVisible());
    menu->close();
    QVERIFY(m.casilla->isVisible());
    QCOMPARE(m.recoge(), QString());
}

void TstFoco::un_mensaje_no_confirma() {
    MesaQt m;
    escribe(m);
    bool abierta = false;
    QDialog caja(&m.ventana);
    QTimer::singleShot(0, &m.ventana, [&] {
        QVERIFY(QTest::qWaitForWindowActive(&caja));
        abierta = m.casilla->isVisible();
        caja.close();
    });
    caja.exec();
    QVERIFY(abierta);
    QCOMPARE(m.recoge(), QString());
    m.activa();
    QVERIFY(m.casilla->isVisible() && m.casilla->hasFocus());
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
}

void TstFoco::otra_ventana_no_confirma() {
    MesaQt m;
    escribe(m);
    QLineEdit otra;
    otra.show();
    otra.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&otra));
    QVERIFY(m.casilla->isVisible());
    QCOMPARE(m.recoge(), QString());
    m.activa();
    QVERIFY(m.casilla->hasFocus());
    // Coming back by a click on another control is a loss of focus like any other.
    manos::clic(*m.antes, m.antes->rect().center());
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
}

void TstFoco::un_mensaje_al_confirmar_no_confirma_dos_veces() {
    MesaQt m;
    m.al_cambiar = [&] {
        QMessageBox::information(&m.ventana, QStringLiteral("t"), QStringLiteral("x"));
        m.mensajes.clear();
    };
    escribe(m);
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla,SelChange"));
    m.activa();
    QVERIFY(m.vista->hasFocus());
    escribe(m, "otro");
    manos::clic(*m.despues, m.despues->rect().center());
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
}

void TstFoco::el_foco_no_pasa_por_otro_control_al_cerrar() {
    MesaQt m;
    QStringList visitas;
    QObject::connect(qApp, &QApplication::focusChanged, &m.ventana, [&](QWidget*, QWidget* a) {
        if (a == m.antes || a == m.despues) visitas << QStringLiteral("!");
    });
    escribe(m);
    m.pulsa(Qt::Key_Return);
    escribe(m);
    m.pulsa(Qt::Key_Escape);
    m.actual(1, USO);
    m.pulsa(Qt::Key_F2);
    m.pulsa(Qt::Key_Return);
    QCOMPARE(visitas.size(), 0);
    QVERIFY(m.vista->hasFocus());
}

void TstFoco::ocultar_la_tabla_confirma_una_vez() {
    MesaQt m;
    escribe(m);
    m.widget->hide();
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
    m.widget->show();
    QVERIFY(!m.casilla->isVisible());
    m.vista->setFocus();
    escribe(m, "mas");
}

void TstFoco::ocultar_el_padre_confirma_una_vez() {
    MesaQt m;
    escribe(m);
    m.ventana.hide();
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
    m.ventana.show();
    m.activa();
    QVERIFY(!m.casilla->isVisible());
}

void TstFoco::cambiar_de_pagina_confirma_una_vez() {
    MesaQt m;
    QStackedWidget paginas;
    paginas.addWidget(&m.ventana);
    paginas.addWidget(new QLineEdit);
    paginas.show();
    paginas.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&paginas));
    m.vista->setFocus();
    escribe(m);
    paginas.setCurrentIndex(1);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
    paginas.removeWidget(&m.ventana);
    m.ventana.setParent(nullptr);
}

void TstFoco::cerrar_la_ventana_confirma_una_vez() {
    MesaQt m;
    escribe(m);
    m.ventana.close();
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
}

void TstFoco::destruir_la_tabla_abierta_no_falla_data() {
    QTest::addColumn<int>("col");
    QTest::newRow("box") << int(NOMBRE);
    QTest::newRow("list") << int(USO);
}

void TstFoco::destruir_la_tabla_abierta_no_falla() {
    QFETCH(int, col);
    MesaQt m;
    m.pon(1, USO, "A");
    m.actual(1, col);
    m.pulsa(Qt::Key_F2);
    if (m.casilla->isVisible()) m.teclea("z");
    if (m.lista->isVisible()) m.pulsa(Qt::Key_Down);
    QVERIFY(m.tabla().mandos().editor().abierto());
    delete m.widget;
    QCOMPARE(m.recoge(), QString()); // nobody is left to hear of it
}

namespace {

// A window of a host's own class, which listens as long as it is whole.
class VentanaDeAnfitrion : public QWidget {
    Q_OBJECT

public:
    explicit VentanaDeAnfitrion(int& oidos) : oidos_(oidos), caja_(new QVBoxLayout(this)) {
        tabla = new TablaWidget(this);
        caja_->addWidget(tabla);
        connect(tabla, &TablaWidget::CambiaCasilla, this, [this] { ++oidos_; });
    }

    ~VentanaDeAnfitrion() override { muerta = true; }

    TablaWidget* tabla;
    bool muerta = false;

protected:
    void closeEvent(QCloseEvent* e) override {
        al_cerrar = QString::fromStdString(std::string(tabla->tabla().tablero().TextMatrix(1, 1)));
        e->accept();
    }

public:
    QString al_cerrar;

private:
    int& oidos_;
    QVBoxLayout* caja_;
};

void abre_y_escribe(VentanaDeAnfitrion& v) {
    v.tabla->tabla().Cols(3);
    v.show();
    v.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&v));
    v.tabla->setFocus();
    manos::teclea(*v.tabla, QStringLiteral("1"));
    QVERIFY(v.tabla->tabla().mandos().editor().abierto());
}

} // namespace

void TstFoco::destruir_la_ventana_abierta_no_avisa() {
    int oidos = 0;
    auto v = std::make_unique<VentanaDeAnfitrion>(oidos);
    abre_y_escribe(*v);
    v.reset();
    QCOMPARE(oidos, 0);
}

void TstFoco::al_cerrar_el_anfitrion_lee_lo_escrito() {
    int oidos = 0;
    VentanaDeAnfitrion v(oidos);
    abre_y_escribe(v);
    v.close();
    QCOMPARE(v.al_cerrar, QStringLiteral("1"));
    QCOMPARE(oidos, 1);
}

void TstFoco::destruir_la_tabla_al_oir_el_cambio() {
    MesaQt m;
    m.al_cambiar = [&] { m.widget->deleteLater(); };
    escribe(m);
    const QPointer<QWidget> viva = m.widget;
    m.pulsa(Qt::Key_Return);
    QTRY_VERIFY(!viva);
}

void TstFoco::cambiar_de_padre_con_la_casilla_abierta() {
    MesaQt m;
    QWidget otra;
    auto* caja = new QVBoxLayout(&otra);
    escribe(m);
    caja->addWidget(m.widget);
    otra.resize(500, 300);
    otra.show();
    otra.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&otra));
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
    m.vista->setFocus();
    m.clic(2, NOMBRE);
    escribe(m, "aqui");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(2, NOMBRE), QStringLiteral("aqui"));
}

void TstFoco::desactivar_la_tabla_confirma_una_vez() {
    MesaQt m;
    escribe(m);
    m.widget->setEnabled(false);
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
    QCOMPARE(m.recoge(), QStringLiteral("CambiaCasilla"));
    m.clic(5, X);
    m.teclea("x");
    QVERIFY(!m.casilla->isVisible());
    QCOMPARE(m.recoge(), QString());
}

void TstFoco::la_tabla_toma_el_foco_por_su_rejilla() {
    MesaQt m;
    m.antes->setFocus();
    m.widget->setFocus();
    QVERIFY(m.vista->hasFocus());
}

QTEST_MAIN(TstFoco)
#include "tst_foco.moc"
