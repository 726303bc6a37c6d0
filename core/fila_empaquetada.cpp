// SPDX-License-Identifier: MIT
// Packed rows: the cases of wide rows and of long texts, apart from the ordinary ones.
#include "core/fila_empaquetada.h"

namespace Qlt4_Tabla {

CabeceraFila lee_cabecera_ancha(const std::uint8_t* p) {
    CabeceraFila c{(p[0] >> 2U) & 31U, 1, p[0]};
    for (unsigned bits = 5; (p[c.bytes - 1] & 128U) != 0; bits += 7)
        c.columnas |= (p[c.bytes++] & 127U) << bits;
    return c;
}

std::uint32_t suma_muchas(const std::uint8_t* longitudes, std::uint32_t n, bool largos) {
    std::uint32_t suma = 0;
    for (; largos && n != 0; --n) suma += bytes_guardados(*longitudes++);
    for (; n > 7; n -= 7, longitudes += 7) suma += suma_pocas(longitudes, 7);
    return suma + suma_pocas(longitudes, n);
}

} // namespace Qlt4_Tabla
