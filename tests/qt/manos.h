// SPDX-License-Identifier: MIT
// The hands of a user for the Qt tests: keys, mouse and wheel go to the window, as the system sends them,
// and take the real road from there. Main names: teclea, pulsa, clic, doble_clic, arrastra, rueda, and
// Mensajero, which reads and answers message boxes.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

#include <deque>
#include <functional>
#include <utility>

namespace Qlt4_Tabla::manos {

inline QWindow* de(const QWidget& w) { return w.window()->windowHandle(); }

inline QPoint en_ventana(const QWidget& w, QPoint p) { return w.mapTo(w.window(), p); }

/// One key with the text that the layout gives it.
inline void pulsa(const QWidget& w, Qt::Key tecla, const QString& texto, Qt::KeyboardModifiers mods = {}) {
    QTest::sendKeyEvent(QTest::Click, de(w), tecla, texto, mods);
}

/// A key by its name: Enter, arrows and their like.
inline void pulsa(const QWidget& w, Qt::Key tecla, Qt::KeyboardModifiers mods = {}) {
    QTest::keyClick(de(w), tecla, mods);
}

inline void teclea(const QWidget& w, const QString& texto) {
    for (const QChar c : texto) {
        const bool ascii = c.unicode() < 128;
        const int codigo =
            ascii ? int{QTest::asciiToKey(static_cast<char>(c.unicode()))} : c.toUpper().unicode();
        pulsa(w, static_cast<Qt::Key>(codigo), QString(c));
    }
}

inline void clic(
    const QWidget& w, QPoint p, Qt::KeyboardModifiers mods = {}, Qt::MouseButton b = Qt::LeftButton) {
    QTest::mouseClick(de(w), b, mods, en_ventana(w, p));
}

inline void doble_clic(const QWidget& w, QPoint p) {
    QTest::mouseDClick(de(w), Qt::LeftButton, {}, en_ventana(w, p));
}

inline void aprieta(const QWidget& w, QPoint p, Qt::KeyboardModifiers mods = {}) {
    QTest::mousePress(de(w), Qt::LeftButton, mods, en_ventana(w, p));
}

inline void mueve(const QWidget& w, QPoint p) { QTest::mouseMove(de(w), en_ventana(w, p)); }

inline void suelta(const QWidget& w, QPoint p, Qt::KeyboardModifiers mods = {}) {
    QTest::mouseRelease(de(w), Qt::LeftButton, mods, en_ventana(w, p));
}

/// Press, three moves on the way, release.
inline void arrastra(const QWidget& w, QPoint desde, QPoint hasta, Qt::KeyboardModifiers mods = {}) {
    aprieta(w, desde, mods);
    for (int i = 1; i <= 3; ++i) mueve(w, desde + (hasta - desde) * i / 3);
    suelta(w, hasta, mods);
}

/// Wheel over a place; 120 is one notch away from the user.
inline void rueda(const QWidget& w, QPoint p, QPoint angulo, Qt::KeyboardModifiers mods = {}) {
    const QPoint aqui = en_ventana(w, p);
    QWheelEvent e(
        aqui, w.window()->mapToGlobal(aqui), {}, angulo, Qt::NoButton, mods, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&e);
    qApp->notify(de(w), &e); // sendEvent would take the mark away
}

/// Answers every message box that appears, with the next of `respuestas` or by closing it, and hands it over
/// as "mensaje|style|title|text". No test waits for a person.
class Mensajero final : public QObject {
public:
    explicit Mensajero(std::function<void(const QString&)> oye) : oye_(std::move(oye)) {
        qApp->installEventFilter(this);
    }

    std::deque<QMessageBox::StandardButton> respuestas;

protected:
    bool eventFilter(QObject* objeto, QEvent* e) override {
        auto* caja = qobject_cast<QMessageBox*>(objeto);
        if (caja != nullptr && e->type() == QEvent::Show)
            QMetaObject::invokeMethod(
                caja, [this, caja] { contesta(*caja); }, Qt::QueuedConnection);
        return false;
    }

private:
    void contesta(QMessageBox& caja) {
        const bool critico = caja.icon() == QMessageBox::Critical;
        const bool pregunta = caja.standardButtons() == (QMessageBox::Yes | QMessageBox::No);
        const bool informa = caja.icon() == QMessageBox::Information;
        const int estilo = critico ? (pregunta ? 20 : 16) : (informa ? 64 : 0);
        oye_(QStringLiteral("mensaje|%1|").arg(estilo) + caja.windowTitle() + QLatin1Char('|') + caja.text());
        if (respuestas.empty()) {
            caja.close();
            return;
        }
        const auto boton = respuestas.front();
        respuestas.pop_front();
        if (QAbstractButton* suyo = caja.button(boton))
            QTest::mouseClick(suyo, Qt::LeftButton);
        else
            caja.close(); // an answer that this box does not offer
    }

    std::function<void(const QString&)> oye_;
};

} // namespace Qlt4_Tabla::manos
