// SPDX-License-Identifier: MIT
// Filling, clicks, keys and the text box of the column editor's grid: column_editor/msf_editor.h.
#include "column_editor/msf_editor.h"

#include "base/aritmetica.h"
#include "base/numeros.h"
#include "base/pagina1252.h"
#include "base/teclas.h"
#include "base/utf8.h"
#include "column_editor/textos.h"
#include "column_editor/textos_celda.h"
#include "core/reglas_valor.h"

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr std::int32_t GRIS_CLARO = 0xE0E0E0;
constexpr double ANCHO_TOPE = 500; // widths are below it
constexpr double DECIMALES_TOPE = 11;
constexpr int PRIMERA_IMPRIMIBLE = 33;
constexpr int ULTIMA_IMPRIMIBLE = 127;
/// The caret after the first typed character; beyond the text, so its end.
constexpr int TRAS_LA_TECLA = 2;

constexpr bool se_escribe(int col) { return col == ED_NOMBRE || col == ED_ANCHO || col == ED_DECIMALES; }

} // namespace

// --- Filling ---

void MsfEditor::rellena(int n) {
    descarta();
    columnas_ = n;
    t_.FormatString(textos::cadena_formato);
    t_.Cols(ED_COLUMNAS);
    t_.Rows(n + 1);
    va_a(1, ED_NOMBRE);
    t_.ColWidth(ED_FIJA, 0);
    t_.ColWidth(ED_VACIA, 0);
    for (int fila = 1; fila < t_.Rows(); ++fila) rellena_fila(fila);
    pon(0, 0, textos::esquina_editor);
}

void MsfEditor::rellena_fila(int fila) {
    T_FormatoColumna f = registros_.formato(fila); // a copy: showing repairs nothing
    pon(fila, ED_NOMBRE, f.Nombre);
    pon(fila, ED_VISIBLE, texto_visible(f.Invisible));
    pon(fila, ED_BLOQUEADA, texto_bloqueada(f.Bloqueada));
    pon(fila, ED_ANCHO, numero_a_texto(f.Longitud));
    pon(fila, ED_DECIMALES,
        es_real(f.Formato) ? numero_a_texto(f.Decimales) : std::string(textos::sin_decimales));
    pon(fila, ED_ALINEACION, texto_alineacion(f.Alineacion));
    pon(fila, ED_ACCION, texto_accion(f.Accion));
}

void MsfEditor::carga() {
    t_.color_fondo(Bloque{0, ED_VACIA, 0, ED_VACIA}, GRIS_CLARO);
    va_a(1, ED_NOMBRE);
}

// --- Clicks ---

// A step of the click: its error is shown, and whoever called goes on with the next one.
void MsfEditor::paso(const std::function<void()>& hace) {
    try {
        hace();
    } catch (const Error& e) {
        mensajes_.mensaje(std::string(textos::otro_error) + e.descripcion(), EstiloMensaje::Simple, {});
    }
}

void MsfEditor::clic(int fila, int col) {
    if (fila < 1 || fila >= t_.Rows() || col < 0 || col >= t_.Cols()) return;
    va_a(fila, col);
    switch (col) {
    case ED_NOMBRE:
    case ED_ANCHO:
    case ED_DECIMALES: return abre_entera();
    case ED_VISIBLE: return alterna_visible(fila);
    case ED_BLOQUEADA: return alterna_bloqueada(fila);
    case ED_ALINEACION: return gira(fila, col, &T_FormatoColumna::Alineacion, texto_alineacion);
    case ED_ACCION: return gira(fila, col, &T_FormatoColumna::Accion, texto_accion);
    default: return;
    }
}

// The search for a visible column finds the clicked one itself, which is still visible: the last one can be
// hidden too. Meant so.
void MsfEditor::alterna_visible(int fila) {
    bool& invisible = registros_.formato(fila).Invisible;
    if (invisible) {
        invisible = false;
    } else if (registros_.hay_visible(columnas_)) {
        invisible = true;
    } else {
        visto_.mensaje = textos::ha_de_verse_una;
        mensajes_.pitido();
    }
    pon(fila, ED_VISIBLE, texto_visible(invisible));
    cambiado();
}

void MsfEditor::alterna_bloqueada(int fila) {
    bool& bloqueada = registros_.formato(fila).Bloqueada;
    bloqueada = !bloqueada;
    pon(fila, ED_BLOQUEADA, texto_bloqueada(bloqueada));
    cambiado();
}

void MsfEditor::gira(int fila, int col, std::int16_t T_FormatoColumna::*campo,
    std::string_view (*texto)(std::int16_t&) noexcept) {
    std::int16_t& valor = registros_.formato(fila).*campo;
    paso([&] { valor = suma16(valor, 1); });
    pon(fila, col, texto(valor));
    cambiado();
}

void MsfEditor::raton(PulsoRaton pulso, int x, int y) {
    if (pulso == PulsoRaton::Abajo) return pulsa_en(celda_en(t_, x, y));
    const Celda pulsada = std::exchange(pulsada_, {});
    if (celda_en(t_, x, y) == pulsada) clic(pulsada.fila, pulsada.col);
}

void MsfEditor::pulsa_en(const Celda& celda) {
    confirma_y_cierra();
    pulsada_ = celda;
    if (celda.fila >= 1 && celda.col >= 1) t_.selecciona(celda.fila, celda.col, celda.fila, celda.col);
}

// --- Keys of the grid ---

bool MsfEditor::hay_celda() const { return t_.Row() >= 1 && t_.Col() >= 1; }

// Enter and F2, and what acts like them.
void MsfEditor::actua() {
    if (hay_celda()) clic(t_.Row(), t_.Col());
}

bool MsfEditor::tecla_abajo(int KeyCode) {
    if (casilla_.abierta) return false;
    if (KeyCode != teclas::INTRO && KeyCode != teclas::F2) return mueve(KeyCode);
    actua();
    return true;
}

bool MsfEditor::tecla_pulsada(int KeyAscii) {
    const int col = t_.Col();
    if (casilla_.abierta || !hay_celda()) return false;
    if (KeyAscii == teclas::INTRO || KeyAscii == teclas::ESPACIO) {
        actua();
        return true;
    }
    if (KeyAscii < PRIMERA_IMPRIMIBLE || KeyAscii > ULTIMA_IMPRIMIBLE || !se_escribe(col)) return false;
    if (KeyAscii == '+' || KeyAscii == '.' || KeyAscii == '-') return true; // also where names are typed
    const int tecla = col == ED_NOMBRE ? KeyAscii : filtra_digito(KeyAscii);
    if (tecla != 0) abre(utf8::codifica(punto_de_tecla(tecla)), TRAS_LA_TECLA, 0);
    return true;
}

bool MsfEditor::mueve(int KeyCode) {
    if (!hay_celda()) return false;
    const int pagina = std::max(1, filas_visibles(t_));
    int fila = t_.Row();
    int col = t_.Col();
    const auto busca = [&](int desde, int paso) {
        for (int c = desde; c >= 1 && c < t_.Cols(); c += paso)
            if (t_.ancho_visible(c) > 0) return c;
        return t_.Col();
    };
    switch (KeyCode) {
    case teclas::ARRIBA: --fila; break;
    case teclas::ABAJO: ++fila; break;
    case teclas::REPAG: fila -= pagina; break;
    case teclas::AVPAG: fila += pagina; break;
    case teclas::IZQUIERDA: col = busca(col - 1, -1); break;
    case teclas::DERECHA: col = busca(col + 1, 1); break;
    case teclas::INICIO: col = busca(1, 1); break;
    case teclas::FIN: col = busca(t_.Cols() - 1, -1); break;
    default: return false;
    }
    va_a(fila, col);
    return true;
}

/// To the nearest row there is; without data rows only the column counts.
void MsfEditor::va_a(int fila, int col) {
    const int cual = std::clamp(fila, std::min(1, t_.Rows() - 1), t_.Rows() - 1);
    t_.selecciona(cual, col, cual, col);
    muestra_celda(t_, cual, col);
    recoloca();
}

void MsfEditor::mide(int ancho, int alto, int alto_fila) {
    t_.alto_normal(alto_fila);
    t_.pon_vista(ancho, alto);
    recoloca();
}

void MsfEditor::desplaza(int fila_superior, int desplazamiento) {
    t_.TopRow(fila_superior);
    t_.desplazamiento(desplazamiento);
    recoloca();
}

// --- The text box ---

void MsfEditor::abre(std::string texto, int inicio, int longitud) {
    muestra_celda(t_, t_.Row(), t_.Col());
    casilla_ = {true, std::move(texto), inicio, longitud, {}, t_.Row(), t_.Col()};
    recoloca();
}

void MsfEditor::abre_entera() {
    std::string texto(t_.TextMatrix(t_.Row(), t_.Col()));
    const int longitud = static_cast<int>(utf8::longitud(texto));
    abre(std::move(texto), 0, longitud);
}

void MsfEditor::recoloca() {
    if (casilla_.abierta) casilla_.sitio = rectangulo_celda(t_, casilla_.fila, casilla_.col);
}

// Nobody types blindly into what was scrolled away.
void MsfEditor::escribe_casilla(std::string_view texto) {
    if (!casilla_.abierta) return;
    casilla_.texto = texto;
    muestra_celda(t_, casilla_.fila, casilla_.col);
    recoloca();
}

// The pair of columns that are filtered leaves the decimals out; meant so.
int MsfEditor::tecla_casilla(int KeyAscii) {
    if (KeyAscii == teclas::ESCAPE) {
        descarta();
        return 0;
    }
    if (KeyAscii == teclas::INTRO) {
        confirma_y_cierra();
        return 0;
    }
    return t_.Col() == ED_VACIA || t_.Col() == ED_ANCHO ? filtra_digito(KeyAscii) : KeyAscii;
}

void MsfEditor::descarta() { casilla_.abierta = false; }

// Closed first: whatever takes the focus away meanwhile commits nothing again.
void MsfEditor::confirma_y_cierra() {
    if (std::exchange(casilla_.abierta, false)) confirma();
}

bool MsfEditor::se_acepta(std::string_view texto) const {
    const double valor = Valor_Numerico(texto);
    switch (casilla_.col) {
    case ED_NOMBRE: return true;
    case ED_ANCHO: return valor > 0 && valor < ANCHO_TOPE;
    case ED_DECIMALES: return valor >= 0 && valor < DECIMALES_TOPE;
    default: return false;
    }
}

void MsfEditor::confirma() {
    const std::string& texto = casilla_.texto;
    if (casilla_.fila == 0 || casilla_.col == 0 || texto.empty()) return;
    if (!se_acepta(texto) || texto == t_.TextMatrix(casilla_.fila, casilla_.col)) return;
    pon(casilla_.fila, casilla_.col, texto);
    cambiado();
}

void MsfEditor::lleva_a_formatos() {
    for (int fila = 1; fila < t_.Rows(); ++fila) {
        T_FormatoColumna& f = registros_.formato(fila);
        f.Nombre = t_.TextMatrix(fila, ED_NOMBRE);
        f.Longitud = entero16_de_real(Valor_Numerico(t_.TextMatrix(fila, ED_ANCHO)));
        const double decimales = Valor_Numerico(t_.TextMatrix(fila, ED_DECIMALES));
        if (decimales > 0) f.Decimales = entero16_de_real(decimales);
    }
}

} // namespace Qlt4_Tabla
