// SPDX-License-Identifier: MIT
// The program behind docs/guia_anfitrion.md: does what the guide shows on two tables, compares the outcome with
// what the guide says, and shows the window. Where to read on: perfil.cpp.
#include "../comun/ejemplo.h"
#include "perfil.h"
#include "seccion.h"
#include "textos.h"

#include <QDir>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QTemporaryDir>

namespace {

using namespace guia;
using Qlt4_Tabla::Opcion;
using Qlt4_Tabla::Tabla0;
using Qlt4_Tabla::TablaWidget;

int fallos = 0;

void exige(const std::string& hay, const std::string& dice, const char* donde) {
    if (hay == dice) return;
    ++fallos;
    const QString texto =
        QStringLiteral("%1: %2, %3")
            .arg(QLatin1String(donde), QString::fromStdString(hay), QString::fromStdString(dice));
    ejemplos::di(stderr, textos::NO_ES_ASI.arg(texto));
}

void exige(int hay, int dice, const char* donde) { exige(std::to_string(hay), std::to_string(dice), donde); }

void comprueba_datos(Tabla0& t) {
    rellena(t);
    exige(t.TextMatrix(1, TERRENO), "101,200", "TextMatrix");
    exige(std::string(t.tablero().TextMatrix(1, TERRENO)), "101.200", "cell");
    cambia_decimales(t);
    exige(t.TextMatrix(1, RASANTE), "99,80", "decimals");
    exige(t.TextMatrix(4, MATERIAL), textos::PVC, "list kept");
    calcula(t);
    exige(t.TextMatrix(1, DESNIVEL), "-1,400", "difference");
    exige(t.TextMatrix(1, RASANTE), "99,80", "sum");
    exige(t.TextMatrix(2, INCREMENTO), "-0,150", "partial difference");
    sube_terreno(t, 1);
    exige(t.TextMatrix(5, TERRENO), "100,900", "arrays");
    sube_terreno(t, -1);
}

void comprueba_colores(Tabla0& t) {
    colorea(t);
    exige(t.Color_Matrix(5, TUBOS), 0x00C0FFC0, "background");
    exige(t.Color_Matrix(5, VERTICE), 0, "background never set");
    pon_capas(t);
    exige(t.TextMatrix(1, CAPA), "rojo", "palette colour");
    exige(t.Color_Matrix_en_VB(1, CAPA), 0x0000FF, "painted");
    exige(t.TextMatrix(2, CAPA), "verde", "screen colour");
    exige(t.TextMatrix(3, CAPA), "azul", "name");
    exige(t.Color_Matrix(4, CAPA), 3, "value as screen colour");
    std::int32_t vb = 11, cad = 12;
    std::string nombre = "13";
    t.Show_Eleige_Color("", true, 0, true, vb, cad, nombre);
    exige(nombre + std::to_string(vb) + std::to_string(cad), "131112", "Show_Eleige_Color");
}

void comprueba_trato(TablaWidget& widget) {
    Tabla0& t = widget.tabla();
    elige_filas(t, 2, 4);
    exige(t.A_fila_Activa(), 2, "selection");
    t.A_Col(3);
    exige(t.tablero().Col(), 1, "A_Col");
    exige(error_de_columna(t), 9, "error");
    exige(por_nombre(t), "101,500", "dispatch");
    mide_en_otro_hilo(widget);
    QApplication::processEvents();
    exige(t.TextMatrix(1, TERRENO), "102,750", "thread");
    t.TextMatrix(1, TERRENO, "101.2");
    t.A_GrabaRevoca("SI");
    exige(t.A_GrabaRevoca(), "SI", "A_GrabaRevoca");
}

void comprueba_ficheros(TablaWidget& widget) {
    Tabla0& t = widget.tabla();
    const QTemporaryDir carpeta;
    const std::string fichero = QDir(carpeta.path()).filePath(QStringLiteral("perfil.tb0")).toStdString();
    ida_y_vuelta(t, fichero);
    exige(t.TextMatrix(5, TERRENO), "99,900", "file");
    exige(t.TextMatrix(4, MATERIAL), textos::HORMIGON, "lists after a file");
    exige(static_cast<int>(faltas_al_leer(fichero).size()), 0, "a file that is there");
    exige(static_cast<int>(faltas_al_leer("no-existe.tb0").size()), 1, "a file that is not");
    widget.pon_fichero_ajustes(QDir(carpeta.path()).filePath(QStringLiteral("ajustes.ini")));
    guarda_forma(t);
    vuelve_al_formato_inicial(t);
    lee_forma(t);
    exige(t.Cols(), CUANTAS, "settings");
    rellena(t);
    calcula(t);
    pon_capas(t);
    t.mandos().elige_celda(1, VERTICE);
}

void comprueba_capas(Tabla0& t) {
    prepara_capas(t);
    exige(t.Rows(), 4, "crea_una_fila");
    funde_capas(t);
    exige(t.MergeCells() + (t.MergeCol(1) ? 10 : 0), 11, "merge");
    pon_logotipo(t);
    restringe(t);
    pon_tamano(t);
}

void comprueba_puntos() {
    constexpr int CUANTOS = 10'000;
    std::vector<double> xs(CUANTOS), ys(CUANTOS);
    for (std::size_t i = 0; i < xs.size(); ++i) {
        xs[i] = static_cast<double>(i) / 8;
        ys[i] = -xs[i];
    }
    TablaWidget widget;
    Tabla0& t = widget.tabla();
    carga_puntos(widget, xs, ys);
    exige(t.Rows(), CUANTOS + 1, "rows");
    exige(t.TextMatrix(CUANTOS, 1), "P10000", "names");
    exige(t.TextMatrix(CUANTOS, 3), "-1249,875", "last row");
    t.mandos().elige_celda(2, 2);
    t.mandos().tecla_pulsada('7'); // opens the editor, as a key does
    xs[1] = 7;
    exige(lee_xs(widget) == xs ? 1 : 0, 1, "read back");

    const QTemporaryDir carpeta;
    const QString fichero = QDir(carpeta.path()).filePath(QStringLiteral("puntos.tb0"));
    t.mandos().elige_celda(3, 2);
    t.mandos().tecla_pulsada('8');
    exige(puede_cerrar(widget, fichero.toStdString()) ? 1 : 0, 1, "closing");
    t.Clear();
    t.Tablero_Leer(fichero.toStdString());
    exige(t.TextMatrix(3, 2), "8,000", "typed before closing");
}

void comprueba_dibujo(Tabla0& t, Seccion& seccion) {
    rellena(t);
    seccion.grab();
    exige(static_cast<int>(seccion.cotas().size()), t.Rows() - 1, "drawing");
    t.mandos().elige_celda(1, TERRENO);
    t.mandos().tecla_pulsada('9');
    t.mandos().editor().confirma_y_cierra();
    seccion.grab();
    exige(static_cast<int>(seccion.cotas().front()), 9, "drawing follows");
    rellena(t);
}

void pon_menu(QMainWindow& ventana, Tabla0& t) {
    QMenu* menu = ventana.menuBar()->addMenu(textos::MENU);
    // begin: ordenes
    QObject::connect(menu->addAction(textos::COPIAR), &QAction::triggered, menu,
        [&t] { t.mandos().orden(Opcion::mn_copiar); }); // any item of the table's menus by its name
    QObject::connect(
        menu->addAction(textos::A_LA_HOJA), &QAction::triggered, menu, [&t] { t.Copiar_todo_Excel(); });
    QObject::connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_E), &ventana), &QShortcut::activated, menu,
        [&t] { t.Copiar_Todo(); }); // the same under its other name
    // end: ordenes
    QObject::connect(
        menu->addAction(textos::ELEGIR_COLOR), &QAction::triggered, menu, [&t] { pregunta_color(t); });
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const ejemplos::Opciones opciones(QApplication::arguments(), textos::AYUDA);
    if (opciones.fin) return *opciones.fin;
    ejemplos::viste(opciones.oscuro);

    // begin: varias
    QMainWindow ventana;
    auto* division = new QSplitter(Qt::Vertical, &ventana);
    auto* perfil = new TablaWidget(division); // two tables share nothing
    auto* capas = new TablaWidget(division);
    auto* seccion = new Seccion(*perfil, division);
    ventana.setCentralWidget(division);
    prepara(perfil->tabla());
    escucha(*perfil, *ventana.statusBar());
    // end: varias
    comprueba_datos(perfil->tabla());
    comprueba_dibujo(perfil->tabla(), *seccion);
    comprueba_puntos();
    comprueba_colores(perfil->tabla());
    comprueba_trato(*perfil);
    comprueba_ficheros(*perfil);
    comprueba_capas(capas->tabla());
    if (fallos > 0) return 1;

    pon_menu(ventana, perfil->tabla());
    ventana.setWindowTitle(textos::VENTANA);
    ventana.resize(820, 560);
    division->setSizes({300, 160, 100});
    return ejemplos::corre(ventana, opciones);
}
