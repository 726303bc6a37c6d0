// SPDX-License-Identifier: MIT
// Start-up and the design-time properties. The key "Widht" is spelt so in the files that hosts have saved.
#include "core/ciclo_vida.h"

#include "base/error.h"
#include "core/formatos.h"
#include "core/numeracion.h"
#include "core/textos.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

namespace Qlt4_Tabla {

namespace {

constexpr int COLUMNAS_INICIALES = 5;
constexpr int FILAS_INICIALES = 4;

constexpr std::int32_t COLUMNAS_LEIDAS = 2;
constexpr std::int32_t FILAS_LEIDAS = 2;
constexpr float ANCHO_LEIDO = 4000;
constexpr float ALTO_LEIDO = 2000;

std::string extension_o_inicial(const NombresTabla& nombres) {
    std::string extension = nombres.extension();
    return extension.empty() ? std::string(textos::extension_inicial) : extension;
}

/// Sets both counts; one below 1 stays. Error 7 for more cells than a grid may have, before any change.
void pon_cuentas(Tablero& t, std::int64_t columnas, std::int64_t filas) {
    if (columnas < 1) columnas = t.Cols();
    if (filas < 1) filas = t.Rows();
    if (columnas * filas > MAX_CELDAS) lanza(NumError::SinMemoria);
    // What shrinks goes first, so that no step is larger than the result.
    if (filas < t.Rows()) t.Rows(static_cast<int>(filas));
    t.Cols(static_cast<int>(columnas));
    t.Rows(static_cast<int>(filas));
}

} // namespace

void arranca(EstadoTabla& e) {
    refresca_ComaDecimal(e);
    e.nombres = NombresTabla();
    e.nombres.Tablero_Pon_Nombre(3, true, extension_o_inicial(e.nombres));
    if (e.tablero.Cols() == 0) e.tablero.Cols(COLUMNAS_INICIALES);
    if (e.tablero.Rows() == 0) e.tablero.Rows(FILAS_INICIALES);
    e.plataforma.marco.menus_cambiados();
    escribe_labNumeroFilas(e);
    const int fila = std::min(1, e.tablero.Rows() - 1);
    const int col = std::min(1, e.tablero.Cols() - 1);
    e.tablero.selecciona(fila, col, fila, col);
    Numera_Filas(e.tablero);
    Tablero_establece_Formato(e);
}

void escribe_propiedades(const EstadoTabla& e, BolsaPropiedades& bolsa) {
    const std::string titulo = e.nombres.titulo();
    bolsa.escribe(titulo + "Cols", std::int32_t{e.tablero.Cols()});
    bolsa.escribe(titulo + "Rows", std::int32_t{e.tablero.Rows()});
    bolsa.escribe(titulo + "Widht", e.plataforma.marco.ancho());
    bolsa.escribe(titulo + "Height", e.plataforma.marco.alto());
    bolsa.escribe(titulo + "A_FormatString", e.tablero.FormatString());
    bolsa.escribe(titulo + "A_ExtensionFche", extension_o_inicial(e.nombres));
}

void lee_propiedades(EstadoTabla& e, const BolsaPropiedades& bolsa) {
    const std::string titulo = e.nombres.titulo();
    const std::int32_t columnas = bolsa.lee(titulo + "Cols", COLUMNAS_LEIDAS).a_entero32();
    const std::int32_t filas = bolsa.lee(titulo + "Rows", FILAS_LEIDAS).a_entero32();
    const float ancho = bolsa.lee(titulo + "Widht", ANCHO_LEIDO).a_simple();
    const float alto = bolsa.lee(titulo + "Height", ALTO_LEIDO).a_simple();
    if (!std::isfinite(ancho) || !std::isfinite(alto)) lanza(NumError::Desbordamiento);
    const std::string cadena = bolsa.lee(titulo + "A_FormatString", "").a_texto();

    pon_cuentas(e.tablero, columnas, filas);
    Numera_Filas(e.tablero); // before the string, which may bring texts of column 0
    e.plataforma.marco.pon_tamano(ancho, alto);
    if (!cadena.empty()) e.tablero.FormatString(cadena);
}

} // namespace Qlt4_Tabla
