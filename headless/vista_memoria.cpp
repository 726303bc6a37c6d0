// SPDX-License-Identifier: MIT
// VistaMemoria: the notices of the grid as lines of text. See the header for their form.
#include "headless/vista_memoria.h"

#include <initializer_list>
#include <utility>

namespace Qlt4_Tabla {

namespace {

std::string linea(std::string palabra, std::initializer_list<int> numeros) {
    for (const int n : numeros) {
        palabra += ' ';
        palabra += std::to_string(n);
    }
    return palabra;
}

} // namespace

std::vector<std::string> VistaMemoria::recoge() { return std::exchange(avisos, {}); }

void VistaMemoria::celdas_cambiadas(int fila1, int col1, int fila2, int col2) {
    avisos.push_back(linea("celdas", {fila1, col1, fila2, col2}));
}

void VistaMemoria::filas_insertadas(int fila, int n) { avisos.push_back(linea("filas+", {fila, n})); }

void VistaMemoria::filas_borradas(int fila, int n) { avisos.push_back(linea("filas-", {fila, n})); }

void VistaMemoria::columnas_cambiadas() { avisos.emplace_back("columnas"); }

void VistaMemoria::seleccion_cambiada() { avisos.emplace_back("seleccion"); }

void VistaMemoria::vista_desplazada() { avisos.emplace_back("desplazada"); }

void VistaMemoria::ancho_cambiado(int col) { avisos.push_back(linea("ancho", {col})); }

void VistaMemoria::alto_cambiado(int fila) { avisos.push_back(linea("alto", {fila})); }

void VistaMemoria::fusion_cambiada() { avisos.emplace_back("fusion"); }

void VistaMemoria::todo_cambiado() { avisos.emplace_back("todo"); }

} // namespace Qlt4_Tabla
