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
#include <span>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

namespace {

using Campos = std::span<const std::string_view>;

/// Takes a block apart line by line. The block must outlive the fields; its commas may become points.
class LectorBloque {
public:
    LectorBloque(std::string& texto, bool comas_a_puntos, std::size_t caben)
        : texto_(texto),
          caben_(caben),
          campos_(caben),
          separadores_(texto),
          coma_(comas_a_puntos ? busca_coma(0) : texto.size()) {}

    /// Has another line begun?
    [[nodiscard]] bool quedan() const { return desde_ < texto_.size(); }

    /// The fields of the next line that have a column.
    Campos linea() {
        const char* const texto = texto_.c_str(); // behind its end stands a 0
        std::size_t n = 0;
        std::size_t fin = 0;
        do {
            fin = separadores_.siguiente();
            if (coma_ < fin) cambia_coma(fin);
            if (n < caben_) campos_[n++] = {texto + desde_, fin - desde_};
            desde_ = fin + 1;
        } while (texto[fin] == '\t');
        if (texto[fin] == '\r' && texto[desde_] == '\n') desde_ = separadores_.siguiente() + 1;
        return std::span(campos_).first(n);
    }

    /// The first line is the next one again; commas that became points stay so.
    void vuelve_a_empezar() {
        separadores_ = Separadores(texto_);
        desde_ = 0;
    }

private:
    /// The next one stands in the field that ends at `fin`.
    void cambia_coma(std::size_t fin) {
        texto_[coma_] = '.';
        coma_ = busca_coma(fin);
    }

    [[nodiscard]] std::size_t busca_coma(std::size_t desde) const {
        return std::min(texto_.find(',', desde), texto_.size());
    }

    std::string& texto_;
    std::size_t caben_;
    std::vector<std::string_view> campos_;
    Separadores separadores_;
    std::size_t desde_ = 0;
    std::size_t coma_; ///< the first comma of a field that was not read yet
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

/// All lines that end, in one pass; what is left of the block row by row: an open line, the lines of lone CRs, or
/// everything, where column 0 is written too or an error came up, so that each row has its chance.
void escribe_lineas(Tablero& t, int fila, int col, std::int64_t lineas, LectorBloque& bloque, Avance avance) {
    const int primera = fila;
    const auto siguiente = [&](int) {
        avance.hasta(++fila - primera);
        return bloque.linea();
    };
    bool juntas = false;
    sin_errores([&] {
        const int ultima = static_cast<int>(std::min<std::int64_t>(fila + lineas, t.Rows())) - 1;
        if (col > 0) t.pon_filas({fila, col, ultima, t.Cols() - 1}, siguiente);
        juntas = true;
    });
    if (!juntas) {
        fila = primera;
        bloque.vuelve_a_empezar();
    }
    for (int esta = fila; bloque.quedan() && esta < t.Rows(); esta = fila)
        sin_errores([&] { t.pon_fila(esta, col, siguiente(esta)); });
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
    Separadores separadores(texto);
    for (std::size_t i = separadores.siguiente(); i < texto.size(); i = separadores.siguiente()) {
        ++cuenta;
        if (texto[i] == '\t') continue;
        m.maximo = std::max(m.maximo, cuenta);
        if (texto[i] == '\r') continue;
        ++m.lineas;
        cuenta = 0;
    }
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
    escribe_lineas(t, fila, col, m.lineas, bloque, {e.plataforma.mensajes, textos::pegando, m.lineas});
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
