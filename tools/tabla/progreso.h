// SPDX-License-Identifier: MIT
// Progreso: how far a long piece of work is, as one line on a terminal that is written over and goes away at
// the end. Nothing is written in the first moments, so that short work shows nothing.
#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace Qlt4_Tabla::herramienta {

class Progreso {
public:
    /// `terminal` null: writes nothing.
    Progreso(std::ostream* terminal, std::string_view nombre);
    ~Progreso();
    Progreso(const Progreso&) = delete;
    Progreso& operator=(const Progreso&) = delete;

    /// So much of it all is done.
    void va_por(std::size_t hecho, std::size_t todo);

private:
    using Reloj = std::chrono::steady_clock;

    std::ostream* terminal_;
    std::string nombre_;
    Reloj::time_point proxima_;
    std::size_t ancho_ = 0; // of the line that stands there
};

} // namespace Qlt4_Tabla::herramienta
