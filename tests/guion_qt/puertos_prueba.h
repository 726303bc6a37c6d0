// SPDX-License-Identifier: MIT
// Seams of a widget under test that go on to the widget's own: MensajesReales records each message and
// lets a user answer the real box, MarcoVisto records the menus, PortapapelesCerrable can refuse.
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

    void avance(std::string_view que, int por_ciento) override { memoria_.avance(que, por_ciento); }

private:
    MensajesMemoria& memoria_;
    Registro& registro_;
    Mensajes* reales_ = nullptr;
};

/// The widget's own frame; each menu that opens is a line of the record.
class MarcoVisto final : public Marco {
public:
    explicit MarcoVisto(MarcoMemoria& memoria) : memoria_(memoria) {}

    void conecta(Marco& real) { real_ = &real; }

    [[nodiscard]] float ancho() const override { return real_->ancho(); }

    [[nodiscard]] float alto() const override { return real_->alto(); }

    void pon_tamano(float ancho, float alto) override { real_->pon_tamano(ancho, alto); }

    void etiquetas_cambiadas() override { real_->etiquetas_cambiadas(); }

    void menus_cambiados() override { real_->menus_cambiados(); }

    void abre_menu(Menu menu, DondeMenu donde) override {
        memoria_.abre_menu(menu, donde);
        real_->abre_menu(menu, donde);
    }

    void enfoca_barra() override { real_->enfoca_barra(); }

    void propiedad_cambiada(std::string_view nombre) override { real_->propiedad_cambiada(nombre); }

    void enfoca_tablero() override { real_->enfoca_tablero(); }

private:
    MarcoMemoria& memoria_;
    Marco* real_ = nullptr;
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
