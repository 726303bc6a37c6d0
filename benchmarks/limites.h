// SPDX-License-Identifier: MIT
// What the machine needs for the unavoidable part of each work: the bytes copied into fresh pages, looked
// at once, written to a file or read from it; for whole columns benchmarks/columnas.h.
// Main name: mide_limites.
#pragma once

#include "obras.h"
#include "vectores.h"

#include <cstring>
#include <memory>
#include <numeric>

namespace Qlt4_Tabla::medida {

using BytesNuevos = std::unique_ptr<char[]>;

inline BytesNuevos copia_de(const std::string& bytes) {
    BytesNuevos copia(new char[bytes.size()]);
    std::memcpy(copia.get(), bytes.data(), bytes.size());
    usa(copia.get());
    return copia;
}

/// One pass: the sum of the bytes by eights.
inline void mira(const std::string& bytes) {
    std::uint64_t suma = 0;
    for (std::size_t i = 0; i + 8 <= bytes.size(); i += 8) {
        std::uint64_t w = 0;
        std::memcpy(&w, bytes.data() + i, 8);
        suma += w;
    }
    usa(suma);
}

inline void mide_limites(const Medidor& m, const std::string& grupo, int filas) {
    const std::string bloque = datos().bloque(filas, ',');
    const std::size_t bytes = datos().bytes(filas);
    const std::string textos = bloque.substr(0, bytes);
    if (grupo == "celdas") {
        m.anota("bytes_por_celda", static_cast<double>(bytes) / filas / COLUMNAS);
        BytesNuevos sitio;
        m.una("llena", [&] { sitio = copia_de(textos); });
        m.una("lee", [&] { mira(textos); });
        m.una("copia", [&] { sitio = copia_de(bloque); });
        const std::string fila = textos.substr(0, 66);
        std::string todas;
        todas.reserve(100'000);
        m.varias("anade", 1000, [&] { todas += fila; });
        m.varias("inserta_borra", 1000, [&] { std::memmove(sitio.get() + 66, sitio.get(), 8192); });
    }
    if (grupo == "columnas") mide_limite_columnas(m, filas);
    if (grupo == "pega") m.una("pega", [&] { mira(bloque); });
    if (grupo == "fichero") {
        const FicheroPasajero fichero;
        std::string record = textos + std::string(static_cast<std::size_t>(filas) * 32, 'x');
        fichero.mide(m, "graba", [&] { escribe_fichero(fichero.ruta(), record); });
        const std::size_t n = record.size();
        record = {};
        m.una("carga", [&] {
            BytesNuevos sitio(new char[n]);
            std::ifstream(fichero.ruta(), std::ios::binary)
                .read(sitio.get(), static_cast<std::streamsize>(n));
            usa(sitio.get());
        });
    }
}

} // namespace Qlt4_Tabla::medida
