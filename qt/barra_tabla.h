// SPDX-License-Identifier: MIT
// BarraTabla: the toolbar `toolBar` over the grid. It mirrors Mandos::barra() and hands clicks on. The mouse
// leaves the keyboard focus where it is; from the keyboard the grid's Alt+F10 comes here, arrows walk the
// buttons, Enter or Space presses one, Escape and Tab go back to the grid.
#pragma once

#include <QWidget>

#include <vector>

class QToolButton;

namespace Qlt4_Tabla {

class VistaRejilla;

class BarraTabla final : public QWidget {
    Q_OBJECT

public:
    BarraTabla(VistaRejilla& vista, QWidget* padre);

    /// Shows what the menus' state says: which buttons, which one pressed.
    void refresca();
    /// The focus on the first button.
    void enfoca();
    /// The place under the button "Propiedades", on the screen.
    [[nodiscard]] QPoint sitio_de_opciones() const;

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override;
    void changeEvent(QEvent* e) override;

private:
    bool tecla(QToolButton& boton, int cual);
    void pasa_foco(const QToolButton& desde, int paso);
    void pon_iconos();

    VistaRejilla& vista_;
    std::vector<QWidget*> piezas_; ///< one for each of Mandos::barra(): buttons and gaps
};

} // namespace Qlt4_Tabla
