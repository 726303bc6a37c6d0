// SPDX-License-Identifier: MIT
// Cells to the clipboard: clipboard/copia.h.
#include "clipboard/copia.h"

#include "clipboard/textos.h"
#include "core/con_memoria.h"
#include "core/reloj_de_arena.h"
#include "core/sin_errores.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

namespace {

/// So many rows tell how long the whole text may become...
constexpr int MUESTRA = 64;
/// ... and no more than this is asked for beforehand: a few long texts at the top must not ask for all memory.
constexpr std::size_t MAX_RESERVA = std::size_t{1} << 28;

/// A line of the block; its memory is used again for the next one.
class Linea {
public:
    Linea(FormaCelda forma, bool coma) : forma_(forma), coma_(coma) {}

    /// One TAB between the cells, CR LF behind them.
    [[nodiscard]] std::string_view de(std::span<const std::string_view> celdas) {
        std::size_t bytes = 2 * celdas.size() + 1;
        for (const std::string_view celda : celdas) bytes += 2 * celda.size();
        if (linea_.size() < bytes) linea_.resize(bytes);
        char* p = linea_.data();
        for (const std::string_view celda : celdas) {
            p = pon_celda(p, celda);
            *p++ = '\t';
        }
        p[-1] = '\r';
        *p++ = '\n';
        return {linea_.data(), static_cast<std::size_t>(p - linea_.data())};
    }

private:
    static char* pon(char* p, std::string_view celda) {
        if (!celda.empty()) std::memcpy(p, celda.data(), celda.size());
        return p + celda.size();
    }

    static char* pon_con_coma(char* p, std::string_view celda) {
        char* const fin = pon(p, celda);
        char* const punto = std::find(p, fin, '.');
        if (punto != fin) *punto = ',';
        return fin;
    }

    [[nodiscard]] char* pon_celda(char* p, std::string_view celda) const {
        if (forma_ == FormaCelda::Vacia) return p;
        p = coma_ ? pon_con_coma(p, celda) : pon(p, celda);
        return forma_ == FormaCelda::Doblada ? pon_con_coma(p, celda) : p;
    }

    FormaCelda forma_;
    bool coma_;
    std::string linea_;
};

std::string bloque_en_texto(const Tablero& t, const Bloque& b, FormaCelda forma, bool coma, Avance avance) {
    std::string texto;
    if (b.col1 > b.col2) return texto;
    std::vector<std::string_view> celdas(static_cast<std::size_t>(b.col2 - b.col1) + 1);
    Linea linea(forma, coma);
    for (int fila = b.fila1; fila <= b.fila2; ++fila) {
        if (fila - b.fila1 == MUESTRA) {
            const std::size_t por_fila = texto.size() / MUESTRA + 1;
            const auto filas = static_cast<std::size_t>(b.fila2 - b.fila1) + 1;
            texto.reserve(std::min(por_fila * filas + por_fila * filas / 8, MAX_RESERVA));
        }
        if (fila < t.Rows() && b.col2 < t.Cols()) t.almacen().lee_fila(fila, b.col1, celdas);
        texto += linea.de(celdas);
        avance.hasta(fila - b.fila1 + 1);
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
    const std::int64_t filas = std::int64_t{bloque.fila2} - bloque.fila1 + 1;
    const Avance avance(e.plataforma.mensajes, textos::copiando, filas);
    e.plataforma.portapapeles.escribe(texto_de_bloque(e.tablero, bloque, forma, e.ComaDecimal, avance));
}

// The selection is only touched when the text is on the clipboard.
void copia_todo(EstadoTabla& e, const Bloque& bloque) {
    Tablero& t = e.tablero;
    termina_mensaje(e);
    const RelojDeArena reloj(e);
    copia_bloque(e, bloque, FormaCelda::Doblada);
    permite_pegar(e);
    if (t.Rows() > 0 && t.Cols() > 0) t.selecciona(t.Row(), t.Col(), t.Row(), t.Col());
}

} // namespace

std::string texto_de_bloque(
    const Tablero& t, const Bloque& bloque, FormaCelda forma, bool coma, const Avance& avance) {
    return con_memoria([&] { return bloque_en_texto(t, bloque, forma, coma, avance); });
}

bool Copiar_Seleccion(EstadoTabla& e, std::int16_t Modo) {
    termina_mensaje(e);
    const RelojDeArena reloj(e);
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
