// SPDX-License-Identifier: MIT
// Sets a table up in the order that a host keeps, fills it, and formats it anew.
#include "perfil.h"

#include "qt/imagen_qt.h"
#include "textos.h"

#include <QImage>

namespace guia {

using namespace Qlt4_Tabla;

namespace {

void formato(Tabla0& t, Columna col, const char* nombre, T_formato kind, std::int16_t decimales,
    std::int16_t ancho, bool bloqueada = false) {
    const T_Alineacion lado =
        kind == T_formato::Real__ || kind == T_formato::EntPos ? T_Alineacion::Drcha : T_Alineacion::Izqda;
    t.FormatoColumnas(col, false, bloqueada, kind, decimales, lado, T_Accion::Nada__, ancho, nombre);
}

} // namespace

// begin: orden
void prepara(Tabla0& t) {
    t.Tablero_Nombres(textos::TITULO, textos::SUBTITULO, "*.tb0"); // 1. names
    t.Cols(CUANTAS); // 2. columns, the row numbers included
    t.FormatoColumnas( // 3. formats
        VERTICE, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Increm, 9,
        textos::VERTICE);
    formato(t, NUMERO, "", T_formato::Alfanm, 0, 4); // row numbers: not seen before they have a width
    formato(t, TERRENO, textos::TERRENO, T_formato::Real__, 3, 10);
    formato(t, RASANTE, textos::RASANTE, T_formato::Real__, 3, 10);
    formato(t, DESNIVEL, textos::DESNIVEL, T_formato::Real__, 3, 10, true); // locked: the host computes it
    formato(t, INCREMENTO, textos::INCREMENTO, T_formato::Real__, 3, 10, true);
    formato(t, MATERIAL, textos::MATERIAL, T_formato::ListaU, 0, 11);
    formato(t, CAPA, textos::CAPA, T_formato::Color_, 0, 9);
    t.Formatcol(TUBOS, "-", "-", 1, 0, 2, 7, textos::TUBOS); // the same in numbers: "-" is a flag not set
    t.Lista(MATERIAL, {0, {textos::HORMIGON, textos::PVC, textos::FUNDICION}}); // 4. values of lists
    t.Tablero_establece_Formato(); // 5. apply, once
}
// end: orden

// begin: datos
void rellena(Tabla0& t) {
    constexpr double TERRENOS[] = {101.2, 101.05, 100.4, 100.55, 99.9};
    constexpr int FILAS = static_cast<int>(std::size(TERRENOS));
    t.Redraw(false);
    t.Rows(FILAS + 1); // row 0 is the header
    for (int fila = 1; fila <= FILAS; ++fila) {
        t.TextMatrix(fila, VERTICE, "V" + std::to_string(fila));
        t.TextMatrix(fila, TERRENO, std::to_string(TERRENOS[fila - 1])); // 101.200000 is stored as 101.200
        t.TextMatrix(fila, RASANTE, std::to_string(100.0 - 0.2 * fila));
        t.TextMatrix(fila, TUBOS, std::to_string(2 * fila));
        t.TextMatrix(fila, MATERIAL, fila < 3 ? textos::HORMIGON : textos::PVC);
    }
    t.Redraw(true);
    t.mandos().elige_celda(1, VERTICE);
}
// end: datos

// begin: reaplica
void cambia_decimales(Tabla0& t) {
    Matriz<std::string> materiales;
    t.m_Obten_Matriz_Alfanume_de_columna(MATERIAL, materiales); // applying will reset them
    formato(t, RASANTE, textos::RASANTE, T_formato::Real__, 2, 10);
    t.Tablero_establece_Formato();
    t.m__Asigna_Matriz_Alfanume_a_Columna(MATERIAL, materiales);
}
// end: reaplica

// begin: capas
void prepara_capas(Tabla0& t) {
    t.Tablero_Nombres(textos::TITULO_CAPAS, textos::SUBTITULO_CAPAS, "X"); // a table without files
    t.Cols(3);
    t.FormatoColumnas(1, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Repite, 16,
        textos::NOMBRE_CAPA);
    t.FormatoColumnas(
        2, false, false, T_formato::Color_, 0, T_Alineacion::Centr, T_Accion::Repite, 10, textos::CAPA);
    t.Tablero_Fila_0_Off(); // no row numbers: the number of rows is told below the grid
    t.Tablero_establece_Formato();
    t.Clear();
    for (const char* capa : {textos::HORMIGON, textos::HORMIGON, textos::PVC}) {
        t.crea_una_fila();
        t.TextMatrix(t.Rows() - 1, 1, capa);
    }
}
// end: capas

// begin: menus
void restringe(Tabla0& t) {
    t.Ficheros_en_menu(false); // no files in the menu; true brings them back
    t.A_Edicion_Columnas_Off(); // no "Pegar" button
    t.A_Edicion_mn_Ratón_Off(); // no menu of the right button, no Delete key
    t.A_Especial_puntos_ON(); // a click in column 1 selects the row; the menu of points
}
// end: menus

// begin: por_defecto
void vuelve_al_formato_inicial(Tabla0& t) {
    t.Tablero_Formato_por_defecto(); // as FormatoColumnas gave them, without what the user changed
    t.A_actualizaEditor(true); // the same as Tablero_establece_Formato()
}
// end: por_defecto

// begin: imagen
void pon_logotipo(Tabla0& t) {
    QImage imagen(24, 24, QImage::Format_RGB32);
    imagen.fill(QColor(0x2F, 0x6F, 0xB5));
    t.A_Pon_Alto(3, 600); // twips: 40 pixels at 96 dots an inch
    t.A_Pon_Imagen(3, 2, imagen_de(imagen));
}
// end: imagen

// begin: fusion
void funde_capas(Tabla0& t) {
    t.MergeCol(1, true); // which columns
    t.MergeCells(1); // how: equal neighbours down the column are drawn as one
}
// end: fusion

} // namespace guia
