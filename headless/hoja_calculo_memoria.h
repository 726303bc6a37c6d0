// SPDX-License-Identifier: MIT
// HojaCalculoMemoria: a spreadsheet in memory that records what it is asked and can fail at any step. Every
// call but the cells is one line of the record: "hoja aplicacion", "hoja libro", "hoja primera",
// "hoja muestra", "hoja suelta"; a call that fails is recorded first.
#pragma once

#include "base/publico.h"
#include "headless/registro.h"
#include "platform/hoja_calculo.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace Qlt4_Tabla {

class TABLA_API HojaCalculoMemoria final : public HojaCalculo {
public:
    explicit HojaCalculoMemoria(Registro& registro) : registro_(&registro) {}

    std::map<std::pair<int, int>, std::string> celdas; ///< by row and column, from 1 on
    int escritas = 0;
    bool visible = false;
    bool tomada = false; ///< created and not yet released

    /// By the name of the call ("aplicacion", "libro", "primera", "celda", "muestra", "suelta"): the error that
    /// it raises.
    std::map<std::string, Error, std::less<>> fallos;

    void crea_aplicacion() override {
        da_paso("aplicacion");
        tomada = true;
    }

    void anade_libro() override { da_paso("libro"); }

    void toma_primera_hoja() override { da_paso("primera"); }

    void escribe_celda(int fila, int col, std::string_view texto) override {
        falla("celda");
        ++escritas;
        celdas[{fila, col}] = texto;
    }

    void muestra() override {
        da_paso("muestra");
        visible = true;
    }

    void suelta() override {
        tomada = false;
        da_paso("suelta");
    }

private:
    void da_paso(std::string_view paso) {
        registro_->push_back("hoja " + std::string(paso));
        falla(paso);
    }

    void falla(std::string_view paso) const {
        if (const auto i = fallos.find(paso); i != fallos.end()) throw Error(i->second);
    }

    Registro* registro_;
};

} // namespace Qlt4_Tabla
