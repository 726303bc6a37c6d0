// SPDX-License-Identifier: MIT
// The rules that turn the text of a cell into a number and a number into the text of a cell, and
// the filters of the keys typed into numeric cells. Free functions without state: cells keep a
// point as decimal separator, so none of them asks for the regional settings.
// Main names: Valor_Numerico, Formato_Numero, Punto_a_Coma, Coma_a_Punto, Filtra_Tecla,
// Filtra_Tecla_Tablero. Underneath: base/numeros.h.
#pragma once

#include "base/publico.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

// The number a cell text begins with, its first comma read as a point (Val says the rest):
// "1,5" is 1.5, "1.234,5" is 1.234, "12.5 m" is 12.5, "abc" is 0. Beyond the range of a double: 0.
// Always finite.
TABLA_API double Valor_Numerico(std::string_view texto);

// A number text with `decimales` decimals, at most 15: its number by Valor_Numerico, written by
// formato_fijo. With 0 decimals or less the text stays as it came ("2.5" stays "2.5").
// Where the integer part with its sign has fewer than `ancho` characters, blanks fill it up in
// front, so that numbers of the same `ancho` and `decimales` stand with their points in line.
// The flag ComaDecimal is no business of this function: the control, which owns it, refreshes it
// whenever it has a number displayed.
TABLA_API std::string Formato_Numero(std::string_view texto, int ancho, int decimales);

// The same into `destino`, whose old contents are dropped and whose memory is used again: for
// columns of many rows. `texto` must not lie inside `destino`.
TABLA_API void Formato_Numero(std::string_view texto, int ancho, int decimales, std::string& destino);

// The same as Formato_Numero(numero_a_texto(x), ancho, decimales), without the way over the text.
// Error 6 when x is not finite.
TABLA_API std::string Formato_Numero(double x, int ancho, int decimales);
TABLA_API void Formato_Numero(double x, int ancho, int decimales, std::string& destino);

// Is the text a number of at most 15 digits that already stands as it would be written: with this many
// decimals by Formato_Numero, without decimals by numero_a_texto? False for some that do.
bool tiene_forma_de_numero(std::string_view texto, int decimales) noexcept;

// The text with its first "." as ",".
TABLA_API std::string Punto_a_Coma(std::string_view texto);

// The text with its first "," as ".".
TABLA_API std::string Coma_a_Punto(std::string_view texto);

struct ResultadoFiltro {
    int KeyAscii = 0; // 0: the key is dropped
    bool reescrito = false; // the box takes `texto`; its caret keeps its distance from the end
    std::string texto; // only meaningful when `reescrito`
};

// Filter of a key typed into the text box of a numeric column; `texto_casilla` is what the box
// holds. `signos`: "-" where negative numbers are allowed, "+" where they are not. `decimales`:
// whether a decimal point is allowed.
// Digits, Backspace (8), 0, negative codes and codes above 255 pass; "." passes once; "-" passes in
// an empty box and else is put in front of a text without "-"; "+" is never typed, but takes the
// first character away from a text that is not above 0, also from "0" and "abc" (kept so). With
// `signos` "+" both signs do nothing. Every other code is dropped.
TABLA_API ResultadoFiltro Filtra_Tecla(
    int KeyAscii, std::string_view signos, bool decimales, std::string_view texto_casilla);

// Filter of the first key typed on a closed numeric cell; the code, or 0 for a dropped key. Digits,
// "-" (also in columns without negative numbers), Backspace, codes of 0 or less and above 255 pass,
// "." where `decimales`; every other code is dropped.
TABLA_API int Filtra_Tecla_Tablero(int KeyAscii, bool decimales) noexcept;

} // namespace Qlt4_Tabla
