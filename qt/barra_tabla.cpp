// SPDX-License-Identifier: MIT
// The toolbar's buttons, and the keys that walk them: qt/barra_tabla.h.
#include "qt/barra_tabla.h"

#include "qt/dibujos_barra.h"
#include "qt/texto_qt.h"
#include "qt/vista_rejilla.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

#include <cstddef>

namespace Qlt4_Tabla {

namespace {

constexpr int HUECO_PX = 6;
constexpr int MARGEN_BARRA_PX = 2;

struct DibujoBoton {
    const char* clave;
    Dibujo suelto;
    Dibujo pulsado;
};

constexpr DibujoBoton DIBUJOS[] = {
    {"Copiar", Dibujo::Copiar, Dibujo::Copiar},
    {"Pegar", Dibujo::Pegar, Dibujo::Pegar},
    {"Excel", Dibujo::Excel, Dibujo::Excel},
    {"Propiedades", Dibujo::Opciones, Dibujo::Opciones},
    {"Avance", Dibujo::AvanceVertical, Dibujo::AvanceHorizontal},
};

} // namespace

BarraTabla::BarraTabla(VistaRejilla& vista, QWidget* padre) : QWidget(padre), vista_(vista) {
    setObjectName(QStringLiteral("toolBar"));
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(MARGEN_BARRA_PX, MARGEN_BARRA_PX, MARGEN_BARRA_PX, MARGEN_BARRA_PX);
    fila->setSpacing(1);
    for (const BotonBarra& dato : Mandos::barra()) {
        const QString clave = a_qstring(dato.clave);
        if (dato.ayuda.empty()) {
            piezas_.push_back(new QWidget(this));
            piezas_.back()->setFixedWidth(HUECO_PX);
        } else {
            auto* boton = new QToolButton(this);
            boton->setAutoRaise(true);
            boton->setFocusPolicy(Qt::NoFocus);
            boton->setToolTip(a_qstring(dato.ayuda));
            boton->setAccessibleName(boton->toolTip());
            boton->setCheckable(dato.marca.has_value());
            boton->installEventFilter(this);
            connect(boton, &QToolButton::clicked, this, [this, clave = dato.clave] {
                vista_.tabla().mandos().boton(clave);
                refresca(); // the click itself has turned a button that carries a mark
            });
            piezas_.push_back(boton);
        }
        piezas_.back()->setObjectName(clave);
        fila->addWidget(piezas_.back());
    }
    fila->addStretch(1);
    pon_iconos();
    refresca();
}

void BarraTabla::pon_iconos() {
    const int lado = fontMetrics().height() + MARGEN_BARRA_PX * 2;
    for (const DibujoBoton& d : DIBUJOS) {
        auto* boton = findChild<QToolButton*>(QString::fromLatin1(d.clave), Qt::FindDirectChildrenOnly);
        if (boton == nullptr) continue;
        boton->setIcon(icono_de(d.suelto, d.pulsado, palette()));
        boton->setIconSize({lado, lado});
    }
}

void BarraTabla::refresca() {
    const auto datos = Mandos::barra();
    for (std::size_t i = 0; i < piezas_.size(); ++i) {
        piezas_[i]->setVisible(vista_.tabla().mandos().visible(datos[i]));
        if (!datos[i].marca) continue;
        static_cast<QToolButton*>(piezas_[i])
            ->setChecked(vista_.tabla().estado().menus[*datos[i].marca].marcada);
    }
}

void BarraTabla::enfoca() {
    for (QWidget* pieza : piezas_) {
        if (qobject_cast<QToolButton*>(pieza) == nullptr || pieza->isHidden()) continue;
        pieza->setFocus(Qt::ShortcutFocusReason);
        return;
    }
}

QPoint BarraTabla::sitio_de_opciones() const {
    const auto* boton = findChild<QToolButton*>(QStringLiteral("Propiedades"), Qt::FindDirectChildrenOnly);
    return boton->mapToGlobal(QPoint(0, boton->height()));
}

void BarraTabla::pasa_foco(const QToolButton& desde, int paso) {
    const auto n = static_cast<std::ptrdiff_t>(piezas_.size());
    std::ptrdiff_t i = 0;
    while (piezas_[static_cast<std::size_t>(i)] != &desde) ++i;
    do i = (i + paso + n) % n;
    while (qobject_cast<QToolButton*>(piezas_[static_cast<std::size_t>(i)]) == nullptr ||
        piezas_[static_cast<std::size_t>(i)]->isHidden());
    piezas_[static_cast<std::size_t>(i)]->setFocus(Qt::ShortcutFocusReason);
}

bool BarraTabla::tecla(QToolButton& boton, int cual) {
    switch (cual) {
    case Qt::Key_Left: pasa_foco(boton, -1); return true;
    case Qt::Key_Right: pasa_foco(boton, 1); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: boton.click(); return true;
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab: vista_.setFocus(Qt::ShortcutFocusReason); return true;
    default: return false;
    }
}

bool BarraTabla::eventFilter(QObject* objeto, QEvent* e) {
    auto* boton = qobject_cast<QToolButton*>(objeto);
    if (boton != nullptr && e->type() == QEvent::KeyPress)
        if (tecla(*boton, static_cast<QKeyEvent*>(e)->key())) return true;
    return QWidget::eventFilter(objeto, e);
}

void BarraTabla::changeEvent(QEvent* e) {
    if (e->type() == QEvent::PaletteChange || e->type() == QEvent::FontChange) pon_iconos();
    QWidget::changeEvent(e);
}

} // namespace Qlt4_Tabla
