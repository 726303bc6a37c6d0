// SPDX-License-Identifier: MIT
// The colour picker's window: its widgets, and how they follow the model.
#include "qt/dialogo_color.h"

#include "qt/accesible.h"
#include "qt/caja_linea.h"
#include "qt/colores_qt.h"
#include "qt/sitio_ventana.h"
#include "qt/texto_qt.h"
#include "qt/textos.h"
#include "qt/tira_muestras.h"
#include "qt/unidades.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Qlt4_Tabla {

namespace {

constexpr int ALTO_PLEGADO = 1785; // twips
constexpr int MARGEN_DIALOGO_PX = 10;
constexpr int ESPACIO_PX = 8;
constexpr const char* NOMBRES_TIRA[] = {"Pc_color_normal", "Pc_color_grises", "Pc_color_especial"};
constexpr std::string_view VOCES_TIRA[] = {textos::tira_normal, textos::tira_grises, textos::tira_especial};

// Side of a swatch of the block. A multiple of three: the strips' counts then divide the common width.
int lado(const QWidget& w) { return std::max(21, (w.fontMetrics().height() * 5 / 4 + 2) / 3 * 3); }

// All strips are of one width.
QSize talla_muestra(const QWidget& w, const MuestrasTira& tira, const MuestrasTira& bloque) {
    const int lado_bloque = lado(w);
    const int alto = tira.columnas == bloque.columnas ? lado_bloque : lado_bloque * 5 / 4;
    return {bloque.columnas * lado_bloque / tira.columnas, alto};
}

QLabel* crea_label(std::string_view texto, QWidget* padre) {
    auto* label = new QLabel(a_qstring(texto), padre);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QHBoxLayout* crea_fila(QWidget* fila) {
    auto* caja = new QHBoxLayout(fila);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->setSpacing(ESPACIO_PX);
    return caja;
}

QPointF sitio_de(const VistoColor& v) {
    return {static_cast<qreal>(v.izquierda), static_cast<qreal>(v.arriba)};
}

} // namespace

VentanaColor::VentanaColor(ModeloColor& modelo, QWidget* padre) : QDialog(padre), modelo_(modelo) {
    setObjectName(QStringLiteral("F_color"));
    setWindowTitle(a_qstring(modelo.visto().titulo));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(MARGEN_DIALOGO_PX, MARGEN_DIALOGO_PX, MARGEN_DIALOGO_PX, MARGEN_DIALOGO_PX);
    todo->setSpacing(ESPACIO_PX);
    for (std::size_t i = 0; i < tiras_.size(); ++i) {
        const TiraColor cual = TIRAS_COLOR[i];
        const QSize talla = talla_muestra(*this, modelo.tira(cual), modelo.tira(TiraColor::Especial));
        auto* tira = new TiraMuestras(modelo, cual, talla, this);
        tira->setObjectName(QString::fromLatin1(NOMBRES_TIRA[i]));
        tira->setAccessibleName(a_qstring(VOCES_TIRA[i]));
        connect(tira, &TiraMuestras::usada, this, [this] {
            refresca();
            enfoca_marcada();
        });
        connect(tira, &TiraMuestras::tecleada, this, [this](QKeyEvent* e) {
            texto_->setFocus(Qt::OtherFocusReason);
            texto_->selectAll();
            QCoreApplication::sendEvent(texto_, e);
        });
        todo->addWidget(tira);
        tiras_[i] = tira;
    }
    todo->insertWidget(1, crea_fila_texto());
    todo->insertWidget(2, crea_fila_capa());
    todo->addStretch(1);
    todo->addWidget(crea_botones());
    refresca();
    enfoca_marcada();
}

QWidget* VentanaColor::crea_fila_texto() {
    auto* fila = new QWidget(this);
    auto* caja = crea_fila(fila);
    muestra_ = new QLabel(fila);
    texto_ = new CajaLinea(fila);
    texto_->setObjectName(QStringLiteral("TX_color"));
    texto_->setFixedWidth(texto_->fontMetrics().averageCharWidth() * 14);
    texto_->installEventFilter(this);
    connect(texto_, &QLineEdit::textEdited, this, [this](const QString& texto) {
        modelo_.teclea(texto.toStdString());
        refresca();
    });
    auto* rotulo = crea_label(textos::color_elegido, fila);
    rotulo->setBuddy(texto_);
    error_ = crea_label({}, fila);
    error_->setObjectName(QStringLiteral("LB_error"));
    const int alto = texto_->sizeHint().height();
    muestra_->setFixedSize(2 * alto, alto);
    caja->addWidget(muestra_);
    caja->addWidget(rotulo);
    caja->addWidget(texto_);
    caja->addWidget(crea_label(textos::de_1_a_255, fila));
    caja->addStretch(1);
    caja->addWidget(error_);
    return fila;
}

QWidget* VentanaColor::crea_fila_capa() {
    fila_capa_ = new QWidget(this);
    auto* caja = crea_fila(fila_capa_);
    muestra_capa_ = new QLabel(fila_capa_);
    const int alto = fontMetrics().height();
    muestra_capa_->setFixedSize(2 * alto, alto);
    nombre_capa_ = crea_label({}, fila_capa_);
    nombre_capa_->setObjectName(QStringLiteral("LB_por_capa"));
    caja->addWidget(crea_label(textos::color_capa, fila_capa_));
    caja->addWidget(muestra_capa_);
    caja->addWidget(nombre_capa_, 1);
    return fila_capa_;
}

QPushButton* VentanaColor::crea_boton(const char* nombre, std::string_view texto, BotonColor boton) {
    auto* b = new QPushButton(a_qstring(texto), this);
    b->setObjectName(QString::fromLatin1(nombre));
    connect(b, &QPushButton::clicked, this, [this, boton] { usa(boton); });
    return b;
}

QWidget* VentanaColor::crea_botones() {
    auto* fila = new QWidget(this);
    auto* caja = crea_fila(fila);
    otros_ = crea_boton("BT_otros", textos::otros, BotonColor::Otros);
    por_capa_ = crea_boton("BT_por_capa", textos::por_capa, BotonColor::PorCapa);
    auto* aceptar = crea_boton("BT_aceptar", textos::aceptar, BotonColor::Aceptar);
    aceptar->setDefault(true);
    caja->addWidget(otros_);
    caja->addWidget(por_capa_);
    caja->addStretch(1);
    caja->addWidget(aceptar);
    caja->addWidget(crea_boton("BT_cancelar", textos::cancelar, BotonColor::Cancelar));
    return fila;
}

void VentanaColor::usa(BotonColor boton) {
    modelo_.boton(boton);
    refresca();
    if (boton == BotonColor::Otros) enfoca_marcada(); // its own button is of no more use
}

void VentanaColor::refresca() {
    const VistoColor& v = modelo_.visto();
    if (!v.abierto) {
        done(Accepted); // what was chosen is in the model
        return;
    }
    const QString texto = a_qstring(v.texto);
    if (texto != texto_->text()) texto_->setText(texto);
    pinta_muestra(*muestra_, v.color);
    pinta_muestra(*muestra_capa_, v.color_capa);
    nombre_capa_->setText(a_qstring(v.nombre_capa));
    const bool error_nuevo = error_->text().isEmpty() && !v.error.empty();
    error_->setText(a_qstring(v.error));
    if (error_nuevo) anuncia(*error_);
    for (TiraMuestras* tira : tiras_) tira->refresca();
    tiras_[1]->setVisible(v.desplegado);
    tiras_[2]->setVisible(v.desplegado);
    otros_->setEnabled(!v.desplegado);
    fila_capa_->setVisible(v.ofrece_por_capa);
    por_capa_->setVisible(v.ofrece_por_capa);
    tine_error();
    ajusta_talla();
}

void VentanaColor::pinta_muestra(QLabel& label, std::int32_t color) {
    const QColor fondo = color_de_pantalla(color, palette());
    QPixmap pixmap(label.size() * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(mezcla(fondo, palette().color(QPalette::WindowText), 45));
    QPainter(&pixmap).fillRect(QRect(QPoint(), label.size()).adjusted(1, 1, -1, -1), fondo);
    label.setPixmap(pixmap);
}

void VentanaColor::tine_error() {
    QPalette p = palette();
    p.setColor(QPalette::WindowText, tinta_de_aviso(p));
    if (error_->palette() != p) error_->setPalette(p);
}

// Folded, the window has the height that it is published with, if its font lets it.
void VentanaColor::ajusta_talla() {
    layout()->activate();
    QSize talla = layout()->minimumSize();
    if (!modelo_.visto().desplegado)
        talla.setHeight(std::max(talla.height(), Unidades(*this).px_y(ALTO_PLEGADO)));
    setFixedSize(talla);
    if (isVisible() && dentro_de_pantalla(*this, pos()) != pos()) move(dentro_de_pantalla(*this, pos()));
}

// The keyboard goes on where the marked swatch is; the box keeps it once the user types there.
void VentanaColor::enfoca_marcada() {
    if (texto_->hasFocus()) return;
    for (TiraMuestras* tira : tiras_)
        if (tira->tiene_marcada() && !tira->isHidden()) return tira->setFocus(Qt::OtherFocusReason);
    tiras_[0]->setFocus(Qt::OtherFocusReason);
}

void VentanaColor::coloca() {
    const Unidades u(*this);
    const VistoColor& v = modelo_.visto();
    const QPoint p(u.px_x(twips_enteros(v.izquierda)), u.px_y(twips_enteros(v.arriba)));
    puesta_en_ = dentro_de_pantalla(*this, p);
    move(puesta_en_);
}

QPointF VentanaColor::sitio() const {
    const VistoColor& v = modelo_.visto();
    if (pos() == puesta_en_) return sitio_de(v);
    const Unidades u(*this);
    return {static_cast<qreal>(u.twips_x(pos().x())), static_cast<qreal>(u.twips_y(pos().y()))};
}

void VentanaColor::reject() { usa(BotonColor::Cancelar); }

// Up and down mean nothing in a box of one line: they walk the swatches.
bool VentanaColor::eventFilter(QObject* objeto, QEvent* e) {
    if (objeto == texto_ && e->type() == QEvent::KeyPress) {
        const auto& tecla = *static_cast<QKeyEvent*>(e);
        const bool vertical = tecla.key() == Qt::Key_Up || tecla.key() == Qt::Key_Down;
        if (vertical && camina_con(modelo_, tecla)) {
            refresca();
            return true;
        }
    }
    return QDialog::eventFilter(objeto, e);
}

void VentanaColor::changeEvent(QEvent* e) {
    if (e->type() == QEvent::PaletteChange && error_ != nullptr) refresca();
    QDialog::changeEvent(e);
}

// The first frame is drawn at the screen's own resolution.
void VentanaColor::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    refresca();
}

void DialogoColorQt::ejecuta(ModeloColor& modelo) {
    const QPointer<VentanaColor> ventana = new VentanaColor(modelo, widget_.window());
    ventana->coloca();
    ventana->exec();
    // The host may have destroyed its window, and this one with it.
    QPointF sitio = sitio_de(modelo.visto());
    if (ventana != nullptr) sitio = ventana->sitio();
    if (modelo.visto().abierto) modelo.boton(BotonColor::Cancelar);
    modelo.cerrado(static_cast<float>(sitio.x()), static_cast<float>(sitio.y()));
    delete ventana;
}

} // namespace Qlt4_Tabla
