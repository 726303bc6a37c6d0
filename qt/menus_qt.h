// SPDX-License-Identifier: MIT
// MenusQt: the table's menus on the window. Each is made from the core's records when it opens, so that captions,
// marks and enabling are those of that moment; what the user chooses is handed to Mandos.
#pragma once

#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "core/elementos_menu.h"
#include "platform/marco.h"
#endif

#include <QObject>
#include <QPointer>

#include <span>

class QAction;
class QMenu;

namespace Qlt4_Tabla {

class BarraTabla;
class VistaRejilla;

class MenusQt final : public QObject {
    Q_OBJECT

public:
    /// Belongs to the grid view, and so do the menus.
    MenusQt(VistaRejilla& vista, BarraTabla& barra);

    /// Pops the menu up and returns; one that is open closes.
    void abre(Menu menu, DondeMenu donde);

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override;

private:
    void llena(QMenu& menu, std::span<const ElementoMenu> elementos);
    QAction* pon(QMenu& menu, const ElementoMenu& elemento);
    void llena_cambio(QMenu& menu);
    [[nodiscard]] QPoint sitio(DondeMenu donde) const;

    VistaRejilla& vista_;
    BarraTabla& barra_;
    QPointer<QMenu> abierto_;
};

} // namespace Qlt4_Tabla
