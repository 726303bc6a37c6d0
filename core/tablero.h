// SPDX-License-Identifier: MIT
// Tablero: the grid. It holds the whole state of the table that is seen: texts, colours, pictures,
// widths, heights, merges, the current cell and the selection, the top row. Views draw from it and are
// told of changes (VistaTablero). It knows cells, not rules: formats, editing and commands stand above.
//
// Rows and columns are 0-based; row 0 is the header, column 0 the row numbers; both are ordinary cells.
// The selection is the rectangle between (Row, Col) and (RowSel, ColSel), inclusive, in either order.
// Cells outside the grid: error 9. More than 2^28 cells, or no memory: error 7 before any change.
// No notice is given where nothing changed. A row number that follows its row is told as a changed cell.
// Geometry (places on the window) is in core/geometria.h, merging in core/fusion.h.
#pragma once

#include "base/imagen.h"
#include "base/publico.h"
#include "core/almacen_celdas.h"
#include "core/avisos_unidos.h"
#include "core/imagenes_celdas.h"
#include "core/tramos_filas.h"
#include "platform/vista_tablero.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

/// Alignment codes of a column: always centred vertically.
enum class AlineacionCelda : int { Izquierda = 1, Centro = 4, Derecha = 7 };

/// Do the colours of the current cell go to it alone or to the whole selection?
enum class Relleno { Celda, Seleccion };

/// What the user's clicks select.
enum class ModoSeleccion { Libre, PorFilas };

/// The largest number of cells of one grid.
inline constexpr std::int64_t MAX_CELDAS = std::int64_t{1} << 28;

/// Width of a new column, in twips.
inline constexpr int ANCHO_INICIAL = 960;

/// A rectangle of cells, corners inclusive, ascending.
struct Bloque {
    int fila1 = 0;
    int col1 = 0;
    int fila2 = 0;
    int col2 = 0;
    friend constexpr bool operator==(const Bloque&, const Bloque&) = default;
};

/// A form that the cells of a column take; empty ones have every form.
struct FormaCeldas {
    std::string nombre; ///< tells it from others
    CambioCelda da; ///< leaves the cells that have it
    std::function<bool(std::string_view texto)> reconoce; ///< if any: true only for a text that has it
};

class TABLA_API Tablero {
public:
    /// No rows, no columns, current cell (0, 0).
    explicit Tablero(VistaTablero& vista);

    // Counts. Growing adds empty rows or columns at the end and never moves the current cell; shrinking
    // drops them and clamps current cell, selection and top row (row 0 when only the header is left).
    [[nodiscard]] int Rows() const { return almacen_.filas(); }

    void Rows(int n);

    [[nodiscard]] int Cols() const { return almacen_.columnas(); }

    void Cols(int n);
    /// Empty rows before `fila` (0..Rows). The current cell keeps its index. A negative count here or above:
    /// error 5.
    void inserta_filas(int fila, int n);
    /// Removes rows; the current row keeps its index, clamped.
    void borra_filas(int fila, int n);
    /// The same for any rows (ascending indexes) in one pass.
    void borra_varias_filas(std::span<const int> filas);
    /// Column 0 of every data row takes the row's number.
    void numera_filas();

    // Texts. The view holds until the next change of the grid or the next row number asked for.
    [[nodiscard]] std::string_view TextMatrix(int fila, int col) const {
        comprueba(fila, col);
        return almacen_.texto(fila, col);
    }

    void TextMatrix(int fila, int col, std::string_view texto);
    /// Writes neighbouring cells of one row from `col` on, with one notice.
    void pon_fila(int fila, int col, std::span<const std::string_view> textos);
    /// The same for a block, from column 1 on, in one pass: `da(fila)` gives at most as many texts as it
    /// has columns, 1 or more; the cells behind them stay.
    void pon_filas(const Bloque& bloque, const TextosDeFila& da);
    /// The rows and columns become those of `celdas`, which may only be destroyed then. Columns keep their widths and
    /// what they merge; the header its colours, height and pictures. It is told as a change of everything. Without
    /// memory, error 7, nothing has changed.
    void pon_celdas(AlmacenCeldas&& celdas);
    /// Rewrites a column's data cells in one pass and with one notice; see AlmacenCeldas::transforma.
    void transforma_columna(int col, int desde, int hasta, const CambioCelda& cambia);

    /// The same for all data cells that may lack the form: they were written since they were left as they were by the
    /// same form, and where many rows were written at once, not with a text that it recognises.
    void da_forma(int col, const FormaCeldas& forma);
    /// The column has no form: nothing has to be remembered of its rows.
    void quita_forma(int col);

    // The current cell and the far corner. Row moves RowSel with it, Col moves ColSel.
    [[nodiscard]] int Row() const { return cursor_.fila; }

    [[nodiscard]] int Col() const { return cursor_.col; }

    [[nodiscard]] int RowSel() const { return cursor_.fila_sel; }

    [[nodiscard]] int ColSel() const { return cursor_.col_sel; }

    void Row(int fila);
    void Col(int col);
    void RowSel(int fila);
    void ColSel(int col);
    /// Sets all four in one step and with one notice.
    void selecciona(int fila, int col, int fila_sel, int col_sel);
    /// The selected rectangle, ascending.
    [[nodiscard]] Bloque seleccion() const;

    [[nodiscard]] ModoSeleccion modo_seleccion() const { return modo_; }

    void modo_seleccion(ModoSeleccion modo) { modo_ = modo; }

    /// The first data row shown; clamps to 1..Rows - 1 (1 on a header-only table).
    [[nodiscard]] int TopRow() const { return parte_.fila_superior; }

    void TopRow(int fila);

    /// Twips that the data columns are scrolled to the left; clamps to what the widths and the view allow.
    [[nodiscard]] int desplazamiento() const { return parte_.desplazamiento; }

    void desplazamiento(int twips);
    /// The size of the window that shows the grid, header included; the front end tells it. Rows that are
    /// scrolled away come back into the room that a larger window gives below the last row; not those that
    /// `TopRow` scrolled away beyond that row before.
    void pon_vista(int ancho, int alto);

    [[nodiscard]] int ancho_vista() const { return ancho_vista_; }

    [[nodiscard]] int alto_vista() const { return alto_vista_; }

    /// Width of a column in twips, as set; a negative one is kept and shows as 0 (`ancho_visible`).
    [[nodiscard]] int ColWidth(int col) const;
    void ColWidth(int col, int twips);
    [[nodiscard]] int ancho_visible(int col) const;
    [[nodiscard]] AlineacionCelda ColAlignment(int col) const;
    void ColAlignment(int col, AlineacionCelda alineacion);
    /// Height of a row in twips: its own, else the one of all rows. A negative let takes its own away.
    [[nodiscard]] int RowHeight(int fila) const;
    void RowHeight(int fila, int twips);

    /// Height of rows without one of their own (the front end sets it from its font; starts at 300; at
    /// least 1).
    [[nodiscard]] int alto_normal() const { return alto_normal_; }

    void alto_normal(int twips);

    [[nodiscard]] bool hay_altos() const { return almacen_.hay_altos(); }

    /// Header texts, alignments and texts of column 0 in one string: "|" separates columns from column 0
    /// on; a leading "<", "^" or ">" aligns the column; the rest, blanks included, is the header text and
    /// makes the width (120 twips a character); ";" begins the texts of column 0 from row 1 on. Columns
    /// and rows are added where there are fewer, never removed. Get: the string as last set.
    [[nodiscard]] const std::string& FormatString() const { return cadena_formato_; }

    void FormatString(std::string_view cadena);

    // Colours, 0x00BBGGRR or a system colour. Background 0 of a cell never set is no colour; an explicit 0
    // is black.
    [[nodiscard]] std::int32_t CellForeColor() const { return color_texto(cursor_.fila, cursor_.col); }

    void CellForeColor(std::int32_t color);

    [[nodiscard]] std::int32_t CellBackColor() const { return color_fondo(cursor_.fila, cursor_.col); }

    void CellBackColor(std::int32_t color);

    [[nodiscard]] Relleno FillStyle() const { return relleno_; }

    void FillStyle(Relleno relleno) { relleno_ = relleno; }

    [[nodiscard]] std::int32_t color_texto(int fila, int col) const;
    void color_texto(const Bloque& bloque, std::int32_t color);
    [[nodiscard]] std::int32_t color_fondo(int fila, int col) const;
    [[nodiscard]] bool tiene_fondo(int fila, int col) const;
    void color_fondo(const Bloque& bloque, std::int32_t color);

    /// The picture of a cell; the text stays. A null handle takes it away.
    [[nodiscard]] std::shared_ptr<const Imagen> CellPicture(int fila, int col) const;
    void CellPicture(int fila, int col, std::shared_ptr<const Imagen> imagen);

    /// Merge switch of a column. Outside the grid: the let is ignored, the get gives false.
    [[nodiscard]] bool MergeCol(int col) const;
    void MergeCol(int col, bool fundir);

    /// Merge mode 0..3; the caller checks the range.
    [[nodiscard]] std::int16_t MergeCells() const { return fusion_; }

    void MergeCells(std::int16_t modo);

    /// While off no notice is given; switching on gives the joined ones. The switch does not count.
    [[nodiscard]] bool Redraw() const { return !avisos_.retenidos(); }

    void Redraw(bool si);

    [[nodiscard]] const AlmacenCeldas& almacen() const { return almacen_; }

private:
    struct Cursor {
        int fila = 0, col = 0, fila_sel = 0, col_sel = 0;
        friend constexpr bool operator==(const Cursor&, const Cursor&) = default;
    };

    // What of the grid the window shows.
    struct Parte {
        int fila_superior = 1, desplazamiento = 0;
        friend constexpr bool operator==(const Parte&, const Parte&) = default;
    };

    struct Forma {
        std::string nombre;
        std::function<bool(std::string_view)> reconoce;
        TramosFilas pendientes; // rows that may not have it
    };

    struct Columna {
        int ancho = ANCHO_INICIAL;
        AlineacionCelda alineacion = AlineacionCelda::Izquierda;
        bool funde = false;
        std::unique_ptr<Forma> forma; // the one given last
    };

    void comprueba_fila(int fila) const;
    void comprueba_columna(int col) const;
    void comprueba(int fila, int col) const {
        const bool dentro = fila >= 0 && fila < Rows() && col >= 0 && col < Cols();
        if (!dentro) fuera();
    }

    [[noreturn]] static void fuera();
    void comprueba(const Bloque& bloque) const;
    void comprueba_tamano(std::int64_t filas, std::int64_t columnas) const;
    void recorta();
    void sin_hueco_nuevo(const std::function<void()>& cambia);
    void ajusta();
    void avisa_cursor();
    void avisa_parte();
    template <class Escribe>
    void escribe_bloque(const Bloque& bloque, const Escribe& escribe);
    void avisa(const Bloque& bloque);
    void anota_escritas(int fila1, int fila2, int col1, int col2);
    void anota_fila(int fila, int col, std::span<const std::string_view> textos);
    template <class Cambio>
    void anota_filas(const Cambio& cambio);
    [[nodiscard]] Bloque bloque_de_relleno() const;

    AvisosUnidos avisos_;
    AlmacenCeldas almacen_;
    ImagenesCeldas imagenes_;
    std::vector<Columna> columnas_;
    Cursor cursor_, cursor_avisado_; // the second ones are what the view was told last
    Parte parte_, parte_avisada_;
    int ancho_vista_ = 0, alto_vista_ = 0;
    int alto_normal_ = 300;
    ModoSeleccion modo_ = ModoSeleccion::Libre;
    Relleno relleno_ = Relleno::Celda;
    std::int16_t fusion_ = 0;
    std::string cadena_formato_;
};

} // namespace Qlt4_Tabla
