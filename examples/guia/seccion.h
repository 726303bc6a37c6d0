// SPDX-License-Identifier: MIT
// Seccion: the terrain of the profile as a line, beside its table and following it.
#pragma once

#include "qt/tabla_widget.h"

#include <QWidget>

#include <vector>

namespace guia {

class Seccion final : public QWidget {
public:
    explicit Seccion(Qlt4_Tabla::TablaWidget& tabla, QWidget* padre = nullptr);

    [[nodiscard]] const std::vector<double>& cotas() const { return cotas_; }

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    Qlt4_Tabla::TablaWidget& tabla_;
    std::vector<double> cotas_; // as read last
    bool al_dia_ = false;
};

} // namespace guia
