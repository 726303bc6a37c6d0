// SPDX-License-Identifier: MIT
// AjustesQt: the per-user settings store in an INI file: by default one for all programs that show a table
// ("Qlt4_Tabla/ajustes.ini" in the user's folder of settings), or a file of the host's own. Nothing is
// opened before the first use. A write replaces the file whole; several programs may use it at once.
#pragma once

#include "platform/ajustes.h"

#include <QString>

#include <memory>

class QSettings;

namespace Qlt4_Tabla {

class AjustesQt final : public Ajustes {
public:
    /// `fichero` empty: the user's file for all tables.
    explicit AjustesQt(const QString& fichero = {});
    ~AjustesQt() override;

    /// From now on in this file.
    void pon_fichero(const QString& fichero);

    [[nodiscard]] std::optional<std::string> lee(
        std::string_view aplicacion, std::string_view seccion, std::string_view clave) const override;
    /// Error 75 where the file cannot be written.
    void escribe_todos(
        std::string_view aplicacion, std::string_view seccion, std::span<const Ajuste> ajustes) override;

private:
    [[nodiscard]] QSettings& abierto() const;

    QString fichero_;
    mutable std::unique_ptr<QSettings> ajustes_;
};

} // namespace Qlt4_Tabla
