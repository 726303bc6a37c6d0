// SPDX-License-Identifier: MIT
// Libro: a new workbook of LibreOffice Calc, made of a CSV text in one call. The exceptions of UNO go on.
#pragma once

#include "spreadsheet/auxiliar/oficina.h"

#include <com/sun/star/lang/XComponent.hpp>
#include <string_view>

namespace Qlt4_Tabla {

class Libro {
public:
    /// Not yet seen. The language (a Windows identifier) says how numbers are written; they become numbers as
    /// if they were typed.
    Libro(const Oficina& oficina, std::string_view lengua, std::string_view hoja, std::string_view csv);
    /// Closes what nobody was shown, without a question.
    ~Libro();
    Libro(const Libro&) = delete;
    Libro& operator=(const Libro&) = delete;

    /// Before the user's eyes, and his from now on.
    void muestra();

private:
    css::uno::Reference<css::lang::XComponent> documento_;
    bool mostrado_ = false;
};

} // namespace Qlt4_Tabla
