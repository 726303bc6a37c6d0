// SPDX-License-Identifier: MIT
// TramosFilas: a set of rows that follows them when rows are inserted and removed. It is kept as a few runs;
// where more would be needed, near ones are joined and it holds some rows too many, never one too few. It
// takes no memory, and a call costs no more however many rows there are.
#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace Qlt4_Tabla {

class TramosFilas {
public:
    /// Rows from `desde` on, before `hasta`.
    struct Tramo {
        int desde = 0;
        int hasta = 0;
        friend constexpr bool operator==(const Tramo&, const Tramo&) = default;
    };

    /// In order, none empty, none touching another.
    [[nodiscard]] std::span<const Tramo> tramos() const { return {tramos_.data(), cuantos_}; }

    void vacia() { cuantos_ = 0; }

    /// Takes in the rows from `desde` on, before `hasta`.
    void anade(int desde, int hasta) {
        if (ultimo_ < cuantos_ && tramos_[ultimo_].desde <= desde && hasta <= tramos_[ultimo_].hasta) return;
        une(desde, hasta);
    }

    /// `n` rows, which are taken in, were inserted before row `fila`.
    void inserta(int fila, int n);
    /// `n` rows, which are not taken in where none beside them is, were inserted before row `fila`.
    void desplaza(int fila, int n);
    void borra(int fila, int n);
    /// The same for any rows (ascending, no doubles).
    void borra(std::span<const int> filas);

private:
    static constexpr std::size_t MAXIMO = 16;

    void une(int desde, int hasta);
    void junta_dos();
    void quita(std::size_t desde, std::size_t hasta);
    template <class Donde>
    void traslada(const Donde& donde);

    std::array<Tramo, MAXIMO> tramos_{};
    std::size_t cuantos_ = 0;
    std::size_t ultimo_ = 0; // where rows were taken in last
};

} // namespace Qlt4_Tabla
