// SPDX-License-Identifier: MIT
// Conductor: the hands and eyes of a scenario script. It drives one fresh table as a user does (keys to
// whoever has the focus, mouse on cells, wheel, focus) and tells what is seen. The headless one calls the
// table's front door directly (conductor_memoria.h); a widget's one sends real events of its toolkit.
// Read on in guion.h.
#pragma once

#include "base/rectangulo.h"
#include "base/teclas.h"
#include "control/tabla0.h"
#include "core/geometria.h"
#include "editing/editor_celda.h"
#include "headless/ficheros_memoria.h"
#include "headless/foco_memoria.h"
#include "tests/guion/selector_color.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

/// One key. `KeyCode` as in base/teclas.h, 0 for keys without a name there (punctuation); `caracter` is
/// what it types, 0 for none.
struct Pulsacion {
    int KeyCode = teclas::NINGUNA;
    char32_t caracter = 0;
    Modificadores mods;
};

/// What is seen of the in-cell editors. Positions in characters, the place in twips of the grid.
struct EditorVisto {
    bool casilla = false;
    bool lista = false;
    std::string texto; ///< of the box, or of the entry selected in the list
    int cursor = 0;
    int marca_inicio = 0;
    int marca_longitud = 0;
    std::vector<std::string> entradas; ///< of the list
    Rectangulo sitio;
};

/// What the labels below the grid show; empty: nothing.
struct EtiquetasVistas {
    std::string numero_filas;
    std::string mensaje;
};

class Conductor {
public:
    virtual ~Conductor() = default;

    // The user.
    virtual void pulsa(const Pulsacion& tecla) = 0;
    /// A text from an input method or a dead key, to whoever has the focus.
    virtual void compone(std::string_view texto) = 0;
    /// Left click on a cell; row and column -1: on the grid beyond its last cell.
    virtual void clic(Celda celda, Modificadores mods) = 0;
    virtual void clic_derecho(Celda celda) = 0;
    virtual void doble_clic(Celda celda) = 0;
    /// Presses on one cell, moves to the other, releases there.
    virtual void arrastra(Celda desde, Celda hasta, Modificadores mods) = 0;
    virtual void rueda(int signo) = 0;
    /// Drags the bar of the rows until this row is the top one.
    virtual void barra(int fila) = 0;
    /// Clicks a button of the toolbar.
    virtual void boton(std::string_view clave) = 0;
    /// Chooses an item by its name in the menu that is open. A menu that nobody chooses from closes at the
    /// next step.
    virtual void elige_menu(std::string_view nombre) = 0;
    /// The same in the menu of changing entries, by the caption.
    virtual void elige_cambio(std::string_view titulo) = 0;
    /// Moves in the open list to an entry: by the keyboard, or clicks it.
    virtual void elige_entrada(std::string_view texto, bool con_raton) = 0;
    /// The editor or the grid loses the focus for this reason...
    virtual void pierde_foco(MotivoFoco motivo) = 0;
    /// ... and whoever lost it has it again.
    virtual void recupera_foco() = 0;
    /// Drags the right edge of a column until it is `twips` wide.
    virtual void arrastra_borde(int col, int twips) = 0;
    /// The size that the window has for the grid.
    virtual void ventana(int ancho, int alto) = 0;

    // The host.
    [[nodiscard]] virtual Tabla0& tabla() = 0;
    /// What the host does inside an event; the event's line as in the record.
    virtual void al_suceder(std::function<void(std::string_view)> hace) = 0;

    // The world around the table.
    /// Texts in the table's own form: every line ends with CR LF.
    virtual void pon_portapapeles(std::string_view texto) = 0;
    [[nodiscard]] virtual std::string portapapeles() = 0;
    /// From now on the clipboard can be neither read nor written.
    virtual void cierra_portapapeles() = 0;
    /// The answer to the next question that the table asks.
    virtual void responde(Respuesta respuesta) = 0;
    virtual void coma_decimal(bool coma) = 0;
    /// The files that the table sees; they are in memory for every driver.
    [[nodiscard]] virtual FicherosMemoria& ficheros() = 0;
    /// What the user chooses in the next file dialog; an empty path is a cancel.
    virtual void elige_fichero(std::string ruta) = 0;
    /// What the user does in the colour picker when it is shown next.
    virtual void prepara_color(UsuarioColor usuario) = 0;

    // What happened and what is seen.
    /// Events, messages, beeps and capture points since the last call, one line each, in the form of
    /// headless/plataforma_memoria.h. The pointer is none of them.
    [[nodiscard]] virtual std::vector<std::string> recoge() = 0;
    [[nodiscard]] virtual EditorVisto editor() = 0;
    [[nodiscard]] virtual EtiquetasVistas etiquetas() = 0;
    [[nodiscard]] virtual Foco foco() = 0;
};

} // namespace Qlt4_Tabla
