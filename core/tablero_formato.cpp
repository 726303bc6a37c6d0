// SPDX-License-Identifier: MIT
// Tablero: the format string. The rest: core/tablero.cpp.
#include "base/utf8.h"
#include "core/formato_columna.h"
#include "core/tablero.h"

#include <algorithm>
#include <optional>

namespace Qlt4_Tabla {

namespace {

// The parts between "|"; none of an empty text.
std::vector<std::string_view> partes(std::string_view texto) {
    std::vector<std::string_view> partes;
    while (!texto.empty()) {
        const std::size_t fin = texto.find('|');
        partes.push_back(texto.substr(0, fin));
        if (fin == std::string_view::npos) break;
        texto.remove_prefix(fin + 1);
        if (texto.empty()) partes.emplace_back();
    }
    return partes;
}

std::optional<AlineacionCelda> alineacion(std::string_view parte) {
    switch (parte.empty() ? '\0' : parte.front()) {
    case '<': return AlineacionCelda::Izquierda;
    case '^': return AlineacionCelda::Centro;
    case '>': return AlineacionCelda::Derecha;
    default: return std::nullopt;
    }
}

// Holds the notices back while it lives.
class SinAvisos {
public:
    explicit SinAvisos(Tablero& t) : tablero_(t), antes_(t.Redraw()) { t.Redraw(false); }

    ~SinAvisos() { tablero_.Redraw(antes_); }

    SinAvisos(const SinAvisos&) = delete;
    SinAvisos& operator=(const SinAvisos&) = delete;

private:
    Tablero& tablero_;
    bool antes_;
};

} // namespace

void Tablero::FormatString(std::string_view cadena) {
    const std::string copia(cadena); // the argument may be the string held now
    const std::string_view texto = copia;
    const std::size_t fin = texto.find(';');
    const auto columnas = partes(texto.substr(0, fin));
    const auto filas = partes(fin == std::string_view::npos ? std::string_view() : texto.substr(fin + 1));
    const int n_cols = std::max({Cols(), static_cast<int>(columnas.size()), filas.empty() ? 0 : 1});
    const int n_filas =
        columnas.empty() && filas.empty() ? Rows() : std::max(Rows(), static_cast<int>(filas.size()) + 1);
    comprueba_tamano(n_filas, n_cols);

    const SinAvisos junta(*this);
    Cols(n_cols);
    Rows(n_filas);
    for (int col = 0; std::string_view parte : columnas) {
        if (const auto a = alineacion(parte)) {
            ColAlignment(col, *a);
            parte.remove_prefix(1);
        }
        TextMatrix(0, col, parte);
        ColWidth(col++, static_cast<int>(utf8::longitud(parte)) * TWIPS_POR_UNIDAD);
    }
    for (int fila = 1; const std::string_view parte : filas) TextMatrix(fila++, 0, parte);
    cadena_formato_ = copia;
}

} // namespace Qlt4_Tabla
