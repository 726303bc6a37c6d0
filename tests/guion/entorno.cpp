// SPDX-License-Identifier: MIT
// The steps of the world around the table: the clipboard, files, dialogs, the decimal sign.
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

void corta_fichero(Conductor& c, Palabras& p) {
    const std::string nombre = p.palabra();
    const auto f = c.ficheros().contenidos.find(nombre);
    const int n = p.entero();
    if (f == c.ficheros().contenidos.end() || n < 0 || f->second.size() < static_cast<std::size_t>(n))
        throw FalloGuion("no file that can be cut so: " + nombre);
    f->second.resize(static_cast<std::size_t>(n));
}

void falla_fichero(Conductor& c, Palabras& p) {
    const std::string nombre = p.palabra();
    c.ficheros().falla(nombre, p.entero());
}

constexpr std::array<std::pair<std::string_view, Paso>, 8> PASOS{{
    {"color", [](Conductor& c, Palabras& p) { c.prepara_color(usuario_de_color(trozos(p.resto()))); }},
    {"elige_fichero", [](Conductor& c, Palabras& p) { c.elige_fichero(p.resto()); }},
    {"corta_fichero", corta_fichero},
    {"falla_fichero", falla_fichero},
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
