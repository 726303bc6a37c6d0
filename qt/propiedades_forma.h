// SPDX-License-Identifier: MIT
// The design-time properties one by one, as form files and form editors ask for them; the rules about all of
// them together are the component's own (core/ciclo_vida.h).
// Main names: propiedad_de_forma, pon_propiedad_de_forma.
#pragma once

#include "base/variante.h"
#include "control/tabla0.h"

#include <string_view>

namespace Qlt4_Tabla {

/// What a form would keep under the key now ("Cols" ...); empty for any other key.
[[nodiscard]] Variante propiedad_de_forma(const Tabla0& tabla, std::string_view clave);

/// Reads the key as a form's, the others as they are now. No error leaves: a value that the rules refuse
/// changes nothing.
void pon_propiedad_de_forma(Tabla0& tabla, std::string_view clave, const Variante& valor);

} // namespace Qlt4_Tabla
