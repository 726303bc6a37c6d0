// SPDX-License-Identifier: MIT
// Fuzz target: any bytes as a table file. What must hold is in tests/files/propiedades_tb0.h.
//
//   cmake --preset fuzz && cmake --build --preset fuzz
//   build/fuzz/fuzz_lector_tb0 NEW-INPUTS fuzz/corpus/lector_tb0
#include "tests/files/propiedades_tb0.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    const std::string falta =
        Qlt4_Tabla::falta_con(std::string_view(reinterpret_cast<const char*>(datos), n));
    if (falta.empty()) return 0;
    std::fprintf(stderr, "%s\n", falta.c_str());
    std::abort();
}
