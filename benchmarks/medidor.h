// SPDX-License-Identifier: MIT
// Medidor: times pieces of work and prints a line each: name, milliseconds of processor, milliseconds of
// clock; other figures as name, value, value. The rounds, the medians and the table are cuadro.py's.
#pragma once

#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <stdexcept>
#include <string>

namespace Qlt4_Tabla::medida {

/// Keeps the compiler from leaving out what made the value.
template <class T>
void usa(const T& valor) {
    asm volatile("" : : "r,m"(valor) : "memory");
}

/// Milliseconds of processor that the program has used since it was started.
inline double procesador() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

inline double reloj() {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// A figure in KB of /proc/self/status, as "VmRSS" or, since the last `olvida_maximo`, "VmHWM".
inline double memoria(const std::string& cual) {
    std::ifstream estado("/proc/self/status");
    for (std::string palabra; estado >> palabra;) {
        double kb = 0;
        if (palabra == cual + ":" && estado >> kb) return kb;
    }
    return 0;
}

inline void olvida_maximo() { std::ofstream("/proc/self/clear_refs") << 5; }

inline void exige(bool bien, const char* que) {
    if (!bien) throw std::runtime_error(que);
}

class Medidor {
public:
    explicit Medidor(std::string prefijo = {}) : prefijo_(std::move(prefijo)) {}

    void anota(const std::string& obra, double valor) const { anota(obra, valor, valor); }

    /// One time, on memory that is not at hand yet.
    template <class F>
    void una(const std::string& obra, F&& hace) const {
        malloc_trim(0);
        varias(obra, 1, std::forward<F>(hace));
    }

    /// The mean of so many times.
    template <class F>
    void varias(const std::string& obra, int veces, F&& hace) const {
        const double cpu = procesador();
        const double antes = reloj();
        for (int i = 0; i < veces; ++i) hace();
        anota(obra, (procesador() - cpu) / veces, (reloj() - antes) / veces);
    }

private:
    void anota(const std::string& obra, double cpu, double tiempo) const {
        std::printf("%s%s %.6f %.6f\n", prefijo_.c_str(), obra.c_str(), cpu, tiempo);
        std::fflush(stdout);
    }

    std::string prefijo_;
};

} // namespace Qlt4_Tabla::medida
