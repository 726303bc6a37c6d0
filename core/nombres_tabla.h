// SPDX-License-Identifier: MIT
// NombresTabla: title, subtitle and file extension of the table, in one fixed-width text of 100
// characters (the caption of the label `labEditor`, which is never shown and serves as storage).
// Fields: 1 title (characters 1-40), 2 subtitle (41-70), 3 extension pattern (71-75), 4 reserved (77-78).
#pragma once

#include "base/publico.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API NombresTabla {
public:
    /// 100 blanks.
    NombresTabla();

    /// Writes a field, padded with blanks or cut to its width in characters; only when `activo` and
    /// `campo` is 1 to 4, otherwise nothing.
    void Tablero_Pon_Nombre(int campo, bool activo, std::string_view valor);
    /// The field without blanks at both ends; empty text unless `activo` and `campo` is 1 to 4.
    [[nodiscard]] std::string Tablero_Lee_Nombre(int campo, bool activo) const;

    [[nodiscard]] std::string titulo() const { return Tablero_Lee_Nombre(1, true); }

    [[nodiscard]] std::string subtitulo() const { return Tablero_Lee_Nombre(2, true); }

    [[nodiscard]] std::string extension() const { return Tablero_Lee_Nombre(3, true); }

private:
    std::u32string texto_;
};

} // namespace Qlt4_Tabla
