// SPDX-License-Identifier: MIT
// PintorRejilla: draws the grid straight from the core's Tablero into a viewport. It keeps nothing
// between two paintings. Order: data cells, row numbers, header, corner, frame of the current cell; in each
// part backgrounds, lines, what stands in the cells.
// Lines and frames are filled rectangles, so that a scrolled picture equals a fresh one to the pixel.
#pragma once

#include "core/tablero.h"
#include "qt/pluma_celdas.h"
#include "qt/unidades.h"

#include <QPalette>
#include <QRect>

#include <span>
#include <vector>

class QPainter;

namespace Qlt4_Tabla {

/// Width of grid lines and, inside a cell, of the room between line and text, in pixels.
inline constexpr int LINEA_PX = 1;
inline constexpr int MARGEN_TEXTO_PX = 4;
/// Thickness of the current cell's frame.
inline constexpr int MARCO_PX = 2;

class PintorRejilla {
public:
    struct Aspecto {
        QPalette paleta;
        bool con_foco = false;
        bool activa = true; ///< the widget is enabled
        int ocultar_fila = -1; ///< cell whose text an editor covers
        int ocultar_col = -1;
    };

    /// The grid as it is now; all but the palette outlives the painter.
    PintorRejilla(
        const Tablero& t, Unidades u, QPainter& p, TextosPreparados& textos, Aspecto aspecto, QSize ventana);

    /// Draws what lies in `sucio` (viewport pixels).
    void pinta(const QRect& sucio);

private:
    /// A row or a column and its pixels.
    struct Tira {
        int indice;
        int desde;
        int hasta; ///< the first pixel behind it
    };

    using Tiras = std::span<const Tira>;

    void mide_columnas();
    void mide_filas();
    [[nodiscard]] static Tiras que_tocan(Tiras tiras, int desde, int hasta);
    [[nodiscard]] static QRect cuadro(Tiras filas, Tiras columnas);
    void pinta_zona(Tiras filas, Tiras columnas, const QRect& parte);
    void pinta_fondos(Tiras filas, Tiras columnas);
    void pinta_fondo(Tiras filas, const Tira& columna, const QColor& hay);
    void pinta_lineas(Tiras filas, Tiras columnas);
    void pinta_fundida(Tiras filas, const Tira& columna);
    void pinta_celda(const Tira& fila, const Tira& columna);
    void pinta_contenido(int fila, int col, const QRect& celda);
    [[nodiscard]] int pinta_imagen(const Imagen& imagen, const QRect& celda, bool con_texto);
    void pinta_marco();
    void pinta_borde(const QRect& r, int grueso, const QColor& color);
    void pinta_fuera(const QRect& sucio);
    [[nodiscard]] bool funde(int col) const;
    [[nodiscard]] QColor fondo(int fila, int col) const;
    [[nodiscard]] QColor color_texto(int fila, int col) const;
    [[nodiscard]] bool marcada(int fila, int col) const;
    [[nodiscard]] QRect rect(int fila, int col) const;

    const Tablero& t_;
    Unidades u_;
    QPainter& p_;
    Aspecto a_;
    QSize ventana_;
    PlumaCeldas pluma_;
    Bloque sel_;
    QColor base_, fija_, linea_, linea_fija_, realce_, texto_, texto_fijo_;
    // Those that are seen, the fixed one first; without cells none.
    std::vector<Tira> columnas_;
    std::vector<Tira> filas_;
};

} // namespace Qlt4_Tabla
