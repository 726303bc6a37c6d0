// SPDX-License-Identifier: MIT
// Cells to the clipboard: clipboard/copia.h.
#include "clipboard/copia.h"

#include "clipboard/textos.h"
#include "core/con_memoria.h"
#include "core/reloj_de_arena.h"
#include "core/sin_errores.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

namespace {

/// So many rows tell how long the whole text may become...
constexpr int MUESTRA = 64;
/// ... and no more than this is asked for beforehand: a few long texts at the top must not ask for all memory.
constexpr std::size_t MAX_RESERVA = std::size_t{1} << 28;

void anade_con_coma(std::string& texto, std::string_view celda) {
    const std::size_t desde = texto.size();
    texto += celda;
    if (celda.empty()) return;
    if (void* punto = std::memchr(texto.data() + desde, '.', celda.size())) *static_cast<char*>(punto) = ',';
}

void anade_celda(std::string& texto, std::string_view celda, FormaCelda forma, bool coma) {
    if (forma == FormaCelda::Vacia) return;
    if (coma)
        anade_con_coma(texto, celda);
    else
        texto += celda;
    if (forma == FormaCelda::Doblada) anade_con_coma(texto, celda);
}

std::string bloque_en_texto(const Tablero& t, const Bloque& b, FormaCelda forma, bool coma) {
    std::string texto;
    if (b.col1 > b.col2) return texto;
    std::vector<std::string_view> celdas(static_cast<std::size_t>(b.col2 - b.col1) + 1);
    for (int fila = b.fila1; fila <= b.fila2; ++fila) {
        if (fila - b.fila1 == MUESTRA) {
            const std::size_t por_fila = texto.size() / MUESTRA + 1;
            const auto filas = static_cast<std::size_t>(b.fila2 - b.fila1) + 1;
            texto.reserve(std::min(por_fila * filas + por_fila * filas / 8, MAX_RESERVA));
        }
        if (fila < t.Rows() && b.col2 < t.Cols()) t.almacen().lee_fila(fila, b.col1, celdas);
        anade_celda(texto, celdas.front(), forma, coma);
        for (std::size_t i = 1; i < celdas.size(); ++i) {
            texto += '\t';
            anade_celda(texto, celdas[i], forma, coma);
        }
        texto += "\r\n";
    }
    return texto;
}

void permite_pegar(EstadoTabla& e) {
    for (const Opcion o : {Opcion::mn_pegar_cXp, Opcion::mn_Pegar, Opcion::mn_pegar_al_final})
        e.menus[o].activa = true;
    e.plataforma.marco.menus_cambiados();
}

void copia_bloque(EstadoTabla& e, const Bloque& bloque, FormaCelda forma) {
    refresca_ComaDecimal(e);
    e.plataforma.portapapeles.escribe(texto_de_bloque(e.tablero, bloque, forma, e.ComaDecimal));
}

// The selection is only touched when the text is on the clipboard.
void copia_todo(EstadoTabla& e, const Bloque& bloque) {
    Tablero& t = e.tablero;
    termina_mensaje(e);
    const RelojDeArena reloj(e.plataforma.mensajes);
    copia_bloque(e, bloque, FormaCelda::Doblada);
    permite_pegar(e);
    if (t.Rows() > 0 && t.Cols() > 0) t.selecciona(t.Row(), t.Col(), t.Row(), t.Col());
}

} // namespace

std::string texto_de_bloque(const Tablero& t, const Bloque& bloque, FormaCelda forma, bool coma) {
    return con_memoria([&] { return bloque_en_texto(t, bloque, forma, coma); });
}

bool Copiar_Seleccion(EstadoTabla& e, std::int16_t Modo) {
    termina_mensaje(e);
    const RelojDeArena reloj(e.plataforma.mensajes);
    bool copiado = false;
    sin_errores([&] {
        const bool conocido = Modo == 0 || Modo == 1;
        const FormaCelda forma = conocido ? FormaCelda::Sola : FormaCelda::Vacia;
        con_memoria([&] { copia_bloque(e, e.tablero.seleccion(), forma); });
        copiado = true;
    });
    permite_pegar(e);
    return copiado;
}

void Copiar_Tabla(EstadoTabla& e) {
    copia_todo(e, {1, 1, e.tablero.Rows() - 1, e.tablero.Cols() - 1});
    e.plataforma.mensajes.mensaje(
        textos::tabla_copiada, EstiloMensaje::Informacion, textos::titulo_tabla_copiada);
}

void mn_copiar_todo_y_cabezera(EstadoTabla& e) {
    copia_todo(e, {0, 0, e.tablero.Rows() - 1, e.tablero.Cols() - 1});
}

} // namespace Qlt4_Tabla
