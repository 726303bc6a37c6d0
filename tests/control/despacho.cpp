// SPDX-License-Identifier: MIT
// The dispatcher apart from any table: the member it reaches, what it hands over, what it gives back and
// what it refuses. The table behind it only records.
#include "control/despacho.h"

#include "headless/plataforma_memoria.h"
#include "tests/control/tabla_ruta.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace prueba;

struct Anotada {
    std::string nombre;
    Acceso acceso = Acceso::Metodo;
    std::vector<Variante> valores;
};

// What the recorded table answers and changes.
class DespachoTest : public ::testing::Test {
protected:
    DespachoTest()
        : tabla([this](const Miembro& m, Acceso acceso, std::span<Variante> v) {
              llamadas.push_back({std::string(m.nombre), acceso, {v.begin(), v.end()}});
              if (cambia) cambia(v);
              return respuesta;
          }),
          despacho(tabla) {}

    // The error number of a call, 0 without error.
    int error(std::string_view nombre, Acceso acceso, std::vector<Variante> v = {}) {
        try {
            despacho.invoca(nombre, acceso, v);
        } catch (const Error& e) {
            descripcion = e.descripcion();
            return e.numero();
        }
        return 0;
    }

    std::vector<Anotada> llamadas;
    Variante respuesta;
    std::function<void(std::span<Variante>)> cambia;
    std::string descripcion;
    TablaRuta tabla;
    Despacho despacho;
};

Variante muestra(Tipo tipo) {
    static const auto imagen = std::make_shared<ImagenMemoria>("punto");
    switch (tipo) {
    case Tipo::I2: return std::int16_t{7};
    case Tipo::I4: return std::int32_t{70000};
    case Tipo::R8:
    case Tipo::Var: return 2.5;
    case Tipo::Bool: return true;
    case Tipo::Str: return "texto";
    case Tipo::Obj: return PunteroImagen(imagen);
    case Tipo::Colores: return std::int32_t{7};
    case Tipo::Formato: return std::int32_t{6};
    case Tipo::Alineacion: return std::int32_t{2};
    case Tipo::Accion: return std::int32_t{3};
    case Tipo::MatrizStr: return Matriz<std::string>(1, {"a", "b"});
    case Tipo::MatrizR8: return Matriz<double>(0, {1.5, 2.5});
    case Tipo::Nada: break;
    }
    return {};
}

std::vector<Variante> muestras(const Miembro& m, Acceso acceso) {
    std::vector<Variante> valores;
    for (const Argumento& a : m.argumentos) valores.push_back(muestra(a.tipo));
    if (acceso == Acceso::Pone) valores.push_back(muestra(m.valor.tipo));
    return valores;
}

// --- Every accessor of the table ---

TEST_F(DespachoTest, EveryAccessorReachesItsMemberByNameAndByIdentifier) {
    for (const Miembro& m : MIEMBROS)
        for (const Acceso acceso : m.accesos()) {
            respuesta = acceso == Acceso::Pone ? Variante() : muestra(m.valor.tipo);
            std::vector<Variante> por_nombre = muestras(m, acceso);
            std::vector<Variante> por_id = por_nombre;
            EXPECT_EQ(despacho.invoca(m.nombre, acceso, por_nombre), respuesta) << m.nombre;
            EXPECT_EQ(despacho.invoca(m.dispid, acceso, por_id), respuesta) << m.nombre;
            ASSERT_EQ(llamadas.size(), 2U) << m.nombre;
            for (const Anotada& a : llamadas) {
                EXPECT_EQ(a.nombre, m.nombre);
                EXPECT_EQ(a.acceso, acceso) << m.nombre;
                EXPECT_EQ(a.valores, muestras(m, acceso)) << m.nombre;
            }
            EXPECT_EQ(por_nombre, muestras(m, acceso)) << m.nombre;
            llamadas.clear();
        }
}

TEST_F(DespachoTest, NoMemberTakesOneArgumentTooManyOrAnAccessItHasNot) {
    for (const Miembro& m : MIEMBROS)
        for (const Acceso acceso : {Acceso::Metodo, Acceso::Lee, Acceso::Pone}) {
            std::vector<Variante> valores = muestras(m, acceso);
            const bool suyo = m.admite(acceso);
            valores.emplace_back(std::int16_t{1});
            EXPECT_EQ(error(m.nombre, acceso, valores), suyo ? 450 : 438) << m.nombre;
        }
    EXPECT_TRUE(llamadas.empty());
}

TEST_F(DespachoTest, NoMemberDoesWithoutAnArgumentThatIsNotOptional) {
    for (const Miembro& m : MIEMBROS)
        for (const Acceso acceso : m.accesos()) {
            std::vector<Variante> valores = muestras(m, acceso);
            for (std::size_t i = 0; i < valores.size(); ++i) {
                const bool opcional = i < m.argumentos.size() && m.argumentos[i].opt;
                std::vector<Variante> cortos(
                    valores.begin(), valores.begin() + static_cast<std::ptrdiff_t>(i));
                std::vector<Variante> omitido = valores;
                omitido[i] = Variante::omitido();
                EXPECT_EQ(error(m.nombre, acceso, cortos), opcional ? 0 : 450) << m.nombre;
                EXPECT_EQ(error(m.nombre, acceso, omitido), opcional ? 0 : 450) << m.nombre;
            }
        }
}

// --- Names ---

TEST_F(DespachoTest, AsciiLettersOfANameMayStandInEitherCase) {
    EXPECT_EQ(error("CLEAR", Acceso::Metodo), 0);
    EXPECT_EQ(error("tablero_establece_formato", Acceso::Metodo), 0);
    ASSERT_EQ(llamadas.size(), 2U);
    EXPECT_EQ(llamadas[0].nombre, "Clear");
    EXPECT_EQ(llamadas[1].nombre, "Tablero_establece_Formato");
}

TEST_F(DespachoTest, UnknownMembersAreRefusedInWords) {
    EXPECT_EQ(error("Row", Acceso::Lee), 438);
    EXPECT_EQ(descripcion, "El objeto no admite esta propiedad o método");
    EXPECT_THROW(despacho.invoca(0x60030021, Acceso::Metodo, {}), Error);
    EXPECT_EQ(error("Rows", Acceso::Lee, {1}), 450);
    EXPECT_EQ(descripcion, "Número de argumentos incorrecto o asignación de propiedad no válida");
}

// --- Values ---

TEST_F(DespachoTest, ArgumentsAreConvertedToTheMembersTypes) {
    EXPECT_EQ(error("A_Pon_Alto", Acceso::Metodo, {"2.5", true}), 0);
    EXPECT_EQ(error("TextMatrix", Acceso::Pone, {1.0, "2", 12.5}), 0);
    EXPECT_EQ(error("Redraw", Acceso::Pone, {std::int16_t{-1}}), 0);
    EXPECT_EQ(error("Redraw", Acceso::Pone, {"Falso"}), 0);
    EXPECT_EQ(error("ColMatrix", Acceso::Pone, {1, 1, "9"}), 0);
    EXPECT_EQ(error("A_ExtensionFche", Acceso::Pone, {Variante()}), 0);
    ASSERT_EQ(llamadas.size(), 6U);
    EXPECT_EQ(llamadas[0].valores, (std::vector<Variante>{std::int16_t{2}, std::int16_t{-1}}));
    EXPECT_EQ(llamadas[1].valores, (std::vector<Variante>{1, 2, "12.5"}));
    EXPECT_EQ(llamadas[2].valores, (std::vector<Variante>{true}));
    EXPECT_EQ(llamadas[3].valores, (std::vector<Variante>{false}));
    EXPECT_EQ(llamadas[4].valores, (std::vector<Variante>{1, 1, 9}));
    EXPECT_EQ(llamadas[5].valores, (std::vector<Variante>{""}));
}

TEST_F(DespachoTest, AnyValueIsHandedOnAsItIs) {
    for (const Variante& v : {Variante("abc"), Variante(2.5), Variante(std::int16_t{3}), Variante()}) {
        llamadas.clear();
        EXPECT_EQ(error("Width", Acceso::Pone, {v}), 0);
        EXPECT_EQ(llamadas.at(0).valores.at(0), v);
    }
}

TEST_F(DespachoTest, WhatDoesNotConvertIsRefusedBeforeTheCall) {
    EXPECT_EQ(error("Rows", Acceso::Pone, {"doce"}), 13);
    EXPECT_EQ(error("A_Pon_Alto", Acceso::Metodo, {1, 32768}), 6);
    EXPECT_EQ(error("Rows", Acceso::Pone, {3e9}), 6);
    EXPECT_EQ(error("Lista", Acceso::Metodo, {1, "a"}), 13);
    EXPECT_EQ(error("Lista", Acceso::Metodo, {1, Matriz<double>(1, {2.0})}), 13);
    EXPECT_EQ(error("Lista", Acceso::Metodo, {1, Variante()}), 13);
    EXPECT_EQ(error("A_Pon_Imagen", Acceso::Metodo, {1, 1, "a"}), 13);
    EXPECT_EQ(error("m_Obten_Matriz_Numerica_de_columna", Acceso::Metodo, {1, 5}), 13);
    EXPECT_TRUE(llamadas.empty());
}

TEST_F(DespachoTest, NoPictureIsAPictureToo) {
    EXPECT_EQ(error("A_Pon_Imagen", Acceso::Metodo, {1, 1, Variante()}), 0);
    EXPECT_EQ(llamadas.at(0).valores.at(2), Variante(PunteroImagen()));
}

TEST_F(DespachoTest, OptionalArgumentsDefaultToZero) {
    EXPECT_EQ(error("m_Diferencia_Parcial_1Columna", Acceso::Metodo, {1, 2}), 0);
    EXPECT_EQ(error("m_Diferencia_Parcial_1Columna", Acceso::Metodo, {1, 2, Variante::omitido()}), 0);
    EXPECT_EQ(error("m_Diferencia_Parcial_1Columna", Acceso::Metodo, {1, 2, true}), 0);
    EXPECT_EQ(llamadas.at(0).valores, (std::vector<Variante>{1, 2, false}));
    EXPECT_EQ(llamadas.at(1).valores, (std::vector<Variante>{1, 2, false}));
    EXPECT_EQ(llamadas.at(2).valores, (std::vector<Variante>{1, 2, true}));
    EXPECT_EQ(error("Formatcol", Acceso::Metodo, {1, "-", "-", 2, 3, 0, 10, "X"}), 0);
    EXPECT_EQ(llamadas.at(3).valores.at(8), Variante(std::int16_t{0}));
}

// --- What comes back ---

TEST_F(DespachoTest, ChangedArgumentsComeBackInTheMembersType) {
    cambia = [](std::span<Variante> v) {
        v[4] = 255;
        v[6] = "rojo";
    };
    std::vector<Variante> v{"0", true, 0, false, std::int16_t{3}, "4", ""};
    EXPECT_EQ(despacho.invoca("Show_Eleige_Color", Acceso::Metodo, v), Variante());
    EXPECT_EQ(v, (std::vector<Variante>{"0", true, 0, false, std::int32_t{255}, "4", "rojo"}));
}

TEST_F(DespachoTest, ArraysComeBackRedimensioned) {
    cambia = [](std::span<Variante> v) { v[1] = Matriz<double>(1, {1.5, 2.5}); };
    for (const Variante& antes :
        {Variante(Matriz<double>()), Variante(Matriz<double>(5, {9.0})), Variante()}) {
        std::vector<Variante> v{2, antes};
        despacho.invoca("m_Obten_Matriz_Numerica_de_columna", Acceso::Metodo, v);
        EXPECT_EQ(v[1], Variante(Matriz<double>(1, {1.5, 2.5})));
    }
    cambia = [](std::span<Variante> v) { v[1] = Matriz<std::string>(1, {"a"}); };
    std::vector<Variante> v{2, Variante()};
    despacho.invoca("m_Obten_Matriz_Alfanume_de_columna", Acceso::Metodo, v);
    EXPECT_EQ(v[1], Variante(Matriz<std::string>(1, {"a"})));
}

TEST_F(DespachoTest, AnErrorOfTheMemberReachesTheCallerAndChangesNoArgument) {
    cambia = [](std::span<Variante> v) {
        v[4] = 255;
        lanza(NumError::Subindice);
    };
    std::vector<Variante> v{"0", true, 0, false, 3, 4, ""};
    EXPECT_THROW(despacho.invoca("Show_Eleige_Color", Acceso::Metodo, v), Error);
    EXPECT_EQ(v, (std::vector<Variante>{"0", true, 0, false, 3, 4, ""}));
}

TEST_F(DespachoTest, ArgumentsInBracesNeedNoVariable) {
    despacho.invoca("TextMatrix", Acceso::Pone, {1, 2, "x"});
    despacho.invoca(0x60030084, Acceso::Metodo, {});
    ASSERT_EQ(llamadas.size(), 2U);
    EXPECT_EQ(llamadas[1].nombre, "Clear");
}

} // namespace
