// SPDX-License-Identifier: MIT
// PortapapelesQt: the system clipboard, plain text only. Texts of other programs come in with every line
// closed by CR LF (see base/lineas.h); the table's go out as they stand and as nothing but plain text.
#pragma once

#include "platform/portapapeles.h"

namespace Qlt4_Tabla {

class PortapapelesQt final : public Portapapeles {
public:
    [[nodiscard]] std::string lee() override;
    void escribe(std::string_view texto) override;
};

} // namespace Qlt4_Tabla
