// SPDX-License-Identifier: MIT
// TextosPreparados: texts of cells as glyphs in their places, laid out once and kept for the next paintings. How
// many are kept is bounded, whatever the table holds: those not asked for again go. Drawn by qt/pluma_celdas.h.
#pragma once

#include <QFont>
#include <QRawFont>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class QPainter;

namespace Qlt4_Tabla {

/// One line of text. Places are pixels from its top left corner.
struct TextoPreparado {
    struct Glifo {
        quint32 numero;
        float x; ///< on the base line
    };

    std::vector<Glifo> glifos;
    qreal base = 0; ///< the base line
    qreal avance = 0; ///< where the next text would begin
    QSizeF talla; ///< as wide as it is with what its last letter stands out
    QRectF tinta; ///< all that it blackens
};

class TextosPreparados {
public:
    /// More than the largest screens show cells.
    static constexpr std::size_t MAX_TEXTOS = 8192;

    /// Texts are asked for as this painter would draw them; what was kept for another font is forgotten.
    void usa(const QPainter& p);

    /// A text as it is shown in `ancho` pixels: cut, with an ellipsis, where it is longer. Null where it takes
    /// more than glyphs of the font side by side: other fonts, writing from the right, signs that are not shown.
    /// Holds until the next call.
    [[nodiscard]] const TextoPreparado* prepara(std::string_view texto, int ancho);

    /// The font of the glyphs.
    [[nodiscard]] const QRawFont& letra() const { return letra_; }

    [[nodiscard]] std::size_t cuantos() const { return nuevos_.size() + viejos_.size(); }

    /// Fonts may have changed.
    void olvida() { dpi_ = 0; }

private:
    struct Busca {
        std::string_view texto;
        int ancho;
    };

    struct Clave {
        std::string texto;
        int ancho;

        operator Busca() const { return {texto, ancho}; }
    };

    // Both find a key by a text that nobody owns.
    struct Dispersa {
        using is_transparent = void;

        std::size_t operator()(const Busca& b) const {
            return std::hash<std::string_view>()(b.texto) + static_cast<std::size_t>(b.ancho);
        }
    };

    struct Iguales {
        using is_transparent = void;

        bool operator()(const Busca& a, const Busca& b) const {
            return a.ancho == b.ancho && a.texto == b.texto;
        }
    };

    using Textos = std::unordered_map<Clave, TextoPreparado, Dispersa, Iguales>;

    [[nodiscard]] const TextoPreparado& guarda(const Busca& que);
    [[nodiscard]] TextoPreparado compone(const QString& texto, int ancho) const;

    QFont fuente_;
    QRawFont letra_;
    int dpi_ = 0; // 0: no font yet
    Qt::LayoutDirection direccion_ = Qt::LayoutDirectionAuto;
    Textos nuevos_; // asked for of late
    Textos viejos_; // those before: what is not asked for until `nuevos_` is full again goes
};

} // namespace Qlt4_Tabla
