// SPDX-License-Identifier: MIT
// Ficheros: the files of the machine as whole blocks of bytes. Names are UTF-8 and are taken as given,
// relative ones from the program's current folder. The seam exists so that what a full disk, a missing
// permission or a crash leaves behind can be tested.
#pragma once

#include "base/bytes.h"
#include "base/error.h"
#include "base/publico.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

// Errors of reading and writing: 53 no such file (reading only; none is made), 76 its folder is missing,
// 75 a folder, no file or an empty name, 70 no permission, 61 disk full, 57 any other trouble.
class TABLA_API Ficheros {
public:
    virtual ~Ficheros() = default;

    [[nodiscard]] virtual Bytes lee(std::string_view nombre) const = 0;

    /// Puts `bytes` in the place of the first bytes of the file, which is made where it is missing. What a
    /// longer file holds behind them stays. After an error or a crash the file is the old or the new one,
    /// whole.
    virtual void escribe_al_inicio(std::string_view nombre, std::string_view bytes) = 0;

    /// Is there a folder of this name that can be entered?
    [[nodiscard]] virtual bool es_carpeta(std::string_view nombre) const = 0;

    /// The user's own folder; empty when not known.
    [[nodiscard]] virtual std::string carpeta_personal() const = 0;
};

/// A machine without files: reading finds none, writing has no permission.
class FicherosNulos final : public Ficheros {
public:
    [[nodiscard]] Bytes lee(std::string_view) const override { lanza(NumError::SinFichero); }

    void escribe_al_inicio(std::string_view, std::string_view) override { lanza(NumError::PermisoDenegado); }

    [[nodiscard]] bool es_carpeta(std::string_view) const override { return false; }

    [[nodiscard]] std::string carpeta_personal() const override { return {}; }
};

} // namespace Qlt4_Tabla
