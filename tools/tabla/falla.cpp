// SPDX-License-Identifier: MIT
// Files of the program with their faults in words: tools/tabla/falla.h.
#include "tools/tabla/falla.h"

#include "base/error.h"
#include "tools/tabla/textos.h"

namespace Qlt4_Tabla::herramienta {

namespace {

template <class Trabajo>
decltype(auto) con_nombre(const std::string& nombre, Trabajo&& trabajo) {
    try {
        return trabajo();
    } catch (const Error& e) {
        throw Falla(Salida::SinFichero, nombre + std::string(textos::dos_puntos) + e.descripcion());
    }
}

} // namespace

Bytes lee_fichero(const Ficheros& ficheros, const std::string& nombre) {
    return con_nombre(nombre, [&] { return ficheros.lee(nombre); });
}

void escribe_fichero(Ficheros& ficheros, const std::string& nombre, std::string_view bytes) {
    con_nombre(nombre, [&] { ficheros.escribe_al_inicio(nombre, bytes); });
}

} // namespace Qlt4_Tabla::herramienta
