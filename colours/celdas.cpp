// SPDX-License-Identifier: MIT
// Colouring of cells: each member selects its cell and colours it; whole columns and rows are one
// operation of the grid.
#include "colours/celdas.h"

#include "base/numeros.h"
#include "colours/paleta.h"
#include "colours/textos.h"
#include "core/redibujo_suspendido.h"

#include <algorithm>
#include <optional>
#include <string>

namespace Qlt4_Tabla {

namespace {

constexpr Bloque una_celda(int fila, int col) { return {fila, col, fila, col}; }

// Makes the cell current; false, and nothing done, outside the grid.
bool selecciona(Tablero& t, std::int32_t fila, std::int32_t colm) {
    if (fila < 0 || fila >= t.Rows() || colm < 0 || colm >= t.Cols()) return false;
    t.selecciona(fila, colm, fila, colm);
    return true;
}

// What the setters of colour cells share; no `fondo`: the background stays.
void pon_valor(EstadoTabla& e, std::int32_t fila, std::int32_t colm, const std::string& nombre,
    std::optional<std::int32_t> fondo) {
    if (!selecciona(e.tablero, fila, colm)) return;
    if (fondo && e.edicionColor) e.tablero.color_fondo(una_celda(fila, colm), *fondo);
    e.tablero.TextMatrix(fila, colm, nombre);
}

// True, with the message shown, for a colour that does not exist.
bool rechaza_negativo(EstadoTabla& e, std::int32_t valor) {
    if (valor >= 0) return false;
    e.plataforma.mensajes.mensaje(textos::color_negativo, EstiloMensaje::Critico, textos::titulo_color);
    return true;
}

} // namespace

void Color_Columna(EstadoTabla& e, std::int32_t columna, T_colores Color) {
    Tablero& t = e.tablero;
    if (columna < 0 || columna >= t.Cols()) return;
    if (t.Rows() > 1) t.color_texto({1, columna, t.Rows() - 1, columna}, T_colores_a_pantalla(Color));
    t.selecciona(t.Row(), t.Col(), t.Row(), t.Col());
}

void ColMatrix(EstadoTabla& e, std::int32_t fila, std::int32_t colm, T_colores valor) {
    if (!selecciona(e.tablero, fila, colm)) return;
    e.tablero.color_texto(una_celda(fila, colm), T_colores_a_pantalla(valor));
}

void Color_Fila(
    EstadoTabla& e, std::int32_t fila, std::int32_t columIni, std::int32_t colmFin, T_colores valor) {
    Tablero& t = e.tablero;
    const auto [desde, hasta] = std::minmax(columIni, colmFin);
    const int primera = std::max(desde, 0);
    const int ultima = std::min(hasta, t.Cols() - 1);
    if (fila < 0 || fila >= t.Rows() || primera > ultima) return;
    const RedibujoSuspendido suspendido(t);
    t.color_fondo({fila, primera, fila, ultima}, T_colores_a_pantalla(valor));
    t.selecciona(fila, ultima, fila, ultima);
}

void tablero_sin_color(EstadoTabla& e) {
    Tablero& t = e.tablero;
    // No guard object: the switch ends on and not as it was.
    t.Redraw(false);
    const int ultima_fila = t.Rows() - 1;
    const int ultima_col = t.Cols() - 1;
    if (ultima_fila >= 1 && ultima_col >= 0) {
        t.color_texto({1, 0, ultima_fila, ultima_col}, 0);
        t.selecciona(ultima_fila, ultima_col, ultima_fila, ultima_col);
    }
    t.Redraw(true);
}

void Color_Matrix(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int32_t valor) {
    if (!selecciona(e.tablero, fila, colm)) return;
    e.tablero.color_fondo(una_celda(fila, colm), valor);
}

std::int32_t Color_Matrix(EstadoTabla& e, std::int32_t fila, std::int32_t colm) {
    if (!selecciona(e.tablero, fila, colm)) return 0;
    return e.tablero.color_fondo(fila, colm);
}

std::int32_t Color_Matrix_en_VB(EstadoTabla& e, std::int32_t fila, std::int32_t colm) {
    if (!selecciona(e.tablero, fila, colm)) return 0;
    if (e.edicionColor) return e.tablero.color_fondo(fila, colm);
    const std::string numero = nombre_a_numero(e.tablero.TextMatrix(fila, colm));
    return paleta_a_pantalla(entero16_de_texto(numero));
}

void pon_color(EstadoTabla& e, const Bloque& celdas, std::string_view nombre, std::int32_t fondo) {
    Tablero& t = e.tablero;
    const RedibujoSuspendido suspendido(t);
    for (int col = celdas.col1; col <= celdas.col2; ++col)
        t.transforma_columna(
            col, celdas.fila1, celdas.fila2, [&](int, std::string_view texto, std::string& nuevo) {
                nuevo = nombre;
                return nuevo != texto;
            });
    if (e.edicionColor) t.color_fondo(celdas, fondo);
}

void Color_Matrix_en_Cad(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int32_t valor) {
    if (rechaza_negativo(e, valor)) return;
    pon_valor(e, fila, colm, numero_a_nombre(valor), valor);
}

void Color_Matrix_de_Cad(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int16_t valor) {
    if (rechaza_negativo(e, valor)) return;
    pon_valor(e, fila, colm, numero_a_nombre(valor), std::nullopt);
}

void Color_Matrix_en_Cad_dado_N_VB(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int32_t valor) {
    if (rechaza_negativo(e, valor)) return;
    pon_valor(e, fila, colm, pantalla_a_nombre(valor), valor);
}

void Color_Matrix_en_Cad_dado_N_cad(
    EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::int16_t valor) {
    if (rechaza_negativo(e, valor)) return;
    pon_valor(e, fila, colm, numero_a_nombre(valor), paleta_a_pantalla(valor));
}

} // namespace Qlt4_Tabla
