// SPDX-License-Identifier: MIT
// AvisosUnidos: joining is a lattice of one step: nothing, one kind, anything; rows take cells along.
#include "core/avisos_unidos.h"

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

// Takes a notice into what is held back; false when it is to be given at once. Two indexes of one kind
// are as good as several kinds.
bool AvisosUnidos::une(Clase clase, int indice) {
    if (!retenidos_) return false;
    const bool otro = clase_ != clase || indice_ != indice;
    clase_ = clase_ != Clase::Nada && otro ? Clase::Todo : clase;
    indice_ = indice;
    return true;
}

// Rows move what was noted before them; a second time would have to move the first.
bool AvisosUnidos::une_filas(int fila, int n) {
    if (!retenidos_) return false;
    clase_ = clase_ == Clase::Nada ? Clase::Filas : Clase::Todo;
    indice_ = fila;
    n_ = n;
    return true;
}

void AvisosUnidos::celdas_cambiadas(int fila1, int col1, int fila2, int col2) {
    if (!retenidos_) return vista_->celdas_cambiadas(fila1, col1, fila2, col2);
    if (clase_ != Clase::Filas) static_cast<void>(une(Clase::Celdas, 0));
    const bool primera = !std::exchange(hay_celdas_, true);
    fila1_ = primera ? fila1 : std::min(fila1_, fila1);
    col1_ = primera ? col1 : std::min(col1_, col1);
    fila2_ = primera ? fila2 : std::max(fila2_, fila2);
    col2_ = primera ? col2 : std::max(col2_, col2);
}

void AvisosUnidos::filas_insertadas(int fila, int n) {
    if (!une_filas(fila, n)) vista_->filas_insertadas(fila, n);
}

void AvisosUnidos::filas_borradas(int fila, int n) {
    if (!une_filas(fila, -n)) vista_->filas_borradas(fila, n);
}

void AvisosUnidos::columnas_cambiadas() {
    if (!une(Clase::Columnas, 0)) vista_->columnas_cambiadas();
}

void AvisosUnidos::ancho_cambiado(int col) {
    if (!une(Clase::Ancho, col)) vista_->ancho_cambiado(col);
}

void AvisosUnidos::alto_cambiado(int fila) {
    if (!une(Clase::Alto, fila)) vista_->alto_cambiado(fila);
}

void AvisosUnidos::fusion_cambiada() {
    if (!une(Clase::Fusion, 0)) vista_->fusion_cambiada();
}

void AvisosUnidos::todo_cambiado() {
    if (!une(Clase::Todo, 0)) vista_->todo_cambiado();
}

void AvisosUnidos::suelta() {
    retenidos_ = false;
    const bool celdas = std::exchange(hay_celdas_, false);
    switch (std::exchange(clase_, Clase::Nada)) {
    case Clase::Nada: break;
    case Clase::Celdas: vista_->celdas_cambiadas(fila1_, col1_, fila2_, col2_); break;
    case Clase::Filas:
        if (n_ > 0)
            vista_->filas_insertadas(indice_, n_);
        else
            vista_->filas_borradas(indice_, -n_);
        if (celdas) vista_->celdas_cambiadas(fila1_, col1_, fila2_, col2_);
        break;
    case Clase::Columnas: vista_->columnas_cambiadas(); break;
    case Clase::Ancho: vista_->ancho_cambiado(indice_); break;
    case Clase::Alto: vista_->alto_cambiado(indice_); break;
    case Clase::Fusion: vista_->fusion_cambiada(); break;
    case Clase::Todo: vista_->todo_cambiado(); break;
    }
}

} // namespace Qlt4_Tabla
