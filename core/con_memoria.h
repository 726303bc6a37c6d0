// SPDX-License-Identifier: MIT
// con_memoria: runs a call and tells a lack of memory as error 7.
#pragma once

#include "base/error.h"

#include <new>
#include <stdexcept>

namespace Qlt4_Tabla {

template <class Llamada>
decltype(auto) con_memoria(Llamada&& llamada) {
    try {
        return llamada();
    } catch (const std::bad_alloc&) {
        lanza(NumError::SinMemoria);
    } catch (const std::length_error&) {
        lanza(NumError::SinMemoria);
    }
}

} // namespace Qlt4_Tabla
