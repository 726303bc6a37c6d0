// SPDX-License-Identifier: MIT
// The settings store in memory: what it keeps, what it records, how it fails.
#include "base/error.h"
#include "headless/ajustes_memoria.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace Qlt4_Tabla {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

class PruebaAjustes : public testing::Test {
protected:
    Registro registro;
    AjustesMemoria a{registro};
};

TEST_F(PruebaAjustes, guarda_cada_texto_bajo_sus_tres_nombres) {
    a.escribe("P", "S", "Nombre N 3", "uno");
    a.escribe("P", "S2", "Nombre N 3", "otro");
    EXPECT_THAT(a.lee("P", "S", "Nombre N 3"), Optional(std::string("uno")));
    EXPECT_EQ(a.lee("P", "S", "nombre N 3"), std::nullopt);
    EXPECT_EQ(a.lee("P", "S", "NombreN 3"), std::nullopt);
    EXPECT_THAT(registro, ElementsAre("ajuste P|S|Nombre N 3=uno", "ajuste P|S2|Nombre N 3=otro"));
}

TEST_F(PruebaAjustes, el_texto_vacio_es_un_valor) {
    a.escribe("P", "S", "k", "");
    EXPECT_THAT(a.lee("P", "S", "k"), Optional(std::string()));
}

TEST_F(PruebaAjustes, un_fallo_a_mitad_deja_lo_que_habia) {
    a.escribe("P", "S", "a", "1");
    registro.clear();
    a.falla(75, 1);
    const std::array<Ajuste, 2> dos{{{"a", "2"}, {"b", "3"}}};
    EXPECT_THROW(a.escribe_todos("P", "S", dos), Error);
    EXPECT_THAT(a.lee("P", "S", "a"), Optional(std::string("1")));
    EXPECT_EQ(a.lee("P", "S", "b"), std::nullopt);
    EXPECT_THAT(registro, IsEmpty());
    a.falla(0);
    a.escribe_todos("P", "S", dos);
    EXPECT_THAT(a.lee("P", "S", "b"), Optional(std::string("3")));
}

} // namespace

} // namespace Qlt4_Tabla
