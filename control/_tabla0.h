// SPDX-License-Identifier: MIT
// _Tabla0: the published interface of the table, 57 members in the order of the function table (where a
// property has both accessors: the one named first in control/miembros.h comes first). Hosts are bound to
// names, order and identifiers; none may change. What a member does is said at its rule, named in the
// comment.
//
// Rows and columns are 0-based; row 0 is the header, column 0 the row numbers. Widths and heights are
// twips, column widths of the formats units of 120 twips. Screen colours are 0x00BBGGRR; palette colours
// 0 to 255, 0 meaning "by layer". "Error n": an Error with that number reaches the caller. Any other
// trouble is shown in a message box, "Tabla " + member + " - Error nº " + number + ": " + description,
// and the member returns normally, a get with 0, False or the empty text. Arguments are checked before
// anything is stored. Members act on the table as it is; none raises an event.
#pragma once

#include "base/imagen.h"
#include "base/matriz.h"
#include "base/publico.h"
#include "base/variante.h"
#include "core/formato_columna.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Qlt4_Tabla {

// The leading underscore and the accents, double underscores and odd spellings below are published names
// and kept, although C++ style would write them otherwise.
class TABLA_API _Tabla0 { // NOLINT(bugprone-reserved-identifier)
public:
    virtual ~_Tabla0() = default;

    /// Height of row Fil in twips, 0 hides it, below 0 it stays. The row becomes current. Row outside the grid:
    /// nothing.
    virtual void A_Pon_Alto(std::int16_t Fil, std::int16_t Alto) = 0;
    /// Picture of a cell, whose text stays; an empty pointer takes it away. The handle is made by the front
    /// end (Qt: imagen_de in qt/imagen_qt.h). Outside the grid: nothing.
    virtual void A_Pon_Imagen(
        std::int16_t Fil, std::int16_t Col, const std::shared_ptr<const Imagen>& Imag) = 0;
    /// The current row, 0 the header, through 16 bits. Error 6: above 32767.
    virtual std::int32_t A_fila_Activa() = 0;
    /// From now on colour cells are painted in their colour and Color_Matrix_en_VB reads it from there. There
    /// is no way back.
    virtual void A_Edicion_pon_Color() = 0;
    /// From now on no right-click menu, no copy menu and no Delete key; the toolbar and the other keys stay.
    /// There is no way back.
    virtual void A_Edicion_mn_Ratón_Off() = 0;
    /// From now on without the toolbar's "Pegar" and the gaps "c1", "p1" and "e1". There is no way back.
    virtual void A_Edicion_Columnas_Off() = 0;
    /// Special-points mode, for good: a click in column 1 selects rows, the toolbar loses "Pegar" and its
    /// gap, and its options open the menu of points.
    virtual void A_Especial_puntos_ON() = 0;
    /// colResul = colA + colB, row by row, in the format of colResul; empty cells count as 0, texts are read
    /// as far as they are numbers. A column of lists, colours or pictures is warned of in a message and
    /// computed with all the same; a column outside the grid: message, nothing written. Errors 9: column
    /// outside 0 to 25; 6: no finite result, the rows before it stay.
    virtual void m_Sumar_dos_ColumnasAyB(std::int32_t colA, std::int32_t colB, std::int32_t colResul) = 0;
    /// colResul = colA - colB; all else, errors 6 and 9 among it, as in m_Sumar_dos_ColumnasAyB.
    virtual void m_Restar_dos_ColumnasA_B(std::int32_t colA, std::int32_t colB, std::int32_t colResul) = 0;
    /// Each row of colResul = the row of columna less the one above (on the same column: as it is by then),
    /// row 1 empty; negative results in red if asked for, the last of them current; red is never cleared.
    /// Warnings and errors 6 and 9 as in m_Sumar_dos_ColumnasAyB.
    virtual void m_Diferencia_Parcial_1Columna(
        std::int32_t columna, std::int32_t colResul, bool ValNegativoColorRojo = false) = 0;
    /// Text colour of a column's data cells: Rojo to Blanco, any other value black. The current cell stays,
    /// the selection collapses on it. Outside the grid: nothing.
    virtual void Color_Columna(std::int32_t columna, T_colores Color) = 0;
    /// Appends a row that the columns' actions fill from the row above it; its cells are not formatted anew.
    /// Undo is captured first, the table is modified. Errors 9: more than 26 columns; 6: no more rows.
    virtual void crea_una_fila() = 0;
    /// The data cells, without header and row numbers, to a new workbook of a spreadsheet program, shown to
    /// the user. Every error is shown: "copiar todo - Error nº 429:...".
    virtual void Copiar_Todo() = 0;
    /// The same as Copiar_Todo.
    virtual void Copiar_todo_Excel() = 0;
    /// The 26 working formats and the extension from the settings of application t_apli, section t_cap, then
    /// applied as by Tablero_establece_Formato; from a section that was never written they are only applied.
    /// Values that do not convert leave their field; errors of applying, 6 and 9 (a 27th column, a list
    /// without values), are passed over. Redrawing is on afterwards.
    virtual void Tablero_Lee_Formato_Win(const std::string& t_apli, const std::string& t_cap) = 0;
    /// The 26 working formats and the extension to the settings, all or none. Every error of the store
    /// reaches the caller: 57, 61, 70, 75.
    virtual void Tablero_Graba_Formato_Win(const std::string& t_apli, const std::string& t_cap) = 0;
    /// Applies the working formats to the grid: widths, headers, alignments, and the cells of number columns
    /// in their decimals (what is no number becomes 0); every non-empty cell of a list column becomes the
    /// first value of its list. Current cell and selection stay. Errors 6: a width beyond 16 bits (above 273
    /// units); 9: a 27th column, a list column without values at its first non-empty cell. After either
    /// redrawing stays off.
    virtual void Tablero_establece_Formato() = 0;
    /// Reads a table file: counts and texts; formats are applied, cell (1, 1), nothing modified; an open
    /// editor is discarded. A file that is not right changes nothing. Every error is shown: "Error al leer la
    /// Tabla de ...", with 53, 57, 62, 70, 75, 76 or 9 for what is no table.
    virtual void Tablero_Leer(const std::string& nombreFichero) = 0;
    /// Writes the table over the beginning of the file, whole or not at all; nothing is modified then. Every
    /// error is shown: "Error al guardar la Tabla de ...", with 5 (a text of more than 65,535 bytes), 9 (more
    /// than 26 columns), 57, 61, 70, 75 or 76.
    virtual void Tablero_Grabar(const std::string& nombreFichero) = 0;
    /// The component's own width in twips, let with anything that converts to a Single; below 0 counts as 0.
    /// A text that is no number: error 13, shown.
    virtual void Width(const Variante& valor) = 0;
    [[nodiscard]] virtual Variante Width() = 0;
    /// The same for the height.
    virtual void Height(const Variante& valor) = 0;
    [[nodiscard]] virtual Variante Height() = 0;
    /// Text of a cell. Let: a real column with decimals shows them (an empty text becomes 0), any other stores
    /// the text as it is; outside the grid: nothing. Get: a numeric column gives a decimal comma and "0" for
    /// an empty cell; outside: empty. The table does not count as modified. Error 9: a data cell of a column
    /// above 25.
    virtual void TextMatrix(std::int32_t fila, std::int32_t colm, const std::string& valor) = 0;
    [[nodiscard]] virtual std::string TextMatrix(std::int32_t fila, std::int32_t colm) = 0;
    /// Text colour of one cell, which becomes current; other values than 1 to 7: black. Outside: nothing.
    virtual void ColMatrix(std::int32_t fila, std::int32_t colm, T_colores valor) = 0;
    /// The same as ColMatrix.
    virtual void Color_1Celda(std::int32_t fila, std::int32_t colm, T_colores valor) = 0;
    /// Background between two columns of a row, in either order, both included; the last one painted becomes
    /// current. Colours as in ColMatrix. Cells outside the grid: nothing.
    virtual void Color_Fila(
        std::int32_t fila, std::int32_t columIni, std::int32_t colmFin, T_colores valor) = 0;
    /// True: as Tablero_establece_Formato, errors 6 and 9 too. False: nothing.
    virtual void A_actualizaEditor(bool valor) = 0;
    /// Pattern of the table files' names: five characters beginning with "*."; any other let is ignored.
    [[nodiscard]] virtual std::string A_ExtensionFche() = 0;
    virtual void A_ExtensionFche(const std::string& valor) = 0;
    /// Rows, header included. Let: new rows are empty and numbered, fewer drop the last ones; current cell
    /// and selection are kept within the grid, a current row or column 0 becomes 1. Below 1: ignored. More
    /// than 2^28 cells: error 7, shown, nothing changed.
    [[nodiscard]] virtual std::int32_t Rows() = 0;
    virtual void Rows(std::int32_t n) = 0;
    /// Columns, column 0 included. Let: unnamed columns up to 25 get a name and, where they are 0, 3
    /// decimals, text, width 10; nothing is drawn before Tablero_establece_Formato. Below 1: ignored. Error 7
    /// as in Rows.
    [[nodiscard]] virtual std::int32_t Cols() = 0;
    virtual void Cols(std::int32_t n) = 0;
    /// A column's format, default and working, with "-" for a clear flag and any other text, the empty one
    /// too, for a set one; formats, alignments and actions as bare numbers, stored as given. Longi in units
    /// of 120 twips. Nothing is drawn before Tablero_establece_Formato. Error 9: column outside 0 to 25.
    virtual void Formatcol(std::int16_t Col, const std::string& Visib, const std::string& Bloqu,
        std::int16_t Formt, std::int16_t decim, std::int16_t posic, std::int16_t Longi,
        const std::string& nomb, std::int16_t Accion = 0) = 0;
    /// The same, typed. Errors 9: column outside 0 to 25; 6: an enumeration beyond 16 bits. After either
    /// nothing is stored.
    virtual void FormatoColumnas(std::int16_t Col, bool Invisib, bool Bloqu, T_formato Formato,
        std::int16_t decim, T_Alineacion Alinea, T_Accion Accion, std::int16_t Longit,
        const std::string& nomb) = 0;
    /// Dragged widths of visible, unlocked columns into the working formats, in whole units rounded down.
    /// Errors 9: a 27th column; 6: a width beyond 16 bits.
    virtual void Editor_Tabl_graba() = 0;
    /// Title (40 characters), subtitle (30; what one row is) and extension (5), each cut or padded. "X" as
    /// extension: a table without files, whose file items and comma variants leave the menu for good.
    virtual void Tablero_Nombres(
        const std::string& Titulo, const std::string& subtitulo, const std::string& extens) = 0;
    /// All default formats, as Formatcol or FormatoColumnas gave them last, over the working ones; nothing is
    /// drawn before Tablero_establece_Formato.
    virtual void Tablero_Formato_por_defecto() = 0;
    /// Row-number column off: width 0 now and at every formatting; the row count is shown once the formats
    /// are applied.
    virtual void Tablero_Fila_0_Off() = 0;
    /// Shows or hides the file items of the menu and the line above them.
    virtual void Ficheros_en_menu(bool Nvalor) = 0;
    /// "SI" or "NO", which it is at first; any other let is ignored. Nothing reads it.
    [[nodiscard]] virtual std::string A_GrabaRevoca() = 0;
    virtual void A_GrabaRevoca(const std::string& valor) = 0;
    /// Accepts the value and does nothing.
    virtual void A_Col(std::int32_t valor) = 0;
    /// First data row shown, clamped to 1..Rows - 1. Current cell and selection stay.
    virtual void A_RowTop(std::int32_t valor) = 0;
    /// Text of all data cells in the default colour; backgrounds stay. The last cell becomes current;
    /// redrawing is on afterwards.
    virtual void tablero_sin_color() = 0;
    /// False: the view hears of no change until True; calls do not nest. For many writes in a row.
    virtual void Redraw(bool valor) = 0;
    /// Allowed values of a list column, copied; cells stay as they are. Any other column: message, nothing
    /// stored. Error 9: outside 0 to 25.
    virtual void Lista(std::int16_t columna, const Matriz<std::string>& valores) = 0;
    /// Are equal neighbours down the column drawn as one? Outside the grid: False, let ignored.
    [[nodiscard]] virtual bool MergeCol(std::int16_t columna1) = 0;
    virtual void MergeCol(std::int16_t columna1, bool valor) = 0;
    /// How marked columns merge: 0 and 2 not, 1 each alone, 3 within the column to the left; any other let is
    /// ignored. Only the drawing changes.
    [[nodiscard]] virtual std::int16_t MergeCells() = 0;
    virtual void MergeCells(std::int16_t valor) = 0;
    /// Only the header row remains, with names and colours; formats stay. Nothing is asked.
    virtual void Clear() = 0;
    /// A numeric column as array of bounds 1 to Rows - 1, empty cells 0; any other: message, and the array is
    /// zeroed. Error 9: column outside 0 to 25; one beyond the grid: message.
    virtual void m_Obten_Matriz_Numerica_de_columna(std::int32_t columna, Matriz<double>& Matriz1) = 0;
    /// The same for the texts of a column that is not numeric. Error 9.
    virtual void m_Obten_Matriz_Alfanume_de_columna(std::int32_t columna, Matriz<std::string>& Matriz1) = 0;
    /// An array into a numeric column, element r into row r, in the column's decimals; elements beyond the
    /// grid are left out, rows beyond the array stay. Any other column: message. Errors 9: column, array not
    /// one-dimensional or beginning above 1; 6: not finite, nothing written.
    virtual void m_Asigna_Matriz_Numerica_a_Columna(std::int32_t columna, const Matriz<double>& Matriz1) = 0;
    /// The same for texts, as they are, into a column that is not numeric. Error 9.
    // NOLINTNEXTLINE(bugprone-reserved-identifier)
    virtual void m__Asigna_Matriz_Alfanume_a_Columna(
        std::int32_t columna, const Matriz<std::string>& Matriz1) = 0;
    /// Does nothing and changes no argument; not Show_Elige_Color.
    virtual void Show_Eleige_Color(const std::string& NumColorPreSeleccVb, bool PorCapa,
        std::int32_t NumColorPorCapaPreSeleccVb, bool Expandircolores, std::int32_t& NumColorElegiVB,
        std::int32_t& NumColorAutocad, std::string& NomColorAutocad) = 0;
    /// Opens the colour picker and waits: the chosen screen colour, or the one given when it was cancelled.
    /// An error is shown in words of its own, "ERROR en Vdk_Sys.DLL Nº...".
    [[nodiscard]] virtual std::int32_t Show_Elige_Color(std::int32_t NumColorElegiVB) = 0;
    /// Background of one cell, which becomes current. Get: 0 when never set. Outside: nothing, get 0.
    virtual void Color_Matrix(std::int32_t fila, std::int32_t colm, std::int32_t valor) = 0;
    [[nodiscard]] virtual std::int32_t Color_Matrix(std::int32_t fila, std::int32_t colm) = 0;
    /// Screen colour of a colour cell: its background while colours are painted, else of the name or number
    /// it holds; the cell becomes current. Errors 13: neither; 6: beyond 16 bits. Outside the grid: 0.
    [[nodiscard]] virtual std::int32_t Color_Matrix_en_VB(std::int32_t fila, std::int32_t colm) = 0;
    /// Colour cell, which becomes current: its text becomes the name of the value as palette index (below 0:
    /// message, nothing done); where colours are painted its background is, on purpose, the value as screen
    /// colour. Outside the grid: nothing.
    virtual void Color_Matrix_en_Cad(std::int32_t fila, std::int32_t colm, std::int32_t valor) = 0;
    /// The same for a palette index; never paints.
    virtual void Color_Matrix_de_Cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) = 0;
    /// The same for a screen colour, named by the palette and painted as it is.
    virtual void Color_Matrix_en_Cad_dado_N_VB(std::int32_t fila, std::int32_t colm, std::int32_t valor) = 0;
    /// The same for a palette index, painted as its screen colour.
    virtual void Color_Matrix_en_Cad_dado_N_cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) = 0;
};

} // namespace Qlt4_Tabla
