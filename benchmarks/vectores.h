// SPDX-License-Identifier: MIT
// Vectores: a vector of rows, each a vector of strings: what a program without a table component would hold.
// Numbers by from_chars and to_chars; its file is lengths and texts.
#pragma once

#include "datos.h"
#include "medidor.h"

#include <charconv>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla::medida {

/// The text of a number with three decimals; `destino` has room for any.
inline std::string_view con_tres_decimales(double x, char (&destino)[400]) {
    return {destino, std::to_chars(destino, destino + sizeof destino, x, std::chars_format::fixed, 3).ptr};
}

inline double numero(std::string_view texto) {
    double x = 0;
    std::from_chars(texto.data(), texto.data() + texto.size(), x);
    return x;
}

[[nodiscard]] inline bool es_real(int col) { return col == COL_REAL || col == COL_REAL2; }

/// Takes a block of text apart: `pon(row, column, text)` for each field, commas as points.
template <class Pon>
void reparte_bloque(const std::string& bloque, const Pon& pon) {
    std::string campo;
    int fila = 0;
    int col = 0;
    for (const char c : bloque) {
        if (c == '\r') continue;
        if (c != '\t' && c != '\n') {
            campo += c == ',' ? '.' : c;
            continue;
        }
        pon(fila, col, campo);
        campo.clear();
        col = c == '\n' ? 0 : col + 1;
        fila += c == '\n' ? 1 : 0;
    }
}

inline void anade_a_fichero(std::string& bytes, std::string_view texto) {
    const auto n = static_cast<std::uint16_t>(texto.size());
    char cabecera[2];
    std::memcpy(cabecera, &n, 2);
    bytes.append(cabecera, 2);
    bytes += texto;
}

inline void escribe_fichero(const std::string& ruta, const std::string& bytes) {
    std::ofstream(ruta, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// Calls `pon(row, column, text)` for each text of a file of rows of ten.
template <class Pon>
int lee_fichero(const std::string& ruta, const Pon& pon) {
    std::ifstream f(ruta, std::ios::binary | std::ios::ate);
    std::string bytes(static_cast<std::size_t>(f.tellg()), '\0');
    f.seekg(0).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    int celda = 0;
    for (std::size_t i = 0; i < bytes.size(); ++celda) {
        std::uint16_t n = 0;
        std::memcpy(&n, bytes.data() + i, 2);
        pon(celda / COLUMNAS, celda % COLUMNAS, std::string_view(bytes).substr(i + 2, n));
        i += 2U + n;
    }
    return celda / COLUMNAS;
}

class Vectores {
public:
    void filas(int n) { v_.assign(static_cast<std::size_t>(n), Fila(COLUMNAS)); }

    void pon(int f, int c, const std::string& s) { celda(f, c) = s; }

    [[nodiscard]] std::size_t lee(int f, int c) const {
        const std::string_view s = celda(f, c);
        usa(s);
        return s.size();
    }

    void pega(const std::string& bloque) {
        reparte_bloque(bloque, [this](int f, int c, const std::string& campo) {
            if (static_cast<std::size_t>(f) == v_.size()) v_.emplace_back(COLUMNAS);
            char cifras[400];
            celda(f, c) = es_real(c) ? con_tres_decimales(numero(campo), cifras) : std::string_view(campo);
        });
    }

    [[nodiscard]] std::size_t copia() const {
        std::string texto;
        for (const Fila& fila : v_) {
            for (int c = 0; c < COLUMNAS; ++c) {
                if (c > 0) texto += '\t';
                texto += fila[static_cast<std::size_t>(c)];
            }
            texto += "\r\n";
        }
        usa(texto);
        return texto.size();
    }

    void anade() { v_.emplace_back(COLUMNAS); }

    void inserta(int f) { v_.insert(v_.begin() + f, Fila(COLUMNAS)); }

    void borra(int f) { v_.erase(v_.begin() + f); }

    void graba(const std::string& ruta) const {
        std::string bytes;
        for (const Fila& fila : v_)
            for (const std::string& s : fila) anade_a_fichero(bytes, s);
        escribe_fichero(ruta, bytes);
    }

    void carga(const std::string& ruta) {
        lee_fichero(ruta, [this](int f, int c, std::string_view s) {
            if (static_cast<std::size_t>(f) == v_.size()) v_.emplace_back(COLUMNAS);
            celda(f, c) = s;
        });
    }

    void suma(int a, int b, int r) {
        calcula(r, [=, this](int f) { return numero(celda(f, a)) + numero(celda(f, b)); });
    }

    void resta(int a, int b, int r) {
        calcula(r, [=, this](int f) { return numero(celda(f, a)) - numero(celda(f, b)); });
    }

    void parcial(int a, int r) {
        calcula(r, [=, this](int f) { return f == 0 ? 0 : numero(celda(f, a)) - numero(celda(f - 1, a)); });
    }

    [[nodiscard]] std::vector<double> numeros(int a) const {
        std::vector<double> v;
        v.reserve(v_.size());
        for (const Fila& fila : v_) v.push_back(numero(fila[static_cast<std::size_t>(a)]));
        return v;
    }

    void pon_numeros(int a, const std::vector<double>& v) {
        calcula(a, [&v](int f) { return v[static_cast<std::size_t>(f)]; });
    }

private:
    using Fila = std::vector<std::string>;

    template <class Cuenta>
    void calcula(int r, const Cuenta& cuenta) {
        char cifras[400];
        for (int f = 0; f < static_cast<int>(v_.size()); ++f)
            celda(f, r) = con_tres_decimales(cuenta(f), cifras);
    }

    std::string& celda(int f, int c) { return v_[static_cast<std::size_t>(f)][static_cast<std::size_t>(c)]; }

    [[nodiscard]] const std::string& celda(int f, int c) const {
        return v_[static_cast<std::size_t>(f)][static_cast<std::size_t>(c)];
    }

    std::vector<Fila> v_;
};

} // namespace Qlt4_Tabla::medida
