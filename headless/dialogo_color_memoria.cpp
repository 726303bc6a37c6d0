// SPDX-License-Identifier: MIT
// The colour picker without a window: headless/dialogo_color_memoria.h.
#include "headless/dialogo_color_memoria.h"

#include <cstddef>
#include <utility>

namespace Qlt4_Tabla {

void DialogoColorMemoria::ejecuta(ModeloColor& modelo) {
    vistos.push_back(modelo.visto());
    registro_->push_back("dialogo_color " + modelo.visto().titulo);
    if (!usuario.empty()) {
        const auto actua = std::move(usuario.front());
        usuario.pop_front();
        actua(modelo);
    }
    if (modelo.visto().abierto) modelo.boton(BotonColor::Cancelar);
    std::pair<float, float> sitio{modelo.visto().izquierda, modelo.visto().arriba};
    if (movido_a) sitio = *movido_a;
    modelo.cerrado(sitio.first, sitio.second);
}

void clic_en_muestra(ModeloColor& modelo, int indice) {
    for (const TiraColor cual : TIRAS_COLOR) {
        const MuestrasTira& tira = modelo.tira(cual);
        for (std::size_t i = 0; i < tira.muestras.size(); ++i) {
            if (tira.muestras[i].indice != indice) continue;
            const int n = static_cast<int>(i);
            modelo.clic(cual, n % tira.columnas + 0.5, n / tira.columnas + 0.5, tira.columnas, tira.filas);
            return;
        }
    }
}

} // namespace Qlt4_Tabla
