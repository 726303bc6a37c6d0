// SPDX-License-Identifier: MIT
// EstadoTabla: everything one table consists of, as passive data: grid, formats, names, labels, menu
// state, flags, and the seams it works through. The rules are functions and classes over it; Tabla0 owns
// it. Two tables share nothing.
#pragma once

#include "base/publico.h"
#include "core/estado_menus.h"
#include "core/etiquetas.h"
#include "core/formato_columna.h"
#include "core/menu_cambio.h"
#include "core/nombres_tabla.h"
#include "core/revoca.h"
#include "core/tablero.h"
#include "platform/eventos.h"
#include "platform/plataforma.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Qlt4_Tabla {

struct TABLA_API EstadoTabla {
    EstadoTabla(const Plataforma& p, __Tabla0& e)
        : plataforma(p), eventos(e), tablero(p.vista), revoca(p.pasos) {}

    Plataforma plataforma;
    __Tabla0& eventos;

    Tablero tablero;
    std::array<T_FormatoColumna, MAX_COLUMNAS> Formatos{}; ///< working formats
    std::array<T_FormatoColumna, MAX_COLUMNAS> Formatos_por_defecto{}; ///< as the host last gave them
    std::array<T_Col, MAX_COLUMNAS> listas{}; ///< values of list columns
    NombresTabla nombres;
    Etiquetas etiquetas;
    EstadoMenus menus;
    MenuCambio menu_cambio;
    Revoca revoca;

    std::int16_t Modificado = 0; ///< 1 after a change by the user that is not saved
    bool ComaDecimal = false; ///< the platform writes decimals with a comma; refreshed where it is used
    bool edicionColor = false; ///< colour cells are painted in their colour
    bool ratonOff = false; ///< no right-click menu, no copy menu, no Delete key
    bool especialPuntos = false; ///< special-points mode
    bool edicionColumnasOff = false; ///< the toolbar offers neither paste nor its gaps
    bool primeraEscritura = false; ///< the host has written a cell
    int relojes = 0; ///< long commands at work, one within the other (core/reloj_de_arena.h)
    std::int32_t ultimaFilaRaton = -1; ///< cell of the previous click
    std::int32_t ultimaColRaton = -1;
};

/// The working format of a column; error 9 outside 0..25.
[[nodiscard]] const T_FormatoColumna& formato(const EstadoTabla& e, int col);
[[nodiscard]] T_FormatoColumna& formato(EstadoTabla& e, int col);

/// Asks the platform again whether decimals are written with a comma.
void refresca_ComaDecimal(EstadoTabla& e);
/// Writes a label of this table and tells the frame when its text or its visibility changed.
void pon_etiqueta(EstadoTabla& e, Etiqueta& etiqueta, std::string_view texto, bool visible);
/// Row-count label of start-up and of the `Rows` let: "Nº de ", subtitle, " =", Str(Rows - 1).
void escribe_labNumeroFilas(EstadoTabla& e);
/// Row-count label as applying the formats writes it: subtitle, ": Nº de filas =", Str(Rows - 1).
void escribe_cuenta_filas(EstadoTabla& e, bool visible);
/// After a change of the rows: the row-count label, where it is seen.
void recuenta_filas(EstadoTabla& e);
/// Shows `texto` in labMensaje until the next editor opening, commit, command or selection change.
void muestra_mensaje(EstadoTabla& e, std::string_view texto);
/// The message has ended: labMensaje is hidden and its caption is the status text "Nº de ", subtitle,
/// " =", Str(Rows - 1).
void termina_mensaje(EstadoTabla& e);
/// The next click on a list cell is a first one.
void olvida_clic(EstadoTabla& e);
/// Selection-change handling: refreshes the status text, then raises `SelChange`.
void trata_cambio_seleccion(EstadoTabla& e);

} // namespace Qlt4_Tabla
