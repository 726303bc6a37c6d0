// SPDX-License-Identifier: MIT
// CajaLinea: the line edit of all our text boxes. What comes into it by paste, drop or middle click is one
// line; its menu is in Spanish; a text that nobody changed comes back byte for byte.
// Also pon_menu_en_espanol, for line edits that Qt makes.
#pragma once

#include <QLineEdit>

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class CajaLinea : public QLineEdit {
    Q_OBJECT

public:
    explicit CajaLinea(QWidget* padre);

    /// Puts a text of the core, of any length; the caret goes behind it.
    void pon(std::string_view texto);
    /// The text for the core: as `pon` gave it while the box still shows that, also where QString cannot
    /// hold its bytes; else what is shown.
    [[nodiscard]] std::string dado() const;

protected:
    /// What remains of a character that comes from an input method; 0: nothing. Each is asked about when
    /// those before it are in the box.
    [[nodiscard]] virtual int tecla(int KeyAscii) { return KeyAscii; }

    void keyPressEvent(QKeyEvent* e) override;
    void inputMethodEvent(QInputMethodEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void dropEvent(QDropEvent* e) override;
    void contextMenuEvent(QContextMenuEvent* e) override;

private:
    std::string dado_;
    QString mostrado_; // what the box shows of `dado_`
};

/// Gives a line edit that is not ours the Spanish menu too.
void pon_menu_en_espanol(QLineEdit& caja);

/// The text up to its first end of line; a tabulator becomes a blank. Rows of cells on the clipboard have
/// both, and a box of one line has room for neither.
[[nodiscard]] QString una_linea(QString texto);

} // namespace Qlt4_Tabla
