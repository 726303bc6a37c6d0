// SPDX-License-Identifier: MIT
// Marco: the component's own frame on the host's window: its size, its labels, its menus and the
// keyboard focus. The texts and flags of labels and menus are kept in the core; this seam only says
// that they changed. Sizes are twips.
#pragma once

#include "base/publico.h"

#include <string_view>

namespace Qlt4_Tabla {

/// The menus that open over the table.
enum class Menu { mn_raton, mn_cambio, Mn_Especial_puntos, mn_raton3 };

/// Where a menu opens: at the mouse, at the current cell, or under the toolbar button "Propiedades".
enum class DondeMenu { Raton, CeldaActual, BotonOpciones };

class TABLA_API Marco {
public:
    virtual ~Marco() = default;

    [[nodiscard]] virtual float ancho() const = 0;
    [[nodiscard]] virtual float alto() const = 0;
    /// Sets both in one step; a negative size counts as 0.
    virtual void pon_tamano(float ancho, float alto) = 0;
    /// A label's text or visibility changed; the frame lays itself out again, so that the grid makes room.
    virtual void etiquetas_cambiadas() = 0;
    /// A menu item's caption, visibility, enabling or check mark changed.
    /// The same for a button of the toolbar.
    virtual void menus_cambiados() = 0;
    /// Opens a menu and returns at once; what the user chooses comes back as a call of its own.
    virtual void abre_menu(Menu menu, DondeMenu donde) = 0;
    /// Gives the keyboard focus to the toolbar.
    virtual void enfoca_barra() = 0;
    /// A persisted property got a new value: the host's form is to be saved again.
    virtual void propiedad_cambiada(std::string_view nombre) = 0;
    /// Gives the keyboard focus to the grid.
    virtual void enfoca_tablero() = 0;
};

/// A frame without a window: it keeps its size and nothing else.
class MarcoNulo final : public Marco {
public:
    [[nodiscard]] float ancho() const override { return ancho_; }

    [[nodiscard]] float alto() const override { return alto_; }

    void pon_tamano(float ancho, float alto) override {
        ancho_ = ancho < 0 ? 0 : ancho;
        alto_ = alto < 0 ? 0 : alto;
    }

    void etiquetas_cambiadas() override {}

    void menus_cambiados() override {}

    void abre_menu(Menu, DondeMenu) override {}

    void enfoca_barra() override {}

    void propiedad_cambiada(std::string_view) override {}

    void enfoca_tablero() override {}

private:
    float ancho_ = 4000;
    float alto_ = 2000;
};

} // namespace Qlt4_Tabla
