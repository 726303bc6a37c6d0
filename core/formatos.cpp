// SPDX-License-Identifier: MIT
// Column formats and the grid: taking them from the host, applying them in their fixed order of steps,
// taking dragged widths back. See core/formato_columna.h for the record.
#include "core/formatos.h"

#include "base/aritmetica.h"
#include "base/error.h"
#include "base/numeros.h"
#include "core/avance.h"
#include "core/reglas_valor.h"
#include "core/reloj_de_arena.h"
#include "core/sin_errores.h"
#include "core/textos.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace Qlt4_Tabla {

namespace {

/// The extension of a table without files.
constexpr std::string_view SIN_FICHEROS = "X";
/// The text of a cleared flag; every other text is a set flag.
constexpr std::string_view BANDERA_BAJA = "-";

template <class Enumerado>
std::int16_t estrecha(Enumerado valor) {
    return entero16(static_cast<std::int32_t>(valor));
}

void guarda(EstadoTabla& e, int col, T_FormatoColumna nuevo) {
    T_FormatoColumna& actual = formato(e, col); // error 9 before anything is stored
    T_FormatoColumna& por_defecto = e.Formatos_por_defecto[static_cast<std::size_t>(col)];
    por_defecto = std::move(nuevo);
    actual = por_defecto;
}

int ancho_en_twips(const T_FormatoColumna& f) { return producto16(f.Longitud, TWIPS_POR_UNIDAD); }

/// Column 0 is text without decimals, filled by nothing; its label stands in for it when it is locked.
void prepara_columna_0(EstadoTabla& e) {
    T_FormatoColumna& f = e.Formatos[0];
    f.Accion = static_cast<std::int16_t>(T_Accion::Nada__);
    f.Alineacion = static_cast<std::int16_t>(T_Alineacion::Izqda);
    f.Formato = static_cast<std::int16_t>(T_formato::Alfanm);
    e.tablero.ColWidth(0, f.Invisible ? 0 : ancho_en_twips(f));

    escribe_cuenta_filas(e, f.Bloqueada);
    f.Decimales = 0;
}

/// Any alignment outside 0..2 leaves the column's.
void alinea_columna(Tablero& t, int col, std::int16_t alineacion) {
    switch (alineacion) {
    case static_cast<std::int16_t>(T_Alineacion::Izqda):
        t.ColAlignment(col, AlineacionCelda::Izquierda);
        break;
    case static_cast<std::int16_t>(T_Alineacion::Centr): t.ColAlignment(col, AlineacionCelda::Centro); break;
    case static_cast<std::int16_t>(T_Alineacion::Drcha): t.ColAlignment(col, AlineacionCelda::Derecha); break;
    default: break;
    }
}

void establece_columna(EstadoTabla& e, int col) {
    da_formato_a_columna(e, col); // error 9 from column 26 on
    const T_FormatoColumna& f = formato(e, col);
    if (col > 0) e.tablero.TextMatrix(0, col, f.Nombre);
    e.tablero.color_fondo(Bloque{0, col, 0, col}, f.Bloqueada ? COLOR_CABECERA_BLOQUEADA : COLOR_CARA_BOTON);
    alinea_columna(e.tablero, col, f.Alineacion);
}

/// Can the text be no number near the end of the range of a double? Then its number shows what the text does.
bool es_corriente(std::string_view texto) {
    const auto de_exponente = [](char c) { return (c | 0x20) == 'e' || (c | 0x20) == 'd'; };
    return texto.size() < 300 && std::none_of(texto.begin(), texto.end(), de_exponente);
}

/// The cell's number, written by the standard conversion and shown with its decimals. Most texts take the
/// short way, which gives the same.
void muestra_numero(std::string_view texto, int decimales, std::string& destino) {
    if (decimales > 0) {
        if (es_corriente(texto))
            Formato_Numero(texto, 0, decimales, destino);
        else
            Formato_Numero(Valor_Numerico(texto), 0, decimales, destino);
        return;
    }
    char cifras[capacidad_numero];
    destino.assign(cifras, escribe_numero(Valor_Numerico(texto), cifras, capacidad_numero));
}

void muestra_decimal(const Decimal& numero, int decimales, std::string& destino) {
    constexpr int maximos = 15;
    char cifras[capacidad_fijo];
    destino.assign(cifras, escribe_fijo(numero, std::min(decimales, maximos), cifras));
}

/// Every number in the form of its decimals; cells that have it already are left. `avance` is told of their rows.
FormaCeldas forma_de_numeros(EstadoTabla& e, int decimales, Avance avance) {
    bool preguntado = false; // the separator, once a column instead of once a cell
    return {"decimales" + Str(decimales),
        [&e, decimales, avance, preguntado](int fila, std::string_view texto, std::string& nuevo) mutable {
            avance.hasta(fila);
            if (texto.empty()) return false;
            if (!std::exchange(preguntado, true)) refresca_ComaDecimal(e);
            if (tiene_forma_de_numero(texto, decimales)) return false;
            muestra_numero(texto, decimales, nuevo);
            return nuevo != texto;
        },
        [decimales](
            std::string_view texto) { return texto.empty() || tiene_forma_de_numero(texto, decimales); }};
}

/// Every value becomes the first of its list; error 9 at a value when there is none.
FormaCeldas forma_de_lista(const Matriz<std::string>& valores, Avance avance) {
    const bool hay = !valores.empty() && valores.LBound() <= 0 && valores.UBound() >= 0;
    return {hay ? "lista:" + valores[0] : "lista",
        [&valores, avance](int fila, std::string_view texto, std::string& nuevo) mutable {
            avance.hasta(fila);
            if (texto.empty()) return false;
            const std::string& primero = valores[0];
            if (texto == primero) return false;
            nuevo = primero;
            return true;
        },
        {}};
}

/// Nothing for a column whose cells stay as they are.
std::optional<FormaCeldas> forma_de(EstadoTabla& e, int col, const Avance& avance) {
    const T_FormatoColumna& f = formato(e, col);
    if (es_numerico(f.Formato)) return forma_de_numeros(e, es_real(f.Formato) ? f.Decimales : 0, avance);
    if (es_formato(f.Formato, T_formato::ListaU))
        return forma_de_lista(e.listas[static_cast<std::size_t>(col)].Col, avance);
    return std::nullopt;
}

} // namespace

// Their argument lists are published.
// NOLINTBEGIN(readability-function-size)
void FormatoColumnas(EstadoTabla& e, std::int16_t Col, bool Invisib, bool Bloqu, T_formato Formato,
    std::int16_t decim, T_Alineacion Alinea, T_Accion Accion, std::int16_t Longit, std::string_view nomb) {
    guarda(e, Col,
        {.Nombre = std::string(nomb),
            .Invisible = Invisib,
            .Bloqueada = Bloqu,
            .Longitud = Longit,
            .Formato = estrecha(Formato),
            .Decimales = decim,
            .Alineacion = estrecha(Alinea),
            .Accion = estrecha(Accion)});
}

void Formatcol(EstadoTabla& e, std::int16_t Col, std::string_view Visib, std::string_view Bloqu,
    std::int16_t Formt, std::int16_t decim, std::int16_t posic, std::int16_t Longi, std::string_view nomb,
    std::int16_t Accion) {
    guarda(e, Col,
        {.Nombre = std::string(nomb),
            .Invisible = Visib != BANDERA_BAJA,
            .Bloqueada = Bloqu != BANDERA_BAJA,
            .Longitud = Longi,
            .Formato = Formt,
            .Decimales = decim,
            .Alineacion = posic,
            .Accion = Accion});
}

// NOLINTEND(readability-function-size)

void Tablero_Formato_por_defecto(EstadoTabla& e) { e.Formatos = e.Formatos_por_defecto; }

// Redrawing is switched by hand: after an error it has to stay off.
void Tablero_establece_Formato(EstadoTabla& e) {
    const RelojDeArena reloj(e, Avance::hace_esperar(e.tablero.Rows() - 1));
    e.tablero.Redraw(false);
    prepara_columna_0(e);
    const int columnas = e.tablero.Cols();
    for (int col = 0; col < columnas; ++col) establece_columna(e, col);
    e.tablero.Redraw(true);
}

void Tablero_Formato_Columna(EstadoTabla& e, int col) {
    e.tablero.ColWidth(col, ancho_en_twips(formato(e, col)));
    const Avance avance(e.plataforma.mensajes, textos::dando_formato, e.tablero.Rows() - 1);
    const auto forma = forma_de(e, col, avance);
    if (forma)
        e.tablero.da_forma(col, *forma);
    else
        e.tablero.quita_forma(col);
}

void da_formato_a_columna(EstadoTabla& e, int col) {
    try {
        Tablero_Formato_Columna(e, col);
    } catch (...) {
        if (col < MAX_COLUMNAS) mantiene_oculta(e, col);
        throw;
    }
    mantiene_oculta(e, col);
}

void mantiene_oculta(EstadoTabla& e, int col) {
    if (formato(e, col).Invisible) e.tablero.ColWidth(col, 0);
}

bool computa_con_formato(EstadoTabla& e, int col, const ComputoColumna& computo) {
    bool hecho = false;
    Avance avance(e.plataforma.mensajes, textos::calculando, e.tablero.Rows() - 1);
    sin_errores([&] {
        const T_FormatoColumna& f = formato(e, col);
        const int ancho = ancho_en_twips(f);
        const auto forma = forma_de(e, col, {});
        const int decimales = computo.numero && es_real(f.Formato) ? f.Decimales : 0;
        std::string sin_forma;
        e.tablero.transforma_columna(
            col, 1, e.tablero.Rows() - 1, [&](int fila, std::string_view texto, std::string& nuevo) {
                avance.hasta(fila);
                const auto numero = decimales > 0 ? computo.numero(fila) : std::nullopt;
                if (numero) {
                    muestra_decimal(*numero, decimales, nuevo);
                } else {
                    sin_forma.clear();
                    if (!computo.texto(fila, texto, sin_forma)) sin_forma = texto;
                    if (!forma || !forma->da(fila, sin_forma, nuevo)) nuevo.swap(sin_forma);
                }
                return nuevo != texto;
            });
        e.tablero.ColWidth(col, ancho);
        hecho = true;
    });
    return hecho;
}

void Tablero_Fila_0_Off(EstadoTabla& e) {
    T_FormatoColumna& f = e.Formatos[0];
    f.Bloqueada = true;
    f.Invisible = false;
    f.Longitud = 0; // so that later formatting keeps the width
    e.tablero.ColWidth(0, 0);
}

void Editor_Tabl_graba(EstadoTabla& e) {
    const int columnas = e.tablero.Cols();
    for (int col = 0; col < columnas; ++col) {
        T_FormatoColumna& f = formato(e, col);
        const int ancho = e.tablero.ColWidth(col);
        if (ancho <= 0 || f.Invisible || f.Bloqueada) continue;
        if (ancho != ancho_en_twips(f)) f.Longitud = entero16(ancho / TWIPS_POR_UNIDAD);
    }
}

void Tablero_Nombres(
    EstadoTabla& e, std::string_view Titulo, std::string_view subtitulo, std::string_view extens) {
    e.nombres.Tablero_Pon_Nombre(1, true, Titulo);
    e.nombres.Tablero_Pon_Nombre(2, true, subtitulo);
    e.nombres.Tablero_Pon_Nombre(3, true, extens);
    if (extens != SIN_FICHEROS) return;
    for (const Opcion o :
        {Opcion::mn_pegar_cXp, Opcion::mn_copiar_pXc, Opcion::Mnu_Tabla_Leer, Opcion::Mnu_Tabla_Guardar_como})
        e.menus[o].visible = false;
    e.plataforma.marco.menus_cambiados();
}

std::string Formatea_Valor_Columna(EstadoTabla& e, std::string_view texto, int col) {
    const T_FormatoColumna& f = formato(e, col);
    if (texto.empty() || !es_numerico(f.Formato)) return std::string(texto);
    refresca_ComaDecimal(e);
    return Formato_Numero(texto, 0, es_real(f.Formato) ? f.Decimales : 0);
}

void Lista(EstadoTabla& e, std::int16_t columna, const Matriz<std::string>& valores) {
    if (es_formato(formato(e, columna).Formato, T_formato::ListaU)) {
        if (valores.dimensiones() > 1) lanza(NumError::Subindice);
        e.listas[static_cast<std::size_t>(columna)].Col = valores;
        return;
    }
    std::string texto(textos::no_es_lista_antes);
    texto += Str(columna);
    texto += textos::no_es_lista_despues;
    e.plataforma.mensajes.mensaje(texto, EstiloMensaje::Critico, {});
}

} // namespace Qlt4_Tabla
