// SPDX-License-Identifier: MIT
// The input that every contestant of a measurement gets: rows of ten columns, whole number, real with
// three decimals, short text, list value and empty, twice; 6.6 bytes of text a cell on average.
// Main names: DatosMedida, datos, llena.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Qlt4_Tabla::medida {

inline constexpr int COLUMNAS = 10;
/// 0-based among the data columns: the two columns of reals, and the one that takes their sums.
inline constexpr int COL_REAL = 1;
inline constexpr int COL_REAL2 = 6;
inline constexpr int COL_SUMA = 4;
/// Rows that the texts are made for; a longer table repeats them, so that the input itself stays small.
inline constexpr int FILAS_DISTINTAS = 4096;

class DatosMedida {
public:
    DatosMedida() {
        textos_.reserve(std::size_t{FILAS_DISTINTAS} * COLUMNAS);
        std::uint32_t x = 12345;
        for (int i = 0; i < FILAS_DISTINTAS; ++i) {
            for (int c = 0; c < COLUMNAS; ++c) {
                x = x * 1664525U + 1013904223U;
                textos_.push_back(texto(c % 5, x >> 8));
            }
        }
    }

    [[nodiscard]] const std::string& celda(int fila, int col) const {
        const auto f = static_cast<std::size_t>(fila % FILAS_DISTINTAS);
        return textos_[f * COLUMNAS + static_cast<std::size_t>(col)];
    }

    /// So many rows as a block of text: TAB between cells, CR LF behind each row, `decimal` in the reals.
    [[nodiscard]] std::string bloque(int filas, char decimal) const {
        std::string texto;
        texto.reserve(static_cast<std::size_t>(filas) * 80);
        for (int f = 0; f < filas; ++f) {
            for (int c = 0; c < COLUMNAS; ++c) {
                if (c > 0) texto += '\t';
                const std::size_t desde = texto.size();
                texto += celda(f, c);
                std::replace(texto.begin() + static_cast<std::ptrdiff_t>(desde), texto.end(), '.', decimal);
            }
            texto += "\r\n";
        }
        return texto;
    }

    /// Bytes of the texts of so many rows.
    [[nodiscard]] std::size_t bytes(int filas) const {
        std::size_t n = 0;
        for (int f = 0; f < filas; ++f)
            for (int c = 0; c < COLUMNAS; ++c) n += celda(f, c).size();
        return n;
    }

private:
    static std::string texto(int clase, std::uint32_t azar) {
        switch (clase) {
        case 0: return std::to_string(azar % 100000000U);
        case 1: {
            std::string decimales = std::to_string(1000U + azar % 1000U).substr(1);
            return std::to_string(100000U + azar % 900000U) + "." + decimales;
        }
        case 2: return "Punto " + std::to_string(azar % 10000U);
        case 3: return azar % 2 == 0 ? "Pasto" : "Arboleda";
        default: return {};
        }
    }

    std::vector<std::string> textos_;
};

inline const DatosMedida& datos() {
    static const DatosMedida d;
    return d;
}

/// All cells of a contestant, row by row.
template <class C>
void llena(C& c, int filas) {
    c.filas(filas);
    for (int f = 0; f < filas; ++f)
        for (int col = 0; col < COLUMNAS; ++col) c.pon(f, col, datos().celda(f, col));
}

} // namespace Qlt4_Tabla::medida
