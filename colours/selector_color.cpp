// SPDX-License-Identifier: MIT
// The colour picker: its strips as data, what clicks, keys and buttons do, where its window stands.
#include "colours/selector_color.h"

#include "base/error.h"
#include "base/numeros.h"
#include "colours/paleta.h"
#include "colours/textos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <optional>

namespace Qlt4_Tabla {

namespace {

constexpr int NINGUNA = -1;
constexpr int ULTIMO_INDICE = 255;
constexpr int ULTIMO_BASICO = 9;
constexpr int PRIMER_GRIS = 250;
constexpr std::int32_t COLOR_MAYOR = 0xFFFFFF;

// Names that the box takes for numbers.
constexpr int ULTIMO_ESCRITO = 7;

// The block of all other colours: a column holds the ten shades of one hue, which the palette numbers by tens.
constexpr int TONOS = 24;
constexpr std::array<int, 10> MATICES{8, 6, 4, 2, 0, 1, 3, 5, 7, 9}; // from the top

// Where the window stood.
constexpr std::string_view APLICACION = "Quillet";
constexpr std::string_view SECCION = "Tabla Color Posicion";
constexpr std::string_view IZQUIERDA = "Left";
constexpr std::string_view ARRIBA = "Top";
constexpr float SITIO_INICIAL = 1000;

std::string nombre_de_muestra(int indice) {
    const std::string numero = numero_a_texto(indice);
    std::string nombre = numero_a_nombre(indice);
    if (nombre != numero) ((nombre += textos::abre_indice) += numero) += textos::cierra_indice;
    return nombre;
}

MuestrasTira tira_de(int columnas, int filas, const auto& indice) {
    MuestrasTira tira{columnas, filas, {}};
    for (int fila = 0; fila < filas; ++fila)
        for (int col = 0; col < columnas; ++col) {
            const int i = indice(fila, col);
            tira.muestras.push_back({i, paleta_a_pantalla(i), nombre_de_muestra(i)});
        }
    return tira;
}

const std::array<MuestrasTira, 3>& tiras() {
    static const std::array<MuestrasTira, 3> todas{
        tira_de(ULTIMO_BASICO, 1, [](int, int col) { return col + 1; }),
        tira_de(ULTIMO_INDICE - PRIMER_GRIS + 1, 1, [](int, int col) { return PRIMER_GRIS + col; }),
        tira_de(TONOS, static_cast<int>(MATICES.size()),
            [](int fila, int col) { return (col + 1) * 10 + MATICES[static_cast<std::size_t>(fila)]; }),
    };
    return todas;
}

// A swatch by its place.
struct Lugar {
    std::size_t tira = 0;
    int fila = 0;
    int col = 0;
};

std::optional<Lugar> lugar_de(int indice) {
    for (std::size_t t = 0; t < tiras().size(); ++t) {
        const MuestrasTira& tira = tiras()[t];
        for (std::size_t i = 0; i < tira.muestras.size(); ++i) {
            const int n = static_cast<int>(i);
            if (tira.muestras[i].indice == indice) return Lugar{t, n / tira.columnas, n % tira.columnas};
        }
    }
    return std::nullopt;
}

int indice_en(const Lugar& l) {
    const MuestrasTira& tira = tiras()[l.tira];
    return tira.muestras[static_cast<std::size_t>(l.fila * tira.columnas + l.col)].indice;
}

// One row up or down, into the next strip at its end: into the column of the same number, or the last.
Lugar otra_fila(Lugar l, int paso, std::size_t num_tiras) {
    const int fila = l.fila + paso;
    if (fila >= 0 && fila < tiras()[l.tira].filas) return {l.tira, fila, l.col};
    if (paso < 0 ? l.tira == 0 : l.tira + 1 >= num_tiras) return l;
    const std::size_t otra = paso < 0 ? l.tira - 1 : l.tira + 1;
    return {otra, paso < 0 ? tiras()[otra].filas - 1 : 0, std::min(l.col, tiras()[otra].columnas - 1)};
}

Lugar vecino(const Lugar& l, PasoColor paso, std::size_t num_tiras) {
    switch (paso) {
    case PasoColor::Izquierda: return {l.tira, l.fila, std::max(l.col - 1, 0)};
    case PasoColor::Derecha: return {l.tira, l.fila, std::min(l.col + 1, tiras()[l.tira].columnas - 1)};
    case PasoColor::Arriba: return otra_fila(l, -1, num_tiras);
    case PasoColor::Abajo: return otra_fila(l, 1, num_tiras);
    }
    return l;
}

// Which of `partes` equal parts of `largo` holds `x`; -1 outside, the far edge included.
int parte(double x, double largo, int partes) {
    if (!(x >= 0 && x < largo)) return NINGUNA;
    return std::min(static_cast<int>(x / (largo / partes)), partes - 1);
}

std::string_view sin_blancos(std::string_view texto) {
    while (texto.starts_with(' ')) texto.remove_prefix(1);
    while (texto.ends_with(' ')) texto.remove_suffix(1);
    return texto;
}

bool iguales(std::string_view texto, std::string_view nombre) {
    return std::equal(texto.begin(), texto.end(), nombre.begin(), nombre.end(),
        [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b; });
}

// What the text of the box means; too large a number is one above every index.
int indice_de_texto(std::string_view texto) {
    const std::string_view recortado = sin_blancos(texto);
    for (int i = 1; i <= ULTIMO_ESCRITO; ++i)
        if (iguales(recortado, textos::nombres_color[static_cast<std::size_t>(i)])) return i;
    return entero16_de_real(std::clamp(Val_sin_tope(recortado), -32768.0, 32767.0));
}

// The index of the palette that shows a colour, by its table before its keys; NINGUNA when it has none.
int indice_de_color(std::int32_t color) {
    for (int i = 1; i <= ULTIMO_INDICE; ++i)
        if (paleta_a_pantalla(i) == color) return i;
    const int por_clave = pantalla_a_paleta(color);
    return por_clave == INDICE_BLANCO ? NINGUNA : por_clave; // white itself is in the table
}

float lee_coordenada(const Ajustes& ajustes, std::string_view clave) {
    const std::optional<std::string> texto = ajustes.lee(APLICACION, SECCION, clave);
    if (!texto) return SITIO_INICIAL;
    try {
        const auto x = static_cast<float>(numero_de_texto(*texto).value_or(SITIO_INICIAL));
        return std::isfinite(x) ? x : SITIO_INICIAL;
    } catch (const Error&) { // beyond every number
        return SITIO_INICIAL;
    }
}

} // namespace

F_color::F_color(DialogoColor& dialogo, Mensajes& mensajes, Ajustes& ajustes)
    : dialogo_(dialogo), mensajes_(mensajes), ajustes_(ajustes) {
    visto_.titulo = textos::gama_de_colores;
}

void F_color::C_color_elegido_Vb(std::int32_t color) {
    por_capa_ = false;
    visto_.color = color;
    visto_.indice = indice_de_color(color);
    visto_.texto = visto_.indice == NINGUNA ? std::string() : numero_a_nombre(visto_.indice);
}

std::int16_t F_color::C_NumColorAutocaD() const { return pantalla_a_paleta(visto_.color); }

void F_color::C_NumColorAutocaD(std::int32_t indice) {
    C_color_elegido_Vb(paleta_a_pantalla(indice));
    if (indice < 1 || indice > ULTIMO_INDICE) return;
    visto_.indice = indice;
    visto_.texto = numero_a_nombre(indice);
}

std::string F_color::C_NomColorAutocaD() const {
    return por_capa_ ? std::string(textos::nombres_color[0]) : pantalla_a_nombre(visto_.color);
}

void F_color::C_ejecuta() {
    lee_sitio();
    aceptado_ = false;
    visto_.error.clear();
    visto_.abierto = true;
    dialogo_.ejecuta(*this);
    visto_.abierto = false;
    graba_sitio();
}

void F_color::lee_sitio() {
    visto_.izquierda = lee_coordenada(ajustes_, IZQUIERDA);
    visto_.arriba = lee_coordenada(ajustes_, ARRIBA);
}

void F_color::graba_sitio() {
    const std::string izquierda = numero_a_texto(visto_.izquierda);
    const std::string arriba = numero_a_texto(visto_.arriba);
    const std::array<Ajuste, 2> sitio{{{IZQUIERDA, izquierda}, {ARRIBA, arriba}}};
    ajustes_.escribe_todos(APLICACION, SECCION, sitio);
}

const MuestrasTira& F_color::tira(TiraColor tira) const { return tiras()[static_cast<std::size_t>(tira)]; }

int F_color::muestra_en(TiraColor tira, double x, double y, double ancho, double alto) const {
    const MuestrasTira& t = this->tira(tira);
    const int col = parte(x, ancho, t.columnas);
    const int fila = parte(y, alto, t.filas);
    if (col == NINGUNA || fila == NINGUNA) return NINGUNA;
    return indice_en({static_cast<std::size_t>(tira), fila, col});
}

void F_color::clic(TiraColor tira, double x, double y, double ancho, double alto) {
    const int indice = muestra_en(tira, x, y, ancho, alto);
    if (indice != NINGUNA) elige_muestra(indice);
}

void F_color::elige_muestra(int indice) { teclea(numero_a_nombre(indice)); }

void F_color::teclea(std::string_view texto) {
    const int indice = indice_de_texto(texto);
    if (indice >= 0 && indice <= ULTIMO_INDICE) {
        visto_.texto = texto;
        elige(indice);
        return;
    }
    visto_.texto = numero_a_texto(INDICE_BLANCO);
    elige(INDICE_BLANCO);
    if (indice < 0) mensajes_.pitido();
}

void F_color::elige(int indice) {
    por_capa_ = false;
    visto_.error.clear();
    visto_.color = paleta_a_pantalla(indice);
    visto_.indice = indice == 0 ? NINGUNA : indice;
}

void F_color::camina(PasoColor paso) {
    const std::size_t num_tiras = visto_.desplegado ? tiras().size() : 1;
    const std::optional<Lugar> aqui = lugar_de(visto_.indice);
    const bool se_ve = aqui && aqui->tira < num_tiras;
    elige_muestra(se_ve ? indice_en(vecino(*aqui, paso, num_tiras)) : 1);
}

void F_color::boton(BotonColor boton) {
    switch (boton) {
    case BotonColor::PorCapa:
        if (visto_.ofrece_por_capa) elige_por_capa();
        break;
    case BotonColor::Otros: visto_.desplegado = true; break;
    case BotonColor::Aceptar: acepta(); break;
    case BotonColor::Cancelar:
        aceptado_ = false;
        visto_.abierto = false;
        break;
    }
}

// The box shows the choice; it is not read, or it would choose the colour of index 0.
void F_color::elige_por_capa() {
    por_capa_ = true;
    visto_.error.clear();
    visto_.color = visto_.color_capa;
    visto_.indice = NINGUNA;
    visto_.texto = textos::nombres_color[0];
    visto_.nombre_capa = pantalla_a_nombre(visto_.color_capa);
}

// Black counts as no colour; kept so.
void F_color::acepta() {
    if (visto_.color > COLOR_MAYOR || visto_.color <= 0) {
        visto_.error = textos::color_no_valido;
        mensajes_.pitido();
        return;
    }
    aceptado_ = true;
    visto_.abierto = false;
}

void F_color::cerrado(float izquierda, float arriba) {
    visto_.izquierda = izquierda;
    visto_.arriba = arriba;
}

bool elige_color(EstadoTabla& e, std::int32_t& color) {
    F_color selector(e.plataforma.dialogo_color, e.plataforma.mensajes, e.plataforma.ajustes);
    selector.C_Titulo(textos::elige_color);
    selector.C_color_elegido_Vb(color);
    const auto toma = [&] {
        if (selector.aceptado()) color = selector.C_color_elegido_Vb();
    };
    try {
        selector.C_ejecuta();
    } catch (...) {
        toma();
        throw;
    }
    toma();
    return selector.aceptado();
}

std::string_view etiqueta_lista(int numero) noexcept {
    if (numero < 1 || numero > static_cast<int>(textos::lista_colores.size())) return {};
    return textos::lista_colores[static_cast<std::size_t>(numero - 1)];
}

} // namespace Qlt4_Tabla
