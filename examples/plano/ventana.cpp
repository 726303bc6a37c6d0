// SPDX-License-Identifier: MIT
// Builds the window and joins the signals of table and plan.
#include "ventana.h"

#include "core/geometria.h"
#include "tabla_puntos.h"
#include "textos.h"

#include <QAction>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace plano {

using Qlt4_Tabla::TablaWidget;

namespace {

constexpr QSize TALLA(1360, 820);
constexpr QSize MARCO(16, 40); // room for the window's frame
constexpr int MAX_RESUMEN = 10'000; // rows that a summary reads at every move of the selection

/// The longest run of consecutive rows; the first of equal ones.
std::pair<int, int> tramo_seguido(const std::vector<int>& filas) {
    std::pair<int, int> mejor(filas.front(), filas.front());
    int desde = filas.front();
    for (std::size_t i = 1; i < filas.size(); ++i) {
        if (filas[i] != filas[i - 1] + 1) desde = filas[i];
        if (filas[i] - desde > mejor.second - mejor.first) mejor = {desde, filas[i]};
    }
    return mejor;
}

} // namespace

Ventana::Ventana(const std::vector<Muestra>& muestras, int filas, Recuerdo recuerdo, const QString& ajustes)
    : widget_(new TablaWidget),
      tabla_(widget_->tabla()),
      plano_(new VistaPlano(tabla_.tablero())),
      recuerdo_(recuerdo) {
    setWindowTitle(textos::TITULO);
    widget_->pon_fichero_ajustes(ajustes);
    prepara_tabla(tabla_, muestras);
    // Before the points: applying the formats would give every list cell the first value of its list.
    if (recuerdo_ == Recuerdo::Forma)
        tabla_.Tablero_Lee_Formato_Win(textos::APLICACION_AJUSTES, textos::SECCION_AJUSTES);
    carga_puntos(tabla_, muestras, filas);

    auto* division = new QSplitter(this);
    division->addWidget(widget_);
    division->addWidget(plano_);
    division->setChildrenCollapsible(false);
    division->setStretchFactor(1, 1);
    division->setSizes({592, 768});
    setCentralWidget(division);
    pon_menus();
    pon_barra_estado();
    conecta_tabla();
    conecta_plano();
    resize(TALLA.boundedTo(screen()->availableSize() - MARCO));
    widget_->setFocus();
    refresca_estado();
}

void Ventana::pon_menus() {
    const auto accion = [](QMenu* menu, const QString& texto, const QKeySequence& tecla, auto hace) {
        QAction* a = menu->addAction(texto);
        a->setShortcut(tecla);
        QObject::connect(a, &QAction::triggered, menu, hace);
        return a;
    };
    const auto marcada = [&](QMenu* menu, const QString& texto, auto hace) {
        QAction* a = accion(menu, texto, {}, hace);
        a->setCheckable(true);
        a->setChecked(true);
        return a;
    };
    QMenu* archivo = menuBar()->addMenu(textos::MENU_ARCHIVO);
    accion(archivo, textos::SALIR, QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); });

    QMenu* ver = menuBar()->addMenu(textos::MENU_VER);
    accion(
        ver, textos::ENCUADRAR_TODO, QKeySequence(Qt::CTRL | Qt::Key_0), [this] { plano_->encuadra_todo(); });
    accion(ver, textos::ENCUADRAR_SELECCION, QKeySequence(Qt::CTRL | Qt::Key_9),
        [this] { plano_->encuadra_seleccion(); });
    accion(ver, textos::ACERCAR, QKeySequence(Qt::CTRL | Qt::Key_Plus), [this] { plano_->acerca(); });
    accion(ver, textos::ALEJAR, QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { plano_->aleja(); });
    ver->addSeparator();
    marcada(ver, textos::VER_NOMBRES, [this](bool si) { plano_->con_nombres(si); });
    marcada(ver, textos::VER_CUADRICULA, [this](bool si) { plano_->con_cuadricula(si); });
    ver->addSeparator();
    ver_tabla_ = marcada(ver, textos::VER_TABLA, [this](bool si) { ve_tabla(si); });
    ver_tabla_->setShortcut(Qt::Key_F6);
    accion(ver, textos::COLUMNAS, {},
        [this] { tabla_.mandos().orden(Qlt4_Tabla::Opcion::MN_editor_de_columnas); });

    QMenu* ayuda = menuBar()->addMenu(textos::MENU_AYUDA);
    const auto explica = [this](const QString& texto) {
        auto* caja =
            new QMessageBox(QMessageBox::Information, textos::TITULO, texto, QMessageBox::NoButton, this);
        caja->addButton(textos::ACEPTAR, QMessageBox::AcceptRole);
        caja->setAttribute(Qt::WA_DeleteOnClose);
        caja->open();
    };
    accion(ayuda, textos::RATON, {}, [explica] { explica(textos::SOBRE_RATON); });
    accion(ayuda, textos::DATOS, {}, [explica] { explica(textos::SOBRE_DATOS); });
}

void Ventana::pon_barra_estado() {
    for (QLabel** etiqueta : {&cuenta_, &seleccion_, &coordenadas_}) {
        *etiqueta = new QLabel(this);
        (*etiqueta)->setTextFormat(Qt::PlainText);
        (*etiqueta)->setContentsMargins(6, 0, 12, 0);
    }
    // Room for any coordinates of the ground, so that nothing moves while the pointer does.
    const QString ancho = textos::COORDENADAS.arg(QStringLiteral("000000.00"), QStringLiteral("000000.00"));
    coordenadas_->setMinimumWidth(coordenadas_->fontMetrics().horizontalAdvance(ancho) + 20);
    coordenadas_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    statusBar()->addWidget(cuenta_);
    statusBar()->addWidget(seleccion_, 1);
    statusBar()->addPermanentWidget(coordenadas_);
}

// What the table tells goes to the plan, which reads the changed rows when it draws itself again.
void Ventana::conecta_tabla() {
    connect(widget_, &TablaWidget::CambiaCasilla, this, [this] {
        const auto& t = tabla_.tablero(); // the committed cell is still the current one
        if (t.Col() == INUNDACION) colorea_escrito(tabla_, t.Row());
    });
    connect(widget_, &TablaWidget::SelChange, this, [this] {
        statusBar()->clearMessage();
        plano_->seleccion_cambiada();
        refresca_estado();
    });
    connect(widget_, &TablaWidget::Salir, ver_tabla_, &QAction::trigger);
    connect(widget_, &TablaWidget::celdas_cambiadas, this,
        [this](int fila1, int, int fila2, int) { plano_->filas_cambiadas(fila1, fila2); });
    connect(widget_, &TablaWidget::filas_insertadas, plano_, &VistaPlano::filas_insertadas);
    connect(widget_, &TablaWidget::filas_borradas, plano_, &VistaPlano::filas_borradas);
    connect(widget_, &TablaWidget::contenido_cambiado, plano_, &VistaPlano::todo_cambiado);
    connect(plano_, &VistaPlano::puntos_leidos, this, &Ventana::refresca_estado);
}

// The picks of the plan become moves in the table; SelChange then brings them back to the plan.
void Ventana::conecta_plano() {
    const auto elige_punto = [this](int fila) {
        const int col = std::max<int>(tabla_.tablero().Col(), NOMBRE);
        elige(fila, col, fila, col);
    };
    connect(plano_, &VistaPlano::punto_elegido, this, elige_punto);
    connect(plano_, &VistaPlano::punto_abierto, this, [this, elige_punto](int fila) {
        elige_punto(fila);
        ver_tabla_->setChecked(true);
        ve_tabla(true);
    });
    connect(plano_, &VistaPlano::punto_extendido, this,
        [this](int fila) { elige(tabla_.tablero().Row(), NOMBRE, fila, tabla_.Cols() - 1); });
    connect(plano_, &VistaPlano::puntos_elegidos, this, &Ventana::elige_recuadro);
    connect(plano_, &VistaPlano::puntero_en, this, [this](QPointF m) {
        coordenadas_->setText(textos::COORDENADAS.arg(m.x(), 0, 'f', 2).arg(m.y(), 0, 'f', 2));
    });
    connect(plano_, &VistaPlano::puntero_fuera, coordenadas_, &QLabel::clear);
}

// The table shows the current cell by itself; here the whole block, in the middle where it fits.
void Ventana::elige(int fila, int col, int fila_sel, int col_sel) {
    const auto [desde, hasta] = std::minmax(fila, fila_sel);
    const int caben = Qlt4_Tabla::filas_visibles(tabla_.tablero());
    const int arriba = tabla_.tablero().TopRow();
    const bool a_la_vista = desde >= arriba && hasta < arriba + caben;
    tabla_.mandos().elige_bloque(fila, col, fila_sel, col_sel);
    const int antes = std::max(1, (caben - (hasta - desde + 1)) / 2);
    const int ultima = Qlt4_Tabla::fila_superior_maxima(tabla_.tablero());
    if (!a_la_vista) tabla_.A_RowTop(std::clamp(desde - antes, 1, std::max(1, ultima)));
}

// A table selects one block of rows: of scattered rows it takes the longest run, and says so.
void Ventana::elige_recuadro(const std::vector<int>& filas) {
    if (filas.empty()) return;
    const auto [desde, hasta] = tramo_seguido(filas);
    elige(desde, NOMBRE, hasta, tabla_.Cols() - 1);
    const int n = static_cast<int>(filas.size());
    if (hasta - desde + 1 < n)
        statusBar()->showMessage(textos::RECUADRO_SEGUIDAS.arg(n).arg(desde).arg(hasta), 6000);
}

void Ventana::refresca_estado() {
    const Puntos& puntos = plano_->puntos();
    const int n = puntos.situados();
    QString texto = n == 1 ? textos::UN_PUNTO : textos::PUNTOS.arg(n);
    if (const int faltan = puntos.filas() - n) texto = textos::SIN_SITUAR.arg(texto).arg(faltan);
    cuenta_->setText(texto);
    seleccion_->setText(resumen_seleccion());
}

// TextMatrix hands numbers out with a decimal comma, and "0" for an empty one.
QString Ventana::resumen_seleccion() {
    const Qlt4_Tabla::Bloque sel = tabla_.tablero().seleccion();
    const int desde = std::max(1, sel.fila1);
    const int n = sel.fila2 - desde + 1;
    if (n < 1) return {};
    if (n > MAX_RESUMEN) return textos::SELECCION_MUCHOS.arg(n);
    double cota = 0, zinc = 0;
    for (int fila = desde; fila <= sel.fila2; ++fila) {
        cota += lee_numero(tabla_.TextMatrix(fila, COTA)).value_or(0);
        zinc += lee_numero(tabla_.TextMatrix(fila, ZINC)).value_or(0);
    }
    const QString cota_media = QString::number(cota / n, 'f', 3);
    const QString zinc_medio = QString::number(zinc / n, 'f', 0);
    if (n > 1) return textos::SELECCION_VARIOS.arg(n).arg(cota_media, zinc_medio);
    return textos::SELECCION_UNO.arg(
        QString::fromStdString(tabla_.TextMatrix(desde, NOMBRE)), cota_media, zinc_medio);
}

// Whoever leaves the table has the plan alone, until the table is asked for again.
void Ventana::ve_tabla(bool si) {
    widget_->setVisible(si);
    if (si) {
        statusBar()->clearMessage();
        widget_->setFocus();
    } else {
        plano_->setFocus();
        statusBar()->showMessage(textos::TABLA_OCULTA.arg(ver_tabla_->shortcut().toString()));
    }
}

// True: nothing is lost, or the user wants it so.
bool Ventana::puede_cerrar() {
    tabla_.mandos().editor().confirma_y_cierra(); // what is still being typed counts, too
    if (tabla_.estado().Modificado == 0) return true;
    QMessageBox caja(
        QMessageBox::Question, textos::TITULO, textos::GUARDAR_CAMBIOS, QMessageBox::NoButton, this);
    QPushButton* const si = caja.addButton(textos::SI, QMessageBox::YesRole);
    QPushButton* const no = caja.addButton(textos::NO, QMessageBox::NoRole);
    caja.setEscapeButton(caja.addButton(textos::CANCELAR, QMessageBox::RejectRole));
    caja.setDefaultButton(si);
    caja.exec();
    if (caja.clickedButton() == no) return true;
    if (caja.clickedButton() != si) return false;
    tabla_.mandos().orden(Qlt4_Tabla::Opcion::Mnu_Tabla_Guardar_como);
    return tabla_.estado().Modificado == 0; // else no file was chosen or written
}

void Ventana::closeEvent(QCloseEvent* e) {
    if (!puede_cerrar()) return e->ignore();
    if (recuerdo_ == Recuerdo::Forma) guarda_forma();
    QMainWindow::closeEvent(e);
}

// The widths that the user dragged go into the formats first.
void Ventana::guarda_forma() {
    tabla_.Editor_Tabl_graba();
    try {
        tabla_.Tablero_Graba_Formato_Win(textos::APLICACION_AJUSTES, textos::SECCION_AJUSTES);
    } catch (const Qlt4_Tabla::Error& error) {
        QMessageBox caja(QMessageBox::Warning, textos::TITULO,
            textos::AJUSTES_SIN_ESCRIBIR.arg(QString::fromStdString(error.descripcion())),
            QMessageBox::NoButton, this);
        caja.addButton(textos::ACEPTAR, QMessageBox::AcceptRole);
        caja.exec();
    }
}

} // namespace plano
