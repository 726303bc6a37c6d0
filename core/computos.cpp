// SPDX-License-Identifier: MIT
// Column computations: one pass over the result column, the others read beside it.
#include "core/computos.h"

#include "base/decimal.h"
#include "base/error.h"
#include "base/numeros.h"
#include "core/avance.h"
#include "core/formatos.h"
#include "core/redibujo_suspendido.h"
#include "core/reglas_valor.h"
#include "core/reloj_de_arena.h"
#include "core/textos.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

namespace {

constexpr int DECIMALES_RESULTADO = 9;

void avisa_si_no_es_sumable(EstadoTabla& e, std::int32_t col, std::string_view aviso) {
    if (formato(e, col).Formato <= static_cast<std::int16_t>(T_formato::Alfanm)) return;
    std::string texto(aviso);
    texto += Str(col);
    texto += textos::flecha;
    texto += e.nombres.subtitulo();
    e.plataforma.mensajes.mensaje(texto, EstiloMensaje::Critico, {});
}

void exige_en_tablero(const Tablero& t, std::initializer_list<std::int32_t> columnas) {
    for (const std::int32_t col : columnas)
        if (col < 0 || col >= t.Cols()) lanza(NumError::Subindice);
}

// Writes the results into the data rows and applies the column's format. Results that come from other columns are
// written in their last form at once.
void escribe_columna(EstadoTabla& e, int col, bool de_otras, const ComputoColumna& computo) {
    const int ultima = e.tablero.Rows() - 1;
    const RelojDeArena reloj(e, Avance::hace_esperar(ultima));
    if (ultima >= 1) refresca_ComaDecimal(e);
    if (de_otras && computa_con_formato(e, col, computo)) return mantiene_oculta(e, col);
    e.tablero.transforma_columna(col, 1, ultima, computo.texto);
    da_formato_a_columna(e, col);
}

enum class Operacion { Suma, Resta };

// The result where plain digits suffice for it.
std::optional<Decimal> opera_decimales(std::string_view a, Operacion operacion, std::string_view b) {
    const std::optional<Decimal> x = decimal_de_texto(a);
    std::optional<Decimal> y = decimal_de_texto(b);
    if (!x || !y) return std::nullopt;
    if (operacion == Operacion::Resta) y->negativo = !y->negativo && y->cifras != 0;
    return suma_exacta(*x, *y);
}

// The result of two texts; is it below 0? The short way over their digits gives the same as their numbers do.
bool opera(std::string_view a, Operacion operacion, std::string_view b, std::string& nuevo) {
    static_assert(DECIMALES_RESULTADO == 9, "what suma_exacta is sure of");
    if (const std::optional<Decimal> resultado = opera_decimales(a, operacion, b)) {
        char cifras[capacidad_fijo];
        nuevo.assign(cifras, escribe_fijo(*resultado, DECIMALES_RESULTADO, cifras));
        return resultado->negativo;
    }
    const double x = Valor_Numerico(a);
    const double y = Valor_Numerico(b);
    const double resultado = operacion == Operacion::Suma ? x + y : x - y;
    Formato_Numero(resultado, 0, DECIMALES_RESULTADO, nuevo);
    return resultado < 0;
}

void opera_columnas(
    EstadoTabla& e, std::int32_t colA, Operacion operacion, std::int32_t colB, std::int32_t colResul) {
    const Tablero& t = e.tablero;
    exige_en_tablero(t, {colA, colB, colResul});
    const RedibujoSuspendido suspendido(e.tablero);
    const auto texto = [&](int fila, std::string_view viejo, std::string& nuevo) {
        opera(t.TextMatrix(fila, colA), operacion, t.TextMatrix(fila, colB), nuevo);
        return nuevo != viejo;
    };
    const auto numero = [&](int fila) {
        return opera_decimales(t.TextMatrix(fila, colA), operacion, t.TextMatrix(fila, colB));
    };
    escribe_columna(e, colResul, colResul != colA && colResul != colB, {texto, numero});
}

// Writes the differences; the rows of the negative ones into `negativas`.
void escribe_diferencias(EstadoTabla& e, int columna, int colResul, std::vector<int>& negativas) {
    const bool en_si_misma = columna == colResul;
    std::string anterior;
    const auto texto = [&](int fila, std::string_view viejo, std::string& nuevo) {
        const std::string_view actual = en_si_misma ? viejo : e.tablero.TextMatrix(fila, columna);
        if (fila == 1)
            negativas.clear(); // it may be done twice
        else if (opera(actual, Operacion::Resta, anterior, nuevo))
            negativas.push_back(fila);
        anterior = en_si_misma ? nuevo : actual;
        return nuevo != viejo;
    };
    const auto numero = [&](int fila) {
        const std::string_view actual = e.tablero.TextMatrix(fila, columna);
        const auto n = fila == 1 ? std::nullopt : opera_decimales(actual, Operacion::Resta, anterior);
        if (n) anterior = actual;
        if (n && n->negativo) negativas.push_back(fila);
        return n;
    };
    escribe_columna(e, colResul, !en_si_misma, {texto, numero});
}

} // namespace

void avisa_no_sumables(EstadoTabla& e, std::int32_t colA, std::int32_t colB, std::int32_t colResul) {
    for (const std::int32_t col : {colA, colB, colResul}) avisa_si_no_es_sumable(e, col, textos::no_sumable);
}

void avisa_no_numericas(EstadoTabla& e, std::int32_t columna, std::int32_t colResul) {
    avisa_si_no_es_sumable(e, columna, textos::no_numerica);
    avisa_si_no_es_sumable(e, colResul, textos::no_numerica_resultado);
}

void suma_columnas(EstadoTabla& e, std::int32_t colA, std::int32_t colB, std::int32_t colResul) {
    opera_columnas(e, colA, Operacion::Suma, colB, colResul);
}

void resta_columnas(EstadoTabla& e, std::int32_t colA, std::int32_t colB, std::int32_t colResul) {
    opera_columnas(e, colA, Operacion::Resta, colB, colResul);
}

void diferencia_parcial(
    EstadoTabla& e, std::int32_t columna, std::int32_t colResul, const AlNegativo& al_negativo) {
    exige_en_tablero(e.tablero, {columna, colResul});
    const RedibujoSuspendido suspendido(e.tablero);
    std::vector<int> negativas;
    const auto avisa = [&] {
        if (!al_negativo) return;
        for (const int fila : negativas) al_negativo(e, fila, colResul);
    };
    try {
        escribe_diferencias(e, columna, colResul, negativas);
    } catch (...) {
        avisa();
        throw;
    }
    avisa();
}

} // namespace Qlt4_Tabla
