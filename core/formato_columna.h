// SPDX-License-Identifier: MIT
// T_FormatoColumna and the public enumerations: what a column is called, how it shows, what values it
// holds and how it fills itself. The spellings are published and kept.
#pragma once

#include "base/matriz.h"

#include <cstdint>
#include <string>

namespace Qlt4_Tabla {

/// Columns that can carry a format: 0 (the row numbers) to 25.
inline constexpr int MAX_COLUMNAS = 26;
/// Grid width of one unit of `Longitud`, in twips.
inline constexpr int TWIPS_POR_UNIDAD = 120;
/// The widest column that a format can hold: its width in twips is formed in 16 bits.
inline constexpr int MAX_ANCHO_TWIPS = 32767 / TWIPS_POR_UNIDAD * TWIPS_POR_UNIDAD;
/// The background of an unlocked header cell: the system's colour of button faces, not an RGB value.
inline constexpr std::int32_t COLOR_CARA_BOTON = static_cast<std::int32_t>(0x8000000FU);
/// The background of a locked column's header cell, 0x00BBGGRR.
inline constexpr std::int32_t COLOR_CABECERA_BLOQUEADA = 0xE0E0E0;

// Double and trailing underscores below are part of published names, which hosts are bound to.
// NOLINTBEGIN(bugprone-reserved-identifier)

/// The kinds of value of a column.
enum class T_formato : std::int32_t {
    Entero = 0, ///< whole number
    EntPos = 1, ///< whole number without sign
    Real__ = 2, ///< real number with a fixed count of decimals
    RealPo = 3, ///< the same without sign
    Alfanm = 4, ///< text
    ListaU = 5, ///< one of the column's list of values
    Color_ = 6, ///< a colour's name, shown in that colour
    Imagen = 7, ///< a picture
};

/// Horizontal alignment of a column.
enum class T_Alineacion : std::int32_t { Izqda = 0, Centr = 1, Drcha = 2 };

/// What fills a column's cell in a new row.
enum class T_Accion : std::int32_t {
    Nada__ = 0, ///< nothing
    Repite = 1, ///< the text of the row above
    Increm = 2, ///< the text of the row above with its trailing number raised by one
    Decrem = 3, ///< nothing, by design
};

// NOLINTEND(bugprone-reserved-identifier)

/// The named colours of the colouring members.
enum class T_colores : std::int32_t {
    Negro = 0,
    Rojo = 1,
    Amarll = 2,
    Verde = 3,
    Ciano = 4,
    Azul = 5,
    Magent = 6,
    Blanco = 7,
};

/// One column's format. Integers are kept as given; who reads them states what happens outside the range.
struct T_FormatoColumna {
    std::string Nombre; ///< header text, shown in row 0
    bool Invisible = false; ///< shown with width 0
    bool Bloqueada = false; ///< locked against editing; grey header
    std::int16_t Longitud = 0; ///< width in units of 120 twips
    std::int16_t Formato = 0; ///< a T_formato; outside 0..7 it is treated as text
    std::int16_t Decimales = 0; ///< decimals shown by Real__ and RealPo
    std::int16_t Alineacion = 0; ///< a T_Alineacion; any other value leaves the column's alignment
    std::int16_t Accion = 0; ///< a T_Accion

    friend bool operator==(const T_FormatoColumna&, const T_FormatoColumna&) = default;
};

/// The cells of a row or the values of a list column.
struct T_Col {
    Matriz<std::string> Col;
};

/// True for Entero, EntPos, Real__ and RealPo.
[[nodiscard]] constexpr bool es_numerico(std::int16_t formato) { return formato >= 0 && formato <= 3; }

/// True for Alfanm and for what is no format at all, which counts as text.
[[nodiscard]] constexpr bool es_texto(std::int16_t formato) {
    return formato == static_cast<std::int16_t>(T_formato::Alfanm) || formato < 0 || formato > 7;
}

/// True for Real__ and RealPo.
[[nodiscard]] constexpr bool es_real(std::int16_t formato) { return formato == 2 || formato == 3; }

[[nodiscard]] constexpr bool es_formato(std::int16_t formato, T_formato f) {
    return formato == static_cast<std::int16_t>(f);
}

} // namespace Qlt4_Tabla
