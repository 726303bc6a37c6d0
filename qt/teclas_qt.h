// SPDX-License-Identifier: MIT
// Qt's keys in the core's codes (base/teclas.h), and the characters of a key event as KeyAscii codes.
#pragma once

#include "base/teclas.h"

#include <QString>

#include <vector>

class QKeyEvent;

namespace Qlt4_Tabla {

/// The key-down code, 0 for keys the table has no use for.
[[nodiscard]] int codigo_tecla_abajo(const QKeyEvent& e);
[[nodiscard]] Modificadores modificadores(Qt::KeyboardModifiers m);
/// The key-press codes of what the key types: none for Ctrl and Alt combinations, Tab and keys without a
/// character. AltGr types characters.
[[nodiscard]] std::vector<int> codigos_tecleados(const QKeyEvent& e);
[[nodiscard]] std::vector<int> codigos_de_texto(const QString& texto);
/// Does the grid use the key, so that it claims it from a host that binds it as a shortcut?
[[nodiscard]] bool es_de_la_rejilla(const QKeyEvent& e);
/// Is it the decimal key of the keypad, whatever sign the layout gives it?
[[nodiscard]] bool es_decimal_del_teclado_numerico(const QKeyEvent& e);
/// The text of a key-press code.
[[nodiscard]] QString texto_de_codigo(int KeyAscii);

} // namespace Qlt4_Tabla
