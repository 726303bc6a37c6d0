// SPDX-License-Identifier: MIT
// FicherosMemoria: files in memory that can fail on request: without permission, on a full disk,
// interrupted at any step of a write. A write makes a temporary file, fills it piece by piece and puts it in
// the place of the old one, as the files of the machine do. "/" parts folders; a name without one lies in
// the current folder, which is always there.
#pragma once

#include "base/publico.h"
#include "platform/ficheros.h"

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API FicherosMemoria final : public Ficheros {
public:
    /// Bytes written in one step.
    static constexpr std::size_t PIEZA = 64;

    std::map<std::string, std::string, std::less<>> contenidos;
    std::set<std::string, std::less<>> carpetas{"/casa"};
    std::string personal = "/casa";
    int pasos = 0; ///< steps of all writes so far
    std::uint64_t legibles = UINT64_MAX; ///< reading the bytes behind these raises error 57

    /// Every later reading or writing of this name raises that error (0: none again).
    void falla(std::string_view nombre, int numero);
    /// The write that comes to step `paso` (counted from now, from 1 on) raises that error, once, and takes
    /// its temporary away.
    void falla_en_paso(int paso, int numero);
    /// The same, but the temporary stays, as after a power cut.
    void interrumpe_en_paso(int paso);

    [[nodiscard]] std::unique_ptr<FicheroAbierto> abre(std::string_view nombre) const override;
    using Ficheros::escribe_al_inicio;
    void escribe_al_inicio(std::string_view nombre, const DaBytes& bytes) override;
    [[nodiscard]] bool es_carpeta(std::string_view nombre) const override;

    [[nodiscard]] std::string carpeta_personal() const override { return personal; }

private:
    void comprueba_nombre(std::string_view nombre) const;
    void da_paso();

    std::map<std::string, int, std::less<>> malos_;
    int paso_malo_ = 0;
    int numero_ = 0;
    bool corte_ = false;
};

} // namespace Qlt4_Tabla
