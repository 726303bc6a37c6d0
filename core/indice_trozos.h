// SPDX-License-Identifier: MIT
// IndiceTrozos: the chunks of the store in their order, found by row. It makes, cuts, joins and removes
// chunks (core/trozo.h); what a text means is above it (core/almacen_celdas.h).
//
// The first rows of the chunks stand in one array of their own, so that a row inserted or removed moves
// them in one short pass; the chunk found last is looked at first.
#pragma once

#include "core/trozo.h"

#include <cstddef>
#include <span>
#include <vector>

namespace Qlt4_Tabla {

/// A row inside its chunk.
struct LugarFila {
    Trozo* trozo = nullptr;
    int i = 0;
};

class IndiceTrozos {
public:
    [[nodiscard]] int filas() const { return primeras_.back(); }

    [[nodiscard]] LugarFila busca(int fila) const {
        if (fila < actual_.primera || fila >= actual_.fin) busca_trozo(fila);
        return {actual_.trozo, fila - actual_.primera};
    }

    /// The row in a packed chunk that may grow by so many bytes and stay of good size.
    [[nodiscard]] LugarFila para_escribir(int fila, std::size_t mas) {
        const LugarFila l = busca(fila);
        const bool cabe = l.trozo->filas() == 1 || l.trozo->usados() + mas <= Trozo::BYTES_BUENOS;
        return !l.trozo->sin_textos() && cabe ? l : prepara(fila, mas);
    }

    /// Empty, unnumbered rows before row `fila`.
    void inserta(int fila, int n);
    void borra(int fila, int n);
    /// Ascending indexes without doubles; one pass.
    void borra_varias(std::span<const int> filas);

    /// Calls `visita(trozo, i1, i2, primera)` for each chunk with rows from `desde` to `hasta`: those rows
    /// are `i1`..`i2` of the chunk, whose first row is `primera`. Chunks must not be made or removed.
    template <class Visita>
    void recorre(int desde, int hasta, const Visita& visita) const {
        if (desde > hasta) return;
        for (std::size_t k = busca_trozo(desde); k < trozos_.size() && primeras_[k] <= hasta; ++k) {
            const int primera = primeras_[k];
            const int ultima = primeras_[k + 1] - 1;
            visita(trozos_[k], (desde > primera ? desde : primera) - primera,
                (hasta < ultima ? hasta : ultima) - primera, primera);
        }
    }

    /// No chunk with rows from `desde` to `hasta` is longer than FILAS_POR_TROZO any more.
    void reparte(int desde, int hasta);
    /// Joins neighbours that hold nothing and are alike, among the chunks of these rows.
    void junta_vacios(int desde, int hasta);

    [[nodiscard]] std::size_t bytes() const;

private:
    // The chunk found last: rows `primera` and on, before `fin`; no rows after a change of the chunks.
    struct Actual {
        int primera = 0;
        int fin = 0;
        Trozo* trozo = nullptr;
        std::size_t k = 0;
    };

    std::size_t busca_trozo(int fila) const;
    void olvida() { actual_ = {}; }

    [[nodiscard]] LugarFila prepara(int fila, std::size_t mas);
    std::size_t corta(int fila);
    void reserva(std::size_t mas);
    void anade(std::size_t k, int primera, Trozo trozo);
    void quita(std::size_t k1, std::size_t k2);
    void desplaza(std::size_t k, int n);
    bool funde(std::size_t k);

    std::vector<int> primeras_ = {0}; // first row of each chunk, then the number of rows
    mutable std::vector<Trozo> trozos_; // who may write into a chunk is the store's business
    mutable Actual actual_;
};

} // namespace Qlt4_Tabla
