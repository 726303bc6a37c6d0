// SPDX-License-Identifier: MIT
// The headless host: a batch job without window or Qt that makes a table file of a levelling. It links the
// core alone; the platform in memory stands for the window, and what would be a message box is a record that
// the job prints and fails for.
#include "control/tabla0.h"
#include "headless/ficheros_disco.h"
#include "headless/plataforma_memoria.h"
#include "textos.h"

#include <cstdint>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

using namespace Qlt4_Tabla;

namespace {

// The platform in memory, but for the files, which are those of the machine.
Plataforma con_disco(PlataformaMemoria& memoria, FicherosDisco& disco) {
    const Plataforma p = memoria.plataforma();
    return {p.vista, p.marco, p.casilla, p.lista, p.mensajes, p.separador, p.pasos, p.ajustes, disco,
        p.dialogo_fichero, p.portapapeles, p.hoja_calculo, p.dialogo_color, p.dialogo_columnas};
}

void da_formato(Tabla0& t) {
    t.Tablero_Nombres(informe::TITULO, informe::SUBTITULO, "*.tb0");
    t.Cols(5); // column 0 holds the row numbers
    const auto real = [&t](std::int16_t col, const char* nombre) {
        t.FormatoColumnas(
            col, false, false, T_formato::Real__, 3, T_Alineacion::Drcha, T_Accion::Nada__, 12, nombre);
    };
    t.FormatoColumnas(0, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 5, "");
    t.FormatoColumnas(
        1, false, false, T_formato::Alfanm, 0, T_Alineacion::Izqda, T_Accion::Nada__, 12, informe::ESTACION);
    real(2, informe::DISTANCIA);
    real(3, informe::COTA);
    real(4, informe::DESNIVEL);
    t.Tablero_establece_Formato();
}

void lee(Tabla0& t, std::istream& entrada) {
    t.Rows(1);
    for (std::string linea; std::getline(entrada, linea);) {
        if (linea.empty()) continue;
        const int fila = t.Rows();
        t.Rows(fila + 1);
        std::istringstream campos(linea);
        int col = 1;
        for (std::string campo; col <= 3 && std::getline(campos, campo, ',');)
            t.TextMatrix(fila, col++, campo); // numbers take the decimals of their column
    }
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 3) {
        std::cerr << informe::AYUDA << '\n';
        return 2;
    }
    std::ifstream entrada(argv[1]);
    if (!entrada) {
        std::cerr << informe::NO_SE_LEE << argv[1] << informe::CIERRA << '\n';
        return 1;
    }
    PlataformaMemoria memoria;
    FicherosDisco disco;
    Tabla0 t(con_disco(memoria, disco), memoria.eventos);
    da_formato(t);
    lee(t, entrada);
    t.m_Diferencia_Parcial_1Columna(3, 4);
    t.Tablero_Grabar(argv[2]);
    for (const auto& mensaje : memoria.mensajes.vistos) std::cerr << mensaje.texto << '\n';
    if (!memoria.mensajes.vistos.empty()) return 1;
    std::cout << t.Rows() - 1 << informe::HECHAS << argv[2] << '\n';
    return 0;
} catch (const Error& e) {
    std::cerr << e.numero() << ": " << e.descripcion() << '\n';
    return 1;
}
