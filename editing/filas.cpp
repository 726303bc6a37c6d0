// SPDX-License-Identifier: MIT
// Row operations, each in the order of its steps: capture point, change, numbers, the host's event.
#include "editing/filas.h"

#include "base/aritmetica.h"
#include "base/numeros.h"
#include "base/utf8.h"
#include "core/geometria.h"
#include "core/incrementa_texto.h"
#include "core/numeracion.h"
#include "core/sin_redibujar.h"
#include "core/superficie.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

namespace {

bool accion(const T_FormatoColumna& f, T_Accion cual) { return f.Accion == static_cast<std::int16_t>(cual); }

bool fila_vacia(const Tablero& t, int fila) {
    for (int col = 1; col < t.Cols(); ++col)
        if (!utf8::sin_blancos(t.TextMatrix(fila, col)).empty()) return false;
    return true;
}

void vacia(Tablero& t, const Bloque& b, int col) {
    if (b.fila1 == 0) t.TextMatrix(0, col, {});
    const int desde = std::max(1, b.fila1);
    if (desde > b.fila2) return;
    t.transforma_columna(col, desde, b.fila2, [](int, std::string_view texto, std::string& nuevo) {
        nuevo.clear();
        return !texto.empty();
    });
}

/// The end that insertion and removal share; the caller's redrawing is still off when the host hears.
void termina_cambio_de_filas(EstadoTabla& e) {
    e.Modificado = 1;
    Numera_Filas(e.tablero);
    recuenta_filas(e);
    olvida_clic(e); // its place holds another row now
    trata_cambio_seleccion(e);
}

} // namespace

void crea_una_fila(EstadoTabla& e) {
    Tablero& t = e.tablero;
    const int filas = suma32(t.Rows(), 1);
    const int numero = suma32(t.Row(), 1);
    e.revoca.Graba_Revoca();
    t.Rows(filas);
    e.Modificado = 1;
    t.TextMatrix(numero, 0, numero_a_texto(numero));
    recuenta_filas(e);
    Rellena_Fila(e, filas - 1);
}

void Rellena_Fila(EstadoTabla& e, int f) {
    if (f <= 1) return;
    Tablero& t = e.tablero;
    for (int col = 1; col < t.Cols(); ++col) {
        const T_FormatoColumna& columna = formato(e, col);
        const bool repite = accion(columna, T_Accion::Repite);
        if (!repite && !accion(columna, T_Accion::Increm)) continue;
        const std::string arriba(t.TextMatrix(f - 1, col));
        t.TextMatrix(f, col, repite ? arriba : Incrementa_Texto(arriba));
    }
}

void mn_añadir_filas(EstadoTabla& e) {
    Tablero& t = e.tablero;
    const int filas = suma32(t.Rows(), 1);
    const bool primera = t.Rows() == 1;
    e.revoca.Graba_Revoca();
    t.Rows(filas);
    e.Modificado = 1;
    Numera_Filas(t);
    recuenta_filas(e);
    if (primera) lleva_celda_a_datos(t); // what is typed next belongs to it
    t.TopRow(filas - 1);
    termina_mensaje(e);
}

void mn_insertar_filas(EstadoTabla& e) {
    Tablero& t = e.tablero;
    const auto [a, b] = std::minmax({t.Row(), t.RowSel()});
    const int n = a == 0 ? std::max(1, b) : b - a + 1;
    const int donde = a > 0 ? a : b > 0 ? 1 : t.Rows();
    suma32(t.Rows(), n);
    e.revoca.Graba_Revoca();
    const SinRedibujar quieto(t);
    const bool primera = t.Rows() == 1;
    t.inserta_filas(donde, n);
    if (primera) lleva_celda_a_datos(t); // what is typed next belongs to it
    termina_cambio_de_filas(e);
}

void mn_eliminar_filas(EstadoTabla& e) {
    Tablero& t = e.tablero;
    e.revoca.Graba_Revoca();
    if (t.Rows() <= 1) return;
    const SinRedibujar quieto(t);
    const Bloque b = t.seleccion();
    const int desde = std::max(1, b.fila1);
    if (b.fila2 >= desde) t.borra_filas(desde, b.fila2 - desde + 1);
    termina_cambio_de_filas(e);
    t.selecciona(t.Row(), t.Col(), t.Row(), t.Col());
    muestra_celda(t, t.Row(), t.Col());
}

void mn_eliminar_vacias(EstadoTabla& e) {
    Tablero& t = e.tablero;
    e.revoca.Graba_Revoca();
    const SinRedibujar quieto(t);
    std::vector<int> vacias;
    for (int fila = 1; fila < t.Rows(); ++fila)
        if (fila_vacia(t, fila)) vacias.push_back(fila);
    t.borra_varias_filas(vacias);
    termina_cambio_de_filas(e);
    muestra_celda(t, t.Row(), t.Col());
}

void mn_borrar_seleccion(EstadoTabla& e) {
    Tablero& t = e.tablero;
    const Bloque b = t.seleccion();
    e.revoca.Graba_Revoca();
    e.Modificado = 1;
    for (int col = b.col1; col <= b.col2; ++col) vacia(t, b, col);
    termina_mensaje(e);
}

void mn_cortar(EstadoTabla& e, const std::function<bool()>& copia) {
    e.revoca.Graba_Revoca();
    if (copia()) mn_borrar_seleccion(e);
}

} // namespace Qlt4_Tabla
