// SPDX-License-Identifier: MIT
// memoria_que_falla: the replaced operators, in a file of their own so that no compiler looks through them.
#include "tests/core/memoria_que_falla.h"

#include <cstdlib>
#include <new>

namespace Qlt4_Tabla {
namespace {

long quedan = -1;

} // namespace

void falla_tras(long n) { quedan = n; }

} // namespace Qlt4_Tabla

void* operator new(std::size_t n) {
    if (Qlt4_Tabla::quedan >= 0 && Qlt4_Tabla::quedan-- == 0) throw std::bad_alloc();
    void* const p = std::malloc(n == 0 ? 1 : n);
    if (!p) throw std::bad_alloc();
    return p;
}

void* operator new[](std::size_t n) { return operator new(n); }

void operator delete(void* p) noexcept { std::free(p); }

void operator delete[](void* p) noexcept { std::free(p); }

void operator delete(void* p, std::size_t) noexcept { std::free(p); }

void operator delete[](void* p, std::size_t) noexcept { std::free(p); }
