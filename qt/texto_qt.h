// SPDX-License-Identifier: MIT
// The core's UTF-8 texts as QString.
#pragma once

#include <QString>

#include <string_view>

namespace Qlt4_Tabla {

[[nodiscard]] inline QString a_qstring(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

} // namespace Qlt4_Tabla
