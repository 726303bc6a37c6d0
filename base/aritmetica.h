// SPDX-License-Identifier: MIT
// Whole-number arithmetic in 16 and 32 bits: a result that does not fit raises error 6 instead of
// wrapping. Main names: entero16, entero32, suma16, producto16, suma32, producto32.
// For texts and reals see base/numeros.h.
#pragma once

#include "base/error.h"

#include <concepts>
#include <cstdint>
#include <limits>

namespace Qlt4_Tabla {

// n as a 16-bit whole number; error 6 outside -32768..32767.
constexpr std::int16_t entero16(std::int64_t n) {
    if (n < std::numeric_limits<std::int16_t>::min() || n > std::numeric_limits<std::int16_t>::max())
        lanza(NumError::Desbordamiento);
    return static_cast<std::int16_t>(n);
}

// n as a 32-bit whole number; error 6 outside -2147483648..2147483647.
constexpr std::int32_t entero32(std::int64_t n) {
    if (n < std::numeric_limits<std::int32_t>::min() || n > std::numeric_limits<std::int32_t>::max())
        lanza(NumError::Desbordamiento);
    return static_cast<std::int32_t>(n);
}

// A real is rounded before it is narrowed: entero16_de_real, entero32_de_real (base/numeros.h).
template <std::floating_point R>
void entero16(R) = delete;
template <std::floating_point R>
void entero32(R) = delete;

// Error 6 where the result leaves the 16-bit range.
constexpr std::int16_t suma16(std::int16_t a, std::int16_t b) { return entero16(std::int64_t{a} + b); }

constexpr std::int16_t resta16(std::int16_t a, std::int16_t b) { return entero16(std::int64_t{a} - b); }

constexpr std::int16_t producto16(std::int16_t a, std::int16_t b) { return entero16(std::int64_t{a} * b); }

// Error 6 where the result leaves the 32-bit range.
constexpr std::int32_t suma32(std::int32_t a, std::int32_t b) { return entero32(std::int64_t{a} + b); }

constexpr std::int32_t resta32(std::int32_t a, std::int32_t b) { return entero32(std::int64_t{a} - b); }

constexpr std::int32_t producto32(std::int32_t a, std::int32_t b) { return entero32(std::int64_t{a} * b); }

} // namespace Qlt4_Tabla
