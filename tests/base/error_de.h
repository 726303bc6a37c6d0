// SPDX-License-Identifier: MIT
// error_de: the number of the Error that a call raises, 0 when it raises none.
//     EXPECT_EQ(error_de([] { entero16(40000); }), 6);
#pragma once

#include "base/error.h"

namespace Qlt4_Tabla {

template <class Llamada>
int error_de(Llamada&& llamada) {
    try {
        llamada();
    } catch (const Error& error) {
        return error.numero();
    }
    return 0;
}

} // namespace Qlt4_Tabla
