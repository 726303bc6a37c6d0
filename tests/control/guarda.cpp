// SPDX-License-Identifier: MIT
// The boundary: what goes on to the caller, what is shown, and the words of the message.
#include "control/guarda.h"

#include "headless/plataforma_memoria.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace Qlt4_Tabla;

class Guarda : public ::testing::Test {
protected:
    // The message shown for what `orden` throws inside the member `Rows`.
    template <class F>
    std::string mensaje(F&& orden) {
        guarda_miembro(p.mensajes, "Rows", {}, std::forward<F>(orden));
        return p.mensajes.vistos.empty() ? "" : p.mensajes.vistos.back().texto;
    }

    PlataformaMemoria p;
};

TEST_F(Guarda, AResultComesThrough) {
    EXPECT_EQ(guarda(p.mensajes, "X", {}, [] { return 7; }), 7);
    EXPECT_EQ(guarda_miembro(p.mensajes, "X", {}, [] { return std::string("abc"); }), "abc");
    EXPECT_TRUE(p.registro.empty());
}

TEST_F(Guarda, AMemberShowsItsNameNumberAndDescription) {
    const std::vector<std::pair<NumError, std::string>> casos{
        {NumError::LlamadaNoValida,
            "Tabla Rows - Error nº 5: Llamada a procedimiento o argumento no válidos"},
        {NumError::Desbordamiento, "Tabla Rows - Error nº 6: Desbordamiento"},
        {NumError::SinMemoria, "Tabla Rows - Error nº 7: Memoria insuficiente"},
        {NumError::Subindice, "Tabla Rows - Error nº 9: Subíndice fuera del intervalo"},
        {NumError::Tipos, "Tabla Rows - Error nº 13: No coinciden los tipos"},
        {NumError::ErrorAplicacion,
            "Tabla Rows - Error nº 1004: Error definido por la aplicación o el objeto"}};
    for (const auto& [numero, texto] : casos) EXPECT_EQ(mensaje([n = numero] { lanza(n); }), texto);
}

TEST_F(Guarda, TheMessageHasTheCriticalIconAndNoTitle) {
    guarda(p.mensajes, "Tabla Menú Copia - Error nº ", {}, [] { lanza(NumError::Subindice); });
    EXPECT_EQ(
        p.registro, (Registro{"mensaje|16||Tabla Menú Copia - Error nº 9: Subíndice fuera del intervalo"}));
}

TEST_F(Guarda, AfterAMessageTheResultIsADefault) {
    EXPECT_EQ(guarda(p.mensajes, "X", {}, []() -> int { lanza(NumError::Tipos); }), 0);
    EXPECT_EQ(guarda(p.mensajes, "X", {}, []() -> std::string { lanza(NumError::Tipos); }), "");
    EXPECT_FALSE(guarda(p.mensajes, "X", {}, []() -> bool { lanza(NumError::Tipos); }));
}

TEST_F(Guarda, AnErrorWithItsOwnDescriptionKeepsIt) {
    EXPECT_EQ(mensaje([] { throw Error(70, "otro"); }), "Tabla Rows - Error nº 70: otro");
}

TEST_F(Guarda, MemoryThatIsNotToBeHadIsErrorSeven) {
    const std::string siete = "Tabla Rows - Error nº 7: Memoria insuficiente";
    EXPECT_EQ(mensaje([] { throw std::bad_alloc(); }), siete);
    EXPECT_EQ(mensaje([] { throw std::length_error("x"); }), siete);
}

TEST_F(Guarda, AnyOtherStandardExceptionIsErrorFive) {
    EXPECT_EQ(mensaje([] { throw std::runtime_error("x"); }),
        "Tabla Rows - Error nº 5: Llamada a procedimiento o argumento no válidos");
}

TEST_F(Guarda, WhatIsNoStandardExceptionGoesOn) {
    EXPECT_THROW(guarda(p.mensajes, "X", ErroresAlLlamador::todos(), [] { throw 3; }), int);
    EXPECT_TRUE(p.registro.empty());
}

TEST_F(Guarda, OnlyTheNumbersLetThroughReachTheCaller) {
    const ErroresAlLlamador pasan{6, 9};
    for (const NumError numero : {NumError::Desbordamiento, NumError::Subindice}) {
        try {
            guarda(p.mensajes, "X", pasan, [&] { lanza(numero); });
            ADD_FAILURE();
        } catch (const Error& e) {
            EXPECT_EQ(e.numero(), static_cast<int>(numero));
        }
    }
    EXPECT_TRUE(p.registro.empty());
    guarda(p.mensajes, "X", pasan, [] { lanza(NumError::Tipos); });
    EXPECT_EQ(p.mensajes.vistos.size(), 1U);
}

TEST_F(Guarda, AllMayBeLetThroughAlsoMemory) {
    try {
        guarda(p.mensajes, "X", ErroresAlLlamador::todos(), [] { throw std::bad_alloc(); });
        ADD_FAILURE();
    } catch (const Error& e) {
        EXPECT_EQ(e.numero(), 7);
    }
}

TEST_F(Guarda, AnInnerBoundaryShowsWhatTheOuterWouldLetThrough) {
    guarda(p.mensajes, "fuera", {9},
        [&] { guarda(p.mensajes, "Tabla X - Error nº ", {6}, [] { lanza(NumError::Subindice); }); });
    EXPECT_EQ(p.registro, (Registro{"mensaje|16||Tabla X - Error nº 9: Subíndice fuera del intervalo"}));
}

TEST(ErroresAlLlamadorTest, NoneByDefault) {
    EXPECT_FALSE(ErroresAlLlamador().contiene(9));
    EXPECT_TRUE(ErroresAlLlamador({9, 13}).contiene(13));
    EXPECT_FALSE(ErroresAlLlamador({9, 13}).contiene(1));
}

} // namespace
