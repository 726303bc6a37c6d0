// SPDX-License-Identifier: MIT
// memoria_que_falla: makes `operator new` fail on request, in the whole test program. What std::malloc and
// std::realloc give is not touched.
#pragma once

namespace Qlt4_Tabla {

/// After `n` more allocations one fails; negative: none does (so it begins).
void falla_tras(long n);

} // namespace Qlt4_Tabla
