// SPDX-License-Identifier: MIT
// What assistive programs see of the grid: one table in the grid's own coordinates, header row and row
// numbers included. A cell is made when it is asked for, so that a table of a million rows costs nothing
// until someone reads it. Main names: hazlo_accesible, CeldasAccesibles.
// What cells are called: qt/nombres_accesibles.h.
#pragma once

#include "qt/nombres_accesibles.h"

#include <QAccessible>
#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <utility>

class QWidget;

namespace Qlt4_Tabla {

class TablaWidget;
class VistaRejilla;

/// Gives the grid its accessible face and tells assistive programs of its moves and changes.
void hazlo_accesible(TablaWidget& widget, VistaRejilla& vista);

/// A message appeared in this label: it is read out at once.
void anuncia(QWidget& etiqueta);

// The cells of one grid that were asked for. The identifier of a cell stays its own while rows come and go
// around it. Beyond MAX_CELDAS_HECHAS those out of sight are forgotten at the next move of the cursor and
// get new identifiers later.
class CeldasAccesibles final : public QObject {
    Q_OBJECT

public:
    static constexpr std::size_t MAX_CELDAS_HECHAS = 4096;

    explicit CeldasAccesibles(VistaRejilla& vista);
    ~CeldasAccesibles() override;

    /// Null outside the grid.
    [[nodiscard]] QAccessibleInterface* celda(int fila, int col);

    [[nodiscard]] std::size_t hechas() const { return ids_.size(); }

    /// Gives the notices of the grid to `oye` in the place of the toolkit, which drops them all where no
    /// assistive program runs. Empty: to the toolkit again.
    void pon_oyente(std::function<void(QAccessibleEvent&)> oye) { oyente_ = std::move(oye); }

    // What the grid tells.
    void filas_insertadas(int fila, int n);
    void filas_borradas(int fila, int n);
    void contenido_cambiado();
    void cursor_movido();
    void celda_actual_cambiada();

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override;

private:
    using Clave = std::uint64_t;

    template <class Lugar>
    void recoloca(Lugar lugar);
    void olvida_lejanas();
    [[nodiscard]] bool alguien_oye() const { return oyente_ || QAccessible::isActive(); }

    void avisa(QAccessibleEvent& e);
    void avisa_foco();
    void avisa_filas(int tipo, int fila, int n);

    VistaRejilla& vista_;
    std::unordered_map<Clave, QAccessible::Id> ids_;
    std::function<void(QAccessibleEvent&)> oyente_;
};

} // namespace Qlt4_Tabla
