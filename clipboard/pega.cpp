// SPDX-License-Identifier: MIT
// A block of text into the cells: clipboard/pega.h.
#include "clipboard/pega.h"

#include "base/aritmetica.h"
#include "base/lineas.h"
#include "base/numeros.h"
#include "clipboard/textos.h"
#include "core/avance.h"
#include "core/con_memoria.h"
#include "core/formatos.h"
#include "core/numeracion.h"
#include "core/reloj_de_arena.h"
#include "core/sin_errores.h"
#include "core/sin_redibujar.h"
#include "core/superficie.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using Campos = std::vector<std::string_view>;

/// Takes a block apart line by line. The block must outlive the fields; its commas may become points.
class LectorBloque {
public:
    LectorBloque(std::string& texto, bool comas_a_puntos, std::size_t caben)
        : texto_(texto), comas_a_puntos_(comas_a_puntos), caben_(caben) {}

    /// Has another line begun?
    [[nodiscard]] bool quedan() const { return desde_ < texto_.size(); }

    /// The fields of the next line that have a column.
    const Campos& linea() {
        campos_.clear();
        std::size_t fin = busca_separador(texto_, desde_);
        for (; fin < texto_.size() && texto_[fin] == '\t'; fin = busca_separador(texto_, desde_)) {
            toma_campo(fin);
            desde_ = fin + 1;
        }
        toma_campo(fin);
        const bool doble = fin + 1 < texto_.size() && texto_[fin] == '\r' && texto_[fin + 1] == '\n';
        desde_ = std::min(fin + (doble ? 2 : 1), texto_.size());
        return campos_;
    }

private:
    void toma_campo(std::size_t fin) {
        if (campos_.size() == caben_) return;
        char* const campo = texto_.data() + desde_;
        const std::size_t n = fin - desde_;
        if (comas_a_puntos_)
            if (void* coma = std::memchr(campo, ',', n)) *static_cast<char*>(coma) = '.';
        campos_.emplace_back(campo, n);
    }

    std::string& texto_;
    bool comas_a_puntos_;
    std::size_t caben_;
    std::size_t desde_ = 0;
    Campos campos_;
};

/// A clipboard that cannot be read holds no text.
std::string lee_portapapeles(EstadoTabla& e) {
    std::string texto;
    sin_errores([&] { texto = con_memoria([&] { return e.plataforma.portapapeles.lee(); }); });
    return texto;
}

/// False when the user does not want to lose fields.
bool caben_o_da_igual(EstadoTabla& e, std::int64_t campos, int columnas) {
    if (columnas >= campos) return true;
    std::string pregunta(textos::antes_de_campos);
    pregunta += Str(campos);
    pregunta += textos::antes_de_columnas;
    pregunta += Str(columnas);
    pregunta += textos::antes_de_perdidas;
    pregunta += Str(campos - columnas);
    pregunta += textos::quieres_seguir;
    return e.plataforma.mensajes.mensaje(
               pregunta, EstiloMensaje::CriticoSiNo, textos::titulo_faltan_columnas) == Respuesta::Si;
}

void asegura_filas(Tablero& t, int fila, std::int64_t lineas) {
    if (t.Rows() - fila >= lineas) return;
    sin_errores([&] {
        t.Rows(entero32(fila + lineas));
        Numera_Filas(t);
    });
}

void escribe_lineas(Tablero& t, int fila, int col, LectorBloque& bloque, Avance avance) {
    for (int hechas = 0; bloque.quedan() && fila < t.Rows(); ++fila) {
        sin_errores([&] { t.pon_fila(fila, col, bloque.linea()); });
        avance.hasta(++hechas);
    }
}

/// Labels and view as after any change of the rows; the formats show the pasted numbers in their form.
void refresca(EstadoTabla& e) {
    lleva_celda_a_datos(e.tablero);
    termina_mensaje(e);
    escribe_labNumeroFilas(e);
    sin_errores([&] { Tablero_establece_Formato(e); });
}

} // namespace

MedidasBloque mide_bloque(std::string_view texto) {
    MedidasBloque m;
    std::int64_t cuenta = 0;
    recorre_separadores(texto, [&](char c) {
        ++cuenta;
        if (c == '\t') return;
        m.maximo = std::max(m.maximo, cuenta);
        if (c == '\r') return;
        ++m.lineas;
        cuenta = 0;
    });
    return m;
}

void Pegar_Portapapeles(EstadoTabla& e, bool /*CambiarComa*/) {
    Tablero& t = e.tablero;
    termina_mensaje(e);
    std::string texto = lee_portapapeles(e);
    if (texto.empty()) {
        e.plataforma.mensajes.mensaje(textos::sin_texto, EstiloMensaje::Critico, {});
        return;
    }
    e.revoca.Graba_Revoca();
    const RelojDeArena reloj(e);
    const int col = t.Col();
    const int fila = std::max(1, t.Row());
    const int columnas = t.Cols() - col;
    const MedidasBloque m = mide_bloque(texto);
    if (!caben_o_da_igual(e, m.maximo - 1, columnas)) return;

    e.Modificado = 1;
    const SinRedibujar quieto(t);
    asegura_filas(t, fila, m.lineas);
    refresca_ComaDecimal(e);
    LectorBloque bloque(texto, !e.ComaDecimal, static_cast<std::size_t>(std::max(columnas, 0)));
    escribe_lineas(t, fila, col, bloque, {e.plataforma.mensajes, textos::pegando, m.lineas});
    refresca(e);
}

void habilita_pegar(EstadoTabla& e) {
    const bool hay = !lee_portapapeles(e).empty();
    for (const Opcion opcion : {Opcion::mn_Pegar, Opcion::mn_pegar_cXp, Opcion::mn_pegar_al_final})
        e.menus[opcion].activa = hay;
    e.plataforma.marco.menus_cambiados();
}

void mn_pegar_al_final(EstadoTabla& e, const std::function<void()>& anade_filas) {
    anade_filas();
    e.tablero.Col(0);
    e.tablero.Row(e.tablero.Rows() - 1);
    Pegar_Portapapeles(e, false);
    lleva_celda_a_datos(e.tablero); // also where nothing was pasted
}

} // namespace Qlt4_Tabla
