// SPDX-License-Identifier: MIT
// The members that size the table and read or write whole cells. See core/tablero.h for the grid itself.
#include "core/superficie.h"

#include "base/aritmetica.h"
#include "base/error.h"
#include "base/numeros.h"
#include "base/utf8.h"
#include "core/numeracion.h"
#include "core/reglas_valor.h"
#include "core/textos.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Qlt4_Tabla {

namespace {

// What a column gets where it is added without a name and a field is 0.
constexpr std::int16_t DECIMALES_NUEVA = 3;
constexpr std::int16_t FORMATO_NUEVA = static_cast<std::int16_t>(T_formato::Alfanm);
constexpr std::int16_t LONGITUD_NUEVA = 10;

bool en_tablero(const Tablero& t, std::int32_t fila, std::int32_t col) {
    return fila >= 0 && fila < t.Rows() && col >= 0 && col < t.Cols();
}

/// A size in single precision; what is no finite number is out of its range.
float medida(const Variante& valor) {
    const float x = valor.a_simple();
    if (!std::isfinite(x)) lanza(NumError::Desbordamiento);
    return x;
}

void pon_real(EstadoTabla& e, int fila, int col, std::string_view valor, int decimales) {
    refresca_ComaDecimal(e);
    if (tiene_forma_de_numero(valor, decimales)) return e.tablero.TextMatrix(fila, col, valor);
    e.tablero.TextMatrix(fila, col, Formato_Numero(valor, 0, decimales));
}

void pon_si_cero(std::int16_t& campo, std::int16_t valor) {
    if (campo == 0) campo = valor;
}

} // namespace

void Width(EstadoTabla& e, const Variante& valor) {
    e.plataforma.marco.pon_tamano(medida(valor), e.plataforma.marco.alto());
}

Variante Width(const EstadoTabla& e) { return e.plataforma.marco.ancho(); }

void Height(EstadoTabla& e, const Variante& valor) {
    e.plataforma.marco.pon_tamano(e.plataforma.marco.ancho(), medida(valor));
}

Variante Height(const EstadoTabla& e) { return e.plataforma.marco.alto(); }

void TextMatrix(EstadoTabla& e, std::int32_t fila, std::int32_t colm, std::string_view valor) {
    if (!en_tablero(e.tablero, fila, colm)) return;
    const T_FormatoColumna* f = fila == 0 ? nullptr : &formato(e, colm);
    if (!std::exchange(e.primeraEscritura, true)) e.revoca.Graba_Revoca();
    if (f != nullptr && es_real(f->Formato)) return pon_real(e, fila, colm, valor, f->Decimales);
    e.tablero.TextMatrix(fila, colm, valor);
}

std::string TextMatrix(const EstadoTabla& e, std::int32_t fila, std::int32_t colm) {
    if (!en_tablero(e.tablero, fila, colm)) return {};
    const bool numero = fila != 0 && es_numerico(formato(e, colm).Formato);
    const std::string_view texto = e.tablero.TextMatrix(fila, colm);
    if (!numero) return std::string(texto);
    return texto.empty() ? "0" : Punto_a_Coma(texto);
}

void Rows(EstadoTabla& e, std::int32_t n) {
    if (n < 1) return;
    const bool crece = n > e.tablero.Rows();
    e.tablero.Rows(n);
    if (crece) Numera_Filas(e.tablero);
    lleva_celda_a_datos(e.tablero);
    escribe_labNumeroFilas(e);
    e.plataforma.marco.propiedad_cambiada("Rows");
}

void lleva_celda_a_datos(Tablero& t) {
    if (t.Row() == 0 && t.Rows() > 1) t.Row(1);
    if (t.Col() == 0 && t.Cols() > 1) t.Col(1);
}

void Cols(EstadoTabla& e, std::int32_t n) {
    if (n > 0) {
        const int antes = e.tablero.Cols();
        e.tablero.Cols(n);
        if (n < MAX_COLUMNAS)
            for (int col = antes; col < n; ++col) da_formato_inicial(e, col);
    }
    e.plataforma.marco.propiedad_cambiada("Cols");
}

void da_formato_inicial(EstadoTabla& e, int col) {
    T_FormatoColumna& f = formato(e, col);
    if (!f.Nombre.empty()) return;
    f.Nombre = std::string(textos::columna_sin_nombre) + numero_a_texto(col);
    pon_si_cero(f.Decimales, DECIMALES_NUEVA);
    pon_si_cero(f.Formato, FORMATO_NUEVA);
    pon_si_cero(f.Longitud, LONGITUD_NUEVA);
}

void Clear(EstadoTabla& e) {
    e.tablero.Rows(1);
    recuenta_filas(e);
}

void MergeCells(EstadoTabla& e, std::int16_t modo) {
    if (modo >= 0 && modo <= 3) e.tablero.MergeCells(modo);
}

std::int32_t A_fila_Activa(const EstadoTabla& e) { return entero16(e.tablero.Row()); }

void A_RowTop(EstadoTabla& e, std::int32_t fila) {
    e.tablero.TopRow(std::max(1, std::min(fila, e.tablero.Rows() - 1)));
}

void A_Pon_Alto(EstadoTabla& e, std::int16_t Fil, std::int16_t Alto) {
    if (!en_tablero(e.tablero, Fil, 0)) return;
    e.tablero.Row(Fil);
    if (Alto >= 0) e.tablero.RowHeight(Fil, Alto);
}

void A_Pon_Imagen(EstadoTabla& e, std::int16_t Fil, std::int16_t Col, std::shared_ptr<const Imagen> Imag) {
    if (en_tablero(e.tablero, Fil, Col)) e.tablero.CellPicture(Fil, Col, std::move(Imag));
}

void A_ExtensionFche(EstadoTabla& e, std::string_view valor) {
    if (utf8::longitud(valor) != 5 || !valor.starts_with("*.")) return;
    e.nombres.Tablero_Pon_Nombre(3, true, valor);
    e.plataforma.marco.propiedad_cambiada("A_ExtensionFche");
}

void Ficheros_en_menu(EstadoTabla& e, bool Nvalor) {
    for (const Opcion o : {Opcion::Mnu_Tabla_Guardar_como, Opcion::Mnu_Tabla_Leer, Opcion::mn_dd})
        e.menus[o].visible = Nvalor;
    e.plataforma.marco.menus_cambiados();
}

} // namespace Qlt4_Tabla
