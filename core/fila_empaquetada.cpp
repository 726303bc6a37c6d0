// SPDX-License-Identifier: MIT
// Packed rows: the cases of wide rows and of long texts, apart from the ordinary ones; rows made from others.
#include "core/fila_empaquetada.h"

#include "base/bytes.h"

#include <algorithm>

namespace Qlt4_Tabla {

namespace {

// The columns that are stored once those from `col` on have other texts.
std::uint32_t columnas_con(const std::uint8_t* longitudes, std::uint32_t tenia, std::uint32_t col,
    std::span<const std::string_view> textos) {
    auto n = static_cast<std::uint32_t>(textos.size());
    if (col + n < tenia) return tenia;
    while (n != 0 && textos[n - 1].empty()) --n;
    if (n != 0) return col + n;
    n = std::min(col, tenia);
    while (n != 0 && longitudes[n - 1] == 0) --n;
    return n;
}

} // namespace

CabeceraFila lee_cabecera_ancha(const std::uint8_t* p) {
    CabeceraFila c{(p[0] >> 2U) & 31U, 1, p[0]};
    for (unsigned bits = 5; (p[c.bytes - 1] & 128U) != 0; bits += 7)
        c.columnas |= (p[c.bytes++] & 127U) << bits;
    return c;
}

std::uint32_t suma_muchas(const std::uint8_t* longitudes, std::uint32_t n, bool largos) {
    std::uint32_t suma = 0;
    for (; largos && n != 0; --n) suma += bytes_guardados(*longitudes++);
    for (; n > 7; n -= 7, longitudes += 7) suma += suma_pocas(longitudes, 7);
    return suma + suma_pocas(longitudes, n);
}

std::optional<std::size_t> cota_fila(
    std::span<const std::uint8_t> vieja, std::uint32_t col, std::span<const std::string_view> textos) {
    constexpr std::size_t CABECERA = 5; // the longest one
    std::size_t bytes = vieja.size() + CABECERA + col + textos.size();
    bool largos = lee_cabecera(vieja.data()).largos();
    for (const std::string_view t : textos) {
        bytes += t.size();
        largos |= es_largo(t);
    }
    return largos ? std::nullopt : std::optional(bytes);
}

std::uint8_t* compon_fila(std::uint8_t* destino, std::span<const std::uint8_t> vieja, std::uint32_t col,
    std::span<const std::string_view> textos) {
    CabeceraFila c = lee_cabecera(vieja.data());
    const std::uint8_t* const longitudes = vieja.data() + c.bytes;
    const std::uint8_t* const viejos = longitudes + c.columnas;
    const std::uint32_t tenia = c.columnas;
    const std::uint32_t col2 = col + static_cast<std::uint32_t>(textos.size());
    const std::uint8_t* const delante = viejos + suma_bytes(longitudes, std::min(col, tenia), false);
    const std::uint8_t* const detras = viejos + suma_bytes(longitudes, std::min(col2, tenia), false);
    c.columnas = columnas_con(longitudes, tenia, col, textos);

    std::uint8_t* nuevas = destino + c.bytes;
    std::uint8_t* p = nullptr;
    if (c.columnas == tenia) { // header, lengths and first texts stand together in both
        p = std::copy(vieja.data(), delante, destino);
    } else {
        nuevas = destino + escribe_cabecera(destino, c);
        std::fill(std::copy_n(longitudes, std::min(tenia, c.columnas), nuevas), nuevas + c.columnas,
            std::uint8_t{0});
        p = std::copy(viejos, delante, nuevas + c.columnas);
    }
    for (std::uint32_t i = col; i < std::min(col2, c.columnas); ++i) {
        nuevas[i] = static_cast<std::uint8_t>(textos[i - col].size());
        p = pon_texto(p, textos[i - col]);
    }
    return std::copy(detras, vieja.data() + vieja.size(), p);
}

} // namespace Qlt4_Tabla
