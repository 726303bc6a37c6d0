// SPDX-License-Identifier: MIT
// DialogoColorMemoria: the colour picker without a window. Each showing is one line of the record,
// "dialogo_color title"; then the user of that showing acts on the model, step by step.
//
//   p.dialogo_color.usuario.push_back([](ModeloColor& m) {
//       m.teclea("azul");
//       m.boton(BotonColor::Aceptar);
//   });
//
// A user that leaves it open, or none, cancels it.
#pragma once

#include "base/publico.h"
#include "headless/registro.h"
#include "platform/dialogo_color.h"

#include <deque>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

class TABLA_API DialogoColorMemoria final : public DialogoColor {
public:
    explicit DialogoColorMemoria(Registro& registro) : registro_(&registro) {}

    std::deque<std::function<void(ModeloColor&)>> usuario; ///< one for each showing
    std::vector<VistoColor> vistos; ///< how it looked when it opened
    std::optional<std::pair<float, float>> movido_a; ///< where the user drags it: left, top

    void ejecuta(ModeloColor& modelo) override;

private:
    Registro* registro_;
};

/// A click in the middle of the swatch of that palette index; index 0 and others without a swatch: nothing.
void clic_en_muestra(ModeloColor& modelo, int indice);

} // namespace Qlt4_Tabla
