// SPDX-License-Identifier: MIT
// Line ends of blocks of text: base/lineas.h.
#include "base/lineas.h"

namespace Qlt4_Tabla {

namespace {

constexpr std::string_view FIN = "\r\n";

// Where the first LF or CR stands from `desde` on.
std::size_t busca_fin(std::string_view texto, std::size_t desde) {
    std::size_t i = busca_separador(texto, desde);
    while (i < texto.size() && texto[i] == '\t') i = busca_separador(texto, i + 1);
    return i;
}

// Where the first line that does not end in CR LF begins.
std::size_t busca_linea_mala(std::string_view texto) {
    std::size_t linea = 0;
    while (linea < texto.size()) {
        const std::size_t fin = busca_fin(texto, linea);
        if (texto.substr(fin, 2) != FIN) break;
        linea = fin + 2;
    }
    return linea;
}

} // namespace

std::string cierra_lineas(std::string texto) {
    std::size_t linea = busca_linea_mala(texto);
    if (linea == texto.size()) return texto;
    const std::string_view resto = texto;
    std::string bueno;
    bueno.reserve(texto.size() + texto.size() / 16 + 2);
    bueno.append(resto, 0, linea);
    while (linea < resto.size()) {
        const std::size_t fin = busca_fin(resto, linea);
        bueno.append(resto, linea, fin - linea);
        bueno += FIN;
        linea = fin + (resto.substr(fin, 2) == FIN ? 2 : 1);
    }
    return bueno;
}

} // namespace Qlt4_Tabla
