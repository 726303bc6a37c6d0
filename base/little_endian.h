// SPDX-License-Identifier: MIT
// 16 and 32-bit whole numbers as little-endian bytes, the same on every processor. A buffer is any
// array of one-byte elements (std::string, std::vector<std::uint8_t>, std::span<const std::byte>).
// Main names: pon16, pon32 (append), cambia16, cambia32 (in place), lee16, lee32, lee16_con_signo,
// lee32_con_signo.
#pragma once

#include "base/error.h"

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

namespace Qlt4_Tabla {

template <class B>
concept BytesQueSeLeen = requires(const B& b) {
    { b.size() } -> std::convertible_to<std::size_t>;
    requires sizeof(b[0]) == 1;
};

template <class B>
concept BytesQueCrecen = BytesQueSeLeen<B> && requires(B& b) {
    b.push_back(b[0]);
};

namespace detalle_bytes {

template <class B>
using Elemento = std::remove_cvref_t<decltype(std::declval<B&>()[0])>;

template <class B>
void pon(B& destino, std::uint32_t n, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i)
        destino.push_back(static_cast<Elemento<B>>(static_cast<std::uint8_t>(n >> (8 * i))));
}

template <class B>
void exige(const B& b, std::size_t pos, std::size_t bytes, NumError falta) {
    if (pos > b.size() || b.size() - pos < bytes) lanza(falta);
}

template <class B>
void cambia(B& destino, std::size_t pos, std::uint32_t n, std::size_t bytes) {
    exige(destino, pos, bytes, NumError::Subindice);
    for (std::size_t i = 0; i < bytes; ++i)
        destino[pos + i] = static_cast<Elemento<B>>(static_cast<std::uint8_t>(n >> (8 * i)));
}

template <class B>
std::uint32_t lee(const B& origen, std::size_t pos, std::size_t bytes) {
    exige(origen, pos, bytes, NumError::FinDeFichero);
    std::uint32_t n = 0;
    if constexpr (std::endian::native == std::endian::little)
        std::memcpy(&n, &origen[pos], bytes);
    else
        for (std::size_t i = 0; i < bytes; ++i)
            n |= static_cast<std::uint32_t>(static_cast<std::uint8_t>(origen[pos + i])) << (8 * i);
    return n;
}

} // namespace detalle_bytes

// Appends 2 or 4 bytes. A signed number is appended by its bits: pon16(b, static_cast<uint16_t>(n)).
template <BytesQueCrecen B>
void pon16(B& destino, std::uint16_t n) {
    detalle_bytes::pon(destino, n, 2);
}

template <BytesQueCrecen B>
void pon32(B& destino, std::uint32_t n) {
    detalle_bytes::pon(destino, n, 4);
}

// Overwrites the bytes from `pos` on; error 9, and nothing written, where they do not all exist.
template <BytesQueSeLeen B>
void cambia16(B& destino, std::size_t pos, std::uint16_t n) {
    detalle_bytes::cambia(destino, pos, n, 2);
}

template <BytesQueSeLeen B>
void cambia32(B& destino, std::size_t pos, std::uint32_t n) {
    detalle_bytes::cambia(destino, pos, n, 4);
}

// The number at byte `pos`; error 62 where the buffer ends before it.
template <BytesQueSeLeen B>
std::uint16_t lee16(const B& origen, std::size_t pos) {
    return static_cast<std::uint16_t>(detalle_bytes::lee(origen, pos, 2));
}

template <BytesQueSeLeen B>
std::uint32_t lee32(const B& origen, std::size_t pos) {
    return detalle_bytes::lee(origen, pos, 4);
}

template <BytesQueSeLeen B>
std::int16_t lee16_con_signo(const B& origen, std::size_t pos) {
    return static_cast<std::int16_t>(lee16(origen, pos));
}

template <BytesQueSeLeen B>
std::int32_t lee32_con_signo(const B& origen, std::size_t pos) {
    return static_cast<std::int32_t>(lee32(origen, pos));
}

} // namespace Qlt4_Tabla
