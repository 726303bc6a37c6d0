// SPDX-License-Identifier: MIT
// The column editor `f_Editor` as a window, and the seam that shows it. The window shows what its model says
// and tells it what the user does; the widgets keep their published names as object names.
// Main names: DialogoColumnasQt, VentanaColumnas. The rules: platform/dialogo_columnas.h. The grid:
// qt/vista_columnas.h.
#pragma once

#include "platform/dialogo_columnas.h"

#include <QDialog>

class QAction;
class QCheckBox;
class QLabel;
class QMenuBar;
class QPushButton;

namespace Qlt4_Tabla {

class VistaColumnas;

class VentanaColumnas final : public QDialog {
    Q_OBJECT

public:
    VentanaColumnas(ModeloColumnas& modelo, QWidget* padre);

    /// Puts the window where the model says, within the screen; or over the table's window.
    void coloca();
    /// Where it stands, in twips: as the model says when nobody has moved or resized it.
    [[nodiscard]] SitioColumnas sitio() const;

    void reject() override;

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override;
    void changeEvent(QEvent* e) override;

private:
    QMenuBar* crea_menu();
    QAction* crea_accion(QMenu& menu, const char* nombre, std::string_view texto, OrdenColumnas orden);
    QPushButton* crea_boton(const char* nombre, std::string_view texto, OrdenColumnas orden);
    QCheckBox* crea_marca(const char* nombre, const QString& texto, MarcaColumnas cual);
    void usa(OrdenColumnas orden);
    void refresca();
    void distribuye();
    void abrevia_etiqueta(int ancho);

    ModeloColumnas& modelo_;
    QWidget* contenido_;
    VistaColumnas* rejilla_;
    QCheckBox* columna0_;
    QCheckBox* etiqueta_;
    QLabel* mensaje_;
    QPushButton* aplicar_;
    QPushButton* cancelar_;
    QAction* mn_aplicar_ = nullptr;
    QRect puesta_en_; // place and size as the model gave them
};

class DialogoColumnasQt final : public DialogoColumnas {
public:
    /// The editor stands over this widget's window.
    explicit DialogoColumnasQt(QWidget& widget) : widget_(widget) {}

    void ejecuta(ModeloColumnas& modelo) override;

private:
    QWidget& widget_;
};

} // namespace Qlt4_Tabla
