// SPDX-License-Identifier: MIT
// What the example programs share: the options of their command line, their looks, and the picture of their
// window. None of it is needed to put a table on a window; a program of your own leaves it out.
// Main names: Opciones, viste, corre. Texts: comun/textos.h.
#pragma once

#include "../comun/textos.h"

#include <QApplication>
#include <QImage>
#include <QLoggingCategory>
#include <QPalette>
#include <QPixmap>
#include <QSet>
#include <QStringList>
#include <QStyle>
#include <QTextStream>
#include <QWidget>

#include <optional>

namespace ejemplos {

inline void di(FILE* salida, const QString& texto) { QTextStream(salida) << texto << Qt::endl; }

/// The command line. `fin`: the program has said what there was to say and ends with this code.
struct Opciones {
    QString captura; ///< --captura: the picture to write; empty: none
    bool oscuro = false; ///< --oscuro: dark palette
    int filas = 0; ///< --filas: 0 when not given
    QString ajustes; ///< --ajustes: the file of settings; empty: the user's
    std::optional<int> fin;

    /// `max_filas` 0: the program has neither --filas nor --ajustes.
    explicit Opciones(const QStringList& argumentos, const QString& ayuda, int max_filas = 0) {
        for (int i = 1; i < argumentos.size() && !fin; ++i) {
            const QString& arg = argumentos.at(i);
            const auto siguiente = [&] { return ++i < argumentos.size() ? argumentos.at(i) : QString(); };
            if (arg == QLatin1String("--ayuda") || arg == QLatin1String("--help")) {
                di(stdout, ayuda);
                fin = 0;
            } else if (arg == QLatin1String("--oscuro")) {
                oscuro = true;
            } else if (arg == QLatin1String("--captura")) {
                captura = siguiente();
                if (captura.isEmpty() || captura.startsWith(QLatin1Char('-'))) falla(textos::FALTA_FICHERO);
            } else if (arg == QLatin1String("--ajustes") && max_filas > 0) {
                ajustes = siguiente();
                if (ajustes.isEmpty() || ajustes.startsWith(QLatin1Char('-'))) falla(textos::FALTA_FICHERO);
            } else if (arg == QLatin1String("--filas") && max_filas > 0) {
                filas = siguiente().toInt();
                if (filas < 1 || filas > max_filas) falla(textos::MALAS_FILAS.arg(max_filas));
            } else {
                falla(textos::OPCION_DESCONOCIDA.arg(arg));
            }
        }
    }

private:
    void falla(const QString& texto) {
        di(stderr, texto + QLatin1Char('\n') + textos::VEA_AYUDA);
        fin = 2;
    }
};

/// The dark palette of --oscuro; and Fusion where the platform has no style of its own.
inline void viste(bool oscuro) {
    if (oscuro || QApplication::style()->name() == QLatin1String("windows"))
        QApplication::setStyle(QStringLiteral("Fusion"));
    if (!oscuro) return;
    // The style draws frames darker than the window: it has to be light enough for them to be seen.
    QPalette p(QColor(0x4C, 0x50, 0x57), QColor(0x3C, 0x3F, 0x45));
    p.setColor(QPalette::Base, QColor(0x1E, 0x20, 0x23));
    p.setColor(QPalette::AlternateBase, QColor(0x28, 0x2A, 0x2E));
    p.setColor(QPalette::ToolTipBase, QColor(0x4C, 0x50, 0x57));
    p.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xB5));
    p.setColor(QPalette::Link, QColor(0x6C, 0xB2, 0xF5));
    for (const auto papel :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        p.setColor(papel, QColor(0xE4, 0xE5, 0xE7));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::PlaceholderText, QColor(0x8C, 0x90, 0x97));
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, papel, QColor(0x7A, 0x7E, 0x85));
    QApplication::setPalette(p);
    p.setColor(QPalette::Base, p.color(QPalette::Window)); // a menu is seen over what it covers
    QApplication::setPalette(p, "QMenu");
}

/// Draws the window into the file, at the scale of the screen. Returns the code the program ends with.
inline int captura(QWidget& ventana, const QString& fichero) {
    for (int i = 0; i < 3; ++i) QApplication::processEvents(); // sizes, then the first painting
    const QImage imagen = ventana.grab().toImage();
    QSet<QRgb> colores; // a picture in one or two colours shows nothing
    for (int y = 0; y < imagen.height(); y += 3)
        for (int x = 0; x < imagen.width(); x += 3) colores.insert(imagen.pixel(x, y));
    if (colores.size() < 8) {
        di(stderr, textos::CAPTURA_VACIA);
        return 1;
    }
    if (!imagen.save(fichero, "PNG")) {
        di(stderr, textos::NO_SE_ESCRIBE.arg(fichero));
        return 1;
    }
    di(stdout, textos::CAPTURA.arg(fichero));
    return 0;
}

/// Shows the window until it is closed, or draws it into the file asked for.
inline int corre(QWidget& ventana, const Opciones& opciones) {
    // Without a screen Qt warns of what a window asks of the screen; nobody is to wonder about that.
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    ventana.show();
    return opciones.captura.isEmpty() ? QApplication::exec() : captura(ventana, opciones.captura);
}

} // namespace ejemplos
