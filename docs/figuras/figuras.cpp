// SPDX-License-Identifier: MIT
// Draws the pictures of the user guide: the example "plano", worked by a user's hands, scene by scene.
// Usage: figuras FOLDER. Menus and lists are painted over the window where they stand. See scripts/figuras.
#include "../../examples/comun/ejemplo.h"
#include "../../examples/plano/tabla_puntos.h"
#include "../../examples/plano/ventana.h"
#include "qt/vista_rejilla.h"
#include "tests/qt/manos.h"

#include <QDialog>
#include <QDir>
#include <QHash>
#include <QPainter>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <functional>

namespace {

using namespace Qlt4_Tabla;
namespace manos = Qlt4_Tabla::manos;

/// The 256 colours that the picture has most of: with them it stays small and looks the same.
QList<QRgb> paleta(const QImage& imagen) {
    QHash<QRgb, int> veces;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) ++veces[imagen.pixel(x, y)];
    QList<QRgb> colores = veces.keys();
    std::sort(colores.begin(), colores.end(),
        [&](QRgb a, QRgb b) { return veces[a] != veces[b] ? veces[a] > veces[b] : a < b; });
    colores.resize(std::min<qsizetype>(colores.size(), 256));
    return colores;
}

class Estudio {
public:
    explicit Estudio(const QString& carpeta)
        : carpeta_(carpeta),
          ventana_(plano::lee_muestras(), 155, plano::Ventana::Recuerdo::Nada,
              QDir::home().filePath(QStringLiteral("ajustes.ini"))) {
        widget_ = ventana_.findChild<TablaWidget*>();
        vista_ = ventana_.findChild<VistaRejilla*>();
        ventana_.resize(1060, 560);
        ventana_.show();
        ventana_.activateWindow();
        bien_ = QTest::qWaitForWindowActive(&ventana_);
        vista_->setFocus();
    }

    int dibuja();

private:
    [[nodiscard]] QWidget& hoja() { return *vista_->viewport(); }

    [[nodiscard]] QPoint centro(int fila, int col) { return vista_->rect_celda(fila, col).center(); }

    void actual(int fila, int col) {
        widget_->tabla().mandos().elige_celda(fila, col);
        QApplication::processEvents();
    }

    void arrastra(int fila1, int fila2, int col) {
        manos::arrastra(hoja(), centro(fila1, col), centro(fila2, col));
        QApplication::processEvents();
    }

    void cierra_menus() {
        while (QWidget* menu = QApplication::activePopupWidget()) menu->close();
        QApplication::processEvents();
    }

    void guarda(const QString& nombre, const QImage& imagen) {
        const QString fichero = carpeta_.filePath(nombre + QStringLiteral(".png"));
        const QImage plana = imagen.convertToFormat(QImage::Format_RGB32);
        if (!plana.convertToFormat(QImage::Format_Indexed8, paleta(plana), Qt::ThresholdDither)
                 .save(fichero, "PNG", 0))
            bien_ = false;
        ejemplos::di(stdout, fichero);
    }

    /// The window with every open menu and list over it; of that the piece.
    void captura(const QString& nombre, const QRect& trozo) {
        QApplication::processEvents();
        QImage imagen = ventana_.grab().toImage();
        QPainter p(&imagen);
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w == &ventana_ || !w->isVisible() || !w->windowFlags().testFlag(Qt::Popup)) continue;
            const QRect sitio(w->mapToGlobal(QPoint(0, 0)) - ventana_.mapToGlobal(QPoint(0, 0)), w->size());
            p.drawPixmap(sitio.topLeft(), w->grab());
            p.setPen(QColor(0x90, 0x90, 0x90));
            p.drawRect(sitio.adjusted(-1, -1, 0, 0));
        }
        p.end();
        guarda(nombre, imagen.copy(trozo.intersected(imagen.rect())));
    }

    /// From the top left corner of the table, so many pixels.
    [[nodiscard]] QRect tabla(int ancho, int alto) {
        return {widget_->mapTo(&ventana_, QPoint(0, 0)), QSize(ancho, alto)};
    }

    /// What the dialog shows that `abre` opens, once `prepara` worked in it; then it is closed by Escape.
    void dialogo(const QString& nombre, const std::function<void()>& abre,
        const std::function<void(QWidget&)>& prepara = {}) {
        QTimer::singleShot(300, &ventana_, [&, nombre] {
            QWidget* d = QApplication::activeModalWidget();
            if (d == nullptr) {
                bien_ = false;
                return;
            }
            if (prepara) prepara(*d);
            QTest::qWait(50);
            guarda(nombre, d->grab().toImage());
            d->close();
        });
        abre();
        QApplication::processEvents();
    }

    void edicion();
    void menus();
    void dialogos();

    QDir carpeta_;
    plano::Ventana ventana_;
    TablaWidget* widget_ = nullptr;
    VistaRejilla* vista_ = nullptr;
    bool bien_ = true;
};

int Estudio::dibuja() {
    captura(QStringLiteral("ventana"), ventana_.rect());
    captura(QStringLiteral("barra"), tabla(180, 28));
    edicion();
    menus();
    dialogos();
    return bien_ ? 0 : 1;
}

void Estudio::edicion() {
    actual(2, plano::COTA);
    manos::teclea(hoja(), QStringLiteral("8.1"));
    captura(QStringLiteral("edicion"), tabla(590, 190));
    manos::pulsa(hoja(), Qt::Key_Escape);
    actual(3, plano::USO);
    manos::pulsa(hoja(), Qt::Key_F2);
    QTest::qWait(50);
    QWidget* foco = QApplication::focusWidget();
    if (foco != nullptr) manos::pulsa(*foco, Qt::Key_Down, Qt::AltModifier);
    QTest::qWait(100);
    captura(QStringLiteral("lista"), tabla(590, 440).adjusted(297, 0, 0, 0));
    cierra_menus();
    if (QApplication::focusWidget() != nullptr) manos::pulsa(*QApplication::focusWidget(), Qt::Key_Escape);
    vista_->setFocus();
}

void Estudio::menus() {
    actual(1, plano::NOMBRE);
    arrastra(4, 9, plano::NOMBRE);
    captura(QStringLiteral("relleno"), tabla(590, 330));
    cierra_menus();
    arrastra(4, 9, plano::INUNDACION);
    captura(QStringLiteral("menu_color"), tabla(650, 520).adjusted(416, 0, 0, 0));
    cierra_menus();
    actual(2, plano::X);
    manos::clic(hoja(), centro(2, plano::X), {}, Qt::RightButton);
    captura(QStringLiteral("menu"), tabla(590, 500));
    cierra_menus();
    manos::arrastra(hoja(), centro(6, plano::NOMBRE), centro(9, plano::ZINC));
    captura(QStringLiteral("bloque"), tabla(590, 270));
    cierra_menus();
}

void Estudio::dialogos() {
    actual(1, plano::INUNDACION);
    dialogo(
        QStringLiteral("colores"), [this] { (void)widget_->tabla().Show_Elige_Color(0x0000FF); },
        [](QWidget& d) {
            for (auto* boton : d.findChildren<QAbstractButton*>())
                if (boton->text().contains(QStringLiteral("otros"))) boton->click();
        });
    dialogo(QStringLiteral("columnas"),
        [this] { widget_->tabla().mandos().orden(Opcion::MN_editor_de_columnas); });
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (QApplication::arguments().size() != 2) return 2;
    ejemplos::viste(false);
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    return Estudio(QApplication::arguments().at(1)).dibuja();
}
