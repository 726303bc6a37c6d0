// SPDX-License-Identifier: MIT
// The column editor through real events: the grid by mouse and keyboard, the text box, menu, buttons and check
// boxes, applied to a table on a window. Its layout and place: tst_columnas_sitio.cpp.
#include "tests/qt/manos.h"
#include "tests/qt/mesa_columnas.h"

#include <QLabel>
#include <QScrollBar>

#include <utility>

using namespace Qlt4_Tabla;

class TstColumnas : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void se_ve_lo_publicado();
    void ocultar_renombrar_ensanchar_girar_y_aplicar();
    void se_abre_desde_el_menu_de_la_tabla();
    void tras_aplicar_se_abre_otra_vez();
    void salir_no_cambia_nada_data();
    void salir_no_cambia_nada();
    void reponer_por_el_menu();
    void aplicar_por_el_menu();
    void las_marcas_de_la_columna_0();
    void la_casilla_se_abre_sobre_su_celda_con_todo_marcado();
    void una_tecla_abre_la_casilla_con_ella();
    void en_el_ancho_solo_entran_cifras();
    void en_los_decimales_entra_todo();
    void Escape_cierra_la_casilla_y_luego_la_ventana();
    void otra_celda_otro_control_y_el_fondo_escriben();
    void aplicar_toma_lo_que_se_escribe();
    void Intro_actua_una_vez_y_no_cierra();
    void clics_rapidos_cuentan_todos();
    void las_teclas_recorren_la_rejilla();
    void el_tabulador_recorre_los_controles();
    void Intro_en_un_boton_lo_pulsa();
    void Intro_en_una_marca_no_hace_nada();
    void muchas_columnas_se_desplazan_y_la_casilla_con_ellas();
    void lo_tecleado_fuera_de_la_vista_vuelve_a_verse();
    void en_una_ventana_mayor_vuelven_las_filas();
    void un_ancho_imposible_dice_error_6();
    void un_error_en_el_clic_sale_sobre_la_ventana();
    void se_lee_en_voz_alta();
};

void TstColumnas::se_ve_lo_publicado() {
    MesaColumnas m;
    m.edita({[&] {
        QCOMPARE(m.dialogo->windowTitle(), QStringLiteral("Configuración de columnas:Puntos"));
        QCOMPARE(m.hijo<QPushButton>("butAplicarCambios")->text(), QStringLiteral("Aplicar Cambios"));
        QCOMPARE(m.hijo<QPushButton>("ButCancelar")->text(), QStringLiteral("Salir"));
        QCOMPARE(m.hijo<QCheckBox>("chkEtiquetaNfilas")->text(), QStringLiteral("Nº de filas Puntos"));
        QCOMPARE(m.hijo<QAction>("mn_editor_aplicar")->text(), QStringLiteral("Aplicar Cambios"));
        QCOMPARE(m.hijo<QAction>("MN_editor_de_columnas_por_defecto")->text(),
            QStringLiteral("Reponer valores originales"));
        QCOMPARE(m.hijo<QAction>("mn_editor_salir")->text(), QStringLiteral("Salir"));
        QVERIFY(m.hijo<QCheckBox>("chkColumna0")->isChecked());
        QVERIFY(!m.hijo<QCheckBox>("chkEtiquetaNfilas")->isChecked());
        QVERIFY(!m.puede_aplicar());
        QVERIFY(m.rejilla()->hasFocus());
        QCOMPARE(m.dice(F_OCULTA, ED_VISIBLE), QStringLiteral("No"));
        QCOMPARE(m.dice(F_FIJA, ED_BLOQUEADA), QStringLiteral("Si"));
    }});
}

void TstColumnas::ocultar_renombrar_ensanchar_girar_y_aplicar() {
    MesaColumnas m;
    m.pon(1, X, "1.5");
    m.edita({[&] {
                 m.clic_celda(F_COLOR, ED_VISIBLE);
                 m.escribe(F_X, ED_NOMBRE, "Este (m)");
                 m.escribe(F_X, ED_ANCHO, "20");
                 m.escribe(F_X, ED_DECIMALES, "1");
                 for (int i = 0; i < 2; ++i) m.clic_celda(F_X, ED_ALINEACION);
                 for (int i = 0; i < 3; ++i) m.clic_celda(F_N, ED_ACCION);
                 m.clic_celda(F_N, ED_BLOQUEADA);
                 QCOMPARE(m.celda(0, X), QStringLiteral("X")); // nothing yet
                 QVERIFY(m.puede_aplicar());
                 m.aplica();
             },
        [] {}});
    QCOMPARE(m.tablero().ColWidth(COLOR), 0);
    QCOMPARE(m.celda(0, X), QStringLiteral("Este (m)"));
    QCOMPARE(m.tablero().ColWidth(X), 2400);
    QCOMPARE(m.vista->rect_celda(1, X).width(), 160);
    QCOMPARE(m.celda(1, X), QStringLiteral("1.5"));
    QCOMPARE(m.tablero().ColAlignment(X), AlineacionCelda::Centro);
    QCOMPARE(m.formato(N).Accion, std::int16_t{3});
    QCOMPARE(m.tablero().color_fondo(0, N), 0xE0E0E0);
}

void TstColumnas::se_abre_desde_el_menu_de_la_tabla() {
    MesaColumnas m;
    const auto por_menu = [&] {
        manos::clic(*m.vista->viewport(), m.centro(1, X), {}, Qt::RightButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        for (QAction* accion : menu->actions())
            if (accion->text() == QStringLiteral("Configuración..."))
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(accion).center());
        QCoreApplication::processEvents(); // the command runs when the menu is gone
    };
    m.edita({[&] {
                 m.clic_celda(F_X, ED_VISIBLE);
                 m.aplica();
             },
                [&] { QCOMPARE(m.dice(F_X, ED_VISIBLE), QStringLiteral("No")); }},
        por_menu);
    QVERIFY(m.formato(X).Invisible);
}

void TstColumnas::tras_aplicar_se_abre_otra_vez() {
    MesaColumnas m;
    m.edita({[&] {
                 m.escribe(F_X, ED_NOMBRE, "Este");
                 m.aplica();
             },
        [&] {
            QCOMPARE(m.dice(F_X, ED_NOMBRE), QStringLiteral("Este"));
            QCOMPARE(m.celda(0, X), QStringLiteral("Este"));
            QVERIFY(!m.puede_aplicar());
            m.clic_celda(F_X, ED_VISIBLE);
            m.aplica();
        },
        [&] {
            m.clic_celda(F_N, ED_VISIBLE);
            m.boton("ButCancelar");
        }});
    QVERIFY(m.formato(X).Invisible);
    QVERIFY(!m.formato(N).Invisible);
}

void TstColumnas::salir_no_cambia_nada_data() {
    QTest::addColumn<int>("como");
    QTest::newRow("button") << 0;
    QTest::newRow("menu") << 1;
    QTest::newRow("Escape") << 2;
    QTest::newRow("closed") << 3;
}

void TstColumnas::salir_no_cambia_nada() {
    QFETCH(int, como);
    MesaColumnas m;
    const auto antes = m.tabla().estado().Formatos;
    m.edita({[&] {
        m.clic_celda(F_X, ED_VISIBLE);
        m.escribe(F_N, ED_NOMBRE, "Otro");
        if (como == 0) m.boton("ButCancelar");
        if (como == 1) m.menu("mn_editor_salir");
        if (como == 2) m.pulsa_ed(Qt::Key_Escape);
        if (como == 3) m.dialogo->close();
    }});
    QCOMPARE(m.tabla().estado().Formatos, antes);
}

void TstColumnas::reponer_por_el_menu() {
    MesaColumnas m;
    m.edita({[&] {
                 m.escribe(F_X, ED_NOMBRE, "Este");
                 m.clic_celda(F_N, ED_VISIBLE);
                 m.menu("MN_editor_de_columnas_por_defecto");
             },
        [&] { QCOMPARE(m.dice(F_X, ED_NOMBRE), QStringLiteral("X")); }});
    QCOMPARE(m.celda(0, X), QStringLiteral("X"));
    QVERIFY(m.formato(N).Invisible); // the click stays
}

void TstColumnas::aplicar_por_el_menu() {
    MesaColumnas m;
    m.edita({[&] {
                 m.clic_celda(F_X, ED_VISIBLE);
                 m.menu("mn_editor_aplicar");
             },
        [] {}});
    QVERIFY(m.formato(X).Invisible);
}

void TstColumnas::las_marcas_de_la_columna_0() {
    MesaColumnas m;
    m.edita({[&] {
                 m.marca("chkColumna0");
                 QVERIFY(m.puede_aplicar());
                 m.marca("chkEtiquetaNfilas");
                 m.aplica();
             },
        [&] {
            QVERIFY(!m.hijo<QCheckBox>("chkColumna0")->isChecked());
            QVERIFY(m.hijo<QCheckBox>("chkEtiquetaNfilas")->isChecked());
            QVERIFY(!m.puede_aplicar());
        }});
    QCOMPARE(m.tablero().ColWidth(0), 0);
    QCOMPARE(m.label("labNumeroFilas")->text(), QStringLiteral("Puntos: Nº de filas = 4"));
}

void TstColumnas::la_casilla_se_abre_sobre_su_celda_con_todo_marcado() {
    MesaColumnas m;
    m.edita({[&] {
        m.clic_celda(F_X, ED_NOMBRE);
        QVERIFY(m.caja()->isVisible());
        QVERIFY(m.caja()->hasFocus());
        QCOMPARE(m.caja()->selectedText(), QStringLiteral("X"));
        QCOMPARE(m.caja()->geometry(), m.rejilla()->rect_celda(F_X, ED_NOMBRE).adjusted(2, 2, -2, -2));
        m.pulsa_ed(Qt::Key_Escape);
        QVERIFY(!m.caja()->isVisible());
        QVERIFY(m.rejilla()->hasFocus());
        m.pulsa_ed(Qt::Key_F2);
        QVERIFY(m.caja()->hasFocus());
    }});
}

void TstColumnas::una_tecla_abre_la_casilla_con_ella() {
    MesaColumnas m;
    m.edita({[&] {
        m.clic_celda(F_X, ED_NOMBRE);
        m.pulsa_ed(Qt::Key_Escape);
        m.teclea_ed("-+.");
        QVERIFY(!m.caja()->isVisible());
        m.teclea_ed("Co\xC3\xB1\xC3\xA1 3");
        QCOMPARE(m.caja()->text(), QStringLiteral("Coñá 3"));
        m.pulsa_ed(Qt::Key_Return);
        QCOMPARE(m.dice(F_X, ED_NOMBRE), QStringLiteral("Coñá 3"));
        QVERIFY(m.rejilla()->hasFocus());
    }});
}

void TstColumnas::en_el_ancho_solo_entran_cifras() {
    MesaColumnas m;
    m.edita({[&] {
        m.clic_celda(F_X, ED_ANCHO);
        m.teclea_ed("a4.-+9 9");
        QCOMPARE(m.caja()->text(), QStringLiteral("499"));
        m.pulsa_ed(Qt::Key_Backspace);
        QCOMPARE(m.caja()->text(), QStringLiteral("49"));
        m.teclea_ed("9");
        m.pulsa_ed(Qt::Key_Return);
        QCOMPARE(m.dice(F_X, ED_ANCHO), QStringLiteral("499"));
        m.escribe(F_X, ED_ANCHO, "500");
        QCOMPARE(m.dice(F_X, ED_ANCHO), QStringLiteral("499"));
    }});
}

void TstColumnas::en_los_decimales_entra_todo() {
    MesaColumnas m;
    m.edita({[&] {
                 m.clic_celda(F_X, ED_DECIMALES);
                 m.teclea_ed("2.6");
                 QCOMPARE(m.caja()->text(), QStringLiteral("2.6"));
                 m.pulsa_ed(Qt::Key_Return);
                 m.aplica();
             },
        [&] { QCOMPARE(m.dice(F_X, ED_DECIMALES), QStringLiteral("3")); }});
}

void TstColumnas::Escape_cierra_la_casilla_y_luego_la_ventana() {
    MesaColumnas m;
    m.edita({[&] {
        const QPointer<VentanaColumnas> esta = m.dialogo;
        m.clic_celda(F_X, ED_NOMBRE);
        m.teclea_ed("Este");
        m.pulsa_ed(Qt::Key_Escape);
        QVERIFY(esta->isVisible());
        QCOMPARE(m.dice(F_X, ED_NOMBRE), QStringLiteral("X"));
        m.pulsa_ed(Qt::Key_Escape);
        QVERIFY(!esta || !esta->isVisible());
    }});
}

void TstColumnas::otra_celda_otro_control_y_el_fondo_escriben() {
    MesaColumnas m;
    m.edita({[&] {
        m.clic_celda(F_X, ED_NOMBRE);
        m.teclea_ed("A");
        m.clic_celda(F_N, ED_BLOQUEADA);
        QCOMPARE(m.dice(F_X, ED_NOMBRE), QStringLiteral("A"));
        QCOMPARE(m.dice(F_N, ED_BLOQUEADA), QStringLiteral("Si"));
        m.clic_celda(F_X, ED_NOMBRE);
        m.teclea_ed("B");
        m.pulsa_ed(Qt::Key_Tab);
        QCOMPARE(m.dice(F_X, ED_NOMBRE), QStringLiteral("B"));
        QVERIFY(m.hijo<QCheckBox>("chkColumna0")->hasFocus());
        m.clic_celda(F_X, ED_NOMBRE);
        m.teclea_ed("C");
        QLabel* fondo = m.hijo<QLabel>("labMensaje");
        manos::clic(*fondo, fondo->rect().center());
        QCOMPARE(m.dice(F_X, ED_NOMBRE), QStringLiteral("C"));
    }});
}

// The button is not enabled before the first change is written: the first click beside the box writes it.
void TstColumnas::aplicar_toma_lo_que_se_escribe() {
    MesaColumnas m;
    m.edita({[&] {
                 m.clic_celda(F_X, ED_NOMBRE);
                 m.teclea_ed("Este");
                 QVERIFY(!m.puede_aplicar());
                 m.aplica();
                 QVERIFY(m.puede_aplicar());
                 m.clic_celda(F_N, ED_NOMBRE);
                 m.teclea_ed("Norte");
                 m.aplica();
             },
        [] {}});
    QCOMPARE(m.celda(0, X), QStringLiteral("Este"));
    QCOMPARE(m.celda(0, N), QStringLiteral("Norte"));
}

void TstColumnas::Intro_actua_una_vez_y_no_cierra() {
    MesaColumnas m;
    m.edita({[&] {
        m.clic_celda(F_X, ED_ALINEACION); // from right to left
        m.pulsa_ed(Qt::Key_Return);
        QCOMPARE(m.dice(F_X, ED_ALINEACION), QStringLiteral("Centrado"));
        m.pulsa_ed(Qt::Key_Enter);
        QCOMPARE(m.dice(F_X, ED_ALINEACION), QStringLiteral("Derecha"));
        m.pulsa_ed(Qt::Key_Space);
        QCOMPARE(m.dice(F_X, ED_ALINEACION), QStringLiteral("Izquierda"));
        m.teclea_ed("aSi5");
        QCOMPARE(m.dice(F_X, ED_ALINEACION), QStringLiteral("Izquierda"));
        QVERIFY(m.dialogo->isVisible());
    }});
}

void TstColumnas::clics_rapidos_cuentan_todos() {
    MesaColumnas m;
    m.edita({[&] {
        manos::doble_clic(*m.rejilla()->viewport(), m.rejilla()->rect_celda(F_N, ED_ACCION).center());
        QCOMPARE(m.dice(F_N, ED_ACCION), QStringLiteral("Increm"));
        manos::clic(
            *m.rejilla()->viewport(), m.rejilla()->rect_celda(F_N, ED_ACCION).center(), {}, Qt::RightButton);
        QCOMPARE(m.dice(F_N, ED_ACCION), QStringLiteral("Increm"));
    }});
}

void TstColumnas::las_teclas_recorren_la_rejilla() {
    MesaColumnas m;
    m.edita({[&] {
        for (const auto tecla : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right})
            m.pulsa_ed(tecla);
        m.teclea_ed("15");
        QCOMPARE(m.caja()->text(), QStringLiteral("15"));
        m.pulsa_ed(Qt::Key_Return);
        QCOMPARE(m.dice(F_X, ED_ANCHO), QStringLiteral("15"));
        m.pulsa_ed(Qt::Key_End);
        m.pulsa_ed(Qt::Key_Space);
        QCOMPARE(m.dice(F_X, ED_ACCION), QStringLiteral("Repite"));
        m.pulsa_ed(Qt::Key_Home);
        m.pulsa_ed(Qt::Key_Right);
        m.pulsa_ed(Qt::Key_F2);
        QCOMPARE(m.dice(F_X, ED_VISIBLE), QStringLiteral("No"));
    }});
}

void TstColumnas::el_tabulador_recorre_los_controles() {
    MesaColumnas m;
    m.edita({[&] {
        m.clic_celda(F_X, ED_VISIBLE);
        for (const char* nombre :
            {"chkColumna0", "chkEtiquetaNfilas", "butAplicarCambios", "ButCancelar", "msfEditor"}) {
            m.pulsa_ed(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(nombre));
        }
    }});
}

void TstColumnas::muchas_columnas_se_desplazan_y_la_casilla_con_ellas() {
    MesaColumnas m;
    m.tabla().Cols(26);
    m.edita({[&] {
        QScrollBar* filas = m.rejilla()->verticalScrollBar();
        QVERIFY(filas->maximum() > 1);
        m.clic_celda(8, ED_NOMBRE);
        const int antes = m.caja()->y();
        manos::rueda(*m.rejilla()->viewport(), QPoint(20, 150), QPoint(0, -120));
        QVERIFY(filas->value() > 1);
        QVERIFY(m.caja()->y() < antes);
        QCOMPARE(m.caja()->geometry(), m.rejilla()->rect_celda(8, ED_NOMBRE).adjusted(2, 2, -2, -2));
        QVERIFY(m.caja()->isVisible());
        m.pulsa_ed(Qt::Key_Escape);
        for (int i = 0; i < 30; ++i) m.pulsa_ed(Qt::Key_Down);
        QCOMPARE(filas->value(), filas->maximum());
        QVERIFY(m.rejilla()->viewport()->rect().contains(m.rejilla()->rect_celda(25, ED_NOMBRE)));
    }});
}

void TstColumnas::Intro_en_un_boton_lo_pulsa() {
    MesaColumnas m;
    m.edita({[&] {
                 m.escribe(F_X, ED_NOMBRE, "Este");
                 m.hijo<QPushButton>("butAplicarCambios")->setFocus(Qt::TabFocusReason);
                 m.pulsa_ed(Qt::Key_Return);
             },
        [&] {
            m.escribe(F_X, ED_NOMBRE, "Oeste");
            m.hijo<QPushButton>("ButCancelar")->setFocus(Qt::TabFocusReason);
            m.pulsa_ed(Qt::Key_Enter);
            QVERIFY(!m.dialogo->isVisible());
        }});
    QCOMPARE(m.celda(0, X), QStringLiteral("Este"));
}

void TstColumnas::Intro_en_una_marca_no_hace_nada() {
    MesaColumnas m;
    m.edita({[&] {
        auto* const marca = m.hijo<QCheckBox>("chkColumna0");
        const bool antes = marca->isChecked();
        marca->setFocus(Qt::TabFocusReason);
        m.pulsa_ed(Qt::Key_Return);
        QCOMPARE(marca->isChecked(), antes);
        QVERIFY(m.dialogo->isVisible());
    }});
}

void TstColumnas::lo_tecleado_fuera_de_la_vista_vuelve_a_verse() {
    MesaColumnas m;
    m.tabla().Cols(26);
    m.edita({[&] {
        m.clic_celda(F_X, ED_NOMBRE);
        for (int i = 0; i < 20; ++i) manos::rueda(*m.rejilla()->viewport(), QPoint(20, 150), QPoint(0, -120));
        QVERIFY(!m.rejilla()->viewport()->rect().intersects(m.caja()->geometry()));
        m.teclea_ed("E");
        QVERIFY(m.rejilla()->viewport()->rect().contains(m.caja()->geometry()));
        QCOMPARE(m.caja()->geometry(), m.rejilla()->rect_celda(F_X, ED_NOMBRE).adjusted(2, 2, -2, -2));
        QCOMPARE(m.caja()->text(), QStringLiteral("E"));
    }});
}

void TstColumnas::en_una_ventana_mayor_vuelven_las_filas() {
    MesaColumnas m;
    m.tabla().Cols(26);
    m.edita({[&] {
        QScrollBar* filas = m.rejilla()->verticalScrollBar();
        filas->setValue(filas->maximum());
        const int antes = filas->value();
        const int alto_fila = m.rejilla()->rect_celda(antes, ED_NOMBRE).height();
        QVERIFY(antes > 4);
        m.dialogo->resize(m.dialogo->width(), m.dialogo->height() + 4 * alto_fila);
        QTRY_COMPARE(filas->value(), antes - 4);
    }});
}

void TstColumnas::un_ancho_imposible_dice_error_6() {
    MesaColumnas m;
    m.edita({[&] {
        m.escribe(F_X, ED_ANCHO, "274");
        m.aplica();
    }});
    const QStringList mensajes = std::exchange(m.mensajes, {});
    QCOMPARE(mensajes.size(), 1);
    QVERIFY(mensajes.first().startsWith(QStringLiteral("mensaje|16|")));
    QVERIFY(
        mensajes.first().endsWith(QStringLiteral("|Tabla Editor de columnas - Error nº 6: Desbordamiento")));
    QVERIFY(m.tablero().Redraw());
}

void TstColumnas::un_error_en_el_clic_sale_sobre_la_ventana() {
    MesaColumnas m;
    m.tabla().Formatcol(X, "-", "-", 2, 3, 32767, 10, "X");
    QWidget* sobre = nullptr;
    m.edita({[&] {
        QTimer::singleShot(0, m.dialogo, [&] { sobre = QApplication::activeModalWidget()->parentWidget(); });
        m.clic_celda(F_X, ED_ALINEACION);
        QCOMPARE(sobre, m.dialogo);
        QCOMPARE(m.dice(F_X, ED_ALINEACION), QStringLiteral("Izquierda"));
    }});
    QCOMPARE(m.mensajes.size(), 1);
    QVERIFY(m.mensajes.first().endsWith(QStringLiteral("|otro error en el msfEditor:Desbordamiento")));
    m.mensajes.clear();
}

void TstColumnas::se_lee_en_voz_alta() {
    MesaColumnas m;
    m.edita({[&] {
        QCOMPARE(m.rejilla()->accessibleName(), QStringLiteral("Columnas de la tabla"));
        m.clic_celda(F_X, ED_ALINEACION);
        QCOMPARE(m.rejilla()->accessibleDescription(), QStringLiteral("X, Alineación, Izquierda"));
        m.clic_celda(F_X, ED_ANCHO);
        QCOMPARE(m.caja()->accessibleName(), QStringLiteral("Ancho"));
    }});
}

QTEST_MAIN(TstColumnas)
#include "tst_columnas.moc"
