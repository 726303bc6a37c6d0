// SPDX-License-Identifier: MIT
// The measured points that the example starts on, read from the resource datos/meuse.csv.
// Main names: Muestra, lee_muestras.
#pragma once

#include <string>
#include <vector>

namespace plano {

/// One line of the file. Texts as they stand there; a missing value is empty.
struct Muestra {
    double x = 0; ///< metres
    double y = 0; ///< metres
    std::string cota; ///< metres
    std::string zinc; ///< ppm
    std::string uso; ///< code of the land use
    int inundacion = 0; ///< class 1 to 3; 0 unknown
};

/// Nothing when the file cannot be read or lacks a column.
[[nodiscard]] std::vector<Muestra> lee_muestras();

} // namespace plano
