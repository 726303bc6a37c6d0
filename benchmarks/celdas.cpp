// SPDX-License-Identifier: MIT
// Works without a window and without Qt: this table, a vector of vectors of strings, the machine's limit.
//   medicion_celdas tabla|vectores|limite celdas|columnas|pega|fichero|propias ROWS
// `propias`: what only this table does. scripts/mide runs it.
#include "limites.h"
#include "obras.h"
#include "tabla.h"
#include "vectores.h"

#include <iostream>

namespace {

using namespace Qlt4_Tabla;
using namespace Qlt4_Tabla::medida;

constexpr int FILAS_DEL_BLOQUE = 100'000;

// Each with the column in another form afterwards, then again in the same, then one cell pasted.
void mide_formatos(const Medidor& m, TablaMedida& c) {
    m.una("formatea", [&] { da_formatos(c.tabla(), true, 2); });
    m.una("formatea_otra_vez", [&] { c.tabla().Tablero_establece_Formato(); });
    const std::string una = "12,5\r\n";
    m.varias("pega_una", 20, [&] { c.pega(una); });
}

void mide_renumera(const Medidor& m, TablaMedida& c, int filas) {
    m.varias("renumera", 100, [&] {
        c.tabla().TextMatrix(filas / 2, 0, "x");
        c.inserta(0);
        c.borra(0);
    });
}

void mide_propias(const Medidor& m, int filas) {
    TablaMedida c;
    llena(c, filas);
    std::size_t bytes = 0;
    m.una("copia_comas", [&] { bytes = c.copia_con_comas(); });
    exige(bytes == datos().bloque(filas, ',').size(), "not the whole block");
    int n = 0;
    m.varias("escribe", 2000, [&] {
        const int fila = static_cast<int>((n * 7919LL) % (filas - 1));
        c.escribe_como_usuario(fila, COL_REAL, datos().celda(++n, COL_REAL));
    });
    m.varias("elige_todo", 20, [&] {
        c.elige_todo();
        c.tabla().mandos().elige_celda(1, 1);
    });
    m.varias("funde", 20, [&] {
        c.tabla().MergeCells(2);
        c.tabla().MergeCol(4, true);
        c.tabla().MergeCol(4, false);
    });
    m.varias("arrastra_ancho", 20, [&] { c.tabla().mandos().arrastra_borde(2, 900 + ++n % 100); });
    c.colorea(2);
    m.una("sin_color", [&] { c.tabla().tablero_sin_color(); });
    mide_formatos(m, c);
    mide_renumera(m, c, filas);
    if (filas > FILAS_DEL_BLOQUE) {
        c.tabla().mandos().elige_bloque(filas / 4, 1, filas / 4 + FILAS_DEL_BLOQUE - 1, COLUMNAS);
        m.una("borra_100000", [&] { c.tabla().mandos().orden(Opcion::mn_eliminar_filas); });
        exige(c.tabla().Rows() == filas + 1 - FILAS_DEL_BLOQUE, "not deleted");
    }
    exige(c.sin_mensajes(), "a message was shown");
}

// Saved by one table and loaded by another: without formats of numbers, and with them.
void mide_ficheros_tabla(const Medidor& m, int filas) {
    mide_fichero<TablaDeTextos>(m, filas);
    mide_fichero<TablaMedida>(Medidor("formatos_"), filas);
}

int mide(const std::string& quien, const std::string& grupo, int filas) {
    const Medidor m;
    if (quien == "tabla" && grupo == "propias")
        mide_propias(m, filas);
    else if (quien == "tabla" && grupo == "fichero")
        mide_ficheros_tabla(m, filas);
    else if (quien == "tabla")
        mide_obras<TablaMedida>(m, grupo, filas);
    else if (quien == "vectores")
        mide_obras<Vectores>(m, grupo, filas);
    else
        mide_limites(m, grupo, filas);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) return 2;
    try {
        return mide(argv[1], argv[2], std::stoi(argv[3]));
    } catch (const std::exception& e) {
        std::cerr << e.what() << '\n';
        return 1;
    }
}
