// SPDX-License-Identifier: MIT
// The step counters of undo and redo, and the captions that show them.
#include "core/revoca.h"

#include "base/numeros.h"
#include "core/textos.h"

namespace Qlt4_Tabla {

namespace {

std::string titulo_con_paso(std::string_view antes, int paso) {
    std::string titulo(antes);
    titulo += numero_a_texto(paso);
    titulo += textos::cierra_paso;
    return titulo;
}

} // namespace

void Revoca::Rehace(EstadoMenus& menus) {
    if (total_pasos_ < paso_actual_ + 1) {
        menus[Opcion::mn_Rehacer].activa = false;
        return;
    }
    ++paso_actual_;
    menus[Opcion::mn_Deshacer].activa = true;
    menus[Opcion::mn_Deshacer].titulo = titulo_con_paso(textos::deshacer_paso, paso_actual_);
    menus[Opcion::mn_Rehacer].titulo = titulo_con_paso(textos::rehacer_paso, total_pasos_ - paso_actual_ + 1);
    pasos_->restaura_paso(paso_actual_);
}

void Revoca::A_GrabaRevoca(std::string_view valor) {
    if (valor == "SI" || valor == "NO") graba_ = std::string(valor);
}

} // namespace Qlt4_Tabla
