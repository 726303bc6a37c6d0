// SPDX-License-Identifier: MIT
// DialogoColumnasMemoria: the column editor without a window. Each showing is one line of the record,
// "dialogo_columnas title"; then the user of that showing acts on the model, step by step.
//
//   p.dialogo_columnas.usuario.push_back([](ModeloColumnas& m) {
//       m.rejilla().tecla_abajo(teclas::F2); // the name of the first column
//       m.rejilla().escribe_casilla("Cota");
//       m.rejilla().tecla_casilla(teclas::INTRO);
//       m.orden(OrdenColumnas::Aplicar);
//   });
//
// A user that leaves it open, or none, leaves it by "Salir".
#pragma once

#include "base/publico.h"
#include "headless/registro.h"
#include "platform/dialogo_columnas.h"

#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace Qlt4_Tabla {

class TABLA_API DialogoColumnasMemoria final : public DialogoColumnas {
public:
    explicit DialogoColumnasMemoria(Registro& registro) : registro_(&registro) {}

    std::deque<std::function<void(ModeloColumnas&)>> usuario; ///< one for each showing
    std::vector<VistoColumnas> vistos; ///< how it looked when it opened
    std::optional<SitioColumnas> movido_a; ///< where the user drags it

    void ejecuta(ModeloColumnas& modelo) override;

private:
    Registro* registro_;
};

} // namespace Qlt4_Tabla
