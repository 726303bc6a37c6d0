// SPDX-License-Identifier: MIT
// Casilla: the text box laid over a cell. It shows and reads text; what its keys and its focus do is
// decided by the core's in-cell editor. The seam is CajaTexto, served by PuertosQt.
#pragma once

#include "qt/caja_linea.h"

#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "control/tabla0.h"
#endif

namespace Qlt4_Tabla {

class VistaRejilla;

class Casilla final : public CajaLinea {
    Q_OBJECT

public:
    explicit Casilla(VistaRejilla& vista);

    void muestra(const QRect& celda, std::string_view texto);
    void mueve(const QRect& celda);

protected:
    [[nodiscard]] int tecla(int KeyAscii) override;
    bool event(QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;
    void hideEvent(QHideEvent* e) override;
    bool focusNextPrevChild(bool siguiente) override;

private:
    [[nodiscard]] Mandos& mandos();
    [[nodiscard]] bool columna_numerica();

    VistaRejilla& vista_;
};

/// What a loss of focus means for an open editor.
[[nodiscard]] MotivoFoco motivo_de(Qt::FocusReason razon);

} // namespace Qlt4_Tabla
