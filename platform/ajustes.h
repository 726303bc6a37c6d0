// SPDX-License-Identifier: MIT
// Ajustes: the per-user settings store: texts by application, section and key. It outlives the program;
// layouts of columns, the last folder used and places of windows are kept in it.
// Application, section, key and value are any bytes, the empty text included, and come back byte for byte;
// keys that differ in a blank or in the case of a letter are different keys.
#pragma once

#include "base/publico.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// One setting of a section. Views: they hold for the call they are made for.
struct Ajuste {
    std::string_view clave;
    std::string_view valor;
};

class TABLA_API Ajustes {
public:
    virtual ~Ajustes() = default;

    /// The value as last written, also by another program; nothing where there is none or the store cannot
    /// be read.
    [[nodiscard]] virtual std::optional<std::string> lee(
        std::string_view aplicacion, std::string_view seccion, std::string_view clave) const = 0;

    /// Writes settings of one section, in their order, and makes them last. All or none: after an error, and
    /// after a crash in the middle, the store holds what it held. Errors of the store: 70, 75, 61 or 57.
    virtual void escribe_todos(
        std::string_view aplicacion, std::string_view seccion, std::span<const Ajuste> ajustes) = 0;

    /// The same for one setting.
    void escribe(std::string_view aplicacion, std::string_view seccion, std::string_view clave,
        std::string_view valor) {
        const Ajuste uno{clave, valor};
        escribe_todos(aplicacion, seccion, {&uno, 1});
    }
};

/// Keeps nothing.
class AjustesNulos final : public Ajustes {
public:
    [[nodiscard]] std::optional<std::string> lee(
        std::string_view, std::string_view, std::string_view) const override {
        return std::nullopt;
    }

    void escribe_todos(std::string_view, std::string_view, std::span<const Ajuste>) override {}
};

} // namespace Qlt4_Tabla
