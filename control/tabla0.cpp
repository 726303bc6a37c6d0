// SPDX-License-Identifier: MIT
// Tabla0's members: each one guarded line that calls its rule. What stands in the class is only what
// joins the parts.
#include "control/tabla0.h"

#include "colours/celdas.h"
#include "colours/selector_color.h"
#include "control/ficheros.h"
#include "control/guarda.h"
#include "control/miembros.h"
#include "control/portapapeles.h"
#include "control/textos.h"
#include "core/ajustes_formatos.h"
#include "core/ciclo_vida.h"
#include "core/columnas_matriz.h"
#include "core/computos.h"
#include "core/formatos.h"
#include "core/superficie.h"
#include "editing/filas.h"

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

namespace {

// Runs a member's rule inside the boundary; `m` tells its name and what it lets through.
template <class F>
auto protege(EstadoTabla& e, const Miembro& m, F&& orden) {
    return guarda_miembro(e.plataforma.mensajes, m.nombre, m.errores, std::forward<F>(orden));
}

// The part of a member where columns that have a format may lie beyond the grid: that is shown, although
// the member raises the same error for columns without one.
template <class F>
void en_tablero(EstadoTabla& e, const Miembro& m, F&& orden) {
    guarda_miembro(e.plataforma.mensajes, m.nombre, {6}, std::forward<F>(orden));
}

void pinta_de_rojo(EstadoTabla& e, int fila, int col) { ColMatrix(e, fila, col, T_colores::Rojo); }

template <class T>
void dimensiona(Matriz<T>& matriz, int filas) {
    matriz.redimensiona(1, filas);
}

void dimensiona(std::vector<double>& valores, int filas) {
    valores.assign(static_cast<std::size_t>(filas), 0.0);
}

template <class Valores>
void obten(EstadoTabla& e, const Miembro& m, std::int32_t columna, ClaseMatriz clase, Valores& valores) {
    protege(e, m, [&] {
        const bool puede = se_puede_obtener(e, columna, clase);
        dimensiona(valores, std::max(e.tablero.Rows() - 1, 0));
        if (puede) en_tablero(e, m, [&] { obtiene_columna(e, columna, std::span(valores)); });
    });
}

// `elementos()` gives the elements from row 1 on; its error is the caller's.
template <class Elementos>
void asigna(
    EstadoTabla& e, const Miembro& m, std::int32_t columna, ClaseMatriz clase, const Elementos& elementos) {
    protege(e, m, [&] {
        if (!se_puede_asignar(e, columna, clase)) return;
        const auto valores = elementos();
        en_tablero(e, m, [&] { asigna_columna(e, columna, valores); });
    });
}

} // namespace

Tabla0::Tabla0(const Plataforma& plataforma, __Tabla0& eventos)
    : e_(plataforma, eventos),
      navegacion_(e_),
      editor_(e_, [this] { navegacion_.Avanza_Cursor(); }),
      mandos_(e_, editor_, navegacion_) {
    arranca(e_);
}

void Tabla0::A_Pon_Alto(std::int16_t Fil, std::int16_t Alto) {
    protege(e_, miembro("A_Pon_Alto"), [&] { Qlt4_Tabla::A_Pon_Alto(e_, Fil, Alto); });
}

void Tabla0::A_Pon_Imagen(std::int16_t Fil, std::int16_t Col, const std::shared_ptr<const Imagen>& Imag) {
    protege(e_, miembro("A_Pon_Imagen"), [&] { Qlt4_Tabla::A_Pon_Imagen(e_, Fil, Col, Imag); });
}

std::int32_t Tabla0::A_fila_Activa() {
    return protege(e_, miembro("A_fila_Activa"), [&] { return Qlt4_Tabla::A_fila_Activa(e_); });
}

void Tabla0::A_Edicion_pon_Color() {
    protege(e_, miembro("A_Edicion_pon_Color"), [&] { e_.edicionColor = true; });
}

void Tabla0::A_Edicion_mn_Ratón_Off() {
    protege(e_, miembro("A_Edicion_mn_Ratón_Off"), [&] { e_.ratonOff = true; });
}

void Tabla0::A_Edicion_Columnas_Off() {
    protege(e_, miembro("A_Edicion_Columnas_Off"), [&] {
        e_.edicionColumnasOff = true;
        e_.plataforma.marco.menus_cambiados();
    });
}

void Tabla0::A_Especial_puntos_ON() {
    protege(e_, miembro("A_Especial_puntos_ON"), [&] {
        e_.especialPuntos = true;
        e_.plataforma.marco.menus_cambiados();
    });
}

void Tabla0::m_Sumar_dos_ColumnasAyB(std::int32_t colA, std::int32_t colB, std::int32_t colResul) {
    constexpr const Miembro& m = miembro("m_Sumar_dos_ColumnasAyB");
    protege(e_, m, [&] {
        avisa_no_sumables(e_, colA, colB, colResul);
        en_tablero(e_, m, [&] { suma_columnas(e_, colA, colB, colResul); });
    });
}

void Tabla0::m_Restar_dos_ColumnasA_B(std::int32_t colA, std::int32_t colB, std::int32_t colResul) {
    constexpr const Miembro& m = miembro("m_Restar_dos_ColumnasA_B");
    protege(e_, m, [&] {
        avisa_no_sumables(e_, colA, colB, colResul);
        en_tablero(e_, m, [&] { resta_columnas(e_, colA, colB, colResul); });
    });
}

void Tabla0::m_Diferencia_Parcial_1Columna(
    std::int32_t columna, std::int32_t colResul, bool ValNegativoColorRojo) {
    constexpr const Miembro& m = miembro("m_Diferencia_Parcial_1Columna");
    protege(e_, m, [&] {
        avisa_no_numericas(e_, columna, colResul);
        const AlNegativo al_negativo = ValNegativoColorRojo ? AlNegativo(pinta_de_rojo) : AlNegativo();
        en_tablero(e_, m, [&] { diferencia_parcial(e_, columna, colResul, al_negativo); });
    });
}

void Tabla0::Color_Columna(std::int32_t columna, T_colores Color) {
    protege(e_, miembro("Color_Columna"), [&] { Qlt4_Tabla::Color_Columna(e_, columna, Color); });
}

void Tabla0::crea_una_fila() {
    protege(e_, miembro("crea_una_fila"), [&] { Qlt4_Tabla::crea_una_fila(e_); });
}

void Tabla0::Copiar_Todo() { copia_en_hoja(e_); }

void Tabla0::Copiar_todo_Excel() { copia_en_hoja(e_); }

void Tabla0::Tablero_Lee_Formato_Win(const std::string& t_apli, const std::string& t_cap) {
    protege(e_, miembro("Tablero_Lee_Formato_Win"),
        [&] { Qlt4_Tabla::Tablero_Lee_Formato_Win(e_, t_apli, t_cap); });
}

void Tabla0::Tablero_Graba_Formato_Win(const std::string& t_apli, const std::string& t_cap) {
    protege(e_, miembro("Tablero_Graba_Formato_Win"),
        [&] { Qlt4_Tabla::Tablero_Graba_Formato_Win(e_, t_apli, t_cap); });
}

void Tabla0::Tablero_establece_Formato() {
    protege(e_, miembro("Tablero_establece_Formato"), [&] { Qlt4_Tabla::Tablero_establece_Formato(e_); });
}

// An edit begun on the old table must not end in the new one.
void Tabla0::Tablero_Leer(const std::string& nombreFichero) {
    lee_fichero(e_, nombreFichero, [this] { editor_.descarta(); });
}

void Tabla0::Tablero_Grabar(const std::string& nombreFichero) { graba_fichero(e_, nombreFichero); }

void Tabla0::Width(const Variante& valor) {
    protege(e_, miembro("Width"), [&] { Qlt4_Tabla::Width(e_, valor); });
}

Variante Tabla0::Width() {
    return protege(e_, miembro("Width"), [&] { return Qlt4_Tabla::Width(e_); });
}

void Tabla0::Height(const Variante& valor) {
    protege(e_, miembro("Height"), [&] { Qlt4_Tabla::Height(e_, valor); });
}

Variante Tabla0::Height() {
    return protege(e_, miembro("Height"), [&] { return Qlt4_Tabla::Height(e_); });
}

void Tabla0::TextMatrix(std::int32_t fila, std::int32_t colm, const std::string& valor) {
    protege(e_, miembro("TextMatrix"), [&] { Qlt4_Tabla::TextMatrix(e_, fila, colm, valor); });
}

std::string Tabla0::TextMatrix(std::int32_t fila, std::int32_t colm) {
    return protege(e_, miembro("TextMatrix"), [&] { return Qlt4_Tabla::TextMatrix(e_, fila, colm); });
}

void Tabla0::ColMatrix(std::int32_t fila, std::int32_t colm, T_colores valor) {
    protege(e_, miembro("ColMatrix"), [&] { Qlt4_Tabla::ColMatrix(e_, fila, colm, valor); });
}

void Tabla0::Color_1Celda(std::int32_t fila, std::int32_t colm, T_colores valor) {
    protege(e_, miembro("Color_1Celda"), [&] { Qlt4_Tabla::ColMatrix(e_, fila, colm, valor); });
}

void Tabla0::Color_Fila(std::int32_t fila, std::int32_t columIni, std::int32_t colmFin, T_colores valor) {
    protege(e_, miembro("Color_Fila"), [&] { Qlt4_Tabla::Color_Fila(e_, fila, columIni, colmFin, valor); });
}

void Tabla0::A_actualizaEditor(bool valor) {
    if (!valor) return;
    protege(e_, miembro("A_actualizaEditor"), [&] { Qlt4_Tabla::Tablero_establece_Formato(e_); });
}

std::string Tabla0::A_ExtensionFche() {
    return protege(e_, miembro("A_ExtensionFche"), [&] { return e_.nombres.extension(); });
}

void Tabla0::A_ExtensionFche(const std::string& valor) {
    protege(e_, miembro("A_ExtensionFche"), [&] { Qlt4_Tabla::A_ExtensionFche(e_, valor); });
}

std::int32_t Tabla0::Rows() {
    return protege(e_, miembro("Rows"), [&] { return e_.tablero.Rows(); });
}

void Tabla0::Rows(std::int32_t n) {
    protege(e_, miembro("Rows"), [&] { Qlt4_Tabla::Rows(e_, n); });
}

std::int32_t Tabla0::Cols() {
    return protege(e_, miembro("Cols"), [&] { return e_.tablero.Cols(); });
}

void Tabla0::Cols(std::int32_t n) {
    protege(e_, miembro("Cols"), [&] { Qlt4_Tabla::Cols(e_, n); });
}

// NOLINTNEXTLINE(readability-function-size): the published arguments
void Tabla0::Formatcol(std::int16_t Col, const std::string& Visib, const std::string& Bloqu,
    std::int16_t Formt, std::int16_t decim, std::int16_t posic, std::int16_t Longi, const std::string& nomb,
    std::int16_t Accion) {
    protege(e_, miembro("Formatcol"),
        [&] { Qlt4_Tabla::Formatcol(e_, Col, Visib, Bloqu, Formt, decim, posic, Longi, nomb, Accion); });
}

// NOLINTNEXTLINE(readability-function-size): the published arguments
void Tabla0::FormatoColumnas(std::int16_t Col, bool Invisib, bool Bloqu, T_formato Formato,
    std::int16_t decim, T_Alineacion Alinea, T_Accion Accion, std::int16_t Longit, const std::string& nomb) {
    protege(e_, miembro("FormatoColumnas"), [&] {
        Qlt4_Tabla::FormatoColumnas(e_, Col, Invisib, Bloqu, Formato, decim, Alinea, Accion, Longit, nomb);
    });
}

void Tabla0::Editor_Tabl_graba() {
    protege(e_, miembro("Editor_Tabl_graba"), [&] { Qlt4_Tabla::Editor_Tabl_graba(e_); });
}

void Tabla0::Tablero_Nombres(
    const std::string& Titulo, const std::string& subtitulo, const std::string& extens) {
    protege(
        e_, miembro("Tablero_Nombres"), [&] { Qlt4_Tabla::Tablero_Nombres(e_, Titulo, subtitulo, extens); });
}

void Tabla0::Tablero_Formato_por_defecto() {
    protege(e_, miembro("Tablero_Formato_por_defecto"), [&] { Qlt4_Tabla::Tablero_Formato_por_defecto(e_); });
}

void Tabla0::Tablero_Fila_0_Off() {
    protege(e_, miembro("Tablero_Fila_0_Off"), [&] { Qlt4_Tabla::Tablero_Fila_0_Off(e_); });
}

void Tabla0::Ficheros_en_menu(bool Nvalor) {
    protege(e_, miembro("Ficheros_en_menu"), [&] { Qlt4_Tabla::Ficheros_en_menu(e_, Nvalor); });
}

std::string Tabla0::A_GrabaRevoca() {
    return protege(e_, miembro("A_GrabaRevoca"), [&]() -> std::string { return e_.revoca.A_GrabaRevoca(); });
}

void Tabla0::A_GrabaRevoca(const std::string& valor) {
    protege(e_, miembro("A_GrabaRevoca"), [&] { e_.revoca.A_GrabaRevoca(valor); });
}

// Accepts its arguments and does nothing, for good: kept for the hosts that call it.
void Tabla0::A_Col(std::int32_t) {}

void Tabla0::A_RowTop(std::int32_t valor) {
    protege(e_, miembro("A_RowTop"), [&] { Qlt4_Tabla::A_RowTop(e_, valor); });
}

void Tabla0::tablero_sin_color() {
    protege(e_, miembro("tablero_sin_color"), [&] { Qlt4_Tabla::tablero_sin_color(e_); });
}

void Tabla0::Redraw(bool valor) {
    protege(e_, miembro("Redraw"), [&] { e_.tablero.Redraw(valor); });
}

void Tabla0::Lista(std::int16_t columna, const Matriz<std::string>& valores) {
    protege(e_, miembro("Lista"), [&] { Qlt4_Tabla::Lista(e_, columna, valores); });
}

bool Tabla0::MergeCol(std::int16_t columna1) {
    return protege(e_, miembro("MergeCol"), [&] { return e_.tablero.MergeCol(columna1); });
}

void Tabla0::MergeCol(std::int16_t columna1, bool valor) {
    protege(e_, miembro("MergeCol"), [&] { e_.tablero.MergeCol(columna1, valor); });
}

std::int16_t Tabla0::MergeCells() {
    return protege(e_, miembro("MergeCells"), [&] { return e_.tablero.MergeCells(); });
}

void Tabla0::MergeCells(std::int16_t valor) {
    protege(e_, miembro("MergeCells"), [&] { Qlt4_Tabla::MergeCells(e_, valor); });
}

void Tabla0::Clear() {
    protege(e_, miembro("Clear"), [&] { Qlt4_Tabla::Clear(e_); });
}

void Tabla0::m_Obten_Matriz_Numerica_de_columna(std::int32_t columna, Matriz<double>& Matriz1) {
    obten(e_, miembro("m_Obten_Matriz_Numerica_de_columna"), columna, ClaseMatriz::Numeros, Matriz1);
}

void Tabla0::m_Obten_Matriz_Numerica_de_columna(std::int32_t columna, std::vector<double>& valores) {
    obten(e_, miembro("m_Obten_Matriz_Numerica_de_columna"), columna, ClaseMatriz::Numeros, valores);
}

void Tabla0::m_Obten_Matriz_Alfanume_de_columna(std::int32_t columna, Matriz<std::string>& Matriz1) {
    obten(e_, miembro("m_Obten_Matriz_Alfanume_de_columna"), columna, ClaseMatriz::Textos, Matriz1);
}

void Tabla0::m_Asigna_Matriz_Numerica_a_Columna(std::int32_t columna, const Matriz<double>& Matriz1) {
    constexpr const Miembro& m = miembro("m_Asigna_Matriz_Numerica_a_Columna");
    asigna(e_, m, columna, ClaseMatriz::Numeros, [&] { return desde_fila_1(Matriz1); });
}

void Tabla0::m_Asigna_Matriz_Numerica_a_Columna(std::int32_t columna, std::span<const double> valores) {
    constexpr const Miembro& m = miembro("m_Asigna_Matriz_Numerica_a_Columna");
    asigna(e_, m, columna, ClaseMatriz::Numeros, [&] { return valores; });
}

void Tabla0::m__Asigna_Matriz_Alfanume_a_Columna(std::int32_t columna, const Matriz<std::string>& Matriz1) {
    constexpr const Miembro& m = miembro("m__Asigna_Matriz_Alfanume_a_Columna");
    asigna(e_, m, columna, ClaseMatriz::Textos, [&] { return desde_fila_1(Matriz1); });
}

// Accepts its arguments and does nothing, for good: kept for the hosts that call it.
void Tabla0::Show_Eleige_Color(
    const std::string&, bool, std::int32_t, bool, std::int32_t&, std::int32_t&, std::string&) {}

std::int32_t Tabla0::Show_Elige_Color(std::int32_t NumColorElegiVB) {
    const auto forma = [] {
        return FormaMensaje{std::string(textos::prefijo_color), textos::antes_de_descripcion_color,
            EstiloMensaje::Critico, textos::lugar_color};
    };
    std::int32_t color = NumColorElegiVB;
    guarda_con_forma(e_.plataforma.mensajes, forma, miembro("Show_Elige_Color").errores,
        [&] { static_cast<void>(elige_color(e_, color)); });
    return color;
}

void Tabla0::Color_Matrix(std::int32_t fila, std::int32_t colm, std::int32_t valor) {
    protege(e_, miembro("Color_Matrix"), [&] { Qlt4_Tabla::Color_Matrix(e_, fila, colm, valor); });
}

std::int32_t Tabla0::Color_Matrix(std::int32_t fila, std::int32_t colm) {
    return protege(e_, miembro("Color_Matrix"), [&] { return Qlt4_Tabla::Color_Matrix(e_, fila, colm); });
}

std::int32_t Tabla0::Color_Matrix_en_VB(std::int32_t fila, std::int32_t colm) {
    return protege(
        e_, miembro("Color_Matrix_en_VB"), [&] { return Qlt4_Tabla::Color_Matrix_en_VB(e_, fila, colm); });
}

void Tabla0::Color_Matrix_en_Cad(std::int32_t fila, std::int32_t colm, std::int32_t valor) {
    protege(
        e_, miembro("Color_Matrix_en_Cad"), [&] { Qlt4_Tabla::Color_Matrix_en_Cad(e_, fila, colm, valor); });
}

void Tabla0::Color_Matrix_de_Cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) {
    protege(
        e_, miembro("Color_Matrix_de_Cad"), [&] { Qlt4_Tabla::Color_Matrix_de_Cad(e_, fila, colm, valor); });
}

void Tabla0::Color_Matrix_en_Cad_dado_N_VB(std::int32_t fila, std::int32_t colm, std::int32_t valor) {
    protege(e_, miembro("Color_Matrix_en_Cad_dado_N_VB"),
        [&] { Qlt4_Tabla::Color_Matrix_en_Cad_dado_N_VB(e_, fila, colm, valor); });
}

void Tabla0::Color_Matrix_en_Cad_dado_N_cad(std::int32_t fila, std::int32_t colm, std::int16_t valor) {
    protege(e_, miembro("Color_Matrix_en_Cad_dado_N_cad"),
        [&] { Qlt4_Tabla::Color_Matrix_en_Cad_dado_N_cad(e_, fila, colm, valor); });
}

void Tabla0::escribe_propiedades(BolsaPropiedades& bolsa) const {
    Qlt4_Tabla::escribe_propiedades(e_, bolsa);
}

void Tabla0::lee_propiedades(const BolsaPropiedades& bolsa) { Qlt4_Tabla::lee_propiedades(e_, bolsa); }

void Tabla0::A_FormatString(const std::string& cadena) { e_.tablero.FormatString(cadena); }

std::string Tabla0::A_FormatString() const { return e_.tablero.FormatString(); }

} // namespace Qlt4_Tabla
