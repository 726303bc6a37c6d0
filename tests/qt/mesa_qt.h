// SPDX-License-Identifier: MIT
// MesaQt: a table on a shown, active window between two line edits, with the verbs of a user and a record
// of what the table told its host. Columns: Nombre (text), X (real, 3 decimals), N (whole), Uso (list A, B,
// C), Color, Fija (locked), Oculta (invisible), all 80 pixels wide but the last.
#pragma once

#include "qt/casilla.h"
#include "qt/lista_celda.h"
#include "qt/tabla_widget.h"
#include "qt/vista_rejilla.h"
#include "tests/qt/manos.h"

#include <QAbstractItemView>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStringList>
#include <QVBoxLayout>

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>

namespace Qlt4_Tabla {

enum ColumnaMesa : std::int16_t { NOMBRE = 1, X, N, USO, COLOR, FIJA, OCULTA, COLUMNAS_MESA };

inline Matriz<std::string> valores(std::initializer_list<const char*> textos) {
    Matriz<std::string> m(0, static_cast<std::int32_t>(textos.size()) - 1);
    std::int64_t i = 0;
    for (const char* s : textos) m[i++] = s;
    return m;
}

inline void da_formato_de_mesa(Tabla0& t, int filas) {
    using F = T_formato;
    using A = T_Alineacion;
    const auto pon = [&](std::int16_t col, F f, A a, const char* nombre, bool inv = false,
                         bool bloq = false) {
        t.FormatoColumnas(col, inv, bloq, f, f == F::Real__ ? 3 : 0, a, T_Accion::Nada__, 10, nombre);
    };
    t.Cols(COLUMNAS_MESA);
    pon(0, F::Alfanm, A::Centr, "");
    pon(NOMBRE, F::Alfanm, A::Izqda, "Nombre");
    pon(X, F::Real__, A::Drcha, "X");
    pon(N, F::Entero, A::Drcha, "N");
    pon(USO, F::ListaU, A::Izqda, "Uso");
    pon(COLOR, F::Color_, A::Izqda, "Color");
    pon(FIJA, F::Alfanm, A::Izqda, "Fija", false, true);
    pon(OCULTA, F::Alfanm, A::Izqda, "Oculta", true);
    t.Lista(USO, valores({"A", "B", "C"}));
    t.Rows(filas + 1);
    t.Tablero_establece_Formato();
}

class MesaQt {
public:
    explicit MesaQt(int filas = 10, QSize talla = QSize(700, 400)) {
        auto* caja = new QVBoxLayout(&ventana);
        antes = new QLineEdit(&ventana);
        widget = new TablaWidget(&ventana);
        despues = new QLineEdit(&ventana);
        caja->addWidget(antes);
        caja->addWidget(widget, 1);
        caja->addWidget(despues);
        vista = widget->findChild<VistaRejilla*>();
        casilla = widget->findChild<Casilla*>();
        lista = widget->findChild<ListaCelda*>();
        da_formato_de_mesa(tabla(), filas);
        tabla().mandos().elige_celda(1, 1);
        escucha();
        ventana.resize(talla);
        ventana.show();
        activa();
        vista->setFocus();
    }

    MesaQt(const MesaQt&) = delete;
    MesaQt& operator=(const MesaQt&) = delete;

    ~MesaQt() {
        if (!mensajes.isEmpty())
            QTest::qFail(qPrintable(mensajes.join(QLatin1Char('\n'))), __FILE__, __LINE__);
    }

    void activa() {
        ventana.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&ventana));
        QTRY_COMPARE(QGuiApplication::focusWindow(), ventana.windowHandle());
    }

    [[nodiscard]] Tabla0& tabla() { return widget->tabla(); }

    [[nodiscard]] const Tablero& tablero() { return widget->tabla().tablero(); }

    // The user.
    void teclea(const QString& texto) { manos::teclea(*widget, texto); }

    void pulsa(Qt::Key tecla, Qt::KeyboardModifiers mods = {}) { manos::pulsa(*widget, tecla, mods); }

    void clic(int fila, int col, Qt::KeyboardModifiers mods = {}) {
        manos::clic(*vista->viewport(), centro(fila, col), mods);
    }

    void doble_clic(int fila, int col) { manos::doble_clic(*vista->viewport(), centro(fila, col)); }

    void arrastra(int fila1, int col1, int fila2, int col2) {
        manos::arrastra(*vista->viewport(), centro(fila1, col1), centro(fila2, col2));
    }

    void rueda(QPoint angulo, Qt::KeyboardModifiers mods = {}) {
        manos::rueda(*vista->viewport(), vista->viewport()->rect().center(), angulo, mods);
    }

    /// Text from an input method, to whoever has the focus.
    void compone(const QString& texto) {
        QInputMethodEvent e;
        e.setCommitString(texto);
        QApplication::sendEvent(QApplication::focusWidget(), &e);
    }

    // Code of the host.
    void pon(int fila, int col, const char* texto) { tabla().TextMatrix(fila, col, texto); }

    void actual(int fila, int col) {
        tabla().mandos().elige_celda(fila, col);
        sucesos.clear();
    }

    // What is seen.
    [[nodiscard]] QString celda(int fila, int col) {
        return QString::fromStdString(std::string(tablero().TextMatrix(fila, col)));
    }

    [[nodiscard]] QPoint centro(int fila, int col) const { return vista->rect_celda(fila, col).center(); }

    [[nodiscard]] QString donde() {
        return QStringLiteral("%1 %2").arg(tablero().Row()).arg(tablero().Col());
    }

    [[nodiscard]] QString seleccion() {
        return QStringLiteral("%1 %2").arg(donde()).arg(tablero().RowSel()) +
            QStringLiteral(" %1").arg(tablero().ColSel());
    }

    [[nodiscard]] QLabel* label(const char* nombre) const {
        return widget->findChild<QLabel*>(QString::fromLatin1(nombre));
    }

    /// The events since the last call.
    [[nodiscard]] QString recoge() { return std::exchange(sucesos, {}).join(QLatin1Char(',')); }

    QLineEdit* antes = nullptr;
    TablaWidget* widget = nullptr;
    QLineEdit* despues = nullptr;
    VistaRejilla* vista = nullptr;
    Casilla* casilla = nullptr;
    ListaCelda* lista = nullptr;
    QStringList sucesos;
    std::function<void()> al_cambiar; ///< what the host does when a value was committed
    QStringList mensajes; ///< message boxes; those that a test does not take away fail it
    manos::Mensajero mensajero{[this](const QString& m) { mensajes << m; }};
    QWidget ventana; // dies before what listens to it

private:
    void escucha() {
        const auto anota = [this](const char* que) { sucesos << QString::fromLatin1(que); };
        QObject::connect(widget, &TablaWidget::Salir, [anota] { anota("Salir"); });
        QObject::connect(widget, &TablaWidget::SelChange, [anota] { anota("SelChange"); });
        QObject::connect(widget, &TablaWidget::CambiaCasilla, [this, anota] {
            anota("CambiaCasilla");
            if (al_cambiar) al_cambiar();
        });
        QObject::connect(widget, &TablaWidget::ACambiadoValorCombo, [this](int fila, int col) {
            sucesos << QStringLiteral("ACambiadoValorCombo %1 %2").arg(fila).arg(col);
        });
    }
};

/// Every warning of Qt fails the test that causes it, but for what the offscreen platform cannot do.
inline void avisos_son_fallos() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support )")));
}

} // namespace Qlt4_Tabla
