// SPDX-License-Identifier: MIT
// HojaLibreOffice: LibreOffice Calc behind the seam of the spreadsheet. It is driven by a helper program that
// alone knows LibreOffice, is looked up when it is needed and is killed when it takes too long: the library
// has no such dependency, and no office can take the host down. Read on in docs/hoja_de_calculo.md.
#pragma once

#include "platform/hoja_calculo.h"
#include "platform/separador_decimal.h"
#include "spreadsheet/bloque_csv.h"
#include "spreadsheet/proceso_auxiliar.h"

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

struct OpcionesHoja {
    std::string auxiliar; ///< path of the helper program; empty: looked up (spreadsheet/busca_auxiliar.h)
    std::string perfil; ///< folder of the office's user profile; empty: the user's own
    std::string tuberia; ///< name of the pipe to the office; empty: a random one
    bool sin_pantalla = false; ///< without any window; else there must be a display
    std::chrono::milliseconds para_conectar{30'000};
    std::chrono::milliseconds por_operacion{20'000};
};

/// Errors: 429 where there is no helper, no office, no display, or no answer in time; 462 where the office or
/// the helper went away later or took too long; 1004 for the rest.
class HojaLibreOffice final : public HojaCalculo {
public:
    /// The separator must outlive it: it says in which language the cells are read as numbers.
    explicit HojaLibreOffice(const SeparadorDecimal& separador, OpcionesHoja opciones = {});
    ~HojaLibreOffice() override;

    /// What an earlier export left unfinished is let go.
    void crea_aplicacion() override;
    void anade_libro() override;
    void toma_primera_hoja() override;
    /// Kept back until `muestra`. Error 1004 beyond 1,048,576 rows; 5 where the order is not row by row.
    void escribe_celda(int fila, int col, std::string_view texto) override;
    void muestra() override;
    void suelta() override;

private:
    using Plazo = ProcesoAuxiliar::Plazo;

    /// Sends and waits for the answer. An error, 1004 or that of a helper that has gone, ends helper and
    /// office; what the helper itself reports leaves them until `suelta`.
    void ordena(std::string_view nombre, std::string_view opciones, std::string_view bloque, Plazo hasta);
    void atiende_respuesta(Plazo hasta);
    [[noreturn]] void pierde();
    /// Ends the helper, and the office where this export started it and has not shown it.
    void mata();

    const SeparadorDecimal& separador_;
    OpcionesHoja opciones_;
    BloqueCsv bloque_;
    std::unique_ptr<ProcesoAuxiliar> auxiliar_;
    int oficina_ = 0; // leader of the session of an office that nobody has seen yet
    NumError perdido_ = NumError::SinComponente; // what it means now that nobody answers
};

} // namespace Qlt4_Tabla
