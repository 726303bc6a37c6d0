// SPDX-License-Identifier: MIT
// Bytes: a block of bytes that is not zeroed before it is filled, for whole files. It grows in place where
// the system can. Growing without memory: std::bad_alloc, unchanged. And pon_texto, which fills such a block;
// TomaBytes and DaBytes: bytes that are never whole in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <string_view>

namespace Qlt4_Tabla {

class Bytes {
public:
    Bytes() = default;

    /// `n` bytes of no particular value.
    explicit Bytes(std::size_t n) { resize(n); }

    [[nodiscard]] char* data() { return datos_.get(); }

    [[nodiscard]] std::size_t size() const { return cuantos_; }

    [[nodiscard]] std::size_t capacity() const { return cabida_; }

    /// The first bytes stay; those added have no particular value.
    void resize(std::size_t n) {
        if (n > cabida_) reserve(n);
        cuantos_ = n;
    }

    /// Room for `n` bytes without another change of place.
    void reserve(std::size_t n) {
        if (n <= cabida_) return;
        void* const nuevos = std::realloc(datos_.get(), n);
        if (nuevos == nullptr) throw std::bad_alloc();
        static_cast<void>(datos_.release());
        datos_.reset(static_cast<char*>(nuevos));
        cabida_ = n;
    }

    [[nodiscard]] std::string_view vista() const { return {datos_.get(), cuantos_}; }

private:
    struct Libera {
        void operator()(char* p) const { std::free(p); }
    };

    std::unique_ptr<char, Libera> datos_;
    std::size_t cuantos_ = 0;
    std::size_t cabida_ = 0;
};

/// Calls `pasa(place)` for four runs of 4 bytes that together are `n` bytes, 4 to 16; they overlap where there are
/// fewer. So short texts are handled without a branch on their size.
template <class Pasa>
void por_cuartos(std::size_t n, const Pasa& pasa) {
    const std::size_t paso = n / 8 * 4;
    for (const std::size_t lugar : {std::size_t{0}, paso, n - 4 - paso, n - 4}) pasa(lugar);
}

/// Copies a text to `destino`; where it ends there. Quick where texts are short.
template <class Byte>
Byte* pon_texto(Byte* destino, std::string_view texto) {
    const std::size_t n = texto.size();
    if (n >= 4 && n <= 16) {
        por_cuartos(n, [&](std::size_t lugar) { std::memcpy(destino + lugar, texto.data() + lugar, 4); });
    } else if (n != 0) {
        std::memcpy(destino, texto.data(), n);
    }
    return destino + n;
}

/// Bytes that may be read from the beginning of a text on, whatever they hold, and written at its destination,
/// where `pon_texto_holgado` copies it.
inline constexpr std::size_t TEXTO_HOLGADO = 16;

/// The same where there is so much room: quicker, as most texts are shorter.
inline char* pon_texto_holgado(char* destino, std::string_view texto) {
    std::memcpy(destino, texto.data(), TEXTO_HOLGADO);
    if (texto.size() > TEXTO_HOLGADO)
        std::memcpy(destino + TEXTO_HOLGADO, texto.data() + TEXTO_HOLGADO, texto.size() - TEXTO_HOLGADO);
    return destino + texto.size();
}

/// Takes the next bytes of a run; they are good until it returns.
using TomaBytes = std::function<void(std::string_view)>;

/// Hands a run of bytes over in pieces of any size, from the first to the last; the same ones each time it is
/// called.
using DaBytes = std::function<void(const TomaBytes&)>;

} // namespace Qlt4_Tabla
