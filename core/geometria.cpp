// SPDX-License-Identifier: MIT
// Geometry: edges are sums of widths and heights; where every row has the common height, a product.
#include "core/geometria.h"

#include <algorithm>
#include <cstdint>

namespace Qlt4_Tabla {

namespace {

// Sizes of the fixed part: the header row's height, the row-number column's width.
int alto_fijo(const Tablero& t) { return t.Rows() > 0 ? t.RowHeight(0) : 0; }

int ancho_fijo(const Tablero& t) { return t.Cols() > 0 ? t.ancho_visible(0) : 0; }

int alto_datos(const Tablero& t) { return std::max(0, t.alto_vista() - alto_fijo(t)); }

// The sum, stopping at a place far beyond every window.
int mas(int x, int ancho) {
    constexpr std::int64_t LEJOS = 1 << 30;
    return static_cast<int>(std::min(LEJOS, std::int64_t{x} + ancho));
}

int entre_arriba(int dividendo, int divisor) { return dividendo <= 0 ? 0 : (dividendo - 1) / divisor + 1; }

// The data row that covers a place `y` twips below the header, Rows beyond the last one.
int fila_a(const Tablero& t, int y) {
    if (!t.hay_altos()) return std::min(t.Rows(), t.TopRow() + y / t.alto_normal());
    int fila = t.TopRow();
    for (int fin = 0; fila < t.Rows(); ++fila) {
        fin += t.RowHeight(fila);
        if (y < fin) break;
    }
    return fila;
}

// The first of the rows that end with `fila` and fit into `alto` together; `fila` itself at least.
int primera_que_cabe(const Tablero& t, int fila, int alto) {
    if (!t.hay_altos()) return std::max({1, std::min(fila, fila + 1 - alto / t.alto_normal())});
    int resto = alto - t.RowHeight(fila);
    while (fila > 1 && resto >= t.RowHeight(fila - 1)) resto -= t.RowHeight(--fila);
    return fila;
}

// The data column under x, or the nearest one; where x is beyond the window's data part, the nearest that
// is not seen whole. Columns without width are passed over.
int columna_cercana(const Tablero& t, int x) {
    const int fijo = ancho_fijo(t);
    const int limite = x < fijo ? fijo - 1 : std::min(x, t.ancho_vista());
    int cercana = -1;
    int izquierda = fijo - t.desplazamiento();
    for (int col = 1; col < t.Cols(); ++col) {
        const int ancho = t.ancho_visible(col);
        if (ancho != 0 && (cercana < 0 || izquierda <= limite)) cercana = col;
        izquierda = mas(izquierda, ancho);
    }
    return cercana;
}

int fila_cercana(const Tablero& t, int y) {
    const int ultima = t.Rows() - 1;
    if (ultima < 1) return -1;
    if (y < alto_fijo(t)) return std::max(1, t.TopRow() - 1);
    return std::min(ultima, fila_a(t, std::max(0, std::min(y, t.alto_vista()) - alto_fijo(t))));
}

} // namespace

int x_columna(const Tablero& t, int col) {
    if (col <= 0) return 0;
    int x = ancho_fijo(t) - t.desplazamiento();
    for (int c = 1; c < col && c < t.Cols(); ++c) x = mas(x, t.ancho_visible(c));
    return x;
}

int y_fila(const Tablero& t, int fila) {
    if (fila <= 0) return 0;
    if (fila < t.TopRow()) return -t.RowHeight(fila);
    int y = alto_fijo(t);
    if (!t.hay_altos()) {
        const int caben = entre_arriba(t.alto_vista() - y, t.alto_normal());
        return y + std::min(fila - t.TopRow(), caben) * t.alto_normal();
    }
    for (int f = t.TopRow(); f < fila && y < t.alto_vista(); ++f) y += t.RowHeight(f);
    return y;
}

Rectangulo rectangulo_celda(const Tablero& t, int fila, int col) {
    return {x_columna(t, col), y_fila(t, fila), t.ancho_visible(col), t.RowHeight(fila)};
}

Rectangulo parte_visible(const Tablero& t, int fila, int col) {
    const Rectangulo r = rectangulo_celda(t, fila, col);
    const int izquierda = std::max(r.izquierda, col > 0 ? ancho_fijo(t) : 0);
    const int arriba = std::max(r.arriba, fila > 0 ? alto_fijo(t) : 0);
    const int ancho = std::min(r.derecha(), t.ancho_vista()) - izquierda;
    const int alto = std::min(r.abajo(), t.alto_vista()) - arriba;
    if (ancho <= 0 || alto <= 0) return {};
    return {izquierda, arriba, ancho, alto};
}

Celda celda_en(const Tablero& t, int x, int y) {
    Celda celda;
    if (y >= 0 && y < alto_fijo(t)) celda.fila = 0;
    if (y >= alto_fijo(t)) celda.fila = fila_a(t, y - alto_fijo(t));
    if (celda.fila >= t.Rows()) celda.fila = -1;
    if (x >= 0 && x < ancho_fijo(t)) celda.col = 0;
    if (x < ancho_fijo(t)) return celda;
    int derecha = ancho_fijo(t) - t.desplazamiento();
    for (int col = 1; col < t.Cols(); ++col) {
        derecha = mas(derecha, t.ancho_visible(col));
        if (x >= derecha) continue;
        celda.col = col;
        break;
    }
    return celda;
}

Celda celda_mas_cercana(const Tablero& t, int x, int y) {
    return {fila_cercana(t, y), columna_cercana(t, x)};
}

int borde_en(const Tablero& t, int x, int tolerancia) {
    int mejor = -1;
    int distancia = tolerancia;
    int derecha = 0;
    for (int col = 0; col < t.Cols(); ++col) {
        if (col == 1) derecha -= t.desplazamiento();
        derecha = mas(derecha, t.ancho_visible(col));
        const bool detras = col > 0 && derecha <= ancho_fijo(t);
        const int lejos = x < derecha ? derecha - x : x - derecha;
        if (t.ancho_visible(col) == 0 || detras || lejos > distancia) continue;
        mejor = col;
        distancia = lejos;
    }
    return mejor;
}

int filas_visibles(const Tablero& t) {
    int resto = alto_datos(t);
    int fila = t.TopRow();
    for (; t.hay_altos() && fila < t.Rows() && t.RowHeight(fila) <= resto; ++fila) resto -= t.RowHeight(fila);
    const int con_alto = fila - t.TopRow();
    const bool hay_mas = t.hay_altos() && fila < t.Rows();
    return std::max(1, con_alto + (hay_mas ? 0 : resto / t.alto_normal()));
}

int ultima_fila_visible(const Tablero& t) {
    if (t.Rows() <= 1) return 0;
    const int alto = alto_datos(t);
    return std::min(t.Rows() - 1, alto == 0 ? t.TopRow() : fila_a(t, alto - 1));
}

int fila_superior_maxima(const Tablero& t) {
    return t.Rows() <= 1 ? 1 : primera_que_cabe(t, t.Rows() - 1, alto_datos(t));
}

int ancho_total(const Tablero& t) {
    int ancho = 0;
    for (int col = 0; col < t.Cols(); ++col) ancho = mas(ancho, t.ancho_visible(col));
    return ancho;
}

void muestra_celda(Tablero& t, int fila, int col) {
    if (t.ancho_vista() == 0 || t.alto_vista() == 0) return;
    if (fila >= 1) {
        const int minima = primera_que_cabe(t, fila, alto_datos(t));
        t.TopRow(std::clamp(t.TopRow(), minima, fila));
    }
    if (col >= 1) {
        const int izquierda = x_columna(t, col) - ancho_fijo(t);
        const int sobra = x_columna(t, col) + t.ancho_visible(col) - t.ancho_vista();
        const int mas = izquierda < 0 ? izquierda : std::max(0, std::min(sobra, izquierda));
        if (mas != 0) t.desplazamiento(t.desplazamiento() + mas);
    }
}

} // namespace Qlt4_Tabla
