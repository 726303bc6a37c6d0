// SPDX-License-Identifier: MIT
// Conveniences for hosts in C++ and Qt, each a few calls of published members: columns from a struct, columns
// of numbers in and out, and the selected rows in and out without answering oneself.
// Main names: Columna, pon_columnas, columna_de, columna_qlist, pon_columna, FilasElegidas.
//
//   pon_columnas(*widget, {{.nombre = "Nombre"}, {.nombre = "X", .formato = T_formato::Real__, .decimales = 3}});
//   const std::vector<double> xs = columna_de(*widget, 2);
//   auto* filas = new FilasElegidas(widget);
//   QObject::connect(filas, &FilasElegidas::cambiadas, plan, &Plan::mark);  // the user selects in the table
//   QObject::connect(plan, &Plan::picked, filas, &FilasElegidas::elige);    // and in the plan
#pragma once

#include "base/publico.h"
#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "core/formato_columna.h"
#include "qt/tabla_widget.h"
#endif

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <span>
#include <vector>

namespace Qlt4_Tabla {

class TablaWidget;

/// One column; what is not named is as a new table has it: text, left, 10 units of 120 twips.
struct Columna {
    QString nombre = {};
    T_formato formato = T_formato::Alfanm;
    int decimales = 0; ///< of real numbers
    T_Alineacion alineacion = T_Alineacion::Izqda;
    T_Accion accion = T_Accion::Nada__; ///< what fills its cell in a new row
    int longitud = 10; ///< width, in units of 120 twips
    bool invisible = false;
    bool bloqueada = false;
    QStringList lista = {}; ///< the values of a column with T_formato::ListaU
};

/// The data columns from column 1 on: sets their count, formats and lists and applies them. Column 0, the row
/// numbers, stays as it is. To be called before the data: formatting anew empties the cells of lists. At most
/// 25. Errors: 9 with more, or for a list column without values where its cells hold something; 6 for a width or
/// decimals beyond 16 bits.
TABLA_API void pon_columnas(TablaWidget& widget, std::span<const Columna> columnas);
TABLA_API void pon_columnas(TablaWidget& widget, std::initializer_list<Columna> columnas);

/// The data cells of a numeric column, element 0 from row 1. A column of another format: a message to the
/// user, and zeros. Error 9: no such column.
[[nodiscard]] TABLA_API std::vector<double> columna_de(TablaWidget& widget, int col);
[[nodiscard]] TABLA_API QList<double> columna_qlist(TablaWidget& widget, int col);

/// Writes a numeric column, element 0 into row 1; rows and elements without a partner are left. Column of
/// another format and errors: as columna_de.
TABLA_API void pon_columna(TablaWidget& widget, int col, std::span<const double> valores);

/// Data rows, ends inclusive; 0..0: none.
struct TramoFilas {
    int primera = 0;
    int ultima = 0;
    friend constexpr bool operator==(const TramoFilas&, const TramoFilas&) = default;
};

/// The selected rows of a table, for a host that shows them elsewhere too. `cambiadas` comes when the user
/// selects other rows, never because of `elige`; so both sides may be connected to each other.
class TABLA_API FilasElegidas : public QObject {
    Q_OBJECT

public:
    /// Belongs to the widget, or to the parent given; outlives neither.
    explicit FilasElegidas(TablaWidget* widget, QObject* padre = nullptr);

    [[nodiscard]] TramoFilas filas() const;

public slots:
    /// Selects whole rows as a user's move does: an open editor commits, the last row is shown. Either order.
    /// Rows that are not there, or that are selected already: nothing.
    void elige(int primera, int ultima);

signals:
    void cambiadas(int primera, int ultima);

private:
    void mira();

    QPointer<TablaWidget> widget_;
    TramoFilas ultimas_;
    bool eligiendo_ = false;
};

} // namespace Qlt4_Tabla
