// SPDX-License-Identifier: MIT
// OficinaDePrueba: a real office without windows, on a profile and a pipe of its own, as the adapter starts it;
// what its sheets hold is read back through UNO. It ends with the object.
#pragma once

#include "spreadsheet/hoja_libreoffice.h"

#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/CellContentType.hpp>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

struct CeldaLeida {
    css::table::CellContentType tipo;
    double valor;
    std::string texto;
};

class OficinaDePrueba {
public:
    OficinaDePrueba();
    ~OficinaDePrueba();
    OficinaDePrueba(const OficinaDePrueba&) = delete;
    OficinaDePrueba& operator=(const OficinaDePrueba&) = delete;

    [[nodiscard]] OpcionesHoja opciones() const;

    /// The workbooks that are open.
    [[nodiscard]] std::vector<css::uno::Reference<css::sheet::XSpreadsheetDocument>> libros() const;
    [[nodiscard]] static css::uno::Reference<css::sheet::XSpreadsheet> hoja(
        const css::uno::Reference<css::sheet::XSpreadsheetDocument>& libro);
    /// Row and column from 1 on.
    [[nodiscard]] static CeldaLeida celda(
        const css::uno::Reference<css::sheet::XSpreadsheetDocument>& libro, int fila, int col);
    [[nodiscard]] bool responde() const;
    /// Kills it as if it had crashed.
    void muere() const;
    /// Stops it as if it hung.
    void se_cuelga() const;
    [[nodiscard]] bool tiene_procesos() const;

private:
    [[nodiscard]] css::uno::Reference<css::frame::XDesktop2> escritorio() const;

    std::string carpeta_;
    std::string tuberia_;
};

} // namespace Qlt4_Tabla
