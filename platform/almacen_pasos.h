// SPDX-License-Identifier: MIT
// AlmacenPasos: where undo steps would be kept. The table calls it before every change; the store that
// ships keeps nothing, so undo does nothing, but each change already stands behind its capture point.
#pragma once

#include "base/publico.h"

namespace Qlt4_Tabla {

class TABLA_API AlmacenPasos {
public:
    virtual ~AlmacenPasos() = default;

    /// The capture point: the table is about to change.
    virtual void graba_paso() = 0;
    /// Brings back the table of step `paso` (1-based).
    virtual void restaura_paso(int paso) = 0;
};

/// Keeps no step.
class AlmacenPasosNulo final : public AlmacenPasos {
public:
    void graba_paso() override {}

    void restaura_paso(int) override {}
};

} // namespace Qlt4_Tabla
