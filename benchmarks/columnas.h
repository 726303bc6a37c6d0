// SPDX-License-Identifier: MIT
// The works on whole columns: sum and differences of columns of reals, a column out to an array and in from
// one, a column coloured. A contestant has the verbs
//   suma(a, b, result) resta(a, b, result) parcial(a, result) numeros(a) -> numbers  pon_numeros(a, numbers)
// of which it may have the first alone, and may have colorea(a). Each makes its result in a column that was
// empty before.
// Main names: mide_columnas, mide_limite_columnas.
#pragma once

#include "datos.h"
#include "medidor.h"
#include "vectores.h"

#include <cstdint>
#include <iterator>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace Qlt4_Tabla::medida {

/// The numbers of the column of reals `col`.
inline std::vector<double> numeros_de(int col, int filas) {
    std::vector<double> v;
    v.reserve(static_cast<std::size_t>(filas));
    for (int f = 0; f < filas; ++f) v.push_back(numero(datos().celda(f, col)));
    return v;
}

template <class C>
void vacia(C& c, int col, int filas) {
    for (int f = 0; f < filas; ++f) c.pon(f, col, {});
}

/// The last row of COL_SUMA must show the number with three decimals.
template <class C>
void exige_ultimo(C& c, int filas, double x, const char* que) {
    char cifras[400];
    exige(c.lee(filas - 1, COL_SUMA) == con_tres_decimales(x, cifras).size(), que);
}

template <class C>
void mide_diferencias(const Medidor& m, C& c, int filas) {
    const double a = numero(datos().celda(filas - 1, COL_REAL));
    const double b = numero(datos().celda(filas - 1, COL_REAL2));
    const double arriba = numero(datos().celda(filas - 2, COL_REAL));
    vacia(c, COL_SUMA, filas);
    m.una("resta", [&] { c.resta(COL_REAL, COL_REAL2, COL_SUMA); });
    exige_ultimo(c, filas, a - b, "no difference");
    vacia(c, COL_SUMA, filas);
    m.una("parcial", [&] { c.parcial(COL_REAL, COL_SUMA); });
    exige_ultimo(c, filas, a - arriba, "no partial difference");
}

template <class C>
void mide_numeros(const Medidor& m, C& c, int filas) {
    const std::vector<double> v = numeros_de(COL_REAL, filas);
    double ultimo = 0;
    m.una("numeros", [&] {
        const auto numeros = c.numeros(COL_REAL);
        ultimo = *std::prev(numeros.end());
    });
    exige(ultimo == v.back(), "not the numbers of the column");
    vacia(c, COL_SUMA, filas);
    m.una("pon_numeros", [&] { c.pon_numeros(COL_SUMA, v); });
    exige_ultimo(c, filas, v.back(), "not the numbers given");
}

template <class C>
void mide_columnas(const Medidor& m, int filas) {
    auto c = std::make_unique<C>();
    llena(*c, filas);
    m.una("suma", [&] { c->suma(COL_REAL, COL_REAL2, COL_SUMA); });
    const double suma =
        numero(datos().celda(filas - 1, COL_REAL)) + numero(datos().celda(filas - 1, COL_REAL2));
    exige_ultimo(*c, filas, suma, "no sum");
    if constexpr (requires { c->resta(0, 0, 0); }) {
        mide_diferencias(m, *c, filas);
        mide_numeros(m, *c, filas);
    }
    if constexpr (requires { c->colorea(0); }) m.una("colorea", [&] { c->colorea(COL_SUMA); });
}

/// The numbers parsed and formatted and nothing else; the colours written once into fresh pages.
inline void mide_limite_columnas(const Medidor& m, int filas) {
    char cifras[400];
    const auto formatea = [&cifras](double x) { usa(con_tres_decimales(x, cifras).size()); };
    const auto lee = [](int f, int col) { return numero(datos().celda(f, col)); };
    m.una("suma", [&] {
        for (int f = 0; f < filas; ++f) formatea(lee(f, COL_REAL) + lee(f, COL_REAL2));
    });
    m.una("resta", [&] {
        for (int f = 0; f < filas; ++f) formatea(lee(f, COL_REAL) - lee(f, COL_REAL2));
    });
    m.una("parcial", [&] {
        double antes = 0;
        for (int f = 0; f < filas; ++f) {
            const double este = lee(f, COL_REAL);
            formatea(este - antes);
            antes = este;
        }
    });
    m.una("numeros", [&] { usa(numeros_de(COL_REAL, filas).back()); });
    const std::vector<double> v = numeros_de(COL_REAL, filas);
    m.una("pon_numeros", [&] {
        for (const double x : v) formatea(x);
    });
    m.una("colorea", [&] { usa(std::vector<std::int32_t>(static_cast<std::size_t>(filas), 255).back()); });
}

} // namespace Qlt4_Tabla::medida
