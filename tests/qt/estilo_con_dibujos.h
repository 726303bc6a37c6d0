// SPDX-License-Identifier: MIT
// EstiloConDibujos: a style that asks for pictures on the buttons of dialogs, as some desktops do. Ours have none.
#pragma once

#include <QProxyStyle>

namespace Qlt4_Tabla {

class EstiloConDibujos final : public QProxyStyle {
public:
    int styleHint(
        StyleHint que, const QStyleOption* o, const QWidget* w, QStyleHintReturn* r) const override {
        return que == SH_DialogButtonBox_ButtonsHaveIcons ? 1 : QProxyStyle::styleHint(que, o, w, r);
    }
};

} // namespace Qlt4_Tabla
