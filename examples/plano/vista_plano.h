// SPDX-License-Identifier: MIT
// VistaPlano: the plan of the table's points as a widget. It draws from the table's grid and holds no
// selection of its own: what the user picks is told by signals, and drawn when the table has selected it.
#pragma once

#include "encuadre.h"
#include "pintor_plano.h"
#include "puntos.h"

#include <QPixmap>
#include <QWidget>

#include <vector>

namespace plano {

class VistaPlano final : public QWidget {
    Q_OBJECT

public:
    explicit VistaPlano(const Qlt4_Tabla::Tablero& tablero, QWidget* padre = nullptr);

    /// Up to date with the table.
    const Puntos& puntos();

    // What the table tells.
    void filas_cambiadas(int desde, int hasta);
    void filas_insertadas(int fila, int n);
    void filas_borradas(int fila, int n);
    void todo_cambiado();
    /// The selected point is brought into sight, unless the user picked it on the plan.
    void seleccion_cambiada();

    // What the user sees.
    void encuadra_todo();
    void encuadra_seleccion();
    void acerca() { escala(1.5); }
    void aleja() { escala(1 / 1.5); }
    void con_nombres(bool si);
    void con_cuadricula(bool si);

    [[nodiscard]] QSize sizeHint() const override { return {700, 700}; }

    [[nodiscard]] QSize minimumSizeHint() const override { return {200, 160}; }

signals:
    void puntos_leidos(); ///< changed rows were read from the table
    void puntero_en(QPointF metros);
    void puntero_fuera();
    void punto_elegido(int fila); ///< a click
    void punto_extendido(int fila); ///< a click that extends the selection
    void punto_abierto(int fila); ///< a double click
    void puntos_elegidos(const std::vector<int>& filas); ///< a frame around some points; ascending

protected:
    bool event(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void changeEvent(QEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    enum class Mano { Libre, Pulsada, Mueve, Recuadro };

    void escala(double factor);
    void desplaza(QPointF px);
    void repinta_todo();
    void pon_bajo_puntero(int fila);
    void pinta_capa();
    void pinta_recuadro(QPainter& p, const Colores& colores) const;
    [[nodiscard]] int punto_en(QPointF px);
    [[nodiscard]] QString ficha(int fila) const;
    [[nodiscard]] QFont letra() const;

    const Qlt4_Tabla::Tablero& tablero_;
    Puntos puntos_;
    Encuadre encuadre_;
    bool encuadrado_ = true; // all is shown, and stays so when the size changes
    bool nombres_ = true;
    bool cuadricula_ = true;

    QPixmap capa_; // the picture without the selection; null: to be drawn
    SitioNombres sitios_;

    Mano mano_ = Mano::Libre;
    Qt::MouseButton boton_ = Qt::NoButton;
    QPointF pulsado_; // where the button went down
    QPointF ultimo_;
    int bajo_puntero_ = 0;
    bool eligiendo_ = false; // a pick of the user is on its way to the table
};

} // namespace plano
