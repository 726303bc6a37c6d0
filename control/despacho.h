// SPDX-License-Identifier: MIT
// Despacho: calls the members of a table by identifier or by name with values of any type, as hosts do
// that are not bound to the class:
//
//   Despacho despacho(tabla);
//   despacho.invoca("TextMatrix", Acceso::Pone, {1, 2, "12.5"});
//
// Main name: Despacho. The members as data: control/miembros.h. Values: base/variante.h.
#pragma once

#include "base/publico.h"
#include "base/variante.h"
#include "control/_tabla0.h"
#include "control/miembros.h"

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API Despacho {
public:
    /// The table must outlive it.
    explicit Despacho(_Tabla0& tabla) : tabla_(&tabla) {}

    /// Calls the member and gives its result, empty when it has none. The arguments stand in their order,
    /// the value of a put last; those marked optional may be left out at the end or be omitted. An
    /// argument that the member changes has its new value afterwards, in the member's type; the others
    /// stay as they were. All are converted before the member is called; an empty value stands for an
    /// array only where the member gives one back.
    /// Errors: 438 no such member, or not with this access; 450 wrong number of arguments, or one omitted
    /// that is not optional; 13 and 6 of the conversions; whatever the member lets through.
    Variante invoca(std::int32_t dispid, Acceso acceso, std::span<Variante> argumentos);
    /// The same by name, in which the ASCII letters may stand in either case.
    Variante invoca(std::string_view nombre, Acceso acceso, std::span<Variante> argumentos);

    /// For arguments that nobody wants back.
    Variante invoca(std::int32_t dispid, Acceso acceso, std::initializer_list<Variante> argumentos);
    Variante invoca(std::string_view nombre, Acceso acceso, std::initializer_list<Variante> argumentos);

private:
    Variante invoca(const Miembro* m, Acceso acceso, std::span<Variante> argumentos);

    _Tabla0* tabla_;
};

} // namespace Qlt4_Tabla
