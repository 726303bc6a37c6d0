// SPDX-License-Identifier: MIT
// Paste when memory fails half-way: whatever can still be written is.
#include "tests/clipboard/mesa_portapapeles.h"
#include "tests/core/memoria_que_falla.h"

#include <new>

namespace Qlt4_Tabla {

namespace {

struct PegaSinMemoria : MesaPortapapeles {
    /// Pastes the block anew, and the allocation behind the next `n` fails.
    void pega_fallando(long n, std::string_view corto) {
        tabla(1, 3);
        tabla(FILAS + 1, 3);
        p.portapapeles.texto = bloque(corto);
        falla_tras(n);
        try {
            Pegar_Portapapeles(e, false);
        } catch (const std::bad_alloc&) { // outside of what is written
        }
        falla_tras(-1);
    }

    static constexpr int FILAS = 300;
};

TEST_F(PegaSinMemoria, una_falta_no_deja_filas_sin_pegar) {
    std::string corto;
    std::string todo;
    for (int i = 1; i <= FILAS; ++i) {
        const std::string largo(i % 50 == 0 ? 300 : 1, 'x'); // the long ones stand apart
        corto += std::to_string(i) + ",1,2|" + largo + '/';
        todo += std::to_string(i) + ".1,2|" + largo + '/';
    }
    int pegadas = 0;
    for (long n = 0; n < 300; ++n) {
        pega_fallando(n, corto);
        if (celda(1, 1).empty()) continue; // it had not begun
        ++pegadas;
        ASSERT_EQ(datos(), todo) << n;
    }
    EXPECT_GT(pegadas, 0);
}

} // namespace

} // namespace Qlt4_Tabla
