// SPDX-License-Identifier: MIT
// AjustesMemoria: the settings store in memory. Each value written is one line of the record,
// "ajuste application|section|key=value"; reading leaves no line.
#pragma once

#include "base/publico.h"
#include "headless/registro.h"
#include "platform/ajustes.h"

#include <array>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API AjustesMemoria final : public Ajustes {
public:
    explicit AjustesMemoria(Registro& registro) : registro_(&registro) {}

    /// Application, section and key.
    using Lugar = std::array<std::string, 3>;

    std::map<Lugar, std::string> valores;

    /// Every later write raises that error and changes nothing (0: none again). With `desde` above 0 the
    /// store goes on for so many values more; what it wrote of a group that fails is taken back.
    void falla(int numero, int desde = 0);

    [[nodiscard]] std::optional<std::string> lee(
        std::string_view aplicacion, std::string_view seccion, std::string_view clave) const override;
    void escribe_todos(
        std::string_view aplicacion, std::string_view seccion, std::span<const Ajuste> ajustes) override;

private:
    Registro* registro_;
    int numero_ = 0;
    int quedan_ = 0; // values before it fails
};

} // namespace Qlt4_Tabla
