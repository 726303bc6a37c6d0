// SPDX-License-Identifier: MIT
// Cells into a CSV text: spreadsheet/bloque_csv.h.
#include "spreadsheet/bloque_csv.h"

#include "base/error.h"
#include "spreadsheet/textos.h"

#include <cstddef>
#include <string>

namespace Qlt4_Tabla {

namespace {

// Bare fields are read as if they were typed, quoted ones stay texts: a text with "=" in front would
// otherwise become a formula, and the other characters would end the field.
bool lleva_comillas(std::string_view texto) {
    return texto.front() == '=' || texto.find_first_of("\t\"\r\n") != std::string_view::npos;
}

// A quote inside is written twice.
void pon_campo(std::string& destino, std::string_view texto) {
    if (texto.empty()) return;
    if (!lleva_comillas(texto)) {
        destino.append(texto);
        return;
    }
    destino += '"';
    for (const char c : texto) {
        if (c == '"') destino += c;
        destino += c;
    }
    destino += '"';
}

} // namespace

void BloqueCsv::pon(int fila, int col, std::string_view texto) {
    if (fila > FILAS || col > COLUMNAS)
        throw Error(static_cast<int>(NumError::ErrorAplicacion), std::string(textos::no_cabe));
    const bool sigue = fila > fila_ || (fila == fila_ && col > col_);
    if (col < 1 || !sigue) lanza(NumError::LlamadaNoValida);
    if (fila > fila_) {
        texto_.append(static_cast<std::size_t>(fila - fila_), '\n');
        col_ = 0;
    }
    texto_.append(static_cast<std::size_t>(col_ == 0 ? col - 1 : col - col_), '\t');
    pon_campo(texto_, texto);
    fila_ = fila;
    col_ = col;
}

} // namespace Qlt4_Tabla
