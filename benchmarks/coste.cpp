// SPDX-License-Identifier: MIT
// The operations whose cost must not grow with the rows, each a function of its own for callgrind to count.
//   medicion_coste ROWS
// scripts/coste runs it at two sizes and compares the instructions.
#include "tabla.h"

#include <string>

using namespace Qlt4_Tabla;
using namespace Qlt4_Tabla::medida;

namespace {

constexpr int VECES = 32; // coste.py divides by it

/// Rows with texts in the first columns, formats applied, the current cell in the middle.
void prepara(TablaMedida& c, int filas) {
    constexpr int CON_TEXTO = 3; // callgrind is slow, and the others add nothing
    c.filas(filas);
    for (int f = 0; f < filas; ++f)
        for (int col = 0; col < CON_TEXTO; ++col) c.pon(f, col, datos().celda(f, col));
    c.tabla().Tablero_establece_Formato();
    c.tabla().Tablero_establece_Formato();
    c.tabla().mandos().vista_redimensionada(9000, 6000);
    c.tabla().mandos().elige_celda(filas / 2, 2);
}

} // namespace

// Names that callgrind's report shows as they stand here.
extern "C" {

[[gnu::noinline]] void coste_tecla(TablaMedida& c) { c.tabla().mandos().tecla_abajo(teclas::ABAJO, {}); }

[[gnu::noinline]] void coste_confirma(TablaMedida& c, int fila) {
    c.escribe_como_usuario(fila, COL_REAL, "123456.5");
}

[[gnu::noinline]] void coste_anade(TablaMedida& c) { c.anade(); }

[[gnu::noinline]] void coste_inserta(TablaMedida& c, int fila) { c.inserta(fila); }

[[gnu::noinline]] void coste_borra(TablaMedida& c, int fila) { c.borra(fila); }

[[gnu::noinline]] void coste_renumera(TablaMedida& c, int fila) {
    c.tabla().TextMatrix(fila, 0, "x");
    c.inserta(0);
    c.borra(0);
}

[[gnu::noinline]] void coste_celda(TablaMedida& c, int fila, const std::string& texto) {
    c.tabla().TextMatrix(fila, 3, texto);
}

[[gnu::noinline]] void coste_rueda(TablaMedida& c) { c.tabla().mandos().rueda(-1); }

[[gnu::noinline]] void coste_formatos(TablaMedida& c) { c.tabla().Tablero_establece_Formato(); }
}

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    const int filas = std::stoi(argv[1]);
    TablaMedida c;
    prepara(c, filas);
    const int medio = filas / 2;
    for (int i = 0; i < VECES; ++i) coste_tecla(c);
    for (int i = 0; i < VECES; ++i) coste_rueda(c);
    for (int i = 0; i < VECES; ++i) coste_confirma(c, medio + 3 * i);
    for (int i = 0; i < VECES; ++i) coste_celda(c, medio + 7 * i, datos().celda(i, 3));
    for (int i = 0; i < VECES; ++i) coste_formatos(c);
    for (int i = 0; i < VECES; ++i) coste_inserta(c, medio + i);
    for (int i = 0; i < VECES; ++i) coste_borra(c, medio + i);
    for (int i = 0; i < VECES; ++i) coste_renumera(c, medio);
    for (int i = 0; i < VECES; ++i) coste_anade(c);
    return c.sin_mensajes() && c.tabla().Rows() == filas + 1 + VECES ? 0 : 1;
}
