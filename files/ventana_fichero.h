// SPDX-License-Identifier: MIT
// VentanaFichero: a file read from its first to its last byte through a window, so that it is never whole in
// memory. The records in it: files/lector_tb0.h.
#pragma once

#include "base/bytes.h"
#include "platform/ficheros.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace Qlt4_Tabla {

class VentanaFichero {
public:
    /// The file must outlive it. `pieza`: bytes that are read at a time; more where more are asked for.
    VentanaFichero(FicheroAbierto& fichero, std::size_t pieza)
        : fichero_(fichero), fin_(fichero.tamano()), cabida_(pieza) {}

    /// Byte of the file that it is at.
    [[nodiscard]] std::uint64_t posicion() const { return base_ + pos_; }

    /// Bytes of the file from there on.
    [[nodiscard]] std::uint64_t quedan() const { return fin_ - posicion(); }

    /// Those of them that are at hand, good until the next call of `hay`.
    [[nodiscard]] std::string_view vista() const { return bytes_.vista().substr(pos_); }

    /// Are there `n` bytes? They are at hand then. Errors of the file pass.
    [[nodiscard]] bool hay(std::size_t n) { return n <= vista().size() || trae(n); }

    /// Goes on by `n` bytes, which are at hand.
    void pasa(std::size_t n) { pos_ += n; }

private:
    bool trae(std::size_t n) {
        if (n > quedan()) return false;
        if (n > cabida_) cabida_ = std::max(n, 2 * cabida_);
        const std::string_view quedaban = vista();
        if (!quedaban.empty()) std::memmove(bytes_.data(), quedaban.data(), quedaban.size());
        const std::size_t habia = quedaban.size();
        base_ += pos_;
        pos_ = 0;
        const auto lee = static_cast<std::size_t>(std::min<std::uint64_t>(cabida_ - habia, quedan() - habia));
        bytes_.resize(habia); // until the others are there
        bytes_.reserve(cabida_);
        const std::size_t leidos = fichero_.lee(base_ + habia, bytes_.data() + habia, lee);
        bytes_.resize(habia + leidos);
        if (leidos < lee) fin_ = base_ + habia + leidos; // cut by another program meanwhile
        return n <= bytes_.size();
    }

    FicheroAbierto& fichero_;
    std::uint64_t fin_; // of the file
    std::size_t cabida_;
    Bytes bytes_; // those from base_ on
    std::uint64_t base_ = 0;
    std::size_t pos_ = 0;
};

} // namespace Qlt4_Tabla
