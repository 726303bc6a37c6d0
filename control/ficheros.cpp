// SPDX-License-Identifier: MIT
// The commands ask, then read or write: control/ficheros.h.
#include "control/ficheros.h"

#include "control/guarda.h"
#include "files/ordenes_ficheros.h"
#include "files/tabla_fichero.h"
#include "files/textos.h"

#include <string>
#include <utility>

namespace Qlt4_Tabla {

namespace {

using Prefijo = std::string (*)(const EstadoTabla&);

// An error is shown without an icon, with two blanks before its description.
template <class Trabajo>
void con_mensaje(EstadoTabla& e, Prefijo prefijo, Trabajo&& trabajo) {
    const auto forma = [&] {
        return FormaMensaje{prefijo(e), textos::antes_de_descripcion_fichero, EstiloMensaje::Simple};
    };
    guarda_con_forma(e.plataforma.mensajes, forma, {}, std::forward<Trabajo>(trabajo));
}

} // namespace

void lee_fichero(EstadoTabla& e, std::string_view nombre, const std::function<void()>& al_cambiar) {
    con_mensaje(e, prefijo_al_leer, [&] { lee_tabla(e, nombre, al_cambiar); });
}

void graba_fichero(EstadoTabla& e, std::string_view nombre) {
    con_mensaje(e, prefijo_al_guardar, [&] { graba_tabla(e, nombre); });
}

void Mnu_Tabla_Leer(EstadoTabla& e) {
    if (Aviso_Perder_Datos(e) == textos::si) return;
    const std::string nombre = elige_fichero_de_lectura(e);
    if (nombre.empty()) return;
    con_mensaje(e, prefijo_al_leer, [&] { lee_tabla_propia(e, nombre, [] {}); });
}

void Mnu_Tabla_Guardar_como(EstadoTabla& e) {
    const std::string nombre = elige_fichero_de_grabacion(e);
    if (!nombre.empty()) graba_fichero(e, nombre);
}

} // namespace Qlt4_Tabla
