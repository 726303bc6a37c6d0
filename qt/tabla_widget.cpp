// SPDX-License-Identifier: MIT
// Builds table, seams and child widgets in the order they need each other, and lays them out.
#include "qt/tabla_widget.h"

#include "qt/accesible.h"
#include "qt/barra_tabla.h"
#include "qt/casilla.h"
#include "qt/colores_qt.h"
#include "qt/lista_celda.h"
#include "qt/menus_qt.h"
#include "qt/puertos_qt.h"
#include "qt/texto_qt.h"
#include "qt/textos.h"
#include "qt/vista_rejilla.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace Qlt4_Tabla {

namespace {

constexpr int MARGEN_TIRA_PX = 6;
constexpr int ANCHO_LIBRE_AVANCE_PX = 60; // beside the text of the progress bar

// The events of the core as the widget's signals.
class EventosQt final : public __Tabla0 {
public:
    explicit EventosQt(TablaWidget& w) : w_(w) {}

    void Salir() override { emit w_.Salir(); }

    void SelChange() override { emit w_.SelChange(); }

    void CambiaCasilla() override { emit w_.CambiaCasilla(); }

    void ACambiadoValorCombo(std::int32_t& Mouse_Row, std::int32_t& Mouse_Col) override {
        emit w_.ACambiadoValorCombo(Mouse_Row, Mouse_Col);
    }

private:
    TablaWidget& w_;
};

} // namespace

struct TablaWidget::Interior {
    Interior(TablaWidget& w, const Sustituye& sustituye)
        : eventos(w),
          puertos(w),
          tabla(sustituye ? sustituye(puertos.plataforma()) : puertos.plataforma(), eventos),
          vista(new VistaRejilla(tabla, &w)),
          casilla(new Casilla(*vista)),
          lista(new ListaCelda(*vista)),
          barra(new BarraTabla(*vista, &w)),
          menus(new MenusQt(*vista, *barra)),
          tira(new QWidget(&w)),
          numero_filas(new QLabel(tira)),
          mensaje(new QLabel(tira)) {
        puertos.conecta(*vista, *casilla, *lista);
    }

    EventosQt eventos;
    PuertosQt puertos;
    Tabla0 tabla;
    VistaRejilla* vista; // the widgets belong to their parents
    Casilla* casilla;
    ListaCelda* lista;
    BarraTabla* barra;
    MenusQt* menus;
    QWidget* tira;
    QLabel* numero_filas;
    QLabel* mensaje;
    QProgressBar* avance = nullptr; // since a command took long for the first time
};

TablaWidget::TablaWidget(QWidget* padre) : TablaWidget(Sustituye(), padre) {}

TablaWidget::TablaWidget(const Sustituye& sustituye, QWidget* padre)
    : QWidget(padre), yo_(std::make_unique<Interior>(*this, sustituye)) {
    setFocusProxy(yo_->vista);
    hazlo_accesible(*this, *yo_->vista);
    yo_->numero_filas->setObjectName(QStringLiteral("labNumeroFilas"));
    yo_->mensaje->setObjectName(QStringLiteral("labMensaje"));
    for (QLabel* etiqueta : {yo_->numero_filas, yo_->mensaje}) etiqueta->setTextFormat(Qt::PlainText);
    yo_->mensaje->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* fila = new QHBoxLayout(yo_->tira);
    fila->setContentsMargins(MARGEN_TIRA_PX, 2, MARGEN_TIRA_PX, 2);
    fila->setSpacing(3 * MARGEN_TIRA_PX);
    fila->addWidget(yo_->numero_filas);
    fila->addWidget(yo_->mensaje, 1);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(0);
    todo->addWidget(yo_->barra);
    todo->addWidget(yo_->vista, 1);
    todo->addWidget(yo_->tira);
    refresca_etiquetas();
}

TablaWidget::~TablaWidget() {
    // An editor that loses its focus while its parents die must find no table to write to.
    yo_->tabla.mandos().editor().descarta();
    delete yo_->barra; // its buttons ask the grid
    delete yo_->vista;
}

Tabla0& TablaWidget::tabla() { return yo_->tabla; }

const Tabla0& TablaWidget::tabla() const { return yo_->tabla; }

void TablaWidget::pon_coma_decimal(std::optional<bool> coma) { yo_->puertos.pon_coma_decimal(coma); }

void TablaWidget::pon_fichero_ajustes(const QString& fichero) { yo_->puertos.ajustes().pon_fichero(fichero); }

QSize TablaWidget::sizeHint() const { return {480, 320}; }

QSize TablaWidget::minimumSizeHint() const { return {120, 90}; }

void TablaWidget::refresca_barra() { yo_->barra->refresca(); }

void TablaWidget::enfoca_barra() { yo_->barra->enfoca(); }

void TablaWidget::abre_menu(Menu menu, DondeMenu donde) { yo_->menus->abre(menu, donde); }

// The strip keeps its height whether its labels show or not: nothing jumps while the user types.
void TablaWidget::refresca_etiquetas() {
    const Etiquetas& e = yo_->tabla.estado().etiquetas;
    const auto pon = [](QLabel* label, const Etiqueta& etiqueta) {
        const QString texto = etiqueta.visible ? QString::fromStdString(etiqueta.texto) : QString();
        const bool nuevo = texto != label->text();
        label->setText(texto);
        return nuevo && !texto.isEmpty();
    };
    pon(yo_->numero_filas, e.labNumeroFilas);
    if (pon(yo_->mensaje, e.labMensaje)) anuncia(*yo_->mensaje);
    yo_->tira->setFixedHeight(fontMetrics().height() + 6);
    QPalette p = palette();
    p.setColor(QPalette::WindowText, es_oscura(p) ? QColor(0xFF, 0x9A, 0x8A) : QColor(0xA8, 0x1C, 0x07));
    yo_->mensaje->setPalette(p);
}

// In the strip's right corner. The command goes on at once: nothing but the strip is painted, and no event
// is let in.
void TablaWidget::muestra_avance(const QString& que, int por_ciento) {
    QProgressBar*& barra = yo_->avance;
    if (barra == nullptr) {
        barra = new QProgressBar(yo_->tira);
        barra->setObjectName(QStringLiteral("avance"));
        yo_->tira->layout()->addWidget(barra);
    }
    barra->setFormat(a_qstring(textos::formato_avance).arg(que));
    barra->setMinimumWidth(fontMetrics().horizontalAdvance(barra->format()) + ANCHO_LIBRE_AVANCE_PX);
    barra->setValue(por_ciento);
    barra->show();
    yo_->tira->layout()->activate();
    yo_->tira->repaint();
}

void TablaWidget::oculta_avance() {
    if (yo_->avance != nullptr) yo_->avance->hide();
}

void TablaWidget::changeEvent(QEvent* e) {
    if (e->type() == QEvent::PaletteChange || e->type() == QEvent::FontChange) refresca_etiquetas();
    QWidget::changeEvent(e);
}

} // namespace Qlt4_Tabla
