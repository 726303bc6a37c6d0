// SPDX-License-Identifier: MIT
// The progress line: tools/tabla/progreso.h.
#include "tools/tabla/progreso.h"

#include "base/utf8.h"
#include "tools/tabla/textos.h"

namespace Qlt4_Tabla::herramienta {

namespace {

constexpr std::chrono::milliseconds PRIMERA{500};
constexpr std::chrono::milliseconds CADA{100};

} // namespace

Progreso::Progreso(std::ostream* terminal, std::string_view nombre)
    : terminal_(terminal), nombre_(nombre), proxima_(Reloj::now() + PRIMERA) {}

Progreso::~Progreso() {
    if (ancho_ != 0) *terminal_ << '\r' << std::string(ancho_, ' ') << '\r' << std::flush;
}

void Progreso::va_por(std::size_t hecho, std::size_t todo) {
    if (terminal_ == nullptr || todo == 0) return;
    const auto ahora = Reloj::now();
    if (ahora < proxima_) return;
    proxima_ = ahora + CADA;
    const double parte = static_cast<double>(hecho) / static_cast<double>(todo);
    std::string linea = nombre_;
    linea += textos::dos_puntos;
    linea += std::to_string(static_cast<int>(100 * parte));
    linea += textos::por_ciento;
    ancho_ = utf8::longitud(linea);
    *terminal_ << '\r' << linea << std::flush;
}

} // namespace Qlt4_Tabla::herramienta
