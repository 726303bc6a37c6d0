// SPDX-License-Identifier: MIT
// BloqueCsv: the cells of a sheet collected as one CSV text: TAB between fields, LF between rows; in quotes
// what must stay text. One bulk text because writing cell by cell takes minutes.
#pragma once

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class BloqueCsv {
public:
    static constexpr int FILAS = 1'048'576; ///< of a sheet
    static constexpr int COLUMNAS = 16'384;

    /// A cell, rows and columns from 1 on, row by row and each once; left-out cells are empty. Error 1004 beyond
    /// the sheet, 5 where the order is another one. Nothing is collected then.
    void pon(int fila, int col, std::string_view texto);

    [[nodiscard]] std::string_view texto() const { return texto_; }

    void vacia() { *this = BloqueCsv(); }

private:
    std::string texto_;
    int fila_ = 1; // of the last cell
    int col_ = 0;
};

} // namespace Qlt4_Tabla
