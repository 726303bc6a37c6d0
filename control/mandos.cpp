// SPDX-License-Identifier: MIT
// The front end's way in: each call translates, asks the rules of editing/ and keeps their errors inside.
#include "control/mandos.h"

#include "clipboard/copia.h"
#include "clipboard/pega.h"
#include "control/editor_columnas.h"
#include "control/ficheros.h"
#include "control/guarda.h"
#include "control/portapapeles.h"
#include "control/textos.h"
#include "editing/arbol_menus.h"
#include "editing/filas.h"

#include <algorithm>
#include <array>

namespace Qlt4_Tabla {

namespace {

// The places that the message of an error names.
constexpr std::string_view TABLERO = "Tablero";
constexpr std::string_view CASILLA = "Casilla";
constexpr std::string_view LISTA = "cobLista";

struct Orden {
    Opcion opcion;
    std::string_view nombre; // the place that the message of an error names
    void (*ejecuta)(EstadoTabla&);
};

/// The mark of the advance; its second menu item shows the same.
void alterna_avance(EstadoTabla& e) {
    const bool marcada = !e.menus[Opcion::MN_avance_horizontal].marcada;
    e.menus[Opcion::MN_avance_horizontal].marcada = marcada;
    e.menus[Opcion::mn_Especial_puntos_Avance].marcada = marcada;
    e.plataforma.marco.menus_cambiados();
}

void rehace(EstadoTabla& e) {
    e.revoca.Rehace(e.menus);
    e.plataforma.marco.menus_cambiados();
}

void copia(EstadoTabla& e) { Copiar_Seleccion(e, 0); }

void copia_con_coma(EstadoTabla& e) { Copiar_Seleccion(e, 1); }

void pega(EstadoTabla& e) { Pegar_Portapapeles(e, false); }

void pega_con_punto(EstadoTabla& e) { Pegar_Portapapeles(e, true); }

constexpr std::array<Orden, 24> ORDENES{{
    {Opcion::mn_Deshacer, "mn_Deshacer", [](EstadoTabla&) {}}, // undo does nothing
    {Opcion::mn_Rehacer, "mn_Rehacer", rehace},
    {Opcion::mn_cortar, "mn_cortar", corta_seleccion},
    {Opcion::mn_copiar, "mn_copiar", copia},
    {Opcion::mn_Pegar, "mn_Pegar", pega},
    {Opcion::mn_copiar_todo_y_cabezera, "mn_copiar_todo_y_cabezera", copia_con_cabecera},
    {Opcion::mn_copiar_pXc, "mn_copiar_pXc", copia_con_coma},
    {Opcion::mn_pegar_cXp, "mn_pegar_cXp", pega_con_punto},
    {Opcion::mn_pegar_al_final, "mn_pegar_al_final", pega_al_final},
    {Opcion::mn_insertar_filas, "mn_insertar_filas", mn_insertar_filas},
    {Opcion::mn_eliminar_filas, "mn_eliminar_filas", mn_eliminar_filas},
    {Opcion::mn_añadir_filas, "mn_añadir_filas", mn_añadir_filas},
    {Opcion::mn_eliminar_vacias, "mn_eliminar_vacias", mn_eliminar_vacias},
    {Opcion::mn_borrar_seleccion, "mn_borrar_seleccion", mn_borrar_seleccion},
    {Opcion::Mnu_Tabla_Leer, "Mnu_Tabla_Leer", Mnu_Tabla_Leer},
    {Opcion::Mnu_Tabla_Guardar_como, "Mnu_Tabla_Guardar_como", Mnu_Tabla_Guardar_como},
    {Opcion::MN_avance_horizontal, "MN_avance_horizontal", alterna_avance},
    {Opcion::mn_Especial_puntos_Avance, "mn_Especial_puntos_Avance", alterna_avance},
    {Opcion::MN_editor_de_columnas, "MN_editor_de_columnas", edita_columnas},
    {Opcion::mn_Especial_puntos_columnas, "mn_Especial_puntos_columnas", edita_columnas},
    {Opcion::mn_salir, "mn_salir", [](EstadoTabla& e) { e.eventos.Salir(); }},
    {Opcion::mn_Especial_puntos_Copia, "mn_Especial_puntos_Copia", copia},
    {Opcion::mn_copiar1, textos::lugar_menu_copia, copia},
    {Opcion::mn_Pegar2, textos::lugar_menu_copia, pega},
}};

struct OrdenBoton {
    std::string_view clave;
    void (*ejecuta)(EstadoTabla&, MenusTabla&);
};

constexpr std::array<OrdenBoton, 5> BOTONES{{
    {"Copiar", [](EstadoTabla& e, MenusTabla&) { copia_tabla(e); }},
    {"Pegar", [](EstadoTabla& e, MenusTabla&) { pega(e); }},
    {"Excel", [](EstadoTabla& e, MenusTabla&) { copia_en_hoja(e); }},
    {"Propiedades", [](EstadoTabla&, MenusTabla& menus) { menus.abre_opciones(); }},
    {"Avance", [](EstadoTabla& e, MenusTabla&) { alterna_avance(e); }},
}};

bool abre_menu(int KeyCode, Modificadores mods) {
    return (KeyCode == teclas::MENU && mods.vacio()) ||
        (KeyCode == teclas::F10 && mods == teclas::MAYUSCULAS);
}

} // namespace

Mandos::Mandos(EstadoTabla& e, EditorCelda& editor, Navegacion& navegacion)
    : e_(e), editor_(editor), navegacion_(navegacion), menus_(e) {}

void Mandos::protege(std::string_view lugar, const std::function<void()>& orden) {
    guarda(e_.plataforma.mensajes, prefijo_miembro(lugar), {}, orden);
}

void Mandos::cambia_vista(const std::function<void()>& orden) {
    protege(TABLERO, [&] {
        orden();
        editor_.recoloca();
    });
}

bool Mandos::tecla_abajo(int KeyCode, Modificadores mods) {
    if (mods == teclas::CONTROL)
        if (const auto opcion = opcion_de_atajo(KeyCode)) return orden(*opcion);
    bool usada = true;
    protege(TABLERO, [&] {
        if (abre_menu(KeyCode, mods))
            menus_.abre_raton(DondeMenu::CeldaActual);
        else if (KeyCode == teclas::F10 && mods == teclas::ALT)
            e_.plataforma.marco.enfoca_barra();
        else if (KeyCode == teclas::F2)
            editor_.abre_por_F2();
        else if (KeyCode == teclas::SUPR && !e_.ratonOff)
            mn_borrar_seleccion(e_);
        else
            usada = navegacion_.tecla(KeyCode, mods);
    });
    return usada;
}

bool Mandos::tecla_pulsada(int KeyAscii) {
    bool usada = true;
    protege(TABLERO, [&] {
        if (editor_.abierto()) {
            editor_.teclea(KeyAscii);
            return;
        }
        switch (KeyAscii) {
        case teclas::INTRO: navegacion_.Avanza_Cursor(); break;
        case teclas::ESCAPE: e_.eventos.Salir(); break;
        case teclas::ESPACIO:
            usada = !es_texto(formato(e_, e_.tablero.Col()).Formato);
            if (usada) navegacion_.Avanza_Cursor();
            break;
        default:
            editor_.abre_por_tecla(KeyAscii);
            usada = editor_.abierto();
            break;
        }
    });
    return usada;
}

void Mandos::raton_abajo(int x, int y, Boton boton, Modificadores mods) {
    if (boton != Boton::Izquierdo) return;
    arrastrando_ = false;
    protege(TABLERO, [&] {
        // Where the user pointed, before a commit can move rows under the mouse.
        pulsada_ = celda_en(e_.tablero, x, y);
        editor_.confirma_y_cierra();
        if (pulsada_.fila >= e_.tablero.Rows() || pulsada_.col >= e_.tablero.Cols()) return;
        arrastrando_ = true;
        navegacion_.raton_abajo(pulsada_, mods);
    });
}

void Mandos::raton_mueve(int x, int y) {
    if (!arrastrando_) return;
    cambia_vista([&] { navegacion_.arrastra(x, y); });
}

void Mandos::raton_arriba(int x, int y, Boton boton) {
    if (boton == Boton::Derecho && !e_.ratonOff)
        protege(TABLERO, [&] { menus_.abre_raton(DondeMenu::Raton); });
    if (boton != Boton::Izquierdo || !arrastrando_) return;
    arrastrando_ = false;
    protege(TABLERO, [&] {
        const Celda suelta = celda_en(e_.tablero, x, y);
        if (suelta == pulsada_) navegacion_.clic(suelta);
        // Beside the cells the mouse selected nothing; what is selected came from keys or from the host.
        if (pulsada_.fila >= 0 && pulsada_.col >= 0) menus_.abre_de_columna();
    });
}

void Mandos::doble_clic(int x, int y) {
    arrastrando_ = false;
    protege(TABLERO, [&] {
        const Tablero& t = e_.tablero;
        if (celda_en(t, x, y) == Celda{t.Row(), t.Col()}) editor_.abre_por_doble_clic();
    });
}

void Mandos::rueda(int signo) {
    cambia_vista([&] { navegacion_.rueda(signo); });
}

void Mandos::arrastra_borde(int col, int ancho) {
    if (col < 0 || col >= e_.tablero.Cols()) return;
    cambia_vista([&] { e_.tablero.ColWidth(col, std::clamp(ancho, 0, MAX_ANCHO_TWIPS)); });
}

int Mandos::tecla_casilla(int KeyAscii) {
    int tecla = 0;
    protege(CASILLA, [&] { tecla = editor_.tecla_casilla(KeyAscii); });
    return tecla;
}

int Mandos::tecla_lista(int KeyAscii) {
    int tecla = 0;
    protege(LISTA, [&] { tecla = editor_.tecla_lista(KeyAscii); });
    return tecla;
}

void Mandos::clic_lista() {
    protege(LISTA, [&] { editor_.clic_lista(); });
}

void Mandos::casilla_pierde_foco(MotivoFoco motivo) {
    protege(CASILLA, [&] { editor_.casilla_pierde_foco(motivo); });
}

void Mandos::lista_pierde_foco(MotivoFoco motivo) {
    protege(LISTA, [&] { editor_.lista_pierde_foco(motivo); });
}

void Mandos::recoloca_editor() {
    protege(TABLERO, [&] { editor_.recoloca(); });
}

bool Mandos::orden(Opcion opcion) {
    const auto* const o =
        std::find_if(ORDENES.begin(), ORDENES.end(), [&](const Orden& una) { return una.opcion == opcion; });
    if (o == ORDENES.end()) return false;
    protege(o->nombre, [&] {
        editor_.confirma_y_cierra();
        termina_mensaje(e_);
        o->ejecuta(e_);
    });
    return true;
}

bool Mandos::boton(std::string_view clave) {
    const auto* const b = std::find_if(
        BOTONES.begin(), BOTONES.end(), [&](const OrdenBoton& uno) { return uno.clave == clave; });
    if (b == BOTONES.end()) return false;
    protege(clave, [&] {
        editor_.confirma_y_cierra();
        termina_mensaje(e_);
        b->ejecuta(e_, menus_);
    });
    protege(clave, [&] { e_.plataforma.marco.enfoca_tablero(); });
    return true;
}

void Mandos::elige_cambio(std::size_t elemento) {
    protege(TABLERO, [&] { menus_.elige_cambio(elemento); });
}

std::span<const ElementoMenu> Mandos::menu(Menu cual) { return arbol(cual); }

std::span<const BotonBarra> Mandos::barra() { return Qlt4_Tabla::barra(); }

bool Mandos::visible(const BotonBarra& boton) const { return boton_visible(e_, boton); }

void Mandos::vista_redimensionada(int ancho, int alto) {
    cambia_vista([&] { e_.tablero.pon_vista(ancho, alto); });
}

void Mandos::alto_de_filas(int twips) {
    cambia_vista([&] { e_.tablero.alto_normal(twips); });
}

void Mandos::desplaza_filas(int fila_superior) {
    cambia_vista([&] { e_.tablero.TopRow(fila_superior); });
}

void Mandos::desplaza_columnas(int twips) {
    cambia_vista([&] { e_.tablero.desplazamiento(twips); });
}

void Mandos::elige_celda(int fila, int col) { elige_bloque(fila, col, fila, col); }

void Mandos::elige_bloque(int fila, int col, int fila_sel, int col_sel) {
    protege(TABLERO, [&] {
        editor_.confirma_y_cierra();
        navegacion_.elige_bloque(fila, col, fila_sel, col_sel);
    });
}

} // namespace Qlt4_Tabla
