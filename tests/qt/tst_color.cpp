// SPDX-License-Identifier: MIT
// The colour picker through real events: strips by mouse and keyboard, the box, the buttons, folded and
// unfolded, the by-layer choice, where it stands, and the member that shows it.
#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "colours/selector_color.h"
#endif
#include "headless/plataforma_memoria.h"
#include "qt/ajustes_qt.h"
#include "qt/dialogo_color.h"
#include "qt/tabla_widget.h"
#include "qt/tira_muestras.h"
#include "tests/qt/manos.h"
#include "tests/qt/mesa_qt.h"

#include <QAccessible>
#include <QClipboard>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <functional>

using namespace Qlt4_Tabla;

namespace {

// The picker on the window of a host, with a user who acts while it is open.
class MesaColor {
public:
    MesaColor() {
        ventana.resize(600, 400);
        ventana.show();
        static_cast<void>(QTest::qWaitForWindowActive(&ventana));
    }

    void ejecuta(const std::function<void()>& usuario) {
        QTimer::singleShot(0, &ventana, [this, usuario] {
            dialogo = qobject_cast<VentanaColor*>(QApplication::activeModalWidget());
            QVERIFY(dialogo != nullptr);
            dialogo->activateWindow();
            QTRY_VERIFY(dialogo->isActiveWindow());
            usuario();
            if (dialogo->isVisible()) dialogo->close();
        });
        selector.C_ejecuta();
        dialogo = nullptr;
    }

    template <class W>
    [[nodiscard]] W* hijo(const char* nombre) const {
        return dialogo->findChild<W*>(QString::fromLatin1(nombre));
    }

    [[nodiscard]] TiraMuestras* tira(TiraColor cual) const {
        constexpr const char* NOMBRES[] = {"Pc_color_normal", "Pc_color_grises", "Pc_color_especial"};
        return hijo<TiraMuestras>(NOMBRES[static_cast<int>(cual)]);
    }

    [[nodiscard]] QString texto() const { return hijo<QLineEdit>("TX_color")->text(); }

    [[nodiscard]] QString error() const { return hijo<QLabel>("LB_error")->text(); }

    void boton(const char* nombre) const {
        auto* b = hijo<QPushButton>(nombre);
        manos::clic(*b, b->rect().center());
    }

    void clic_muestra(TiraColor cual, int n) const {
        manos::clic(*tira(cual), tira(cual)->rect_muestra(n).center());
    }

    void pulsa(Qt::Key tecla) const { manos::pulsa(*dialogo, tecla); }

    QWidget ventana;
    PlataformaMemoria p;
    DialogoColorQt puerto{ventana};
    F_color selector{puerto, p.mensajes, p.ajustes};
    VentanaColor* dialogo = nullptr;
};

constexpr auto NORMAL = TiraColor::Normal;
constexpr auto GRISES = TiraColor::Grises;
constexpr auto ESPECIAL = TiraColor::Especial;

} // namespace

class TstColor : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void cada_muestra_se_elige_con_el_raton();
    void la_muestra_bajo_el_raton_dice_su_nombre();
    void soltar_fuera_de_la_tira_no_elige();
    void otro_boton_del_raton_no_elige();
    void las_flechas_recorren_las_muestras();
    void arriba_y_abajo_tambien_desde_la_caja();
    void Intro_acepta();
    void Intro_acepta_tambien_desde_la_caja();
    void Intro_en_un_boton_lo_pulsa();
    void el_espacio_no_toca_lo_elegido();
    void desplegado_por_teclado_sigue_en_la_muestra();
    void Escape_y_cerrar_cancelan();
    void lo_tecleado_va_a_la_caja();
    void lo_pegado_en_la_caja_es_una_linea();
    void un_numero_de_mas_se_vuelve_siete();
    void negro_no_se_acepta();
    void plegado_tiene_su_alto_y_una_tira();
    void otros_lo_despliega();
    void desplegado_desde_el_principio();
    void el_foco_empieza_en_la_muestra_marcada();
    void por_capa();
    void sin_por_capa_no_se_ve();
    void los_rotulos_son_los_publicados();
    void recuerda_donde_estaba();
    void sin_moverlo_guarda_lo_leido();
    void fuera_de_la_pantalla_vuelve_a_ella();
    void se_lee_en_voz_alta();
    void el_miembro_lo_muestra();
};

void TstColor::cada_muestra_se_elige_con_el_raton() {
    MesaColor m;
    m.selector.C_expandir_colores(true);
    m.ejecuta([&] {
        for (const TiraColor cual : TIRAS_COLOR) {
            const auto& muestras = m.selector.tira(cual).muestras;
            for (std::size_t n = 0; n < muestras.size(); ++n) {
                m.clic_muestra(cual, static_cast<int>(n));
                QCOMPARE(m.selector.visto().indice, muestras[n].indice);
                QCOMPARE(m.texto(), QString::fromStdString(m.selector.visto().texto));
            }
        }
        m.boton("BT_aceptar");
    });
    QVERIFY(m.selector.aceptado());
    QCOMPARE(m.selector.C_color_elegido_Vb(), 0x302448); // 249, the last one
}

void TstColor::la_muestra_bajo_el_raton_dice_su_nombre() {
    MesaColor m;
    m.selector.C_expandir_colores(true);
    const auto ayuda = [&](TiraColor cual, QPoint p) {
        QHelpEvent e(QEvent::ToolTip, p, m.tira(cual)->mapToGlobal(p));
        QApplication::sendEvent(m.tira(cual), &e);
        return QToolTip::text();
    };
    m.ejecuta([&] {
        QCOMPARE(ayuda(NORMAL, m.tira(NORMAL)->rect_muestra(5).center()), QStringLiteral("magenta (6)"));
        QCOMPARE(ayuda(GRISES, m.tira(GRISES)->rect_muestra(1).center()), QStringLiteral("251"));
        QCOMPARE(ayuda(ESPECIAL, QPoint(0, 0)), QStringLiteral("18"));
        ayuda(ESPECIAL, QPoint(-1, 0));
        QTRY_VERIFY(!QToolTip::isVisible());
    });
}

void TstColor::soltar_fuera_de_la_tira_no_elige() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        manos::aprieta(*m.tira(NORMAL), QPoint(5, 5));
        manos::suelta(*m.tira(NORMAL), QPoint(5, -3));
        QCOMPARE(m.texto(), QStringLiteral("rojo"));
        manos::aprieta(*m.tira(NORMAL), QPoint(5, 5));
        manos::suelta(*m.tira(NORMAL), m.tira(NORMAL)->rect_muestra(2).center());
        QCOMPARE(m.texto(), QStringLiteral("verde")); // where the button goes up counts
    });
}

void TstColor::otro_boton_del_raton_no_elige() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        manos::clic(*m.tira(NORMAL), m.tira(NORMAL)->rect_muestra(2).center(), {}, Qt::RightButton);
        QCOMPARE(m.texto(), QStringLiteral("rojo"));
    });
}

void TstColor::las_flechas_recorren_las_muestras() {
    MesaColor m;
    m.selector.C_expandir_colores(true);
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        m.pulsa(Qt::Key_Right);
        QCOMPARE(m.texto(), QStringLiteral("amarillo"));
        m.pulsa(Qt::Key_Down);
        QCOMPARE(m.texto(), QStringLiteral("251"));
        QVERIFY(m.tira(GRISES)->hasFocus());
        m.pulsa(Qt::Key_Down);
        QCOMPARE(m.texto(), QStringLiteral("28"));
        m.pulsa(Qt::Key_Left);
        QCOMPARE(m.texto(), QStringLiteral("18"));
        m.pulsa(Qt::Key_Up);
        m.pulsa(Qt::Key_Up);
        QCOMPARE(m.texto(), QStringLiteral("rojo"));
        QVERIFY(m.tira(NORMAL)->hasFocus());
    });
}

void TstColor::arriba_y_abajo_tambien_desde_la_caja() {
    MesaColor m;
    m.selector.C_expandir_colores(true);
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        m.hijo<QLineEdit>("TX_color")->setFocus();
        m.pulsa(Qt::Key_Down);
        QCOMPARE(m.texto(), QStringLiteral("250"));
        QVERIFY(m.hijo<QLineEdit>("TX_color")->hasFocus());
        m.pulsa(Qt::Key_Left); // moves the caret
        QCOMPARE(m.texto(), QStringLiteral("250"));
    });
}

void TstColor::Intro_acepta() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        m.pulsa(Qt::Key_Right);
        m.pulsa(Qt::Key_Return);
    });
    QVERIFY(m.selector.aceptado());
    QCOMPARE(m.selector.C_color_elegido_Vb(), 0x00FFFF);
}

void TstColor::Intro_acepta_tambien_desde_la_caja() {
    MesaColor m;
    m.ejecuta([&] {
        manos::teclea(*m.dialogo, QStringLiteral("3"));
        QVERIFY(m.hijo<QLineEdit>("TX_color")->hasFocus());
        m.pulsa(Qt::Key_Return);
    });
    QVERIFY(m.selector.aceptado());
    QCOMPARE(m.selector.C_color_elegido_Vb(), 0x00FF00);
}

void TstColor::Intro_en_un_boton_lo_pulsa() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.selector.C_añadir_BT_por_Capa(true);
    m.selector.C_Por_capa(0x00FF00);
    m.ejecuta([&] {
        m.hijo<QPushButton>("BT_cancelar")->setFocus(Qt::TabFocusReason);
        m.pulsa(Qt::Key_Return);
    });
    QVERIFY(!m.selector.aceptado());
    m.ejecuta([&] {
        m.hijo<QPushButton>("BT_por_capa")->setFocus(Qt::TabFocusReason);
        m.pulsa(Qt::Key_Enter);
        QCOMPARE(m.selector.C_color_elegido_Vb(), 0x00FF00);
        m.tira(NORMAL)->setFocus(Qt::TabFocusReason); // from here Enter accepts again
        m.pulsa(Qt::Key_Return);
    });
    QVERIFY(m.selector.aceptado());
}

void TstColor::el_espacio_no_toca_lo_elegido() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        manos::teclea(*m.dialogo, QStringLiteral(" "));
        QCOMPARE(m.texto(), QStringLiteral("rojo"));
        QCOMPARE(m.selector.C_color_elegido_Vb(), 0x0000FF);
        QVERIFY(m.tira(NORMAL)->hasFocus());
    });
}

void TstColor::desplegado_por_teclado_sigue_en_la_muestra() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x000098); // 14
    m.ejecuta([&] {
        m.hijo<QPushButton>("BT_otros")->setFocus(Qt::TabFocusReason);
        m.pulsa(Qt::Key_Return);
        QVERIFY(m.selector.visto().desplegado);
        QVERIFY(m.tira(ESPECIAL)->hasFocus());
        m.pulsa(Qt::Key_Up);
        QCOMPARE(m.texto(), QStringLiteral("16"));
    });
}

void TstColor::Escape_y_cerrar_cancelan() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] { m.pulsa(Qt::Key_Escape); });
    QVERIFY(!m.selector.aceptado());
    m.ejecuta([&] { m.dialogo->close(); });
    QVERIFY(!m.selector.aceptado());
    m.ejecuta([&] { m.boton("BT_cancelar"); });
    QVERIFY(!m.selector.aceptado());
    QVERIFY(!m.selector.visto().abierto);
}

void TstColor::lo_tecleado_va_a_la_caja() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        QVERIFY(m.tira(NORMAL)->hasFocus());
        manos::teclea(*m.dialogo, QStringLiteral("azul"));
        QCOMPARE(m.texto(), QStringLiteral("azul"));
        QVERIFY(m.hijo<QLineEdit>("TX_color")->hasFocus());
        QCOMPARE(m.selector.C_color_elegido_Vb(), 0xFF0000);
        QVERIFY(m.tira(NORMAL)->tiene_marcada());
    });
}

void TstColor::lo_pegado_en_la_caja_es_una_linea() {
    MesaColor m;
    QApplication::clipboard()->setText(QStringLiteral("12\r\n13\r\n")); // two cells
    m.ejecuta([&] {
        auto* caja = m.hijo<QLineEdit>("TX_color");
        caja->setFocus();
        caja->selectAll();
        manos::pulsa(*m.dialogo, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m.texto(), QStringLiteral("12"));
    });
}

void TstColor::un_numero_de_mas_se_vuelve_siete() {
    MesaColor m;
    m.ejecuta([&] {
        manos::teclea(*m.dialogo, QStringLiteral("30"));
        QCOMPARE(m.selector.C_color_elegido_Vb(), 0x007CFF);
        manos::teclea(*m.dialogo, QStringLiteral("0"));
        QCOMPARE(m.texto(), QStringLiteral("7"));
        QCOMPARE(m.selector.C_color_elegido_Vb(), 0xFFFFFF);
        QCOMPARE(m.p.mensajes.pitidos, 0);
        m.hijo<QLineEdit>("TX_color")->selectAll();
        manos::teclea(*m.dialogo, QStringLiteral("-1"));
        QCOMPARE(m.texto(), QStringLiteral("7"));
        QCOMPARE(m.p.mensajes.pitidos, 1);
    });
}

void TstColor::negro_no_se_acepta() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0);
    m.ejecuta([&] {
        QCOMPARE(m.error(), QString());
        m.boton("BT_aceptar");
        QVERIFY(m.dialogo->isVisible());
        QCOMPARE(m.error(), QStringLiteral("Color no válido"));
        QCOMPARE(m.p.mensajes.pitidos, 1);
        m.clic_muestra(NORMAL, 4);
        QCOMPARE(m.error(), QString());
        m.boton("BT_aceptar");
    });
    QVERIFY(m.selector.aceptado());
    QCOMPARE(m.selector.C_color_elegido_Vb(), 0xFF0000);
}

void TstColor::plegado_tiene_su_alto_y_una_tira() {
    MesaColor m;
    m.ejecuta([&] {
        QCOMPARE(m.dialogo->height(), 1785 * m.dialogo->logicalDpiY() / 1440);
        QVERIFY(m.tira(NORMAL)->isVisible());
        QVERIFY(!m.tira(GRISES)->isVisible());
        QVERIFY(!m.tira(ESPECIAL)->isVisible());
    });
}

void TstColor::otros_lo_despliega() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        const QSize antes = m.dialogo->size();
        m.boton("BT_otros");
        QCoreApplication::processEvents();
        QVERIFY(m.tira(GRISES)->isVisible());
        QVERIFY(m.tira(ESPECIAL)->isVisible());
        QCOMPARE(m.dialogo->width(), antes.width());
        QVERIFY(m.dialogo->height() > antes.height() + m.tira(ESPECIAL)->height());
        QVERIFY(!m.hijo<QPushButton>("BT_otros")->isEnabled());
        QCOMPARE(m.texto(), QStringLiteral("rojo"));
        m.clic_muestra(ESPECIAL, 2 * 24); // the third row begins with 14
        QCOMPARE(m.texto(), QStringLiteral("14"));
    });
}

void TstColor::desplegado_desde_el_principio() {
    MesaColor m;
    m.selector.C_expandir_colores(true);
    m.ejecuta([&] {
        QVERIFY(m.tira(GRISES)->isVisible());
        QVERIFY(m.tira(ESPECIAL)->isVisible());
        for (const TiraColor cual : TIRAS_COLOR) QCOMPARE(m.tira(cual)->width(), m.tira(NORMAL)->width());
    });
}

void TstColor::el_foco_empieza_en_la_muestra_marcada() {
    MesaColor m;
    m.selector.C_expandir_colores(true);
    m.selector.C_color_elegido_Vb(0x000098);
    m.ejecuta([&] { QVERIFY(m.tira(ESPECIAL)->hasFocus()); });
    m.selector.C_color_elegido_Vb(0x123456);
    m.ejecuta([&] { QVERIFY(m.tira(NORMAL)->hasFocus()); });
}

void TstColor::por_capa() {
    MesaColor m;
    m.selector.C_añadir_BT_por_Capa(true);
    m.selector.C_Por_capa(0x00FF00);
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        QVERIFY(m.hijo<QLabel>("LB_por_capa")->isVisible());
        QCOMPARE(m.hijo<QLabel>("LB_por_capa")->text(), QString());
        m.boton("BT_por_capa");
        QCOMPARE(m.hijo<QLabel>("LB_por_capa")->text(), QStringLiteral("verde"));
        m.boton("BT_aceptar");
    });
    QCOMPARE(m.selector.C_color_elegido_Vb(), 0x00FF00);
    QCOMPARE(m.selector.C_NomColorAutocaD(), std::string("por capa"));
}

void TstColor::sin_por_capa_no_se_ve() {
    MesaColor m;
    m.ejecuta([&] {
        QVERIFY(!m.hijo<QPushButton>("BT_por_capa")->isVisible());
        QVERIFY(!m.hijo<QLabel>("LB_por_capa")->isVisible());
    });
}

void TstColor::los_rotulos_son_los_publicados() {
    MesaColor m;
    m.selector.C_Titulo("Elige Color:");
    m.selector.C_añadir_BT_por_Capa(true);
    m.ejecuta([&] {
        QStringList rotulos;
        for (const QLabel* l : m.dialogo->findChildren<QLabel*>())
            if (!l->text().isEmpty()) rotulos << l->text();
        for (const QPushButton* b : m.dialogo->findChildren<QPushButton*>()) rotulos << b->text();
        rotulos.sort();
        QCOMPARE(rotulos.join(QLatin1Char('|')),
            QStringLiteral(
                "Aceptar|Cancelar|Color elegido:|color capa principal :|de 1a 255|otros ...|por capa"));
        QCOMPARE(m.dialogo->windowTitle(), QStringLiteral("Elige Color:"));
    });
}

void TstColor::recuerda_donde_estaba() {
    MesaColor m;
    m.ejecuta([&] { m.dialogo->move(40, 80); });
    QCOMPARE(m.selector.visto().izquierda, 600.0F); // 15 twips a pixel
    QCOMPARE(m.selector.visto().arriba, 1200.0F);
    m.ejecuta([&] { QCOMPARE(m.dialogo->pos(), QPoint(40, 80)); });
}

void TstColor::sin_moverlo_guarda_lo_leido() {
    MesaColor m;
    m.p.ajustes.escribe("Quillet", "Tabla Color Posicion", "Left", "1007");
    m.p.ajustes.escribe("Quillet", "Tabla Color Posicion", "Top", "1000");
    m.ejecuta([] {});
    QCOMPARE(m.selector.visto().izquierda, 1007.0F);
    QCOMPARE(m.selector.visto().arriba, 1000.0F);
}

void TstColor::fuera_de_la_pantalla_vuelve_a_ella() {
    MesaColor m;
    for (const char* lejos : {"-9000000", "9000000", "1E30"}) {
        m.p.ajustes.escribe("Quillet", "Tabla Color Posicion", "Left", lejos);
        m.p.ajustes.escribe("Quillet", "Tabla Color Posicion", "Top", lejos);
        m.ejecuta([&] {
            const QRect pantalla = m.dialogo->screen()->availableGeometry();
            QVERIFY(pantalla.contains(m.dialogo->frameGeometry()));
            m.boton("BT_otros");
            QVERIFY(pantalla.contains(m.dialogo->frameGeometry()));
        });
    }
}

void TstColor::se_lee_en_voz_alta() {
    MesaColor m;
    m.selector.C_color_elegido_Vb(0x0000FF);
    m.ejecuta([&] {
        QAccessibleInterface* tira = QAccessible::queryAccessibleInterface(m.tira(NORMAL));
        QCOMPARE(tira->text(QAccessible::Name), QStringLiteral("Colores básicos"));
        QCOMPARE(tira->text(QAccessible::Description), QStringLiteral("rojo (1)"));
        m.pulsa(Qt::Key_Right);
        QCOMPARE(tira->text(QAccessible::Description), QStringLiteral("amarillo (2)"));
    });
}

void TstColor::el_miembro_lo_muestra() {
    TablaWidget widget;
    widget.show();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    const auto muestra = [&](Qt::Key ultima) {
        QTimer::singleShot(0, &widget, [ultima] {
            QWidget* dialogo = QApplication::activeModalWidget();
            dialogo->activateWindow();
            QTRY_VERIFY(dialogo->isActiveWindow());
            QCOMPARE(dialogo->windowTitle(), QStringLiteral("Elige Color:"));
            manos::teclea(*dialogo, QStringLiteral("14"));
            dialogo->move(30, 60);
            manos::pulsa(*dialogo, ultima);
        });
        return widget.tabla().Show_Elige_Color(0x0000FF);
    };
    QCOMPARE(muestra(Qt::Key_Return), 0x000098);
    QCOMPARE(muestra(Qt::Key_Escape), 0x0000FF);
    QCOMPARE(AjustesQt().lee("Quillet", "Tabla Color Posicion", "Left"), std::string("450"));
    QCOMPARE(AjustesQt().lee("Quillet", "Tabla Color Posicion", "Top"), std::string("900"));
}

// The user's own settings are left alone.
int main(int argc, char** argv) {
    const QTemporaryDir carpeta;
    qputenv("XDG_CONFIG_HOME", carpeta.path().toLocal8Bit());
    QApplication app(argc, argv);
    TstColor tst;
    return QTest::qExec(&tst, argc, argv);
}

#include "tst_color.moc"
