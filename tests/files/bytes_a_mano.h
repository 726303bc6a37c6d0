// SPDX-License-Identifier: MIT
// Files written by hand: "04 00 'Ejes' 00*416" is two bytes, four letters and 416 zeros. Main names: bytes,
// en_hexadecimal.
#pragma once

#include <cstddef>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

inline std::string bytes(const std::string& escritos) {
    std::istringstream entrada(escritos);
    std::string todos;
    std::string palabra;
    while (entrada >> palabra) {
        if (palabra.front() == '\'') {
            if (palabra.size() < 2 || palabra.back() != '\'') throw std::invalid_argument(palabra);
            todos += palabra.substr(1, palabra.size() - 2);
            continue;
        }
        const std::size_t por = palabra.find('*');
        const auto byte = static_cast<char>(std::stoi(palabra.substr(0, por), nullptr, 16));
        todos.append(por == std::string::npos ? 1 : std::stoul(palabra.substr(por + 1)), byte);
    }
    return todos;
}

/// For messages of failed tests.
inline std::string en_hexadecimal(std::string_view todos) {
    static constexpr char CIFRAS[] = "0123456789ABCDEF";
    std::string escritos;
    for (const char c : todos) {
        const auto byte = static_cast<unsigned char>(c);
        escritos += CIFRAS[byte >> 4U];
        escritos += CIFRAS[byte & 15U];
        escritos += ' ';
    }
    return escritos;
}

} // namespace Qlt4_Tabla
