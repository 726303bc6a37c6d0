// SPDX-License-Identifier: MIT
// ImagenQt: a Qt picture behind the opaque picture handle of the core; what `A_Pon_Imagen` takes here.
#pragma once

#include "base/imagen.h"
#include "base/publico.h"

#include <QImage>

#include <memory>
#include <utility>

namespace Qlt4_Tabla {

class TABLA_API ImagenQt final : public Imagen {
public:
    explicit ImagenQt(QImage imagen) : imagen_(std::move(imagen)) {}

    [[nodiscard]] const QImage& imagen() const { return imagen_; }

private:
    QImage imagen_;
};

/// The handle of a picture, ready for `A_Pon_Imagen`.
[[nodiscard]] inline std::shared_ptr<const Imagen> imagen_de(QImage imagen) {
    return std::make_shared<const ImagenQt>(std::move(imagen));
}

} // namespace Qlt4_Tabla
