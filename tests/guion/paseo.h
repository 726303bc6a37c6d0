// SPDX-License-Identifier: MIT
// Paseo: a random walk. Random keys, clicks, commands and calls of the host, each a step as scripts have them, and
// after each what must hold whatever was done. A walk that fails is told as the script of its last steps.
#pragma once

#include "tests/guion/conductor.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class Paseo {
public:
    /// Two walks of the same seed take the same steps. Makes the table that is walked on.
    Paseo(Conductor& conductor, std::uint32_t semilla);

    /// One step. What does not hold after it and the steps that led there, or nothing.
    [[nodiscard]] std::string paso();

private:
    void haz(std::string_view texto);
    [[nodiscard]] std::string elige_paso();
    [[nodiscard]] std::string usuario();
    [[nodiscard]] std::string anfitrion();
    [[nodiscard]] std::string entorno();
    [[nodiscard]] std::string lo_que_falla();
    [[nodiscard]] int azar(int n); // 0..n - 1
    [[nodiscard]] std::string celda();
    [[nodiscard]] std::string texto();

    Conductor& conductor_;
    std::mt19937 azar_;
    std::deque<std::string> ultimos_;
    std::string menu_; // the one that has just opened
    bool sin_redibujar_ = false; // the host has switched redrawing off
};

} // namespace Qlt4_Tabla
