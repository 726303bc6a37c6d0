// SPDX-License-Identifier: MIT
// The steps of the world around the table: the clipboard, answers to questions, the decimal sign.
#include "tests/guion/pasos.h"

#include <array>
#include <utility>

namespace Qlt4_Tabla {

namespace {

using Paso = void (*)(Conductor&, Palabras&);

bool si_o_no(Palabras& p) {
    if (p.toma("si")) return true;
    p.exige("no");
    return false;
}

constexpr std::array<std::pair<std::string_view, Paso>, 4> PASOS{{
    {"portapapeles", [](Conductor& c, Palabras& p) { c.pon_portapapeles(p.resto()); }},
    {"portapapeles_cerrado", [](Conductor& c, Palabras&) { c.cierra_portapapeles(); }},
    {"responde", [](Conductor& c, Palabras& p) { c.responde(si_o_no(p) ? Respuesta::Si : Respuesta::No); }},
    {"coma", [](Conductor& c, Palabras& p) { c.coma_decimal(si_o_no(p)); }},
}};

} // namespace

bool paso_entorno(Conductor& conductor, std::string_view palabra, Palabras& resto) {
    for (const auto& [nombre, paso] : PASOS) {
        if (nombre != palabra) continue;
        paso(conductor, resto);
        resto.fin();
        return true;
    }
    return false;
}

} // namespace Qlt4_Tabla
