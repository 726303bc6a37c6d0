// SPDX-License-Identifier: MIT
// The code page Windows-1252: base/pagina1252.h.
#include "base/pagina1252.h"

#include <algorithm>
#include <array>

namespace Qlt4_Tabla {

namespace {

// Codes 0x80 to 0x9F; all others are the code point of the same number.
constexpr std::uint8_t primer_propio = 0x80;
constexpr std::array<char16_t, 32> propios{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98
};

constexpr bool es_propio(char32_t n) noexcept {
    return n >= primer_propio && n < primer_propio + propios.size();
}

constexpr bool es_surrogado(char32_t n) noexcept { return n >= 0xD800 && n <= 0xDFFF; }

} // namespace

char32_t punto_de_1252(std::uint8_t codigo) noexcept {
    return es_propio(codigo) ? propios[codigo - primer_propio] : codigo;
}

std::optional<std::uint8_t> codigo_1252(char32_t punto) noexcept {
    if (punto <= 0xFF && !es_propio(punto)) return static_cast<std::uint8_t>(punto);
    const auto lugar = std::find(propios.begin(), propios.end(), punto);
    if (lugar == propios.end()) return std::nullopt;
    return static_cast<std::uint8_t>(primer_propio + (lugar - propios.begin()));
}

int codigo_tecla(char32_t punto) noexcept {
    if (const std::optional<std::uint8_t> codigo = codigo_1252(punto)) return *codigo;
    return static_cast<int>(punto);
}

char32_t punto_de_tecla(int codigo) noexcept {
    if (codigo < 0 || codigo > 0x10FFFF) return 0;
    if (codigo <= 0xFF) return punto_de_1252(static_cast<std::uint8_t>(codigo));
    const auto punto = static_cast<char32_t>(codigo);
    return es_surrogado(punto) ? 0 : punto;
}

} // namespace Qlt4_Tabla
