// SPDX-License-Identifier: MIT
// f_Editor: the rules of the column editor's form: the grid, two check boxes for column 0, the commands, the
// layout of its controls and the place that it remembers. The table sets it up, shows it and looks at the
// formats again:
//
//   RegistrosEditor registros{e.Formatos};
//   f_Editor editor(registros, e.plataforma);
//   editor.Iniciar("Plano", "Puntos", 7);
//   editor.muestra();
//   if (registros.aceptado) take(registros.formatos);
//
// Its window: platform/dialogo_columnas.h. Its grid: column_editor/msf_editor.h.
#pragma once

#include "column_editor/msf_editor.h"
#include "column_editor/registros.h"
#include "platform/dialogo_columnas.h"
#include "platform/plataforma.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class f_Editor final : public ModeloColumnas {
public:
    /// Changes the formats in place.
    f_Editor(RegistrosEditor& registros, const Plataforma& plataforma);

    /// Under which application the place is remembered. Empty: "Tabla".
    [[nodiscard]] std::string A_Aplicacion() const;
    void A_Aplicacion(std::string_view aplicacion);

    /// What the form's caption and its settings section end with. Let: an empty text is ignored.
    [[nodiscard]] const std::string& A_Caption() const { return caption_; }

    void A_Caption(std::string_view caption);

    /// Columns of the table that are shown, without column 0.
    void NumeroColumnas(std::int16_t n) { columnas_ = n; }

    /// Fills the grid from the formats. More than 25 columns: error 9.
    void msfEditor_rellena_datos() { rejilla_.rellena(columnas_); }

    /// Sets the three properties and fills the grid.
    void Iniciar(std::string_view aplicacion, std::string_view caption, std::int16_t columnas);

    /// Loads the form, shows it and waits; how it was left is in the shared records. Errors of the settings
    /// store come last.
    void muestra();

    [[nodiscard]] const VistoColumnas& visto() const override { return visto_; }

    [[nodiscard]] RejillaColumnas& rejilla() override { return rejilla_; }

    /// The grid from the top; below it a strip of 1.2 button heights, whose controls stand 1.1 button heights
    /// from the bottom. Where there is no room, the message gives way first, then the second check box.
    [[nodiscard]] DistribucionColumnas distribuye(const MedidasColumnas& m) const override;
    void marca(MarcaColumnas cual, bool marcada) override;
    /// Applying does nothing before the first change.
    void orden(OrdenColumnas orden) override;
    void cerrado(const SitioColumnas& sitio) override { sitio_ = sitio; }

private:
    void carga();
    void ve_columna0(bool si);
    void lee_sitio();
    void graba_sitio();
    void deja(bool aceptado, bool por_defecto);

    RegistrosEditor& registros_;
    DialogoColumnas& dialogo_;
    Ajustes& ajustes_;
    VistoColumnas visto_;
    MsfEditor rejilla_;
    std::string aplicacion_;
    std::string caption_;
    std::int16_t columnas_ = 0;
    SitioColumnas sitio_;
};

} // namespace Qlt4_Tabla
