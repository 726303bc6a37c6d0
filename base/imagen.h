// SPDX-License-Identifier: MIT
// A picture of the front end as the core sees it: a handle that is stored and handed back, never
// looked into. A front end derives its own class from Imagen. Main names: Imagen, PunteroImagen.
#pragma once

#include "base/publico.h"

#include <memory>

namespace Qlt4_Tabla {

class TABLA_API Imagen {
public:
    virtual ~Imagen();

    Imagen(const Imagen&) = delete;
    Imagen& operator=(const Imagen&) = delete;

protected:
    Imagen() = default;
};

// Shared, as one picture may stand in many cells; empty: no picture.
using PunteroImagen = std::shared_ptr<Imagen>;

} // namespace Qlt4_Tabla
