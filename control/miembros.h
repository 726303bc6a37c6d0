// SPDX-License-Identifier: MIT
// The members of _Tabla0 and the events of __Tabla0 as data: place in the function table, name,
// identifier, accessors in their order, arguments, value or result, and the errors that reach the
// caller. The guard and the dispatcher work from this table; tests hold it against the class.
// Main names: MIEMBROS, EVENTOS, miembro, busca_miembro.
#pragma once

#include "control/guarda.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

namespace Qlt4_Tabla {

/// What is done with a member: a method is called, a property is read (get) or set (put).
enum class Acceso : std::uint8_t { Metodo, Lee, Pone };
inline constexpr std::size_t NUM_ACCESOS = 3;

/// A member's accessors, in the order in which the function table holds them.
enum class Clase : std::uint8_t { Metodo, Lee, Pone, LeePone, PoneLee };

/// The types that cross the boundary: whole numbers of 16 and 32 bits, real, Boolean, text, any value, a
/// picture, the four enumerations (32 bits), arrays of texts and of reals.
enum class Tipo : std::uint8_t {
    Nada,
    I2,
    I4,
    R8,
    Bool,
    Str,
    Var,
    Obj,
    Colores,
    Formato,
    Alineacion,
    Accion,
    MatrizStr,
    MatrizR8
};

struct Argumento {
    std::string_view nombre;
    Tipo tipo = Tipo::Nada;
    bool ref = false; ///< passed by reference
    bool opt = false; ///< may be left out: 0 or False
};

/// The arguments of one member, at most nine.
class Argumentos {
public:
    constexpr Argumentos() = default;

    constexpr Argumentos(std::initializer_list<Argumento> argumentos) {
        for (const Argumento& a : argumentos) datos_.at(cuantos_++) = a;
    }

    [[nodiscard]] constexpr std::size_t size() const { return cuantos_; }

    [[nodiscard]] constexpr const Argumento& operator[](std::size_t i) const { return datos_.at(i); }

    [[nodiscard]] constexpr const Argumento* begin() const { return datos_.data(); }

    [[nodiscard]] constexpr const Argumento* end() const { return datos_.data() + cuantos_; }

private:
    std::array<Argumento, 9> datos_{};
    std::size_t cuantos_ = 0;
};

struct Miembro {
    int lugar = 0; ///< 1 to 57
    std::string_view nombre;
    std::int32_t dispid = 0;
    Clase clase = Clase::Metodo;
    Argumentos argumentos; ///< of a method; of a property without its value
    Argumento valor; ///< of a property: last argument of the put, result of the get; a method's result
    ErroresAlLlamador errores{}; ///< the errors that reach the caller

    /// Holds every run of accessors.
    static constexpr std::array FILA_DE_ACCESOS{Acceso::Metodo, Acceso::Lee, Acceso::Pone, Acceso::Lee};

    /// The accessors in their order.
    [[nodiscard]] constexpr std::span<const Acceso> accesos() const {
        const std::span fila(FILA_DE_ACCESOS);
        switch (clase) {
        case Clase::Metodo: return fila.first(1);
        case Clase::Lee: return fila.subspan(1, 1);
        case Clase::Pone: return fila.subspan(2, 1);
        case Clase::LeePone: return fila.subspan(1, 2);
        case Clase::PoneLee: return fila.subspan(2, 2);
        }
        return {};
    }

    [[nodiscard]] constexpr bool admite(Acceso acceso) const {
        for (const Acceso suyo : accesos())
            if (suyo == acceso) return true;
        return false;
    }
};

struct Evento {
    std::int32_t dispid = 0;
    std::string_view nombre;
    Argumentos argumentos;
};

namespace tabla_miembros {

using enum Tipo;
using enum Clase;

consteval Argumento ref(std::string_view nombre, Tipo tipo) { return {nombre, tipo, true, false}; }

consteval Argumento opt(std::string_view nombre, Tipo tipo) { return {nombre, tipo, true, true}; }

consteval Argumento valor(Tipo tipo) { return {"value", tipo, false, false}; }

consteval Argumento valor_ref(Tipo tipo) { return {"value", tipo, true, false}; }

consteval Argumento resultado(Tipo tipo) { return {{}, tipo, false, false}; }

inline constexpr Argumento NADA;
inline constexpr Argumentos CELDA{ref("fila", I4), ref("colm", I4)};
inline constexpr ErroresAlLlamador TODOS = ErroresAlLlamador::todos();

// In the order of the function table. Names and identifiers are published.
inline constexpr std::array<Miembro, 57> MIEMBROS{{
    {1, "A_Pon_Alto", 0x60030016, Metodo, {{"Fil", I2}, {"Alto", I2}}, NADA},
    {2, "A_Pon_Imagen", 0x60030017, Metodo, {{"Fil", I2}, ref("Col", I2), ref("Imag", Obj)}, NADA},
    {3, "A_fila_Activa", 0x60030018, Metodo, {}, resultado(I4), {6}},
    {4, "A_Edicion_pon_Color", 0x60030019, Metodo, {}, NADA},
    {5, "A_Edicion_mn_Ratón_Off", 0x6003001a, Metodo, {}, NADA},
    {6, "A_Edicion_Columnas_Off", 0x6003001b, Metodo, {}, NADA},
    {7, "A_Especial_puntos_ON", 0x6003001c, Metodo, {}, NADA},
    {8, "m_Sumar_dos_ColumnasAyB", 0x6003001d, Metodo,
        {ref("colA", I4), ref("colB", I4), ref("colResul", I4)}, NADA, {6, 9}},
    {9, "m_Restar_dos_ColumnasA_B", 0x6003001e, Metodo,
        {ref("colA", I4), ref("colB", I4), ref("colResul", I4)}, NADA, {6, 9}},
    {10, "m_Diferencia_Parcial_1Columna", 0x6003001f, Metodo,
        {ref("columna", I4), ref("colResul", I4), opt("ValNegativoColorRojo", Bool)}, NADA, {6, 9}},
    {11, "Color_Columna", 0x60030020, Metodo, {ref("columna", I4), ref("Color", Colores)}, NADA},
    {12, "crea_una_fila", 0x60030023, Metodo, {}, NADA, {6, 9}},
    {13, "Copiar_Todo", 0x60030038, Metodo, {}, NADA},
    {14, "Copiar_todo_Excel", 0x60030039, Metodo, {}, NADA},
    {15, "Tablero_Lee_Formato_Win", 0x6003006c, Metodo, {ref("t_apli", Str), ref("t_cap", Str)}, NADA},
    {16, "Tablero_Graba_Formato_Win", 0x6003006d, Metodo, {ref("t_apli", Str), ref("t_cap", Str)}, NADA,
        TODOS},
    {17, "Tablero_establece_Formato", 0x6003006e, Metodo, {}, NADA, {6, 9}},
    {18, "Tablero_Leer", 0x60030070, Metodo, {ref("nombreFichero", Str)}, NADA},
    {19, "Tablero_Grabar", 0x60030071, Metodo, {ref("nombreFichero", Str)}, NADA},
    {20, "Width", 0x68030015, PoneLee, {}, valor(Var)},
    {21, "Height", 0x68030014, PoneLee, {}, valor(Var)},
    {22, "TextMatrix", 0x68030013, PoneLee, CELDA, valor_ref(Str), {9}},
    {23, "ColMatrix", 0x68030012, Pone, CELDA, valor_ref(Colores)},
    {24, "Color_1Celda", 0x68030011, Pone, CELDA, valor_ref(Colores)},
    {25, "Color_Fila", 0x68030010, Pone, {ref("fila", I4), ref("columIni", I4), ref("colmFin", I4)},
        valor_ref(Colores)},
    {26, "A_actualizaEditor", 0x6803000f, Pone, {}, valor(Bool), {6, 9}},
    {27, "A_ExtensionFche", 0x6803000e, LeePone, {}, valor(Str)},
    {28, "Rows", 0x6803000d, LeePone, {}, valor(I4)},
    {29, "Cols", 0x6803000c, LeePone, {}, valor(I4)},
    {30, "Formatcol", 0x60030079, Metodo,
        {ref("Col", I2), ref("Visib", Str), ref("Bloqu", Str), ref("Formt", I2), ref("decim", I2),
            ref("posic", I2), ref("Longi", I2), ref("nomb", Str), opt("Accion", I2)},
        NADA, {9}},
    {31, "FormatoColumnas", 0x6003007a, Metodo,
        {ref("Col", I2), ref("Invisib", Bool), ref("Bloqu", Bool), ref("Formato", Formato), ref("decim", I2),
            ref("Alinea", Alineacion), ref("Accion", Accion), ref("Longit", I2), ref("nomb", Str)},
        NADA, {6, 9}},
    {32, "Editor_Tabl_graba", 0x6003007d, Metodo, {}, NADA, {6, 9}},
    {33, "Tablero_Nombres", 0x6003007e, Metodo,
        {ref("Titulo", Str), ref("subtitulo", Str), ref("extens", Str)}, NADA},
    {34, "Tablero_Formato_por_defecto", 0x6003007f, Metodo, {}, NADA},
    {35, "Tablero_Fila_0_Off", 0x60030080, Metodo, {}, NADA},
    {36, "Ficheros_en_menu", 0x60030081, Metodo, {ref("Nvalor", Bool)}, NADA},
    {37, "A_GrabaRevoca", 0x6803000b, LeePone, {}, valor(Str)},
    {38, "A_Col", 0x6803000a, Pone, {}, valor(I4)},
    {39, "A_RowTop", 0x68030009, Pone, {}, valor(I4)},
    {40, "tablero_sin_color", 0x60030082, Metodo, {}, NADA},
    {41, "Redraw", 0x68030008, Pone, {}, valor(Bool)},
    {42, "Lista", 0x60030083, Metodo, {ref("columna", I2), ref("valores", MatrizStr)}, NADA, {9}},
    {43, "MergeCol", 0x68030007, LeePone, {ref("columna1", I2)}, valor(Bool)},
    {44, "MergeCells", 0x68030006, LeePone, {}, valor(I2)},
    {45, "Clear", 0x60030084, Metodo, {}, NADA},
    {46, "m_Obten_Matriz_Numerica_de_columna", 0x60030085, Metodo,
        {ref("columna", I4), ref("Matriz1", MatrizR8)}, NADA, {9}},
    {47, "m_Obten_Matriz_Alfanume_de_columna", 0x60030086, Metodo,
        {ref("columna", I4), ref("Matriz1", MatrizStr)}, NADA, {9}},
    {48, "m_Asigna_Matriz_Numerica_a_Columna", 0x60030087, Metodo,
        {ref("columna", I4), ref("Matriz1", MatrizR8)}, NADA, {6, 9}},
    {49, "m__Asigna_Matriz_Alfanume_a_Columna", 0x60030088, Metodo,
        {ref("columna", I4), ref("Matriz1", MatrizStr)}, NADA, {9}},
    {50, "Show_Eleige_Color", 0x60030089, Metodo,
        {ref("NumColorPreSeleccVb", Str), ref("PorCapa", Bool), ref("NumColorPorCapaPreSeleccVb", I4),
            ref("Expandircolores", Bool), ref("NumColorElegiVB", I4), ref("NumColorAutocad", I4),
            ref("NomColorAutocad", Str)},
        NADA},
    {51, "Show_Elige_Color", 0x6003008a, Metodo, {{"NumColorElegiVB", I4}}, resultado(I4)},
    {52, "Color_Matrix", 0x68030005, PoneLee, CELDA, valor_ref(I4)},
    {53, "Color_Matrix_en_VB", 0x68030004, Lee, CELDA, valor(I4), {6, 13}},
    {54, "Color_Matrix_en_Cad", 0x68030003, Pone, CELDA, valor_ref(I4)},
    {55, "Color_Matrix_de_Cad", 0x68030002, Pone, CELDA, valor_ref(I2)},
    {56, "Color_Matrix_en_Cad_dado_N_VB", 0x68030001, Pone, CELDA, valor_ref(I4)},
    {57, "Color_Matrix_en_Cad_dado_N_cad", 0x68030000, Pone, CELDA, valor(I2)},
}};

inline constexpr std::array<Evento, 4> EVENTOS{{
    {1, "Salir", {}},
    {2, "SelChange", {}},
    {3, "CambiaCasilla", {}},
    {4, "ACambiadoValorCombo", {ref("Mouse_Row", I4), ref("Mouse_Col", I4)}},
}};

} // namespace tabla_miembros

using tabla_miembros::EVENTOS;
using tabla_miembros::MIEMBROS;

/// Index in MIEMBROS of the member of that name, letter by letter; its size when there is none.
constexpr std::size_t fila_de(std::string_view nombre) {
    std::size_t i = 0;
    while (i < MIEMBROS.size() && MIEMBROS[i].nombre != nombre) ++i;
    return i;
}

/// The member of that name, letter by letter; a name that is none does not compile.
consteval const Miembro& miembro(std::string_view nombre) { return MIEMBROS.at(fila_de(nombre)); }

/// The member of that name, the ASCII letters in either case; null when there is none.
[[nodiscard]] const Miembro* busca_miembro(std::string_view nombre) noexcept;
/// The member of that identifier; null when there is none.
[[nodiscard]] const Miembro* busca_miembro(std::int32_t dispid) noexcept;

} // namespace Qlt4_Tabla
