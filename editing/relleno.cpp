// SPDX-License-Identifier: MIT
// Filling of selected cells from a menu: editing/relleno.h.
#include "editing/relleno.h"

#include "core/con_memoria.h"
#include "core/incrementa_texto.h"
#include "core/redibujo_suspendido.h"
#include "editing/textos.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

namespace {

constexpr std::size_t REPETIR = 0;

/// Writes into each cell of the block what `siguiente` makes of the text written before it.
void rellena(EstadoTabla& e, const Bloque& b, std::string primero,
    const std::function<void(std::string&)>& siguiente) {
    e.revoca.Graba_Revoca();
    con_memoria([&] {
        const RedibujoSuspendido suspendido(e.tablero);
        e.tablero.transforma_columna(
            b.col1, b.fila1, b.fila2, [&](int, std::string_view texto, std::string& nuevo) {
                siguiente(primero);
                nuevo = primero;
                return nuevo != texto;
            });
    });
    e.Modificado = 1;
}

} // namespace

Bloque bloque_de_columna(const Tablero& t) {
    const Bloque b = t.seleccion();
    return {std::max(b.fila1, 1), t.Col(), b.fila2, t.Col()};
}

Bloque abre_menu_texto(EstadoTabla& e) {
    const Bloque b = bloque_de_columna(e.tablero);
    const std::string texto(e.tablero.TextMatrix(b.fila1, b.col1));
    const auto entrada = [&](std::string_view antes) {
        return std::string(antes).append(texto).append(textos::fin_relleno);
    };
    const std::string repetir = entrada(textos::repetir);
    const std::string incrementar = entrada(textos::incrementar);
    e.menu_cambio.prepara(std::array<std::string_view, 2>{repetir, incrementar});
    return b;
}

void cierra_menu_texto(EstadoTabla& e, const Bloque& bloque) {
    const std::optional<std::size_t> entrada = e.menu_cambio.marcada();
    if (!entrada) return;
    const bool repite = *entrada == REPETIR;
    const Bloque debajo{bloque.fila1 + 1, bloque.col1, bloque.fila2, bloque.col2};
    rellena(e, debajo, std::string(e.tablero.TextMatrix(bloque.fila1, bloque.col1)), [&](std::string& texto) {
        if (!repite) texto = Incrementa_Texto(texto);
    });
}

Bloque abre_menu_lista(EstadoTabla& e) {
    const Bloque b = bloque_de_columna(e.tablero);
    const Matriz<std::string>& lista = e.listas.at(static_cast<std::size_t>(b.col1)).Col;
    std::vector<std::string_view> entradas;
    for (const std::string& valor : lista) entradas.push_back(valor);
    e.menu_cambio.prepara(entradas);
    return b;
}

void cierra_menu_lista(EstadoTabla& e, const Bloque& bloque) {
    const std::optional<std::size_t> entrada = e.menu_cambio.marcada();
    if (!entrada) return;
    rellena(
        e, bloque, e.menu_cambio.elementos().at(MenuCambio::FIJOS + *entrada).titulo, [](std::string&) {});
}

} // namespace Qlt4_Tabla
