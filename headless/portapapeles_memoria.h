// SPDX-License-Identifier: MIT
// PortapapelesMemoria: a clipboard in memory that can refuse. It counts instead of recording: a block of
// text is no line of a record.
#pragma once

#include "base/publico.h"
#include "platform/portapapeles.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API PortapapelesMemoria final : public Portapapeles {
public:
    std::string texto; ///< in the table's own form: every line ends with CR LF
    int lecturas = 0;
    int escrituras = 0; ///< only those that succeeded
    int error_al_leer = 0; ///< number of the error that every reading raises; 0: none
    int error_al_escribir = 0;

    [[nodiscard]] std::string lee() override {
        falla(error_al_leer);
        ++lecturas;
        return texto;
    }

    void escribe(std::string_view nuevo) override {
        falla(error_al_escribir);
        ++escrituras;
        texto = nuevo;
    }

private:
    static void falla(int numero) {
        if (numero != 0) throw Error(numero, std::string(descripcion_error(numero)));
    }
};

} // namespace Qlt4_Tabla
