// SPDX-License-Identifier: MIT
// Random walks without a window.
#include "tests/guion/conductor_memoria.h"
#include "tests/guion/paseo.h"

#include <gtest/gtest.h>

namespace Qlt4_Tabla {

namespace {

class PruebaPaseo : public testing::TestWithParam<std::uint32_t> {};

constexpr int PASOS = 10000;

TEST_P(PruebaPaseo, nada_se_rompe) {
    ConductorMemoria conductor;
    Paseo paseo(conductor, GetParam());
    for (int i = 0; i < PASOS; ++i) {
        const std::string falla = paseo.paso();
        ASSERT_EQ(falla, "") << "step " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(semillas, PruebaPaseo, testing::Range(1U, 21U));

} // namespace

} // namespace Qlt4_Tabla
