// SPDX-License-Identifier: MIT
// Joins the rules of clipboard/ and editing/, and gives their errors the messages they have.
#include "control/portapapeles.h"

#include "clipboard/copia.h"
#include "clipboard/hoja.h"
#include "clipboard/pega.h"
#include "clipboard/textos.h"
#include "control/guarda.h"
#include "editing/filas.h"

namespace Qlt4_Tabla {

namespace {

void protege(EstadoTabla& e, std::string_view prefijo, void (*copia)(EstadoTabla&)) {
    const auto forma = [&] {
        return FormaMensaje{std::string(prefijo), textos::antes_de_descripcion_copia, EstiloMensaje::Critico};
    };
    guarda_con_forma(e.plataforma.mensajes, forma, {}, [&] { copia(e); });
}

} // namespace

void copia_tabla(EstadoTabla& e) { protege(e, textos::error_copiar_tabla, Copiar_Tabla); }

void copia_con_cabecera(EstadoTabla& e) {
    protege(e, textos::error_copiar_con_cabecera, mn_copiar_todo_y_cabezera);
}

void copia_en_hoja(EstadoTabla& e) { protege(e, textos::error_copiar_en_hoja, Copiar_todo_Excel); }

void corta_seleccion(EstadoTabla& e) {
    mn_cortar(e, [&e] { return Copiar_Seleccion(e, 0); });
}

void pega_al_final(EstadoTabla& e) {
    mn_pegar_al_final(e, [&e] { mn_añadir_filas(e); });
}

} // namespace Qlt4_Tabla
