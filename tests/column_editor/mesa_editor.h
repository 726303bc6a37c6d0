// SPDX-License-Identifier: MIT
// MesaEditor: the column editor over three columns (Nombre: text; X: real, 3 decimals; Uso: list), open and
// acted on through its model, with the verbs of a user.
#pragma once

#include "base/teclas.h"
#include "base/utf8.h"
#include "column_editor/f_editor.h"
#include "headless/plataforma_memoria.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

struct MesaEditor {
    MesaEditor() {
        r.formatos[0] = {.Nombre = "", .Longitud = 6, .Formato = 4};
        r.formatos[1] = {.Nombre = "Nombre", .Longitud = 9, .Formato = 4, .Accion = 2};
        r.formatos[2] = {.Nombre = "X", .Longitud = 11, .Formato = 2, .Decimales = 3, .Alineacion = 2};
        r.formatos[3] = {.Nombre = "Uso", .Bloqueada = true, .Longitud = 7, .Formato = 5, .Alineacion = 1};
        editor.Iniciar("Plano", "Puntos", 3);
        editor.rejilla().mide(12000, 6000, 300);
    }

    /// The user of one showing.
    template <class F>
    void muestra(F&& usuario) {
        p.dialogo_columnas.usuario.emplace_back([usuario](ModeloColumnas& /*m*/) { usuario(); });
        editor.muestra();
    }

    RejillaColumnas& rejilla() { return editor.rejilla(); }

    const Tablero& t() { return rejilla().tablero(); }

    const CasillaColumnas& casilla() { return rejilla().casilla(); }

    const VistoColumnas& visto() { return editor.visto(); }

    T_FormatoColumna& f(int col) { return r.formato(col); }

    std::string celda(int fila, int col) { return std::string(t().TextMatrix(fila, col)); }

    bool cambiado() { return visto().puede_aplicar; }

    // The user.
    void clic(int fila, int col) {
        const Rectangulo c = rectangulo_celda(t(), fila, col);
        clic_en(c.izquierda + c.ancho / 2, c.arriba + c.alto / 2);
    }

    void clic_en(int x, int y) {
        rejilla().raton(PulsoRaton::Abajo, x, y);
        rejilla().raton(PulsoRaton::Arriba, x, y);
    }

    /// A key with the character it types, to whoever has the focus, as a window sends it.
    void pulsa(int KeyCode, int KeyAscii = 0) {
        if (casilla().abierta) {
            const int tecla = KeyAscii == 0 ? 0 : rejilla().tecla_casilla(KeyAscii);
            if (tecla >= 32) rejilla().escribe_casilla(casilla().texto + static_cast<char>(tecla));
        } else if (!rejilla().tecla_abajo(KeyCode) && KeyAscii != 0) {
            rejilla().tecla_pulsada(KeyAscii);
        }
    }

    void Intro() { pulsa(teclas::INTRO, 13); }

    void Escape() { pulsa(teclas::ESCAPE, 27); }

    void teclea(std::string_view texto) {
        for (const char c : texto) pulsa(0, static_cast<unsigned char>(c));
    }

    /// Into the box of the cell, in place of what is there.
    void escribe(int fila, int col, std::string_view texto) {
        clic(fila, col);
        rejilla().escribe_casilla(texto);
        Intro();
    }

    PlataformaMemoria p;
    RegistrosEditor r;
    f_Editor editor{r, p.plataforma()};
};

} // namespace Qlt4_Tabla
