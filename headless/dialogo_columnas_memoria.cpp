// SPDX-License-Identifier: MIT
// The column editor without a window: headless/dialogo_columnas_memoria.h.
#include "headless/dialogo_columnas_memoria.h"

#include <utility>

namespace Qlt4_Tabla {

void DialogoColumnasMemoria::ejecuta(ModeloColumnas& modelo) {
    vistos.push_back(modelo.visto());
    registro_->push_back("dialogo_columnas " + modelo.visto().titulo);
    if (!usuario.empty()) {
        const auto actua = std::move(usuario.front());
        usuario.pop_front();
        actua(modelo);
    }
    const VistoColumnas& v = modelo.visto();
    if (v.abierto) modelo.orden(OrdenColumnas::Salir);
    const SitioColumnas sitio{v.izquierda.value_or(0.0F), v.arriba.value_or(0.0F), v.ancho, v.alto};
    modelo.cerrado(movido_a.value_or(sitio));
}

} // namespace Qlt4_Tabla
