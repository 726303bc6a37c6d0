// SPDX-License-Identifier: MIT
// CajaTextoMemoria and ListaMemoria: the in-cell text box and drop-down without a window. They keep text,
// caret, selection, place and visibility, and offer what a user does to them.
#pragma once

#include "base/publico.h"
#include "headless/foco_memoria.h"
#include "platform/caja_texto.h"
#include "platform/lista_desplegable.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla {

class TABLA_API CajaTextoMemoria final : public CajaTexto {
public:
    explicit CajaTextoMemoria(FocoMemoria& foco) : foco_(&foco) {}

    void muestra(const Rectangulo& celda, std::string_view texto) override;
    void oculta() override;

    void mueve(const Rectangulo& celda) override { celda_ = celda; }

    [[nodiscard]] std::string texto() const override { return texto_; }

    void pon_texto(std::string_view texto) override;

    [[nodiscard]] int cursor() const override { return inicio_ + longitud_; }

    void selecciona(int inicio, int longitud) override;

    [[nodiscard]] bool visible() const { return visible_; }

    [[nodiscard]] const Rectangulo& celda() const { return celda_; }

    /// The selection, in characters.
    [[nodiscard]] int inicio_seleccion() const { return inicio_; }

    [[nodiscard]] int longitud_seleccion() const { return longitud_; }

    // What the user does, once the key filter has let it through.
    /// Types or pastes at the caret, over the selection.
    void inserta(std::string_view texto);
    /// Backspace: takes the selection away, or the character before the caret.
    void retrocede();

private:
    FocoMemoria* foco_;
    Rectangulo celda_;
    std::string texto_;
    int inicio_ = 0;
    int longitud_ = 0;
    bool visible_ = false;
};

class TABLA_API ListaMemoria final : public ListaDesplegable {
public:
    explicit ListaMemoria(FocoMemoria& foco) : foco_(&foco) {}

    void muestra(const Rectangulo& celda, std::span<const std::string> entradas, int elegida) override;
    void oculta() override;

    void mueve(const Rectangulo& celda) override { celda_ = celda; }

    [[nodiscard]] std::string texto() const override;

    [[nodiscard]] bool visible() const { return visible_; }

    [[nodiscard]] const Rectangulo& celda() const { return celda_; }

    [[nodiscard]] const std::vector<std::string>& entradas() const { return entradas_; }

    /// The selected entry, 0-based; -1: none.
    [[nodiscard]] int elegida() const override { return elegida_; }

    /// The user moves to an entry, 0-based; outside the list: none is selected.
    void elige(int entrada);
    /// The same by its text.
    void elige(std::string_view texto);

private:
    FocoMemoria* foco_;
    Rectangulo celda_;
    std::vector<std::string> entradas_;
    int elegida_ = -1;
    bool visible_ = false;
};

} // namespace Qlt4_Tabla
