// SPDX-License-Identifier: MIT
// Numbers and their texts, the same on every machine: a point is the decimal separator whatever
// the regional settings say.
// Text to number: Val, numero_de_texto, entero16_de_texto, entero32_de_texto, booleano_de_texto.
// Number to text: numero_a_texto, Str, formato_fijo, booleano_a_texto.
// Real to whole: entero16_de_real, entero32_de_real. How columns use them: core/reglas_valor.h.
#pragma once

#include "base/publico.h"

#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

// The number a text begins with; 0 where it begins with none.
// Blanks (U+0020), TAB and LF are skipped everywhere, also between digits. Then: an optional sign,
// digits with at most one point, and an exponent with E or D in either case; the first character
// that cannot continue the number ends it ("12.5 m" is 12.5, "1e" is 1, "0x10" is 0).
// "&H" and "&O" in either case read a hexadecimal or octal whole number, without a sign in front:
// up to FFFF it is a signed 16-bit value, up to FFFFFFFF a signed 32-bit one, beyond that 0. An "&"
// after the digits makes it a 32-bit value ("&HFFFF" is -1, "&HFFFF&" is 65535).
// A number beyond the range of a double gives 0. The result is always finite. Never throws but for
// memory; allocates only for texts of more than 100 characters.
TABLA_API double Val(std::string_view texto);

// The same, for a caller with bounds of its own: a number beyond the range is infinite, with its sign.
TABLA_API double Val_sin_tope(std::string_view texto);

// The number a whole text is, blanks (U+0020, TAB) around it allowed and none within; a comma may
// stand for the point. Nothing where the text is no number ("", "12 m", "1 2", "inf").
// Error 6 beyond the range of a double.
TABLA_API std::optional<double> numero_de_texto(std::string_view texto);

// Whole number of a text, halves rounded to even ("2.5" is 2). Error 13: the text is no number
// (as numero_de_texto). Error 6: outside the range.
TABLA_API std::int16_t entero16_de_texto(std::string_view texto);
TABLA_API std::int32_t entero32_de_texto(std::string_view texto);

// Whole number of a real, halves rounded to even. Error 6: outside the range, or not finite.
TABLA_API std::int16_t entero16_de_real(double x);
TABLA_API std::int32_t entero32_de_real(double x);

// Bytes that any result of escribe_numero fits in.
inline constexpr std::size_t capacidad_numero = 32;

// Standard number-to-text: at most 15 significant digits and no trailing zeros; plain digits while
// the number is below 1E15 and needs at most 15 decimals ("0.333333333333333"), else with an
// exponent of two digits or more ("1E+15", "3.33333333333333E-02"). Either zero is "0".
// Error 6 when x is not finite.
TABLA_API std::string numero_a_texto(double x);
// A Single: the same with 7 digits, so 0.1f is "0.1" and 1E7f is "1E+07".
TABLA_API std::string numero_a_texto(float x);

// The same into a buffer; the number of bytes written (no closing 0). Error 5 when `capacidad` is
// less than capacidad_numero.
TABLA_API std::size_t escribe_numero(double x, char* destino, std::size_t capacidad);

// Whole numbers, exact, without blank: "-12".
template <std::integral E>
std::string numero_a_texto(E n) {
    char cifras[capacidad_numero];
    return {cifras, std::to_chars(cifras, cifras + capacidad_numero, n).ptr};
}

// numero_a_texto with a place for the sign: a blank in front of a number that is not negative.
TABLA_API std::string Str(double x);
TABLA_API std::string Str(float x);

template <std::integral E>
std::string Str(E n) {
    std::string texto = numero_a_texto(n);
    if (texto.front() != '-') texto.insert(texto.begin(), ' ');
    return texto;
}

// Bytes that any result of escribe_fijo fits in: 309 digits, point, 15 decimals, sign.
inline constexpr std::size_t capacidad_fijo = 336;

// x with a fixed number of decimals, 0 to 15 (less is taken as 0, more as 15): the decimal of 15
// significant digits of x, rounded half away from zero (2.675 is "2.68", -0.125 is "-0.13"); digits
// beyond the fifteenth are zeros. At least one digit before the point; no point with 0 decimals.
// Either zero is "0.00"; a negative number that rounds to zero keeps its sign (-0.004 is "-0.00").
// Error 6 when x is not finite.
TABLA_API std::string formato_fijo(double x, int decimales);

// The same into a buffer; the number of bytes written (no closing 0). Error 5 when `capacidad` is
// less than capacidad_fijo.
TABLA_API std::size_t escribe_fijo(double x, int decimales, char* destino, std::size_t capacidad);

// "True" or "False".
TABLA_API std::string_view booleano_a_texto(bool valor) noexcept;

// "True" and "False", also "Verdadero" and "Falso", in any case of the letters, with blanks around
// allowed; else a number, true when it is not 0. Error 13: neither; error 6 as numero_de_texto.
TABLA_API bool booleano_de_texto(std::string_view texto);

} // namespace Qlt4_Tabla
