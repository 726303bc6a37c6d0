// SPDX-License-Identifier: MIT
// Menus and toolbar as widgets: what they show, how the keyboard reaches them, what becomes of an open menu when
// its table goes. What they do is in the scenario scripts.
#include "qt/barra_tabla.h"
#include "tests/qt/mesa_qt.h"

#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QPointer>
#include <QShortcut>
#include <QTimer>
#include <QToolButton>

using namespace Qlt4_Tabla;

class TstMenus : public QObject {
    Q_OBJECT

private slots:
    void init() { QApplication::clipboard()->clear(); }

    void el_menu_muestra_sus_titulos_y_atajos();
    void el_nombre_de_la_tabla_se_ve_como_es();
    void pegar_esta_apagado_sin_texto();
    void la_marca_del_avance_se_ve();
    void los_textos_de_las_celdas_se_ven_como_son();
    void los_colores_tienen_su_muestra();
    void el_menu_de_una_celda_fuera_de_la_vista_sale_dentro();
    void Escape_cierra_y_el_foco_queda_en_la_rejilla();
    void con_el_menu_abierto_la_rejilla_no_parece_sin_foco();
    void ocultar_la_tabla_cierra_su_menu();
    void destruir_la_tabla_con_el_menu_abierto();
    void el_anfitrion_destruye_la_tabla_al_oir_Salir();
    void el_anfitrion_destruye_la_tabla_al_pulsar_un_boton();
    void la_barra_muestra_ayudas_y_huecos();
    void cada_boton_tiene_su_dibujo();
    void la_barra_sigue_al_avance();
    void los_modos_esconden_botones();
    void el_raton_en_la_barra_no_quita_el_foco_a_la_casilla();
    void Alt_F10_lleva_a_la_barra_y_Escape_vuelve();
    void las_flechas_recorren_la_barra();
    void los_iconos_siguen_a_la_paleta();
    void la_rejilla_reclama_sus_teclas_de_menu_y_no_F10();
    void una_orden_con_mensaje_no_toca_un_menu_muerto();
    void destruir_la_tabla_con_un_dialogo_abierto_data();
    void destruir_la_tabla_con_un_dialogo_abierto();
    void dos_tablas_abren_cada_una_su_menu();
};

namespace {

QMenu* abierto(const MesaQt& m) {
    for (QMenu* menu : m.vista->findChildren<QMenu*>())
        if (menu->isVisible()) return menu;
    return nullptr;
}

QAction* accion(const QMenu& menu, const char* nombre) {
    return menu.findChild<QAction*>(QString::fromUtf8(nombre));
}

QMenu* abre(MesaQt& m) {
    m.pulsa(Qt::Key_Menu);
    return abierto(m);
}

QToolButton* boton(const MesaQt& m, const char* clave) {
    return m.widget->findChild<QToolButton*>(QString::fromLatin1(clave));
}

QStringList titulos(const QMenu& menu) {
    QStringList t;
    for (const QAction* a : menu.actions()) t << (a->isSeparator() ? QStringLiteral("-") : a->text());
    return t;
}

int pintados(const QImage& imagen) {
    int n = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) n += imagen.pixelColor(x, y).alpha() > 0 ? 1 : 0;
    return n;
}

// Several cells of one column, by the mouse.
QMenu* selecciona(MesaQt& m, int fila1, int fila2, int col) {
    manos::arrastra(*m.vista->viewport(), m.vista->rect_celda(fila1, col).center(),
        m.vista->rect_celda(fila2, col).center());
    return abierto(m);
}

} // namespace

void TstMenus::el_menu_muestra_sus_titulos_y_atajos() {
    MesaQt m;
    m.tabla().Tablero_Nombres("Obra", "Puntos", "*.tb0");
    QMenu* menu = abre(m);
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->objectName(), QStringLiteral("mn_raton"));
    QCOMPARE(titulos(*menu).mid(0, 7),
        QStringList({"&Deshacer", "Reh&acer", "-", "Cortar", "Copiar", "Pegar", "Especiales"}));
    QCOMPARE(accion(*menu, "Mnu_Tabla_Leer")->text(), QStringLiteral("Abrir Tabla de Obra..."));
    QCOMPARE(accion(*menu, "mn_Deshacer")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Z));
    QCOMPARE(accion(*menu, "mn_cortar")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_X));
    QCOMPARE(accion(*menu, "mn_copiar")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_C));
    QCOMPARE(accion(*menu, "mn_Pegar")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_V));
    QVERIFY(accion(*menu, "mn_copiar")->isShortcutVisibleInContextMenu());
    QVERIFY(accion(*menu, "mn_Filas")->font().bold());
    QCOMPARE(menu->activeAction()->objectName(), QStringLiteral("mn_Deshacer"));
}

void TstMenus::el_nombre_de_la_tabla_se_ve_como_es() {
    MesaQt m;
    m.tabla().Tablero_Nombres("Agua & Gas", "Puntos", "*.tb0");
    QMenu* menu = abre(m);
    QCOMPARE(accion(*menu, "Mnu_Tabla_Leer")->text(), QStringLiteral("Abrir Tabla de Agua && Gas..."));
    QCOMPARE(accion(*menu, "Mnu_Tabla_Guardar_como")->text(),
        QStringLiteral("Guardar Tabla de Agua && Gas como..."));
}

void TstMenus::pegar_esta_apagado_sin_texto() {
    MesaQt m;
    QMenu* menu = abre(m);
    QVERIFY(!accion(*menu, "mn_Pegar")->isEnabled());
    QVERIFY(!accion(*menu, "mn_pegar_al_final")->isEnabled());
    QVERIFY(accion(*menu, "mn_copiar")->isEnabled());
    manos::pulsa(*menu, Qt::Key_Escape);
    QApplication::clipboard()->setText(QStringLiteral("1"));
    QVERIFY(accion(*abre(m), "mn_Pegar")->isEnabled());
}

void TstMenus::la_marca_del_avance_se_ve() {
    MesaQt m;
    QMenu* menu = abre(m);
    QVERIFY(!accion(*menu, "MN_avance_horizontal")->isChecked());
    accion(*menu, "MN_avance_horizontal")->trigger();
    menu->close();
    QCoreApplication::processEvents();
    QVERIFY(accion(*abre(m), "MN_avance_horizontal")->isChecked());
}

void TstMenus::los_textos_de_las_celdas_se_ven_como_son() {
    MesaQt m;
    m.tabla().TextMatrix(1, NOMBRE, "R&D\t1");
    QMenu* menu = selecciona(m, 1, 3, NOMBRE);
    QVERIFY(menu != nullptr);
    QCOMPARE(
        titulos(*menu), QStringList({"Cancelar", "-", "Repetir  <R&&D 1>", "Incrementar en 1  <R&&D 1>"}));
    menu->actions().at(2)->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(m.celda(3, NOMBRE), QStringLiteral("R&D\t1"));
}

void TstMenus::los_colores_tienen_su_muestra() {
    MesaQt m;
    QMenu* menu = selecciona(m, 1, 3, COLOR);
    QVERIFY(menu != nullptr);
    const QImage verde = menu->actions().at(4)->icon().pixmap(16).toImage();
    QCOMPARE(verde.pixelColor(verde.width() / 2, verde.height() / 2), QColor(0, 255, 0));
    QVERIFY(menu->actions().at(0)->icon().isNull());
    QVERIFY(menu->actions().last()->icon().isNull()); // "Otro...."
}

void TstMenus::el_menu_de_una_celda_fuera_de_la_vista_sale_dentro() {
    MesaQt m(200);
    m.tabla().A_RowTop(150);
    QMenu* menu = abre(m);
    QVERIFY(menu != nullptr);
    const QRect vista(m.vista->viewport()->mapToGlobal(QPoint()), m.vista->viewport()->size());
    QVERIFY(vista.intersects(menu->geometry()));
}

void TstMenus::Escape_cierra_y_el_foco_queda_en_la_rejilla() {
    MesaQt m;
    QMenu* menu = abre(m);
    manos::pulsa(*menu, Qt::Key_Escape);
    QVERIFY(abierto(m) == nullptr);
    QVERIFY(m.vista->hasFocus());
    QCOMPARE(m.recoge(), QString()); // Escape was the menu's: no Salir
}

void TstMenus::con_el_menu_abierto_la_rejilla_no_parece_sin_foco() {
    MesaQt m;
    const QImage antes = m.vista->grab().toImage();
    QVERIFY(abre(m) != nullptr);
    QCOMPARE(m.vista->grab().toImage(), antes);
}

void TstMenus::ocultar_la_tabla_cierra_su_menu() {
    MesaQt m;
    QVERIFY(abre(m) != nullptr);
    m.widget->hide();
    QVERIFY(abierto(m) == nullptr);
}

void TstMenus::destruir_la_tabla_con_el_menu_abierto() {
    MesaQt m;
    QPointer<QMenu> menu = abre(m);
    QVERIFY(menu != nullptr);
    delete m.widget;
    QVERIFY(menu.isNull());
    QVERIFY(QApplication::activePopupWidget() == nullptr);
}

void TstMenus::el_anfitrion_destruye_la_tabla_al_oir_Salir() {
    MesaQt m;
    QObject::connect(m.widget, &TablaWidget::Salir, m.widget, &QObject::deleteLater);
    QPointer<TablaWidget> tabla = m.widget;
    QMenu* menu = abre(m);
    QAction* salir = accion(*menu, "mn_salir");
    manos::clic(*menu, menu->actionGeometry(salir).center());
    QCoreApplication::processEvents();
    QCOMPARE(m.recoge(), QStringLiteral("Salir"));
    QTRY_VERIFY(tabla.isNull());
}

void TstMenus::el_anfitrion_destruye_la_tabla_al_pulsar_un_boton() {
    MesaQt m;
    QPointer<TablaWidget> tabla = m.widget;
    QObject::connect(m.widget, &TablaWidget::CambiaCasilla, m.widget, [&m] { m.widget->deleteLater(); });
    m.teclea(QStringLiteral("dato"));
    manos::clic(*boton(m, "Avance"), boton(m, "Avance")->rect().center());
    QTRY_VERIFY(tabla.isNull());
}

void TstMenus::la_barra_muestra_ayudas_y_huecos() {
    MesaQt m;
    const auto ayuda = [&](const char* clave) { return boton(m, clave)->toolTip(); };
    QCOMPARE(ayuda("Copiar"), QStringLiteral("Copiar todo"));
    QCOMPARE(ayuda("Pegar"), QStringLiteral("Pegar"));
    QCOMPARE(ayuda("Excel"), QStringLiteral("Copiar en Excel"));
    QCOMPARE(ayuda("Propiedades"), QStringLiteral("Opciones"));
    QCOMPARE(ayuda("Avance"), QStringLiteral("Tipo de avance al introducir datos"));
    QCOMPARE(boton(m, "Copiar")->accessibleName(), QStringLiteral("Copiar todo"));
    for (const char* hueco : {"c1", "p1", "e1", "pr1"}) {
        const auto* w = m.widget->findChild<QWidget*>(QString::fromLatin1(hueco));
        QVERIFY(w != nullptr && w->isVisible() && w->width() < boton(m, "Copiar")->width() / 2);
    }
}

void TstMenus::cada_boton_tiene_su_dibujo() {
    MesaQt m;
    QList<QImage> dibujos{boton(m, "Avance")->icon().pixmap(24, QIcon::Normal, QIcon::On).toImage()};
    for (const char* clave : {"Copiar", "Pegar", "Excel", "Propiedades", "Avance"}) {
        const QImage dibujo = boton(m, clave)->icon().pixmap(24).toImage();
        QVERIFY(pintados(dibujo) > 40 && !dibujos.contains(dibujo));
        dibujos << dibujo;
    }
}

void TstMenus::la_barra_sigue_al_avance() {
    MesaQt m;
    QVERIFY(!boton(m, "Avance")->isChecked());
    QMenu* menu = abre(m);
    accion(*menu, "MN_avance_horizontal")->trigger();
    menu->close();
    QCoreApplication::processEvents();
    QVERIFY(boton(m, "Avance")->isChecked());
    manos::clic(*boton(m, "Avance"), boton(m, "Avance")->rect().center());
    QVERIFY(!boton(m, "Avance")->isChecked());
    QVERIFY(!accion(*abre(m), "MN_avance_horizontal")->isChecked());
}

void TstMenus::los_modos_esconden_botones() {
    MesaQt m;
    m.tabla().A_Especial_puntos_ON();
    QVERIFY(boton(m, "Pegar")->isHidden());
    QVERIFY(!boton(m, "Copiar")->isHidden());
    QVERIFY(m.widget->findChild<QWidget*>(QStringLiteral("p1"))->isHidden());
    m.tabla().A_Edicion_Columnas_Off();
    QVERIFY(m.widget->findChild<QWidget*>(QStringLiteral("c1"))->isHidden());
    QVERIFY(m.widget->findChild<QWidget*>(QStringLiteral("e1"))->isHidden());
    QVERIFY(!boton(m, "Excel")->isHidden());
}

void TstMenus::el_raton_en_la_barra_no_quita_el_foco_a_la_casilla() {
    MesaQt m;
    m.teclea(QStringLiteral("dato"));
    QWidget* barra = m.widget->findChild<QWidget*>(QStringLiteral("toolBar"));
    manos::clic(*barra, QPoint(barra->width() - 3, barra->height() / 2)); // beside the buttons
    QVERIFY(m.casilla->hasFocus());
    manos::clic(*boton(m, "Avance"), boton(m, "Avance")->rect().center());
    QVERIFY(!m.casilla->isVisible() && m.vista->hasFocus());
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("dato"));
}

void TstMenus::Alt_F10_lleva_a_la_barra_y_Escape_vuelve() {
    MesaQt m;
    m.pulsa(Qt::Key_F10, Qt::AltModifier);
    QVERIFY(boton(m, "Copiar")->hasFocus());
    m.pulsa(Qt::Key_Escape);
    QVERIFY(m.vista->hasFocus());
    m.pulsa(Qt::Key_F10, Qt::AltModifier);
    m.pulsa(Qt::Key_Tab);
    QVERIFY(m.vista->hasFocus());
    QCOMPARE(m.recoge(), QString());
}

void TstMenus::las_flechas_recorren_la_barra() {
    MesaQt m;
    m.tabla().A_Especial_puntos_ON();
    m.pulsa(Qt::Key_F10, Qt::AltModifier);
    m.pulsa(Qt::Key_Right);
    QVERIFY(boton(m, "Excel")->hasFocus()); // "Pegar" is hidden
    m.pulsa(Qt::Key_Left);
    m.pulsa(Qt::Key_Left);
    QVERIFY(boton(m, "Avance")->hasFocus());
    m.pulsa(Qt::Key_Space);
    QVERIFY(boton(m, "Avance")->isChecked());
    QVERIFY(m.vista->hasFocus());
}

void TstMenus::los_iconos_siguen_a_la_paleta() {
    MesaQt m;
    const QImage clara = boton(m, "Copiar")->icon().pixmap(24).toImage();
    QPalette oscura = m.widget->palette();
    oscura.setColor(QPalette::ButtonText, Qt::white);
    oscura.setColor(QPalette::Base, QColor(40, 40, 40));
    m.widget->setPalette(oscura);
    QVERIFY(boton(m, "Copiar")->icon().pixmap(24).toImage() != clara);
}

void TstMenus::la_rejilla_reclama_sus_teclas_de_menu_y_no_F10() {
    MesaQt m;
    int ajenas = 0;
    for (const QKeySequence& s : {QKeySequence(Qt::SHIFT | Qt::Key_F10), QKeySequence(Qt::ALT | Qt::Key_F10),
             QKeySequence(Qt::Key_Menu), QKeySequence(Qt::Key_F10), QKeySequence(Qt::CTRL | Qt::Key_F10)})
        QObject::connect(new QShortcut(s, &m.ventana), &QShortcut::activated, [&] { ++ajenas; });
    m.pulsa(Qt::Key_F10, Qt::AltModifier);
    m.pulsa(Qt::Key_Escape);
    m.pulsa(Qt::Key_F10, Qt::ShiftModifier);
    QVERIFY(abierto(m) != nullptr);
    manos::pulsa(*abierto(m), Qt::Key_Escape);
    QVERIFY(abre(m) != nullptr);
    manos::pulsa(*abierto(m), Qt::Key_Escape);
    QCOMPARE(ajenas, 0);
    m.pulsa(Qt::Key_F10);
    m.pulsa(Qt::Key_F10, Qt::ControlModifier);
    QCOMPARE(ajenas, 2);
}

void TstMenus::una_orden_con_mensaje_no_toca_un_menu_muerto() {
    MesaQt m;
    QPointer<QMenu> menu = abre(m);
    QAction* copiar = accion(*menu, "mn_salir");
    bool vivo = true;
    QObject::connect(m.widget, &TablaWidget::Salir, [&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // as a dialog's loop may
        vivo = !menu.isNull();
    });
    manos::clic(*menu, menu->actionGeometry(copiar).center());
    QCoreApplication::processEvents();
    QVERIFY(!vivo);
}

void TstMenus::destruir_la_tabla_con_un_dialogo_abierto_data() {
    QTest::addColumn<int>("cual");
    QTest::newRow("columns") << 0;
    QTest::newRow("open a file") << 1;
    QTest::newRow("save a file") << 2;
    QTest::newRow("colours") << 3;
}

// As a host's window that is closed under the dialog and deletes itself.
void TstMenus::destruir_la_tabla_con_un_dialogo_abierto() {
    QFETCH(const int, cual);
    MesaQt m;
    QPointer<TablaWidget> tabla = m.widget;
    bool visto = false;
    QTimer::singleShot(50, &m.ventana, [&] {
        m.widget->deleteLater();
        if (QWidget* dialogo = QApplication::activeModalWidget()) {
            visto = true;
            dialogo->close();
        }
    });
    switch (cual) {
    case 0: m.tabla().mandos().orden(Opcion::MN_editor_de_columnas); break;
    case 1: m.tabla().mandos().orden(Opcion::Mnu_Tabla_Leer); break;
    case 2: m.tabla().mandos().orden(Opcion::Mnu_Tabla_Guardar_como); break;
    default: static_cast<void>(m.tabla().Show_Elige_Color(255)); break;
    }
    QVERIFY(visto);
    QTRY_VERIFY(tabla.isNull());
}

void TstMenus::dos_tablas_abren_cada_una_su_menu() {
    MesaQt m;
    TablaWidget otra(&m.ventana);
    m.ventana.layout()->addWidget(&otra);
    QCoreApplication::processEvents();
    m.tabla().Tablero_Nombres("Una", "u", "*.tb0");
    otra.tabla().Tablero_Nombres("Otra", "o", "*.tb0");
    QMenu* menu = abre(m);
    QCOMPARE(accion(*menu, "Mnu_Tabla_Leer")->text(), QStringLiteral("Abrir Tabla de Una..."));
    manos::pulsa(*menu, Qt::Key_Escape);
    otra.setFocus();
    m.pulsa(Qt::Key_Menu);
    QVERIFY(abierto(m) == nullptr);
    QMenu* suyo = nullptr;
    for (QMenu* uno : otra.findChildren<QMenu*>())
        if (uno->isVisible()) suyo = uno;
    QVERIFY(suyo != nullptr);
    QCOMPARE(accion(*suyo, "Mnu_Tabla_Leer")->text(), QStringLiteral("Abrir Tabla de Otra..."));
}

QTEST_MAIN(TstMenus)

#include "tst_menus.moc"
