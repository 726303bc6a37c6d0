// SPDX-License-Identifier: MIT
// The loop around the column editor: control/editor_columnas.h.
#include "control/editor_columnas.h"

#include "base/aritmetica.h"
#include "column_editor/f_editor.h"
#include "control/guarda.h"
#include "control/textos.h"
#include "core/formatos.h"

namespace Qlt4_Tabla {

namespace {

void muestra_editor(EstadoTabla& e, RegistrosEditor& registros) {
    registros.aceptado = false;
    f_Editor editor(registros, e.plataforma);
    editor.Iniciar(e.nombres.titulo(), e.nombres.subtitulo(), entero16(e.tablero.Cols() - 1));
    editor.muestra();
}

// The editor's formats come after the defaults and replace them: restoring the defaults leaves what the user's
// clicks changed. The order is meant so.
void toma_formatos(EstadoTabla& e, RegistrosEditor& registros) {
    if (!registros.aceptado) return;
    if (registros.por_defecto) {
        Tablero_Formato_por_defecto(e);
        registros.por_defecto = false;
    }
    e.Formatos = registros.formatos;
    Tablero_establece_Formato(e);
    Editor_Tabl_graba(e);
}

// A settings store that cannot keep the window's place says so after the changes were taken over.
void edita(EstadoTabla& e) {
    RegistrosEditor registros{e.Formatos};
    do {
        try {
            muestra_editor(e, registros);
        } catch (const Error&) {
            toma_formatos(e, registros);
            throw;
        }
        toma_formatos(e, registros);
    } while (registros.aceptado);
}

} // namespace

void edita_columnas(EstadoTabla& e) {
    guarda_miembro(e.plataforma.mensajes, textos::lugar_editor_columnas, {}, [&] {
        try {
            edita(e);
        } catch (...) {
            e.tablero.Redraw(true);
            throw;
        }
    });
}

} // namespace Qlt4_Tabla
