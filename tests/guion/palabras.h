// SPDX-License-Identifier: MIT
// Palabras: one step of a script cut into words. Blanks separate; "..." keeps them, with \" \\ \b \n \r
// \t as in C. Main names: Palabras, FalloGuion, trozos.
#pragma once

#include "core/geometria.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

/// A step that cannot be run or did not give what it should.
class FalloGuion : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The words of a step, taken one after another. Every taker fails with a FalloGuion where there is none
/// left or it is not of its kind.
class Palabras {
public:
    explicit Palabras(std::string_view texto);

    [[nodiscard]] bool quedan() const { return siguiente_ < palabras_.size(); }

    [[nodiscard]] std::string palabra();
    [[nodiscard]] int entero();
    [[nodiscard]] bool es_entero() const;
    [[nodiscard]] Celda celda();
    /// The next word is this one: takes it.
    [[nodiscard]] bool toma(std::string_view palabra);
    /// Takes it or fails.
    void exige(std::string_view palabra);
    /// Everything that is left, as one text with single blanks.
    [[nodiscard]] std::string resto();
    /// Nothing may be left.
    void fin() const;

private:
    std::vector<std::string> palabras_;
    std::size_t siguiente_ = 0;
};

/// "A|B|C" in its parts; an empty text has none.
[[nodiscard]] std::vector<std::string> trozos(std::string_view texto);

/// Without blanks and tabs at both ends.
[[nodiscard]] std::string_view sin_margen(std::string_view texto);

} // namespace Qlt4_Tabla
