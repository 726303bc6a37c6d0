// SPDX-License-Identifier: MIT
// _Tabla0: the published interface of the table, 57 members in the order of the function table (where a
// property has both accessors: the one named first in control/miembros.h comes first). Hosts are bound to
// names, order and identifiers; none may change. What a member does is said at its rule, named in the
// comment.
//
// Rows and columns are 0-based; row 0 is the header, column 0 the row numbers. Widths are twips unless a
// line says units of 120 twips. Screen colours are 0x00BBGGRR. Errors: an Error with its number reaches
// the caller only where the comment says so; any other trouble is shown in a message box "Tabla " +
// member + " - Error nº " + number + ": " + description and the member returns.
#pragma once

#include "base/imagen.h"
#include "base/matriz.h"
#include "base/variante.h"
#include "core/formato_columna.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Qlt4_Tabla {

// The leading underscore and the accents, double underscores and odd spellings below are published names
// and kept, although C++ style would write them otherwise.
class _Tabla0 { // NOLINT(bugprone-reserved-identifier)
public:
    virtual ~_Tabla0() = default;

    virtual void A_Pon_Alto(std::int16_t Fil, std::int16_t Alto) = 0;
    virtual void A_Pon_Imagen(
        std::int16_t Fil, std::int16_t Col, const std::shared_ptr<const Imagen>& Imag) = 0;
    virtual std::int32_t A_fila_Activa() = 0;
    virtual void A_Edicion_pon_Color() = 0;
    virtual void A_Edicion_mn_Ratón_Off() = 0;
    virtual void A_Edicion_Columnas_Off() = 0;
    virtual void A_Especial_puntos_ON() = 0;
    virtual void m_Sumar_dos_ColumnasAyB(std::int32_t colA, std::int32_t colB, std::int32_t colResul) = 0;
    virtual void m_Restar_dos_ColumnasA_B(std::int32_t colA, std::int32_t colB, std::int32_t colResul) = 0;
    virtual void m_Diferencia_Parcial_1Columna(
        std::int32_t columna, std::int32_t colResul, bool ValNegativoColorRojo = false) = 0;
    virtual void Color_Columna(std::int32_t columna, T_colores Color) = 0;
    virtual void crea_una_fila() = 0;
    virtual void Copiar_Todo() = 0;
    virtual void Copiar_todo_Excel() = 0;
    virtual void Tablero_Lee_Formato_Win(const std::string& t_apli, const std::string& t_cap) = 0;
    virtual void Tablero_Graba_Formato_Win(const std::string& t_apli, const std::string& t_cap) = 0;
    virtual void Tablero_establece_Formato() = 0;
    virtual void Tablero_Leer(const std::string& nombreFichero) = 0;
    virtual void Tablero_Grabar(const std::string& nombreFichero) = 0;
    virtual void Width(const Variante& valor) = 0;
    [[nodiscard]] virtual Variante Width() = 0;
    virtual void Height(const Variante& valor) = 0;
    [[nodiscard]] virtual Variante Height() = 0;
    virtual void TextMatrix(std::int32_t fila, std::int32_t colm, const std::string& valor) = 0;
    [[nodiscard]] virtual std::string TextMatrix(std::int32_t fila, std::int32_t colm) = 0;
    virtual void ColMatrix(std::int32_t fila, std::int32_t colm, T_colores valor) = 0;
    virtual void Color_1Celda(std::int32_t fila, std::int32_t colm, T_colores valor) = 0;
    virtual void Color_Fila(
        std::int32_t fila, std::int32_t columIni, std::int32_t colmFin, T_colores valor) = 0;
    virtual void A_actualizaEditor(bool valor) = 0;
    [[nodiscard]] virtual std::string A_ExtensionFche() = 0;
    virtual void A_ExtensionFche(const std::string& valor) = 0;
    [[nodiscard]] virtual std::int32_t Rows() = 0;
    virtual void Rows(std::int32_t n) = 0;
    [[nodiscard]] virtual std::int32_t Cols() = 0;
    virtual void Cols(std::int32_t n) = 0;
    virtual void Formatcol(std::int16_t Col, const std::string& Visib, const std::string& Bloqu,
        std::int16_t Formt, std::int16_t decim, std::int16_t posic, std::int16_t Longi,
        const std::string& nomb, std::int16_t Accion = 0) = 0;
    virtual void FormatoColumnas(std::int16_t Col, bool Invisib, bool Bloqu, T_formato Formato,
        std::int16_t decim, T_Alineacion Alinea, T_Accion Accion, std::int16_t Longit,
        const std::string& nomb) = 0;
    virtual void Editor_Tabl_graba() = 0;
    virtual void Tablero_Nombres(
        const std::string& Titulo, const std::string& subtitulo, const std::string& extens) = 0;
    virtual void Tablero_Formato_por_defecto() = 0;
    virtual void Tablero_Fila_0_Off() = 0;
    virtual void Ficheros_en_menu(bool Nvalor) = 0;
    [[nodiscard]] virtual std::string A_GrabaRevoca() = 0;
    virtual void A_GrabaRevoca(const std::string& valor) = 0;
    virtual void A_Col(std::int32_t valor) = 0;
    virtual void A_RowTop(std::int32_t valor) = 0;
    virtual void tablero_sin_color() = 0;
    virtual void Redraw(bool valor) = 0;
    virtual void Lista(std::int16_t columna, const Matriz<std::string>& valores) = 0;
    [[nodiscard]] virtual bool MergeCol(std::int16_t columna1) = 0;
    virtual void MergeCol(std::int16_t columna1, bool valor) = 0;
    [[nodiscard]] virtual std::int16_t MergeCells() = 0;
    virtual void MergeCells(std::int16_t valor) = 0;
    virtual void Clear() = 0;
    virtual void m_Obten_Matriz_Numerica_de_columna(std::int32_t columna, Matriz<double>& Matriz1) = 0;
    virtual void m_Obten_Matriz_Alfanume_de_columna(std::int32_t columna, Matriz<std::string>& Matriz1) = 0;
    virtual void m_Asigna_Matriz_Numerica_a_Columna(std::int32_t columna, const Matriz<double>& Matriz1) = 0;
    virtual void m__Asigna_Matriz_Alfanume_a_Columna(
        std::int32_t columna, const Matriz<std::string>& Matriz1) = 0;
    virtual void Show_Eleige_Color(const std::string& NumColorPreSeleccVb, bool PorCapa,
        std::int32_t NumColorPorCapaPreSeleccVb, bool Expandircolores, std::int32_t& NumColorElegiVB,
        std::int32_t& NumColorAutocad, std::string& NomColorAutocad) = 0;
    [[nodiscard]] virtual std::int32_t Show_Elige_Color(std::int32_t NumColorElegiVB) = 0;
    virtual void Color_Matrix(std::int32_t fila, std::int32_t colm, std::int32_t valor) = 0;
    [[nodiscard]] virtual std::int32_t Color_Matrix(std::int32_t fila, std::int32_t colm) = 0;
    [[nodiscard]] virtual std::int32_t Color_Matrix_en_VB(std::int32_t fila, std::int32_t colm) = 0;
    virtual void Color_Matrix_en_Cad(std::int32_t fila, std::int32_t colm, std::int32_t valor) = 0;
    virtual void Color_Matrix_de_Cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) = 0;
    virtual void Color_Matrix_en_Cad_dado_N_VB(std::int32_t fila, std::int32_t colm, std::int32_t valor) = 0;
    virtual void Color_Matrix_en_Cad_dado_N_cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) = 0;
};

} // namespace Qlt4_Tabla
