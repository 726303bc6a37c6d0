// SPDX-License-Identifier: MIT
// Revoca: the undo capture point, the step counters and the switch `A_GrabaRevoca`. The step store that
// ships keeps nothing: every change calls `Graba_Revoca` first, undo does nothing, and redo only keeps
// the counters and the captions of the two menu items.
#pragma once

#include "core/estado_menus.h"
#include "platform/almacen_pasos.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class Revoca {
public:
    explicit Revoca(AlmacenPasos& pasos) : pasos_(&pasos) {}

    /// The capture point, called before a change. Hands on to the step store and changes nothing itself.
    void Graba_Revoca() { pasos_->graba_paso(); }

    /// One step forward where one is recorded: counters, captions ("&Deshacer (n)", "Reh&acer (m)"),
    /// enabling of undo, and the store restores the step; else disables redo.
    void Rehace(EstadoMenus& menus);

    /// "SI" or "NO" exactly; any other text is ignored. Starts as "NO".
    void A_GrabaRevoca(std::string_view valor);

    [[nodiscard]] const std::string& A_GrabaRevoca() const { return graba_; }

    [[nodiscard]] std::int16_t pasoActual() const { return paso_actual_; }

    [[nodiscard]] std::int16_t totalPasos() const { return total_pasos_; }

    /// How many steps the store holds: what a store that keeps steps reports. Never called by this system.
    void totalPasos(std::int16_t n) { total_pasos_ = n; }

private:
    AlmacenPasos* pasos_;
    std::string graba_ = "NO";
    std::int16_t paso_actual_ = 0;
    std::int16_t total_pasos_ = 0;
};

} // namespace Qlt4_Tabla
