// SPDX-License-Identifier: MIT
// The check of a record: what is right, each thing that can be wrong with its place, and every length at
// which a file can end too early.
#include "files/lector_tb0.h"
#include "tests/files/bytes_a_mano.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace Qlt4_Tabla {

namespace {

// Two rows by two columns; the numbers in front are the bytes at which the lines begin.
const std::string SUBTITULO = "02 00 'Ej' "; // 0
const std::string CUENTAS = "01 00 00 00  01 00 00 00 "; // 4, 8
const std::string FILAS = "01 00  02 00 00 00  00 00 00 00 "; // 12, 14, 18
const std::string FILA = "01 00  02 00 00 00  00 00 00 00 "; // 22, 24, 28
const std::string CELDAS = "00 00  01 00 'X' "; // 32, 34
const std::string CELDAS1 = "01 00 '1'  02 00 '7' E9 "; // at 37 the row, at 47 the cells
const std::string FORMATOS = "00*416 "; // 54
const std::string BUENO = SUBTITULO + CUENTAS + FILAS + FILA + CELDAS + FILA + CELDAS1 + FORMATOS;

TEST(LectorTb0, un_registro_bueno) {
    const std::string todo = bytes(BUENO + "'behind'");
    const auto r = std::get<RegistroTb0>(examina_tb0(todo));
    EXPECT_EQ(r.subtitulo, "Ej");
    EXPECT_EQ(r.filas, 2);
    EXPECT_EQ(r.columnas, 2);
    EXPECT_EQ(r.bytes, 470U);
    BytesAbiertos fichero(todo);
    LectorTb0 filas(fichero);
    EXPECT_EQ(filas.cabeza().filas, r.filas);
    EXPECT_EQ(filas.posicion(), 22U);
    EXPECT_EQ(filas.siguiente()[1], "X");
    EXPECT_EQ(filas.posicion(), 37U);
    const auto segunda = filas.siguiente();
    EXPECT_EQ(segunda[0], "1");
    EXPECT_EQ(segunda[1], "7é");
}

TEST(LectorTb0, los_formatos_se_leen_todos) {
    const std::string todo =
        bytes(SUBTITULO + "00*4 00*4 01 00 01 00 00 00 00*4 01 00 01 00 00 00 00*4 00 00 " +
            "01 00 F1 01 00 FF FF 0A 00 07 00 FE FF 02 00 03 00 00*400");
    const auto r = std::get<RegistroTb0>(examina_tb0(todo));
    const T_FormatoColumna primero{.Nombre = "ñ",
        .Invisible = true, // any number but 0
        .Bloqueada = true,
        .Longitud = 10,
        .Formato = 7,
        .Decimales = -2,
        .Alineacion = 2,
        .Accion = 3};
    EXPECT_EQ(r.formatos[0], primero);
    EXPECT_EQ(r.formatos[25], T_FormatoColumna{});
}

struct Malo {
    const char* nombre;
    std::string escrito;
    ParteTb0 parte;
    DefectoTb0 defecto;
    std::size_t posicion;
    int numero;
};

void PrintTo(const Malo& malo, std::ostream* salida) { *salida << malo.nombre; }

class RegistroMalo : public testing::TestWithParam<Malo> {};

TEST_P(RegistroMalo, dice_que_y_donde) {
    const auto examen = examina_tb0(bytes(GetParam().escrito));
    const auto* const fallo = std::get_if<FalloTb0>(&examen);
    ASSERT_NE(fallo, nullptr);
    EXPECT_EQ(fallo->parte, GetParam().parte);
    EXPECT_EQ(fallo->defecto, GetParam().defecto);
    EXPECT_EQ(fallo->posicion, GetParam().posicion);
    EXPECT_EQ(static_cast<int>(fallo->numero()), GetParam().numero);
}

using P = ParteTb0;
using D = DefectoTb0;

INSTANTIATE_TEST_SUITE_P(cabeza, RegistroMalo,
    testing::Values(Malo{"empty", "", P::Subtitulo, D::Falta, 0, 62},
        Malo{"half a length", "02", P::Subtitulo, D::Falta, 0, 62},
        Malo{"subtitle cut", "03 00 'Ej'", P::Subtitulo, D::Falta, 0, 62},
        Malo{"no columns", SUBTITULO, P::NCols, D::Falta, 4, 62},
        Malo{"columns below 0", SUBTITULO + "FF FF FF FF 00*9", P::NCols, D::Negativo, 4, 9},
        Malo{"27 columns", SUBTITULO + "1A 00 00 00 00*9", P::NCols, D::Demasiado, 4, 9},
        Malo{"no rows", SUBTITULO + "01 00 00 00 01", P::NFilas, D::Falta, 8, 62},
        Malo{"rows below 0", SUBTITULO + "01 00 00 00 00 00 00 80", P::NFilas, D::Negativo, 8, 9},
        Malo{"rows beyond 32 bits", SUBTITULO + "01 00 00 00 FF FF FF 7F", P::NFilas, D::Demasiado, 8, 9}));

INSTANTIATE_TEST_SUITE_P(matriz, RegistroMalo,
    testing::Values(
        Malo{"no dimensions", SUBTITULO + CUENTAS + "00 00 00*8", P::DimensionesFilas, D::Distinto, 12, 9},
        Malo{"two dimensions", SUBTITULO + CUENTAS + "02 00 00*8", P::DimensionesFilas, D::Distinto, 12, 9},
        Malo{"one row too many", SUBTITULO + CUENTAS + "01 00 03 00 00 00 00*9", P::ElementosFilas,
            D::Distinto, 14, 9},
        Malo{"rows from 1", SUBTITULO + CUENTAS + "01 00 02 00 00 00 01 00 00 00", P::LimiteFilas,
            D::Distinto, 18, 9},
        Malo{"array cut", SUBTITULO + CUENTAS + "01 00 02 00 00 00 01 00", P::LimiteFilas, D::Falta, 18, 62},
        Malo{"more rows than bytes",
            SUBTITULO + "01 00 00 00  FE FF FF 7F  01 00  FF FF FF 7F  00*4 " + FILA + CELDAS + FORMATOS,
            P::NFilas, D::SinBytes, 8, 62},
        Malo{"one row more than bytes", SUBTITULO + "00*4 01 00 00 00 01 00 02 00 00 00 00*4  00*439",
            P::NFilas, D::SinBytes, 8, 62}));

INSTANTIATE_TEST_SUITE_P(filas, RegistroMalo,
    testing::Values(
        Malo{"row without dimension",
            SUBTITULO + CUENTAS + FILAS + "00 00 02 00 00 00 00*4 " + CELDAS + FILA + CELDAS1 + FORMATOS,
            P::DimensionesFila, D::Distinto, 22, 9},
        Malo{"row of 3",
            SUBTITULO + CUENTAS + FILAS + "01 00 03 00 00 00 00*4 " + CELDAS + FILA + CELDAS1 + FORMATOS,
            P::ElementosFila, D::Distinto, 24, 9},
        Malo{"row from 1",
            SUBTITULO + CUENTAS + FILAS + FILA + CELDAS + "01 00 02 00 00 00 01 00 00 00 " + CELDAS1 +
                FORMATOS,
            P::LimiteFila, D::Distinto, 43, 9},
        Malo{"cell beyond the end",
            SUBTITULO + CUENTAS + FILAS + FILA + CELDAS + FILA + "01 00 '1'  FF FF '7' E9 " + FORMATOS,
            P::Celda, D::Falta, 50, 62},
        Malo{"format cut", SUBTITULO + CUENTAS + FILAS + FILA + CELDAS + FILA + CELDAS1 + "00*415",
            P::Formato, D::Falta, 456, 62},
        Malo{"name beyond the end",
            SUBTITULO + CUENTAS + FILAS + FILA + CELDAS + FILA + CELDAS1 + "00*400 FF 00 00*14", P::Formato,
            D::Falta, 454, 62},
        Malo{"numbers cut by one",
            SUBTITULO + CUENTAS + FILAS + FILA + CELDAS + FILA + CELDAS1 + "00*400 01 00 00*14", P::Formato,
            D::Falta, 457, 62}));

TEST(LectorTb0, dice_la_fila_y_la_columna) {
    const std::string malo =
        bytes(SUBTITULO + CUENTAS + FILAS + FILA + CELDAS + FILA + "01 00 '1'  FF FF '7' E9 " + FORMATOS);
    const auto fallo = std::get<FalloTb0>(examina_tb0(malo));
    EXPECT_EQ(fallo.fila, 1);
    EXPECT_EQ(fallo.col, 1);
    EXPECT_EQ(fallo.hallado, 65537);
}

TEST(LectorTb0, dice_lo_hallado_y_lo_esperado) {
    const auto fallo = std::get<FalloTb0>(examina_tb0(bytes(SUBTITULO + CUENTAS + "01 00 03 00 00 00 00*9")));
    EXPECT_EQ(fallo.hallado, 3);
    EXPECT_EQ(fallo.esperado, 2);
}

/// Reads a record through a window of so many bytes: the texts of its rows, or what is wrong and where.
std::string leido(std::string_view registro, std::size_t pieza) {
    BytesAbiertos fichero(registro);
    LectorTb0 lector(fichero, pieza);
    std::string todo;
    try {
        const RegistroTb0& r = lector.cabeza();
        todo = r.subtitulo;
        for (int fila = 0; fila < r.filas; ++fila)
            for (const std::string_view t : lector.siguiente()) (todo += '|') += t;
        todo += lector.final().formatos[25].Nombre;
    } catch (const FalloTb0& fallo) {
        todo += "! part " + std::to_string(static_cast<int>(fallo.parte)) + " byte " +
            std::to_string(fallo.posicion);
    }
    return todo;
}

TEST(LectorTb0, por_ventanas_de_cualquier_tamano_se_lee_lo_mismo) {
    const std::string todo = bytes(BUENO);
    EXPECT_EQ(leido(todo, 1), "Ej||X|1|7é");
    for (std::size_t pieza = 1; pieza < todo.size() + 2; ++pieza)
        EXPECT_EQ(leido(todo, pieza), "Ej||X|1|7é") << pieza;
}

TEST(LectorTb0, por_una_ventana_de_un_byte_se_hallan_los_mismos_fallos) {
    const std::string todo = bytes(BUENO);
    for (std::size_t n = 0; n < todo.size(); ++n) {
        const auto cortado = std::string_view(todo).substr(0, n);
        EXPECT_EQ(leido(cortado, 1), leido(cortado, todo.size())) << n;
        std::string otro = todo;
        otro[n] = static_cast<char>(otro[n] ^ 0x41);
        EXPECT_EQ(leido(otro, 1), leido(otro, otro.size())) << n;
    }
}

/// A file that is shorter than it said.
class FicheroQueMengua final : public FicheroAbierto {
public:
    explicit FicheroQueMengua(std::string_view bytes) : bytes_(bytes) {}

    [[nodiscard]] std::uint64_t tamano() const override { return bytes_.size(); }

    [[nodiscard]] std::size_t lee(std::uint64_t lugar, char* destino, std::size_t n) override {
        return BytesAbiertos(bytes_.substr(0, 40)).lee(lugar, destino, n);
    }

private:
    std::string_view bytes_;
};

TEST(LectorTb0, un_fichero_que_mengua_mientras_se_lee_acaba_antes) {
    const std::string todo = bytes(BUENO);
    FicheroQueMengua fichero(todo);
    LectorTb0 lector(fichero, 8);
    lector.cabeza();
    EXPECT_EQ(lector.siguiente()[1], "X");
    EXPECT_THROW(static_cast<void>(lector.siguiente()), FalloTb0);
}

TEST(LectorTb0, cortado_en_cualquier_byte_falta_algo) {
    const std::string todo = bytes(BUENO);
    for (std::size_t n = 0; n < todo.size(); ++n) {
        const auto examen = examina_tb0(std::string_view(todo).substr(0, n));
        const auto* const fallo = std::get_if<FalloTb0>(&examen);
        ASSERT_NE(fallo, nullptr) << n;
        EXPECT_EQ(fallo->numero(), NumError::FinDeFichero) << n;
        EXPECT_LE(fallo->posicion, n);
    }
}

} // namespace

} // namespace Qlt4_Tabla
