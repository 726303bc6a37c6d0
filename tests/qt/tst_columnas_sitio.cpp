// SPDX-License-Identifier: MIT
// The window of the column editor: its layout at any size, the place that it remembers, and a host that destroys
// its own window meanwhile.
#include "headless/plataforma_memoria.h"
#include "qt/ajustes_qt.h"
#include "tests/qt/manos.h"
#include "tests/qt/mesa_columnas.h"

#include <QScrollBar>

#include <cstdlib>
#include <memory>

using namespace Qlt4_Tabla;

class TstColumnasSitio : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void la_franja_sigue_al_tamano();
    void un_subtitulo_largo_se_abrevia();
    void recuerda_sitio_y_tamano();
    void la_primera_vez_sale_sobre_su_ventana();
    void fuera_de_la_pantalla_vuelve_a_ella();
    void la_ventana_del_anfitrion_puede_morir();
};

void TstColumnasSitio::la_franja_sigue_al_tamano() {
    MesaColumnas m;
    m.edita({[&] {
        const auto comprueba = [&] {
            const QWidget* contenido = m.rejilla()->parentWidget();
            const int boton = m.hijo<QPushButton>("ButCancelar")->height();
            QCOMPARE(m.rejilla()->geometry().topLeft(), QPoint(0, 0));
            QCOMPARE(m.rejilla()->width(), contenido->width());
            QVERIFY(std::abs(contenido->height() - m.rejilla()->height() - boton * 1.2) <= 1.5);
            for (const char* nombre :
                {"chkColumna0", "chkEtiquetaNfilas", "butAplicarCambios", "ButCancelar"}) {
                const QRect r = m.hijo<QWidget>(nombre)->geometry();
                QVERIFY(std::abs(contenido->height() - r.top() - boton * 1.1) <= 1.5);
                QVERIFY(contenido->rect().contains(r));
            }
        };
        comprueba();
        m.dialogo->resize(900, 600);
        comprueba();
        m.dialogo->resize(10, 10);
        QCOMPARE(m.dialogo->size(), QSize(500, 167)); // 7500 x 2500 twips
        comprueba();
    }});
}

void TstColumnasSitio::un_subtitulo_largo_se_abrevia() {
    MesaColumnas m;
    m.tabla().Tablero_Nombres("Plano", "Puntos & vértices del contorno", "*.pt");
    m.edita({[&] {
        auto* marca = m.hijo<QCheckBox>("chkEtiquetaNfilas");
        m.dialogo->resize(500, 300);
        QVERIFY(marca->text().endsWith(QChar(0x2026)));
        QCOMPARE(marca->toolTip(), QStringLiteral("Nº de filas Puntos & vértices del contorno"));
        QVERIFY(marca->geometry().right() < m.hijo<QPushButton>("butAplicarCambios")->x());
        m.dialogo->resize(1000, 300);
        QCOMPARE(marca->text(), QStringLiteral("Nº de filas Puntos && vértices del contorno"));
        QCOMPARE(marca->toolTip(), QString());
    }});
}

void TstColumnasSitio::recuerda_sitio_y_tamano() {
    MesaColumnas m;
    const AjustesQt ajustes(m.carpeta.filePath(QStringLiteral("a.ini")));
    const auto guardado = [&](const char* clave) { return ajustes.lee("Plano", "PosPuntos", clave); };
    m.edita({[&] {
        m.dialogo->move(40, 80);
        m.dialogo->resize(560, 300);
    }});
    QCOMPARE(guardado("MainLeft"), std::string("600")); // 15 twips a pixel
    QCOMPARE(guardado("MainTop"), std::string("1200"));
    QCOMPARE(guardado("MainWidth"), std::string("8400"));
    QCOMPARE(guardado("MainHeight"), std::string("4500"));
    AjustesQt(m.carpeta.filePath(QStringLiteral("a.ini"))).escribe("Plano", "PosPuntos", "MainLeft", "607");
    m.edita({[&] {
        QCOMPARE(m.dialogo->pos(), QPoint(40, 80));
        QCOMPARE(m.dialogo->size(), QSize(560, 300));
    }});
    QCOMPARE(guardado("MainLeft"), std::string("607")); // as it was, nobody moved it
}

void TstColumnasSitio::la_primera_vez_sale_sobre_su_ventana() {
    MesaColumnas m;
    m.edita({[&] {
        const QPoint falta = m.dialogo->geometry().center() - m.ventana.frameGeometry().center();
        QVERIFY(falta.manhattanLength() <= 6); // frames aside
        QCOMPARE(m.dialogo->size(), QSize(660, 360)); // 9900 x 5400 twips
        QVERIFY(!m.rejilla()->horizontalScrollBar()->isVisible());
    }});
}

void TstColumnasSitio::fuera_de_la_pantalla_vuelve_a_ella() {
    MesaColumnas m;
    for (const char* lejos : {"-9000000", "9000000", "1E+30", "-1E+30"}) {
        AjustesQt a(m.carpeta.filePath(QStringLiteral("a.ini")));
        for (const char* clave : {"MainLeft", "MainTop", "MainWidth", "MainHeight"})
            a.escribe("Plano", "PosPuntos", clave, lejos);
        m.edita({[&] {
            const QRect pantalla = m.dialogo->screen()->availableGeometry();
            QVERIFY(pantalla.contains(m.dialogo->frameGeometry()));
        }});
    }
}

void TstColumnasSitio::la_ventana_del_anfitrion_puede_morir() {
    PlataformaMemoria p;
    auto ventana = std::make_unique<QWidget>();
    ventana->show();
    DialogoColumnasQt puerto(*ventana);
    const Plataforma m = p.plataforma();
    const Plataforma q{m.vista, m.marco, m.casilla, m.lista, m.mensajes, m.separador, m.pasos, m.ajustes,
        m.ficheros, m.dialogo_fichero, m.portapapeles, m.hoja_calculo, m.dialogo_color, puerto};
    RegistrosEditor registros;
    f_Editor editor(registros, q);
    editor.Iniciar("Plano", "Puntos", 2);
    QTimer::singleShot(0, qApp, [&] { ventana.reset(); });
    editor.muestra();
    QVERIFY(!editor.visto().abierto);
    QVERIFY(!registros.aceptado);
    QCOMPARE(p.ajustes.valores.size(), std::size_t{4});
}

QTEST_MAIN(TstColumnasSitio)
#include "tst_columnas_sitio.moc"
