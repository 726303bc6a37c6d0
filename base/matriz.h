// SPDX-License-Identifier: MIT
// Array with a lower and an upper bound, as hosts hand them in and get them back.
//     Matriz<double> m(1, 3);   m[1] = 2.5;   m.UBound() == 3
// An array that was never dimensioned has no bounds; one of bounds 1 to 0 has bounds and no
// elements. Main name: Matriz.
#pragma once

#include "base/error.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <new>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

template <class T>
class Matriz {
public:
    // Never dimensioned: dimensiones() is 0, LBound and UBound raise error 9.
    Matriz() noexcept = default;

    // Elements inferior..superior, each T(). superior == inferior - 1 gives an array without
    // elements; less is error 9. Not enough memory: error 7.
    // `dimensiones` is 1, but an adapter that is handed an array of another shape tells its number
    // of dimensions here (the bounds are then those of the first) so that a member can refuse it;
    // less than 1 is error 9.
    explicit Matriz(std::int32_t inferior, std::int32_t superior, int dimensiones = 1) {
        if (dimensiones < 1) lanza(NumError::Subindice);
        redimensiona(inferior, superior);
        dimensiones_ = dimensiones;
    }

    // The values, the first at `inferior`.
    Matriz(std::int32_t inferior, std::initializer_list<T> valores)
        : inferior_(inferior), dimensiones_(1), elementos_(valores) {}

    // 0 never dimensioned, 1 the usual case, more: another shape.
    int dimensiones() const noexcept { return dimensiones_; }

    bool dimensionada() const noexcept { return dimensiones_ != 0; }

    // First and last valid index; error 9 when never dimensioned.
    std::int32_t LBound() const {
        exige_dimensionada();
        return inferior_;
    }

    std::int32_t UBound() const {
        exige_dimensionada();
        return static_cast<std::int32_t>(inferior_ + static_cast<std::int64_t>(elementos_.size()) - 1);
    }

    std::size_t size() const noexcept { return elementos_.size(); }

    bool empty() const noexcept { return elementos_.empty(); }

    // New bounds (errors as the constructor), old contents dropped. After an error the array is
    // as before. Afterwards it has one dimension.
    void redimensiona(std::int32_t inferior, std::int32_t superior) {
        adopta(crea(cuenta(inferior, superior)), inferior);
    }

    // The same, but an element whose index lies within the new bounds keeps its value.
    void redimensiona_conservando(std::int32_t inferior, std::int32_t superior) {
        std::vector<T> nuevos = crea(cuenta(inferior, superior));
        const std::int64_t desde = std::max<std::int64_t>(inferior, inferior_);
        const std::int64_t hasta = std::min<std::int64_t>(superior, fin() - 1);
        for (std::int64_t i = desde; i <= hasta; ++i)
            nuevos[static_cast<std::size_t>(i - inferior)] =
                std::move(elementos_[static_cast<std::size_t>(i - inferior_)]);
        adopta(std::move(nuevos), inferior);
    }

    // Back to never dimensioned.
    void borra() noexcept {
        elementos_.clear();
        inferior_ = 0;
        dimensiones_ = 0;
    }

    // Error 9 outside LBound..UBound.
    T& operator[](std::int64_t indice) { return elementos_[posicion(indice)]; }

    const T& operator[](std::int64_t indice) const { return elementos_[posicion(indice)]; }

    // All elements in order.
    auto begin() noexcept { return elementos_.begin(); }

    auto end() noexcept { return elementos_.end(); }

    auto begin() const noexcept { return elementos_.begin(); }

    auto end() const noexcept { return elementos_.end(); }

    // Same number of dimensions, bounds and elements.
    friend bool operator==(const Matriz&, const Matriz&) = default;

private:
    void exige_dimensionada() const {
        if (dimensiones_ == 0) lanza(NumError::Subindice);
    }

    std::int64_t fin() const noexcept { return inferior_ + static_cast<std::int64_t>(elementos_.size()); }

    std::size_t posicion(std::int64_t indice) const {
        if (indice < inferior_ || indice >= fin()) lanza(NumError::Subindice);
        return static_cast<std::size_t>(indice - inferior_);
    }

    static std::size_t cuenta(std::int32_t inferior, std::int32_t superior) {
        const std::int64_t n = std::int64_t{superior} - inferior + 1;
        if (n < 0) lanza(NumError::Subindice);
        return static_cast<std::size_t>(n);
    }

    static std::vector<T> crea(std::size_t n) {
        try {
            return std::vector<T>(n);
        } catch (const std::bad_alloc&) {
            lanza(NumError::SinMemoria);
        } catch (const std::length_error&) {
            lanza(NumError::SinMemoria);
        }
    }

    void adopta(std::vector<T> elementos, std::int32_t inferior) noexcept {
        elementos_ = std::move(elementos);
        inferior_ = inferior;
        dimensiones_ = 1;
    }

    std::int32_t inferior_ = 0;
    int dimensiones_ = 0;
    std::vector<T> elementos_;
};

} // namespace Qlt4_Tabla
