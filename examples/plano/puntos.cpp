// SPDX-License-Identifier: MIT
// Reads places and colours of changed rows from the grid, once before each drawing.
#include "puntos.h"

#include "tabla_puntos.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace plano {

namespace {

constexpr double MAX_COORDENADA = 1e9; // metres; beyond it drawing loses its accuracy

} // namespace

void Puntos::marca(int desde, int hasta) {
    const bool nada = hasta_ < desde_;
    desde_ = nada ? desde : std::min(desde_, desde);
    hasta_ = nada ? hasta : std::max(hasta_, hasta);
}

void Puntos::marca_todo() { marca(1, std::numeric_limits<int>::max()); }

void Puntos::inserta(int fila, int n) {
    const int lugar = std::clamp(fila - 1, 0, filas());
    puntos_.insert(puntos_.begin() + lugar, static_cast<std::size_t>(n), Punto());
    if (hasta_ >= desde_ && hasta_ < std::numeric_limits<int>::max() - n) hasta_ += n;
    marca(lugar + 1, lugar + n);
}

void Puntos::borra(int fila, int n) {
    const int desde = std::clamp(fila - 1, 0, filas());
    const int hasta = std::clamp(desde + n, desde, filas());
    for (int i = desde; i < hasta; ++i) situados_ -= de_fila(i + 1).situado ? 1 : 0;
    puntos_.erase(puntos_.begin() + desde, puntos_.begin() + hasta);
    if (hasta_ >= desde_) desde_ = std::max(1, desde_ - n);
}

bool Puntos::pon_al_dia(const Qlt4_Tabla::Tablero& tablero) {
    const int filas_tabla = std::max(0, tablero.Rows() - 1);
    if (filas() != filas_tabla) marca_todo();
    if (hasta_ < desde_) return false;
    if (filas() != filas_tabla) {
        puntos_.assign(static_cast<std::size_t>(filas_tabla), Punto());
        situados_ = 0;
    }
    const int hasta = std::min(hasta_, filas_tabla);
    if (tablero.Cols() > INUNDACION)
        for (int fila = std::max(1, desde_); fila <= hasta; ++fila) lee(tablero, fila);
    desde_ = 1;
    hasta_ = 0;
    return true;
}

// The grid stores numbers with a point and tells colours as 0x00BBGGRR.
void Puntos::lee(const Qlt4_Tabla::Tablero& tablero, int fila) {
    Punto nuevo;
    const auto x = lee_numero(tablero.TextMatrix(fila, X));
    const auto y = lee_numero(tablero.TextMatrix(fila, Y));
    nuevo.situado = x && y && std::abs(*x) <= MAX_COORDENADA && std::abs(*y) <= MAX_COORDENADA;
    nuevo.x = nuevo.situado ? *x : 0;
    nuevo.y = nuevo.situado ? *y : 0;
    if (tablero.tiene_fondo(fila, INUNDACION)) {
        const int bgr = tablero.color_fondo(fila, INUNDACION);
        nuevo.color = qRgb(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
    }
    Punto& punto = puntos_[static_cast<std::size_t>(fila - 1)];
    situados_ += (nuevo.situado ? 1 : 0) - (punto.situado ? 1 : 0);
    punto = nuevo;
}

std::optional<QRectF> Puntos::limites(int desde, int hasta) const {
    bool alguno = false;
    double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
    for (int fila = std::max(1, desde); fila <= std::min(hasta, filas()); ++fila) {
        const Punto& p = de_fila(fila);
        if (!p.situado) continue;
        x1 = alguno ? std::min(x1, p.x) : p.x;
        x2 = alguno ? std::max(x2, p.x) : p.x;
        y1 = alguno ? std::min(y1, p.y) : p.y;
        y2 = alguno ? std::max(y2, p.y) : p.y;
        alguno = true;
    }
    if (!alguno) return std::nullopt;
    return QRectF(x1, y1, x2 - x1, y2 - y1);
}

int Puntos::cercano(const Encuadre& encuadre, QPointF px, double radio) const {
    const QPointF aqui = encuadre.a_metros(px);
    double mejor = std::pow(radio / encuadre.escala(), 2);
    int fila = 0;
    for (int f = 1; f <= filas(); ++f) {
        const Punto& p = de_fila(f);
        const double d2 = (p.x - aqui.x()) * (p.x - aqui.x()) + (p.y - aqui.y()) * (p.y - aqui.y());
        if (!p.situado || d2 > mejor) continue;
        mejor = d2;
        fila = f;
    }
    return fila;
}

std::vector<int> Puntos::dentro(const QRectF& terreno) const {
    std::vector<int> filas_dentro;
    for (int f = 1; f <= filas(); ++f)
        if (de_fila(f).situado && terreno.contains(de_fila(f).x, de_fila(f).y)) filas_dentro.push_back(f);
    return filas_dentro;
}

} // namespace plano
