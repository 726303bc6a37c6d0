// SPDX-License-Identifier: MIT
// CajaTexto: the one-line text box `Casilla` that is laid over a cell to edit it. The rules (when it
// opens, what its keys do, when its text is written) live in the in-cell editor; this seam only shows,
// hides and reads the box, so that the rules run without a window.
#pragma once

#include "base/publico.h"
#include "base/rectangulo.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API CajaTexto {
public:
    virtual ~CajaTexto() = default;

    /// Lays the box over `celda` (twips, in the grid's own coordinates), sets its text, puts the caret
    /// behind the text with nothing selected, shows the box and gives it the keyboard focus.
    virtual void muestra(const Rectangulo& celda, std::string_view texto) = 0;
    /// Hides the box. A loss of focus that this causes may be reported; the editor expects it.
    virtual void oculta() = 0;
    /// Lays the open box over `celda` again: the cell moved by scrolling or by a width.
    virtual void mueve(const Rectangulo& celda) = 0;
    /// What the box holds: one line of what was typed, pasted or dropped. While nobody has changed it, the text
    /// as it was given, byte for byte and of any length: a value that stays is no edit.
    [[nodiscard]] virtual std::string texto() const = 0;
    /// Replaces the text; the caret goes behind it, nothing is selected.
    virtual void pon_texto(std::string_view texto) = 0;
    /// Characters from the start of the text to the caret.
    [[nodiscard]] virtual int cursor() const = 0;
    /// Selects `longitud` characters from the character `inicio`; both are clamped to the text.
    virtual void selecciona(int inicio, int longitud) = 0;
};

/// A box that is never seen and keeps nothing.
class CajaTextoNula final : public CajaTexto {
public:
    void muestra(const Rectangulo&, std::string_view) override {}

    void oculta() override {}

    void mueve(const Rectangulo&) override {}

    [[nodiscard]] std::string texto() const override { return {}; }

    void pon_texto(std::string_view) override {}

    [[nodiscard]] int cursor() const override { return 0; }

    void selecciona(int, int) override {}
};

} // namespace Qlt4_Tabla
