// SPDX-License-Identifier: MIT
// VistaMemoria: a grid view that draws nothing and keeps every notice as one line of text, in order:
//   "celdas 1 2 3 4" (row, column, row, column), "filas+ 3 2" (row, count), "filas- 3 2", "columnas",
//   "seleccion", "desplazada", "ancho 2", "alto -1", "fusion", "todo".
#pragma once

#include "base/publico.h"
#include "platform/vista_tablero.h"

#include <string>
#include <vector>

namespace Qlt4_Tabla {

class TABLA_API VistaMemoria final : public VistaTablero {
public:
    std::vector<std::string> avisos;

    /// The notices so far, which are then forgotten.
    std::vector<std::string> recoge();

    void celdas_cambiadas(int fila1, int col1, int fila2, int col2) override;
    void filas_insertadas(int fila, int n) override;
    void filas_borradas(int fila, int n) override;
    void columnas_cambiadas() override;
    void seleccion_cambiada() override;
    void vista_desplazada() override;
    void ancho_cambiado(int col) override;
    void alto_cambiado(int fila) override;
    void fusion_cambiada() override;
    void todo_cambiado() override;
};

} // namespace Qlt4_Tabla
