// SPDX-License-Identifier: MIT
// A host on the widget, as a package and as a subdirectory: a window with a table whose event arrives as a
// signal at an object of the host's own. An argument names the Qt Designer plugin, which is then loaded too.
// Ends with 0 when all was as it should be.
#include "qt/comodidades.h"
#include "qt/imagen_qt.h"
#include "qt/tabla_widget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPluginLoader>

#include <iostream>

using namespace Qlt4_Tabla;

class Ventana : public QWidget {
    Q_OBJECT

public:
    Ventana() : tabla_(new TablaWidget(this)) {
        connect(tabla_, &TablaWidget::SelChange, this, [this] { ++moves; });
        tabla_->resize(400, 300);
    }

    TablaWidget& tabla() { return *tabla_; }

    int moves = 0;

private:
    TablaWidget* tabla_;
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    Ventana ventana;
    Tabla0& t = ventana.tabla().tabla();
    pon_columnas(ventana.tabla(),
        {{.nombre = QStringLiteral("Nombre")},
            {.nombre = QStringLiteral("Foto"), .formato = T_formato::Imagen}});
    t.A_Pon_Imagen(1, 2, imagen_de(QImage(8, 8, QImage::Format_RGB32)));
    ventana.show();
    QKeyEvent abajo(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(ventana.tabla().focusProxy(), &abajo);
    QApplication::processEvents();
    const bool bien = t.tablero().Row() == 2 && ventana.moves == 1;
    if (!bien) std::cerr << "the key did not reach the table\n";
    if (argc > 1) {
        QPluginLoader complemento(QString::fromLocal8Bit(argv[1]));
        if (complemento.instance() == nullptr) {
            std::cerr << qPrintable(complemento.errorString()) << '\n';
            return 1;
        }
    }
    return bien ? 0 : 1;
}

#include "principal.moc"
