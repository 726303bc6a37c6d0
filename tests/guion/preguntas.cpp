// SPDX-License-Identifier: MIT
// The questions of the scripts about what the table holds and what is seen.
#include "tests/guion/pasos.h"

#include <array>
#include <cstdlib>
#include <utility>

namespace Qlt4_Tabla {

namespace {

using Pregunta = void (*)(Conductor&, Palabras&);

/// How far the place of an editor may be from its cell: a window works in pixels.
constexpr int TOLERANCIA_TWIPS = 90;

void compara(const std::string& esperado, const std::string& hallado) {
    if (esperado != hallado) throw FalloGuion("expected <" + esperado + ">, found <" + hallado + ">");
}

std::string escrito(std::initializer_list<int> numeros) {
    std::string texto;
    for (const int n : numeros) {
        if (!texto.empty()) texto += ' ';
        texto += std::to_string(n);
    }
    return texto;
}

// The rest of the question are whole numbers, and these are the right ones.
void compara_numeros(Palabras& p, std::initializer_list<int> hallados) {
    std::string esperado = std::to_string(p.entero());
    while (p.quedan()) esperado += ' ' + std::to_string(p.entero());
    compara(esperado, escrito(hallados));
}

const Tablero& tablero(Conductor& c) { return c.tabla().tablero(); }

void celda(Conductor& c, Palabras& p) {
    const Celda celda = p.celda();
    p.exige("=");
    compara(p.resto(), std::string(tablero(c).TextMatrix(celda.fila, celda.col)));
}

void leida(Conductor& c, Palabras& p) {
    const Celda celda = p.celda();
    p.exige("=");
    compara(p.resto(), c.tabla().TextMatrix(celda.fila, celda.col));
}

void fondo(Conductor& c, Palabras& p) {
    const Celda celda = p.celda();
    p.exige("=");
    const Tablero& t = tablero(c);
    const bool hay = t.tiene_fondo(celda.fila, celda.col);
    compara(p.palabra(), hay ? std::to_string(t.color_fondo(celda.fila, celda.col)) : "nada");
}

void letra(Conductor& c, Palabras& p) {
    const Celda celda = p.celda();
    p.exige("=");
    compara(p.palabra(), std::to_string(tablero(c).color_texto(celda.fila, celda.col)));
}

void seleccion(Conductor& c, Palabras& p) {
    const Tablero& t = tablero(c);
    compara_numeros(p, {t.Row(), t.Col(), t.RowSel(), t.ColSel()});
}

void ve(Conductor& c, Palabras& p) {
    const Celda celda = p.celda();
    const Rectangulo entera = rectangulo_celda(tablero(c), celda.fila, celda.col);
    if (parte_visible(tablero(c), celda.fila, celda.col) != entera)
        throw FalloGuion("the cell is not seen whole");
}

void casilla(Conductor& c, Palabras& p) {
    const EditorVisto visto = c.editor();
    if (p.toma("cerrada")) return compara("closed", visto.casilla ? "open" : "closed");
    p.exige("abierta");
    compara("open", visto.casilla ? "open" : "closed");
    compara(p.palabra(), visto.texto);
    if (p.toma("cursor") && p.entero() != visto.cursor)
        throw FalloGuion("the caret stands at " + std::to_string(visto.cursor));
    const bool hay_marca = p.toma("marca");
    const int inicio = hay_marca ? p.entero() : 0;
    const int longitud = hay_marca ? p.entero() : 0;
    if (longitud != visto.marca_longitud || (hay_marca && inicio != visto.marca_inicio))
        throw FalloGuion("selected: " + escrito({visto.marca_inicio, visto.marca_longitud}));
}

void lista(Conductor& c, Palabras& p) {
    const EditorVisto visto = c.editor();
    if (p.toma("cerrada")) return compara("closed", visto.lista ? "open" : "closed");
    p.exige("abierta");
    compara("open", visto.lista ? "open" : "closed");
    compara(p.resto(), visto.texto);
}

void entradas(Conductor& c, Palabras& p) {
    std::string todas;
    for (const std::string& entrada : c.editor().entradas) todas += (todas.empty() ? "" : "|") + entrada;
    compara(p.resto(), todas);
}

bool cerca(int a, int b) { return std::abs(a - b) <= TOLERANCIA_TWIPS; }

void editor(Conductor& c, Palabras& p) {
    const EditorVisto visto = c.editor();
    const EditorCelda& suyo = c.tabla().mandos().editor();
    if (p.toma("cerrado")) {
        compara("closed", visto.casilla || visto.lista ? "open" : "closed");
        return compara("closed", suyo.abierto() ? "open" : "closed");
    }
    p.exige("sobre");
    compara("open", visto.casilla || visto.lista ? "open" : "closed");
    const Celda celda = p.celda();
    compara(escrito({celda.fila, celda.col}), escrito({suyo.fila(), suyo.col()}));
    const Rectangulo r = rectangulo_celda(tablero(c), celda.fila, celda.col);
    const Rectangulo& s = visto.sitio;
    // The drop-down keeps its own height, centred on the cell.
    const bool sitio_bien = cerca(r.izquierda, s.izquierda) && cerca(r.ancho, s.ancho) &&
        (visto.lista || (cerca(r.arriba, s.arriba) && cerca(r.alto, s.alto)));
    if (!sitio_bien)
        throw FalloGuion("the editor lies at " + escrito({s.izquierda, s.arriba, s.ancho, s.alto}) +
            ", its cell at " + escrito({r.izquierda, r.arriba, r.ancho, r.alto}));
}

void mensaje(Conductor& c, Palabras& p) {
    const Etiqueta& etiqueta = c.tabla().estado().etiquetas.labMensaje;
    const bool visible = p.toma("visible");
    compara(visible ? "visible" : "hidden", etiqueta.visible ? "visible" : "hidden");
    compara(etiqueta.visible ? etiqueta.texto : "", c.etiquetas().mensaje);
    if (!visible && p.toma("oculto")) return;
    if (!visible) p.exige("estado");
    compara(p.resto(), etiqueta.texto);
}

void etiqueta(Conductor& c, Palabras& p) { compara(p.resto(), c.etiquetas().numero_filas); }

void foco(Conductor& c, Palabras& p) {
    constexpr std::array<std::pair<std::string_view, Foco>, 4> NOMBRES{{{"tablero", Foco::Tablero},
        {"casilla", Foco::Casilla}, {"lista", Foco::Lista}, {"fuera", Foco::Nadie}}};
    const std::string esperado = p.palabra();
    for (const auto& [nombre, quien] : NOMBRES)
        if (quien == c.foco()) compara(esperado, std::string(nombre));
}

void modo(Conductor& c, Palabras& p) {
    compara(p.palabra(), tablero(c).modo_seleccion() == ModoSeleccion::Libre ? "libre" : "filas");
}

void ancho(Conductor& c, Palabras& p) {
    const int col = p.entero();
    p.exige("=");
    const int esperado = p.entero();
    if (!cerca(esperado, tablero(c).ColWidth(col)))
        compara(std::to_string(esperado), std::to_string(tablero(c).ColWidth(col)));
}

void marcada(Conductor& c, Palabras& p) {
    const Opcion opcion = opcion_de_nombre(p.palabra());
    compara(p.palabra(), c.tabla().estado().menus[opcion].marcada ? "si" : "no");
}

void activa(Conductor& c, Palabras& p) {
    const Opcion opcion = opcion_de_nombre(p.palabra());
    compara(p.palabra(), c.tabla().estado().menus[opcion].activa ? "si" : "no");
}

void portapapeles(Conductor& c, Palabras& p) {
    p.exige("=");
    compara(p.resto(), c.portapapeles());
}

void fichero(Conductor& c, Palabras& p) {
    const std::string nombre = p.palabra();
    compara(p.palabra(), c.ficheros().contenidos.contains(nombre) ? "si" : "no");
}

constexpr std::array<std::pair<std::string_view, Pregunta>, 24> PREGUNTAS{{
    {"etiqueta", etiqueta},
    {"foco", foco},
    {"letra", letra},
    {"fichero", fichero},
    {"celda", celda},
    {"leida", leida},
    {"fondo", fondo},
    {"filas", [](Conductor& c, Palabras& p) { compara_numeros(p, {tablero(c).Rows()}); }},
    {"columnas", [](Conductor& c, Palabras& p) { compara_numeros(p, {tablero(c).Cols()}); }},
    {"actual",
        [](Conductor& c, Palabras& p) {
            compara_numeros(p, {tablero(c).Row(), tablero(c).Col()});
        }},
    {"seleccion", seleccion},
    {"modo", modo},
    {"arriba", [](Conductor& c, Palabras& p) { compara_numeros(p, {tablero(c).TopRow()}); }},
    {"ve", ve},
    {"ancho", ancho},
    {"casilla", casilla},
    {"lista", lista},
    {"entradas", entradas},
    {"editor", editor},
    {"mensaje", mensaje},
    {"modificado", [](Conductor& c, Palabras& p) { compara_numeros(p, {c.tabla().estado().Modificado}); }},
    {"marcada", marcada},
    {"activa", activa},
    {"portapapeles", portapapeles},
}};

} // namespace

void pregunta(Conductor& conductor, std::string_view texto) {
    Palabras palabras(texto);
    const std::string primera = palabras.palabra();
    for (const auto& [nombre, hace] : PREGUNTAS) {
        if (nombre != primera) continue;
        hace(conductor, palabras);
        return palabras.fin();
    }
    throw FalloGuion("no such question: " + primera);
}

} // namespace Qlt4_Tabla
