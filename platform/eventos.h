// SPDX-License-Identifier: MIT
// __Tabla0: the events that the table raises to its host. A host implements what it wants to hear; an
// event comes after the change it tells of, on the thread that caused it.
#pragma once

#include "base/publico.h"

#include <cstdint>

namespace Qlt4_Tabla {

// The name is published and hosts are bound to it, so it keeps its two leading underscores although
// C++ reserves such names for the compiler.
class TABLA_API __Tabla0 { // NOLINT(bugprone-reserved-identifier)
public:
    virtual ~__Tabla0() = default;

    /// 1: the user asked to leave the table: Escape on the closed grid, or "Salir" in the menu. The table
    /// itself does nothing more.
    virtual void Salir() {}

    /// 2: the selection changed by a move of the user, by the advance, or by inserting or deleting rows; the
    /// grid has it already. Never from a member.
    virtual void SelChange() {}

    /// 3: the in-cell editor committed a value that is not empty and not what the cell held; once per
    /// committed cell, which is current unless code moved away meanwhile. Not raised by Enter in a
    /// drop-down, by pastes, fills, row commands or members.
    virtual void CambiaCasilla() {}

    /// 4: a second click changed a list cell; the grid's row and column under the mouse, 1 or
    /// more. What a host writes into them is not looked at.
    virtual void ACambiadoValorCombo(std::int32_t& Mouse_Row, std::int32_t& Mouse_Col) {
        static_cast<void>(Mouse_Row);
        static_cast<void>(Mouse_Col);
    }
};

} // namespace Qlt4_Tabla
