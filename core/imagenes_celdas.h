// SPDX-License-Identifier: MIT
// ImagenesCeldas: the few cells that show a picture. Pictures go with their rows; every call costs the
// number of pictures at most, never that of rows.
#pragma once

#include "base/imagen.h"

#include <memory>
#include <span>
#include <vector>

namespace Qlt4_Tabla {

class ImagenesCeldas {
public:
    /// Null where the cell has none.
    [[nodiscard]] std::shared_ptr<const Imagen> imagen(int fila, int col) const;
    /// Null takes the picture away. True when the cell had another one.
    bool pon(int fila, int col, std::shared_ptr<const Imagen> imagen);

    void inserta_filas(int fila, int n);
    void borra_filas(int fila, int n);
    /// Ascending indexes.
    void borra_varias_filas(std::span<const int> filas);
    /// Columns from `n` on are gone.
    void quita_columnas(int n);

private:
    struct Entrada {
        int fila;
        int col;
        std::shared_ptr<const Imagen> imagen;
    };

    std::vector<Entrada> imagenes_; // by row, then column
};

} // namespace Qlt4_Tabla
