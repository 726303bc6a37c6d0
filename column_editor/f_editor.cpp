// SPDX-License-Identifier: MIT
// The form of the column editor: properties, loading, check boxes, commands, layout, place:
// column_editor/f_editor.h.
#include "column_editor/f_editor.h"

#include "base/numeros.h"
#include "column_editor/textos.h"
#include "core/sin_errores.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr std::string_view APLICACION = "Tabla";
constexpr std::string_view SECCION = "Pos"; // and the caption's end
constexpr std::string_view IZQUIERDA = "MainLeft";
constexpr std::string_view ARRIBA = "MainTop";
constexpr std::string_view ANCHO = "MainWidth";
constexpr std::string_view ALTO = "MainHeight";
constexpr double LUGAR_MAXIMO = 1e7; // beyond any screen

// The form, in twips.
constexpr float ANCHO_DISENO = 9900; // the grid's columns and a scroll bar
constexpr float ALTO_DISENO = 5400;
constexpr int ANCHO_MINIMO = 7500;
constexpr int ALTO_MINIMO = 2500;
constexpr int SEPARACION = 120; // between the controls of the strip, and from the form's edges

constexpr std::int16_t LONGITUD_MINIMA_COLUMNA0 = 5;

// A number of the settings store; nothing where there is none or it is on no screen.
std::optional<float> lee_numero(
    const Ajustes& ajustes, std::string_view aplicacion, std::string_view seccion, std::string_view clave) {
    std::optional<double> n;
    sin_errores([&] {
        if (const auto texto = ajustes.lee(aplicacion, seccion, clave)) n = numero_de_texto(*texto);
    });
    if (!n || std::abs(*n) > LUGAR_MAXIMO) return std::nullopt;
    return static_cast<float>(*n);
}

} // namespace

f_Editor::f_Editor(RegistrosEditor& registros, const Plataforma& plataforma)
    : registros_(registros),
      dialogo_(plataforma.dialogo_columnas),
      ajustes_(plataforma.ajustes),
      rejilla_(registros, plataforma.mensajes, visto_) {
    visto_.ancho_minimo = ANCHO_MINIMO;
    visto_.alto_minimo = ALTO_MINIMO;
}

std::string f_Editor::A_Aplicacion() const {
    return aplicacion_.empty() ? std::string(APLICACION) : aplicacion_;
}

void f_Editor::A_Aplicacion(std::string_view aplicacion) {
    aplicacion_ = aplicacion.empty() ? APLICACION : aplicacion;
}

void f_Editor::A_Caption(std::string_view caption) {
    if (!caption.empty()) caption_ = caption;
}

void f_Editor::Iniciar(std::string_view aplicacion, std::string_view caption, std::int16_t columnas) {
    A_Aplicacion(aplicacion);
    A_Caption(caption);
    NumeroColumnas(columnas);
    msfEditor_rellena_datos();
}

void f_Editor::muestra() {
    carga();
    lee_sitio();
    visto_.abierto = true;
    dialogo_.ejecuta(*this);
    if (visto_.abierto) deja(false, false);
    graba_sitio();
}

// What the check boxes are set to is no change by the user. Ticking the first one runs its rule all the same.
void f_Editor::carga() {
    registros_.aceptado = false;
    visto_.titulo = textos::configuracion;
    visto_.titulo += caption_;
    visto_.texto_etiqueta = textos::numero_filas;
    visto_.texto_etiqueta += caption_;
    visto_.puede_aplicar = false;
    rejilla_.carga();
    visto_.columna0 = !registros_.formato(0).Invisible;
    if (visto_.columna0) ve_columna0(true);
    visto_.etiqueta = registros_.formato(0).Bloqueada;
}

void f_Editor::ve_columna0(bool si) {
    T_FormatoColumna& f = registros_.formato(0);
    f.Invisible = !si;
    f.Longitud = std::max(f.Longitud, LONGITUD_MINIMA_COLUMNA0);
}

void f_Editor::marca(MarcaColumnas cual, bool marcada) {
    if (cual == MarcaColumnas::Columna0) {
        visto_.columna0 = marcada;
        ve_columna0(marcada);
    } else {
        visto_.etiqueta = marcada;
        registros_.formato(0).Bloqueada = marcada;
    }
    visto_.puede_aplicar = true;
}

void f_Editor::orden(OrdenColumnas orden) {
    switch (orden) {
    case OrdenColumnas::Aplicar:
        rejilla_.confirma_y_cierra();
        if (!visto_.puede_aplicar) return;
        rejilla_.lleva_a_formatos();
        deja(true, false);
        break;
    case OrdenColumnas::PorDefecto: deja(true, true); break;
    case OrdenColumnas::Salir: deja(false, false); break;
    }
}

void f_Editor::deja(bool aceptado, bool por_defecto) {
    rejilla_.descarta();
    registros_.aceptado = aceptado;
    registros_.por_defecto = por_defecto;
    visto_.abierto = false;
}

// --- Layout and place ---

DistribucionColumnas f_Editor::distribuye(const MedidasColumnas& m) const {
    const int franja = m.alto_boton + m.alto_boton / 5;
    const int y = m.alto - m.alto_boton - m.alto_boton / 10;
    int x = SEPARACION;
    int fin = m.ancho - SEPARACION;
    const auto desde_la_derecha = [&](int ancho) {
        fin -= ancho;
        return Rectangulo{std::exchange(fin, fin - SEPARACION), y, ancho, m.alto_boton};
    };
    const auto desde_la_izquierda = [&](int ancho) {
        const int cabe = std::clamp(ancho, 0, std::max(0, fin - x));
        return Rectangulo{std::exchange(x, x + cabe + 2 * SEPARACION), y, cabe, m.alto_boton};
    };
    DistribucionColumnas d;
    d.rejilla = {0, 0, m.ancho, std::max(0, m.alto - franja)};
    d.cancelar = desde_la_derecha(m.cancelar);
    d.aplicar = desde_la_derecha(m.aplicar);
    d.columna0 = desde_la_izquierda(m.columna0);
    d.etiqueta = desde_la_izquierda(m.etiqueta);
    d.mensaje = desde_la_izquierda(m.ancho);
    return d;
}

void f_Editor::lee_sitio() {
    const std::string aplicacion = A_Aplicacion();
    const std::string seccion = std::string(SECCION) + caption_;
    const auto lee = [&](std::string_view clave) { return lee_numero(ajustes_, aplicacion, seccion, clave); };
    visto_.izquierda = lee(IZQUIERDA);
    visto_.arriba = lee(ARRIBA);
    visto_.ancho = std::max(lee(ANCHO).value_or(ANCHO_DISENO), static_cast<float>(ANCHO_MINIMO));
    visto_.alto = std::max(lee(ALTO).value_or(ALTO_DISENO), static_cast<float>(ALTO_MINIMO));
}

void f_Editor::graba_sitio() {
    const std::array<std::string, 4> numeros{numero_a_texto(sitio_.izquierda), numero_a_texto(sitio_.arriba),
        numero_a_texto(sitio_.ancho), numero_a_texto(sitio_.alto)};
    const std::array<Ajuste, 4> sitio{
        {{IZQUIERDA, numeros[0]}, {ARRIBA, numeros[1]}, {ANCHO, numeros[2]}, {ALTO, numeros[3]}}};
    ajustes_.escribe_todos(A_Aplicacion(), std::string(SECCION) + caption_, sitio);
}

} // namespace Qlt4_Tabla
