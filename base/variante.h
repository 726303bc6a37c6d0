// SPDX-License-Identifier: MIT
// A value of any of the types that cross the dispatcher and the property bag, with the conversions
// a member needs to take it as an argument of its own type.
// Main names: Variante, TipoVariante. Conversions of numeric texts: base/numeros.h.
#pragma once

#include "base/imagen.h"
#include "base/matriz.h"
#include "base/publico.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace Qlt4_Tabla {

// In the order of the alternatives of Variante.
enum class TipoVariante {
    Vacio,
    Omitido, // an optional argument that was not given
    Entero16,
    Entero32,
    Simple,
    Doble,
    Booleano,
    Texto,
    MatrizTextos,
    MatrizNumeros,
    Imagen
};

class TABLA_API Variante {
public:
    Variante() noexcept = default; // empty

    // Not explicit: an argument list reads {2, "texto", true}.
    Variante(std::int16_t n) noexcept : valor_(n) {}

    Variante(std::int32_t n) noexcept : valor_(n) {}

    Variante(float x) noexcept : valor_(x) {}

    Variante(double x) noexcept : valor_(x) {}

    Variante(bool b) noexcept : valor_(b) {}

    Variante(std::string t) noexcept : valor_(std::move(t)) {}

    Variante(std::string_view t) : valor_(std::string(t)) {}

    Variante(const char* t) : valor_(std::string(t)) {}

    Variante(Matriz<std::string> m) noexcept : valor_(std::move(m)) {}

    Variante(Matriz<double> m) noexcept : valor_(std::move(m)) {}

    Variante(PunteroImagen i) noexcept : valor_(std::move(i)) {}

    // An optional argument that was not given.
    static Variante omitido();

    TipoVariante tipo() const noexcept { return static_cast<TipoVariante>(valor_.index()); }

    bool es_vacio() const noexcept { return tipo() == TipoVariante::Vacio; }

    bool es_omitido() const noexcept { return tipo() == TipoVariante::Omitido; }

    // The value as each type. An empty value is 0, False and the empty text; a Boolean is 0 or -1;
    // texts are read by numero_de_texto; reals become whole with halves to even. Error 13: not
    // convertible (also an omitted argument, an array, a picture). Error 6: outside the range.
    std::int16_t a_entero16() const;
    std::int32_t a_entero32() const;
    float a_simple() const;
    double a_doble() const;
    bool a_booleano() const; // numbers: not 0; texts: booleano_de_texto
    std::string a_texto() const; // numero_a_texto, booleano_a_texto

    // Without conversion: error 13 when the value is of another type.
    const Matriz<std::string>& matriz_textos() const { return como<Matriz<std::string>>(); }

    Matriz<std::string>& matriz_textos() { return como<Matriz<std::string>>(); }

    const Matriz<double>& matriz_numeros() const { return como<Matriz<double>>(); }

    Matriz<double>& matriz_numeros() { return como<Matriz<double>>(); }

    // The picture, which may be no picture (empty pointer), also for an empty value.
    PunteroImagen imagen() const;

    // Same type and same value; pictures: the same picture.
    friend bool operator==(const Variante&, const Variante&) = default;

private:
    struct Omision {
        friend bool operator==(Omision, Omision) noexcept = default;
    };

    using Valor = std::variant<std::monostate, Omision, std::int16_t, std::int32_t, float, double, bool,
        std::string, Matriz<std::string>, Matriz<double>, PunteroImagen>;

    template <class T>
    T& como() {
        T* valor = std::get_if<T>(&valor_);
        if (valor == nullptr) lanza(NumError::Tipos);
        return *valor;
    }

    template <class T>
    const T& como() const {
        const T* valor = std::get_if<T>(&valor_);
        if (valor == nullptr) lanza(NumError::Tipos);
        return *valor;
    }

    Valor valor_;
};

} // namespace Qlt4_Tabla
