// SPDX-License-Identifier: MIT
// sin_errores: a step whose numbered errors are ignored by design; whatever follows it goes on. Other
// exceptions pass.
#pragma once

#include "base/error.h"

#include <utility>

namespace Qlt4_Tabla {

/// Runs `paso`; an Error ends it silently where it was raised.
template <class Paso>
void sin_errores(Paso&& paso) {
    try {
        std::forward<Paso>(paso)();
    } catch (const Error&) { // NOLINT(bugprone-empty-catch): ignoring it is the rule
    }
}

} // namespace Qlt4_Tabla
