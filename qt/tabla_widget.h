// SPDX-License-Identifier: MIT
// TablaWidget: the table as a Qt widget. Put it on a window, reach the table's members through `tabla()`,
// and connect the four events as signals.
//
//   auto* widget = new TablaWidget(parent);
//   Tabla0& t = widget->tabla();
//   t.FormatoColumnas(1, false, false, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 12, "X");
//   t.Tablero_establece_Formato();
//   QObject::connect(widget, &TablaWidget::CambiaCasilla, [&t] { redraw(t); });
//
// All calls on the user-interface thread. The widget owns the table; two widgets share nothing.
#pragma once

#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "control/tabla0.h"
#endif

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace Qlt4_Tabla {

class TablaWidget : public QWidget {
    Q_OBJECT

public:
    /// A host may serve some seams itself, an undo store or its own message boxes: given the widget's, it
    /// returns those that the table is to use. What it puts in must outlive the widget.
    using Sustituye = std::function<Plataforma(const Plataforma&)>;

    explicit TablaWidget(QWidget* padre = nullptr);
    explicit TablaWidget(const Sustituye& sustituye, QWidget* padre = nullptr);
    ~TablaWidget() override;

    [[nodiscard]] Tabla0& tabla();
    [[nodiscard]] const Tabla0& tabla() const;

    /// Does this table write decimals with a comma where it asks the platform? Nothing: as the widget's
    /// locale does.
    void pon_coma_decimal(std::optional<bool> coma);

    /// Where layouts and places of windows are kept from now on: a file of the host's own, or with an empty
    /// name the user's file for all tables.
    void pon_fichero_ajustes(const QString& fichero);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    // The events of the table, by their published names.
    void Salir();
    void SelChange();
    void CambiaCasilla();
    void ACambiadoValorCombo(int Mouse_Row, int Mouse_Col);

    // What a host that shows the rows elsewhere may want to follow. They may come in the middle of a command:
    // note what changed and read it later, when drawing.
    /// Texts, colours or pictures changed in the rectangle; corners inclusive, ascending.
    void celdas_cambiadas(int fila1, int col1, int fila2, int col2);
    void filas_insertadas(int fila, int n);
    void filas_borradas(int fila, int n);
    void contenido_cambiado();
    /// A persisted property got a new value.
    void propiedad_cambiada(const QString& nombre);

protected:
    void changeEvent(QEvent* e) override;

private:
    friend class PuertosQt;
    struct Interior;

    void refresca_etiquetas();
    void refresca_barra();
    void enfoca_barra();
    void abre_menu(Menu menu, DondeMenu donde);

    std::unique_ptr<Interior> yo_;
};

} // namespace Qlt4_Tabla
