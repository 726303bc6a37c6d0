// SPDX-License-Identifier: MIT
// Every scene of every script in guiones/ as a test of its own, without a window. A script that cannot be
// read and a folder without scripts fail.
#include "tests/guion/conductor_memoria.h"
#include "tests/guion/guion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

namespace {

struct Caso {
    const Guion* guion = nullptr;
    const Escena* escena = nullptr;
};

void PrintTo(const Caso& caso, std::ostream* salida) { *salida << caso.escena->nombre; }

const GuionesLeidos& leidos() {
    static const GuionesLeidos todos = lee_carpeta(TABLA_DIR_PRUEBAS "/escenarios/guiones");
    return todos;
}

std::vector<Caso> casos() {
    std::vector<Caso> todos;
    for (const Guion& guion : leidos().guiones)
        for (const Escena& escena : guion.escenas) todos.push_back({&guion, &escena});
    return todos;
}

// The script's name and the line of the scene.
std::string nombre_de(const testing::TestParamInfo<Caso>& info) {
    return std::filesystem::path(info.param.guion->fichero).stem().string() + "_" +
        std::to_string(info.param.escena->linea);
}

class Escenario : public testing::TestWithParam<Caso> {};

TEST_P(Escenario, pasa) {
    const Caso& caso = GetParam();
    ConductorMemoria conductor;
    const std::string fallo = ejecuta(*caso.guion, *caso.escena, conductor);
    EXPECT_TRUE(fallo.empty()) << fallo << "\n  in the scene: " << caso.escena->nombre;
}

INSTANTIATE_TEST_SUITE_P(guiones, Escenario, testing::ValuesIn(casos()), nombre_de);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Escenario);

TEST(Guiones, hay_y_todos_se_leen) {
    EXPECT_FALSE(leidos().guiones.empty());
    for (const std::string& fallo : leidos().fallos) ADD_FAILURE() << fallo;
}

} // namespace

} // namespace Qlt4_Tabla
