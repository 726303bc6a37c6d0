// SPDX-License-Identifier: MIT
// MesaPortapapeles: a table's state with a clipboard and a spreadsheet in memory, and the verbs of copy and
// paste. Texts of a block are written with "|" for TAB and "/" for CR LF: "1|2/3|4/".
#pragma once

#include "clipboard/copia.h"
#include "clipboard/pega.h"
#include "core/formatos.h"
#include "tests/core/mesa.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

/// A block as it is on the clipboard.
inline std::string bloque(std::string_view corto) {
    std::string texto;
    for (const char c : corto) {
        if (c == '|')
            texto += '\t';
        else if (c == '/')
            texto += "\r\n";
        else
            texto += c;
    }
    return texto;
}

struct MesaPortapapeles : Mesa, testing::Test {
    /// Text columns, empty cells, current cell (1, 1).
    void tabla(int filas, int columnas) {
        pon_tamano(columnas, filas);
        for (int col = 0; col < std::min(columnas, MAX_COLUMNAS); ++col) {
            T_FormatoColumna& f = pon_formato(col, T_formato::Alfanm);
            f.Longitud = 10;
            e.Formatos_por_defecto[static_cast<std::size_t>(col)] = f;
        }
        const int fila = std::min(1, filas - 1);
        t().selecciona(fila, std::min(1, columnas - 1), fila, std::min(1, columnas - 1));
        termina_mensaje(e); // the label as start-up leaves it
        p.registro.clear();
    }

    void pon(int fila, int col, std::string_view texto) { t().TextMatrix(fila, col, texto); }

    void va(int fila, int col) { t().selecciona(fila, col, fila, col); }

    void marca(int fila, int col, int fila_sel, int col_sel) { t().selecciona(fila, col, fila_sel, col_sel); }

    void en_coma() { p.separador.coma = true; }

    [[nodiscard]] std::string copiado() { return p.portapapeles.texto; }

    /// What the selection gives on the clipboard.
    [[nodiscard]] std::string copia(std::int16_t modo = 0) {
        Copiar_Seleccion(e, modo);
        return copiado();
    }

    void pega(std::string_view corto) {
        p.portapapeles.texto = bloque(corto);
        Pegar_Portapapeles(e, false);
    }

    void pega_en(int fila, int col, std::string_view corto) {
        va(fila, col);
        pega(corto);
    }

    /// The texts of the data cells, cells parted by "|", rows by "/".
    [[nodiscard]] std::string datos() {
        std::string todo;
        for (int fila = 1; fila < t().Rows(); ++fila) {
            for (int col = 1; col < t().Cols(); ++col) {
                todo += t().TextMatrix(fila, col);
                todo += col + 1 < t().Cols() ? '|' : '/';
            }
        }
        return todo;
    }

    [[nodiscard]] std::vector<int> seleccion() { return {t().Row(), t().Col(), t().RowSel(), t().ColSel()}; }

    void prohibe_pegar() {
        for (const Opcion o : {Opcion::mn_pegar_cXp, Opcion::mn_Pegar, Opcion::mn_pegar_al_final})
            e.menus[o].activa = false;
    }

    [[nodiscard]] bool se_puede_pegar() {
        return e.menus[Opcion::mn_pegar_cXp].activa && e.menus[Opcion::mn_Pegar].activa &&
            e.menus[Opcion::mn_pegar_al_final].activa;
    }

    /// The number of the error, or 0.
    template <class Trabajo>
    static int error_de(Trabajo&& trabajo) {
        try {
            trabajo();
        } catch (const Error& error) {
            return error.numero();
        }
        return 0;
    }
};

} // namespace Qlt4_Tabla
