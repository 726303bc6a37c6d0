// SPDX-License-Identifier: MIT
// A slow second opinion on the texts of numbers: the exact decimal expansion of a double, digit by
// digit, rounded as the rules say. Shares nothing with the library.
// Main name: fijo_exacto.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

// The digits of a positive number, the first not 0, and the place of its point: 0.d1d2d3... x 10^punto.
struct Expansion {
    std::vector<int> cifras;
    int punto = 0;
};

inline void multiplica(std::vector<int>& alreves, int factor) {
    int resto = 0;
    for (int& cifra : alreves) {
        resto += cifra * factor;
        cifra = resto % 10;
        resto /= 10;
    }
    for (; resto > 0; resto /= 10) alreves.push_back(resto % 10);
}

// Exact: a fraction of 2^-k is 5^k tenths to the power k.
inline Expansion expande(double positivo) {
    int exponente = 0;
    auto mantisa = static_cast<std::uint64_t>(std::ldexp(std::frexp(positivo, &exponente), 53));
    exponente -= 53;
    std::vector<int> alreves;
    for (; mantisa > 0; mantisa /= 10) alreves.push_back(static_cast<int>(mantisa % 10));
    for (int i = 0; i < exponente; ++i) multiplica(alreves, 2);
    for (int i = 0; i > exponente; --i) multiplica(alreves, 5);
    const int decimales = exponente < 0 ? -exponente : 0;
    return {{alreves.rbegin(), alreves.rend()}, static_cast<int>(alreves.size()) - decimales};
}

// Adds one unit in the last digit.
inline void sube(Expansion& e) {
    std::size_t i = e.cifras.size();
    while (i > 0 && e.cifras[i - 1] == 9) e.cifras[--i] = 0;
    if (i > 0) {
        ++e.cifras[i - 1];
        return;
    }
    e.cifras.insert(e.cifras.begin(), 1);
    ++e.punto;
}

// To n digits; a tie goes to the even digit, or away from zero.
inline void redondea(Expansion& e, int n, bool al_par) {
    const auto quedan = static_cast<std::size_t>(n < 0 ? 0 : n);
    if (quedan >= e.cifras.size()) return;
    const int siguiente = n < 0 ? 0 : e.cifras[quedan];
    bool justo = siguiente == 5;
    for (std::size_t i = quedan + 1; i < e.cifras.size(); ++i) justo = justo && e.cifras[i] == 0;
    e.cifras.resize(quedan);
    const bool ultima_par = quedan == 0 || e.cifras.back() % 2 == 0;
    if (siguiente > 5 || (siguiente == 5 && !(justo && al_par && ultima_par))) sube(e);
}

// The 15 significant digits of x, then `decimales` decimals with halves away from zero.
inline std::string fijo_exacto(double x, int decimales) {
    Expansion e;
    if (x != 0) e = expande(std::fabs(x));
    redondea(e, 15, true);
    redondea(e, e.punto + decimales, false);
    const auto cifra = [&e](int lugar) { // 0: the first before the point is e.punto - 1
        const bool existe = lugar >= 0 && lugar < static_cast<int>(e.cifras.size());
        return existe ? static_cast<char>('0' + e.cifras[static_cast<std::size_t>(lugar)]) : '0';
    };
    std::string texto = x < 0 ? "-" : "";
    if (e.punto <= 0) texto += '0';
    for (int i = 0; i < e.punto; ++i) texto += cifra(i);
    if (decimales > 0) texto += '.';
    for (int i = 0; i < decimales; ++i) texto += cifra(e.punto + i);
    return texto;
}

} // namespace Qlt4_Tabla
