// SPDX-License-Identifier: MIT
// The column editor's window: its widgets, and how they follow the model.
#include "qt/dialogo_columnas.h"

#include "qt/accesible.h"
#include "qt/colores_qt.h"
#include "qt/medidas_rejilla.h"
#include "qt/sitio_ventana.h"
#include "qt/texto_qt.h"
#include "qt/textos.h"
#include "qt/unidades.h"
#include "qt/vista_columnas.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Qlt4_Tabla {

namespace {

constexpr QSize AIRE_BOTON(12, 0); // beside its text, more than the style gives

} // namespace

VentanaColumnas::VentanaColumnas(ModeloColumnas& modelo, QWidget* padre)
    : QDialog(padre),
      modelo_(modelo),
      contenido_(new QWidget(this)),
      rejilla_(new VistaColumnas(modelo.rejilla(), contenido_)),
      columna0_(crea_marca("chkColumna0", a_qstring(textos::ver_columna0), MarcaColumnas::Columna0)),
      etiqueta_(crea_marca("chkEtiquetaNfilas", {}, MarcaColumnas::Etiqueta)),
      mensaje_(new QLabel(contenido_)),
      aplicar_(crea_boton("butAplicarCambios", textos::aplicar_cambios, OrdenColumnas::Aplicar)),
      cancelar_(crea_boton("ButCancelar", textos::salir, OrdenColumnas::Salir)) {
    setObjectName(QStringLiteral("f_Editor"));
    setWindowTitle(a_qstring(modelo.visto().titulo));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    mensaje_->setObjectName(QStringLiteral("labMensaje"));
    mensaje_->setTextFormat(Qt::PlainText);
    // A click beside the controls ends the typing in the box.
    contenido_->setFocusPolicy(Qt::ClickFocus);
    contenido_->setFocusProxy(rejilla_);
    contenido_->installEventFilter(this);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setMenuBar(crea_menu());
    todo->addWidget(contenido_);
    connect(rejilla_, &VistaColumnas::usada, this, &VentanaColumnas::refresca);
    rejilla_->setFocus(Qt::OtherFocusReason);
    refresca();
}

QMenuBar* VentanaColumnas::crea_menu() {
    auto* barra = new QMenuBar(this);
    barra->setNativeMenuBar(false);
    QMenu* menu = barra->addMenu(a_qstring(textos::menu_columnas));
    mn_aplicar_ = crea_accion(*menu, "mn_editor_aplicar", textos::aplicar_cambios, OrdenColumnas::Aplicar);
    crea_accion(
        *menu, "MN_editor_de_columnas_por_defecto", textos::reponer_originales, OrdenColumnas::PorDefecto);
    menu->addSeparator();
    crea_accion(*menu, "mn_editor_salir", textos::salir, OrdenColumnas::Salir);
    return barra;
}

QAction* VentanaColumnas::crea_accion(
    QMenu& menu, const char* nombre, std::string_view texto, OrdenColumnas orden) {
    QAction* accion = menu.addAction(a_qstring(texto));
    accion->setObjectName(QString::fromLatin1(nombre));
    connect(accion, &QAction::triggered, this, [this, orden] { usa(orden); });
    return accion;
}

QPushButton* VentanaColumnas::crea_boton(const char* nombre, std::string_view texto, OrdenColumnas orden) {
    auto* b = new QPushButton(a_qstring(texto), contenido_);
    b->setObjectName(QString::fromLatin1(nombre));
    b->setAutoDefault(false); // Enter belongs to the grid, and to the button that has the focus
    b->installEventFilter(this);
    connect(b, &QPushButton::clicked, this, [this, orden] { usa(orden); });
    return b;
}

QCheckBox* VentanaColumnas::crea_marca(const char* nombre, const QString& texto, MarcaColumnas cual) {
    auto* c = new QCheckBox(texto, contenido_);
    c->setObjectName(QString::fromLatin1(nombre));
    connect(c, &QCheckBox::clicked, this, [this, cual](bool marcada) {
        modelo_.marca(cual, marcada);
        refresca();
    });
    return c;
}

void VentanaColumnas::usa(OrdenColumnas orden) {
    modelo_.orden(orden);
    refresca();
}

void VentanaColumnas::refresca() {
    const VistoColumnas& v = modelo_.visto();
    if (!v.abierto) {
        if (isVisible()) done(Accepted); // how it was left is in the model
        return;
    }
    columna0_->setChecked(v.columna0);
    etiqueta_->setChecked(v.etiqueta);
    const bool mensaje_nuevo = mensaje_->text().isEmpty() && !v.mensaje.empty();
    mensaje_->setText(a_qstring(v.mensaje));
    mensaje_->setToolTip(a_qstring(v.mensaje));
    if (mensaje_nuevo) anuncia(*mensaje_);
    aplicar_->setEnabled(v.puede_aplicar);
    mn_aplicar_->setEnabled(v.puede_aplicar);
    QPalette p = palette();
    p.setColor(QPalette::WindowText, tinta_de_aviso(p));
    if (mensaje_->palette() != p) mensaje_->setPalette(p);
    rejilla_->refresca();
}

// --- Layout and place ---

// The figures are the model's, the natural sizes the widgets'.
void VentanaColumnas::distribuye() {
    const Unidades u(*this);
    etiqueta_->setText(sin_tecla(a_qstring(modelo_.visto().texto_etiqueta)));
    const QSize aplicar = aplicar_->sizeHint() + AIRE_BOTON;
    const QSize cancelar = cancelar_->sizeHint() + AIRE_BOTON;
    const DistribucionColumnas d = modelo_.distribuye({u.twips_x(contenido_->width()),
        u.twips_y(contenido_->height()), u.twips_y(std::max(aplicar.height(), cancelar.height())),
        u.twips_x(aplicar.width()), u.twips_x(cancelar.width()), u.twips_x(columna0_->sizeHint().width()),
        u.twips_x(etiqueta_->sizeHint().width())});
    const auto pon = [&](QWidget& w, const Rectangulo& r) { w.setGeometry(en_px(r, u)); };
    pon(*rejilla_, d.rejilla);
    pon(*columna0_, d.columna0);
    pon(*etiqueta_, d.etiqueta);
    pon(*mensaje_, d.mensaje);
    pon(*aplicar_, d.aplicar);
    pon(*cancelar_, d.cancelar);
    abrevia_etiqueta(etiqueta_->width());
}

// The table's subtitle may be long: what does not fit is read in the tool tip.
void VentanaColumnas::abrevia_etiqueta(int ancho) {
    const QString entero = a_qstring(modelo_.visto().texto_etiqueta);
    const int falta = etiqueta_->sizeHint().width() - ancho;
    etiqueta_->setToolTip(falta > 0 ? entero : QString());
    if (falta <= 0) return;
    const QFontMetrics letra = etiqueta_->fontMetrics();
    const int cabe = letra.horizontalAdvance(entero) - falta;
    etiqueta_->setText(sin_tecla(letra.elidedText(entero, Qt::ElideRight, cabe)));
}

void VentanaColumnas::coloca() {
    const Unidades u(*this);
    const VistoColumnas& v = modelo_.visto();
    setMinimumSize(cabe_en_pantalla(*this, {u.px_x(v.ancho_minimo), u.px_y(v.alto_minimo)}));
    resize(cabe_en_pantalla(*this, {u.px_x(twips_enteros(v.ancho)), u.px_y(twips_enteros(v.alto))}));
    const QPoint medio = parentWidget()->window()->frameGeometry().center() - rect().center();
    const QPoint p(v.izquierda ? u.px_x(twips_enteros(*v.izquierda)) : medio.x(),
        v.arriba ? u.px_y(twips_enteros(*v.arriba)) : medio.y());
    puesta_en_ = QRect(dentro_de_pantalla(*this, p), size());
    move(puesta_en_.topLeft());
}

SitioColumnas VentanaColumnas::sitio() const {
    const Unidades u(*this);
    const VistoColumnas& v = modelo_.visto();
    SitioColumnas s{static_cast<float>(u.twips_x(x())), static_cast<float>(u.twips_y(y())),
        static_cast<float>(u.twips_x(width())), static_cast<float>(u.twips_y(height()))};
    if (pos() == puesta_en_.topLeft()) {
        s.izquierda = v.izquierda.value_or(s.izquierda);
        s.arriba = v.arriba.value_or(s.arriba);
    }
    if (size() == puesta_en_.size()) {
        s.ancho = v.ancho;
        s.alto = v.alto;
    }
    return s;
}

// --- Window events ---

void VentanaColumnas::reject() { usa(OrdenColumnas::Salir); }

bool VentanaColumnas::eventFilter(QObject* objeto, QEvent* e) {
    if (objeto == contenido_ && e->type() == QEvent::Resize) distribuye();
    auto* const boton = qobject_cast<QPushButton*>(objeto);
    if (boton != nullptr && e->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(e)->key();
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
            boton->click();
            return true;
        }
    }
    return QDialog::eventFilter(objeto, e);
}

void VentanaColumnas::changeEvent(QEvent* e) {
    QDialog::changeEvent(e);
    if (mn_aplicar_ == nullptr) return; // still being built
    if (e->type() == QEvent::PaletteChange) refresca();
    if (e->type() == QEvent::FontChange || e->type() == QEvent::StyleChange) distribuye();
}

void DialogoColumnasQt::ejecuta(ModeloColumnas& modelo) {
    const QPointer<VentanaColumnas> ventana = new VentanaColumnas(modelo, widget_.window());
    ventana->coloca();
    ventana->exec();
    // The host may have destroyed its window, and this one with it.
    const VistoColumnas& v = modelo.visto();
    SitioColumnas sitio{v.izquierda.value_or(0.0F), v.arriba.value_or(0.0F), v.ancho, v.alto};
    if (ventana != nullptr) sitio = ventana->sitio();
    if (v.abierto) modelo.orden(OrdenColumnas::Salir);
    modelo.cerrado(sitio);
    delete ventana;
}

} // namespace Qlt4_Tabla
