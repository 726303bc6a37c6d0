// SPDX-License-Identifier: MIT
// Reading and writing whole messages: spreadsheet/auxiliar/tubo.h.
#include "spreadsheet/auxiliar/tubo.h"

#include <array>
#include <cerrno>
#include <unistd.h>

namespace Qlt4_Tabla {

std::optional<Mensaje> pide(LectorMensajes& lector) {
    static constexpr std::size_t TROZO = 65536;
    std::array<char, TROZO> trozo; // NOLINT: filled by read
    for (;;) {
        if (auto entero = lector.siguiente()) return entero;
        const ssize_t n = ::read(STDIN_FILENO, trozo.data(), trozo.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return std::nullopt;
        lector.anade({trozo.data(), static_cast<std::size_t>(n)});
    }
}

void responde(std::string_view nombre, std::string_view cuerpo) {
    const std::string todo = cabecera(nombre, cuerpo.size()) + std::string(cuerpo);
    std::string_view resto = todo;
    while (!resto.empty()) {
        const ssize_t n = ::write(STDOUT_FILENO, resto.data(), resto.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return;
        resto.remove_prefix(static_cast<std::size_t>(n));
    }
}

} // namespace Qlt4_Tabla
