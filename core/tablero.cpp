// SPDX-License-Identifier: MIT
// Tablero: counts, texts, the current cell and the part that is seen. Its looks: core/tablero_aspecto.cpp.
#include "core/tablero.h"

#include "core/con_memoria.h"
#include "core/geometria.h"

#include <algorithm>
#include <climits>

namespace Qlt4_Tabla {

Tablero::Tablero(VistaTablero& vista) : avisos_(vista) {}

// Checks

void Tablero::comprueba_fila(int fila) const {
    if (fila < 0 || fila >= Rows()) lanza(NumError::Subindice);
}

void Tablero::comprueba_columna(int col) const {
    if (col < 0 || col >= Cols()) lanza(NumError::Subindice);
}

void Tablero::fuera() { lanza(NumError::Subindice); }

void Tablero::comprueba(const Bloque& bloque) const {
    comprueba(bloque.fila1, bloque.col1);
    comprueba(bloque.fila2, bloque.col2);
}

void Tablero::comprueba_tamano(std::int64_t filas, std::int64_t columnas) const {
    if (filas < 0 || columnas < 0) lanza(NumError::LlamadaNoValida);
    if (filas > MAX_CELDAS || columnas > MAX_CELDAS || filas * columnas > MAX_CELDAS)
        lanza(NumError::SinMemoria);
}

// Counts

void Tablero::Rows(int n) {
    const int antes = Rows();
    comprueba_tamano(n, Cols());
    if (n > antes)
        inserta_filas(antes, n - antes);
    else
        borra_filas(n, antes - n);
}

void Tablero::Cols(int n) {
    const int antes = Cols();
    comprueba_tamano(Rows(), n);
    if (n == antes) return;
    con_memoria([&] { columnas_.resize(static_cast<std::size_t>(n)); });
    almacen_.pon_columnas(n);
    imagenes_.quita_columnas(n);
    recorta();
    avisos_.columnas_cambiadas();
    ajusta();
}

void Tablero::inserta_filas(int fila, int n) {
    if (fila < 0 || fila > Rows()) lanza(NumError::Subindice);
    if (n < 0) lanza(NumError::LlamadaNoValida);
    if (n == 0) return;
    comprueba_tamano(std::int64_t{Rows()} + n, Cols());
    con_memoria([&] { almacen_.inserta(fila, n); });
    anota_filas([fila, n](TramosFilas& t) {
        t.desplaza(fila, n);
        if (fila == 0) t.anade(n, n + 1); // what was the header may be a data row now
    });
    imagenes_.inserta_filas(fila, n);
    avisos_.filas_insertadas(fila, n);
    avisa({fila + n, 0, Rows() - 1, 0});
}

void Tablero::borra_filas(int fila, int n) {
    if (n < 0) lanza(NumError::LlamadaNoValida);
    if (fila < 0 || n > Rows() - fila) lanza(NumError::Subindice);
    if (n == 0) return;
    almacen_.borra(fila, n);
    anota_filas([fila, n](TramosFilas& t) { t.borra(fila, n); });
    imagenes_.borra_filas(fila, n);
    recorta();
    avisos_.filas_borradas(fila, n);
    avisa({fila, 0, Rows() - 1, 0});
    ajusta();
}

void Tablero::borra_varias_filas(std::span<const int> filas) {
    if (filas.empty()) return;
    comprueba_fila(filas.front());
    comprueba_fila(filas.back());
    almacen_.borra_varias(filas);
    anota_filas([filas](TramosFilas& t) { t.borra(filas); });
    imagenes_.borra_varias_filas(filas);
    recorta();
    if (filas.back() - filas.front() + 1 == static_cast<int>(filas.size()))
        avisos_.filas_borradas(filas.front(), static_cast<int>(filas.size()));
    else
        avisos_.todo_cambiado();
    avisa({filas.front(), 0, Rows() - 1, 0});
    ajusta();
}

void Tablero::numera_filas() {
    const FilasCambiadas cambiadas = almacen_.numera();
    if (cambiadas.hay()) avisa({cambiadas.primera, 0, cambiadas.ultima, 0});
}

// Texts

void Tablero::TextMatrix(int fila, int col, std::string_view texto) {
    comprueba(fila, col);
    if (!con_memoria([&] { return almacen_.pon_texto(fila, col, texto); })) return;
    if (Forma* const f = columnas_[static_cast<std::size_t>(col)].forma.get())
        f->pendientes.anade(fila, fila + 1);
    avisa({fila, col, fila, col});
}

void Tablero::pon_fila(int fila, int col, std::span<const std::string_view> textos) {
    if (textos.empty()) return;
    comprueba(fila, col);
    if (textos.size() > static_cast<std::size_t>(Cols() - col)) lanza(NumError::Subindice);
    const int col2 = col + static_cast<int>(textos.size()) - 1;
    anota_escritas(fila, fila, col, col2);
    const bool cambia = con_memoria([&] { return almacen_.pon_fila(fila, col, textos); });
    if (cambia) avisa({fila, col, fila, col2});
}

// Cells of the block are written by `escribe`, which may end in an error half-way; one notice.
template <class Escribe>
void Tablero::escribe_bloque(const Bloque& b, const Escribe& escribe) {
    if (b.fila1 > b.fila2) return;
    comprueba(b);
    FilasCambiadas cambiadas;
    try {
        cambiadas = con_memoria(escribe);
    } catch (...) {
        avisa(b);
        throw;
    }
    if (cambiadas.hay())
        avisa({cambiadas.primera, b.col1, cambiadas.ultima, b.col1 + cambiadas.columnas - 1});
}

void Tablero::pon_filas(const Bloque& b, const TextosDeFila& da) {
    if (b.col1 < 1) fuera();
    const TextosDeFila anotando = [&](int fila) {
        const auto textos = da(fila);
        anota_fila(fila, b.col1, textos);
        return textos;
    };
    escribe_bloque(b, [&] {
        const bool hay_formas = std::any_of(columnas_.begin() + b.col1, columnas_.begin() + b.col2 + 1,
            [](const Columna& c) { return c.forma != nullptr; });
        return almacen_.pon_filas(b.fila1, b.fila2, b.col1, hay_formas ? anotando : da);
    });
}

// What needs memory comes first.
void Tablero::pon_celdas(AlmacenCeldas&& celdas) {
    const int filas = celdas.filas();
    const int columnas = celdas.columnas();
    comprueba_tamano(filas, columnas);
    con_memoria([&] {
        columnas_.reserve(static_cast<std::size_t>(columnas));
        almacen_.toma(std::move(celdas));
    });
    columnas_.resize(static_cast<std::size_t>(columnas));
    imagenes_.borra_filas(1, INT_MAX - 1);
    imagenes_.quita_columnas(columnas);
    anota_escritas(0, filas - 1, 0, columnas - 1);
    avisos_.todo_cambiado();
    ajusta();
}

void Tablero::transforma_columna(int col, int desde, int hasta, const CambioCelda& cambia) {
    escribe_bloque({desde, col, hasta, col}, [&] {
        anota_escritas(desde, hasta, col, col);
        return almacen_.transforma(col, desde, hasta, cambia);
    });
}

// A cell that changes is looked at once more the next time: only what was seen to stay as it is has its form.
void Tablero::da_forma(int col, const FormaCeldas& nueva) {
    comprueba_columna(col);
    auto& forma = columnas_[static_cast<std::size_t>(col)].forma;
    if (!forma || forma->nombre != nueva.nombre) {
        forma = con_memoria([&] { return std::make_unique<Forma>(Forma{nueva.nombre, nueva.reconoce, {}}); });
        forma->pendientes.anade(0, Rows());
    }
    TramosFilas pendientes;
    FilasCambiadas cambiadas;
    try {
        for (const TramosFilas::Tramo& tramo : forma->pendientes.tramos()) {
            const FilasCambiadas de_estas = con_memoria([&] {
                const int ultima = std::min(tramo.hasta, Rows()) - 1;
                return almacen_.transforma(col, std::max(tramo.desde, 1), ultima, nueva.da);
            });
            if (!de_estas.hay()) continue;
            pendientes.anade(de_estas.primera, de_estas.ultima + 1);
            cambiadas.extiende(de_estas.primera, de_estas.ultima);
        }
    } catch (...) {
        avisa({1, col, Rows() - 1, col});
        throw;
    }
    forma->pendientes = pendientes;
    if (cambiadas.hay()) avisa({cambiadas.primera, col, cambiadas.ultima, col});
}

void Tablero::quita_forma(int col) {
    comprueba_columna(col);
    columnas_[static_cast<std::size_t>(col)].forma.reset();
}

void Tablero::anota_escritas(int fila1, int fila2, int col1, int col2) {
    for (int col = col1; col <= col2; ++col)
        if (Forma* const f = columnas_[static_cast<std::size_t>(col)].forma.get())
            f->pendientes.anade(fila1, fila2 + 1);
}

void Tablero::anota_fila(int fila, int col, std::span<const std::string_view> textos) {
    for (const std::string_view texto : textos) {
        Forma* const f = columnas_[static_cast<std::size_t>(col++)].forma.get();
        if (f && !(f->reconoce && f->reconoce(texto))) f->pendientes.anade(fila, fila + 1);
    }
}

template <class Cambio>
void Tablero::anota_filas(const Cambio& cambio) {
    for (const Columna& c : columnas_)
        if (c.forma) cambio(c.forma->pendientes);
}

// The current cell

void Tablero::Row(int fila) {
    comprueba_fila(fila);
    cursor_.fila = cursor_.fila_sel = fila;
    avisa_cursor();
}

void Tablero::Col(int col) {
    comprueba_columna(col);
    cursor_.col = cursor_.col_sel = col;
    avisa_cursor();
}

void Tablero::RowSel(int fila) {
    comprueba_fila(fila);
    cursor_.fila_sel = fila;
    avisa_cursor();
}

void Tablero::ColSel(int col) {
    comprueba_columna(col);
    cursor_.col_sel = col;
    avisa_cursor();
}

void Tablero::selecciona(int fila, int col, int fila_sel, int col_sel) {
    comprueba(fila, col);
    comprueba(fila_sel, col_sel);
    cursor_ = {fila, col, fila_sel, col_sel};
    avisa_cursor();
}

Bloque Tablero::seleccion() const {
    const auto [fila1, fila2] = std::minmax(cursor_.fila, cursor_.fila_sel);
    const auto [col1, col2] = std::minmax(cursor_.col, cursor_.col_sel);
    return {fila1, col1, fila2, col2};
}

// The part that is seen

void Tablero::TopRow(int fila) {
    parte_.fila_superior = std::clamp(fila, 1, std::max(1, Rows() - 1));
    avisa_parte();
}

void Tablero::desplazamiento(int twips) {
    parte_.desplazamiento = std::max(twips, 0);
    ajusta();
}

void Tablero::pon_vista(int ancho, int alto) {
    sin_hueco_nuevo([&] {
        ancho_vista_ = std::max(ancho, 0);
        alto_vista_ = std::max(alto, 0);
    });
}

// A window that was full of rows stays so while there are rows above: they come down into the room gained.
void Tablero::sin_hueco_nuevo(const std::function<void()>& cambia) {
    const bool llena = alto_vista_ > 0 && TopRow() <= fila_superior_maxima(*this);
    cambia();
    if (llena) parte_.fila_superior = std::min(TopRow(), fila_superior_maxima(*this));
    ajusta();
}

// Brings the current cell, the selection and the part that is seen back into what there is. Done before any
// notice, so that a view that reads the grid in one never meets a place that is gone.
void Tablero::recorta() {
    const int fila = std::max(0, Rows() - 1);
    const int col = std::max(0, Cols() - 1);
    cursor_ = {std::min(cursor_.fila, fila), std::min(cursor_.col, col), std::min(cursor_.fila_sel, fila),
        std::min(cursor_.col_sel, col)};
    std::int64_t ancho = 0;
    for (const Columna& c : columnas_) ancho += std::max(c.ancho, 0);
    const std::int64_t sobra = std::max<std::int64_t>(0, ancho - ancho_vista_);
    parte_.desplazamiento = static_cast<int>(std::min<std::int64_t>(parte_.desplazamiento, sobra));
    parte_.fila_superior = std::min(parte_.fila_superior, std::max(1, Rows() - 1));
}

void Tablero::ajusta() {
    recorta();
    avisa_cursor();
    avisa_parte();
}

// Notices

void Tablero::Redraw(bool si) {
    if (si == Redraw()) return;
    if (!si) return avisos_.retiene();
    avisos_.suelta();
    avisa_cursor();
    avisa_parte();
}

void Tablero::avisa_cursor() {
    if (!Redraw() || cursor_ == cursor_avisado_) return;
    cursor_avisado_ = cursor_;
    avisos_.vista().seleccion_cambiada();
}

void Tablero::avisa_parte() {
    if (!Redraw() || parte_ == parte_avisada_) return;
    parte_avisada_ = parte_;
    avisos_.vista().vista_desplazada();
}

// Cells of the block changed; an empty block is none.
void Tablero::avisa(const Bloque& b) {
    if (b.fila1 <= b.fila2 && b.col2 < Cols()) avisos_.celdas_cambiadas(b.fila1, b.col1, b.fila2, b.col2);
}

} // namespace Qlt4_Tabla
