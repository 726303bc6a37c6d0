// SPDX-License-Identifier: MIT
// The clipboard over Qt's: qt/portapapeles_qt.h.
#include "qt/portapapeles_qt.h"

#include "base/lineas.h"
#include "qt/texto_qt.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace Qlt4_Tabla {

namespace {

// Pictures, files and markup have texts too, but are none.
bool hay_texto(const QMimeData* datos) {
    return datos != nullptr && datos->hasFormat(QStringLiteral("text/plain"));
}

} // namespace

std::string PortapapelesQt::lee() {
    const QMimeData* const datos = QGuiApplication::clipboard()->mimeData();
    return hay_texto(datos) ? cierra_lineas(datos->text().toStdString()) : std::string();
}

// Qt does not tell when the system refuses: what it then offers is somebody else's.
void PortapapelesQt::escribe(std::string_view texto) {
    QClipboard& portapapeles = *QGuiApplication::clipboard();
    const QString nuestro = a_qstring(texto);
    auto* const datos = new QMimeData; // the clipboard's from the next line on
    datos->setText(nuestro);
    portapapeles.setMimeData(datos);
    const QMimeData* const hay = portapapeles.mimeData();
    if (hay == datos || (hay_texto(hay) && hay->text() == nuestro)) return;
    lanza(NumError::PortapapelesCerrado);
}

} // namespace Qlt4_Tabla
