// SPDX-License-Identifier: MIT
// Lays texts out by QTextLayout, as QPainter::drawText does each time: qt/textos_preparados.h.
#include "qt/textos_preparados.h"

#include "qt/texto_qt.h"

#include <QFontMetrics>
#include <QGlyphRun>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr std::size_t MAX_LARGO = 128; // bytes; a longer text is laid out each time
constexpr int SIN_LIMITE = 1 << 24; // a line wider than any

bool se_escribe_sin_mas(QChar c) {
    switch (c.category()) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return false;
    default: return true;
    }
}

bool sin_adornos(const QFont& f) { return !f.underline() && !f.overline() && !f.strikeOut(); }

} // namespace

void TextosPreparados::usa(const QPainter& p) {
    const int dpi = p.device()->logicalDpiY();
    if (dpi == dpi_ && p.font() == fuente_ && p.layoutDirection() == direccion_) return;
    nuevos_.clear();
    viejos_.clear();
    fuente_ = p.font();
    dpi_ = dpi;
    direccion_ = p.layoutDirection();
    letra_ = QRawFont::fromFont(fuente_);
}

const TextoPreparado* TextosPreparados::prepara(std::string_view texto, int ancho) {
    if (texto.size() > MAX_LARGO) return nullptr;
    const Busca que{texto, ancho};
    const auto i = nuevos_.find(que);
    const TextoPreparado& t = i != nuevos_.end() ? i->second : guarda(que);
    return t.glifos.empty() ? nullptr : &t;
}

const TextoPreparado& TextosPreparados::guarda(const Busca& que) {
    if (nuevos_.size() == MAX_TEXTOS / 2) {
        viejos_ = std::move(nuevos_);
        nuevos_.clear();
    }
    if (const auto i = viejos_.find(que); i != viejos_.end())
        return nuevos_.insert(viejos_.extract(i)).position->second;
    return nuevos_.emplace(Clave{std::string(que.texto), que.ancho}, compone(a_qstring(que.texto), que.ancho))
        .first->second;
}

TextoPreparado TextosPreparados::compone(const QString& texto, int ancho) const {
    if (!sin_adornos(fuente_) || !std::all_of(texto.begin(), texto.end(), se_escribe_sin_mas)) return {};
    QTextLayout hoja(texto, fuente_);
    QTextOption opciones(Qt::AlignLeft);
    opciones.setTextDirection(direccion_);
    hoja.setTextOption(opciones);
    hoja.beginLayout();
    QTextLine linea = hoja.createLine();
    linea.setLineWidth(SIN_LIMITE);
    linea.setPosition(QPointF(0, 0));
    hoja.endLayout();
    if (qRound(linea.horizontalAdvance()) > ancho) {
        const QString corto = QFontMetrics(fuente_).elidedText(texto, Qt::ElideRight, ancho);
        return corto == texto ? TextoPreparado() : compone(corto, SIN_LIMITE);
    }
    const QList<QGlyphRun> tandas = linea.glyphRuns();
    if (tandas.size() != 1 || tandas[0].isRightToLeft() || tandas[0].rawFont() != letra_) return {};
    const QSizeF talla(linea.naturalTextWidth(), linea.ascent() + linea.descent());
    TextoPreparado t{{}, linea.ascent(), linea.horizontalAdvance(), talla, {}};
    const QList<quint32> numeros = tandas[0].glyphIndexes();
    const QList<QPointF> sitios = tandas[0].positions();
    t.glifos.reserve(static_cast<std::size_t>(numeros.size()));
    for (qsizetype i = 0; i < numeros.size(); ++i) {
        t.glifos.push_back({numeros[i], static_cast<float>(sitios[i].x())});
        t.tinta |= letra_.boundingRect(numeros[i]).translated(sitios[i].x(), t.base);
    }
    return t;
}

} // namespace Qlt4_Tabla
