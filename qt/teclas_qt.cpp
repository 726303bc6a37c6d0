// SPDX-License-Identifier: MIT
// The table of Qt's keys and their codes, and the reading of a key event.
#include "qt/teclas_qt.h"

#include "base/pagina1252.h"

#include <QKeyEvent>

#include <cstddef>

namespace Qlt4_Tabla {

namespace {

struct Par {
    int qt;
    int codigo;
};

constexpr Par TECLAS[] = {
    {Qt::Key_Backspace, teclas::RETROCESO},
    {Qt::Key_Return, teclas::INTRO},
    {Qt::Key_Enter, teclas::INTRO},
    {Qt::Key_Escape, teclas::ESCAPE},
    {Qt::Key_Space, teclas::ESPACIO},
    {Qt::Key_PageUp, teclas::REPAG},
    {Qt::Key_PageDown, teclas::AVPAG},
    {Qt::Key_End, teclas::FIN},
    {Qt::Key_Home, teclas::INICIO},
    {Qt::Key_Left, teclas::IZQUIERDA},
    {Qt::Key_Up, teclas::ARRIBA},
    {Qt::Key_Right, teclas::DERECHA},
    {Qt::Key_Down, teclas::ABAJO},
    {Qt::Key_Delete, teclas::SUPR},
    {Qt::Key_F2, teclas::F2},
    {Qt::Key_Menu, teclas::MENU},
};

// Only with Shift or Alt alone: the menu at the current cell, the toolbar. The plain key is the window's.
bool es_F10_de_la_rejilla(const QKeyEvent& e) {
    return e.key() == Qt::Key_F10 && (e.modifiers() == Qt::ShiftModifier || e.modifiers() == Qt::AltModifier);
}

// Only with Ctrl alone; else they are typed, or some other program's shortcuts.
constexpr Par TECLAS_CON_CONTROL[] = {
    {Qt::Key_C, teclas::C},
    {Qt::Key_V, teclas::V},
    {Qt::Key_X, teclas::X},
    {Qt::Key_Z, teclas::Z},
};

template <std::size_t N>
int busca(const Par (&pares)[N], int tecla) {
    for (const Par& p : pares)
        if (p.qt == tecla) return p.codigo;
    return teclas::NINGUNA;
}

} // namespace

int codigo_tecla_abajo(const QKeyEvent& e) {
    if (es_F10_de_la_rejilla(e)) return teclas::F10;
    const int codigo = busca(TECLAS, e.key());
    if (codigo != teclas::NINGUNA || e.modifiers() != Qt::ControlModifier) return codigo;
    return busca(TECLAS_CON_CONTROL, e.key());
}

Modificadores modificadores(Qt::KeyboardModifiers m) {
    Modificadores r;
    if (m.testFlag(Qt::ShiftModifier)) r = r | teclas::MAYUSCULAS;
    if (m.testFlag(Qt::ControlModifier)) r = r | teclas::CONTROL;
    if (m.testFlag(Qt::AltModifier)) r = r | teclas::ALT;
    return r;
}

std::vector<int> codigos_tecleados(const QKeyEvent& e) {
    // AltGr comes as Ctrl+Alt on some systems; with one of them alone the key is a command.
    const bool control = e.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = e.modifiers().testFlag(Qt::AltModifier);
    if (control != alt || e.modifiers().testFlag(Qt::MetaModifier)) return {};
    switch (e.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return {teclas::INTRO};
    case Qt::Key_Escape: return {teclas::ESCAPE};
    case Qt::Key_Backspace: return {teclas::RETROCESO};
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Delete: return {};
    default: return codigos_de_texto(e.text());
    }
}

bool es_de_la_rejilla(const QKeyEvent& e) {
    if (!codigos_tecleados(e).empty() || es_F10_de_la_rejilla(e)) return true;
    const int codigo = codigo_tecla_abajo(e);
    if ((e.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
    if (!e.modifiers().testFlag(Qt::ControlModifier)) return codigo != teclas::NINGUNA;
    const bool mueve = codigo >= teclas::REPAG && codigo <= teclas::ABAJO;
    return mueve || (codigo >= teclas::A && codigo <= teclas::Z);
}

std::vector<int> codigos_de_texto(const QString& texto) {
    std::vector<int> codigos;
    for (const uint c : texto.toUcs4()) {
        if (c >= 32 && c != 127) codigos.push_back(codigo_tecla(static_cast<char32_t>(c)));
    }
    return codigos;
}

bool es_decimal_del_teclado_numerico(const QKeyEvent& e) {
    if (!e.modifiers().testFlag(Qt::KeypadModifier)) return false;
    return e.key() == Qt::Key_Comma || e.key() == Qt::Key_Period;
}

QString texto_de_codigo(int KeyAscii) {
    const char32_t c = punto_de_tecla(KeyAscii);
    return QString::fromUcs4(&c, 1);
}

} // namespace Qlt4_Tabla
