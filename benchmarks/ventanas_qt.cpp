// SPDX-License-Identifier: MIT
// Works on a window of 1200 x 800, painted each time: this table, Qt's own, a bare window; and Qt's own tables
// in the works without a window.
//   medicion_ventanas_qt tabla|qtablewidget|qstandarditemmodel|limite ventana|arranque|celdas|columnas|pega|fichero ROWS
// `arranque`: from the program's start until an empty table is painted. scripts/mide runs it.
#include "obras.h"
#include "qt/tabla_widget.h"
#include "tabla.h"
#include "vistas_qt.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPainter>
#include <QThread>
#include <QWheelEvent>

#include <cstdlib>
#include <initializer_list>
#include <iostream>
#include <string>

namespace {

using namespace Qlt4_Tabla;
using namespace Qlt4_Tabla::medida;

/// Waits for what is painted.
class Pintor final : public QObject {
public:
    Pintor() { qApp->installEventFilter(this); }

    /// Goes on until something was painted and nothing more waits.
    void espera() {
        constexpr double PACIENCIA = 10'000;
        const int antes = pintadas_;
        QApplication::processEvents();
        for (const double desde = reloj(); pintadas_ == antes && reloj() < desde + PACIENCIA;) {
            QThread::usleep(100); // the screen's answer is on its way
            QApplication::processEvents();
        }
        QApplication::processEvents();
        exige(pintadas_ != antes, "nothing was painted");
    }

    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint) ++pintadas_;
        return false;
    }

private:
    int pintadas_ = 0;
};

/// This table on a window.
class VistaTabla {
public:
    VistaTabla() {
        t().Cols(COLUMNAS + 1);
        da_formatos(t(), true);
    }

    [[nodiscard]] QWidget& widget() { return widget_; }

    [[nodiscard]] QWidget& lienzo() { return *widget_.findChild<QAbstractScrollArea*>()->viewport(); }

    void filas(int n) { t().Rows(n + 1); }

    void pon(int f, int c, const std::string& s) { t().TextMatrix(f + 1, c + 1, s); }

    void al_final() { t().mandos().elige_celda(t().Rows() - 1, 1); }

    void al_medio() { t().mandos().elige_celda(t().Rows() / 2, 1); }

    // Enter on the last row makes the next one and moves there.
    void anade_al_final() { t().mandos().tecla_pulsada(13); }

    void inserta_en_medio() { t().mandos().orden(Opcion::mn_insertar_filas); }

    void borra_en_medio() { t().mandos().orden(Opcion::mn_eliminar_filas); }

    void arrastra(int pixeles) { t().mandos().arrastra_borde(2, pixeles * 15); }

private:
    [[nodiscard]] Tabla0& t() { return widget_.tabla(); }

    TablaWidget widget_;
};

void gira(QWidget& lienzo, int signo) {
    const QPointF sitio = lienzo.rect().center();
    QWheelEvent e(sitio, lienzo.mapToGlobal(sitio), {}, QPoint(0, 120 * signo), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&lienzo, &e);
}

void muestra(QWidget& ventana, Pintor& pintor) {
    ventana.resize(1200, 800);
    ventana.show();
    pintor.espera();
}

void mide_repintado(const Medidor& m, QWidget& lienzo, Pintor& pintor) {
    m.varias("repinta", 50, [&] {
        lienzo.update();
        pintor.espera();
    });
}

template <class V>
void mide_ventana(const Medidor& m, int filas) {
    Pintor pintor;
    V v;
    llena(v, filas);
    muestra(v.widget(), pintor);
    mide_repintado(m, v.lienzo(), pintor);
    v.al_medio();
    pintor.espera();
    int n = 0;
    m.varias("rueda_pintada", 50, [&] {
        gira(v.lienzo(), ++n % 10 < 5 ? -1 : 1);
        pintor.espera();
    });
    m.varias("arrastra_pintado", 20, [&] {
        v.arrastra(70 + ++n % 20);
        pintor.espera();
    });
    m.varias("inserta_borra_pintado", 10, [&] {
        v.inserta_en_medio();
        pintor.espera();
        v.borra_en_medio();
        pintor.espera();
    });
    v.al_final();
    pintor.espera();
    m.varias("anade_pintado", 30, [&] {
        v.anade_al_final();
        pintor.espera();
    });
}

/// A window that is brought to the screen as it is.
class Desnuda final : public QWidget {
public:
    Desnuda() { setAttribute(Qt::WA_OpaquePaintEvent); }

protected:
    void paintEvent(QPaintEvent*) override {}
};

/// With one letter on it, for which a program loads its fonts.
class ConLetra final : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawText(rect(), QStringLiteral("1")); }
};

void mide_limite(const Medidor& m) {
    Pintor pintor;
    Desnuda ventana;
    muestra(ventana, pintor);
    mide_repintado(m, ventana, pintor);
}

// The processor time until it is painted, and the time that one waits since MEDIDA_DESDE, when the program was called.
void mide_arranque(const Medidor& m, QWidget& ventana, std::initializer_list<const char*> obras) {
    Pintor pintor;
    muestra(ventana, pintor);
    const double trabajo = procesador();
    const char* const desde = std::getenv("MEDIDA_DESDE");
    const double espera = desde ? reloj() - std::stod(desde) : 0;
    for (const std::string obra : obras) m.anota(obra, obra.ends_with("espera") ? espera : trabajo);
}

// The same work twice: the two have limits of their own.
constexpr std::initializer_list<const char*> ARRANQUES = {
    "arranque_espera", "arranque_letra_espera", "arranque", "arranque_letra"};

template <class V>
void mide_vista(const Medidor& m, const std::string& grupo, int filas) {
    if (grupo == "ventana")
        mide_ventana<V>(m, filas);
    else if (grupo == "arranque")
        mide_arranque(m, V().widget(), ARRANQUES);
    else
        mide_obras<V>(m, grupo, filas);
}

void mide_tabla(const Medidor& m, const std::string& grupo, int filas) {
    if (grupo == "arranque") {
        TablaWidget tabla;
        mide_arranque(m, tabla, ARRANQUES);
    } else {
        mide_ventana<VistaTabla>(m, filas);
    }
}

void mide_desnuda(const Medidor& m, const std::string& grupo) {
    if (grupo == "arranque") {
        QWidget ventana;
        mide_arranque(m, ventana, {"arranque_espera", "arranque"});
    } else if (grupo == "arranque_letra") {
        ConLetra ventana;
        mide_arranque(m, ventana, {"arranque_letra_espera", "arranque_letra"});
    } else {
        mide_limite(m);
    }
}

void mide(const std::string& quien, const std::string& grupo, int filas) {
    const Medidor m;
    if (quien == "tabla")
        mide_tabla(m, grupo, filas);
    else if (quien == "qtablewidget")
        mide_vista<VistaQt<ConWidget>>(m, grupo, filas);
    else if (quien == "qstandarditemmodel")
        mide_vista<VistaQt<ConModelo>>(m, grupo, filas);
    else
        mide_desnuda(m, grupo);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    if (argc != 4) return 2;
    try {
        mide(argv[1], argv[2], std::stoi(argv[3]));
    } catch (const std::exception& e) {
        std::cerr << e.what() << '\n';
        return 1;
    }
    return 0;
}
