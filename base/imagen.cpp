// SPDX-License-Identifier: MIT
// The opaque picture handle: base/imagen.h. The destructor stands here so that its type
// information is made once.
#include "base/imagen.h"

namespace Qlt4_Tabla {

Imagen::~Imagen() = default;

} // namespace Qlt4_Tabla
