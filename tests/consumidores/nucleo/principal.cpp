// SPDX-License-Identifier: MIT
// A host on the installed core: writes a table to the file named, catches an error of the library, and with a
// second argument asks for the spreadsheet. Ends with 0 when all was as it should be.
#include "control/despacho.h"
#include "control/tabla0.h"
#include "headless/ficheros_disco.h"
#include "headless/plataforma_memoria.h"
#include "platform/hoja_del_equipo.h"

#include <Qlt4_Tabla/version.h>

#include <iostream>
#include <string>

using namespace Qlt4_Tabla;

namespace {

int faltas = 0;

void comprueba(bool bien, const char* que) {
    if (bien) return;
    std::cerr << "not so: " << que << '\n';
    ++faltas;
}

int error_de(const auto& llamada) {
    try {
        llamada();
    } catch (const Error& e) {
        return e.numero();
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    PlataformaMemoria memoria;
    FicherosDisco disco;
    Plataforma seams = memoria.plataforma();
    const Plataforma con_disco{seams.vista, seams.marco, seams.casilla, seams.lista, seams.mensajes,
        seams.separador, seams.pasos, seams.ajustes, disco, seams.dialogo_fichero, seams.portapapeles,
        seams.hoja_calculo, seams.dialogo_color, seams.dialogo_columnas};
    Tabla0 tabla(con_disco, memoria.eventos);
    tabla.FormatoColumnas(
        1, false, false, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 10, "X");
    tabla.Tablero_establece_Formato();
    tabla.TextMatrix(1, 1, "12.5");
    comprueba(tabla.tablero().TextMatrix(1, 1) == "12.500", "a real cell holds its decimals");
    comprueba(Despacho(tabla).invoca("TextMatrix", Acceso::Lee, {1, 1}).a_texto() == "12,500",
        "a call by name gives what the member gives");
    comprueba(error_de([&] { tabla.Formatcol(26, "", "", 0, 0, 0, 10, "Z"); }) == 9,
        "an error of the library is caught by its type");
    tabla.Tablero_Grabar(argv[1]);
    comprueba(memoria.mensajes.vistos.empty(), "nothing was told to a user");
    comprueba(std::string(QLT4_TABLA_VERSION).find('.') != std::string::npos, "there is a version");
    if (argc > 2) {
        const int numero = error_de([] {
            const SeparadorPunto punto;
            hoja_del_equipo(punto)->crea_aplicacion();
        });
        comprueba(numero != 0, "a helper that ends at once is an error");
    }
    return faltas == 0 ? 0 : 1;
}
