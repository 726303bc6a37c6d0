// SPDX-License-Identifier: MIT
// Portapapeles: the system clipboard, plain text only. The seam exists so that texts reach the table in its
// own form whatever program made them, and so that a clipboard that refuses can be tried in tests.
#pragma once

#include "base/error.h"
#include "base/publico.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API Portapapeles {
public:
    virtual ~Portapapeles() = default;

    /// The text on the clipboard, UTF-8, every line ended by CR LF, the last one included. Empty when there
    /// is none. A clipboard that cannot be read: an Error.
    [[nodiscard]] virtual std::string lee() = 0;
    /// Puts the text, as it stands, in the place of all that the clipboard offers. When it returns the text
    /// is there; a clipboard that does not take it: an Error (521).
    virtual void escribe(std::string_view texto) = 0;
};

/// Holds nothing and takes nothing: who cuts must not lose what is cut.
class PortapapelesNulo final : public Portapapeles {
public:
    [[nodiscard]] std::string lee() override { return {}; }

    void escribe(std::string_view) override { lanza(NumError::PortapapelesCerrado); }
};

} // namespace Qlt4_Tabla
