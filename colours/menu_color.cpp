// SPDX-License-Identifier: MIT
// The colour menu: which cells, which colour, in one pass over the column.
#include "colours/menu_color.h"

#include "base/error.h"
#include "base/numeros.h"
#include "colours/celdas.h"
#include "colours/paleta.h"
#include "colours/selector_color.h"
#include "colours/textos.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

namespace Qlt4_Tabla {

namespace {

constexpr std::size_t OTRO = textos::menu_colores.size() - 1;

void aplica(EstadoTabla& e, const Bloque& bloque, std::string_view nombre, std::int32_t fondo) {
    e.revoca.Graba_Revoca();
    pon_color(e, bloque, nombre, fondo);
    e.Modificado = 1;
}

// The colour that a cell shows or names, white where it does neither: black would be no choice at all.
std::int32_t color_de_celda(const EstadoTabla& e, int fila, int col) {
    if (e.edicionColor && e.tablero.tiene_fondo(fila, col)) return e.tablero.color_fondo(fila, col);
    try {
        return paleta_a_pantalla(entero16_de_texto(nombre_a_numero(e.tablero.TextMatrix(fila, col))));
    } catch (const Error&) { // a text that is no colour
        return paleta_a_pantalla(INDICE_BLANCO);
    }
}

} // namespace

Bloque abre_menu_color(EstadoTabla& e) {
    e.menu_cambio.prepara(textos::menu_colores);
    for (std::size_t i = 0; i < OTRO; ++i)
        e.menu_cambio.colorea(i, paleta_a_pantalla(static_cast<std::int16_t>(i + 1)));
    const Tablero& t = e.tablero;
    return {std::min(t.Row(), t.RowSel()), t.Col(), std::max(t.Row(), t.RowSel()), t.Col()};
}

void cierra_menu_color(EstadoTabla& e, const Bloque& bloque) {
    const std::optional<std::size_t> entrada = e.menu_cambio.marcada();
    if (!entrada) return;
    if (*entrada < OTRO) {
        const auto indice = static_cast<std::int16_t>(*entrada + 1);
        aplica(e, bloque, numero_a_nombre(indice), paleta_a_pantalla(indice));
        return;
    }
    std::int32_t color = color_de_celda(e, bloque.fila1, bloque.col1);
    if (elige_color(e, color)) aplica(e, bloque, pantalla_a_nombre(color), color);
}

} // namespace Qlt4_Tabla
