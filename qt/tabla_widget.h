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
// A host that may go while one of the table's dialogs is open uses deleteLater, as with any modal dialog.
// All calls on the user-interface thread. The widget owns the table; two widgets share nothing.
#pragma once

#include "base/publico.h"
#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "control/tabla0.h"
#endif

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace Qlt4_Tabla {

class TABLA_API TablaWidget : public QWidget {
    Q_OBJECT

    // What a form file keeps of the table, by its published keys. The last is written and not read back: the
    // host sets the extension at run time.
    Q_PROPERTY(int Cols READ Cols WRITE setCols)
    Q_PROPERTY(int Rows READ Rows WRITE setRows)
    Q_PROPERTY(int Widht READ Widht WRITE setWidht)
    Q_PROPERTY(int Height READ Height WRITE setHeight)
    Q_PROPERTY(QString A_FormatString READ A_FormatString WRITE setA_FormatString)
    Q_PROPERTY(QString A_ExtensionFche READ A_ExtensionFche WRITE olvida_extension)

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

    // The properties of the form file. A setter does what reading its key alone does (core/ciclo_vida.h): the
    // counts are set on the grid as they are, sizes are twips, an empty string changes nothing. Counts below
    // 1, and more cells than a grid may have: nothing.
    [[nodiscard]] int Cols() const;
    [[nodiscard]] int Rows() const;
    [[nodiscard]] int Widht() const;
    [[nodiscard]] int Height() const;
    [[nodiscard]] QString A_FormatString() const;
    [[nodiscard]] QString A_ExtensionFche() const;
    void setCols(int n);
    void setRows(int n);
    void setWidht(int twips);
    void setHeight(int twips);
    void setA_FormatString(const QString& cadena);
    void olvida_extension(const QString& extension);

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
    void muestra_avance(const QString& que, int por_ciento);
    void oculta_avance();

    std::unique_ptr<Interior> yo_;
};

} // namespace Qlt4_Tabla
