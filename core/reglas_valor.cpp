// SPDX-License-Identifier: MIT
// The rules between cell texts, numbers and keys: core/reglas_valor.h.
#include "core/reglas_valor.h"

#include "base/cifras.h"
#include "base/decimal.h"
#include "base/numeros.h"
#include "base/teclas.h"
#include "base/utf8.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Qlt4_Tabla {

namespace {

constexpr int maximos_decimales = 15;

std::string cambia_primero(std::string_view texto, char de, char a) {
    std::string resultado(texto);
    const std::size_t lugar = resultado.find(de);
    if (lugar != std::string::npos) resultado[lugar] = a;
    return resultado;
}

// Blanks in front until the characters before the point, `enteros`, are `ancho`.
void rellena(std::string& texto, int ancho, std::size_t enteros) {
    if (ancho <= 0) return;
    const auto pedido = static_cast<std::size_t>(ancho);
    if (pedido > enteros) texto.insert(0, pedido - enteros, ' ');
}

// Writes the number with 1 decimal or more.
void escribe(const Decimal& numero, int ancho, int decimales, std::string& destino) {
    decimales = std::min(decimales, maximos_decimales);
    char texto[capacidad_fijo];
    const std::size_t bytes = escribe_fijo(numero, decimales, texto);
    destino.assign(texto, bytes);
    rellena(destino, ancho, bytes - static_cast<std::size_t>(decimales) - 1);
}

// The text as it came; all of it counts as its integer part.
void escribe_igual(std::string_view texto, int ancho, std::string& destino) {
    destino.assign(texto);
    if (ancho > 0) rellena(destino, ancho, utf8::longitud(texto));
}

// Codes that are no character of the code page, and Backspace: no filter touches them.
bool pasa_siempre(int tecla) noexcept { return tecla <= 0 || tecla > 255 || tecla == teclas::RETROCESO; }

ResultadoFiltro tecla_mas(std::string_view signos, std::string_view texto) {
    if (signos == "+" || texto.empty() || Valor_Numerico(texto) > 0) return {};
    return {0, true, std::string(utf8::recorta(texto, 1))};
}

ResultadoFiltro tecla_menos(std::string_view signos, std::string_view texto) {
    if (signos == "+") return {};
    if (texto.empty()) return {'-', false, {}};
    if (texto.find('-') != std::string_view::npos) return {};
    return {0, true, '-' + std::string(texto)};
}

} // namespace

double Valor_Numerico(std::string_view texto) {
    const std::optional<Decimal> numero = decimal_de_texto(texto);
    if (numero && numero->decimales <= maximos_decimales) return real_de_decimal(*numero);
    if (texto.find(',') == std::string_view::npos) return Val(texto);
    return Val(Coma_a_Punto(texto));
}

std::string Formato_Numero(std::string_view texto, int ancho, int decimales) {
    std::string resultado;
    Formato_Numero(texto, ancho, decimales, resultado);
    return resultado;
}

void Formato_Numero(std::string_view texto, int ancho, int decimales, std::string& destino) {
    if (decimales <= 0) {
        escribe_igual(texto, ancho, destino);
        return;
    }
    // A plain text holds its 15 digits already: no need of a double in between.
    const std::optional<Decimal> numero = decimal_de_texto(texto);
    escribe(numero ? *numero : decimal_de_real(Valor_Numerico(texto)), ancho, decimales, destino);
}

std::string Formato_Numero(double x, int ancho, int decimales) {
    std::string resultado;
    Formato_Numero(x, ancho, decimales, resultado);
    return resultado;
}

void Formato_Numero(double x, int ancho, int decimales, std::string& destino) {
    // From here on the 15 digits of a number may round beyond the range of a double, and the text
    // reads as 0.
    constexpr double casi_infinito = 1.7976931348623e308;
    if (decimales <= 0 || std::fabs(x) > casi_infinito)
        Formato_Numero(numero_a_texto(x), ancho, decimales, destino);
    else
        escribe(decimal_de_real(x), ancho, decimales, destino);
}

bool tiene_forma_de_numero(std::string_view texto, int decimales) noexcept {
    constexpr std::size_t maximas_cifras = 15;
    const bool menos = !texto.empty() && texto.front() == '-';
    if (menos) texto.remove_prefix(1);
    const std::size_t detras = decimales > 0 ? static_cast<std::size_t>(decimales) + 1 : 0; // the point too
    if (texto.size() <= detras || texto.size() > maximas_cifras + (detras != 0 ? 1 : 0)) return false;
    const std::size_t enteras = texto.size() - detras;
    if (texto.front() == '0' && (enteras > 1 || menos)) return false; // "-0.5" takes the longer way
    if (detras != 0 && texto[enteras] != '.') return false;
    const auto son_cifras = [](std::string_view t) { return std::all_of(t.begin(), t.end(), es_cifra); };
    return son_cifras(texto.substr(0, enteras)) && (detras == 0 || son_cifras(texto.substr(enteras + 1)));
}

std::string Punto_a_Coma(std::string_view texto) { return cambia_primero(texto, '.', ','); }

std::string Coma_a_Punto(std::string_view texto) { return cambia_primero(texto, ',', '.'); }

ResultadoFiltro Filtra_Tecla(
    int KeyAscii, std::string_view signos, bool decimales, std::string_view texto_casilla) {
    if (pasa_siempre(KeyAscii) || es_cifra(KeyAscii)) return {KeyAscii, false, {}};
    switch (KeyAscii) {
    case '.': {
        const bool pasa = decimales && texto_casilla.find('.') == std::string_view::npos;
        return {pasa ? '.' : 0, false, {}};
    }
    case '+': return tecla_mas(signos, texto_casilla);
    case '-': return tecla_menos(signos, texto_casilla);
    default: return {};
    }
}

int Filtra_Tecla_Tablero(int KeyAscii, bool decimales) noexcept {
    const bool pasa =
        pasa_siempre(KeyAscii) || es_cifra(KeyAscii) || KeyAscii == '-' || (KeyAscii == '.' && decimales);
    return pasa ? KeyAscii : 0;
}

} // namespace Qlt4_Tabla
