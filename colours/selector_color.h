// SPDX-License-Identifier: MIT
// F_color: the rules of the colour picker. A caller sets its properties, shows it, reads them again:
//
//   F_color selector(e.plataforma.dialogo_color, e.plataforma.mensajes, e.plataforma.ajustes);
//   selector.C_color_elegido_Vb(0x0000FF);
//   selector.C_ejecuta();
//   if (selector.aceptado()) paint(selector.C_color_elegido_Vb());
//
// The window behind it, and what a user does there: platform/dialogo_color.h. Where it stood when it closed
// is kept in the settings store, in twips. Main names: F_color, elige_color, etiqueta_lista.
#pragma once

#include "core/estado_tabla.h"
#include "platform/dialogo_color.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class F_color final : public ModeloColor {
public:
    F_color(DialogoColor& dialogo, Mensajes& mensajes, Ajustes& ajustes);

    [[nodiscard]] const std::string& C_Titulo() const { return visto_.titulo; }

    void C_Titulo(std::string_view titulo) { visto_.titulo = titulo; }

    /// The chosen screen colour. Let: the preselected one, any number; its name or index is in the box where
    /// the palette has it, else the box is empty.
    [[nodiscard]] std::int32_t C_color_elegido_Vb() const { return visto_.color; }

    void C_color_elegido_Vb(std::int32_t color);
    /// The chosen colour as palette index, by the key list; 7 for one that it lacks. Let: preselects the
    /// colour of the index.
    [[nodiscard]] std::int16_t C_NumColorAutocaD() const;
    void C_NumColorAutocaD(std::int32_t indice);
    /// The chosen colour's name; "por capa" after that button.
    [[nodiscard]] std::string C_NomColorAutocaD() const;

    /// Open with all strips?
    void C_expandir_colores(bool si) { visto_.desplegado = si; }

    /// Offer the by-layer choice?
    void C_añadir_BT_por_Capa(bool si) { visto_.ofrece_por_capa = si; }

    /// The screen colour of the main layer.
    void C_Por_capa(std::int32_t color) { visto_.color_capa = color; }

    /// Shows the picker and waits. Errors of the settings store come after the choice was made.
    void C_ejecuta();
    /// Was it accepted?
    [[nodiscard]] bool aceptado() const { return aceptado_; }

    // What the window asks and tells.
    [[nodiscard]] const VistoColor& visto() const override { return visto_; }

    [[nodiscard]] const MuestrasTira& tira(TiraColor tira) const override;
    [[nodiscard]] int muestra_en(
        TiraColor tira, double x, double y, double ancho, double alto) const override;
    void clic(TiraColor tira, double x, double y, double ancho, double alto) override;
    /// The first letters' number, or one of the seven names, blanks around and the case of letters aside;
    /// a text without number is 0, "by layer" in its colour. Beyond 0..255 the text becomes "7", white; below
    /// 0 with a beep.
    void teclea(std::string_view texto) override;
    void camina(PasoColor paso) override;
    void boton(BotonColor boton) override;
    void cerrado(float izquierda, float arriba) override;

private:
    void lee_sitio();
    void graba_sitio();
    void elige(int indice);
    void elige_muestra(int indice);
    void elige_por_capa();
    void acepta();

    DialogoColor& dialogo_;
    Mensajes& mensajes_;
    Ajustes& ajustes_;
    VistoColor visto_;
    bool por_capa_ = false;
    bool aceptado_ = false;
};

/// Lets the user choose a colour in the picker as the table shows it: "Elige Color:", the basic colours at
/// first, no by-layer choice. True: accepted, and `color` is the chosen screen colour; it is so too when the
/// settings store fails afterwards.
bool elige_color(EstadoTabla& e, std::int32_t& color);

/// The texts "1 Rojo" to "16 Negro mate" for 1 to 16; empty for other numbers.
[[nodiscard]] std::string_view etiqueta_lista(int numero) noexcept;

} // namespace Qlt4_Tabla
