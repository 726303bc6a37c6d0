// SPDX-License-Identifier: MIT
// MesaColumnas: the table of MesaQt with its column editor, which is opened with one user for each showing.
//     m.edita({[&] { m.escribe(F_X, ED_NOMBRE, "Este"); m.aplica(); }, [] {}});
#pragma once

#ifndef Q_MOC_RUN // the scanner cannot read letters beyond ASCII in published names
#include "column_editor/f_editor.h"
#endif
#include "qt/dialogo_columnas.h"
#include "qt/vista_columnas.h"
#include "tests/qt/mesa_qt.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

namespace Qlt4_Tabla {

// Rows of the editor's grid: the columns of MesaQt.
enum : int { F_NOMBRE = 1, F_X, F_N, F_USO, F_COLOR, F_FIJA, F_OCULTA };

class MesaColumnas : public MesaQt {
public:
    MesaColumnas() : MesaQt(4, QSize(760, 500)) {
        widget->pon_fichero_ajustes(carpeta.filePath(QStringLiteral("a.ini")));
        tabla().Tablero_Nombres("Plano", "Puntos", "*.pt");
    }

    void edita(std::vector<std::function<void()>> usuarios) {
        edita(std::move(usuarios), [this] { tabla().mandos().orden(Opcion::MN_editor_de_columnas); });
    }

    /// The same, opened in another way.
    void edita(std::vector<std::function<void()>> usuarios, const std::function<void()>& abre) {
        usuarios_ = std::move(usuarios);
        ++vuelta_;
        esperas_ = 0;
        vistos = 0;
        QTimer::singleShot(0, &ventana, [this] { espera(); });
        abre();
        QCOMPARE(vistos, static_cast<int>(usuarios_.size()));
        dialogo = nullptr;
    }

    template <class W>
    [[nodiscard]] W* hijo(const char* nombre) const {
        return dialogo->findChild<W*>(QString::fromLatin1(nombre));
    }

    [[nodiscard]] VistaColumnas* rejilla() const { return hijo<VistaColumnas>("msfEditor"); }

    [[nodiscard]] const RejillaColumnas& modelo() const { return rejilla()->modelo(); }

    [[nodiscard]] QLineEdit* caja() const { return hijo<QLineEdit>("Casilla"); }

    [[nodiscard]] QString dice(int fila, int col) const {
        const Tablero& t = modelo().tablero();
        return QString::fromStdString(std::string(t.TextMatrix(fila, col)));
    }

    [[nodiscard]] bool puede_aplicar() const {
        const bool puede = hijo<QPushButton>("butAplicarCambios")->isEnabled();
        if (hijo<QAction>("mn_editor_aplicar")->isEnabled() != puede) qFatal("button and menu differ");
        return puede;
    }

    // The user.
    void clic_celda(int fila, int col) const {
        manos::clic(*rejilla()->viewport(), rejilla()->rect_celda(fila, col).center());
    }

    void pulsa_ed(Qt::Key tecla) const { manos::pulsa(*dialogo, tecla); }

    void teclea_ed(const char* texto) const { manos::teclea(*dialogo, QString::fromUtf8(texto)); }

    void escribe(int fila, int col, const char* texto) const {
        clic_celda(fila, col);
        teclea_ed(texto);
        pulsa_ed(Qt::Key_Return);
    }

    void boton(const char* nombre) const {
        auto* b = hijo<QPushButton>(nombre);
        manos::clic(*b, b->rect().center());
    }

    void marca(const char* nombre) const {
        auto* c = hijo<QCheckBox>(nombre);
        manos::clic(*c, QPoint(8, c->height() / 2));
    }

    /// By the menu bar, as with the mouse.
    void menu(const char* nombre) const {
        auto* barra = dialogo->findChild<QMenuBar*>();
        QAction* titulo = barra->actions().first();
        manos::clic(*barra, barra->actionGeometry(titulo).center());
        QMenu* menu = titulo->menu();
        QTRY_VERIFY(menu->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(hijo<QAction>(nombre)).center());
    }

    void aplica() const { boton("butAplicarCambios"); }

    const T_FormatoColumna& formato(std::size_t col) { return tabla().estado().Formatos.at(col); }

    QTemporaryDir carpeta;
    VentanaColumnas* dialogo = nullptr;
    int vistos = 0;

private:
    // A menu may come before the editor.
    void espera() {
        if (qobject_cast<VentanaColumnas*>(QApplication::activeModalWidget()) != nullptr) return atiende();
        if (++esperas_ < 1000) QTimer::singleShot(1, &ventana, [this] { espera(); });
    }

    void atiende() {
        dialogo = qobject_cast<VentanaColumnas*>(QApplication::activeModalWidget());
        if (dialogo == nullptr || vistos == static_cast<int>(usuarios_.size())) return;
        dialogo->activateWindow();
        QTRY_VERIFY(dialogo->isActiveWindow());
        const QPointer<VentanaColumnas> esta = dialogo;
        // Whoever applies closes this window and opens the next one, which comes after the user has gone.
        if (vistos + 1 < static_cast<int>(usuarios_.size()))
            QObject::connect(dialogo, &QObject::destroyed, &ventana,
                [this] { QTimer::singleShot(0, &ventana, [this] { atiende(); }); });
        else
            QObject::connect(dialogo, &QObject::destroyed, &ventana, [this] {
                QTimer::singleShot(0, &ventana, [this, vuelta = vuelta_] {
                    auto* otra = QApplication::activeModalWidget();
                    if (otra != nullptr && vuelta == vuelta_) otra->close();
                });
            });
        usuarios_[static_cast<std::size_t>(vistos++)]();
        if (esta && esta->isVisible()) esta->close();
    }

    std::vector<std::function<void()>> usuarios_;
    int vuelta_ = 0;
    int esperas_ = 0;
};

} // namespace Qlt4_Tabla
