// SPDX-License-Identifier: MIT
// The table's menus as Qt's: qt/menus_qt.h.
#include "qt/menus_qt.h"

#include "qt/barra_tabla.h"
#include "qt/colores_qt.h"
#include "qt/texto_qt.h"
#include "qt/vista_rejilla.h"

#include <QEvent>
#include <QKeySequence>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QStyle>

#include <algorithm>
#include <cstddef>

namespace Qlt4_Tabla {

namespace {

// A command runs when its menu is gone: it may show a dialog, and that dialog's events destroy the menu.
constexpr Qt::ConnectionType DESPUES = Qt::QueuedConnection;

constexpr qsizetype MAX_ENTRADA = 60; // characters of a cell's text that an entry shows

QString nombre_de(Menu menu) {
    switch (menu) {
    case Menu::mn_raton: return QStringLiteral("mn_raton");
    case Menu::mn_cambio: return QStringLiteral("mn_cambio");
    case Menu::Mn_Especial_puntos: return QStringLiteral("Mn_Especial_puntos");
    case Menu::mn_raton3: break;
    }
    return QStringLiteral("mn_raton3");
}

QIcon muestra(std::int32_t color, const QMenu& menu) {
    const int lado = menu.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &menu);
    QPixmap pixmap(QSize(lado, lado) * menu.devicePixelRatioF());
    pixmap.setDevicePixelRatio(menu.devicePixelRatioF());
    pixmap.fill(menu.palette().color(QPalette::Mid));
    QPainter(&pixmap).fillRect(1, 1, lado - 2, lado - 2, color_de_pantalla(color, menu.palette()));
    return {pixmap};
}

// Texts of cells are shown as they are: no sign of theirs marks a key or parts a shortcut off.
QString entrada(QString texto) {
    if (texto.size() > MAX_ENTRADA) texto = texto.left(MAX_ENTRADA) + QChar(0x2026);
    for (QChar& c : texto)
        if (!c.isPrint()) c = QChar(' ');
    return sin_tecla(texto);
}

} // namespace

MenusQt::MenusQt(VistaRejilla& vista, BarraTabla& barra) : QObject(&vista), vista_(vista), barra_(barra) {
    vista.installEventFilter(this);
}

void MenusQt::abre(Menu menu, DondeMenu donde) {
    if (abierto_) abierto_->close();
    auto* nuevo = new QMenu(&vista_);
    abierto_ = nuevo;
    nuevo->setAttribute(Qt::WA_DeleteOnClose);
    nuevo->setObjectName(nombre_de(menu));
    if (menu == Menu::mn_cambio)
        llena_cambio(*nuevo);
    else
        llena(*nuevo, Mandos::menu(menu));
    nuevo->popup(sitio(donde));
    if (donde == DondeMenu::CeldaActual) {
        const QList<QAction*> acciones = nuevo->actions();
        const auto primera = std::find_if(acciones.begin(), acciones.end(),
            [](const QAction* a) { return a->isVisible() && a->isEnabled(); });
        if (primera != acciones.end()) nuevo->setActiveAction(*primera);
    }
}

void MenusQt::llena(QMenu& menu, std::span<const ElementoMenu> elementos) {
    for (const ElementoMenu& elemento : elementos) {
        QAction* accion = pon(menu, elemento);
        if (!elemento.opcion) continue;
        const EstadoOpcion& estado = vista_.tabla().estado().menus[*elemento.opcion];
        accion->setObjectName(a_qstring(elemento.nombre));
        accion->setVisible(estado.visible);
        accion->setEnabled(estado.activa);
        if (elemento.clase != ClaseElemento::Separador) accion->setText(a_qstring(estado.titulo));
        if (elemento.clase == ClaseElemento::Marca) accion->setChecked(estado.marcada);
    }
}

QAction* MenusQt::pon(QMenu& menu, const ElementoMenu& elemento) {
    if (elemento.clase == ClaseElemento::Separador) return menu.addSeparator();
    if (elemento.clase == ClaseElemento::Submenu) {
        QMenu* hijos = menu.addMenu(QString());
        llena(*hijos, elemento.hijos);
        return hijos->menuAction();
    }
    QAction* accion = menu.addAction(QString());
    accion->setCheckable(elemento.clase == ClaseElemento::Marca);
    if (elemento.clase == ClaseElemento::Encabezado) {
        QFont fuente = menu.font();
        fuente.setBold(true);
        accion->setFont(fuente);
    }
    if (elemento.tecla_con_control != teclas::NINGUNA) {
        // Shown only: the grid itself takes the key, while it has the focus.
        accion->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(elemento.tecla_con_control)));
        accion->setShortcutVisibleInContextMenu(true);
        accion->setShortcutContext(Qt::WidgetShortcut);
    }
    connect(
        accion, &QAction::triggered, &vista_,
        [&vista = vista_, opcion = *elemento.opcion] { vista.tabla().mandos().orden(opcion); }, DESPUES);
    return accion;
}

void MenusQt::llena_cambio(QMenu& menu) {
    const auto& elementos = vista_.tabla().estado().menu_cambio.elementos();
    for (std::size_t i = 0; i < elementos.size(); ++i) {
        if (i == MenuCambio::FIJOS - 1) {
            menu.addSeparator();
            continue;
        }
        QAction* accion = menu.addAction(entrada(a_qstring(elementos[i].titulo)));
        if (elementos[i].color) accion->setIcon(muestra(*elementos[i].color, menu));
        connect(
            accion, &QAction::triggered, &vista_,
            [&vista = vista_, i] { vista.tabla().mandos().elige_cambio(i); }, DESPUES);
    }
}

QPoint MenusQt::sitio(DondeMenu donde) const {
    switch (donde) {
    case DondeMenu::Raton: return vista_.sitio_del_raton();
    case DondeMenu::BotonOpciones: return barra_.sitio_de_opciones();
    case DondeMenu::CeldaActual: break;
    }
    const QWidget& cuadro = *vista_.viewport();
    const QRect celda = vista_.rect_celda(vista_.tablero().Row(), vista_.tablero().Col());
    const QRect visto = celda.intersected(cuadro.rect());
    return cuadro.mapToGlobal(visto.isEmpty() ? cuadro.rect().center() : visto.bottomLeft());
}

bool MenusQt::eventFilter(QObject* objeto, QEvent* e) {
    if (e->type() == QEvent::Hide && abierto_) abierto_->close();
    return QObject::eventFilter(objeto, e);
}

} // namespace Qlt4_Tabla
