// SPDX-License-Identifier: MIT
// The file dialog without a window: headless/dialogo_fichero_memoria.h.
#include "headless/dialogo_fichero_memoria.h"

#include <tuple>

namespace Qlt4_Tabla {

RespuestaFichero DialogoFicheroMemoria::pide(const PeticionFichero& p) {
    vistos.push_back(p);
    std::string linea = "dialogo_fichero ";
    linea += p.modo == ModoFichero::Abrir ? "abrir" : "guardar";
    for (const std::string* parte : {&p.titulo, &p.filtro, &p.carpeta, &p.nombre, &p.extension})
        (linea += '|') += *parte;
    registro_->push_back(std::move(linea));
    if (al_mostrar) al_mostrar();
    RespuestaFichero r{{}, p.izquierda, p.arriba};
    if (movido_a) std::tie(r.izquierda, r.arriba) = *movido_a;
    if (rutas.empty()) return r;
    r.ruta = std::move(rutas.front());
    rutas.pop_front();
    return r;
}

} // namespace Qlt4_Tabla
