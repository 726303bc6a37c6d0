// SPDX-License-Identifier: MIT
// The steps of the host, through the published members only.
#include "control/despacho.h"
#include "tests/guion/pasos.h"

#include <array>
#include <cstdint>
#include <utility>

namespace Qlt4_Tabla {

namespace {

using Paso = void (*)(Tabla0&, Palabras&);

std::int16_t corto(int n) { return static_cast<std::int16_t>(n); }

constexpr std::array<std::string_view, 8> FORMATOS{
    "Entero", "EntPos", "Real__", "RealPo", "Alfanm", "ListaU", "Color_", "Imagen"};
constexpr std::array<std::string_view, 3> ALINEACIONES{"Izqda", "Centr", "Drcha"};
constexpr std::array<std::string_view, 4> ACCIONES{"Nada__", "Repite", "Increm", "Decrem"};

// Place of the word in the list, or -1.
template <std::size_t N>
int lugar(const std::array<std::string_view, N>& nombres, std::string_view palabra) {
    for (std::size_t i = 0; i < N; ++i)
        if (nombres[i] == palabra) return static_cast<int>(i);
    return -1;
}

void formato_de_columna(Tabla0& tabla, Palabras& p) {
    const int col = p.entero();
    const std::string nombre = p.palabra();
    const std::string clase = p.palabra();
    const int formato = lugar(FORMATOS, clase);
    if (formato < 0) throw FalloGuion("no such kind: " + clase);
    bool invisible = false;
    bool bloqueada = false;
    int decimales = 0;
    int ancho = 10;
    int alineacion = 0;
    int accion = 0;
    while (p.quedan()) {
        if (p.es_entero()) {
            decimales = p.entero();
            continue;
        }
        const std::string opcion = p.palabra();
        if (opcion == "invisible")
            invisible = true;
        else if (opcion == "bloqueada")
            bloqueada = true;
        else if (opcion.starts_with("ancho="))
            ancho = Palabras(opcion.substr(6)).entero();
        else if (const int a = lugar(ALINEACIONES, opcion); a >= 0)
            alineacion = a;
        else if (const int b = lugar(ACCIONES, opcion); b >= 0)
            accion = b;
        else
            throw FalloGuion("no such option: " + opcion);
    }
    tabla.FormatoColumnas(corto(col), invisible, bloqueada, static_cast<T_formato>(formato), corto(decimales),
        static_cast<T_Alineacion>(alineacion), static_cast<T_Accion>(accion), corto(ancho), nombre);
}

void lista(Tabla0& tabla, Palabras& p) {
    const int col = p.entero();
    const std::vector<std::string> valores = trozos(p.resto());
    Matriz<std::string> matriz(0, static_cast<std::int32_t>(valores.size()) - 1);
    for (std::size_t i = 0; i < valores.size(); ++i) matriz[static_cast<std::int64_t>(i)] = valores[i];
    tabla.Lista(corto(col), matriz);
}

void invoca(Tabla0& tabla, Palabras& p, Acceso acceso) {
    const std::string nombre = p.palabra();
    std::vector<Variante> argumentos;
    while (p.quedan()) argumentos.emplace_back(p.palabra());
    Despacho(tabla).invoca(nombre, acceso, argumentos);
}

void nombres(Tabla0& tabla, Palabras& p) {
    const std::string titulo = p.palabra();
    const std::string subtitulo = p.palabra();
    tabla.Tablero_Nombres(titulo, subtitulo, p.palabra());
}

void texto(Tabla0& tabla, Palabras& p) {
    const Celda c = p.celda();
    tabla.TextMatrix(c.fila, c.col, p.resto());
}

void fondo(Tabla0& tabla, Palabras& p) {
    const Celda c = p.celda();
    tabla.Color_Matrix(c.fila, c.col, p.entero());
}

void elige_color(Tabla0& tabla, Palabras& p) {
    const std::int32_t hallado = tabla.Show_Elige_Color(p.entero());
    p.exige("=");
    if (hallado != p.entero()) throw FalloGuion("the picker gave " + std::to_string(hallado));
}

void alto(Tabla0& tabla, Palabras& p) {
    const int fila = p.entero();
    tabla.A_Pon_Alto(corto(fila), corto(p.entero()));
}

constexpr std::array<std::pair<std::string_view, Paso>, 12> PASOS{{
    {"nombres", nombres},
    {"columnas", [](Tabla0& t, Palabras& p) { t.Cols(p.entero()); }},
    {"filas", [](Tabla0& t, Palabras& p) { t.Rows(p.entero()); }},
    {"formato", formato_de_columna},
    {"establece", [](Tabla0& t, Palabras&) { t.Tablero_establece_Formato(); }},
    {"lista", lista},
    {"texto", texto},
    {"fondo", fondo},
    {"alto", alto},
    {"elige_color", elige_color},
    {"llama", [](Tabla0& t, Palabras& p) { invoca(t, p, Acceso::Metodo); }},
    {"pone", [](Tabla0& t, Palabras& p) { invoca(t, p, Acceso::Pone); }},
}};

} // namespace

bool paso_anfitrion(Conductor& conductor, std::string_view palabra, Palabras& resto) {
    for (const auto& [nombre, paso] : PASOS) {
        if (nombre != palabra) continue;
        try {
            paso(conductor.tabla(), resto);
        } catch (const Error& e) {
            throw FalloGuion("error " + std::to_string(e.numero()) + " reached the host");
        }
        resto.fin();
        return true;
    }
    return false;
}

} // namespace Qlt4_Tabla
