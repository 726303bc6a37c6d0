// SPDX-License-Identifier: MIT
// Sets the table up in the order a host must keep: names, formats, lists, rows, cells.
#include "tabla_puntos.h"

#include "textos.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <set>
#include <string>

namespace plano {

using namespace Qlt4_Tabla;

namespace {

struct Formato {
    Columna col;
    const char* nombre;
    T_formato formato;
    std::int16_t decimales;
    T_Alineacion alineacion;
    T_Accion accion;
    std::int16_t ancho; // units of 120 twips
};

constexpr Formato FORMATOS[] = {
    {NOMBRE, textos::COL_NOMBRE, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Increm, 9},
    {X, textos::COL_X, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 11},
    {Y, textos::COL_Y, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 11},
    {COTA, textos::COL_COTA, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 8},
    {ZINC, textos::COL_ZINC, T_formato::EntPos, 0, T_Alineacion::Drcha, T_Accion::Nada__, 7},
    {USO, textos::COL_USO, T_formato::ListaU, 0, T_Alineacion::Centr, T_Accion::Repite, 7},
    {INUNDACION, textos::COL_INUNDACION, T_formato::Color_, 0, T_Alineacion::Centr, T_Accion::Nada__, 12},
};

Matriz<std::string> usos(const std::vector<Muestra>& muestras) {
    std::set<std::string> distintos;
    for (const Muestra& m : muestras)
        if (!m.uso.empty()) distintos.insert(m.uso);
    Matriz<std::string> lista(0, static_cast<std::int32_t>(distintos.size()) - 1);
    std::copy(distintos.begin(), distintos.end(), lista.begin());
    return lista;
}

/// Where copy `k` of the samples stands: in a square of copies, an eighth of their extent apart.
struct Mosaico {
    explicit Mosaico(const std::vector<Muestra>& muestras, int copias)
        : lado(std::max(1, static_cast<int>(std::ceil(std::sqrt(copias))))) {
        const auto [oeste, este] = std::ranges::minmax(muestras, {}, &Muestra::x);
        const auto [sur, norte] = std::ranges::minmax(muestras, {}, &Muestra::y);
        dx = std::ceil((este.x - oeste.x) * 1.125);
        dy = std::ceil((norte.y - sur.y) * 1.125);
    }

    int lado;
    double dx, dy;
};

std::string tres_decimales(double metros) {
    char texto[40];
    const auto fin = std::to_chars(texto, texto + sizeof texto, metros, std::chars_format::fixed, 3);
    return {texto, fin.ptr};
}

} // namespace

void prepara_tabla(Tabla0& tabla, const std::vector<Muestra>& muestras) {
    tabla.Tablero_Nombres(textos::TITULO_TABLA, textos::SUBTITULO_TABLA, textos::EXTENSION);
    tabla.A_Edicion_pon_Color(); // colour cells are painted in their colour
    tabla.Cols(CUANTAS_COLUMNAS);
    // Unlocked: a locked column 0 would show a count of rows below the table; the status bar has one.
    tabla.FormatoColumnas(
        NUMERO, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 6, std::string());
    for (const Formato& f : FORMATOS)
        tabla.FormatoColumnas(static_cast<std::int16_t>(f.col), false, false, f.formato, f.decimales,
            f.alineacion, f.accion, f.ancho, f.nombre);
    tabla.Lista(USO, usos(muestras));
    tabla.Tablero_establece_Formato();
    tabla.TextMatrix(0, NUMERO, textos::COL_NUMERO);
}

void carga_puntos(Tabla0& tabla, const std::vector<Muestra>& muestras, int filas) {
    if (muestras.empty()) return;
    const int por_copia = static_cast<int>(muestras.size());
    const Mosaico mosaico(muestras, (filas + por_copia - 1) / por_copia);
    tabla.Redraw(false);
    tabla.Rows(filas + 1); // with the header
    for (int fila = 1; fila <= filas; ++fila) {
        const Muestra& m = muestras[static_cast<std::size_t>((fila - 1) % por_copia)];
        const int copia = (fila - 1) / por_copia;
        tabla.TextMatrix(fila, NOMBRE, textos::PREFIJO_NOMBRE + std::to_string(fila));
        tabla.TextMatrix(fila, X, tres_decimales(m.x + copia % mosaico.lado * mosaico.dx));
        tabla.TextMatrix(fila, Y, tres_decimales(m.y + copia / mosaico.lado * mosaico.dy));
        tabla.TextMatrix(fila, COTA, m.cota);
        tabla.TextMatrix(fila, ZINC, m.zinc);
        tabla.TextMatrix(fila, USO, m.uso);
        // The flooding class is its palette number: 1 red, 2 yellow, 3 green.
        if (m.inundacion > 0)
            tabla.Color_Matrix_en_Cad_dado_N_cad(fila, INUNDACION, static_cast<std::int16_t>(m.inundacion));
    }
    tabla.Redraw(true);
    tabla.mandos().elige_celda(1, NOMBRE); // colouring a cell moves the current cell to it
}

void colorea_escrito(Tabla0& tabla, int fila) {
    const std::string texto = tabla.TextMatrix(fila, INUNDACION);
    const auto* const nombre = std::ranges::find(textos::NOMBRES_COLOR, texto);
    std::int16_t numero = -1;
    if (nombre != std::end(textos::NOMBRES_COLOR))
        numero = static_cast<std::int16_t>(nombre - std::begin(textos::NOMBRES_COLOR));
    else if (std::from_chars(texto.data(), texto.data() + texto.size(), numero).ptr !=
        texto.data() + texto.size())
        numero = -1;
    if (numero >= 0 && numero <= 255)
        tabla.Color_Matrix_en_Cad_dado_N_cad(fila, INUNDACION, numero);
    else if (tabla.tablero().tiene_fondo(fila, INUNDACION))
        tabla.Color_Matrix_en_Cad_dado_N_VB(fila, INUNDACION, tabla.Color_Matrix(fila, INUNDACION));
    else
        tabla.TextMatrix(fila, INUNDACION, std::string());
}

std::optional<double> lee_numero(std::string_view texto) {
    std::string copia(texto);
    std::ranges::replace(copia, ',', '.');
    double numero = 0;
    const char* const fin = copia.data() + copia.size();
    const auto leido = std::from_chars(copia.data(), fin, numero);
    if (leido.ec != std::errc() || leido.ptr != fin || !std::isfinite(numero)) return std::nullopt;
    return numero;
}

} // namespace plano
