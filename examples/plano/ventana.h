// SPDX-License-Identifier: MIT
// Ventana: the window of the drawing host. The table at the left and the plan at the right follow each other:
// the table's events go to the plan, the plan's picks to the table, which alone holds the selection.
#pragma once

#include "muestras.h"
#include "qt/tabla_widget.h"
#include "vista_plano.h"

#include <QMainWindow>

#include <vector>

class QAction;
class QLabel;

namespace plano {

class Ventana final : public QMainWindow {
    Q_OBJECT

public:
    /// What the window keeps between two runs.
    enum class Recuerdo { Nada, Forma };

    /// `ajustes`: the file of settings that keeps the layout of the table; empty: the user's. A window that is
    /// only drawn into a picture keeps nothing and looks the same for everyone.
    Ventana(const std::vector<Muestra>& muestras, int filas, Recuerdo recuerdo, const QString& ajustes);

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void pon_menus();
    void pon_barra_estado();
    void conecta_tabla();
    void conecta_plano();
    void elige(int fila, int col, int fila_sel, int col_sel);
    void elige_recuadro(const std::vector<int>& filas);
    void refresca_estado();
    [[nodiscard]] QString resumen_seleccion();
    void ve_tabla(bool si);
    [[nodiscard]] bool puede_cerrar();
    void guarda_forma();

    Qlt4_Tabla::TablaWidget* widget_;
    Qlt4_Tabla::Tabla0& tabla_;
    VistaPlano* plano_;
    Recuerdo recuerdo_;
    QAction* ver_tabla_ = nullptr;
    QLabel* cuenta_ = nullptr;
    QLabel* seleccion_ = nullptr;
    QLabel* coordenadas_ = nullptr;
};

} // namespace plano
