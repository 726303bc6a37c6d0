// SPDX-License-Identifier: MIT
// BolsaPropiedades: the host's form file as the component sees it at design time: values by key, with a
// default on reading. Errors of the store are raised to the caller.
#pragma once

#include "base/publico.h"
#include "base/variante.h"

#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API BolsaPropiedades {
public:
    virtual ~BolsaPropiedades() = default;

    virtual void escribe(std::string_view clave, const Variante& valor) = 0;
    [[nodiscard]] virtual Variante lee(std::string_view clave, const Variante& por_defecto) const = 0;
};

/// Forgets what is written and reads every default.
class BolsaNula final : public BolsaPropiedades {
public:
    void escribe(std::string_view, const Variante&) override {}

    [[nodiscard]] Variante lee(std::string_view, const Variante& por_defecto) const override {
        return por_defecto;
    }
};

} // namespace Qlt4_Tabla
