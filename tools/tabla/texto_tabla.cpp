// SPDX-License-Identifier: MIT
// Lines, quotes and JSON: tools/tabla/texto_tabla.h.
#include "tools/tabla/texto_tabla.h"

#include <algorithm>

namespace Qlt4_Tabla::herramienta {

namespace {

constexpr char COMILLA = '"';

void anade_celda(std::string_view celda, char separador, std::string& destino) {
    const auto pide_comillas = [separador](char c) {
        return c == separador || c == COMILLA || c == '\n' || c == '\r';
    };
    if (std::none_of(celda.begin(), celda.end(), pide_comillas)) {
        destino += celda;
        return;
    }
    destino += COMILLA;
    for (const char c : celda) {
        if (c == COMILLA) destino += COMILLA;
        destino += c;
    }
    destino += COMILLA;
}

} // namespace

void anade_linea(std::span<const std::string_view> celdas, char separador, std::string& destino) {
    bool primera = true;
    for (const std::string_view celda : celdas) {
        if (!primera) destino += separador;
        primera = false;
        anade_celda(celda, separador, destino);
    }
    destino += '\n';
}

void anade_json(std::string_view texto, std::string& destino) {
    static constexpr char CIFRAS[] = "0123456789abcdef";
    destino += '"';
    for (const char c : texto) {
        const auto codigo = static_cast<unsigned char>(c);
        switch (c) {
        case '"': destino += "\\\""; break;
        case '\\': destino += "\\\\"; break;
        case '\n': destino += "\\n"; break;
        case '\r': destino += "\\r"; break;
        case '\t': destino += "\\t"; break;
        default:
            if (codigo >= 0x20) {
                destino += c;
            } else {
                destino += "\\u00";
                destino += CIFRAS[codigo >> 4U];
                destino += CIFRAS[codigo & 15U];
            }
        }
    }
    destino += '"';
}

void anade_json(std::span<const std::string_view> textos, std::string& destino) {
    destino += '[';
    bool primero = true;
    for (const std::string_view texto : textos) {
        if (!primero) destino += ',';
        primero = false;
        anade_json(texto, destino);
    }
    destino += ']';
}

bool LectorTexto::acaba_linea() const {
    return pos_ == texto_.size() || texto_[pos_] == '\n' || texto_[pos_] == '\r';
}

void LectorTexto::pasa_fin_de_linea() {
    if (pos_ == texto_.size()) return;
    if (texto_[pos_++] == '\r' && pos_ < texto_.size() && texto_[pos_] == '\n') ++pos_;
    ++siguiente_linea_;
}

bool LectorTexto::siguiente(std::vector<std::string_view>& celdas) {
    celdas.clear();
    sueltas_.clear();
    if (pos_ == texto_.size()) return false;
    linea_ = siguiente_linea_;
    celdas.push_back(celda());
    while (!acaba_linea()) {
        ++pos_; // the sign
        celdas.push_back(celda());
    }
    pasa_fin_de_linea();
    return true;
}

std::string_view LectorTexto::celda() {
    if (pos_ < texto_.size() && texto_[pos_] == COMILLA) return entre_comillas();
    const std::size_t desde = pos_;
    while (!acaba_linea() && texto_[pos_] != separador_) ++pos_;
    return texto_.substr(desde, pos_ - desde);
}

// What stands behind the closing quote up to the sign belongs to the cell too.
std::string_view LectorTexto::entre_comillas() {
    std::string& celda = sueltas_.emplace_back();
    abiertas_ = true;
    for (++pos_; pos_ < texto_.size(); ++pos_) {
        const char c = texto_[pos_];
        if (c != COMILLA) {
            if (c == '\n' || (c == '\r' && texto_.substr(pos_ + 1, 1) != "\n")) ++siguiente_linea_;
            celda += c;
            continue;
        }
        if (texto_.substr(pos_ + 1, 1) != "\"") {
            ++pos_;
            abiertas_ = false;
            break;
        }
        celda += COMILLA;
        ++pos_;
    }
    while (!acaba_linea() && texto_[pos_] != separador_) celda += texto_[pos_++];
    return celda;
}

} // namespace Qlt4_Tabla::herramienta
