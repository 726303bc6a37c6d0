// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees: messages, tooltips, the entries of the fill menu.
#pragma once

#include <string_view>

namespace Qlt4_Tabla::textos {

// The message of a locked or invisible column stands around the column's header text.
inline constexpr std::string_view columna_antes = "La columna < ";
inline constexpr std::string_view columna_despues = " > no se puede editar";

// Tooltips of the toolbar.
inline constexpr std::string_view ayuda_copiar = "Copiar todo";
inline constexpr std::string_view ayuda_pegar = "Pegar";
inline constexpr std::string_view ayuda_excel = "Copiar en Excel";
inline constexpr std::string_view ayuda_propiedades = "Opciones";
inline constexpr std::string_view ayuda_avance = "Tipo de avance al introducir datos";

// Entries of the text-fill menu: one of these, the text, the end. The two blanks are intended.
inline constexpr std::string_view repetir = "Repetir  <";
inline constexpr std::string_view incrementar = "Incrementar en 1  <";
inline constexpr std::string_view fin_relleno = ">";

} // namespace Qlt4_Tabla::textos
