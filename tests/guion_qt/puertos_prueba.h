// SPDX-License-Identifier: MIT
// Two seams of a widget under test that go on to the widget's own: MensajesReales records each message and
// lets a user answer the real box, PortapapelesCerrable can refuse.
#pragma once

#include "headless/plataforma_memoria.h"
#include "platform/mensajes.h"
#include "platform/portapapeles.h"
#include "tests/qt/manos.h"

#include <functional>
#include <string>
#include <string_view>

namespace Qlt4_Tabla {

/// The record and the answers are those of the memory; the box is the widget's. A box that shows something
/// else, or gives back another answer, is a line more of the record.
class MensajesReales final : public Mensajes {
public:
    MensajesReales(MensajesMemoria& memoria, Registro& registro) : memoria_(memoria), registro_(registro) {}

    std::function<void()> al_cerrar; ///< the box is gone: a window manager gives the window back its focus

    void conecta(Mensajes& reales) { reales_ = &reales; }

    Respuesta mensaje(std::string_view texto, EstiloMensaje estilo, std::string_view titulo) override;

    void pitido() override { memoria_.pitido(); }

    void puntero(Puntero forma) override { memoria_.puntero(forma); }

private:
    MensajesMemoria& memoria_;
    Registro& registro_;
    Mensajes* reales_ = nullptr;
};

class PortapapelesCerrable final : public Portapapeles {
public:
    void conecta(Portapapeles& real) { real_ = &real; }

    void cierra() { cerrado_ = true; }

    [[nodiscard]] std::string lee() override;
    void escribe(std::string_view texto) override;

private:
    Portapapeles* real_ = nullptr;
    bool cerrado_ = false;
};

} // namespace Qlt4_Tabla
