// SPDX-License-Identifier: MIT
// hoja_del_equipo: the spreadsheet program of this machine, for a front end that is to include no adapter. It
// is defined in spreadsheet/, whose target is linked beside the front end's.
#pragma once

#include "base/publico.h"
#include "platform/hoja_calculo.h"
#include "platform/separador_decimal.h"

#include <memory>

namespace Qlt4_Tabla {

/// Never null; where there is no program its calls fail with 429. The separator must outlive it.
[[nodiscard]] TABLA_API std::unique_ptr<HojaCalculo> hoja_del_equipo(const SeparadorDecimal& separador);

} // namespace Qlt4_Tabla
