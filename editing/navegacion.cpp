// SPDX-License-Identifier: MIT
// The advance, the grid's own keys, the mouse and the wheel.
#include "editing/navegacion.h"

#include "base/aritmetica.h"
#include "core/sin_errores.h"
#include "editing/filas.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace Qlt4_Tabla {

namespace {

/// Rows that one notch of the wheel moves.
constexpr int FILAS_POR_MUESCA = 3;

bool editable(const EstadoTabla& e, int col) {
    const T_FormatoColumna& f = formato(e, col);
    return !f.Invisible && !f.Bloqueada;
}

bool hay_columna_editable(const EstadoTabla& e) {
    for (int col = 1; col < e.tablero.Cols(); ++col)
        if (editable(e, col)) return true;
    return false;
}

bool hay_datos(const Tablero& t) { return t.Rows() > 1 && t.Cols() > 1; }

int fila_de_datos(const Tablero& t, int fila) { return std::clamp(fila, 1, t.Rows() - 1); }

int columna_de_datos(const Tablero& t, int col) { return std::clamp(col, 1, t.Cols() - 1); }

/// The first column that shows, going by `paso` (1 or -1) from `desde`, itself included; `si_no` where
/// there is none.
int columna_visible(const Tablero& t, int desde, int paso, int si_no) {
    for (int col = desde; col >= 1 && col < t.Cols(); col += paso)
        if (t.ancho_visible(col) > 0) return col;
    return si_no;
}

/// The same for rows: one without height cannot be seen and is passed.
int fila_visible(const Tablero& t, int desde, int paso, int si_no) {
    for (int fila = desde; fila >= 1 && fila < t.Rows(); fila += paso)
        if (!t.hay_altos() || t.RowHeight(fila) > 0) return fila;
    return si_no;
}

int primera_columna(const Tablero& t) { return columna_visible(t, 1, 1, 1); }

int ultima_columna(const Tablero& t) { return columna_visible(t, t.Cols() - 1, -1, t.Cols() - 1); }

int destino_columna(const Tablero& t, int col, int KeyCode, bool control) {
    const int aqui = columna_de_datos(t, col);
    switch (KeyCode) {
    case teclas::IZQUIERDA: return control ? primera_columna(t) : columna_visible(t, col - 1, -1, aqui);
    case teclas::DERECHA: return control ? ultima_columna(t) : columna_visible(t, col + 1, 1, aqui);
    case teclas::INICIO: return primera_columna(t);
    case teclas::FIN: return ultima_columna(t);
    default: return aqui;
    }
}

int destino_fila(const Tablero& t, int fila, int KeyCode, bool control) {
    const int aqui = fila_de_datos(t, fila);
    const int primera = fila_visible(t, 1, 1, 1);
    const int ultima = t.Rows() - 1;
    switch (KeyCode) {
    case teclas::ARRIBA: return control ? primera : fila_visible(t, fila - 1, -1, aqui);
    case teclas::ABAJO: return control ? ultima : fila_visible(t, fila + 1, 1, aqui);
    case teclas::REPAG: return fila_de_datos(t, fila - filas_visibles(t));
    case teclas::AVPAG: return fila_de_datos(t, fila + filas_visibles(t));
    case teclas::INICIO: return control ? primera : aqui;
    case teclas::FIN: return control ? ultima : aqui;
    default: return aqui;
    }
}

} // namespace

void Navegacion::Avanza_Cursor() {
    if (e_.menus[Opcion::MN_avance_horizontal].marcada) {
        Avance_Horizontal();
        return;
    }
    const int fila = suma32(e_.tablero.Row(), 1);
    if (fila == e_.tablero.Rows()) crea_una_fila(e_);
    mueve(fila, e_.tablero.Col());
}

void Navegacion::Avance_Horizontal() {
    if (!hay_columna_editable(e_)) return;
    const int columnas = e_.tablero.Cols();
    int col = e_.tablero.Col() + 1;
    int fila = e_.tablero.Row();
    bool buena = false;
    while (!buena) {
        buena = true;
        for (int k = 1; k < columnas; ++k) {
            if (col != k || editable(e_, k)) continue;
            buena = false;
            ++col;
        }
        if (col >= columnas) {
            col = 1;
            fila = suma32(fila, 1);
            buena = false;
        }
    }
    if (fila >= e_.tablero.Rows()) crea_una_fila(e_);
    mueve(fila, col);
}

bool Navegacion::tecla(int KeyCode, Modificadores mods) {
    if (KeyCode < teclas::REPAG || KeyCode > teclas::ABAJO || mods.contiene(teclas::ALT)) return false;
    const Tablero& t = e_.tablero;
    if (!hay_datos(t)) return true;
    const bool extiende = mods.contiene(teclas::MAYUSCULAS);
    const bool control = mods.contiene(teclas::CONTROL);
    const Celda desde = extiende ? Celda{t.RowSel(), t.ColSel()} : Celda{t.Row(), t.Col()};
    const int fila = destino_fila(t, desde.fila, KeyCode, control);
    const int col = destino_columna(t, desde.col, KeyCode, control);
    if (KeyCode == teclas::REPAG || KeyCode == teclas::AVPAG) acompana_pagina(fila - desde.fila);
    if (extiende)
        mueve(t.Row(), t.Col(), fila, col);
    else
        mueve(fila, col);
    return true;
}

// The view turns with the page, so that the cursor stays at its height on the window.
void Navegacion::acompana_pagina(int filas) {
    Tablero& t = e_.tablero;
    const int arriba = t.TopRow();
    const int tope = std::max(arriba, fila_superior_maxima(t));
    t.TopRow(std::clamp(arriba + filas, 1, tope));
}

void Navegacion::mueve(int fila, int col, int fila_sel, int col_sel) {
    Tablero& t = e_.tablero;
    const bool cambia = t.Row() != fila || t.Col() != col || t.RowSel() != fila_sel || t.ColSel() != col_sel;
    if (cambia) t.selecciona(fila, col, fila_sel, col_sel);
    muestra_celda(t, fila_sel, col_sel);
    if (cambia) trata_cambio_seleccion(e_);
}

// As `mueve`, but the view stays: a view that jumps under the mouse would select what was not pointed at.
// The corners of `b` are anchor and far corner, not ordered.
void Navegacion::selecciona(const Bloque& b) {
    Tablero& t = e_.tablero;
    if (Bloque{t.Row(), t.Col(), t.RowSel(), t.ColSel()} == b) return;
    t.selecciona(b.fila1, b.col1, b.fila2, b.col2);
    trata_cambio_seleccion(e_);
}

bool Navegacion::selecciona_filas(int col) const { return col == 0 || (e_.especialPuntos && col == 1); }

void Navegacion::fija_modo(int col) {
    e_.tablero.modo_seleccion(selecciona_filas(col) ? ModoSeleccion::PorFilas : ModoSeleccion::Libre);
}

Navegacion::Arrastre Navegacion::arrastre_de(Celda celda) const {
    if (celda.fila < 0 || celda.col < 0 || !hay_datos(e_.tablero)) return Arrastre::Nada;
    if (celda.fila == 0) return celda.col == 0 ? Arrastre::Todo : Arrastre::Columnas;
    return selecciona_filas(celda.col) ? Arrastre::Filas : Arrastre::Celdas;
}

void Navegacion::raton_abajo(Celda celda, Modificadores mods) {
    const Tablero& t = e_.tablero;
    arrastre_ = arrastre_de(celda);
    if (arrastre_ == Arrastre::Nada) return;
    fija_modo(celda.col);
    const bool extiende = mods.contiene(teclas::MAYUSCULAS);
    const int ultima_fila = t.Rows() - 1;
    const int ultima_col = t.Cols() - 1;
    switch (arrastre_) {
    case Arrastre::Todo: selecciona({1, 1, ultima_fila, ultima_col}); break;
    case Arrastre::Columnas:
        selecciona({1, extiende ? columna_de_datos(t, t.Col()) : celda.col, ultima_fila, celda.col});
        break;
    case Arrastre::Filas:
        selecciona({extiende ? fila_de_datos(t, t.Row()) : celda.fila, 1, celda.fila, ultima_col});
        break;
    default:
        if (extiende)
            selecciona({t.Row(), t.Col(), celda.fila, celda.col});
        else
            selecciona({celda.fila, celda.col, celda.fila, celda.col});
        break;
    }
}

void Navegacion::arrastra(int x, int y) {
    Tablero& t = e_.tablero;
    if (arrastre_ == Arrastre::Nada || arrastre_ == Arrastre::Todo || !hay_datos(t)) return;
    const Celda cerca = celda_mas_cercana(t, x, y);
    const int fila = arrastre_ == Arrastre::Columnas ? t.Rows() - 1 : fila_de_datos(t, cerca.fila);
    const int col = arrastre_ == Arrastre::Filas ? t.Cols() - 1 : columna_de_datos(t, cerca.col);
    const bool fuera_y = y < y_fila(t, t.TopRow()) || y >= t.alto_vista();
    const bool fuera_x = x < t.ancho_visible(0) || x >= t.ancho_vista();
    const bool baja = fuera_y && arrastre_ != Arrastre::Columnas;
    const bool corre = fuera_x && arrastre_ != Arrastre::Filas;
    muestra_celda(t, baja ? fila : 0, corre ? col : 0);
    selecciona({t.Row(), t.Col(), fila, col});
}

void Navegacion::clic(Celda celda) {
    sin_errores([&] {
        if (celda.col < 0) return;
        fija_modo(celda.col);
        const bool segundo = celda.fila == e_.ultimaFilaRaton && celda.col == e_.ultimaColRaton;
        if (segundo) cicla(celda);
    });
    e_.ultimaFilaRaton = celda.fila;
    e_.ultimaColRaton = celda.col;
}

void Navegacion::cicla(Celda celda) {
    Tablero& t = e_.tablero;
    if (celda.fila < 1 || celda.col < 1 || celda.col != t.Col()) return;
    if (!es_formato(formato(e_, celda.col).Formato, T_formato::ListaU)) return;
    const Matriz<std::string>& lista = e_.listas[static_cast<std::size_t>(celda.col)].Col;
    if (lista.empty()) return;
    const auto igual = std::find(lista.begin(), lista.end(), t.TextMatrix(celda.fila, celda.col));
    // A text that is in no entry leaves the search at the first one, so the second follows.
    auto siguiente = igual == lista.end() ? lista.begin() + 1 : igual + 1;
    if (siguiente == lista.end()) siguiente = lista.begin();
    t.TextMatrix(celda.fila, celda.col, *siguiente);
    e_.Modificado = 1;
    termina_mensaje(e_);
    std::int32_t Mouse_Row = celda.fila;
    std::int32_t Mouse_Col = celda.col;
    e_.eventos.ACambiadoValorCombo(Mouse_Row, Mouse_Col);
}

void Navegacion::rueda(int signo) {
    Tablero& t = e_.tablero;
    sin_errores([&] {
        const int arriba = t.TopRow();
        if (signo < 0 && arriba <= t.Rows() - FILAS_POR_MUESCA) t.TopRow(arriba + FILAS_POR_MUESCA);
        if (signo > 0) t.TopRow(std::max(0, arriba - FILAS_POR_MUESCA));
    });
}

void Navegacion::elige_bloque(int fila, int col, int fila_sel, int col_sel) {
    const Tablero& t = e_.tablero;
    const auto dentro = [](int n, int cuenta) { return n >= 0 && n < cuenta; };
    if (!dentro(fila, t.Rows()) || !dentro(fila_sel, t.Rows())) return;
    if (!dentro(col, t.Cols()) || !dentro(col_sel, t.Cols())) return;
    muestra_celda(e_.tablero, fila, col);
    selecciona({fila, col, fila_sel, col_sel});
}

} // namespace Qlt4_Tabla
