// SPDX-License-Identifier: MIT
// Tablero: its looks: widths, heights, alignments, colours, pictures and merging. The rest: core/tablero.cpp.
#include "core/con_memoria.h"
#include "core/tablero.h"

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

// Columns

int Tablero::ColWidth(int col) const {
    comprueba_columna(col);
    return columnas_[static_cast<std::size_t>(col)].ancho;
}

void Tablero::ColWidth(int col, int twips) {
    comprueba_columna(col);
    int& ancho = columnas_[static_cast<std::size_t>(col)].ancho;
    if (std::exchange(ancho, twips) == twips) return;
    avisos_.ancho_cambiado(col);
    ajusta();
}

int Tablero::ancho_visible(int col) const { return std::max(ColWidth(col), 0); }

AlineacionCelda Tablero::ColAlignment(int col) const {
    comprueba_columna(col);
    return columnas_[static_cast<std::size_t>(col)].alineacion;
}

void Tablero::ColAlignment(int col, AlineacionCelda alineacion) {
    comprueba_columna(col);
    AlineacionCelda& vieja = columnas_[static_cast<std::size_t>(col)].alineacion;
    if (std::exchange(vieja, alineacion) != alineacion) avisos_.columnas_cambiadas();
}

bool Tablero::MergeCol(int col) const {
    return col >= 0 && col < Cols() && columnas_[static_cast<std::size_t>(col)].funde;
}

void Tablero::MergeCol(int col, bool fundir) {
    if (col < 0 || col >= Cols()) return;
    bool& funde = columnas_[static_cast<std::size_t>(col)].funde;
    if (std::exchange(funde, fundir) != fundir) avisos_.fusion_cambiada();
}

void Tablero::MergeCells(std::int16_t modo) {
    if (std::exchange(fusion_, modo) != modo) avisos_.fusion_cambiada();
}

// Heights

int Tablero::RowHeight(int fila) const {
    comprueba_fila(fila);
    const int alto = almacen_.alto(fila);
    return alto < 0 ? alto_normal_ : alto;
}

void Tablero::RowHeight(int fila, int twips) {
    comprueba_fila(fila);
    if (con_memoria([&] { return almacen_.pon_alto(fila, twips); })) avisos_.alto_cambiado(fila);
}

void Tablero::alto_normal(int twips) {
    const int alto = std::max(twips, 1);
    if (alto == alto_normal_) return;
    sin_hueco_nuevo([&] { alto_normal_ = alto; });
    avisos_.alto_cambiado(-1);
}

// Colours and pictures

Bloque Tablero::bloque_de_relleno() const {
    return relleno_ == Relleno::Seleccion ? seleccion() : Bloque{Row(), Col(), Row(), Col()};
}

void Tablero::CellForeColor(std::int32_t color) { color_texto(bloque_de_relleno(), color); }

void Tablero::CellBackColor(std::int32_t color) { color_fondo(bloque_de_relleno(), color); }

std::int32_t Tablero::color_texto(int fila, int col) const {
    comprueba(fila, col);
    return almacen_.color_texto(fila, col);
}

void Tablero::color_texto(const Bloque& b, std::int32_t color) {
    comprueba(b);
    if (con_memoria([&] { return almacen_.pon_color_texto(b.fila1, b.col1, b.fila2, b.col2, color); }))
        avisa(b);
}

std::int32_t Tablero::color_fondo(int fila, int col) const {
    comprueba(fila, col);
    return almacen_.color_fondo(fila, col);
}

bool Tablero::tiene_fondo(int fila, int col) const {
    comprueba(fila, col);
    return almacen_.tiene_fondo(fila, col);
}

void Tablero::color_fondo(const Bloque& b, std::int32_t color) {
    comprueba(b);
    if (con_memoria([&] { return almacen_.pon_color_fondo(b.fila1, b.col1, b.fila2, b.col2, color); }))
        avisa(b);
}

std::shared_ptr<const Imagen> Tablero::CellPicture(int fila, int col) const {
    comprueba(fila, col);
    return imagenes_.imagen(fila, col);
}

void Tablero::CellPicture(int fila, int col, std::shared_ptr<const Imagen> imagen) {
    comprueba(fila, col);
    if (con_memoria([&] { return imagenes_.pon(fila, col, std::move(imagen)); }))
        avisa({fila, col, fila, col});
}

} // namespace Qlt4_Tabla
