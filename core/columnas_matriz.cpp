// SPDX-License-Identifier: MIT
// Exchange of columns with arrays: one pass over the column each way.
#include "core/columnas_matriz.h"

#include "base/error.h"
#include "base/numeros.h"
#include "core/reglas_valor.h"
#include "core/textos.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace Qlt4_Tabla {

namespace {

bool casan(EstadoTabla& e, std::int32_t columna, ClaseMatriz clase, std::string_view que) {
    const bool numeros = clase == ClaseMatriz::Numeros;
    if (es_numerico(formato(e, columna).Formato) == numeros) return true;
    std::string texto(que);
    texto += numeros ? textos::ha_de_ser_numerica : textos::ha_de_ser_alfanumerica;
    e.plataforma.mensajes.mensaje(texto, EstiloMensaje::Critico, {});
    return false;
}

void exige_en_tablero(const Tablero& t, std::int32_t columna) {
    if (columna < 0 || columna >= t.Cols()) lanza(NumError::Subindice);
}

// The elements that have a row.
template <class T>
std::span<const T> con_fila(const Tablero& t, std::span<const T> valores) {
    const auto filas = static_cast<std::size_t>(std::max(t.Rows() - 1, 0));
    return valores.first(std::min(valores.size(), filas));
}

// The text of row `fila` becomes what `pon(element, new text)` makes of its element.
template <class T, class Pon>
void escribe(Tablero& t, std::int32_t columna, std::span<const T> valores, const Pon& pon) {
    t.transforma_columna(columna, 1, static_cast<int>(valores.size()),
        [&](int fila, std::string_view texto, std::string& nuevo) {
            pon(valores[static_cast<std::size_t>(fila - 1)], nuevo);
            return nuevo != texto;
        });
}

template <class T, class Toma>
void lee(const Tablero& t, std::int32_t columna, std::span<T> valores, const Toma& toma) {
    exige_en_tablero(t, columna);
    int fila = 0;
    for (T& valor : valores) valor = toma(t.TextMatrix(++fila, columna));
}

} // namespace

bool se_puede_obtener(EstadoTabla& e, std::int32_t columna, ClaseMatriz clase) {
    return casan(e, columna, clase, textos::obtener_matriz);
}

bool se_puede_asignar(EstadoTabla& e, std::int32_t columna, ClaseMatriz clase) {
    return casan(e, columna, clase, textos::asignar_matriz);
}

void obtiene_columna(const EstadoTabla& e, std::int32_t columna, std::span<double> valores) {
    lee(e.tablero, columna, valores, [](std::string_view texto) { return Valor_Numerico(texto); });
}

void obtiene_columna(const EstadoTabla& e, std::int32_t columna, std::span<std::string> valores) {
    lee(e.tablero, columna, valores, [](std::string_view texto) { return std::string(texto); });
}

void asigna_columna(EstadoTabla& e, std::int32_t columna, std::span<const double> valores) {
    exige_en_tablero(e.tablero, columna);
    valores = con_fila(e.tablero, valores);
    if (!std::all_of(valores.begin(), valores.end(), [](double x) { return std::isfinite(x); }))
        lanza(NumError::Desbordamiento);
    if (valores.empty()) return;
    refresca_ComaDecimal(e);
    const T_FormatoColumna& f = formato(e, columna);
    const int decimales = es_real(f.Formato) ? f.Decimales : 0;
    escribe(e.tablero, columna, valores, [&](double x, std::string& nuevo) {
        if (decimales > 0)
            Formato_Numero(x, 0, decimales, nuevo);
        else
            nuevo = Str(x);
    });
}

void asigna_columna(EstadoTabla& e, std::int32_t columna, std::span<const std::string> valores) {
    exige_en_tablero(e.tablero, columna);
    escribe(e.tablero, columna, con_fila(e.tablero, valores),
        [](const std::string& valor, std::string& nuevo) { nuevo = valor; });
}

} // namespace Qlt4_Tabla
