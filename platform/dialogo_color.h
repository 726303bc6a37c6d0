// SPDX-License-Identifier: MIT
// DialogoColor: the colour picker as a window, and ModeloColor, the rules behind it that the window shows and
// obeys. The window holds no rule: it tells what the user does and then shows `visto()` again.
// Screen colours are 0x00BBGGRR, palette indices 0 to 255, places twips of the screen.
#pragma once

#include "base/publico.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

/// The strips of swatches, from the top: basic colours, greys, all other colours.
enum class TiraColor { Normal, Grises, Especial };
inline constexpr TiraColor TIRAS_COLOR[] = {TiraColor::Normal, TiraColor::Grises, TiraColor::Especial};

struct MuestraColor {
    int indice = 0; ///< in the palette
    std::int32_t color = 0;
    std::string nombre; ///< what it is called: "rojo (1)", "25"
};

/// A strip as a grid of swatches of one size, row by row.
struct MuestrasTira {
    int columnas = 0;
    int filas = 0;
    std::vector<MuestraColor> muestras;
};

/// What the window shows at a moment.
struct VistoColor {
    std::string titulo;
    std::string texto; ///< of the box `TX_color`
    std::int32_t color = 0; ///< of the sample; any number, also one that is no colour
    int indice = -1; ///< the swatch that is marked; -1: none
    std::string error; ///< of the label `LB_error`; empty: hidden
    bool desplegado = false; ///< all strips are seen, else only the first
    bool ofrece_por_capa = false;
    std::int32_t color_capa = 0; ///< beside the by-layer label
    std::string nombre_capa; ///< of the label `LB_por_capa`
    float izquierda = 0; ///< where it opens
    float arriba = 0;
    bool abierto = false; ///< once false, the window closes
};

enum class BotonColor { PorCapa, Otros, Aceptar, Cancelar };

/// A step from swatch to swatch.
enum class PasoColor { Izquierda, Derecha, Arriba, Abajo };

class TABLA_API ModeloColor {
public:
    virtual ~ModeloColor() = default;

    [[nodiscard]] virtual const VistoColor& visto() const = 0;
    [[nodiscard]] virtual const MuestrasTira& tira(TiraColor tira) const = 0;
    /// The palette index under a place of a strip of this width and height, in any unit; -1 outside.
    [[nodiscard]] virtual int muestra_en(
        TiraColor tira, double x, double y, double ancho, double alto) const = 0;

    /// The mouse button was released there; outside the strip: nothing.
    virtual void clic(TiraColor tira, double x, double y, double ancho, double alto) = 0;
    /// The user changed the text of the box; `visto().texto` may be another one afterwards.
    virtual void teclea(std::string_view texto) = 0;
    virtual void camina(PasoColor paso) = 0;
    virtual void boton(BotonColor boton) = 0;
    /// The window has closed; it stood there.
    virtual void cerrado(float izquierda, float arriba) = 0;
};

class TABLA_API DialogoColor {
public:
    virtual ~DialogoColor() = default;

    /// Shows the window and waits until the model closes it; a window closed in another way is cancelled.
    /// Calls `cerrado` last.
    virtual void ejecuta(ModeloColor& modelo) = 0;
};

/// Is cancelled at once.
class DialogoColorNulo final : public DialogoColor {
public:
    void ejecuta(ModeloColor& modelo) override {
        modelo.boton(BotonColor::Cancelar);
        modelo.cerrado(modelo.visto().izquierda, modelo.visto().arriba);
    }
};

} // namespace Qlt4_Tabla
