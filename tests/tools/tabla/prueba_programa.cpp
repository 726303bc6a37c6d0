// SPDX-License-Identifier: MIT
// The program itself, as a shell runs it: real files, exit codes, both outputs.
#include "tests/headless/carpeta_de_prueba.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace Qlt4_Tabla {

namespace {

class PruebaPrograma : public testing::Test {
protected:
    /// Runs a shell command in the folder, with $TABLA for the program; its exit code.
    int corre(const std::string& orden) {
        const std::string todo = "cd '" + c.ruta().string() + "' && TABLA='" TABLA_PROGRAMA "' && " + orden;
        const int estado = std::system(todo.c_str());
        return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
    }

    CarpetaDePrueba c;
};

TEST_F(PruebaPrograma, los_puntos_del_ejemplo_van_y_vuelven) {
    EXPECT_EQ(corre("cp '" TABLA_DIR_PRUEBAS "/../examples/datos/meuse.csv' p.csv && "
                    "$TABLA de-texto -s Puntos -o p.tb0 p.csv && $TABLA comprueba p.tb0 > informe && "
                    "$TABLA a-texto -f csv p.tb0 > q.csv && cmp p.csv q.csv"),
        0);
    EXPECT_EQ(c.contenido("informe"), "p.tb0: bien, 155 filas, 11 columnas\n");
}

TEST_F(PruebaPrograma, en_una_tuberia) {
    EXPECT_EQ(corre("printf 'A\\tB\\n1\\t2\\n' | $TABLA de-texto -o t.tb0 - && $TABLA a-texto t.tb0 | tr "
                    "'\\t' ';' > t.txt"),
        0);
    EXPECT_EQ(c.contenido("t.txt"), "A;B\n1;2\n");
}

TEST_F(PruebaPrograma, los_codigos_de_salida) {
    EXPECT_EQ(corre("$TABLA --help > /dev/null"), 0);
    EXPECT_EQ(corre("echo x > malo.tb0; $TABLA comprueba malo.tb0 > /dev/null"), 1);
    EXPECT_EQ(corre("$TABLA 2> /dev/null"), 2);
    EXPECT_EQ(corre("$TABLA info nada.tb0 2> /dev/null"), 3);
}

#if defined(__linux__) // which has a device that is always full
TEST_F(PruebaPrograma, una_salida_llena_es_un_fallo) {
    EXPECT_EQ(
        corre("printf 'A\\n' | $TABLA de-texto -o t.tb0 && $TABLA a-texto t.tb0 > /dev/full 2> fallos"), 3);
    EXPECT_EQ(c.contenido("fallos"), "tabla: (salida estándar): no se pudo escribir todo\n");
}
#endif

} // namespace

} // namespace Qlt4_Tabla
