// SPDX-License-Identifier: MIT
// DialogoFicheroMemoria: the file dialog without a window. Each showing is one line of the record,
// "dialogo_fichero abrir|title|filter|folder|name|extension"; answers are taken from the queue, else the
// user cancels. `movido_a` says where the user drags the dialog.
#pragma once

#include "base/publico.h"
#include "headless/registro.h"
#include "platform/dialogo_fichero.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

class TABLA_API DialogoFicheroMemoria final : public DialogoFichero {
public:
    explicit DialogoFicheroMemoria(Registro& registro) : registro_(&registro) {}

    std::vector<PeticionFichero> vistos;
    std::deque<std::string> rutas; ///< what the user chooses next; an empty one is a cancel
    std::optional<std::pair<float, float>> movido_a; ///< left, top
    std::function<void()> al_mostrar; ///< what happens while the dialog is open

    [[nodiscard]] RespuestaFichero pide(const PeticionFichero& peticion) override;

private:
    Registro* registro_;
};

} // namespace Qlt4_Tabla
