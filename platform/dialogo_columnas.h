// SPDX-License-Identifier: MIT
// DialogoColumnas: the column editor as a window, and the rules behind it that the window shows and obeys:
// ModeloColumnas (the form) and RejillaColumnas (its grid with the text box over it). The window holds no rule:
// it tells what the user does, then shows `visto()` and the grid again.
// Lengths and places are twips: those of the grid in its own coordinates, those of the form on the screen.
#pragma once

#include "base/publico.h"
#include "base/rectangulo.h"

#include <optional>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class Tablero;

/// The text box over a cell. What the user does in it changes `texto`; caret and marking count when it opens.
struct CasillaColumnas {
    bool abierta = false;
    std::string texto;
    int inicio = 0; ///< caret in characters; beyond the text: its end
    int longitud = 0; ///< marked characters from there on
    Rectangulo sitio; ///< the cell
    int fila = 0; ///< the cell that it edits
    int col = 0;
};

enum class PulsoRaton { Abajo, Arriba };

/// What the grid of the form hears from the user.
class TABLA_API RejillaColumnas {
public:
    virtual ~RejillaColumnas() = default;

    [[nodiscard]] virtual const Tablero& tablero() const = 0;
    [[nodiscard]] virtual const CasillaColumnas& casilla() const = 0;

    /// The window that the grid has, and the height of its rows.
    virtual void mide(int ancho, int alto, int alto_fila) = 0;
    virtual void desplaza(int fila_superior, int desplazamiento) = 0;

    /// As of the table: a key comes as key down; when that returns false and it types a character, this comes
    /// as key press. Both return whether the key was used.
    virtual bool tecla_abajo(int KeyCode) = 0;
    virtual bool tecla_pulsada(int KeyAscii) = 0;
    /// The left button; a click is both on one cell.
    virtual void raton(PulsoRaton pulso, int x, int y) = 0;

    /// A key of the box: what is left of it, 0 for nothing.
    virtual int tecla_casilla(int KeyAscii) = 0;
    /// The user changed the text of the box.
    virtual void escribe_casilla(std::string_view texto) = 0;
    /// The focus went from the box to another part of the form.
    virtual void casilla_pierde_foco() = 0;
};

/// What the form shows at a moment, beside the grid.
struct VistoColumnas {
    std::string titulo;
    bool columna0 = false; ///< `chkColumna0` is ticked
    bool etiqueta = false; ///< `chkEtiquetaNfilas` is ticked
    std::string texto_etiqueta; ///< caption of `chkEtiquetaNfilas`
    std::string mensaje; ///< of `labMensaje`
    bool puede_aplicar = false; ///< `butAplicarCambios` and `mn_editor_aplicar` are enabled
    std::optional<float> izquierda; ///< where it opens; nothing: in the middle of the table's window
    std::optional<float> arriba;
    float ancho = 0; ///< its size when it opens
    float alto = 0;
    int ancho_minimo = 0;
    int alto_minimo = 0;
    bool abierto = false; ///< once false, the window closes
};

/// Where the window stood and how large it was.
struct SitioColumnas {
    float izquierda = 0;
    float arriba = 0;
    float ancho = 0;
    float alto = 0;
};

/// The room inside the form below its menu, and what the controls in the bottom strip would like to have.
struct MedidasColumnas {
    int ancho = 0;
    int alto = 0;
    int alto_boton = 0;
    int aplicar = 0; ///< widths from here on
    int cancelar = 0;
    int columna0 = 0;
    int etiqueta = 0;
};

struct DistribucionColumnas {
    Rectangulo rejilla, columna0, etiqueta, mensaje, aplicar, cancelar;
};

enum class OrdenColumnas { Aplicar, PorDefecto, Salir };
enum class MarcaColumnas { Columna0, Etiqueta };

class TABLA_API ModeloColumnas {
public:
    virtual ~ModeloColumnas() = default;

    [[nodiscard]] virtual const VistoColumnas& visto() const = 0;
    [[nodiscard]] virtual RejillaColumnas& rejilla() = 0;
    [[nodiscard]] virtual DistribucionColumnas distribuye(const MedidasColumnas& m) const = 0;

    /// The user ticked or cleared a check box.
    virtual void marca(MarcaColumnas cual, bool marcada) = 0;
    virtual void orden(OrdenColumnas orden) = 0;
    /// The window has closed.
    virtual void cerrado(const SitioColumnas& sitio) = 0;
};

class TABLA_API DialogoColumnas {
public:
    virtual ~DialogoColumnas() = default;

    /// Shows the window and waits until the model closes it; a window closed in another way leaves it. Calls
    /// `cerrado` last.
    virtual void ejecuta(ModeloColumnas& modelo) = 0;
};

/// Is left at once.
class DialogoColumnasNulo final : public DialogoColumnas {
public:
    void ejecuta(ModeloColumnas& modelo) override {
        const VistoColumnas& v = modelo.visto();
        modelo.orden(OrdenColumnas::Salir);
        modelo.cerrado({v.izquierda.value_or(0.0F), v.arriba.value_or(0.0F), v.ancho, v.alto});
    }
};

} // namespace Qlt4_Tabla
