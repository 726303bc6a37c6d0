// SPDX-License-Identifier: MIT
// The settings store in memory: headless/ajustes_memoria.h.
#include "headless/ajustes_memoria.h"

#include "base/error.h"

#include <utility>

namespace Qlt4_Tabla {

void AjustesMemoria::falla(int numero, int desde) {
    numero_ = numero;
    quedan_ = desde;
}

std::optional<std::string> AjustesMemoria::lee(
    std::string_view aplicacion, std::string_view seccion, std::string_view clave) const {
    const auto i = valores.find({std::string(aplicacion), std::string(seccion), std::string(clave)});
    if (i == valores.end()) return std::nullopt;
    return i->second;
}

void AjustesMemoria::escribe_todos(
    std::string_view aplicacion, std::string_view seccion, std::span<const Ajuste> ajustes) {
    auto nuevos = valores;
    Registro lineas;
    for (const Ajuste& a : ajustes) {
        if (numero_ != 0 && quedan_-- <= 0) throw Error(numero_, std::string(descripcion_error(numero_)));
        nuevos.insert_or_assign(
            {std::string(aplicacion), std::string(seccion), std::string(a.clave)}, a.valor);
        std::string linea = "ajuste ";
        for (const std::string_view parte : {aplicacion, seccion, a.clave}) (linea += parte) += '|';
        linea.back() = '=';
        lineas.push_back(linea += a.valor);
    }
    valores = std::move(nuevos);
    registro_->insert(registro_->end(), lineas.begin(), lineas.end());
}

} // namespace Qlt4_Tabla
