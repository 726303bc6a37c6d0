// SPDX-License-Identifier: MIT
// Messages as bytes and back: spreadsheet/protocolo.h.
#include "spreadsheet/protocolo.h"

#include "base/error.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr std::size_t LINEA_MAXIMA = 64;

} // namespace

std::string cabecera(std::string_view nombre, std::size_t longitud) {
    return std::string(nombre) + ' ' + std::to_string(longitud) + '\n';
}

bool LectorMensajes::lee_cabecera() {
    const std::size_t fin = pendiente_.find('\n');
    if (std::min(fin, pendiente_.size()) > LINEA_MAXIMA) lanza(NumError::ServidorPerdido);
    if (fin == std::string::npos) return false;
    const std::string_view linea(pendiente_.data(), fin);
    const std::size_t blanco = linea.find(' ');
    if (blanco == std::string_view::npos) lanza(NumError::ServidorPerdido);
    const std::string_view cifras = linea.substr(blanco + 1);
    const auto leido = std::from_chars(cifras.data(), cifras.data() + cifras.size(), falta_);
    if (leido.ec != std::errc() || leido.ptr != cifras.data() + cifras.size() || falta_ > maximo_)
        lanza(NumError::ServidorPerdido);
    empezado_ = Mensaje{std::string(linea.substr(0, blanco)), {}};
    pendiente_.erase(0, fin + 1);
    return true;
}

std::optional<Mensaje> LectorMensajes::siguiente() {
    if (!empezado_ && !lee_cabecera()) return std::nullopt;
    if (pendiente_.size() < falta_) return std::nullopt;
    empezado_->cuerpo = pendiente_.substr(0, falta_);
    pendiente_.erase(0, falta_);
    return std::exchange(empezado_, std::nullopt);
}

std::string_view toma_linea(std::string_view& texto) {
    const std::size_t fin = texto.find('\n');
    const std::string_view linea = texto.substr(0, fin);
    texto.remove_prefix(fin == std::string_view::npos ? texto.size() : fin + 1);
    return linea;
}

} // namespace Qlt4_Tabla
