// SPDX-License-Identifier: MIT
// Ficheros: the files of the machine as runs of bytes. Names are UTF-8 and are taken as given,
// relative ones from the program's current folder. The seam exists so that what a full disk, a missing
// permission or a crash leaves behind can be tested.
#pragma once

#include "base/bytes.h"
#include "base/error.h"
#include "base/publico.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// A file that is being read, closed when it goes.
class TABLA_API FicheroAbierto {
public:
    virtual ~FicheroAbierto() = default;

    [[nodiscard]] virtual std::uint64_t tamano() const = 0;

    /// Reads from a place on, up to `n` bytes; fewer only at the end of the file.
    [[nodiscard]] virtual std::size_t lee(std::uint64_t lugar, char* destino, std::size_t n) = 0;
};

/// Bytes in memory, which must outlive it, as a file.
class BytesAbiertos final : public FicheroAbierto {
public:
    explicit BytesAbiertos(std::string_view bytes) : bytes_(bytes) {}

    [[nodiscard]] std::uint64_t tamano() const override { return bytes_.size(); }

    [[nodiscard]] std::size_t lee(std::uint64_t lugar, char* destino, std::size_t n) override {
        if (lugar >= bytes_.size()) return 0;
        return bytes_.copy(destino, n, static_cast<std::size_t>(lugar));
    }

private:
    std::string_view bytes_;
};

// Errors of reading and writing: 53 no such file (reading only; none is made), 76 its folder is missing,
// 75 a folder, no file or an empty name, 70 no permission, 61 disk full, 57 any other trouble.
class TABLA_API Ficheros {
public:
    virtual ~Ficheros() = default;

    /// Opens a file for reading, which may stay open while the table tells how far it has come; never null. The errors
    /// of reading may also come later.
    [[nodiscard]] virtual std::unique_ptr<FicheroAbierto> abre(std::string_view nombre) const = 0;

    /// A whole file. Error 7 too: more than there is memory for.
    [[nodiscard]] Bytes lee(std::string_view nombre) const;

    /// Puts the bytes in the place of the first bytes of the file, which is made where it is missing. What a
    /// longer file holds behind them stays. After an error, also an Error that `bytes` raises, or a crash the file is
    /// the old or the new one, whole. `bytes` may be called again, where a first attempt was refused. Who implements
    /// this says `using Ficheros::escribe_al_inicio`, so that the other one below is seen too.
    virtual void escribe_al_inicio(std::string_view nombre, const DaBytes& bytes) = 0;

    void escribe_al_inicio(std::string_view nombre, std::string_view bytes) {
        escribe_al_inicio(nombre, [bytes](const TomaBytes& toma) { toma(bytes); });
    }

    /// Is there a folder of this name that can be entered?
    [[nodiscard]] virtual bool es_carpeta(std::string_view nombre) const = 0;

    /// The user's own folder; empty when not known.
    [[nodiscard]] virtual std::string carpeta_personal() const = 0;
};

inline Bytes Ficheros::lee(std::string_view nombre) const {
    const std::unique_ptr<FicheroAbierto> fichero = abre(nombre);
    const std::uint64_t tamano = fichero->tamano();
    if (tamano > SIZE_MAX / 2) lanza(NumError::SinMemoria);
    Bytes bytes(static_cast<std::size_t>(tamano));
    bytes.resize(fichero->lee(0, bytes.data(), bytes.size()));
    return bytes;
}

/// A machine without files: reading finds none, writing has no permission.
class FicherosNulos final : public Ficheros {
public:
    [[nodiscard]] std::unique_ptr<FicheroAbierto> abre(std::string_view) const override {
        lanza(NumError::SinFichero);
    }

    using Ficheros::escribe_al_inicio;
    void escribe_al_inicio(std::string_view, const DaBytes&) override { lanza(NumError::PermisoDenegado); }

    [[nodiscard]] bool es_carpeta(std::string_view) const override { return false; }

    [[nodiscard]] std::string carpeta_personal() const override { return {}; }
};

} // namespace Qlt4_Tabla
