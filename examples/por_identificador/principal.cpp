// SPDX-License-Identifier: MIT
// The host that is not bound to the class: a script engine, another language. It calls the members by their
// dispatch identifiers, which never change, or by name, with values of any type; an argument that a member
// changes comes back changed. Links the core alone.
#include "base/error.h"
#include "control/despacho.h"
#include "control/tabla0.h"
#include "headless/plataforma_memoria.h"
#include "textos.h"

#include <array>
#include <cstdint>
#include <iostream>

using namespace Qlt4_Tabla;
namespace textos_host = por_identificador;

namespace {

// As a type library gives them to a host.
constexpr std::int32_t ID_TEXTMATRIX = 0x68030013;
constexpr std::int32_t ID_ROWS = 0x6803000d;

} // namespace

int main() try {
    PlataformaMemoria memoria;
    Tabla0 tabla(memoria.plataforma(), memoria.eventos);
    Despacho despacho(tabla);

    // By name: real numbers with two decimals in column 1.
    despacho.invoca("FormatoColumnas", Acceso::Metodo, {1, false, false, 2, 2, 2, 0, 10, textos_host::COTA});
    despacho.invoca("Tablero_establece_Formato", Acceso::Metodo, {});
    // By identifier: a put has the value last. Texts that are numbers are taken as numbers.
    despacho.invoca(ID_ROWS, Acceso::Pone, {"3"});
    despacho.invoca(ID_TEXTMATRIX, Acceso::Pone, {1, 1, "612.455"});
    despacho.invoca(ID_TEXTMATRIX, Acceso::Pone, {2, 1, 700});
    std::cout << textos_host::FILAS << despacho.invoca(ID_ROWS, Acceso::Lee, {}).a_texto() << '\n'
              << textos_host::CELDA << despacho.invoca(ID_TEXTMATRIX, Acceso::Lee, {1, 1}).a_texto() << '\n';

    // An argument by reference: the column as an array of numbers.
    std::array<Variante, 2> argumentos{1, {}};
    despacho.invoca("m_Obten_Matriz_Numerica_de_columna", Acceso::Metodo, argumentos);
    const Matriz<double>& columna = argumentos[1].matriz_numeros();
    std::cout << textos_host::COLUMNA;
    for (int i = columna.LBound(); i <= columna.UBound(); ++i) std::cout << ' ' << columna[i];
    std::cout << '\n';

    // What cannot be called says so by number.
    try {
        despacho.invoca("NoExiste", Acceso::Metodo, {});
    } catch (const Error& e) {
        std::cout << textos_host::RECHAZADA << e.numero() << '\n';
    }
    return 0;
} catch (const Error& e) {
    std::cerr << e.numero() << ": " << e.descripcion() << '\n';
    return 1;
}
