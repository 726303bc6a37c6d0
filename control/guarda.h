// SPDX-License-Identifier: MIT
// The one boundary where errors end: members and commands run inside it. An error that the rules let
// through reaches the caller; any other is shown in a message box and the member returns normally.
//
//   guarda(mensajes, "Tabla Menú Copia - Error nº ", {}, [&] { copia(e); });
//
// Main names: guarda, guarda_miembro, ErroresAlLlamador. Which numbers a member lets through is a
// column of control/miembros.h.
#pragma once

#include "base/error.h"
#include "platform/mensajes.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Qlt4_Tabla {

/// The error numbers that reach the caller: none, a few, or every one.
class ErroresAlLlamador {
public:
    static constexpr std::size_t MAXIMO = 4;

    constexpr ErroresAlLlamador() = default;

    /// At most MAXIMO numbers.
    constexpr ErroresAlLlamador(std::initializer_list<int> numeros) {
        for (const int numero : numeros) numeros_.at(cuantos_++) = numero;
    }

    static constexpr ErroresAlLlamador todos() {
        ErroresAlLlamador errores;
        errores.todos_ = true;
        return errores;
    }

    [[nodiscard]] constexpr bool contiene(int numero) const {
        for (std::size_t i = 0; i < cuantos_; ++i)
            if (numeros_[i] == numero) return true;
        return todos_;
    }

private:
    std::array<int, MAXIMO> numeros_{};
    std::size_t cuantos_ = 0;
    bool todos_ = false;
};

/// What the message of a member begins with: "Tabla ", its name, " - Error nº ".
[[nodiscard]] std::string prefijo_miembro(std::string_view miembro);

/// The message of an error: `prefijo`, number, `antes_de_descripcion`, description, `al_final`.
struct FormaMensaje {
    std::string prefijo;
    std::string_view antes_de_descripcion;
    EstiloMensaje estilo = EstiloMensaje::Critico;
    std::string_view al_final = {};
};

/// Inside a handler only: throws on the error being handled when `pasan` holds its number, else shows
/// it in that form, without a title. Memory that is not to be had counts as error 7, any other standard
/// exception as error 5; what is no such exception goes on.
void trata_error(Mensajes& mensajes, const FormaMensaje& forma, const ErroresAlLlamador& pasan);
/// The same as `prefijo`, number, ": " and description with the critical icon.
void trata_error(Mensajes& mensajes, std::string_view prefijo, const ErroresAlLlamador& pasan);

/// Runs `orden` and gives its result; after an error that was shown, a value-initialised one.
template <class F>
std::invoke_result_t<F> guarda(
    Mensajes& mensajes, std::string_view prefijo, const ErroresAlLlamador& pasan, F&& orden) {
    try {
        return std::forward<F>(orden)();
    } catch (...) {
        trata_error(mensajes, prefijo, pasan);
    }
    return std::invoke_result_t<F>();
}

/// The same for a member, whose prefix is only made when it is needed.
template <class F>
std::invoke_result_t<F> guarda_miembro(
    Mensajes& mensajes, std::string_view miembro, const ErroresAlLlamador& pasan, F&& orden) {
    try {
        return std::forward<F>(orden)();
    } catch (...) {
        trata_error(mensajes, prefijo_miembro(miembro), pasan);
    }
    return std::invoke_result_t<F>();
}

/// The same with a message of another form; `forma()` makes it when it is needed.
template <class Forma, class F>
std::invoke_result_t<F> guarda_con_forma(
    Mensajes& mensajes, Forma&& forma, const ErroresAlLlamador& pasan, F&& orden) {
    try {
        return std::forward<F>(orden)();
    } catch (...) {
        trata_error(mensajes, forma(), pasan);
    }
    return std::invoke_result_t<F>();
}

} // namespace Qlt4_Tabla
