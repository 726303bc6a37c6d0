// SPDX-License-Identifier: MIT
// Cells to the clipboard: clipboard/copia.h.
#include "clipboard/copia.h"

#include "base/ocho_bytes.h"
#include "clipboard/textos.h"
#include "core/con_memoria.h"
#include "core/reloj_de_arena.h"
#include "core/sin_errores.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

namespace {

/// The block of text that the cells become, line by line.
class TextoBloque {
public:
    TextoBloque(FormaCelda forma, bool coma) : forma_(forma), coma_(coma) {}

    /// One TAB between the cells, CR LF behind them.
    void pon_linea(std::span<const std::string_view> celdas) {
        std::size_t bytes = 2 * celdas.size() + 1;
        for (const std::string_view celda : celdas) bytes += 2 * celda.size();
        char* p = sitio(bytes);
        for (const std::string_view celda : celdas) {
            p = pon_celda(p, celda);
            *p++ = '\t';
        }
        acaba_linea(p);
    }

    /// The same for `n` cells (one or more), each once; those behind the texts are empty.
    void pon_linea(const TextosSeguidos& textos, std::size_t n) {
        char* p = sitio((LARGO + 1) * n + TEXTO_HOLGADO);
        textos.recorre([&p, coma = coma_](std::string_view celda) {
            char* const fin = pon_texto_holgado(p, celda);
            if (coma) p[lugar_del_punto(celda)] = ',';
            *fin = '\t';
            p = fin + 1;
        });
        for (std::size_t i = textos.longitudes.size(); i < n; ++i) *p++ = '\t';
        acaba_linea(p);
    }

    [[nodiscard]] Bytes acaba() && {
        bytes_.resize(usados_);
        return std::move(bytes_);
    }

private:
    // In the place of the TAB before `p`.
    void acaba_linea(char* p) {
        p[-1] = '\r';
        *p++ = '\n';
        usados_ = static_cast<std::size_t>(p - bytes_.data());
    }

    /// Room for so many bytes more.
    [[nodiscard]] char* sitio(std::size_t mas) {
        if (bytes_.capacity() - usados_ < mas)
            bytes_.reserve(std::max(usados_ + mas, bytes_.capacity() + bytes_.capacity() / 2));
        return bytes_.data() + usados_;
    }

    /// Where the first point stands, or the end. TEXTO_HOLGADO bytes can be read.
    static std::size_t lugar_del_punto(std::string_view texto) {
        if (texto.size() > TEXTO_HOLGADO) return std::min(texto.find('.'), texto.size());
        static_assert(TEXTO_HOLGADO == 16);
        return static_cast<std::size_t>(std::countr_zero(marcas_iguales(lee_ocho(texto.data()), '.') |
            marcas_iguales(lee_ocho(texto.data() + 8), '.') << 8U | std::uint64_t{1} << texto.size()));
    }

    static char* pon_con_coma(char* p, std::string_view celda) {
        char* const fin = pon_texto(p, celda);
        char* const punto = std::find(p, fin, '.');
        if (punto != fin) *punto = ',';
        return fin;
    }

    [[nodiscard]] char* pon_celda(char* p, std::string_view celda) const {
        if (forma_ == FormaCelda::Vacia) return p;
        p = coma_ ? pon_con_coma(p, celda) : pon_texto(p, celda);
        return forma_ == FormaCelda::Doblada ? pon_con_coma(p, celda) : p;
    }

    FormaCelda forma_;
    bool coma_;
    Bytes bytes_;
    std::size_t usados_ = 0;
};

/// The cells of a row as they lie, where they go into the block so; outside of the grid they are empty.
std::optional<TextosSeguidos> fila_tal_cual(const Tablero& t, int fila, const Bloque& b, FormaCelda forma) {
    if (fila >= t.Rows() || b.col2 >= t.Cols()) return TextosSeguidos{};
    if (forma != FormaCelda::Sola || b.col1 == 0) return std::nullopt;
    const std::optional<FilaSeguida> seguida = t.almacen().fila_seguida(fila);
    if (!seguida) return std::nullopt;
    return seguida->textos.tramo(
        static_cast<std::size_t>(b.col1), static_cast<std::size_t>(b.col2 - b.col1) + 1);
}

Bytes bloque_en_texto(const Tablero& t, const Bloque& b, FormaCelda forma, bool coma, Avance avance) {
    if (b.col1 > b.col2) return {};
    std::vector<std::string_view> celdas(static_cast<std::size_t>(b.col2 - b.col1) + 1);
    TextoBloque texto(forma, coma);
    for (int fila = b.fila1; fila <= b.fila2; ++fila) {
        if (const auto textos = fila_tal_cual(t, fila, b, forma)) {
            texto.pon_linea(*textos, celdas.size());
        } else {
            t.almacen().lee_fila(fila, b.col1, celdas);
            texto.pon_linea(celdas);
        }
        avance.hasta(fila - b.fila1 + 1);
    }
    return std::move(texto).acaba();
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
    const Bytes texto = texto_de_bloque(e.tablero, bloque, forma, e.ComaDecimal, avance);
    e.plataforma.portapapeles.escribe(texto.vista());
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

Bytes texto_de_bloque(
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
