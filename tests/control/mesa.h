// SPDX-License-Identifier: MIT
// Mesa: one table on the platform in memory, whose members are called through the class, by name or by
// identifier: `t` is the same interface in all three. Every test of the members runs three times.
#pragma once

#include "control/despacho.h"
#include "control/tabla0.h"
#include "headless/plataforma_memoria.h"
#include "tests/control/tabla_ruta.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace prueba {

enum class Via { Clase, Nombre, Dispid };

class Mesa : public ::testing::TestWithParam<Via> {
protected:
    Mesa()
        : tabla(p.plataforma(), p.eventos),
          despacho(tabla),
          ruta([this](const Miembro& m, Acceso acceso, std::span<Variante> valores) {
              return GetParam() == Via::Nombre ? despacho.invoca(m.nombre, acceso, valores)
                                               : despacho.invoca(m.dispid, acceso, valores);
          }),
          t(GetParam() == Via::Clase ? static_cast<_Tabla0&>(tabla) : ruta) {}

    /// The error number that reaches the caller of `orden`; 0: none.
    template <class F>
    static int numero_error(F&& orden) {
        try {
            orden();
        } catch (const Error& e) {
            return e.numero();
        }
        return 0;
    }

    /// The format of a visible, unlocked column "C" of ten units; not applied to the grid.
    void da_formato(
        std::int16_t col, T_formato formato, std::int16_t decimales = 0, T_Accion accion = T_Accion::Nada__) {
        t.FormatoColumnas(col, false, false, formato, decimales, T_Alineacion::Izqda, accion, 10, "C");
    }

    std::string celda(int fila, int col) const { return std::string(tabla.tablero().TextMatrix(fila, col)); }

    const Tablero& g() const { return tabla.tablero(); }

    // Row, Col, RowSel, ColSel.
    std::vector<int> seleccion() const { return {g().Row(), g().Col(), g().RowSel(), g().ColSel()}; }

    const T_FormatoColumna& formato(std::size_t col) const { return tabla.estado().Formatos.at(col); }

    PlataformaMemoria p;
    Tabla0 tabla;
    Despacho despacho;
    TablaRuta ruta;
    _Tabla0& t;
};

inline std::string nombre_via(const ::testing::TestParamInfo<Via>& via) {
    return via.param == Via::Clase ? "Clase" : via.param == Via::Nombre ? "Nombre" : "Dispid";
}

} // namespace prueba

// The three ways for the tests of the fixture `mesa`.
#define TRES_VIAS(mesa) \
    INSTANTIATE_TEST_SUITE_P(, mesa, \
        ::testing::Values(prueba::Via::Clase, prueba::Via::Nombre, prueba::Via::Dispid), prueba::nombre_via)
