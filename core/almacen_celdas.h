// SPDX-License-Identifier: MIT
// AlmacenCeldas: the texts of the grid, up to a few tens of columns by millions of rows.
//
// Rows stand packed as runs of bytes (core/fila_empaquetada.h) in chunks (core/trozo.h) behind an index of
// their first rows (core/indice_trozos.h): a write touches one chunk, a row inserted or removed moves one
// chunk's bytes and the index, never the table. Rows that hold nothing take nothing, however many.
// Cost: read and write O(1) near the last place used, else O(log chunks); insert and remove O(chunk +
// chunks).
//
// Row numbers: the text of column 0 of a data row is its own row number, derived and not stored, unless
// something else was written there; it follows the row when the row moves. A row made by `inserta` or
// `pon_filas` starts without number. Row 0 never shows a number.
// Without memory: std::bad_alloc; a call for one cell or for the counts has then changed nothing.
#pragma once

#include "base/publico.h"
#include "core/fila_leida.h"
#include "core/textos_seguidos.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

/// The rows whose text a call changed lie between these, ends inclusive; -1 when none did.
struct FilasCambiadas {
    int primera = -1;
    int ultima = -1;
    int columnas = 1; ///< the most neighbouring cells that one of them was given at once

    [[nodiscard]] bool hay() const { return primera >= 0; }

    /// Takes in rows further down.
    void extiende(int desde, int hasta) {
        if (primera < 0) primera = desde;
        ultima = hasta;
    }
};

/// `cambia(fila, texto, nuevo)` returns true when the cell takes the text it put into `nuevo` (empty before),
/// false to leave it. It may read the store, where the rows above may still show their old texts in this column,
/// and not write it.
using CambioCelda = std::function<bool(int fila, std::string_view texto, std::string& nuevo)>;

/// The new texts of a row's cells, good until the next call. It must not write the store.
using TextosDeFila = std::function<std::span<const std::string_view>(int fila)>;

class TABLA_API AlmacenCeldas {
public:
    AlmacenCeldas();
    ~AlmacenCeldas();
    /// The other one may only be destroyed.
    AlmacenCeldas(AlmacenCeldas&& otro) noexcept;
    AlmacenCeldas(const AlmacenCeldas&) = delete;
    AlmacenCeldas& operator=(const AlmacenCeldas&) = delete;

    [[nodiscard]] int filas() const { return filas_; }

    [[nodiscard]] int columnas() const { return columnas_; }

    /// Grows with empty, unnumbered rows at the end or drops rows there. n >= 0.
    void pon_filas(int n);
    /// Grows with empty columns at the end or drops columns there; without columns no row is numbered. n >= 0.
    void pon_columnas(int n);

    /// The text of a cell inside the grid (not checked). The view holds until the table changes or the
    /// text of another derived row number is asked for.
    [[nodiscard]] std::string_view texto(int fila, int col) const {
        return leida_.tiene(fila, col) ? leida_.texto(col) : busca_texto(fila, col);
    }

    /// The texts of neighbouring cells of one row from column `col` on, in one go.
    void lee_fila(int fila, int col, std::span<std::string_view> textos) const;
    /// The texts of a row as they lie, until the table changes; none of a row with a text of LARGO bytes or more.
    /// The quickest way through a whole table.
    [[nodiscard]] std::optional<FilaSeguida> fila_seguida(int fila) const;
    /// True when the cell had another text. The text may be a view of this store.
    bool pon_texto(int fila, int col, std::string_view texto);
    /// Writes neighbouring cells of one row from column `col` on, in one go; the others stay. True when any
    /// had another text. The texts may be views of this store.
    bool pon_fila(int fila, int col, std::span<const std::string_view> textos);
    /// The same for rows `desde`..`hasta` and a `col` above 0, in one pass: `da` gives the texts of each row, any
    /// number. If it throws, the rows before stay written.
    FilasCambiadas pon_filas(int desde, int hasta, int col, const TextosDeFila& da);
    /// Rewrites column `col` of rows `desde`..`hasta` in one pass. If `cambia` throws, the rows before stay
    /// rewritten and nothing is lost.
    FilasCambiadas transforma(int col, int desde, int hasta, const CambioCelda& cambia);
    /// Are the texts of two cells equal? Safe for two row numbers.
    [[nodiscard]] bool iguales(int fila1, int col1, int fila2, int col2) const;

    /// Takes all rows and columns of another store, which may only be destroyed then. Of what this one held, the
    /// colours and the height of row 0 stay. Without memory nothing has changed here.
    void toma(AlmacenCeldas&& otro);

    /// Inserts `n` empty, unnumbered rows before row `fila` (0..filas()).
    void inserta(int fila, int n);
    void borra(int fila, int n);
    /// Removes all rows whose index (ascending, no doubles) is in `filas`, in one pass over the chunks.
    void borra_varias(std::span<const int> filas);
    /// Gives every row from 1 on its own number as text of column 0. Cost: the rows that
    /// were made or overwritten since the last call, and those between them where they are in many places.
    FilasCambiadas numera();

    /// Text colour of a cell, 0x00BBGGRR; 0 when never set.
    [[nodiscard]] std::int32_t color_texto(int fila, int col) const;
    /// Sets it in a rectangle (inclusive, ascending); 0 frees what was stored. True when any cell had another.
    bool pon_color_texto(int fila1, int col1, int fila2, int col2, std::int32_t color);
    /// Background colour of a cell; 0 when never set: ask `tiene_fondo` to tell it from black.
    [[nodiscard]] std::int32_t color_fondo(int fila, int col) const;
    [[nodiscard]] bool tiene_fondo(int fila, int col) const;
    bool pon_color_fondo(int fila1, int col1, int fila2, int col2, std::int32_t color);

    /// Own height of a row in twips, or -1.
    [[nodiscard]] int alto(int fila) const;
    /// Negative: the row has no height of its own any more. True when it had another one.
    bool pon_alto(int fila, int twips);
    /// Any row with a height of its own?
    [[nodiscard]] bool hay_altos() const;

    /// Bytes held for the cells, index and slack included: for tests of size.
    [[nodiscard]] std::size_t bytes() const;

private:
    struct Interior;

    [[nodiscard]] std::string_view busca_texto(int fila, int col) const;
    template <class Paso, class Aparte>
    FilasCambiadas escribe_filas(int fila, int hasta, const Paso& paso, const Aparte& aparte);

    // The way to every change.
    Interior& para_cambiar() {
        leida_ = {};
        return *yo_;
    }

    int filas_ = 0;
    int columnas_ = 0;
    mutable FilaLeida leida_;
    std::unique_ptr<Interior> yo_;
};

} // namespace Qlt4_Tabla
