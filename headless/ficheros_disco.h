// SPDX-License-Identifier: MIT
// FicherosDisco: the files of the machine. A file is replaced by a temporary one in the same folder
// (".tabla-….tmp"), flushed to the disk and renamed, with the old one's owner and permissions; links are
// followed. Where that cannot be done (no new file may be made there, the owner cannot be kept), the file
// is written in place, and what stood there is put back after an error.
#pragma once

#include "base/publico.h"
#include "platform/ficheros.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API FicherosDisco : public Ficheros {
public:
    [[nodiscard]] std::unique_ptr<FicheroAbierto> abre(std::string_view nombre) const override;
    using Ficheros::escribe_al_inicio;
    void escribe_al_inicio(std::string_view nombre, const DaBytes& bytes) override;
    [[nodiscard]] bool es_carpeta(std::string_view nombre) const override;
    [[nodiscard]] std::string carpeta_personal() const override;

protected:
    /// The steps of a write, in their order; those of a write in place are the last two.
    enum class Paso {
        CreaTemporal,
        TomaPermisos,
        Escribe, ///< once for each piece of the new bytes and of the old end
        Vacia,
        Renombra,
        VaciaCarpeta,
        EscribeEnSitio, ///< once for each piece
        VaciaEnSitio,
    };

    /// Called before each step. Tests make it fail as the system would (std::system_error), or end the
    /// program there.
    virtual void paso(Paso) {}

private:
    [[nodiscard]] bool reemplaza(const std::filesystem::path& ruta, bool existe, const DaBytes& bytes);
    void escribe_en_sitio(const std::filesystem::path& ruta, const DaBytes& bytes);
};

} // namespace Qlt4_Tabla
