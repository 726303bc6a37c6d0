// SPDX-License-Identifier: MIT
// PintorRejilla: draws the grid straight from the core's Tablero into a viewport. It keeps nothing
// between two paintings. Order: data cells, row numbers, header, corner, frame of the current cell.
// Lines and frames are filled rectangles, so that a scrolled picture equals a fresh one to the pixel.
#pragma once

#include "core/tablero.h"
#include "qt/unidades.h"

#include <QFontMetrics>
#include <QPalette>
#include <QRect>
#include <QString>

#include <string_view>

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

    PintorRejilla(const Tablero& t, Unidades u, QPainter& p, Aspecto aspecto, QSize ventana);

    /// Draws what lies in `sucio` (viewport pixels).
    void pinta(const QRect& sucio);

private:
    struct Columna {
        int col;
        int x1;
        int x2;
    };

    void pinta_zona(const QRect& zona, const QRect& sucio, bool fila_fija, bool columna_fija);
    void pinta_columna(const Columna& c, const QRect& zona, bool fila_fija);
    void pinta_celda(int fila, int col, const QRect& celda);
    void pinta_fundida(const Columna& c, int fila, int ultima, int y1);
    void pinta_contenido(int fila, int col, const QRect& celda, const QColor& fondo);
    void pinta_texto(const QRect& sitio, int col, std::string_view texto, const QColor& color);
    void pinta_lineas(const QRect& celda, bool fija);
    void pinta_marco();
    void pinta_borde(const QRect& r, int grueso, const QColor& color);
    void pinta_fuera(const QRect& sucio);
    [[nodiscard]] QColor fondo(int fila, int col) const;
    [[nodiscard]] QColor color_texto(int fila, int col, const QColor& fondo) const;
    [[nodiscard]] bool marcada(int fila, int col) const;
    [[nodiscard]] QRect rect(int fila, int col) const;

    const Tablero& t_;
    Unidades u_;
    QPainter& p_;
    Aspecto a_;
    QSize ventana_;
    QFontMetrics letra_;
    Bloque sel_;
    QColor base_, fija_, linea_, linea_fija_, realce_;
};

} // namespace Qlt4_Tabla
