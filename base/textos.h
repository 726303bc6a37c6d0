// SPDX-License-Identifier: MIT
// Texts of this folder that a user sees: the description of each run-time error and the two
// Boolean words. Main names: textos::ErrorConTexto, textos::errores.
// Read on in base/error.h and base/numeros.h.
#pragma once

#include <array>
#include <string_view>

namespace Qlt4_Tabla::textos {

struct ErrorConTexto {
    int numero;
    std::string_view descripcion;
};

// In ascending order of the number.
inline constexpr std::array<ErrorConTexto, 16> errores{{
    {5, "Llamada a procedimiento o argumento no válidos"},
    {6, "Desbordamiento"},
    {7, "Memoria insuficiente"},
    {9, "Subíndice fuera del intervalo"},
    {13, "No coinciden los tipos"},
    {53, "No se ha encontrado el archivo"},
    {57, "Error de E/S de dispositivo"},
    {61, "Disco lleno"},
    {62, "La entrada de datos ha sobrepasado el final del archivo"},
    {70, "Permiso denegado"},
    {75, "Error de acceso a la ruta o al archivo"},
    {76, "No se ha encontrado la ruta de acceso"},
    {429, "El componente ActiveX no puede crear el objeto"},
    {462, "El equipo servidor remoto no existe o no está disponible"},
    {521, "No se puede abrir el Portapapeles"},
    {1004, "Error definido por la aplicación o el objeto"},
}};

// Words of a Boolean written as text. English on purpose: stored layouts are read back by them.
inline constexpr std::string_view verdadero = "True";
inline constexpr std::string_view falso = "False";
// Words also understood when a Boolean is read.
inline constexpr std::string_view verdadero_leido = "Verdadero";
inline constexpr std::string_view falso_leido = "Falso";

} // namespace Qlt4_Tabla::textos
