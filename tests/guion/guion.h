// SPDX-License-Identifier: MIT
// Guion: scenario scripts (*.guion) as data, and their runner. A script is a text of scenes; each scene
// runs on a fresh table: a stimulus, the exact events it causes, questions about the state.
//
//     formato 1 X Real__ 3                 # before the first scene: what every scene begins with
//     establece
//     escena typing and Enter write the number and go down
//     teclea 12.5
//     pulsa Intro
//     > captura                            # everything that happened since the stimulus, in order;
//     > CambiaCasilla                      # a line too many fails like a line too few
//     > SelChange
//     ? celda 1 1 = 12.500
//
// The words stand in pasos.h. `cuando EVENT STEP` lets the host do a step inside the next such event.
// Free of any test library: failures are texts "file:line: what".
#pragma once

#include "tests/guion/conductor.h"

#include <istream>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

struct Paso {
    int linea = 0; ///< 1-based line of the file
    std::string texto; ///< without comment and blanks around it
};

struct Escena {
    std::string nombre;
    int linea = 0;
    std::vector<Paso> pasos;
};

struct Guion {
    std::string fichero;
    std::vector<Paso> comun;
    std::vector<Escena> escenas;
};

/// Reads a script; `repite N` ... `fin` is written out, with {i}, {i+2}, {i-1} replaced by the turn (from 1
/// on). A script that cannot be read as such, or has no scene: std::runtime_error "file:line: what".
[[nodiscard]] Guion lee_guion(std::istream& entrada, std::string fichero);
[[nodiscard]] Guion lee_guion(const std::string& ruta);

struct GuionesLeidos {
    std::vector<Guion> guiones; ///< by the names of their files
    std::vector<std::string> fallos; ///< why the others could not be read
};

/// All scripts of a folder; one that is not there has none.
[[nodiscard]] GuionesLeidos lee_carpeta(const std::string& carpeta);

/// Runs one scene of the script on a fresh table. Empty: passed. Else the first failure.
[[nodiscard]] std::string ejecuta(const Guion& guion, const Escena& escena, Conductor& conductor);

} // namespace Qlt4_Tabla
