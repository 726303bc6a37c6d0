// SPDX-License-Identifier: MIT
// Copy, cut and paste as commands: where the rules of clipboard/ need those of editing/, and the boundary of
// those whose errors have a message of their own. No error leaves the first three.
#pragma once

#include "core/estado_tabla.h"

namespace Qlt4_Tabla {

/// Every data cell to the clipboard.
void copia_tabla(EstadoTabla& e);
/// Every cell to the clipboard, header and row numbers too.
void copia_con_cabecera(EstadoTabla& e);
/// Every data cell to a spreadsheet.
void copia_en_hoja(EstadoTabla& e);

/// The selection to the clipboard; emptied only when it got there.
void corta_seleccion(EstadoTabla& e);
/// Adds a row and pastes from its row number on.
void pega_al_final(EstadoTabla& e);

} // namespace Qlt4_Tabla
