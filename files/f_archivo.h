// SPDX-License-Identifier: MIT
// F_Archivo: the rules of the file dialog: what it is asked, where it opens, what it remembers. The dialog
// itself is behind platform/dialogo_fichero.h. The published names keep their spelling.
//
//   F_Archivo f(plataforma);
//   f.A_Titulo = "Abrir Tabla de Puntos..."; f.A_Filtro_archivos = "Tabla (*.tb0)|*.tb0"; f.A_leer();
//   if (!f.A_ruta_y_archivo().empty()) ...
#pragma once

#include "platform/plataforma.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class F_Archivo {
public:
    explicit F_Archivo(const Plataforma& plataforma) : plataforma_(plataforma) {}

    // Set before the dialog is shown.
    std::string A_Titulo;
    std::string A_Filtro_archivos; ///< its first pattern gives the extension of a name typed without one
    std::string A_nombre_por_defecto; ///< empty: the name of the last use
    std::string A_Aplicacion; ///< under which the settings are kept

    /// Shows the dialog for opening, or for saving, and waits. Folder, name and place come from the settings;
    /// they are written back when it closes, also after a cancel. A store that cannot be written is no
    /// reason to lose what the user chose.
    void A_leer() { muestra(ModoFichero::Abrir); }

    void A_grabar() { muestra(ModoFichero::Guardar); }

    /// The whole path chosen; empty when the user cancelled.
    [[nodiscard]] const std::string& A_ruta_y_archivo() const { return ruta_; }

    [[nodiscard]] std::string A_Nombre_Fch() const;
    [[nodiscard]] std::string A_Ruta_Fch() const;

private:
    struct Recuerdo {
        std::string directorio_y_nombre;
        float izquierda = 0;
        float arriba = 0;
    };

    void muestra(ModoFichero modo);
    [[nodiscard]] Recuerdo carga() const;
    [[nodiscard]] float numero(std::string_view clave) const;
    void pon_lugar(std::string_view directorio_y_nombre, PeticionFichero& peticion) const;
    void descarga(const Recuerdo& recuerdo) const;

    Plataforma plataforma_;
    std::string ruta_;
};

} // namespace Qlt4_Tabla
