// SPDX-License-Identifier: MIT
// A decimal number of at most 15 significant digits: what the texts of numbers show. Any such
// decimal of ordinary size is unchanged by the way through a double and back to 15 digits, so one
// taken straight from its text may be written without making the double.
// Main names: Decimal, decimal_de_real, decimal_de_texto, real_de_decimal, suma_exacta, escribe_fijo,
// escribe_numero.
// For use by base/numeros.cpp and the value rules of core/; others take base/numeros.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Qlt4_Tabla {

// The number cifras x 10^-decimales.
struct Decimal {
    bool negativo = false; // never for zero
    std::uint64_t cifras = 0; // below 10^15
    int decimales = 0; // below 0 (never for zero): that many zeros follow the digits
};

// x rounded to `significativas` digits (1 to 15), without zeros at the end of its decimals. Error 6 when x is
// not finite.
Decimal decimal_de_real(double x, int significativas = 15);

// The number a text is in its plainest form: a "-" at most, digits, a point or comma at most, in no
// more than 19 characters behind the sign and 15 digits between the zeros around them. Nothing for any
// other text, though it may be a number.
std::optional<Decimal> decimal_de_texto(std::string_view texto) noexcept;

// The double nearest to a number with at most 15 decimals, or as many zeros behind its digits.
double real_de_decimal(const Decimal& numero) noexcept;

// a + b where both have 0 to 9 decimals and the sum of their doubles is sure to show the same number with 9
// decimals; else nothing.
std::optional<Decimal> suma_exacta(const Decimal& a, const Decimal& b) noexcept;

// formato_fijo of the number with `decimales` 0 to 15; the number of bytes written. `destino` has
// capacidad_fijo bytes, of which those behind the text are overwritten too.
std::size_t escribe_fijo(const Decimal& numero, int decimales, char* destino) noexcept;

// numero_a_texto of the number, whose decimals have no zeros at their end: plain while it is below
// 10^significativas and needs at most so many decimals; the number of bytes written. `destino` has
// capacidad_numero bytes.
std::size_t escribe_numero(const Decimal& numero, int significativas, char* destino) noexcept;

} // namespace Qlt4_Tabla
