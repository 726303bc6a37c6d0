// SPDX-License-Identifier: MIT
// The works without a window, the same for every contestant; a contestant is a class with these verbs, its
// data rows and columns counted from 0:
//   filas(n) pon(f, c, text) lee(f, c) -> size  pega(block) copia() -> size  anade() inserta(f) borra(f)
//   graba(file) carga(file)
// Whole columns: benchmarks/columnas.h.
#pragma once

#include "columnas.h"
#include "datos.h"
#include "medidor.h"

#include <filesystem>
#include <memory>
#include <string>

namespace Qlt4_Tabla::medida {

/// A file for one run, gone with it.
class FicheroPasajero {
public:
    FicheroPasajero()
        : ruta_((std::filesystem::temp_directory_path() / ("medida" + std::to_string(reloj()))).string()) {}

    ~FicheroPasajero() { quita(); }

    FicheroPasajero(const FicheroPasajero&) = delete;
    FicheroPasajero& operator=(const FicheroPasajero&) = delete;

    [[nodiscard]] const std::string& ruta() const { return ruta_; }

    /// Measures how it is written by `graba`. Once before, unmeasured: whether the system has pages for a new file
    /// at hand makes more of a difference than the work itself, so every contestant finds those of the first.
    template <class F>
    void mide(const Medidor& m, const std::string& obra, const F& graba) const {
        graba();
        quita();
        m.una(obra, graba);
    }

private:
    void quita() const {
        std::error_code nada;
        std::filesystem::remove(ruta_, nada);
    }

    std::string ruta_;
};

template <class C>
std::size_t lee_todo(C& c, int filas) {
    std::size_t bytes = 0;
    for (int f = 0; f < filas; ++f)
        for (int col = 0; col < COLUMNAS; ++col) bytes += c.lee(f, col);
    return bytes;
}

template <class C>
void mide_celdas(const Medidor& m, int filas) {
    datos();
    olvida_maximo();
    const double antes = memoria("VmRSS");
    auto c = std::make_unique<C>();
    m.anota("vacia_kb", memoria("VmRSS") - antes);
    m.una("llena", [&] { llena(*c, filas); });
    m.anota("bytes_por_celda", (memoria("VmHWM") - antes) * 1024 / filas / COLUMNAS);
    std::size_t bytes = 0;
    m.una("lee", [&] { bytes = lee_todo(*c, filas); });
    exige(bytes == datos().bytes(filas), "not what was written");
    m.una("copia", [&] { bytes = c->copia(); });
    exige(bytes == datos().bloque(filas, '.').size(), "not the whole block");
    m.varias("inserta_borra", 200, [&] {
        c->inserta(filas / 2);
        c->borra(filas / 2);
    });
    m.varias("anade", 1000, [&] { c->anade(); });
}

template <class C>
void mide_pega(const Medidor& m, int filas) {
    const std::string bloque = datos().bloque(filas, ',');
    auto c = std::make_unique<C>();
    m.una("pega", [&] { c->pega(bloque); });
    exige(c->lee(filas - 1, COL_REAL) == datos().celda(filas - 1, COL_REAL).size(), "not what was pasted");
}

template <class C>
void mide_fichero(const Medidor& m, int filas) {
    const FicheroPasajero fichero;
    auto c = std::make_unique<C>();
    llena(*c, filas);
    fichero.mide(m, "graba", [&] { c->graba(fichero.ruta()); });
    c = std::make_unique<C>();
    m.una("carga", [&] { c->carga(fichero.ruta()); });
    exige(lee_todo(*c, filas) == datos().bytes(filas), "not what was saved");
}

template <class C>
void mide_obras(const Medidor& m, const std::string& grupo, int filas) {
    if (grupo == "celdas") mide_celdas<C>(m, filas);
    if (grupo == "columnas") mide_columnas<C>(m, filas);
    if (grupo == "pega") mide_pega<C>(m, filas);
    if (grupo == "fichero") mide_fichero<C>(m, filas);
}

} // namespace Qlt4_Tabla::medida
