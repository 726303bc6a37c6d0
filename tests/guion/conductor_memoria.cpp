// SPDX-License-Identifier: MIT
// The windowless conductor: keys by focus, mouse by the middle of the cell.
#include "tests/guion/conductor_memoria.h"

#include "base/pagina1252.h"
#include "base/utf8.h"
#include "tests/guion/palabras.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

namespace Qlt4_Tabla {

namespace {

const ElementoMenu* elemento_de_menu(std::span<const ElementoMenu> menu, std::string_view nombre) {
    for (const ElementoMenu& uno : menu) {
        if (uno.nombre == nombre && uno.clase != ClaseElemento::Separador) return &uno;
        if (const ElementoMenu* const hijo = elemento_de_menu(uno.hijos, nombre)) return hijo;
    }
    return nullptr;
}

} // namespace

ConductorMemoria::ConductorMemoria() {
    p_.foco.casilla_pierde = [this] { tabla_.mandos().casilla_pierde_foco(motivo_); };
    p_.foco.lista_pierde = [this] { tabla_.mandos().lista_pierde_foco(motivo_); };
    tabla_.mandos().vista_redimensionada(12000, 6000);
}

void ConductorMemoria::pulsa(const Pulsacion& tecla) {
    switch (p_.foco.actual()) {
    case Foco::Tablero: pulsa_en_tablero(tecla); break;
    case Foco::Casilla: pulsa_en_casilla(tecla); break;
    case Foco::Lista: pulsa_en_lista(tecla); break;
    case Foco::Nadie: break;
    }
    obedece();
}

void ConductorMemoria::pulsa_en_tablero(const Pulsacion& tecla) {
    if (tabla_.mandos().tecla_abajo(tecla.KeyCode, tecla.mods)) return;
    const bool mando = tecla.mods.contiene(teclas::CONTROL) || tecla.mods.contiene(teclas::ALT);
    if (tecla.caracter != 0 && !mando) tabla_.mandos().tecla_pulsada(codigo_tecla(tecla.caracter));
}

// All of it goes where its first character does.
void ConductorMemoria::compone(std::string_view texto) {
    const Foco donde = p_.foco.actual();
    for (std::size_t i = 0; i < texto.size(); i = utf8::siguiente(texto, i)) {
        const char32_t punto = utf8::decodifica(texto, i).punto;
        if (donde == Foco::Tablero) tabla_.mandos().tecla_pulsada(codigo_tecla(punto));
        if (donde == Foco::Casilla) pulsa_en_casilla({teclas::NINGUNA, punto, {}});
    }
    obedece();
}

void ConductorMemoria::pulsa_en_casilla(const Pulsacion& tecla) {
    if (tecla.caracter == 0) return mueve_cursor(tecla.KeyCode);
    const int pasa = tabla_.mandos().tecla_casilla(codigo_tecla(tecla.caracter));
    if (pasa == 0) return;
    if (pasa == teclas::RETROCESO)
        p_.casilla.retrocede();
    else
        p_.casilla.inserta(utf8::codifica(punto_de_tecla(pasa)));
}

void ConductorMemoria::pulsa_en_lista(const Pulsacion& tecla) {
    const int ultima = static_cast<int>(p_.lista.entradas().size()) - 1;
    if (tecla.KeyCode == teclas::ABAJO)
        p_.lista.elige(std::min(p_.lista.elegida() + 1, ultima));
    else if (tecla.KeyCode == teclas::ARRIBA)
        p_.lista.elige(std::max(p_.lista.elegida() - 1, 0));
    else if (tecla.caracter != 0)
        tabla_.mandos().tecla_lista(codigo_tecla(tecla.caracter));
}

// The box's own keys.
void ConductorMemoria::mueve_cursor(int KeyCode) {
    const int largo = static_cast<int>(utf8::longitud(p_.casilla.texto()));
    switch (KeyCode) {
    case teclas::IZQUIERDA: p_.casilla.selecciona(p_.casilla.cursor() - 1, 0); break;
    case teclas::DERECHA: p_.casilla.selecciona(p_.casilla.cursor() + 1, 0); break;
    case teclas::INICIO: p_.casilla.selecciona(0, 0); break;
    case teclas::FIN: p_.casilla.selecciona(largo, 0); break;
    default: break;
    }
}

Celda ConductorMemoria::punto_de(Celda celda) const {
    const Tablero& t = tabla_.tablero();
    if (celda.fila < 0) return {t.alto_vista() - 1, t.ancho_vista() - 1};
    const Rectangulo r = parte_visible(t, celda.fila, celda.col);
    if (r.ancho <= 0 || r.alto <= 0) throw FalloGuion("the cell is not seen");
    return {r.arriba + r.alto / 2, r.izquierda + r.ancho / 2};
}

void ConductorMemoria::abajo(Celda celda, Modificadores mods) {
    const Celda p = punto_de(celda);
    const Celda ahi = celda_en(tabla_.tablero(), p.col, p.fila);
    if (celda.fila < 0 && ahi.fila >= 0 && ahi.col >= 0)
        throw FalloGuion("the window shows no place beyond the last cell");
    p_.foco.pide(Foco::Tablero);
    tabla_.mandos().raton_abajo(p.col, p.fila, Boton::Izquierdo, mods);
}

void ConductorMemoria::clic(Celda celda, Modificadores mods) {
    const Celda p = punto_de(celda);
    abajo(celda, mods);
    tabla_.mandos().raton_arriba(p.col, p.fila, Boton::Izquierdo);
    obedece();
}

void ConductorMemoria::clic_derecho(Celda celda) {
    const Celda p = punto_de(celda);
    p_.foco.pide(Foco::Tablero);
    tabla_.mandos().raton_abajo(p.col, p.fila, Boton::Derecho, {});
    tabla_.mandos().raton_arriba(p.col, p.fila, Boton::Derecho);
    obedece();
}

void ConductorMemoria::doble_clic(Celda celda) {
    const Celda p = punto_de(celda);
    clic(celda, {});
    tabla_.mandos().doble_clic(p.col, p.fila);
    tabla_.mandos().raton_arriba(p.col, p.fila, Boton::Izquierdo);
    obedece();
}

void ConductorMemoria::arrastra(Celda desde, Celda hasta, Modificadores mods) {
    const Celda p = punto_de(hasta);
    abajo(desde, mods);
    tabla_.mandos().raton_mueve(p.col, p.fila);
    tabla_.mandos().raton_arriba(p.col, p.fila, Boton::Izquierdo);
    obedece();
}

void ConductorMemoria::rueda(int signo) {
    tabla_.mandos().rueda(signo);
    obedece();
}

void ConductorMemoria::barra(int fila) {
    tabla_.mandos().desplaza_filas(fila);
    obedece();
}

void ConductorMemoria::boton(std::string_view clave) {
    const auto barra = Mandos::barra();
    const auto dato =
        std::find_if(barra.begin(), barra.end(), [&](const BotonBarra& b) { return b.clave == clave; });
    if (dato == barra.end() || dato->ayuda.empty() || !tabla_.mandos().visible(*dato))
        throw FalloGuion("no such button: " + std::string(clave));
    tabla_.mandos().boton(clave);
    obedece();
}

void ConductorMemoria::elige_menu(std::string_view nombre) {
    const std::optional<std::pair<Menu, DondeMenu>> abierto = std::exchange(p_.marco.abierto, std::nullopt);
    if (!abierto) throw FalloGuion("no menu is open");
    const ElementoMenu* const elemento = elemento_de_menu(Mandos::menu(abierto->first), nombre);
    if (elemento == nullptr || !elemento->opcion) throw FalloGuion("no such item: " + std::string(nombre));
    const EstadoOpcion& estado = tabla_.estado().menus[*elemento->opcion];
    if (!estado.visible || !estado.activa) throw FalloGuion("cannot be chosen: " + std::string(nombre));
    tabla_.mandos().orden(*elemento->opcion);
    obedece();
}

void ConductorMemoria::elige_cambio(std::string_view titulo) {
    const std::optional<std::pair<Menu, DondeMenu>> abierto = std::exchange(p_.marco.abierto, std::nullopt);
    if (!abierto || abierto->first != Menu::mn_cambio) throw FalloGuion("the menu is not open");
    const auto& elementos = tabla_.estado().menu_cambio.elementos();
    for (std::size_t i = 0; i < elementos.size(); ++i) {
        if (elementos[i].titulo != titulo) continue;
        tabla_.mandos().elige_cambio(i);
        return obedece();
    }
    throw FalloGuion("no such entry: " + std::string(titulo));
}

void ConductorMemoria::elige_entrada(std::string_view texto, bool con_raton) {
    if (!p_.lista.visible()) throw FalloGuion("the list is not open");
    p_.lista.elige(texto);
    if (p_.lista.elegida() < 0) throw FalloGuion("no such entry: " + std::string(texto));
    if (con_raton) tabla_.mandos().clic_lista();
    obedece();
}

void ConductorMemoria::pierde_foco(MotivoFoco motivo) {
    motivo_ = motivo;
    antes_ = p_.foco.actual();
    p_.foco.pide(Foco::Nadie);
    motivo_ = MotivoFoco::Otro;
}

void ConductorMemoria::recupera_foco() {
    const bool casilla = antes_ == Foco::Casilla && p_.casilla.visible();
    const bool lista = antes_ == Foco::Lista && p_.lista.visible();
    p_.foco.pide(casilla || lista ? antes_ : Foco::Tablero);
}

void ConductorMemoria::arrastra_borde(int col, int twips) {
    tabla_.mandos().arrastra_borde(col, twips);
    obedece();
}

void ConductorMemoria::ventana(int ancho, int alto) { tabla_.mandos().vista_redimensionada(ancho, alto); }

void ConductorMemoria::al_suceder(std::function<void(std::string_view)> hace) {
    p_.eventos.al_suceder = std::move(hace);
}

void ConductorMemoria::cierra_portapapeles() {
    const int numero = static_cast<int>(NumError::PortapapelesCerrado);
    p_.portapapeles.error_al_leer = p_.portapapeles.error_al_escribir = numero;
}

std::vector<std::string> ConductorMemoria::recoge() {
    obedece();
    std::vector<std::string> lineas = p_.recoge();
    std::erase_if(lineas, [](const std::string& linea) { return linea.starts_with("puntero "); });
    return lineas;
}

EditorVisto ConductorMemoria::editor() {
    EditorVisto visto;
    visto.casilla = p_.casilla.visible();
    visto.lista = p_.lista.visible();
    if (visto.casilla) {
        visto.texto = p_.casilla.texto();
        visto.cursor = p_.casilla.cursor();
        visto.marca_inicio = p_.casilla.inicio_seleccion();
        visto.marca_longitud = p_.casilla.longitud_seleccion();
        visto.sitio = p_.casilla.celda();
    } else if (visto.lista) {
        visto.texto = p_.lista.texto();
        visto.entradas = p_.lista.entradas();
        visto.sitio = p_.lista.celda();
    }
    return visto;
}

EtiquetasVistas ConductorMemoria::etiquetas() {
    const Etiquetas& e = tabla_.estado().etiquetas;
    return {e.labNumeroFilas.visible ? e.labNumeroFilas.texto : "",
        e.labMensaje.visible ? e.labMensaje.texto : ""};
}

void ConductorMemoria::obedece() {
    if (!p_.vista.recoge().empty()) tabla_.mandos().recoloca_editor();
}

} // namespace Qlt4_Tabla
