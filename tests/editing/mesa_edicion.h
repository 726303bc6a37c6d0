// SPDX-License-Identifier: MIT
// MesaEdicion: a table's state on the platform in memory with editor and cursor joined as the component
// joins them, and verbs for tests. Seven columns of every kind, four data rows, current cell (1, 1):
//     1 text, 2 real of 2 decimals, 3 whole, 4 list A, B, C, 5 colour, 6 picture
#pragma once

#include "core/ciclo_vida.h"
#include "core/formatos.h"
#include "editing/editor_celda.h"
#include "editing/navegacion.h"
#include "headless/plataforma_memoria.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

class MesaEdicion : public testing::Test {
protected:
    MesaEdicion() {
        p.foco.casilla_pierde = [this] { editor.casilla_pierde_foco(MotivoFoco::Otro); };
        p.foco.lista_pierde = [this] { editor.lista_pierde_foco(MotivoFoco::Otro); };
        arranca(e);
        t().Cols(7);
        t().Rows(5);
        formato_de(0, T_formato::Alfanm);
        formato_de(1, T_formato::Alfanm);
        formato_de(2, T_formato::Real__, 2);
        formato_de(3, T_formato::Entero);
        formato_de(4, T_formato::ListaU);
        formato_de(5, T_formato::Color_);
        formato_de(6, T_formato::Imagen);
        Lista(e, 4, Matriz<std::string>(0, {"A", "B", "C"}));
        Tablero_establece_Formato(e);
        t().numera_filas();
        t().pon_vista(12000, 6000);
        va(1, 1);
        p.registro.clear();
    }

    Tablero& t() { return e.tablero; }

    void formato_de(int col, T_formato clase, int decimales = 0) {
        FormatoColumnas(e, static_cast<std::int16_t>(col), false, false, clase,
            static_cast<std::int16_t>(decimales), T_Alineacion::Izqda, T_Accion::Nada__, 10, "C");
    }

    void va(int fila, int col) { t().selecciona(fila, col, fila, col); }

    std::string celda(int fila, int col) { return std::string(t().TextMatrix(fila, col)); }

    /// Opens over a cell by F2 and puts a text into the box.
    void edita(int fila, int col, std::string_view texto) {
        va(fila, col);
        editor.abre_por_F2();
        p.casilla.pon_texto(texto);
    }

    int error_de(const std::function<void()>& orden) {
        try {
            orden();
        } catch (const Error& error) {
            return error.numero();
        }
        return 0;
    }

    PlataformaMemoria p;
    EstadoTabla e{p.plataforma(), p.eventos};
    Navegacion navegacion{e};
    EditorCelda editor{e, [this] { navegacion.Avanza_Cursor(); }};
};

} // namespace Qlt4_Tabla
