// SPDX-License-Identifier: MIT
// The core's UTF-8 texts as QString.
#pragma once

#include <QString>

#include <string_view>

namespace Qlt4_Tabla {

[[nodiscard]] inline QString a_qstring(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

/// A text of the user or the host in a menu or on a button, where "&" marks a key: shown as it is.
[[nodiscard]] inline QString sin_tecla(QString texto) {
    return texto.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace Qlt4_Tabla
