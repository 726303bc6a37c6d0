// SPDX-License-Identifier: MIT
// The steps of the colour picker, read from texts.
#include "tests/guion/selector_color.h"

#include "headless/dialogo_color_memoria.h"
#include "tests/guion/palabras.h"

#include <array>
#include <string_view>
#include <utility>

namespace Qlt4_Tabla {

namespace {

constexpr std::array<std::pair<std::string_view, PasoColor>, 4> FLECHAS{{
    {"Izquierda", PasoColor::Izquierda},
    {"Derecha", PasoColor::Derecha},
    {"Arriba", PasoColor::Arriba},
    {"Abajo", PasoColor::Abajo},
}};

constexpr std::array<std::pair<std::string_view, BotonColor>, 4> BOTONES{{
    {"Aceptar", BotonColor::Aceptar},
    {"Cancelar", BotonColor::Cancelar},
    {"otros", BotonColor::Otros},
    {"capa", BotonColor::PorCapa},
}};

UsuarioColor lee_paso(const std::string& texto) {
    Palabras p(texto);
    UsuarioColor hace;
    if (p.toma("muestra"))
        hace = [indice = p.entero()](ModeloColor& m) { clic_en_muestra(m, indice); };
    else if (p.toma("teclea"))
        hace = [tecleado = p.resto()](ModeloColor& m) { m.teclea(tecleado); };
    for (const auto& [nombre, flecha] : FLECHAS)
        if (!hace && p.toma(nombre)) hace = [paso = flecha](ModeloColor& m) { m.camina(paso); };
    for (const auto& [nombre, boton] : BOTONES)
        if (!hace && p.toma(nombre)) hace = [cual = boton](ModeloColor& m) { m.boton(cual); };
    if (!hace) throw FalloGuion("no such step in the colour picker: " + texto);
    p.fin();
    return hace;
}

} // namespace

UsuarioColor usuario_de_color(const std::vector<std::string>& pasos) {
    std::vector<UsuarioColor> todos;
    todos.reserve(pasos.size());
    for (const std::string& paso : pasos) todos.push_back(lee_paso(paso));
    return [todos = std::move(todos)](ModeloColor& m) {
        for (const UsuarioColor& hace : todos) hace(m);
    };
}

} // namespace Qlt4_Tabla
