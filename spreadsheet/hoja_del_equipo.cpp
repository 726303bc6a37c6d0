// SPDX-License-Identifier: MIT
// The spreadsheet program of this machine is LibreOffice Calc: platform/hoja_del_equipo.h.
#include "platform/hoja_del_equipo.h"

#include "spreadsheet/hoja_libreoffice.h"

namespace Qlt4_Tabla {

std::unique_ptr<HojaCalculo> hoja_del_equipo(const SeparadorDecimal& separador) {
    return std::make_unique<HojaLibreOffice>(separador);
}

} // namespace Qlt4_Tabla
