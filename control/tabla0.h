// SPDX-License-Identifier: MIT
// Tabla0: the table component. It owns the state and the rule objects, serves the published members and
// guards their boundary; the rules stand in core, editing, colours and their siblings.
//
//   Tabla0 tabla(plataforma, eventos);          // 5 columns, 4 rows, ready
//   tabla.FormatoColumnas(1, false, false, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 10, "X");
//   tabla.Tablero_establece_Formato();
//   tabla.TextMatrix(1, 1, "12.5");             // the cell holds 12.500
#pragma once

#include "base/publico.h"
#include "control/_tabla0.h"
#include "control/mandos.h"
#include "core/estado_tabla.h"
#include "editing/editor_celda.h"
#include "editing/navegacion.h"
#include "platform/bolsa_propiedades.h"

#include <span>
#include <vector>

namespace Qlt4_Tabla {

class TABLA_API Tabla0 final : public _Tabla0 {
public:
    /// Ready to use after construction. The seams and the event sink must outlive it.
    Tabla0(const Plataforma& plataforma, __Tabla0& eventos);
    Tabla0(const Tabla0&) = delete;
    Tabla0& operator=(const Tabla0&) = delete;

    // --- The published members, in the order of _Tabla0 ---
    // (tabla0.cpp, one guarded line each)
    void A_Pon_Alto(std::int16_t Fil, std::int16_t Alto) override;
    void A_Pon_Imagen(std::int16_t Fil, std::int16_t Col, const std::shared_ptr<const Imagen>& Imag) override;
    std::int32_t A_fila_Activa() override;
    void A_Edicion_pon_Color() override;
    void A_Edicion_mn_Ratón_Off() override;
    void A_Edicion_Columnas_Off() override;
    void A_Especial_puntos_ON() override;
    void m_Sumar_dos_ColumnasAyB(std::int32_t colA, std::int32_t colB, std::int32_t colResul) override;
    void m_Restar_dos_ColumnasA_B(std::int32_t colA, std::int32_t colB, std::int32_t colResul) override;
    void m_Diferencia_Parcial_1Columna(
        std::int32_t columna, std::int32_t colResul, bool ValNegativoColorRojo = false) override;
    void Color_Columna(std::int32_t columna, T_colores Color) override;
    void crea_una_fila() override;
    void Copiar_Todo() override;
    void Copiar_todo_Excel() override;
    void Tablero_Lee_Formato_Win(const std::string& t_apli, const std::string& t_cap) override;
    void Tablero_Graba_Formato_Win(const std::string& t_apli, const std::string& t_cap) override;
    void Tablero_establece_Formato() override;
    void Tablero_Leer(const std::string& nombreFichero) override;
    void Tablero_Grabar(const std::string& nombreFichero) override;
    void Width(const Variante& valor) override;
    [[nodiscard]] Variante Width() override;
    void Height(const Variante& valor) override;
    [[nodiscard]] Variante Height() override;
    void TextMatrix(std::int32_t fila, std::int32_t colm, const std::string& valor) override;
    [[nodiscard]] std::string TextMatrix(std::int32_t fila, std::int32_t colm) override;
    void ColMatrix(std::int32_t fila, std::int32_t colm, T_colores valor) override;
    void Color_1Celda(std::int32_t fila, std::int32_t colm, T_colores valor) override;
    void Color_Fila(std::int32_t fila, std::int32_t columIni, std::int32_t colmFin, T_colores valor) override;
    void A_actualizaEditor(bool valor) override;
    [[nodiscard]] std::string A_ExtensionFche() override;
    void A_ExtensionFche(const std::string& valor) override;
    [[nodiscard]] std::int32_t Rows() override;
    void Rows(std::int32_t n) override;
    [[nodiscard]] std::int32_t Cols() override;
    void Cols(std::int32_t n) override;
    void Formatcol(std::int16_t Col, const std::string& Visib, const std::string& Bloqu, std::int16_t Formt,
        std::int16_t decim, std::int16_t posic, std::int16_t Longi, const std::string& nomb,
        std::int16_t Accion = 0) override;
    void FormatoColumnas(std::int16_t Col, bool Invisib, bool Bloqu, T_formato Formato, std::int16_t decim,
        T_Alineacion Alinea, T_Accion Accion, std::int16_t Longit, const std::string& nomb) override;
    void Editor_Tabl_graba() override;
    void Tablero_Nombres(
        const std::string& Titulo, const std::string& subtitulo, const std::string& extens) override;
    void Tablero_Formato_por_defecto() override;
    void Tablero_Fila_0_Off() override;
    void Ficheros_en_menu(bool Nvalor) override;
    [[nodiscard]] std::string A_GrabaRevoca() override;
    void A_GrabaRevoca(const std::string& valor) override;
    void A_Col(std::int32_t valor) override;
    void A_RowTop(std::int32_t valor) override;
    void tablero_sin_color() override;
    void Redraw(bool valor) override;
    void Lista(std::int16_t columna, const Matriz<std::string>& valores) override;
    [[nodiscard]] bool MergeCol(std::int16_t columna1) override;
    void MergeCol(std::int16_t columna1, bool valor) override;
    [[nodiscard]] std::int16_t MergeCells() override;
    void MergeCells(std::int16_t valor) override;
    void Clear() override;
    void m_Obten_Matriz_Numerica_de_columna(std::int32_t columna, Matriz<double>& Matriz1) override;
    void m_Obten_Matriz_Alfanume_de_columna(std::int32_t columna, Matriz<std::string>& Matriz1) override;
    void m_Asigna_Matriz_Numerica_a_Columna(std::int32_t columna, const Matriz<double>& Matriz1) override;
    void m__Asigna_Matriz_Alfanume_a_Columna(
        std::int32_t columna, const Matriz<std::string>& Matriz1) override;
    void Show_Eleige_Color(const std::string& NumColorPreSeleccVb, bool PorCapa,
        std::int32_t NumColorPorCapaPreSeleccVb, bool Expandircolores, std::int32_t& NumColorElegiVB,
        std::int32_t& NumColorAutocad, std::string& NomColorAutocad) override;
    [[nodiscard]] std::int32_t Show_Elige_Color(std::int32_t NumColorElegiVB) override;
    void Color_Matrix(std::int32_t fila, std::int32_t colm, std::int32_t valor) override;
    [[nodiscard]] std::int32_t Color_Matrix(std::int32_t fila, std::int32_t colm) override;
    [[nodiscard]] std::int32_t Color_Matrix_en_VB(std::int32_t fila, std::int32_t colm) override;
    void Color_Matrix_en_Cad(std::int32_t fila, std::int32_t colm, std::int32_t valor) override;
    void Color_Matrix_de_Cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) override;
    void Color_Matrix_en_Cad_dado_N_VB(std::int32_t fila, std::int32_t colm, std::int32_t valor) override;
    void Color_Matrix_en_Cad_dado_N_cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) override;

    // --- The same for hosts in C++: element 0 belongs to row 1 ---
    void m_Obten_Matriz_Numerica_de_columna(std::int32_t columna, std::vector<double>& valores);
    void m_Asigna_Matriz_Numerica_a_Columna(std::int32_t columna, std::span<const double> valores);

    // --- For front ends ---
    [[nodiscard]] const Tablero& tablero() const { return e_.tablero; }

    [[nodiscard]] const EstadoTabla& estado() const { return e_; }

    [[nodiscard]] Mandos& mandos() { return mandos_; }

    /// Design-time properties; errors of the store reach the caller.
    void escribe_propiedades(BolsaPropiedades& bolsa) const;
    void lee_propiedades(const BolsaPropiedades& bolsa);
    /// The grid's header-and-alignment string (a design-time property).
    void A_FormatString(const std::string& cadena);
    [[nodiscard]] std::string A_FormatString() const;

private:
    EstadoTabla e_;
    Navegacion navegacion_;
    EditorCelda editor_;
    Mandos mandos_;
};

} // namespace Qlt4_Tabla
