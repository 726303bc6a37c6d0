// SPDX-License-Identifier: MIT
// The in-cell editor: its openings, its keys, its commits and its end. The states and what the host may do
// inside the events are told in the header.
#include "editing/editor_celda.h"

#include "base/pagina1252.h"
#include "base/teclas.h"
#include "base/utf8.h"
#include "core/geometria.h"
#include "core/reglas_valor.h"
#include "editing/textos.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace Qlt4_Tabla {

namespace {

const Matriz<std::string>& valores(const EstadoTabla& e, int col) {
    return e.listas[static_cast<std::size_t>(col)].Col;
}

std::string_view signos(std::int16_t formato) {
    const bool con_signo = es_formato(formato, T_formato::Entero) || es_formato(formato, T_formato::Real__);
    return con_signo ? "-" : "+";
}

bool admite_decimales(const T_FormatoColumna& f) { return es_real(f.Formato) && f.Decimales != 0; }

int longitud(std::string_view texto) { return static_cast<int>(utf8::longitud(texto)); }

/// A colour cell takes its own background again when colour editing is on; without one it stays without.
void repasa_fondo(EstadoTabla& e, int fila, int col) {
    if (!e.edicionColor || !e.tablero.tiene_fondo(fila, col)) return;
    e.tablero.color_fondo({fila, col, fila, col}, e.tablero.color_fondo(fila, col));
}

} // namespace

void EditorCelda::abre_por_doble_clic() {
    confirma_y_oculta();
    const int col = e_.tablero.Col();
    const T_FormatoColumna& f = formato(e_, col);
    if (f.Invisible || f.Bloqueada) {
        if (f.Invisible) e_.plataforma.mensajes.pitido();
        std::string texto(textos::columna_antes);
        texto += e_.tablero.TextMatrix(0, col);
        texto += textos::columna_despues;
        muestra_mensaje(e_, texto);
        return;
    }
    if (coloca() && abierta_casilla())
        e_.plataforma.casilla.selecciona(0, longitud(e_.plataforma.casilla.texto()));
}

void EditorCelda::abre_por_F2() {
    confirma_y_oculta();
    coloca();
}

void EditorCelda::abre_por_tecla(int KeyAscii) {
    confirma_y_oculta();
    const T_FormatoColumna& f = formato(e_, e_.tablero.Col());
    if (f.Invisible || f.Bloqueada) return;
    if (es_numerico(f.Formato)) KeyAscii = Filtra_Tecla_Tablero(KeyAscii, admite_decimales(f));
    if (KeyAscii <= teclas::ESPACIO && KeyAscii != teclas::RETROCESO) return;
    if (!coloca() || !abierta_casilla()) return;
    e_.plataforma.casilla.pon_texto(utf8::codifica(punto_de_tecla(KeyAscii)));
}

int EditorCelda::tecla_casilla(int KeyAscii) {
    if (KeyAscii == teclas::ESCAPE) {
        if (abierta_casilla()) cierra();
        enfoca();
        return 0;
    }
    const int col = abierta_casilla() ? col_ : e_.tablero.Col();
    const std::int16_t clase = formato(e_, col).Formato;
    const bool espacio_confirma = KeyAscii == teclas::ESPACIO && !es_texto(clase);
    if (KeyAscii == teclas::INTRO || espacio_confirma) {
        confirma_y_avanza();
        return 0;
    }
    enseña_celda();
    return abierta_casilla() && es_numerico(clase) ? filtra(KeyAscii) : KeyAscii;
}

// Nobody types blindly into what was scrolled away.
void EditorCelda::enseña_celda() {
    if (!abierto() || !existe_celda()) return;
    muestra_celda(e_.tablero, fila_, col_);
    recoloca();
}

int EditorCelda::filtra(int KeyAscii) {
    CajaTexto& caja = e_.plataforma.casilla;
    const T_FormatoColumna& f = formato(e_, col_);
    const std::string texto = caja.texto();
    const ResultadoFiltro filtrado = Filtra_Tecla(KeyAscii, signos(f.Formato), admite_decimales(f), texto);
    if (filtrado.reescrito) {
        const int hasta_el_final = longitud(texto) - caja.cursor();
        caja.pon_texto(filtrado.texto);
        caja.selecciona(longitud(filtrado.texto) - hasta_el_final, 0);
    }
    return filtrado.KeyAscii;
}

void EditorCelda::teclea(int KeyAscii) {
    if (abierta_lista()) tecla_lista(KeyAscii);
    if (!abierta_casilla() || tecla_casilla(KeyAscii) < teclas::ESPACIO) return;
    CajaTexto& caja = e_.plataforma.casilla;
    const std::string texto = caja.texto();
    const std::string caracter = utf8::codifica(punto_de_tecla(KeyAscii));
    const int cursor = caja.cursor();
    const std::size_t donde = utf8::byte_de(texto, static_cast<std::size_t>(cursor));
    caja.pon_texto(texto.substr(0, donde) + caracter + texto.substr(donde));
    caja.selecciona(cursor + 1, 0);
}

int EditorCelda::tecla_lista(int KeyAscii) {
    if (KeyAscii == teclas::ESCAPE) {
        if (abierta_lista()) cierra();
        enfoca();
        return 0;
    }
    if (KeyAscii != teclas::INTRO && KeyAscii != teclas::ESPACIO) {
        enseña_celda();
        return KeyAscii;
    }
    confirma_y_avanza();
    return 0;
}

void EditorCelda::clic_lista() {
    if (abierta_lista()) confirma_y_cierra();
}

void EditorCelda::casilla_pierde_foco(MotivoFoco motivo) {
    if (motivo == MotivoFoco::Otro && abierta_casilla()) confirma_y_oculta();
}

void EditorCelda::lista_pierde_foco(MotivoFoco motivo) {
    if (motivo == MotivoFoco::Otro && abierta_lista()) confirma_y_oculta();
}

void EditorCelda::confirma_y_cierra() {
    if (abierto()) y_enfoca([this] { confirma_y_oculta(); });
}

void EditorCelda::descarta() {
    if (!abierto()) return;
    cierra();
    enfoca();
}

void EditorCelda::recoloca() {
    if (!abierto()) return;
    if (!existe_celda()) {
        descarta();
        return;
    }
    const Rectangulo celda = rectangulo_celda(e_.tablero, fila_, col_);
    if (abierta_casilla())
        e_.plataforma.casilla.mueve(celda);
    else
        e_.plataforma.lista.mueve(celda);
}

bool EditorCelda::coloca() {
    const int fila = e_.tablero.Row();
    const int col = e_.tablero.Col();
    const T_FormatoColumna& f = formato(e_, col);
    const bool lista = es_formato(f.Formato, T_formato::ListaU);
    if (lista && valores(e_, col).empty()) return false;
    if (es_formato(f.Formato, T_formato::Color_)) repasa_fondo(e_, fila, col);
    muestra_celda(e_.tablero, fila, col);
    termina_mensaje(e_);
    fila_ = fila;
    col_ = col;
    if (lista)
        abre_lista(fila, col);
    else
        abre_casilla(fila, col);
    return true;
}

void EditorCelda::abre_casilla(int fila, int col) {
    que_ = Que::Casilla;
    const std::string texto(e_.tablero.TextMatrix(fila, col));
    e_.plataforma.casilla.muestra(rectangulo_celda(e_.tablero, fila, col), texto);
}

void EditorCelda::abre_lista(int fila, int col) {
    que_ = Que::Lista;
    const Matriz<std::string>& lista = valores(e_, col);
    const std::span<const std::string> entradas(lista.begin(), lista.end());
    const auto igual = std::find(entradas.begin(), entradas.end(), e_.tablero.TextMatrix(fila, col));
    const int elegida = igual != entradas.end() ? static_cast<int>(igual - entradas.begin()) : -1;
    e_.plataforma.lista.muestra(rectangulo_celda(e_.tablero, fila, col), entradas, elegida);
}

void EditorCelda::Casilla_Confirma() {
    if (!existe_celda() || col_ == 0 || fila_ == 0) return;
    std::string texto = e_.plataforma.casilla.texto();
    if (texto.empty() || texto == e_.tablero.TextMatrix(fila_, col_)) return;
    const T_FormatoColumna f = formato(e_, col_);
    bool escribe = true;
    switch (f.Formato) {
    case static_cast<std::int16_t>(T_formato::Entero):
    case static_cast<std::int16_t>(T_formato::EntPos):
    case static_cast<std::int16_t>(T_formato::Real__):
    case static_cast<std::int16_t>(T_formato::RealPo):
        refresca_ComaDecimal(e_);
        texto = Formato_Numero(Valor_Numerico(texto), 0, es_real(f.Formato) ? f.Decimales : 0);
        break;
    case static_cast<std::int16_t>(T_formato::Alfanm):
    case static_cast<std::int16_t>(T_formato::Color_): break;
    case static_cast<std::int16_t>(T_formato::ListaU): // the column became a list under the open box
        texto = e_.plataforma.lista.texto();
        escribe = !texto.empty();
        break;
    default: escribe = false; break; // pictures and unknown kinds keep their text; the host hears of it
    }
    confirma(texto, escribe);
}

void EditorCelda::cobLista_Confirma() {
    if (!existe_celda() || col_ == 0 || fila_ == 0) return;
    const std::string texto = e_.plataforma.lista.texto();
    if (texto.empty() || texto == e_.tablero.TextMatrix(fila_, col_)) return;
    confirma(texto, true);
}

void EditorCelda::confirma(const std::string& texto, bool escribe) {
    e_.revoca.Graba_Revoca();
    e_.Modificado = 1;
    if (escribe) e_.tablero.TextMatrix(fila_, col_, texto);
    termina_mensaje(e_);
    e_.eventos.CambiaCasilla();
}

void EditorCelda::escribe_eleccion() {
    const std::string texto = e_.plataforma.lista.texto();
    const bool hay = e_.plataforma.lista.elegida() >= 0;
    cierra();
    if (hay && existe_celda() && fila_ != 0 && col_ != 0) e_.tablero.TextMatrix(fila_, col_, texto);
}

void EditorCelda::confirma_y_oculta() {
    const Que que = std::exchange(que_, Que::Nada);
    if (que == Que::Nada) return;
    try {
        if (que == Que::Casilla)
            Casilla_Confirma();
        else
            cobLista_Confirma();
    } catch (...) {
        if (que_ != que) oculta(que);
        throw;
    }
    if (que_ != que) oculta(que); // unless the host opened the same one again
}

void EditorCelda::confirma_y_avanza() {
    if (abierto() && !existe_celda()) {
        descarta();
        return;
    }
    y_enfoca([this] {
        if (abierta_lista())
            escribe_eleccion();
        else
            confirma_y_oculta();
        if (!abierto()) avanza_(); // unless the host opened another
    });
}

// The grid takes the focus afterwards, also after an error, unless the host opened an editor.
template <class F>
void EditorCelda::y_enfoca(F&& hace) {
    try {
        hace();
    } catch (...) {
        if (!abierto()) enfoca();
        throw;
    }
    if (!abierto()) enfoca();
}

bool EditorCelda::existe_celda() const { return fila_ < e_.tablero.Rows() && col_ < e_.tablero.Cols(); }

void EditorCelda::cierra() { oculta(std::exchange(que_, Que::Nada)); }

void EditorCelda::oculta(Que que) {
    if (que == Que::Casilla) e_.plataforma.casilla.oculta();
    if (que == Que::Lista) e_.plataforma.lista.oculta();
}

void EditorCelda::enfoca() { e_.plataforma.marco.enfoca_tablero(); }

} // namespace Qlt4_Tabla
