// SPDX-License-Identifier: MIT
// EditorCelda: the in-cell editor. It decides how an edit starts, which keys the box and the list accept,
// when a value is committed and what the host is told. The box `Casilla` and the list `cobLista` are
// seams; the front end reports their keys and focus here and obeys.
// States: closed; open with the box or the list over one cell, fixed when it opens. Escape discards,
// Enter, Space (outside text columns) and any loss of focus commit.
#pragma once

#include "base/publico.h"
#include "core/estado_tabla.h"

#include <functional>
#include <string>
#include <utility>

namespace Qlt4_Tabla {

/// Why the open editor lost the keyboard focus.
enum class MotivoFoco {
    Otro, ///< to another control, by mouse or by code: commits
    Menu, ///< to a popup menu of this window: does not commit
    Ventana, ///< to a message box or another window: does not commit
};

// The editor counts as closed before a commit begins: what the host does in `CambiaCasilla` (a message box
// that takes the focus, rows that go away, another edit) can therefore never commit a value twice. An
// editor that the host opens there stays open, and the cursor does not advance.
class TABLA_API EditorCelda {
public:
    /// `avanza` moves the cursor on after Enter and Space.
    EditorCelda(EstadoTabla& e, std::function<void()> avanza) : e_(e), avanza_(std::move(avanza)) {}

    [[nodiscard]] bool abierta_casilla() const { return que_ == Que::Casilla; }

    [[nodiscard]] bool abierta_lista() const { return que_ == Que::Lista; }

    [[nodiscard]] bool abierto() const { return que_ != Que::Nada; }

    /// The cell being edited; meaningful while open.
    [[nodiscard]] int fila() const { return fila_; }

    [[nodiscard]] int col() const { return col_; }

    // The three ways an edit starts, each over the current cell, which is scrolled into view. An open editor
    // is committed first. A list column opens its list, and nothing while it has no values. Current column
    // beyond 25: error 9.
    /// Double click: message for invisible (with a beep) and locked columns, else opens with all selected.
    void abre_por_doble_clic();
    /// F2: opens without looking at the flags, caret at the end, nothing selected.
    void abre_por_F2();
    /// A character typed on the closed grid (never Enter, Escape or Space): may be swallowed by the first-key
    /// filter, else opens the box with that character as its text. Other codes below 32 than 8 (Backspace)
    /// open nothing. A list opens without the character.
    void abre_por_tecla(int KeyAscii);

    /// A key in the open box, whose cell is scrolled into view for it. Returns the key to be typed, or 0 when
    /// it was dropped or handled.
    int tecla_casilla(int KeyAscii);
    /// A character that reaches the grid while an editor is open (an input method gives several at once):
    /// a key of the editor, typed at the caret of the box. Closed: nothing.
    void teclea(int KeyAscii);
    /// A key in the open list. Returns 0 when it was handled, else the list acts on it itself. Enter and
    /// Space write the entry directly: no capture point, no `CambiaCasilla`, not marked as modified.
    int tecla_lista(int KeyAscii);
    /// An entry was clicked: the focus goes back to the grid, which commits.
    void clic_lista();

    void casilla_pierde_foco(MotivoFoco motivo);
    void lista_pierde_foco(MotivoFoco motivo);

    /// Commits and closes whatever is open: a command that comes from a menu, a toolbar or a dialog. The
    /// focus goes to the grid.
    void confirma_y_cierra();
    /// Closes whatever is open and writes nothing; the focus goes to the grid.
    void descarta();
    /// Scrolling or a width moved the cell: lays the open editor over it again; closes it when the cell
    /// does not exist any more.
    void recoloca();

private:
    enum class Que { Nada, Casilla, Lista };

    bool coloca(); // the placement over the current cell; false when it opened nothing
    void abre_casilla(int fila, int col);
    void abre_lista(int fila, int col);
    void Casilla_Confirma();
    void cobLista_Confirma();
    void escribe_eleccion(); // the list's direct write
    void confirma(const std::string& texto, bool escribe);
    void confirma_y_oculta(); // leaves the focus where it is
    void confirma_y_avanza(); // Enter and Space, open or closed
    template <class F>
    void y_enfoca(F&& hace); // runs it, then gives the focus to the grid
    int filtra(int KeyAscii);
    [[nodiscard]] bool existe_celda() const;
    void enseña_celda();
    void cierra();
    void oculta(Que que);
    void enfoca();

    EstadoTabla& e_;
    std::function<void()> avanza_;
    Que que_ = Que::Nada;
    int fila_ = 0;
    int col_ = 0;
};

} // namespace Qlt4_Tabla
