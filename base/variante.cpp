// SPDX-License-Identifier: MIT
// Conversions of a Variante: base/variante.h. Every number it can hold fits a double exactly, so
// all conversions to numbers go over one.
#include "base/variante.h"

#include "base/numeros.h"

#include <cmath>
#include <optional>
#include <type_traits>

namespace Qlt4_Tabla {

namespace {

// Any of the alternatives that is a number or a Boolean.
template <class T>
concept Numerico = std::is_arithmetic_v<T>;

} // namespace

Variante Variante::omitido() {
    Variante v;
    v.valor_ = Omision{};
    return v;
}

double Variante::a_doble() const {
    return std::visit(
        [](const auto& v) -> double {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::monostate>) {
                return 0;
            } else if constexpr (std::is_same_v<T, bool>) {
                return v ? -1 : 0;
            } else if constexpr (Numerico<T>) {
                return static_cast<double>(v);
            } else if constexpr (std::is_same_v<T, std::string>) {
                const std::optional<double> n = numero_de_texto(v);
                if (!n) lanza(NumError::Tipos);
                return *n;
            } else {
                lanza(NumError::Tipos);
            }
        },
        valor_);
}

std::int16_t Variante::a_entero16() const { return entero16_de_real(a_doble()); }

std::int32_t Variante::a_entero32() const { return entero32_de_real(a_doble()); }

float Variante::a_simple() const {
    // Half a step above the largest Single: from here on a number rounds beyond it.
    constexpr double primero_fuera = 0x1.ffffffp127;
    const double x = a_doble();
    if (std::isfinite(x) && std::fabs(x) >= primero_fuera) lanza(NumError::Desbordamiento);
    return static_cast<float>(x);
}

bool Variante::a_booleano() const {
    if (const auto* texto = std::get_if<std::string>(&valor_)) return booleano_de_texto(*texto);
    return a_doble() != 0;
}

std::string Variante::a_texto() const {
    return std::visit(
        [](const auto& v) -> std::string {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::monostate>) {
                return {};
            } else if constexpr (std::is_same_v<T, bool>) {
                return std::string(booleano_a_texto(v));
            } else if constexpr (Numerico<T>) {
                return numero_a_texto(v);
            } else if constexpr (std::is_same_v<T, std::string>) {
                return v;
            } else {
                lanza(NumError::Tipos);
            }
        },
        valor_);
}

PunteroImagen Variante::imagen() const {
    if (es_vacio()) return {};
    return como<PunteroImagen>();
}

} // namespace Qlt4_Tabla
