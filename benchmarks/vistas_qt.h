// SPDX-License-Identifier: MIT
// Qt's own tables as contestants: QTableWidget, and QTableView on a QStandardItemModel. Both are driven by
// the model, as a host would. Main names: VistaQt, ConWidget, ConModelo.
#pragma once

#include "datos.h"
#include "vectores.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>
#include <QTableWidget>

#include <memory>
#include <string>

namespace Qlt4_Tabla::medida {

struct ConWidget {
    static std::unique_ptr<QTableView> crea() { return std::make_unique<QTableWidget>(0, COLUMNAS); }
};

struct ConModelo {
    static std::unique_ptr<QTableView> crea() {
        auto vista = std::make_unique<QTableView>();
        vista->setModel(new QStandardItemModel(0, COLUMNAS, vista.get()));
        return vista;
    }
};

inline QString de_texto(std::string_view s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

template <class Cual>
class VistaQt {
public:
    VistaQt() { vista_->resize(1200, 800); }

    [[nodiscard]] QTableView& widget() { return *vista_; }

    void filas(int n) { m().insertRows(0, n); }

    void pon(int f, int c, const std::string& s) { pon_texto(f, c, de_texto(s)); }

    [[nodiscard]] std::size_t lee(int f, int c) {
        return static_cast<std::size_t>(m().index(f, c).data().toString().size());
    }

    void pega(const std::string& bloque) {
        const QStringList lineas = de_texto(bloque).split(QStringLiteral("\r\n"));
        m().insertRows(0, static_cast<int>(lineas.size()) - 1);
        for (int f = 0; f < lineas.size() - 1; ++f) {
            const QStringList campos = lineas.at(f).split(QLatin1Char('\t'));
            for (int c = 0; c < campos.size(); ++c) {
                QString campo = campos.at(c);
                campo.replace(QLatin1Char(','), QLatin1Char('.'));
                pon_texto(f, c, es_real(c) ? QString::number(campo.toDouble(), 'f', 3) : campo);
            }
        }
    }

    [[nodiscard]] std::size_t copia() {
        QString todo;
        for (int f = 0; f < m().rowCount(); ++f) {
            for (int c = 0; c < COLUMNAS; ++c) {
                if (c > 0) todo += QLatin1Char('\t');
                todo += m().index(f, c).data().toString();
            }
            todo += QStringLiteral("\r\n");
        }
        usa(todo);
        return static_cast<std::size_t>(todo.size());
    }

    void anade() { m().insertRow(m().rowCount()); }

    void inserta(int f) { m().insertRow(f); }

    void borra(int f) { m().removeRow(f); }

    void graba(const std::string& ruta) {
        std::string bytes;
        for (int f = 0; f < m().rowCount(); ++f)
            for (int c = 0; c < COLUMNAS; ++c)
                anade_a_fichero(bytes, m().index(f, c).data().toString().toStdString());
        escribe_fichero(ruta, bytes);
    }

    void carga(const std::string& ruta) {
        lee_fichero(ruta, [this](int f, int c, std::string_view s) {
            if (f == m().rowCount()) anade();
            pon_texto(f, c, de_texto(s));
        });
    }

    void suma(int a, int b, int r) {
        for (int f = 0; f < m().rowCount(); ++f) {
            const double x = m().index(f, a).data().toString().toDouble();
            const double y = m().index(f, b).data().toString().toDouble();
            pon_texto(f, r, QString::number(x + y, 'f', 3));
        }
    }

    // On the window.
    void al_final() { vista_->scrollToBottom(); }

    void al_medio() { vista_->scrollTo(m().index(m().rowCount() / 2, 0), QAbstractItemView::PositionAtTop); }

    void anade_al_final() {
        anade();
        vista_->scrollToBottom();
    }

    void inserta_en_medio() { m().insertRow(m().rowCount() / 2); }

    void borra_en_medio() { m().removeRow(m().rowCount() / 2); }

    void arrastra(int pixeles) { vista_->horizontalHeader()->resizeSection(1, pixeles); }

    [[nodiscard]] QWidget& lienzo() { return *vista_->viewport(); }

private:
    [[nodiscard]] QAbstractItemModel& m() { return *vista_->model(); }

    void pon_texto(int f, int c, const QString& s) { m().setData(m().index(f, c), s); }

    std::unique_ptr<QTableView> vista_ = Cual::crea();
};

} // namespace Qlt4_Tabla::medida
