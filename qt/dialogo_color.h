// SPDX-License-Identifier: MIT
// The colour picker `F_color` as a window, and the seam that shows it. The window shows what its model says
// and tells it what the user does; the widgets keep their published names as object names.
// Main names: DialogoColorQt, VentanaColor. The rules: platform/dialogo_color.h.
#pragma once

#include "platform/dialogo_color.h"

#include <QDialog>

#include <array>

class QLabel;
class QLineEdit;
class QPushButton;

namespace Qlt4_Tabla {

class TiraMuestras;

class VentanaColor final : public QDialog {
    Q_OBJECT

public:
    VentanaColor(ModeloColor& modelo, QWidget* padre);

    /// Puts the window where the model says, within the screen.
    void coloca();
    /// Where it stands, in twips: as the model says when nobody has moved it.
    [[nodiscard]] QPointF sitio() const;

    void reject() override;

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override;
    void changeEvent(QEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    QWidget* crea_fila_texto();
    QWidget* crea_fila_capa();
    QWidget* crea_botones();
    QPushButton* crea_boton(const char* nombre, std::string_view texto, BotonColor boton);
    void usa(BotonColor boton);
    void refresca();
    void pinta_muestra(QLabel& label, std::int32_t color);
    void tine_error();
    void ajusta_talla();
    void enfoca_marcada();

    ModeloColor& modelo_;
    std::array<TiraMuestras*, 3> tiras_{};
    QLabel* muestra_ = nullptr;
    QLineEdit* texto_ = nullptr;
    QLabel* error_ = nullptr;
    QWidget* fila_capa_ = nullptr;
    QLabel* muestra_capa_ = nullptr;
    QLabel* nombre_capa_ = nullptr;
    QPushButton* por_capa_ = nullptr;
    QPushButton* otros_ = nullptr;
    QPoint puesta_en_;
};

class DialogoColorQt final : public DialogoColor {
public:
    /// The picker stands over this widget's window.
    explicit DialogoColorQt(QWidget& widget) : widget_(widget) {}

    void ejecuta(ModeloColor& modelo) override;

private:
    QWidget& widget_;
};

} // namespace Qlt4_Tabla
