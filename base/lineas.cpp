// SPDX-License-Identifier: MIT
// Line ends of blocks of text: base/lineas.h.
#include "base/lineas.h"

namespace Qlt4_Tabla {

namespace {

constexpr std::string_view FIN = "\r\n";

// The lines of a text, one after the other.
class Lineas {
public:
    explicit Lineas(std::string_view texto) : texto_(texto), separadores_(texto) {}

    // Where the next line ends.
    std::size_t fin() {
        std::size_t i = separadores_.siguiente();
        while (i < texto_.size() && texto_[i] == '\t') i = separadores_.siguiente();
        bien_ = texto_.substr(i, 2) == FIN;
        if (bien_) static_cast<void>(separadores_.siguiente()); // its LF
        return i;
    }

    // Did it end in CR LF?
    [[nodiscard]] bool bien() const { return bien_; }

private:
    std::string_view texto_;
    Separadores separadores_;
    bool bien_ = false;
};

// Where the first line that does not end in CR LF begins.
std::size_t busca_linea_mala(std::string_view texto) {
    Lineas lineas(texto);
    std::size_t linea = 0;
    while (linea < texto.size()) {
        const std::size_t fin = lineas.fin();
        if (!lineas.bien()) break;
        linea = fin + FIN.size();
    }
    return linea;
}

} // namespace

std::string cierra_lineas(std::string texto) {
    const std::size_t buenas = busca_linea_mala(texto);
    if (buenas == texto.size()) return texto;
    const std::string_view resto = std::string_view(texto).substr(buenas);
    std::string bueno;
    bueno.reserve(texto.size() + texto.size() / 16 + 2);
    bueno.append(texto, 0, buenas);
    Lineas lineas(resto);
    for (std::size_t linea = 0; linea < resto.size();) {
        const std::size_t fin = lineas.fin();
        bueno.append(resto, linea, fin - linea);
        bueno += FIN;
        linea = fin + (lineas.bien() ? 2 : 1);
    }
    return bueno;
}

} // namespace Qlt4_Tabla
