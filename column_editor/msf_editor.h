// SPDX-License-Identifier: MIT
// MsfEditor: the grid `msfEditor` of the column editor with its text box `Casilla`: one row a column of the
// table, one column a field. Clicks and keys change flags, alignment and action in the formats at once; names,
// widths and decimals are texts of the grid until `lleva_a_formatos`.
// Main names: ColumnaEditor, MsfEditor, filtra_digito. The form around it: column_editor/f_editor.h.
#pragma once

#include "column_editor/registros.h"
#include "core/geometria.h"
#include "core/tablero.h"
#include "platform/dialogo_columnas.h"
#include "platform/mensajes.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// The editor's columns. 0 and 4 have no width; 4 stays empty.
enum ColumnaEditor : int {
    ED_FIJA,
    ED_NOMBRE,
    ED_VISIBLE,
    ED_BLOQUEADA,
    ED_VACIA,
    ED_ANCHO,
    ED_DECIMALES,
    ED_ALINEACION,
    ED_ACCION,
    ED_COLUMNAS
};

/// Digits and Backspace pass; any other key becomes 0.
[[nodiscard]] constexpr int filtra_digito(int KeyAscii) noexcept {
    return (KeyAscii >= '0' && KeyAscii <= '9') || KeyAscii == 8 ? KeyAscii : 0;
}

class MsfEditor final : public RejillaColumnas {
public:
    /// `visto` takes the messages and whether there is something to apply. All of them outlive the grid.
    MsfEditor(RegistrosEditor& registros, Mensajes& mensajes, VistoColumnas& visto)
        : registros_(registros), mensajes_(mensajes), visto_(visto) {}

    /// Shows the columns 1 to `n`; values outside their range by the first text, without repairing them. Error
    /// 9 at the first column beyond 25.
    void rellena(int n);
    /// Colours the header of the empty column and makes the first cell the current one.
    void carga();
    /// A click on a cell. Its errors are shown one by one, and the next step goes on.
    void clic(int fila, int col);
    /// Names, widths and decimals of the grid's texts; decimals that are no number above 0 stay.
    void lleva_a_formatos();
    /// Closes the box, with or without writing its text into its cell.
    void confirma_y_cierra();
    void descarta();

    [[nodiscard]] const Tablero& tablero() const override { return t_; }

    [[nodiscard]] const CasillaColumnas& casilla() const override { return casilla_; }

    void mide(int ancho, int alto, int alto_fila) override;
    void desplaza(int fila_superior, int desplazamiento) override;
    bool tecla_abajo(int KeyCode) override;
    bool tecla_pulsada(int KeyAscii) override;
    void raton(PulsoRaton pulso, int x, int y) override;
    int tecla_casilla(int KeyAscii) override;
    void escribe_casilla(std::string_view texto) override;

    void casilla_pierde_foco() override { confirma_y_cierra(); }

private:
    void rellena_fila(int fila);
    void pon(int fila, int col, std::string_view texto) { t_.TextMatrix(fila, col, texto); }

    void cambiado() { visto_.puede_aplicar = true; }

    void paso(const std::function<void()>& hace);
    void alterna_visible(int fila);
    void alterna_bloqueada(int fila);
    void gira(int fila, int col, std::int16_t T_FormatoColumna::*campo,
        std::string_view (*texto)(std::int16_t&) noexcept);
    [[nodiscard]] bool hay_celda() const;
    bool mueve(int KeyCode);
    void pulsa_en(const Celda& celda);
    void va_a(int fila, int col);
    void abre(std::string texto, int inicio, int longitud);
    void abre_entera();
    void actua();
    void confirma();
    [[nodiscard]] bool se_acepta(std::string_view texto) const;
    void recoloca();

    RegistrosEditor& registros_;
    Mensajes& mensajes_;
    VistoColumnas& visto_;
    VistaNula vista_; // the window draws all of it again after each call
    Tablero t_{vista_};
    CasillaColumnas casilla_;
    Celda pulsada_; // where the mouse button went down
    int columnas_ = 0;
};

} // namespace Qlt4_Tabla
