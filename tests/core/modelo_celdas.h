// SPDX-License-Identifier: MIT
// ModeloCeldas: what AlmacenCeldas has to do, in the plainest way: one vector of strings a row. The random
// tests run both side by side.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

class ModeloCeldas {
public:
    struct Fila {
        std::vector<std::string> textos;
        bool numerada = false;
        std::map<int, std::int32_t> color_texto;
        std::map<int, std::int32_t> color_fondo;
        int alto = -1;
    };

    std::vector<Fila> filas;
    int columnas = 0;

    [[nodiscard]] int n_filas() const { return static_cast<int>(filas.size()); }

    [[nodiscard]] Fila& fila(int f) { return filas[static_cast<std::size_t>(f)]; }

    [[nodiscard]] std::string texto(int f, int col) {
        if (col == 0 && fila(f).numerada) return f == 0 ? "" : std::to_string(f);
        return fila(f).textos[static_cast<std::size_t>(col)];
    }

    void pon_texto(int f, int col, const std::string& nuevo) {
        const bool numero = col == 0 && f > 0 && nuevo == std::to_string(f);
        if (texto(f, col) == nuevo && !numero) return;
        if (col == 0) fila(f).numerada = numero;
        fila(f).textos[static_cast<std::size_t>(col)] = numero ? "" : nuevo;
    }

    void inserta(int f, int n) {
        Fila nueva;
        nueva.textos.resize(static_cast<std::size_t>(columnas));
        filas.insert(filas.begin() + f, static_cast<std::size_t>(n), nueva);
    }

    void borra(int f, int n) { filas.erase(filas.begin() + f, filas.begin() + f + n); }

    void pon_columnas(int n) {
        for (Fila& f : filas) {
            f.textos.resize(static_cast<std::size_t>(n));
            f.color_texto.erase(f.color_texto.lower_bound(n), f.color_texto.end());
            f.color_fondo.erase(f.color_fondo.lower_bound(n), f.color_fondo.end());
            if (n == 0) f.numerada = false;
        }
        columnas = n;
    }

    void numera() {
        for (int f = 0; f < n_filas() && columnas > 0; ++f) {
            if (f == 0 && !texto(0, 0).empty()) continue;
            fila(f).numerada = true;
            fila(f).textos[0].clear();
        }
    }
};

} // namespace Qlt4_Tabla
