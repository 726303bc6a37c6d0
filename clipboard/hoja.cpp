// SPDX-License-Identifier: MIT
// The data cells into a spreadsheet: clipboard/hoja.h.
#include "clipboard/hoja.h"

#include "clipboard/textos.h"
#include "core/avance.h"
#include "core/reglas_valor.h"
#include "core/reloj_de_arena.h"
#include "core/sin_errores.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

namespace {

/// The references to the program; those still held at the end are released there, in silence, because an
/// error is already on its way.
class Referencias {
public:
    explicit Referencias(HojaCalculo& hoja) : hoja_(hoja) { hoja_.crea_aplicacion(); }

    Referencias(const Referencias&) = delete;
    Referencias& operator=(const Referencias&) = delete;

    ~Referencias() {
        if (tomadas_) sin_errores([&] { hoja_.suelta(); });
    }

    void suelta() {
        tomadas_ = false;
        hoja_.suelta();
    }

private:
    HojaCalculo& hoja_;
    bool tomadas_ = true;
};

void escribe_celdas(HojaCalculo& hoja, const Tablero& t, bool coma, Avance avance) {
    if (t.Cols() < 2) return;
    std::vector<std::string_view> celdas(static_cast<std::size_t>(t.Cols()) - 1);
    for (int fila = 1; fila < t.Rows(); ++fila) {
        t.almacen().lee_fila(fila, 1, celdas);
        int col = 1;
        for (const std::string_view celda : celdas) {
            const bool cambia = coma && celda.find('.') != std::string_view::npos;
            hoja.escribe_celda(fila, col++, cambia ? std::string_view(Punto_a_Coma(celda)) : celda);
        }
        avance.hasta(fila);
    }
}

} // namespace

void Copiar_todo_Excel(EstadoTabla& e) {
    const RelojDeArena reloj(e);
    HojaCalculo& hoja = e.plataforma.hoja_calculo;
    Referencias referencias(hoja);
    hoja.anade_libro();
    hoja.toma_primera_hoja();
    refresca_ComaDecimal(e);
    const Avance avance(e.plataforma.mensajes, textos::llevando_a_la_hoja, e.tablero.Rows() - 1);
    escribe_celdas(hoja, e.tablero, e.ComaDecimal, avance);
    hoja.muestra();
    referencias.suelta();
}

} // namespace Qlt4_Tabla
