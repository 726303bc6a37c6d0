// SPDX-License-Identifier: MIT
// Names and values as QSettings keeps them without loss. A part of a name is written with small letters,
// digits, blanks and a few signs as they are, "^D" for a capital D (on some systems the case of a key does
// not count), "~c3" for any other byte, "~" for the empty text. A value that is UTF-8 is a text of the
// file, any other an array of bytes.
#include "qt/ajustes_qt.h"

#include "base/error.h"

#include <QByteArray>
#include <QSettings>
#include <QVariant>

#include <utility>
#include <vector>

namespace Qlt4_Tabla {

namespace {

QString parte_de_nombre(std::string_view texto) {
    static constexpr char CIFRAS[] = "0123456789abcdef";
    if (texto.empty()) return QStringLiteral("~");
    QString parte;
    for (const char c : texto) {
        const auto byte = static_cast<unsigned char>(c);
        const bool mayuscula = c >= 'A' && c <= 'Z';
        const bool igual =
            (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == ' ' || c == '-' || c == '_' || c == '.';
        if (mayuscula) parte += QLatin1Char('^');
        if (mayuscula || igual) {
            parte += QLatin1Char(c);
        } else {
            parte += QLatin1Char('~');
            parte += QLatin1Char(CIFRAS[byte >> 4U]);
            parte += QLatin1Char(CIFRAS[byte & 15U]);
        }
    }
    return parte;
}

QString nombre(std::string_view aplicacion, std::string_view seccion, std::string_view clave) {
    return parte_de_nombre(aplicacion) + QLatin1Char('/') + parte_de_nombre(seccion) + QLatin1Char('/') +
        parte_de_nombre(clave);
}

QVariant a_variante(std::string_view valor) {
    const QByteArray bytes(valor.data(), static_cast<qsizetype>(valor.size()));
    const QString texto = QString::fromUtf8(bytes);
    return texto.toUtf8() == bytes ? QVariant(texto) : QVariant(bytes);
}

} // namespace

AjustesQt::AjustesQt(const QString& fichero) : fichero_(fichero) {}

AjustesQt::~AjustesQt() = default;

void AjustesQt::pon_fichero(const QString& fichero) {
    fichero_ = fichero;
    ajustes_.reset();
}

QSettings& AjustesQt::abierto() const {
    if (!ajustes_) {
        ajustes_ = fichero_.isEmpty()
            ? std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                  QStringLiteral("Qlt4_Tabla"), QStringLiteral("ajustes"))
            : std::make_unique<QSettings>(fichero_, QSettings::IniFormat);
        ajustes_->setFallbacksEnabled(false);
    }
    return *ajustes_;
}

std::optional<std::string> AjustesQt::lee(
    std::string_view aplicacion, std::string_view seccion, std::string_view clave) const {
    QSettings& s = abierto();
    s.sync(); // what another program wrote
    const QVariant valor = s.value(nombre(aplicacion, seccion, clave));
    if (!valor.isValid()) return std::nullopt;
    return valor.toByteArray().toStdString();
}

void AjustesQt::escribe_todos(
    std::string_view aplicacion, std::string_view seccion, std::span<const Ajuste> ajustes) {
    QSettings& s = abierto();
    std::vector<std::pair<QString, QVariant>> antes; // to be put back after an error
    for (const Ajuste& a : ajustes) {
        const QString donde = nombre(aplicacion, seccion, a.clave);
        antes.emplace_back(donde, s.value(donde));
        s.setValue(donde, a_variante(a.valor));
    }
    s.sync();
    if (s.status() != QSettings::AccessError) return;
    for (auto i = antes.rbegin(); i != antes.rend(); ++i) {
        if (i->second.isValid())
            s.setValue(i->first, i->second);
        else
            s.remove(i->first);
    }
    ajustes_.reset(); // the error stays with the object
    lanza(NumError::AccesoRuta);
}

} // namespace Qlt4_Tabla
