// SPDX-License-Identifier: MIT
// Mandos: the front end's way in. Every event of the window (keys, mouse, wheel, focus, size) is translated
// into one call here; the core decides and answers through the seams of the platform. A front end holds no
// rule of the table. Places are twips in the grid's own coordinates (see core/geometria.h).
// No error leaves a call: it is shown in a message box, "Tabla Tablero - Error nº 9: ...".
#pragma once

#include "base/publico.h"
#include "base/teclas.h"
#include "control/menus.h"
#include "core/elementos_menu.h"
#include "core/estado_tabla.h"
#include "core/geometria.h"
#include "editing/editor_celda.h"
#include "editing/navegacion.h"

#include <cstddef>
#include <functional>
#include <span>
#include <string_view>

namespace Qlt4_Tabla {

enum class Boton { Izquierdo, Derecho, Central };

class TABLA_API Mandos {
public:
    Mandos(EstadoTabla& e, EditorCelda& editor, Navegacion& navegacion);

    // Keys on the closed grid. A key first comes as key down; when that returns false and it has a character,
    // the character comes as key press (see base/pagina1252.h for its code). Ctrl combinations and Tab never
    // come as key presses, nor does the Delete key. Ctrl with Z, X, C or V runs undo, cut, copy or paste; the
    // menu key and Shift+F10 open the menu at the current cell, Alt+F10 goes to the toolbar.
    bool tecla_abajo(int KeyCode, Modificadores mods);
    /// Returns whether the key was used.
    bool tecla_pulsada(int KeyAscii);

    // Mouse on the grid. A press commits an open editor. The second press of a double click comes as
    // `doble_clic` alone; its release is no click. A release on another cell than the press is none either.
    // A release may open a menu: the right button's on the grid, the left one's after selecting.
    void raton_abajo(int x, int y, Boton boton, Modificadores mods);
    void raton_mueve(int x, int y);
    void raton_arriba(int x, int y, Boton boton);
    /// Opens the editor when the place is the current cell, else nothing.
    void doble_clic(int x, int y);
    void rueda(int signo);

    /// The user drags the right edge of a column: the grid's width follows, from 0 to MAX_ANCHO_TWIPS; formats
    /// take it over later. No such column: nothing.
    void arrastra_borde(int col, int ancho);

    // The open editors: what EditorCelda does under the same names, with errors kept inside.
    int tecla_casilla(int KeyAscii);
    int tecla_lista(int KeyAscii);
    void clic_lista();
    void casilla_pierde_foco(MotivoFoco motivo);
    void lista_pierde_foco(MotivoFoco motivo);
    /// To be called when a notice of the view says that widths, heights, rows or the place of the view changed.
    void recoloca_editor();

    /// A command chosen from a menu, a toolbar or by a shortcut: commits an open editor, ends a message in
    /// labMensaje and runs it. An item that has no command here: false, and nothing happens.
    bool orden(Opcion opcion);
    /// A button of the toolbar by its key: the same, then the focus goes back to the grid. A gap or any other
    /// key: false.
    bool boton(std::string_view clave);
    /// An item of the open menu `mn_cambio`, counted from "Cancelar" = 0.
    void elige_cambio(std::size_t elemento);

    // What menus and toolbar consist of, for front ends to mirror; captions, marks and enabling are in
    // EstadoTabla::menus, the lines of `mn_cambio` in EstadoTabla::menu_cambio.
    [[nodiscard]] static std::span<const ElementoMenu> menu(Menu cual);
    [[nodiscard]] static std::span<const BotonBarra> barra();
    [[nodiscard]] bool visible(const BotonBarra& boton) const;

    /// For asking what is open; keys and focus go through the calls above.
    EditorCelda& editor() { return editor_; }

    // The window.
    void vista_redimensionada(int ancho, int alto);
    /// Height of rows without one of their own, from the front end's font.
    void alto_de_filas(int twips);
    void desplaza_filas(int fila_superior);
    void desplaza_columnas(int twips);
    /// Moves the current cell as a user's move does (accessibility, a host's plan): commits an open editor;
    /// selection collapsed on the cell, shown, SelChange raised when it changed. Out of range: nothing.
    void elige_celda(int fila, int col);
    /// Selects the block as a user's move does; see elige_celda.
    void elige_bloque(int fila, int col, int fila_sel, int col_sel);

private:
    void protege(std::string_view lugar, const std::function<void()>& orden);
    void cambia_vista(const std::function<void()>& orden);

    EstadoTabla& e_;
    EditorCelda& editor_;
    Navegacion& navegacion_;
    MenusTabla menus_;
    bool arrastrando_ = false;
    Celda pulsada_; // where the left button went down
};

} // namespace Qlt4_Tabla
