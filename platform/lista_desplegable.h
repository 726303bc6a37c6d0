// SPDX-License-Identifier: MIT
// ListaDesplegable: the drop-down `cobLista` that edits a list cell, together with its companion box
// `label1`, which covers the cell behind it and is shown and hidden with it. As with the text box, the
// rules live in the in-cell editor.
#pragma once

#include "base/publico.h"
#include "base/rectangulo.h"

#include <span>
#include <string>

namespace Qlt4_Tabla {

class TABLA_API ListaDesplegable {
public:
    virtual ~ListaDesplegable() = default;

    /// Lays the list over `celda` (twips, in the grid's own coordinates; the list keeps its own height,
    /// `label1` takes the cell's), fills it, selects entry `elegida` (0-based; -1: none), shows it and
    /// gives it the keyboard focus.
    virtual void muestra(const Rectangulo& celda, std::span<const std::string> entradas, int elegida) = 0;
    /// Hides the list and `label1`. A loss of focus that this causes may be reported; the editor expects it.
    virtual void oculta() = 0;
    /// Lays the open list over `celda` again.
    virtual void mueve(const Rectangulo& celda) = 0;
    /// The text of the selected entry; empty when none is selected.
    [[nodiscard]] virtual std::string texto() const = 0;
    /// The selected entry, 0-based; -1: none.
    [[nodiscard]] virtual int elegida() const = 0;
};

/// A list that is never seen and keeps nothing.
class ListaDesplegableNula final : public ListaDesplegable {
public:
    void muestra(const Rectangulo&, std::span<const std::string>, int) override {}

    void oculta() override {}

    void mueve(const Rectangulo&) override {}

    [[nodiscard]] std::string texto() const override { return {}; }

    [[nodiscard]] int elegida() const override { return -1; }
};

} // namespace Qlt4_Tabla
