// SPDX-License-Identifier: MIT
// The numbered run-time error and its table of descriptions.
#include "base/error.h"
#include "base/textos.h"
#include "base/utf8.h"
#include "tests/base/error_de.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

using namespace Qlt4_Tabla;

namespace {

struct CasoError {
    NumError numero;
    int entero;
    const char* descripcion;
};

constexpr CasoError casos[] = {
    {NumError::LlamadaNoValida, 5, "Llamada a procedimiento o argumento no válidos"},
    {NumError::Desbordamiento, 6, "Desbordamiento"},
    {NumError::SinMemoria, 7, "Memoria insuficiente"},
    {NumError::Subindice, 9, "Subíndice fuera del intervalo"},
    {NumError::Tipos, 13, "No coinciden los tipos"},
    {NumError::SinFichero, 53, "No se ha encontrado el archivo"},
    {NumError::ErrorES, 57, "Error de E/S de dispositivo"},
    {NumError::DiscoLleno, 61, "Disco lleno"},
    {NumError::FinDeFichero, 62, "La entrada de datos ha sobrepasado el final del archivo"},
    {NumError::PermisoDenegado, 70, "Permiso denegado"},
    {NumError::AccesoRuta, 75, "Error de acceso a la ruta o al archivo"},
    {NumError::SinRuta, 76, "No se ha encontrado la ruta de acceso"},
    {NumError::SinComponente, 429, "El componente ActiveX no puede crear el objeto"},
    {NumError::ServidorPerdido, 462, "El equipo servidor remoto no existe o no está disponible"},
    {NumError::PortapapelesCerrado, 521, "No se puede abrir el Portapapeles"},
    {NumError::ErrorAplicacion, 1004, "Error definido por la aplicación o el objeto"},
};

} // namespace

TEST(Error, cada_numero_tiene_su_descripcion) {
    for (const CasoError& caso : casos) {
        const Error error(caso.numero);
        EXPECT_EQ(error.numero(), caso.entero);
        EXPECT_EQ(error.descripcion(), caso.descripcion);
        EXPECT_STREQ(error.what(), caso.descripcion);
        EXPECT_EQ(descripcion_error(caso.entero), caso.descripcion);
    }
}

TEST(Error, la_tabla_no_tiene_mas_entradas_y_esta_en_orden) {
    EXPECT_EQ(textos::errores.size(), std::size(casos));
    int anterior = 0;
    for (const textos::ErrorConTexto& error : textos::errores) {
        EXPECT_LT(anterior, error.numero);
        EXPECT_TRUE(utf8::es_valido(error.descripcion));
        anterior = error.numero;
    }
}

TEST(Error, un_numero_desconocido_no_tiene_descripcion) {
    for (const int numero : {-1, 0, 1, 8, 10, 52, 1005}) EXPECT_EQ(descripcion_error(numero), "");
}

TEST(Error, admite_una_descripcion_propia) {
    const Error error(1004, "No se puede abrir el libro");
    EXPECT_EQ(error.numero(), 1004);
    EXPECT_EQ(error.descripcion(), "No se puede abrir el libro");
}

TEST(Error, lanza_levanta_el_error_de_su_numero) {
    EXPECT_EQ(error_de([] { lanza(NumError::Subindice); }), 9);
    EXPECT_THROW(lanza(NumError::DiscoLleno), std::exception);
}

TEST(Error, una_copia_conserva_la_descripcion_y_no_puede_fallar) {
    static_assert(std::is_nothrow_copy_constructible_v<Error>);
    Error copia(NumError::Tipos);
    {
        const Error original(53, "propia");
        copia = original;
    }
    EXPECT_EQ(copia.numero(), 53);
    EXPECT_EQ(copia.descripcion(), "propia");
}
