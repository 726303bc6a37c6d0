// SPDX-License-Identifier: MIT
// What is copied can be pasted: for tables of numbers the cells come back as they were, on platforms with a
// point and with a comma.
#include "base/numeros.h"
#include "tests/clipboard/mesa_portapapeles.h"

#include <cmath>
#include <random>

namespace Qlt4_Tabla {

namespace {

struct IdaYVuelta : MesaPortapapeles {
    static constexpr int FILAS = 40;
    static constexpr int COLUMNAS = 9;

    std::mt19937 azar{20240607};

    int entre(int a, int b) { return std::uniform_int_distribution<int>(a, b)(azar); }

    /// Columns of every numeric kind with their decimals, filled in their form; some cells stay empty.
    void numeros() {
        tabla(FILAS, COLUMNAS);
        for (int col = 1; col < COLUMNAS; ++col) {
            const bool real = entre(0, 3) > 0;
            pon_formato(col, real ? T_formato::Real__ : T_formato::Entero,
                static_cast<std::int16_t>(real ? entre(0, 15) : 0));
            for (int fila = 1; fila < FILAS; ++fila)
                if (entre(0, 5) > 0) pon(fila, col, numero(real));
        }
        // Twice: a number rounded to nothing shows "-0.00", and "0.00" the next time.
        Tablero_establece_Formato(e);
        Tablero_establece_Formato(e);
    }

    std::string numero(bool real) {
        const double x =
            real ? entre(-2000000000, 2000000000) / std::pow(10.0, entre(0, 12)) : entre(-999999, 999999);
        return numero_a_texto(x);
    }
};

TEST_F(IdaYVuelta, los_numeros_vuelven_como_eran) {
    for (int vez = 0; vez < 200; ++vez) {
        p.separador.coma = vez % 2 == 1;
        numeros();
        const int fila1 = entre(1, FILAS - 1);
        const int fila2 = entre(1, FILAS - 1);
        const int col1 = entre(1, COLUMNAS - 1);
        const int col2 = entre(1, COLUMNAS - 1);
        const std::string antes = datos();
        marca(fila1, col1, fila2, col2);
        const std::string texto = copia();
        for (int fila = std::min(fila1, fila2); fila <= std::max(fila1, fila2); ++fila)
            for (int col = std::min(col1, col2); col <= std::max(col1, col2); ++col) pon(fila, col, "9");
        va(std::min(fila1, fila2), std::min(col1, col2));
        Pegar_Portapapeles(e, false);
        ASSERT_EQ(datos(), antes) << "turn " << vez << "\n" << texto;
        ASSERT_TRUE(p.mensajes.vistos.empty());
    }
}

TEST_F(IdaYVuelta, una_tabla_entera_pasa_a_otra_vacia) {
    for (const bool coma : {false, true}) {
        p.separador.coma = coma;
        numeros();
        const std::string antes = datos();
        marca(1, 1, FILAS - 1, COLUMNAS - 1);
        Copiar_Seleccion(e, 0);
        t().Rows(1);
        va(0, 1);
        Pegar_Portapapeles(e, false);
        EXPECT_EQ(datos(), antes);
    }
}

} // namespace

} // namespace Qlt4_Tabla
