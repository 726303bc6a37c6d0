// SPDX-License-Identifier: MIT
// Draws the visible cells part by part, in the order that the header gives.
#include "qt/pintor_rejilla.h"

#include "core/formato_columna.h"
#include "core/fusion.h"
#include "core/geometria.h"
#include "qt/colores_qt.h"
#include "qt/imagen_qt.h"

#include <QPainter>

#include <algorithm>

namespace Qlt4_Tabla {

namespace {

constexpr int TINTE_SELECCION = 30; // per cent of the highlight colour over a selected cell
constexpr int TINTE_CABECERA = 22; // and over the header cells of the selection
constexpr int TINTE_LINEA = 16; // per cent of the text colour in a grid line

QString a_qstring(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

} // namespace

PintorRejilla::PintorRejilla(const Tablero& t, Unidades u, QPainter& p, Aspecto aspecto, QSize ventana)
    : t_(t),
      u_(u),
      p_(p),
      a_(std::move(aspecto)),
      ventana_(ventana),
      letra_(p.fontMetrics()),
      sel_(t.seleccion()) {
    const auto grupo = a_.activa ? QPalette::Active : QPalette::Disabled;
    a_.paleta.setCurrentColorGroup(grupo);
    base_ = a_.paleta.color(QPalette::Base);
    fija_ = a_.paleta.color(QPalette::Button);
    linea_ = mezcla(base_, a_.paleta.color(QPalette::Text), TINTE_LINEA);
    linea_fija_ = mezcla(fija_, a_.paleta.color(QPalette::ButtonText), TINTE_LINEA + 6);
    realce_ = a_.paleta.color(QPalette::Highlight);
    if (!a_.con_foco) realce_ = mezcla(realce_, a_.paleta.color(QPalette::Mid), 50);
}

QRect PintorRejilla::rect(int fila, int col) const {
    const Rectangulo r = rectangulo_celda(t_, fila, col);
    const int x = u_.px_x(r.izquierda);
    const int y = u_.px_y(r.arriba);
    return {x, y, u_.px_x(r.derecha()) - x, u_.px_y(r.abajo()) - y};
}

// The painter may come with the clip of another dirty rectangle.
void PintorRejilla::pinta(const QRect& sucio) {
    p_.setClipRect(sucio);
    if (t_.Rows() == 0 || t_.Cols() == 0) {
        pinta_fuera(sucio);
        return;
    }
    const int x0 = u_.px_x(t_.ancho_visible(0));
    const int y0 = u_.px_y(t_.RowHeight(0));
    const QRect datos(QPoint(x0, y0), QPoint(ventana_.width() - 1, ventana_.height() - 1));
    pinta_fuera(sucio);
    pinta_zona(datos, sucio, false, false);
    pinta_zona(QRect(0, y0, x0, ventana_.height() - y0), sucio, false, true);
    pinta_zona(QRect(x0, 0, ventana_.width() - x0, y0), sucio, true, false);
    pinta_zona(QRect(0, 0, x0, y0), sucio, true, true);
    p_.setClipRect(sucio);
    pinta_marco();
}

void PintorRejilla::pinta_fuera(const QRect& sucio) {
    p_.fillRect(sucio, mezcla(base_, a_.paleta.color(QPalette::Window), 70));
}

void PintorRejilla::pinta_zona(const QRect& zona, const QRect& sucio, bool fila_fija, bool columna_fija) {
    const QRect parte = zona.intersected(sucio);
    if (parte.isEmpty()) return;
    p_.setClipRect(parte);
    const int primera = columna_fija ? 0 : 1;
    const int ultima = columna_fija ? 0 : t_.Cols() - 1;
    int x = x_columna(t_, primera);
    for (int col = primera; col <= ultima; ++col) {
        const int siguiente = x + t_.ancho_visible(col);
        const Columna c{col, u_.px_x(x), u_.px_x(siguiente)};
        x = siguiente;
        if (c.x2 <= parte.left() || c.x2 == c.x1) continue;
        if (c.x1 > parte.right()) break;
        pinta_columna(c, parte, fila_fija);
    }
}

void PintorRejilla::pinta_columna(const Columna& c, const QRect& zona, bool fila_fija) {
    if (fila_fija) {
        pinta_celda(0, c.col, QRect(c.x1, 0, c.x2 - c.x1, u_.px_y(t_.RowHeight(0))));
        return;
    }
    const int ultima = ultima_fila_visible(t_);
    const bool funde = t_.MergeCells() != 0 && t_.MergeCol(c.col);
    int y = t_.RowHeight(0);
    for (int fila = t_.TopRow(); fila <= ultima; ++fila) {
        const int siguiente = y + t_.RowHeight(fila);
        const int y1 = u_.px_y(y);
        const int y2 = u_.px_y(siguiente);
        y = siguiente;
        if (y2 <= zona.top() && !funde) continue;
        if (y1 > zona.bottom()) break;
        if (funde) {
            const Tramo tramo = tramo_fundido(t_, fila, c.col, t_.TopRow(), ultima);
            if (tramo.desde != tramo.hasta) {
                pinta_fundida(c, fila, tramo.hasta, y1);
                for (; fila < tramo.hasta; ++fila) y += t_.RowHeight(fila + 1);
                continue;
            }
        }
        if (y1 < y2) pinta_celda(fila, c.col, QRect(c.x1, y1, c.x2 - c.x1, y2 - y1));
    }
}

void PintorRejilla::pinta_celda(int fila, int col, const QRect& celda) {
    const QColor f = fondo(fila, col);
    p_.fillRect(celda, f);
    pinta_lineas(celda, fila == 0 || col == 0);
    if (fila == a_.ocultar_fila && col == a_.ocultar_col) return;
    pinta_contenido(fila, col, celda, f);
}

// A run of equal cells: each row keeps its own background, no line stands between them, and the text
// stands once in the middle of the part that is seen.
void PintorRejilla::pinta_fundida(const Columna& c, int fila, int ultima, int y1) {
    int y = y1;
    for (int r = fila; r <= ultima; ++r) {
        const int alto = u_.px_y(t_.RowHeight(r));
        p_.fillRect(QRect(c.x1, y, c.x2 - c.x1, alto), fondo(r, c.col));
        y += alto;
    }
    const QRect todo(c.x1, y1, c.x2 - c.x1, y - y1);
    pinta_lineas(todo, c.col == 0);
    pinta_contenido(fila, c.col, todo.intersected(QRect(QPoint(0, 0), ventana_)), fondo(fila, c.col));
}

void PintorRejilla::pinta_lineas(const QRect& celda, bool fija) {
    const QColor& color = fija ? linea_fija_ : linea_;
    p_.fillRect(QRect(celda.right() - LINEA_PX + 1, celda.top(), LINEA_PX, celda.height()), color);
    p_.fillRect(QRect(celda.left(), celda.bottom() - LINEA_PX + 1, celda.width(), LINEA_PX), color);
}

void PintorRejilla::pinta_contenido(int fila, int col, const QRect& celda, const QColor& f) {
    const std::string_view texto = t_.TextMatrix(fila, col);
    QRect sitio = celda.adjusted(MARGEN_TEXTO_PX, 0, -MARGEN_TEXTO_PX - LINEA_PX, -LINEA_PX);
    if (const auto imagen = t_.CellPicture(fila, col)) {
        if (const auto* qt = dynamic_cast<const ImagenQt*>(imagen.get())) {
            QRect hueco = celda.adjusted(1, 1, -1 - LINEA_PX, -1 - LINEA_PX);
            if (!texto.empty()) hueco.setWidth(std::min(hueco.width(), 2 * hueco.height()));
            QSize talla = qt->imagen().size().scaled(hueco.size(), Qt::KeepAspectRatio);
            QRect destino(QPoint(0, 0), talla);
            destino.moveCenter(hueco.center());
            if (!texto.empty()) destino.moveLeft(hueco.left());
            p_.setRenderHint(QPainter::SmoothPixmapTransform);
            p_.drawImage(destino, qt->imagen());
            sitio.setLeft(destino.right() + MARGEN_TEXTO_PX);
        }
    }
    if (!texto.empty()) pinta_texto(sitio, col, texto, color_texto(fila, col, f));
}

void PintorRejilla::pinta_texto(const QRect& sitio, int col, std::string_view texto, const QColor& color) {
    if (sitio.width() <= 0) return;
    QString s = a_qstring(texto);
    if (letra_.horizontalAdvance(s) > sitio.width()) s = letra_.elidedText(s, Qt::ElideRight, sitio.width());
    int banderas = Qt::AlignVCenter | Qt::TextSingleLine;
    switch (t_.ColAlignment(col)) {
    case AlineacionCelda::Centro: banderas |= Qt::AlignHCenter; break;
    case AlineacionCelda::Derecha: banderas |= Qt::AlignRight; break;
    case AlineacionCelda::Izquierda: banderas |= Qt::AlignLeft; break;
    }
    p_.setPen(color);
    p_.drawText(sitio, banderas, s);
}

bool PintorRejilla::marcada(int fila, int col) const {
    return fila >= sel_.fila1 && fila <= sel_.fila2 && col >= sel_.col1 && col <= sel_.col2;
}

QColor PintorRejilla::fondo(int fila, int col) const {
    const bool fija = fila == 0 || col == 0;
    QColor f = fija ? fija_ : base_;
    if (t_.tiene_fondo(fila, col)) f = color_de_pantalla(t_.color_fondo(fila, col), a_.paleta);
    const bool actual = fila == t_.Row() && col == t_.Col();
    if (marcada(fila, col) && !actual) return mezcla(f, realce_, TINTE_SELECCION);
    if (fija && !actual) {
        const bool de_columna = fila == 0 && col >= sel_.col1 && col <= sel_.col2;
        const bool de_fila = col == 0 && fila >= sel_.fila1 && fila <= sel_.fila2;
        if (de_columna || de_fila) return mezcla(f, realce_, TINTE_CABECERA);
    }
    return f;
}

// Text colour 0 is the default: the palette's where the cell has no colour of its own, else black or white
// by contrast. Any other text colour is kept.
QColor PintorRejilla::color_texto(int fila, int col, const QColor& f) const {
    const std::int32_t propio = t_.color_texto(fila, col);
    if (propio != 0) return color_de_pantalla(propio, a_.paleta);
    const bool coloreada = t_.tiene_fondo(fila, col) && t_.color_fondo(fila, col) != COLOR_CARA_BOTON;
    if (coloreada) return contraste(f);
    const bool fija = fila == 0 || col == 0;
    return a_.paleta.color(fija ? QPalette::ButtonText : QPalette::Text);
}

void PintorRejilla::pinta_marco() {
    if (t_.Row() != 0 && (t_.Row() < t_.TopRow() || t_.Row() > ultima_fila_visible(t_))) return;
    const QRect r = rect(t_.Row(), t_.Col());
    if (r.isEmpty()) return;
    const int x0 = t_.Col() == 0 ? 0 : u_.px_x(t_.ancho_visible(0));
    const int y0 = t_.Row() == 0 ? 0 : u_.px_y(t_.RowHeight(0));
    p_.setClipRect(QRect(x0, y0, ventana_.width(), ventana_.height()), Qt::IntersectClip);
    // On a background of the cell's own, a thin line inside keeps the frame in sight.
    if (t_.tiene_fondo(t_.Row(), t_.Col())) {
        const QRect dentro = r.adjusted(MARCO_PX, MARCO_PX, -MARCO_PX, -MARCO_PX);
        pinta_borde(dentro, 1, contraste(fondo(t_.Row(), t_.Col())));
    }
    pinta_borde(r, MARCO_PX, realce_);
}

void PintorRejilla::pinta_borde(const QRect& r, int grueso, const QColor& color) {
    p_.fillRect(QRect(r.left(), r.top(), r.width(), grueso), color);
    p_.fillRect(QRect(r.left(), r.bottom() - grueso + 1, r.width(), grueso), color);
    p_.fillRect(QRect(r.left(), r.top(), grueso, r.height()), color);
    p_.fillRect(QRect(r.right() - grueso + 1, r.top(), grueso, r.height()), color);
}

} // namespace Qlt4_Tabla
