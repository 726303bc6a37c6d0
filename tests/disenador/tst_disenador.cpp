// SPDX-License-Identifier: MIT
// The table on forms: compiled by uic, loaded at run time, saved and loaded by the form builder, and as the
// plugin drops it on a form. The form file stands beside this source.
#include "qt/tabla_widget.h"
#include "ui_forma.h"

#include <QBuffer>
#include <QDomDocument>
#include <QFile>
#include <QFormBuilder>
#include <QLoggingCategory>
#include <QPluginLoader>
#include <QTest>
#include <QUiLoader>
#include <QWindow>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

using namespace Qlt4_Tabla;

namespace {

// Saves as the form editor does: what is inside the table is no part of the form. The builder warns of every
// property of Qt's own widgets that it cannot write, which is no concern of these tests.
class Constructor : public QFormBuilder {
public:
    Constructor() { addPluginPath(QStringLiteral(TABLA_DIR_COMPLEMENTO)); }

    void guarda(QIODevice& destino, QWidget& forma) {
        QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
        save(&destino, &forma);
        QLoggingCategory::setFilterRules(QString());
    }

protected:
    using QFormBuilder::createDom;

    DomWidget* createDom(QWidget* widget, DomWidget* padre, bool con_hijos) override {
        return QFormBuilder::createDom(widget, padre, con_hijos && !qobject_cast<TablaWidget*>(widget));
    }
};

} // namespace

class PruebaDisenador : public QObject {
    Q_OBJECT

private slots:
    void una_forma_compilada_trae_las_propiedades();
    void una_forma_cargada_las_trae_igual();
    void una_forma_guardada_las_vuelve_a_traer();
    void se_guardan_todas_bajo_sus_claves();
    void la_extension_se_guarda_y_no_se_lee();
    void una_cuenta_que_no_vale_no_cambia_nada();
    void una_propiedad_no_deshace_las_otras();
    void el_complemento_dice_que_es();
    void la_tabla_soltada_en_una_forma_se_usa();
    void la_tabla_soltada_se_ve_con_todas_sus_columnas();
    void el_ancho_cambiado_por_la_ventana_se_guarda();

private:
    static void comprueba_la_forma(const TablaWidget* tabla);
    static std::unique_ptr<QWidget> carga(const QByteArray& forma);
    static QByteArray guarda(QWidget& forma);
    static QByteArray fichero();
    static QString valor(const QByteArray& forma, const QString& propiedad);
    static QDesignerCustomWidgetInterface* complemento();
};

void PruebaDisenador::comprueba_la_forma(const TablaWidget* tabla) {
    QVERIFY(tabla != nullptr);
    const Tablero& t = tabla->tabla().tablero();
    QCOMPARE(t.Cols(), 4); // the string names one more than "Cols"
    QCOMPARE(t.Rows(), 8);
    QCOMPARE(tabla->Widht(), 5000);
    QCOMPARE(tabla->Height(), 3000);
    QCOMPARE(tabla->size(), QSize(333, 200));
    QCOMPARE(t.TextMatrix(0, 1), std::string_view("Nombre    "));
    QCOMPARE(t.ColWidth(2), 7 * 120);
    QCOMPARE(t.TextMatrix(7, 0), std::string_view("7"));
    QCOMPARE(tabla->A_ExtensionFche(), QStringLiteral("*.tb0"));
}

QByteArray PruebaDisenador::fichero() {
    QFile f(QStringLiteral(TABLA_DIR_PRUEBAS "/disenador/forma.ui"));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

std::unique_ptr<QWidget> PruebaDisenador::carga(const QByteArray& forma) {
    Constructor constructor;
    QBuffer datos;
    datos.setData(forma);
    datos.open(QIODevice::ReadOnly);
    return std::unique_ptr<QWidget>(constructor.load(&datos));
}

QByteArray PruebaDisenador::guarda(QWidget& forma) {
    Constructor constructor;
    QBuffer datos;
    datos.open(QIODevice::WriteOnly);
    constructor.guarda(datos, forma);
    return datos.data();
}

QString PruebaDisenador::valor(const QByteArray& forma, const QString& propiedad) {
    QDomDocument documento;
    documento.setContent(forma);
    const QDomNodeList todas = documento.elementsByTagName(QStringLiteral("property"));
    for (int i = 0; i < todas.count(); ++i) {
        const QDomElement e = todas.at(i).toElement();
        if (e.attribute(QStringLiteral("name")) == propiedad) return e.firstChildElement().text();
    }
    return QStringLiteral("no está");
}

QDesignerCustomWidgetInterface* PruebaDisenador::complemento() {
    QPluginLoader cargador(QStringLiteral(TABLA_DIR_COMPLEMENTO "/libqlt4_tabla_designer.so"));
    return qobject_cast<QDesignerCustomWidgetInterface*>(cargador.instance());
}

void PruebaDisenador::una_forma_compilada_trae_las_propiedades() {
    QWidget ventana;
    Ui::Forma forma;
    forma.setupUi(&ventana);
    comprueba_la_forma(forma.tabla);
}

void PruebaDisenador::una_forma_cargada_las_trae_igual() {
    QUiLoader cargador;
    cargador.addPluginPath(QStringLiteral(TABLA_DIR_COMPLEMENTO));
    QVERIFY(cargador.availableWidgets().contains(QStringLiteral("Qlt4_Tabla::TablaWidget")));
    QBuffer datos;
    datos.setData(fichero());
    datos.open(QIODevice::ReadOnly);
    const std::unique_ptr<QWidget> ventana(cargador.load(&datos));
    QVERIFY2(ventana != nullptr, qPrintable(cargador.errorString()));
    comprueba_la_forma(ventana->findChild<TablaWidget*>());
}

void PruebaDisenador::una_forma_guardada_las_vuelve_a_traer() {
    const auto ventana = carga(fichero());
    QVERIFY(ventana != nullptr);
    comprueba_la_forma(ventana->findChild<TablaWidget*>());
    const auto otra = carga(guarda(*ventana));
    QVERIFY(otra != nullptr);
    comprueba_la_forma(otra->findChild<TablaWidget*>());
}

void PruebaDisenador::se_guardan_todas_bajo_sus_claves() {
    const auto ventana = carga(fichero());
    const QByteArray forma = guarda(*ventana);
    QCOMPARE(valor(forma, QStringLiteral("Cols")), QStringLiteral("4"));
    QCOMPARE(valor(forma, QStringLiteral("Rows")), QStringLiteral("8"));
    QCOMPARE(valor(forma, QStringLiteral("Widht")), QStringLiteral("5000"));
    QCOMPARE(valor(forma, QStringLiteral("Height")), QStringLiteral("3000"));
    QCOMPARE(
        valor(forma, QStringLiteral("A_FormatString")), QStringLiteral("|<Nombre    |>X      |>Y      "));
    QCOMPARE(valor(forma, QStringLiteral("A_ExtensionFche")), QStringLiteral("*.tb0"));
}

void PruebaDisenador::la_extension_se_guarda_y_no_se_lee() {
    const auto ventana = carga(fichero());
    ventana->findChild<TablaWidget*>()->tabla().A_ExtensionFche("*.dat");
    const QByteArray forma = guarda(*ventana);
    QCOMPARE(valor(forma, QStringLiteral("A_ExtensionFche")), QStringLiteral("*.dat"));
    const auto otra = carga(forma);
    QCOMPARE(otra->findChild<TablaWidget*>()->A_ExtensionFche(), QStringLiteral("*.tb0"));
}

void PruebaDisenador::una_cuenta_que_no_vale_no_cambia_nada() {
    TablaWidget tabla;
    for (const int mala : {0, -1, 2147483647}) {
        tabla.setRows(mala);
        QCOMPARE(tabla.Rows(), 4);
        QCOMPARE(tabla.Cols(), 5);
    }
    tabla.setA_FormatString(QString());
    QCOMPARE(tabla.Cols(), 5);
}

void PruebaDisenador::una_propiedad_no_deshace_las_otras() {
    TablaWidget tabla;
    tabla.setA_FormatString(QStringLiteral("|Uno|Dos"));
    tabla.tabla().TextMatrix(0, 1, "Otro");
    tabla.setWidht(5000);
    tabla.setRows(9);
    tabla.setHeight(3000);
    QCOMPARE(tabla.tabla().TextMatrix(0, 1), std::string("Otro"));
    QCOMPARE(tabla.Widht(), 5000);
    QCOMPARE(tabla.Rows(), 9);
}

void PruebaDisenador::el_complemento_dice_que_es() {
    QDesignerCustomWidgetInterface* c = complemento();
    QVERIFY(c != nullptr);
    QCOMPARE(c->name(), QStringLiteral("Qlt4_Tabla::TablaWidget"));
    QCOMPARE(c->includeFile(), QStringLiteral("qt/tabla_widget.h"));
    QVERIFY(!c->isContainer());
    QVERIFY(!c->icon().isNull());
    const QByteArray forma = c->domXml().toUtf8();
    for (const char* clave : {"Cols", "Rows", "Widht", "Height", "A_FormatString", "A_ExtensionFche"})
        QVERIFY2(valor(forma, QLatin1String(clave)) != QStringLiteral("no está"), clave);
}

void PruebaDisenador::la_tabla_soltada_en_una_forma_se_usa() {
    QWidget forma;
    forma.resize(600, 400);
    auto* tabla = qobject_cast<TablaWidget*>(complemento()->createWidget(&forma));
    QVERIFY(tabla != nullptr);
    forma.show();
    QVERIFY(QTest::qWaitForWindowExposed(&forma));
    QVERIFY(tabla->width() >= tabla->minimumSizeHint().width());
    QCOMPARE(tabla->Cols(), 5);
    QCOMPARE(tabla->Rows(), 4);
    tabla->resize(480, 320);
    forma.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&forma));
    tabla->setFocus();
    for (const char cifra : {'1', '2'}) QTest::keyClick(forma.windowHandle(), cifra);
    QTest::keyClick(forma.windowHandle(), Qt::Key_Return);
    QCOMPARE(tabla->tabla().TextMatrix(1, 1), std::string("12"));
}

void PruebaDisenador::la_tabla_soltada_se_ve_con_todas_sus_columnas() {
    const auto forma = carga(complemento()->domXml().toUtf8());
    const auto* tabla = qobject_cast<TablaWidget*>(forma.get());
    QVERIFY(tabla != nullptr);
    const Tablero& t = tabla->tabla().tablero();
    QCOMPARE(t.Cols(), 5);
    QCOMPARE(t.ColWidth(0), 5 * 120);
    for (int col = 1; col < 5; ++col) QCOMPARE(t.ColWidth(col), 13 * 120);
    QCOMPARE(t.TextMatrix(0, 4), std::string_view("Columna 4    "));
    QVERIFY(t.ColWidth(0) + 4 * t.ColWidth(4) <= tabla->Widht()); // no column beyond the right border
}

void PruebaDisenador::el_ancho_cambiado_por_la_ventana_se_guarda() {
    TablaWidget tabla;
    tabla.setWidht(5000);
    tabla.resize(400, tabla.height());
    QCOMPARE(tabla.Widht(), 6000); // 400 pixels of 15 twips
}

QTEST_MAIN(PruebaDisenador)
#include "tst_disenador.moc"
