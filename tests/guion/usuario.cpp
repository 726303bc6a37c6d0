// SPDX-License-Identifier: MIT
// The steps of the user, through the hands of the conductor.
#include "base/utf8.h"
#include "tests/guion/pasos.h"

#include <array>
#include <utility>

namespace Qlt4_Tabla {

namespace {

using Paso = void (*)(Conductor&, Palabras&);

struct NombreTecla {
    std::string_view nombre;
    int KeyCode;
    char32_t caracter;
};

constexpr std::array<NombreTecla, 18> TECLAS{{
    {"Intro", teclas::INTRO, 13},
    {"Escape", teclas::ESCAPE, 27},
    {"Espacio", teclas::ESPACIO, 32},
    {"Retroceso", teclas::RETROCESO, 8},
    {"Supr", teclas::SUPR, 0},
    {"F2", teclas::F2, 0},
    {"F5", teclas::F5, 0},
    {"Tab", teclas::TAB, 0},
    {"Arriba", teclas::ARRIBA, 0},
    {"Abajo", teclas::ABAJO, 0},
    {"Izquierda", teclas::IZQUIERDA, 0},
    {"Derecha", teclas::DERECHA, 0},
    {"Inicio", teclas::INICIO, 0},
    {"Fin", teclas::FIN, 0},
    {"RePag", teclas::REPAG, 0},
    {"AvPag", teclas::AVPAG, 0},
    {"Menu", teclas::MENU, 0},
    {"F10", teclas::F10, 0},
}};

Modificadores toma_modificadores(std::string_view& nombre) {
    constexpr std::array<std::pair<std::string_view, Modificadores>, 3> NOMBRES{
        {{"Mayus+", teclas::MAYUSCULAS}, {"Ctrl+", teclas::CONTROL}, {"Alt+", teclas::ALT}}};
    Modificadores mods;
    for (bool otro = true; otro;) {
        otro = false;
        for (const auto& [prefijo, mod] : NOMBRES) {
            if (!nombre.starts_with(prefijo)) continue;
            nombre.remove_prefix(prefijo.size());
            mods = mods | mod;
            otro = true;
        }
    }
    return mods;
}

// Letters and digits have key codes of their own; the other characters are known by what they type.
int codigo_de_caracter(char32_t punto) {
    if (punto >= '0' && punto <= '9') return static_cast<int>(punto);
    if (punto >= 'A' && punto <= 'Z') return static_cast<int>(punto);
    if (punto >= 'a' && punto <= 'z') return static_cast<int>(punto) - 32;
    return punto == ' ' ? teclas::ESPACIO : teclas::NINGUNA;
}

void pulsa(Conductor& c, Palabras& p) {
    const std::string palabra = p.palabra();
    std::string_view nombre = palabra;
    const Modificadores mods = toma_modificadores(nombre);
    for (const NombreTecla& t : TECLAS)
        if (t.nombre == nombre) return c.pulsa({t.KeyCode, t.caracter, mods});
    // A letter with Ctrl types nothing.
    if (nombre.size() == 1 && mods.contiene(teclas::CONTROL))
        return c.pulsa({codigo_de_caracter(static_cast<unsigned char>(nombre.front())), 0, mods});
    throw FalloGuion("no such key: " + palabra);
}

void teclea(Conductor& c, Palabras& p) {
    const std::string texto = p.resto();
    for (std::size_t i = 0; i < texto.size(); i = utf8::siguiente(texto, i)) {
        const char32_t punto = utf8::decodifica(texto, i).punto;
        const bool mayuscula = punto >= 'A' && punto <= 'Z';
        c.pulsa({codigo_de_caracter(punto), punto, mayuscula ? teclas::MAYUSCULAS : Modificadores()});
    }
}

Modificadores mayusculas_si(Palabras& p) { return p.toma("Mayus") ? teclas::MAYUSCULAS : Modificadores(); }

void clic(Conductor& c, Palabras& p) {
    const Celda celda = p.toma("fuera") ? Celda{} : p.celda();
    c.clic(celda, mayusculas_si(p));
}

void arrastra(Conductor& c, Palabras& p) {
    const Celda desde = p.celda();
    const Celda hasta = p.celda();
    c.arrastra(desde, hasta, mayusculas_si(p));
}

void rueda(Conductor& c, Palabras& p) {
    const int signo = p.entero();
    const int veces = p.quedan() ? p.entero() : 1;
    for (int i = 0; i < veces; ++i) c.rueda(signo);
}

void foco(Conductor& c, Palabras& p) {
    if (p.toma("fuera")) return c.pierde_foco(MotivoFoco::Otro);
    if (p.toma("menu")) return c.pierde_foco(MotivoFoco::Menu);
    if (p.toma("ventana")) return c.pierde_foco(MotivoFoco::Ventana);
    p.exige("vuelve");
    c.recupera_foco();
}

void borde(Conductor& c, Palabras& p) {
    const int col = p.entero();
    c.arrastra_borde(col, p.entero());
}

void ventana(Conductor& c, Palabras& p) {
    const int ancho = p.entero();
    const Tablero& t = c.tabla().tablero();
    c.ventana(ancho, t.RowHeight(0) + p.entero() * t.alto_normal());
}

void elige(Conductor& c, Palabras& p) {
    const Celda a = p.celda();
    const Celda b = p.quedan() ? p.celda() : a;
    c.tabla().mandos().elige_bloque(a.fila, a.col, b.fila, b.col);
}

void orden(Conductor& c, Palabras& p) {
    const std::string nombre = p.palabra();
    if (!c.tabla().mandos().orden(opcion_de_nombre(nombre))) throw FalloGuion("no command: " + nombre);
}

constexpr std::array<std::pair<std::string_view, Paso>, 20> PASOS{{
    {"pulsa", pulsa},
    {"tecla", pulsa},
    {"teclea", teclea},
    {"compone", [](Conductor& c, Palabras& p) { c.compone(p.resto()); }},
    {"clic", clic},
    {"doble", [](Conductor& c, Palabras& p) { c.doble_clic(p.celda()); }},
    {"arrastra", arrastra},
    {"rueda", rueda},
    {"barra", [](Conductor& c, Palabras& p) { c.barra(p.entero()); }},
    {"entrada", [](Conductor& c, Palabras& p) { c.elige_entrada(p.resto(), false); }},
    {"clic_entrada", [](Conductor& c, Palabras& p) { c.elige_entrada(p.resto(), true); }},
    {"foco", foco},
    {"borde", borde},
    {"ventana", ventana},
    {"elige", elige},
    {"orden", orden},
    {"boton", [](Conductor& c, Palabras& p) { c.boton(p.palabra()); }},
    {"derecho", [](Conductor& c, Palabras& p) { c.clic_derecho(p.celda()); }},
    {"menu", [](Conductor& c, Palabras& p) { c.elige_menu(p.palabra()); }},
    {"cambio", [](Conductor& c, Palabras& p) { c.elige_cambio(p.resto()); }},
}};

} // namespace

Opcion opcion_de_nombre(std::string_view nombre) {
    constexpr std::array<std::pair<std::string_view, Opcion>, 22> NOMBRES{{
        {"mn_Deshacer", Opcion::mn_Deshacer},
        {"mn_Rehacer", Opcion::mn_Rehacer},
        {"mn_cortar", Opcion::mn_cortar},
        {"mn_copiar", Opcion::mn_copiar},
        {"mn_Pegar", Opcion::mn_Pegar},
        {"mn_copiar_todo_y_cabezera", Opcion::mn_copiar_todo_y_cabezera},
        {"mn_copiar_pXc", Opcion::mn_copiar_pXc},
        {"mn_pegar_cXp", Opcion::mn_pegar_cXp},
        {"mn_pegar_al_final", Opcion::mn_pegar_al_final},
        {"mn_Especial_puntos_Copia", Opcion::mn_Especial_puntos_Copia},
        {"mn_copiar1", Opcion::mn_copiar1},
        {"mn_Pegar2", Opcion::mn_Pegar2},
        {"mn_insertar_filas", Opcion::mn_insertar_filas},
        {"mn_eliminar_filas", Opcion::mn_eliminar_filas},
        {"mn_añadir_filas", Opcion::mn_añadir_filas},
        {"mn_eliminar_vacias", Opcion::mn_eliminar_vacias},
        {"mn_borrar_seleccion", Opcion::mn_borrar_seleccion},
        {"Mnu_Tabla_Leer", Opcion::Mnu_Tabla_Leer},
        {"Mnu_Tabla_Guardar_como", Opcion::Mnu_Tabla_Guardar_como},
        {"MN_avance_horizontal", Opcion::MN_avance_horizontal},
        {"mn_Especial_puntos_Avance", Opcion::mn_Especial_puntos_Avance},
        {"mn_salir", Opcion::mn_salir},
    }};
    for (const auto& [suyo, opcion] : NOMBRES)
        if (suyo == nombre) return opcion;
    throw FalloGuion("no such menu item: " + std::string(nombre));
}

bool paso_usuario(Conductor& conductor, std::string_view palabra, Palabras& resto) {
    for (const auto& [nombre, paso] : PASOS) {
        if (nombre != palabra) continue;
        try {
            paso(conductor, resto);
        } catch (const Error& e) { // such as a cell outside the grid
            throw FalloGuion("error " + std::to_string(e.numero()));
        }
        resto.fin();
        return true;
    }
    return false;
}

} // namespace Qlt4_Tabla
