// SPDX-License-Identifier: MIT
// Adornos: what only some cells or rows of a chunk have: text colour, background colour, row height. One
// plane of values a kind and column, present only while some row of the chunk has the value.
// Rows are counted from the chunk's first; a chunk with Adornos has at most FILAS_POR_TROZO rows.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace Qlt4_Tabla {

/// The most rows that stand together in one chunk with stored content.
inline constexpr int FILAS_POR_TROZO = 128;

/// The kinds of value; Alto belongs to the row and is kept under column 0.
enum class Adorno : int { ColorTexto, ColorFondo, Alto };

class Adornos {
public:
    Adornos() = default;
    /// A deep copy: the beginning of both halves of a split chunk.
    Adornos(const Adornos& otro);
    Adornos& operator=(const Adornos&) = delete;
    ~Adornos() = default;

    [[nodiscard]] std::optional<std::int32_t> valor(Adorno tipo, int col, int i) const;
    /// Sets or, without value, takes away the value of rows `i1`..`i2`. True when any was another one.
    bool pon(Adorno tipo, int col, int i1, int i2, std::optional<std::int32_t> valor);

    /// Rows `i` and on move down by `n`; the rows between have no value.
    void inserta(int i, int n);
    void borra(int i, int n);
    /// The rows of `otro` come behind the first `filas` ones. Without memory: std::bad_alloc, unchanged.
    void absorbe(const Adornos& otro, int filas);
    /// Columns from `n` on have no more values; heights stay.
    void quita_columnas(int n);

    [[nodiscard]] bool vacio() const { return planos_.empty(); }

    [[nodiscard]] bool tiene(Adorno tipo) const;
    [[nodiscard]] std::size_t bytes() const;

private:
    struct Plano {
        std::array<std::int32_t, FILAS_POR_TROZO> valor;
        std::bitset<FILAS_POR_TROZO> puesto; // rows that have a value
    };

    struct Entrada {
        Adorno tipo;
        int col;
        std::unique_ptr<Plano> plano;
    };

    [[nodiscard]] std::size_t busca(Adorno tipo, int col) const; // the entry, or where it belongs
    [[nodiscard]] bool hay(std::size_t donde, Adorno tipo, int col) const;
    Plano& plano(Adorno tipo, int col); // made where there is none
    void quita_vacios();

    std::vector<Entrada> planos_; // in the order of column, then kind
};

} // namespace Qlt4_Tabla
