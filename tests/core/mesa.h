// SPDX-License-Identifier: MIT
// Mesa: a table's state on the platform in memory, with short verbs to set it up and to look at it.
//     mesa.pon_tamano(4, 6); mesa.escribe(1, {"1,5", "2"}); mesa.columna(1) == {"1,5", "2", "", "", ""}
#pragma once

#include "core/estado_tabla.h"
#include "headless/plataforma_memoria.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

using Textos = std::vector<std::string>;

struct Mesa {
    PlataformaMemoria p;
    EstadoTabla e{p.plataforma(), p.eventos};

    Tablero& t() { return e.tablero; }

    /// Counts straight on the grid, rows numbered; header row and number column included.
    void pon_tamano(int columnas, int filas) {
        t().Cols(columnas);
        t().Rows(filas);
        t().numera_filas();
    }

    /// The working and the default format of a column at once.
    T_FormatoColumna& pon_formato(int col, T_formato formato, std::int16_t decimales = 0) {
        const auto i = static_cast<std::size_t>(col);
        e.Formatos[i].Formato = static_cast<std::int16_t>(formato);
        e.Formatos[i].Decimales = decimales;
        e.Formatos_por_defecto[i] = e.Formatos[i];
        return e.Formatos[i];
    }

    /// Texts straight into a column from row 1 on.
    void escribe(int col, const Textos& textos) {
        int fila = 0;
        for (const std::string& texto : textos) t().TextMatrix(++fila, col, texto);
    }

    /// The texts of a column's data rows as the grid holds them.
    [[nodiscard]] Textos columna(int col) {
        Textos textos;
        for (int fila = 1; fila < t().Rows(); ++fila) textos.emplace_back(t().TextMatrix(fila, col));
        return textos;
    }

    [[nodiscard]] std::string celda(int fila, int col) { return std::string(t().TextMatrix(fila, col)); }

    /// Everything that a refused call has to leave alone, as one text.
    [[nodiscard]] std::string foto();
};

namespace detalle_mesa {

inline void suma(std::string& s, std::string_view texto) {
    s += texto;
    s += '|';
}

inline void suma(std::string& s, long long n) { suma(s, std::to_string(n)); }

inline void suma(std::string& s, const T_FormatoColumna& f) {
    suma(s, f.Nombre);
    for (const int n : {int{f.Invisible}, int{f.Bloqueada}, int{f.Longitud}, int{f.Formato}, int{f.Decimales},
             int{f.Alineacion}, int{f.Accion}})
        suma(s, n);
}

inline void suma(std::string& s, const Tablero& t) {
    for (const int n : {t.Rows(), t.Cols(), t.Row(), t.Col(), t.RowSel(), t.ColSel(), t.TopRow(),
             int{t.Redraw()}, int{t.MergeCells()}})
        suma(s, n);
    suma(s, t.FormatString());
    for (int col = 0; col < t.Cols(); ++col) {
        suma(s, t.ColWidth(col));
        suma(s, static_cast<int>(t.ColAlignment(col)));
        for (int fila = 0; fila < t.Rows(); ++fila) {
            suma(s, t.TextMatrix(fila, col));
            suma(s, t.color_fondo(fila, col));
        }
    }
}

} // namespace detalle_mesa

inline std::string Mesa::foto() {
    using detalle_mesa::suma;
    std::string s;
    suma(s, t());
    for (const T_FormatoColumna& f : e.Formatos) suma(s, f);
    for (const T_FormatoColumna& f : e.Formatos_por_defecto) suma(s, f);
    for (const T_Col& lista : e.listas) {
        suma(s, static_cast<long long>(lista.Col.dimensiones()));
        for (const std::string& valor : lista.Col) suma(s, valor);
    }
    for (int campo = 1; campo <= 4; ++campo) suma(s, e.nombres.Tablero_Lee_Nombre(campo, true));
    for (const Etiqueta* etiqueta : {&e.etiquetas.labNumeroFilas, &e.etiquetas.labMensaje}) {
        suma(s, etiqueta->texto);
        suma(s, int{etiqueta->visible});
    }
    for (std::size_t i = 0; i < NUM_OPCIONES; ++i) suma(s, int{e.menus[static_cast<Opcion>(i)].visible});
    suma(s, int{e.primeraEscritura});
    suma(s, static_cast<long long>(p.marco.ancho()));
    suma(s, static_cast<long long>(p.marco.alto()));
    for (const std::string& linea : p.registro) suma(s, linea);
    return s;
}

} // namespace Qlt4_Tabla
