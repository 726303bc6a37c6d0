// SPDX-License-Identifier: MIT
// icono_svg: the drawings of the toolbar (iconos/*.svg) as icons in the colours of a palette, sharp at any size.
// The drawings have two colours that stand for the palette's: 101010 for its ink, fefefe for its paper.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

namespace Qlt4_Tabla {

/// The icon of a name ("copiar"), and of a second one for the pressed state (empty: the same).
[[nodiscard]] QIcon icono_svg(const QString& nombre, const QString& pulsado, const QPalette& paleta);

} // namespace Qlt4_Tabla
