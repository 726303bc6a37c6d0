// SPDX-License-Identifier: MIT
// SeparadorDecimal: does this platform write decimal numbers with a comma? Asked each time it matters,
// because a user may change the setting while the program runs.
#pragma once

#include "base/publico.h"

namespace Qlt4_Tabla {

class TABLA_API SeparadorDecimal {
public:
    virtual ~SeparadorDecimal() = default;

    /// True exactly when the platform's own conversion of 125 / 7 to text contains ",".
    [[nodiscard]] virtual bool es_coma() const = 0;
};

/// A platform that writes decimals with a point.
class SeparadorPunto final : public SeparadorDecimal {
public:
    [[nodiscard]] bool es_coma() const override { return false; }
};

} // namespace Qlt4_Tabla
