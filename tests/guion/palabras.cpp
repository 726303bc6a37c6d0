// SPDX-License-Identifier: MIT
// Cutting of a step into words and numbers.
#include "tests/guion/palabras.h"

#include <charconv>

namespace Qlt4_Tabla {

namespace {

bool blanco(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// The character that a backslash and `c` stand for.
char escapado(char c) {
    switch (c) {
    case 'b': return '\b';
    case 'n': return '\n';
    case 'r': return '\r';
    case 't': return '\t';
    default: return c;
    }
}

std::string entre_comillas(std::string_view texto, std::size_t& i) {
    std::string palabra;
    for (++i; i < texto.size() && texto[i] != '"'; ++i) {
        if (texto[i] == '\\' && i + 1 < texto.size()) {
            palabra += escapado(texto[++i]);
            continue;
        }
        palabra += texto[i];
    }
    if (i >= texto.size()) throw FalloGuion("a quote is not closed");
    ++i;
    return palabra;
}

bool lee_entero(std::string_view texto, int& valor) {
    const char* fin = texto.data() + texto.size();
    const auto leido = std::from_chars(texto.data(), fin, valor);
    return leido.ec == std::errc() && leido.ptr == fin;
}

} // namespace

Palabras::Palabras(std::string_view texto) {
    for (std::size_t i = 0; i < texto.size();) {
        if (blanco(texto[i])) {
            ++i;
        } else if (texto[i] == '"') {
            palabras_.push_back(entre_comillas(texto, i));
        } else {
            const std::size_t desde = i;
            while (i < texto.size() && !blanco(texto[i])) ++i;
            palabras_.emplace_back(texto.substr(desde, i - desde));
        }
    }
}

std::string Palabras::palabra() {
    if (!quedan()) throw FalloGuion("a word is missing at the end");
    return palabras_[siguiente_++];
}

bool Palabras::es_entero() const {
    int valor = 0;
    return quedan() && lee_entero(palabras_[siguiente_], valor);
}

int Palabras::entero() {
    const std::string texto = palabra();
    int valor = 0;
    if (!lee_entero(texto, valor)) throw FalloGuion("not a whole number: " + texto);
    return valor;
}

Celda Palabras::celda() {
    const int fila = entero();
    return {fila, entero()};
}

bool Palabras::toma(std::string_view palabra) {
    if (!quedan() || palabras_[siguiente_] != palabra) return false;
    ++siguiente_;
    return true;
}

void Palabras::exige(std::string_view palabra) {
    if (!toma(palabra)) throw FalloGuion("\"" + std::string(palabra) + "\" is missing");
}

std::string Palabras::resto() {
    std::string texto;
    while (quedan()) {
        texto += palabra();
        if (quedan()) texto += ' ';
    }
    return texto;
}

void Palabras::fin() const {
    if (quedan()) throw FalloGuion("too many words, from " + palabras_[siguiente_]);
}

std::vector<std::string> trozos(std::string_view texto) {
    std::vector<std::string> partes;
    if (texto.empty()) return partes;
    for (std::size_t i = texto.find('|'); i != std::string_view::npos; i = texto.find('|')) {
        partes.emplace_back(texto.substr(0, i));
        texto.remove_prefix(i + 1);
    }
    partes.emplace_back(texto);
    return partes;
}

std::string_view sin_margen(std::string_view texto) {
    while (!texto.empty() && blanco(texto.front())) texto.remove_prefix(1);
    while (!texto.empty() && blanco(texto.back())) texto.remove_suffix(1);
    return texto;
}

} // namespace Qlt4_Tabla
