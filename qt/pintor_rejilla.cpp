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

Qt::Alignment lado_de(AlineacionCelda a) {
    switch (a) {
    case AlineacionCelda::Centro: return Qt::AlignHCenter;
    case AlineacionCelda::Derecha: return Qt::AlignRight;
    case AlineacionCelda::Izquierda: break;
    }
    return Qt::AlignLeft;
}

} // namespace

PintorRejilla::PintorRejilla(
    const Tablero& t, Unidades u, QPainter& p, TextosPreparados& textos, Aspecto aspecto, QSize ventana)
    : t_(t), u_(u), p_(p), a_(std::move(aspecto)), ventana_(ventana), pluma_(p, textos), sel_(t.seleccion()) {
    const auto grupo = a_.activa ? QPalette::Active : QPalette::Disabled;
    a_.paleta.setCurrentColorGroup(grupo);
    base_ = a_.paleta.color(QPalette::Base);
    fija_ = a_.paleta.color(QPalette::Button);
    texto_ = a_.paleta.color(QPalette::Text);
    texto_fijo_ = a_.paleta.color(QPalette::ButtonText);
    linea_ = mezcla(base_, texto_, TINTE_LINEA);
    linea_fija_ = mezcla(fija_, texto_fijo_, TINTE_LINEA + 6);
    realce_ = a_.paleta.color(QPalette::Highlight);
    if (!a_.con_foco) realce_ = mezcla(realce_, a_.paleta.color(QPalette::Mid), 50);
    if (t_.Rows() == 0 || t_.Cols() == 0) return;
    mide_columnas();
    mide_filas();
}

void PintorRejilla::mide_columnas() {
    const int fin_fija = u_.px_x(t_.ancho_visible(0));
    columnas_.push_back({0, 0, fin_fija});
    int x = x_columna(t_, 1);
    for (int col = 1; col < t_.Cols() && u_.px_x(x) < ventana_.width(); ++col) {
        const Tira tira{col, u_.px_x(x), u_.px_x(x + t_.ancho_visible(col))};
        x += t_.ancho_visible(col);
        if (tira.desde < tira.hasta && tira.hasta > fin_fija) columnas_.push_back(tira);
    }
}

void PintorRejilla::mide_filas() {
    const int ultima = ultima_fila_visible(t_);
    int y = t_.RowHeight(0);
    filas_.push_back({0, 0, u_.px_y(y)});
    for (int fila = t_.TopRow(); fila <= ultima; ++fila) {
        const Tira tira{fila, u_.px_y(y), u_.px_y(y + t_.RowHeight(fila))};
        y += t_.RowHeight(fila);
        if (tira.desde < tira.hasta) filas_.push_back(tira);
    }
}

QRect PintorRejilla::rect(int fila, int col) const {
    const Rectangulo r = rectangulo_celda(t_, fila, col);
    const int x = u_.px_x(r.izquierda);
    const int y = u_.px_y(r.arriba);
    return {x, y, u_.px_x(r.derecha()) - x, u_.px_y(r.abajo()) - y};
}

// Those with a pixel from `desde` to `hasta`.
PintorRejilla::Tiras PintorRejilla::que_tocan(Tiras tiras, int desde, int hasta) {
    const auto a =
        std::find_if(tiras.begin(), tiras.end(), [desde](const Tira& t) { return t.hasta > desde; });
    const auto b = std::find_if(a, tiras.end(), [hasta](const Tira& t) { return t.desde > hasta; });
    return {a, b};
}

QRect PintorRejilla::cuadro(Tiras filas, Tiras columnas) {
    return {QPoint(columnas.front().desde, filas.front().desde),
        QPoint(columnas.back().hasta - 1, filas.back().hasta - 1)};
}

// The painter may come with the clip of another dirty rectangle.
void PintorRejilla::pinta(const QRect& sucio) {
    p_.setClipRect(sucio);
    pinta_fuera(sucio);
    if (columnas_.empty()) return;
    const int x0 = columnas_.front().hasta;
    const int y0 = filas_.front().hasta;
    const QSize resto(ventana_.width() - x0, ventana_.height() - y0);
    const Tiras cabecera = Tiras(filas_).first(1);
    const Tiras filas = Tiras(filas_).subspan(1);
    const Tiras numeros = Tiras(columnas_).first(1);
    const Tiras columnas = Tiras(columnas_).subspan(1);
    pinta_zona(filas, columnas, sucio & QRect(QPoint(x0, y0), resto));
    pinta_zona(filas, numeros, sucio & QRect(0, y0, x0, resto.height()));
    pinta_zona(cabecera, columnas, sucio & QRect(x0, 0, resto.width(), y0));
    pinta_zona(cabecera, numeros, sucio & QRect(0, 0, x0, y0));
    p_.setClipRect(sucio);
    pinta_marco();
}

// Right of the last column, and below the last row.
void PintorRejilla::pinta_fuera(const QRect& sucio) {
    const int x = columnas_.empty() ? 0 : columnas_.back().hasta;
    const int y = filas_.empty() ? 0 : filas_.back().hasta;
    const QColor color = mezcla(base_, a_.paleta.color(QPalette::Window), 70);
    p_.fillRect(sucio & QRect(x, 0, ventana_.width() - x, ventana_.height()), color);
    p_.fillRect(sucio & QRect(0, y, x, ventana_.height() - y), color);
}

void PintorRejilla::pinta_zona(Tiras filas, Tiras columnas, const QRect& parte) {
    const Tiras altas = que_tocan(filas, parte.top(), parte.bottom());
    const Tiras anchas = que_tocan(columnas, parte.left(), parte.right());
    if (parte.isEmpty() || altas.empty() || anchas.empty()) return;
    p_.setClipRect(parte);
    pinta_fondos(altas, anchas);
    pinta_lineas(altas, anchas);
    for (const Tira& c : anchas) {
        if (funde(c.indice) && altas.front().indice != 0) {
            pinta_fundida(filas, c);
            continue;
        }
        for (const Tira& f : altas) pinta_celda(f, c);
    }
    pluma_.vuelca();
}

// The common colour in one piece, then what differs from it.
void PintorRejilla::pinta_fondos(Tiras filas, Tiras columnas) {
    const QColor& comun = filas.front().indice == 0 || columnas.front().indice == 0 ? fija_ : base_;
    p_.fillRect(cuadro(filas, columnas), comun);
    for (const Tira& c : columnas) pinta_fondo(filas, c, comun);
}

// Neighbours of one colour in one piece; where it is there already, nothing.
void PintorRejilla::pinta_fondo(Tiras filas, const Tira& columna, const QColor& hay) {
    for (std::size_t i = 0, j = 0; i < filas.size(); i = j) {
        const QColor color = fondo(filas[i].indice, columna.indice);
        for (j = i + 1; j < filas.size() && fondo(filas[j].indice, columna.indice) == color;) ++j;
        if (color != hay) p_.fillRect(cuadro(filas.subspan(i, j - i), Tiras(&columna, 1)), color);
    }
}

// At the right and at the bottom of each.
void PintorRejilla::pinta_lineas(Tiras filas, Tiras columnas) {
    const QColor& color = filas.front().indice == 0 || columnas.front().indice == 0 ? linea_fija_ : linea_;
    const QRect todo = cuadro(filas, columnas);
    for (const Tira& c : columnas)
        p_.fillRect(QRect(c.hasta - LINEA_PX, todo.top(), LINEA_PX, todo.height()), color);
    for (const Tira& f : filas)
        p_.fillRect(QRect(todo.left(), f.hasta - LINEA_PX, todo.width(), LINEA_PX), color);
}

bool PintorRejilla::funde(int col) const { return t_.MergeCells() != 0 && t_.MergeCol(col); }

// In a run of equal cells each row keeps its own background, no line stands between them, and the text stands
// once in the middle of the part that is seen.
void PintorRejilla::pinta_fundida(Tiras filas, const Tira& columna) {
    const Tiras c(&columna, 1);
    for (std::size_t i = 0, j = 0; i < filas.size(); i = j) {
        const Tramo tramo =
            tramo_fundido(t_, filas[i].indice, columna.indice, filas.front().indice, filas.back().indice);
        for (j = i + 1; j < filas.size() && filas[j].indice <= tramo.hasta;) ++j;
        if (j == i + 1) {
            pinta_celda(filas[i], columna);
            continue;
        }
        const Tira junta{filas[i].indice, filas[i].desde, filas[j - 1].hasta};
        pinta_fondo(filas.subspan(i, j - i), columna, QColor());
        pinta_lineas(Tiras(&junta, 1), c);
        const QRect vista = cuadro(Tiras(&junta, 1), c) & QRect(QPoint(0, 0), ventana_);
        pinta_contenido(junta.indice, columna.indice, vista);
    }
}

void PintorRejilla::pinta_celda(const Tira& fila, const Tira& columna) {
    if (fila.indice == a_.ocultar_fila && columna.indice == a_.ocultar_col) return;
    pinta_contenido(fila.indice, columna.indice, cuadro(Tiras(&fila, 1), Tiras(&columna, 1)));
}

void PintorRejilla::pinta_contenido(int fila, int col, const QRect& celda) {
    const std::string_view texto = t_.TextMatrix(fila, col);
    QRect sitio = celda.adjusted(MARGEN_TEXTO_PX, 0, -MARGEN_TEXTO_PX - LINEA_PX, -LINEA_PX);
    if (const auto imagen = t_.CellPicture(fila, col))
        sitio.setLeft(pinta_imagen(*imagen, celda, !texto.empty()));
    if (!texto.empty())
        pluma_.escribe(celda, sitio, lado_de(t_.ColAlignment(col)), texto, color_texto(fila, col));
}

// At the left of the text, which begins where the answer says.
int PintorRejilla::pinta_imagen(const Imagen& imagen, const QRect& celda, bool con_texto) {
    const auto* const qt = dynamic_cast<const ImagenQt*>(&imagen);
    if (qt == nullptr) return celda.left() + MARGEN_TEXTO_PX;
    QRect hueco = celda.adjusted(1, 1, -1 - LINEA_PX, -1 - LINEA_PX);
    if (con_texto) hueco.setWidth(std::min(hueco.width(), 2 * hueco.height()));
    QRect destino(QPoint(0, 0), qt->imagen().size().scaled(hueco.size(), Qt::KeepAspectRatio));
    destino.moveCenter(hueco.center());
    if (con_texto) destino.moveLeft(hueco.left());
    p_.setRenderHint(QPainter::SmoothPixmapTransform);
    p_.drawImage(destino, qt->imagen());
    return destino.right() + MARGEN_TEXTO_PX;
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
QColor PintorRejilla::color_texto(int fila, int col) const {
    const std::int32_t propio = t_.color_texto(fila, col);
    if (propio != 0) return color_de_pantalla(propio, a_.paleta);
    const bool coloreada = t_.tiene_fondo(fila, col) && t_.color_fondo(fila, col) != COLOR_CARA_BOTON;
    if (coloreada) return contraste(fondo(fila, col));
    return fila == 0 || col == 0 ? texto_fijo_ : texto_;
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
