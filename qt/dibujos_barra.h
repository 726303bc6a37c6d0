// SPDX-License-Identifier: MIT
// icono_de: the drawings of the toolbar as icons in the colours of a palette, sharp at any size. They are drawn
// by QPainter: files would have to be read and understood before the first window is seen.
#pragma once

#include <QIcon>
#include <QPalette>

namespace Qlt4_Tabla {

enum class Dibujo { Copiar, Pegar, Excel, Opciones, AvanceVertical, AvanceHorizontal };

/// A button's icon, and the one of its pressed state.
[[nodiscard]] QIcon icono_de(Dibujo suelto, Dibujo pulsado, const QPalette& paleta);

} // namespace Qlt4_Tabla
