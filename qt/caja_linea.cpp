// SPDX-License-Identifier: MIT
// What the line edit of our text boxes does otherwise than Qt's: qt/caja_linea.h.
#include "qt/caja_linea.h"

#include "qt/teclas_qt.h"
#include "qt/texto_qt.h"
#include "qt/textos.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

#include <algorithm>
#include <limits>

namespace Qlt4_Tabla {

namespace {

void pega(QLineEdit& caja, QClipboard::Mode de) {
    caja.insert(una_linea(QGuiApplication::clipboard()->text(de)));
}

// One line of the menu; Qt names these actions the same.
struct OrdenCaja {
    const char* nombre;
    std::string_view titulo; // empty: a separator
    QKeySequence::StandardKey tecla;
    bool (*puede)(const QLineEdit&);
    void (*hace)(QLineEdit&);
};

constexpr OrdenCaja ORDENES[] = {
    {"edit-undo", textos::caja::deshacer, QKeySequence::Undo,
        [](const QLineEdit& c) { return c.isUndoAvailable(); }, [](QLineEdit& c) { c.undo(); }},
    {"edit-redo", textos::caja::rehacer, QKeySequence::Redo,
        [](const QLineEdit& c) { return c.isRedoAvailable(); }, [](QLineEdit& c) { c.redo(); }},
    {},
    {"edit-cut", textos::caja::cortar, QKeySequence::Cut,
        [](const QLineEdit& c) { return c.hasSelectedText(); }, [](QLineEdit& c) { c.cut(); }},
    {"edit-copy", textos::caja::copiar, QKeySequence::Copy,
        [](const QLineEdit& c) { return c.hasSelectedText(); }, [](QLineEdit& c) { c.copy(); }},
    {"edit-paste", textos::caja::pegar, QKeySequence::Paste,
        [](const QLineEdit&) { return !QGuiApplication::clipboard()->text().isEmpty(); },
        [](QLineEdit& c) { pega(c, QClipboard::Clipboard); }},
    {"edit-delete", textos::caja::eliminar, QKeySequence::UnknownKey,
        [](const QLineEdit& c) { return c.hasSelectedText(); }, [](QLineEdit& c) { c.del(); }},
    {},
    {"select-all", textos::caja::seleccionar_todo, QKeySequence::SelectAll,
        [](const QLineEdit& c) { return !c.text().isEmpty() && c.selectedText() != c.text(); },
        [](QLineEdit& c) { c.selectAll(); }},
};

// The shortcut is shown only: the box itself takes the key.
QString con_atajo(const OrdenCaja& orden) {
    QString atajo = QKeySequence(orden.tecla).toString(QKeySequence::NativeText);
    atajo.replace(QStringLiteral("Shift+"), a_qstring(textos::caja::mayusculas));
    return a_qstring(orden.titulo) + (atajo.isEmpty() ? QString() : QLatin1Char('\t') + atajo);
}

void abre_menu(QLineEdit& caja, QPoint sitio) {
    auto* menu = new QMenu(&caja);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const OrdenCaja& orden : ORDENES) {
        if (orden.titulo.empty()) {
            menu->addSeparator();
            continue;
        }
        QAction* accion = menu->addAction(con_atajo(orden));
        accion->setObjectName(QString::fromLatin1(orden.nombre));
        accion->setEnabled(orden.puede(caja));
        QObject::connect(accion, &QAction::triggered, &caja, [&caja, &orden] { orden.hace(caja); });
    }
    menu->popup(sitio);
}

} // namespace

QString una_linea(QString texto) {
    const auto fin = std::find_if(texto.cbegin(), texto.cend(), [](QChar c) {
        return c == QChar::LineFeed || c == QChar::CarriageReturn || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator;
    });
    texto.truncate(fin - texto.cbegin());
    return texto.replace(QChar::Tabulation, QChar::Space);
}

void pon_menu_en_espanol(QLineEdit& caja) {
    caja.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&caja, &QWidget::customContextMenuRequested, &caja,
        [&caja](QPoint p) { abre_menu(caja, caja.mapToGlobal(p)); });
}

CajaLinea::CajaLinea(QWidget* padre) : QLineEdit(padre) {
    setMaxLength(std::numeric_limits<int>::max()); // Qt would cut at 32,767
}

void CajaLinea::pon(std::string_view texto) {
    dado_ = texto;
    mostrado_ = a_qstring(texto);
    setText(mostrado_);
}

std::string CajaLinea::dado() const { return text() == mostrado_ ? dado_ : text().toStdString(); }

void CajaLinea::keyPressEvent(QKeyEvent* e) {
    if (!e->matches(QKeySequence::Paste)) return QLineEdit::keyPressEvent(e);
    const bool lo_marcado =
        e->key() == Qt::Key_Insert && e->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    pega(*this, lo_marcado ? QClipboard::Selection : QClipboard::Clipboard);
    e->accept();
}

// A key may write into the box or close it, so each character finds it as the one before left it.
void CajaLinea::inputMethodEvent(QInputMethodEvent* e) {
    if (!e->commitString().isEmpty()) {
        QInputMethodEvent quita; // what was being composed, and what the commit replaces
        quita.setCommitString({}, e->replacementStart(), e->replacementLength());
        QLineEdit::inputMethodEvent(&quita);
        for (const int codigo : codigos_de_texto(e->commitString()))
            if (const int resto = tecla(codigo)) insert(texto_de_codigo(resto));
    }
    QInputMethodEvent en_curso(e->preeditString(), e->attributes());
    QLineEdit::inputMethodEvent(&en_curso);
    e->accept();
}

void CajaLinea::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::MiddleButton || !QGuiApplication::clipboard()->supportsSelection())
        return QLineEdit::mouseReleaseEvent(e);
    deselect();
    pega(*this, QClipboard::Selection);
}

void CajaLinea::dropEvent(QDropEvent* e) {
    QMimeData linea;
    linea.setText(una_linea(e->mimeData()->text()));
    QDropEvent suelta(e->position(), e->possibleActions(), &linea, e->buttons(), e->modifiers());
    suelta.setDropAction(e->dropAction());
    QLineEdit::dropEvent(&suelta);
    e->setDropAction(suelta.dropAction());
    e->setAccepted(suelta.isAccepted());
}

void CajaLinea::contextMenuEvent(QContextMenuEvent* e) { abre_menu(*this, e->globalPos()); }

} // namespace Qlt4_Tabla
