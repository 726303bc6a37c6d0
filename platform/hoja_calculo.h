// SPDX-License-Identifier: MIT
// HojaCalculo: a spreadsheet program driven by automation: one new workbook is filled and left to the user.
// The calls come in the order they stand in here. The seam exists because such a program may be missing, may
// refuse and may go away while it is driven.
//
// Every call fails with an Error: 429 where no program can be made, 462 where it was lost on the way, 1004
// or the program's own number and description for the rest.
#pragma once

#include "base/error.h"
#include "base/publico.h"

#include <string_view>

namespace Qlt4_Tabla {

class TABLA_API HojaCalculo {
public:
    virtual ~HojaCalculo() = default;

    /// A new instance of the program, not yet seen by the user.
    virtual void crea_aplicacion() = 0;
    virtual void anade_libro() = 0;
    virtual void toma_primera_hoja() = 0;
    /// Writes a cell as if the user had typed the text: rows and columns from 1 on, row by row, each once.
    /// What is written may be kept back until `muestra`, whose error is then that of the writing.
    virtual void escribe_celda(int fila, int col, std::string_view texto) = 0;
    /// Makes program and workbook visible.
    virtual void muestra() = 0;
    /// Lets go of the program, which stays open where it was shown. Also called after a failure; what was
    /// never shown may then be closed.
    virtual void suelta() = 0;
};

/// There is no spreadsheet program.
class HojaCalculoNula final : public HojaCalculo {
public:
    void crea_aplicacion() override { lanza(NumError::SinComponente); }

    void anade_libro() override { lanza(NumError::SinComponente); }

    void toma_primera_hoja() override { lanza(NumError::SinComponente); }

    void escribe_celda(int, int, std::string_view) override { lanza(NumError::SinComponente); }

    void muestra() override { lanza(NumError::SinComponente); }

    void suelta() override {}
};

} // namespace Qlt4_Tabla
