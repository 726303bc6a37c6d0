// SPDX-License-Identifier: MIT
// The widget around the grid: labels, message boxes, events, sizes, decimal sign, several tables at once.
#include "tests/qt/estilo_con_dibujos.h"
#include "tests/qt/mesa_qt.h"

#include <QLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qlt4_Tabla;

class TstEtiquetas : public QObject {
    Q_OBJECT

private slots:
    void init() { avisos_son_fallos(); }

    void labNumeroFilas_dice_las_filas();
    void labMensaje_esta_vacio_al_empezar();
    void labMensaje_dura_hasta_la_siguiente_edicion();
    void un_error_se_muestra_en_una_caja();
    void una_caja_sin_titulo_lleva_el_nombre_del_programa();
    void la_pregunta_ofrece_si_y_no_data();
    void la_pregunta_ofrece_si_y_no();
    void los_sucesos_son_senales();
    void las_filas_que_vienen_y_van_se_cuentan();
    void una_propiedad_cambiada_se_dice();
    void Width_y_Height_son_twips_del_widget();
    void la_coma_decimal_es_la_del_idioma_data();
    void la_coma_decimal_es_la_del_idioma();
    void el_anfitrion_puede_decidir_la_coma();
    void dos_tablas_no_comparten_nada();
    void sin_columnas_o_sin_filas_se_pinta();
    void el_reloj_se_quita_con_la_tabla();
    void un_mensaje_no_lleva_el_reloj();
    void lo_que_tarda_una_respuesta_no_cuenta();
    void los_botones_de_un_mensaje_no_llevan_dibujo();
    void una_tabla_sin_tamano_mide_cero();
    void un_trabajo_largo_dice_por_donde_va();
    void otra_letra_cambia_el_alto_de_las_filas();
};

void TstEtiquetas::labNumeroFilas_dice_las_filas() {
    MesaQt m(10);
    QCOMPARE(m.label("labNumeroFilas")->text(), QString()); // shown where column 0 is locked
    m.tabla().FormatoColumnas(
        0, false, true, T_formato::Alfanm, 0, T_Alineacion::Centr, T_Accion::Nada__, 5, "");
    m.tabla().Tablero_Nombres("", "puntos", "*.tb0");
    m.tabla().Tablero_establece_Formato();
    QCOMPARE(m.label("labNumeroFilas")->text(), QStringLiteral("puntos: Nº de filas = 10"));
    m.tabla().Rows(21);
    QCOMPARE(m.label("labNumeroFilas")->text(), QStringLiteral("Nº de puntos = 20"));
}

void TstEtiquetas::labMensaje_esta_vacio_al_empezar() {
    MesaQt m;
    QCOMPARE(m.label("labMensaje")->text(), QString());
    m.clic(2, X);
    QCOMPARE(m.label("labMensaje")->text(), QString());
}

void TstEtiquetas::labMensaje_dura_hasta_la_siguiente_edicion() {
    MesaQt m;
    const QString mensaje = QStringLiteral("La columna < Fija > no se puede editar");
    m.doble_clic(1, FIJA);
    QCOMPARE(m.label("labMensaje")->text(), mensaje);
    m.teclea("x"); // refused without a word
    QCOMPARE(m.label("labMensaje")->text(), mensaje);
    m.pulsa(Qt::Key_F2);
    QCOMPARE(m.label("labMensaje")->text(), QString());
}

void TstEtiquetas::un_error_se_muestra_en_una_caja() {
    MesaQt m;
    m.tabla().Width(Variante(std::string("ancho")));
    QCOMPARE(m.mensajes.size(), 1);
    QVERIFY(
        m.mensajes.first().endsWith(QStringLiteral("|Tabla Width - Error nº 13: No coinciden los tipos")));
    QVERIFY(m.mensajes.first().startsWith(QStringLiteral("mensaje|16|")));
    m.mensajes.clear();
}

void TstEtiquetas::una_caja_sin_titulo_lleva_el_nombre_del_programa() {
    MesaQt m;
    m.tabla().Width(Variante(std::string("ancho")));
    QVERIFY(m.mensajes.first().contains(QStringLiteral("|tst-etiquetas|")));
    m.mensajes.clear();
}

namespace {

// A table whose messages pass by here on their way to the widget's boxes.
struct Escucha {
    explicit Escucha(QWidget* padre) : tabla([this](const Plataforma& p) { return toma(p); }, padre) {}

    Plataforma toma(const Plataforma& p) {
        mensajes = &p.mensajes;
        marco = &p.marco;
        return p;
    }

    Mensajes* mensajes = nullptr;
    Marco* marco = nullptr;
    TablaWidget tabla;
};

} // namespace

void TstEtiquetas::la_pregunta_ofrece_si_y_no_data() {
    QTest::addColumn<int>("boton");
    QTest::addColumn<int>("respuesta");
    QTest::newRow("yes") << int(QMessageBox::Yes) << int(Respuesta::Si);
    QTest::newRow("no") << int(QMessageBox::No) << int(Respuesta::No);
    QTest::newRow("closed") << 0 << int(Respuesta::No);
}

void TstEtiquetas::la_pregunta_ofrece_si_y_no() {
    QFETCH(int, boton);
    QFETCH(int, respuesta);
    QString visto;
    manos::Mensajero mensajero([&](const QString& m) { visto = m; });
    if (boton != 0) mensajero.respuestas.push_back(static_cast<QMessageBox::StandardButton>(boton));
    Escucha e(nullptr);
    const Respuesta r = e.mensajes->mensaje("¿Seguir <sin> guardar?", EstiloMensaje::CriticoSiNo, "Tabla");
    QCOMPARE(int(r), respuesta);
    QCOMPARE(visto, QStringLiteral("mensaje|20|Tabla|¿Seguir <sin> guardar?"));
}

void TstEtiquetas::los_sucesos_son_senales() {
    MesaQt m;
    QSignalSpy cambia(m.widget, &TablaWidget::CambiaCasilla);
    QSignalSpy combo(m.widget, &TablaWidget::ACambiadoValorCombo);
    m.teclea("x");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(cambia.count(), 1);
    m.clic(3, USO);
    m.clic(3, USO);
    QCOMPARE(combo.count(), 1);
    QCOMPARE(combo.first().at(0).toInt(), 3);
    QCOMPARE(combo.first().at(1).toInt(), int(USO));
}

void TstEtiquetas::las_filas_que_vienen_y_van_se_cuentan() {
    MesaQt m(5);
    QSignalSpy vienen(m.widget, &TablaWidget::filas_insertadas);
    QSignalSpy van(m.widget, &TablaWidget::filas_borradas);
    QSignalSpy todo(m.widget, &TablaWidget::contenido_cambiado);
    m.tabla().Rows(9);
    QCOMPARE(vienen.takeFirst(), QVariantList({6, 3}));
    m.tabla().Rows(4);
    QCOMPARE(van.takeFirst(), QVariantList({4, 5}));
    QCOMPARE(todo.count(), 0);
    m.tabla().Redraw(false);
    m.tabla().Rows(8);
    QCOMPARE(vienen.count() + todo.count(), 0);
    m.tabla().Redraw(true);
    QCOMPARE(vienen.takeFirst(), QVariantList({4, 4}));
    QCOMPARE(todo.count(), 0);
    m.tabla().Cols(12);
    QCOMPARE(todo.count(), 1);
}

void TstEtiquetas::una_propiedad_cambiada_se_dice() {
    MesaQt m;
    QSignalSpy dichas(m.widget, &TablaWidget::propiedad_cambiada);
    m.tabla().Rows(3);
    QCOMPARE(dichas.takeFirst().first().toString(), QStringLiteral("Rows"));
}

void TstEtiquetas::Width_y_Height_son_twips_del_widget() {
    TablaWidget w;
    w.tabla().Width(Variante(4500.0F));
    w.tabla().Height(Variante(3000.0F));
    QCOMPARE(w.size(), QSize(300, 200));
    w.resize(400, 100);
    QCOMPARE(w.tabla().Width().a_simple(), 6000.0F);
    QCOMPARE(w.tabla().Height().a_simple(), 1500.0F);
    w.tabla().Width(Variante(-5.0F));
    QVERIFY(w.width() < 400);
}

void TstEtiquetas::la_coma_decimal_es_la_del_idioma_data() {
    QTest::addColumn<QLocale>("idioma");
    QTest::addColumn<bool>("coma");
    QTest::newRow("Spanish") << QLocale(QLocale::Spanish, QLocale::Spain) << true;
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedStates) << false;
    QTest::newRow("C") << QLocale::c() << false;
}

void TstEtiquetas::la_coma_decimal_es_la_del_idioma() {
    QFETCH(QLocale, idioma);
    QFETCH(bool, coma);
    MesaQt m;
    m.widget->setLocale(idioma);
    m.actual(1, X);
    m.teclea("1.5");
    m.pulsa(Qt::Key_Return);
    QCOMPARE(m.celda(1, X), QStringLiteral("1.500")); // stored with a point, whatever the language
    QCOMPARE(m.tabla().estado().ComaDecimal, coma);
}

void TstEtiquetas::el_anfitrion_puede_decidir_la_coma() {
    MesaQt m;
    m.widget->setLocale(QLocale::c());
    m.widget->pon_coma_decimal(true);
    m.pon(1, X, "2");
    QVERIFY(m.tabla().estado().ComaDecimal);
    m.widget->pon_coma_decimal({});
    m.pon(1, X, "3");
    QVERIFY(!m.tabla().estado().ComaDecimal);
}

void TstEtiquetas::dos_tablas_no_comparten_nada() {
    MesaQt m;
    auto* otra = new TablaWidget(&m.ventana);
    m.ventana.layout()->addWidget(otra);
    otra->show();
    QCoreApplication::processEvents();
    da_formato_de_mesa(otra->tabla(), 4);
    auto* su_vista = otra->findChild<VistaRejilla*>();
    auto* su_casilla = otra->findChild<Casilla*>();
    m.teclea("aqui");
    manos::clic(*su_vista->viewport(), su_vista->rect_celda(2, NOMBRE).center());
    QCOMPARE(m.celda(1, NOMBRE), QStringLiteral("aqui"));
    QVERIFY(!m.casilla->isVisible() && su_vista->hasFocus());
    m.teclea("alli");
    QVERIFY(su_casilla->isVisible() && !m.casilla->isVisible());
    m.pulsa(Qt::Key_Return);
    QCOMPARE(otra->tabla().tablero().TextMatrix(2, NOMBRE), std::string_view("alli"));
    QCOMPARE(m.celda(2, NOMBRE), QString());
    QCOMPARE(m.donde(), QStringLiteral("1 1"));
    QCOMPARE(otra->tabla().tablero().Rows(), 5);
    QCOMPARE(m.tablero().Rows(), 11);
    m.widget->pon_coma_decimal(true);
    m.pon(1, X, "1");
    otra->tabla().TextMatrix(1, X, "1");
    QVERIFY(m.tabla().estado().ComaDecimal && !otra->tabla().estado().ComaDecimal);
}

void TstEtiquetas::sin_columnas_o_sin_filas_se_pinta() {
    MesaQt m;
    m.tabla().Clear();
    m.widget->grab();
    m.clic(0, NOMBRE);
    m.teclea("x");
    m.pulsa(Qt::Key_Escape);
    m.pulsa(Qt::Key_PageDown);
    m.rueda({0, -120});
    m.tabla().Cols(1);
    m.widget->grab();
    manos::clic(*m.vista->viewport(), QPoint(200, 100));
    m.pulsa(Qt::Key_End, Qt::ControlModifier);
    m.tabla().Cols(3);
    m.tabla().Rows(3);
    m.widget->grab();
    QCOMPARE(m.tablero().Rows(), 3);
}

void TstEtiquetas::el_reloj_se_quita_con_la_tabla() {
    Mensajes* mensajes = nullptr;
    {
        Escucha e(nullptr);
        mensajes = e.mensajes;
        mensajes->puntero(Puntero::RelojDeArena);
        mensajes->puntero(Puntero::RelojDeArena);
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    QVERIFY(!QApplication::overrideCursor());
}

namespace {

// Counts what a widget paints.
class Pintadas final : public QObject {
public:
    explicit Pintadas(QWidget& w) { w.installEventFilter(this); }

    int veces = 0;

    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint) ++veces;
        return false;
    }
};

} // namespace

void TstEtiquetas::un_trabajo_largo_dice_por_donde_va() {
    Escucha e(nullptr);
    e.tabla.resize(600, 300);
    e.tabla.show();
    QVERIFY(QTest::qWaitForWindowExposed(&e.tabla));
    e.mensajes->puntero(Puntero::RelojDeArena);
    e.mensajes->avance("Pegando", 10);
    QVERIFY(!e.tabla.findChild<QProgressBar*>(QStringLiteral("avance"))); // not within the first second
    QTest::qSleep(1001); // no event is let in from here on
    e.mensajes->avance("Pegando", 45);
    auto* barra = e.tabla.findChild<QProgressBar*>(QStringLiteral("avance"));
    QVERIFY(barra && barra->isVisible());
    QCOMPARE(barra->text(), QStringLiteral("Pegando: 45 %"));
    Pintadas pintadas(*barra);
    e.mensajes->avance("Pegando", 46);
    QVERIFY(pintadas.veces > 0);
    e.mensajes->puntero(Puntero::Normal);
    QVERIFY(!barra->isVisible());
    e.mensajes->puntero(Puntero::RelojDeArena); // the next command has a second of its own
    e.mensajes->avance("Pegando", 10);
    QVERIFY(!barra->isVisible());
    e.mensajes->puntero(Puntero::Normal);
}

void TstEtiquetas::un_mensaje_no_lleva_el_reloj() {
    Escucha e(nullptr);
    bool con_reloj = true;
    manos::Mensajero mensajero(
        [&](const QString&) { con_reloj = QApplication::overrideCursor() != nullptr; });
    e.mensajes->puntero(Puntero::RelojDeArena);
    e.mensajes->mensaje("¿?", EstiloMensaje::CriticoSiNo, {});
    QVERIFY(!con_reloj);
    QVERIFY(QApplication::overrideCursor() != nullptr);
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    e.mensajes->puntero(Puntero::Normal);
    QVERIFY(!QApplication::overrideCursor());
    e.mensajes->mensaje("¿?", EstiloMensaje::CriticoSiNo, {});
    QVERIFY(!QApplication::overrideCursor());
}

void TstEtiquetas::lo_que_tarda_una_respuesta_no_cuenta() {
    Escucha e(nullptr);
    manos::Mensajero mensajero([](const QString&) { QTest::qSleep(1001); });
    e.mensajes->puntero(Puntero::RelojDeArena);
    e.mensajes->mensaje("¿?", EstiloMensaje::CriticoSiNo, {});
    e.mensajes->avance("Pegando", 10);
    QVERIFY(!e.tabla.findChild<QProgressBar*>(QStringLiteral("avance")));
    QTest::qSleep(1001);
    e.mensajes->mensaje("¿?", EstiloMensaje::CriticoSiNo, {}); // nor does it begin again
    e.mensajes->avance("Pegando", 20);
    QVERIFY(e.tabla.findChild<QProgressBar*>(QStringLiteral("avance")));
    e.mensajes->puntero(Puntero::Normal);
}

void TstEtiquetas::los_botones_de_un_mensaje_no_llevan_dibujo() {
    Escucha e(nullptr);
    QApplication::setStyle(new EstiloConDibujos);
    int botones = 0;
    int dibujos = 0;
    manos::Mensajero mensajero([&](const QString&) {
        for (const auto* b : QApplication::activeModalWidget()->findChildren<QPushButton*>()) {
            ++botones;
            dibujos += b->icon().isNull() ? 0 : 1;
        }
    });
    e.mensajes->mensaje("¿?", EstiloMensaje::CriticoSiNo, {});
    e.mensajes->mensaje("¡!", EstiloMensaje::Critico, {});
    QApplication::setStyle(QStringLiteral("fusion"));
    QCOMPARE(botones, 3);
    QCOMPARE(dibujos, 0);
}

void TstEtiquetas::una_tabla_sin_tamano_mide_cero() {
    Escucha e(nullptr);
    e.tabla.setMinimumSize(0, 0);
    e.tabla.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    e.tabla.resize(0, 0);
    QCOMPARE(e.tabla.size(), QSize(0, 0));
    QCOMPARE(e.marco->ancho(), 0.0F);
    QCOMPARE(e.marco->alto(), 0.0F);
}

void TstEtiquetas::otra_letra_cambia_el_alto_de_las_filas() {
    MesaQt m;
    const int antes = m.vista->rect_celda(1, 1).height();
    QFont letra = m.widget->font();
    letra.setPointSize(letra.pointSize() * 2);
    m.widget->setFont(letra);
    QVERIFY(m.vista->rect_celda(1, 1).height() > antes * 3 / 2);
    QCOMPARE(m.vista->rect_celda(2, 1).top(), m.vista->rect_celda(1, 1).bottom() + 1);
}

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("tst-etiquetas"));
    TstEtiquetas tst;
    return QTest::qExec(&tst, argc, argv);
}

#include "tst_etiquetas.moc"
