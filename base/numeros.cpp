// SPDX-License-Identifier: MIT
// Numbers and their texts: base/numeros.h. Reading walks the text once, copies what belongs to the
// number without blanks, and leaves the value to from_chars; writing goes over base/decimal.h.
#include "base/numeros.h"

#include "base/aritmetica.h"
#include "base/cifras.h"
#include "base/decimal.h"
#include "base/error.h"
#include "base/textos.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <system_error>

namespace Qlt4_Tabla {

namespace {

constexpr std::size_t texto_corto = 100;
constexpr double INFINITO = std::numeric_limits<double>::infinity();

constexpr bool es_blanco(char c) noexcept { return c == ' ' || c == '\t' || c == '\n'; }

constexpr char minuscula(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Walks a text and skips its blanks.
class Lector {
public:
    explicit Lector(std::string_view texto) noexcept : texto_(texto) { salta(); }

    // The next character; 0 at the end.
    char mira() const noexcept { return pos_ < texto_.size() ? texto_[pos_] : '\0'; }

    bool acabado() const noexcept { return pos_ == texto_.size(); }

    void avanza() noexcept {
        ++pos_;
        salta();
    }

    // Steps over the character when it is the expected one.
    bool toma(char esperado) noexcept {
        if (acabado() || minuscula(mira()) != esperado) return false;
        avanza();
        return true;
    }

    // Copies the digits that follow; the end of the copy.
    char* copia_cifras(char* destino) noexcept {
        for (; es_cifra(mira()); avanza()) *destino++ = mira();
        return destino;
    }

private:
    void salta() noexcept {
        while (pos_ < texto_.size() && es_blanco(texto_[pos_])) ++pos_;
    }

    std::string_view texto_;
    std::size_t pos_ = 0;
};

enum class Lectura { SinNumero, Parte, Todo, Desborda };

struct Leido {
    Lectura estado = Lectura::SinNumero; // Parte: something that is no number follows
    double valor = 0; // 0 for SinNumero; infinite, with the sign of the text, for Desborda
};

// Of a number that no double can hold: whether it is too large (else it is too near to zero).
bool es_enorme(std::string_view numero) noexcept {
    const std::size_t e = std::min(numero.find('e'), numero.size());
    const std::string_view mantisa = numero.substr(0, e);
    const auto punto = static_cast<std::int64_t>(std::min(mantisa.find('.'), e));
    const auto primera = static_cast<std::int64_t>(std::min(mantisa.find_first_of("123456789"), e));
    std::int64_t exponente = 0;
    if (e < numero.size()) {
        const char* const cifras = numero.data() + e + 1;
        const char* const fin = numero.data() + numero.size();
        if (std::from_chars(cifras, fin, exponente).ec == std::errc::result_out_of_range)
            return *cifras != '-';
    }
    return punto - primera + exponente > 0;
}

constexpr int valor_de_cifra(char c) noexcept {
    if (es_cifra(c)) return c - '0';
    c = minuscula(c);
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : 16;
}

// What follows an "&": H or O and the digits.
Leido lee_con_base(Lector& lector) noexcept {
    const bool hexadecimal = lector.toma('h');
    if (!hexadecimal && !lector.toma('o')) return {};
    const int base = hexadecimal ? 16 : 8;
    constexpr std::uint64_t maximo = 0xFFFFFFFF;
    std::uint64_t n = 0;
    bool hay_cifra = false;
    for (; valor_de_cifra(lector.mira()) < base; lector.avanza()) {
        hay_cifra = true;
        n = n * static_cast<unsigned>(base) + static_cast<unsigned>(valor_de_cifra(lector.mira()));
        n = std::min(n, maximo + 1);
    }
    if (!hay_cifra) return {};
    const bool largo = lector.toma('&');
    if (n > maximo) return {Lectura::Desborda, INFINITO};
    const Lectura estado = lector.acabado() ? Lectura::Todo : Lectura::Parte;
    if (n <= 0xFFFF && !largo) return {estado, static_cast<double>(static_cast<std::int16_t>(n))};
    return {estado, static_cast<double>(static_cast<std::int32_t>(n))};
}

// Copies the number at the reader's place, without blanks and with "e" before its exponent, into
// `destino`, which has room for the whole text; the end of the copy.
char* copia_numero(Lector& lector, char* destino) noexcept {
    if (lector.toma('-'))
        *destino++ = '-';
    else
        lector.toma('+');
    destino = lector.copia_cifras(destino);
    if (lector.toma('.')) {
        *destino++ = '.';
        destino = lector.copia_cifras(destino);
    }
    if (lector.toma('e') || lector.toma('d')) {
        *destino++ = 'e';
        if (lector.toma('-'))
            *destino++ = '-';
        else
            lector.toma('+');
        destino = lector.copia_cifras(destino);
    }
    return destino;
}

Leido lee_decimal(Lector& lector, char* copia) noexcept {
    const char* const fin = copia_numero(lector, copia);
    double valor = 0;
    const std::from_chars_result r = std::from_chars(copia, fin, valor);
    if (r.ec == std::errc::invalid_argument) return {};
    const Lectura estado = r.ptr == fin && lector.acabado() ? Lectura::Todo : Lectura::Parte;
    if (r.ec != std::errc{}) {
        const bool enorme = es_enorme({copia, static_cast<std::size_t>(r.ptr - copia)});
        if (enorme) return {Lectura::Desborda, *copia == '-' ? -INFINITO : INFINITO};
        return {estado, 0};
    }
    return {estado, valor == 0 ? 0 : valor}; // -0 is 0
}

Leido lee_numero(std::string_view texto) {
    Lector lector(texto);
    if (lector.toma('&')) return lee_con_base(lector);
    if (texto.size() <= texto_corto) {
        char copia[texto_corto];
        return lee_decimal(lector, copia);
    }
    std::string copia(texto.size(), '\0');
    return lee_decimal(lector, copia.data());
}

std::string_view sin_blancos_alrededor(std::string_view texto) noexcept {
    constexpr std::string_view blancos = " \t";
    const std::size_t primero = texto.find_first_not_of(blancos);
    if (primero == std::string_view::npos) return {};
    return texto.substr(primero, texto.find_last_not_of(blancos) - primero + 1);
}

// Halves to even.
double redondea_al_par(double x) noexcept {
    const double entero = std::trunc(x);
    const double resto = std::fabs(x - entero);
    if (resto < 0.5 || (resto == 0.5 && std::fmod(entero, 2) == 0)) return entero;
    return entero + (x < 0 ? -1 : 1);
}

template <class E>
E entero_de_real(double x) {
    const double n = redondea_al_par(x);
    if (!(n >= std::numeric_limits<E>::min() && n <= std::numeric_limits<E>::max()))
        lanza(NumError::Desbordamiento);
    return static_cast<E>(n);
}

double exige_numero(std::string_view texto) {
    const std::optional<double> n = numero_de_texto(texto);
    if (!n) lanza(NumError::Tipos);
    return *n;
}

bool igual_sin_caja(std::string_view a, std::string_view b) noexcept {
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return minuscula(x) == minuscula(y); });
}

std::string texto_de(const Decimal& numero, int significativas) {
    char texto[capacidad_numero];
    return {texto, escribe_numero(numero, significativas, texto)};
}

std::string con_lugar_de_signo(std::string texto) {
    if (texto.front() != '-') texto.insert(texto.begin(), ' ');
    return texto;
}

constexpr int cifras_doble = 15;
constexpr int cifras_simple = 7;

} // namespace

double Val(std::string_view texto) {
    const double valor = Val_sin_tope(texto);
    return std::isinf(valor) ? 0 : valor;
}

double Val_sin_tope(std::string_view texto) { return lee_numero(texto).valor; }

std::optional<double> numero_de_texto(std::string_view texto) {
    texto = sin_blancos_alrededor(texto);
    if (std::any_of(texto.begin(), texto.end(), es_blanco)) return std::nullopt;
    Leido leido;
    const std::size_t coma = texto.find(',');
    if (coma == std::string_view::npos) {
        leido = lee_numero(texto);
    } else {
        std::string con_punto(texto);
        con_punto[coma] = '.';
        leido = lee_numero(con_punto);
    }
    if (leido.estado == Lectura::Desborda) lanza(NumError::Desbordamiento);
    if (leido.estado != Lectura::Todo) return std::nullopt;
    return leido.valor;
}

std::int16_t entero16_de_texto(std::string_view texto) { return entero16_de_real(exige_numero(texto)); }

std::int32_t entero32_de_texto(std::string_view texto) { return entero32_de_real(exige_numero(texto)); }

std::int16_t entero16_de_real(double x) { return entero_de_real<std::int16_t>(x); }

std::int32_t entero32_de_real(double x) { return entero_de_real<std::int32_t>(x); }

std::string numero_a_texto(double x) { return texto_de(decimal_de_real(x, cifras_doble), cifras_doble); }

std::string numero_a_texto(float x) {
    return texto_de(decimal_de_real(static_cast<double>(x), cifras_simple), cifras_simple);
}

std::size_t escribe_numero(double x, char* destino, std::size_t capacidad) {
    if (capacidad < capacidad_numero) lanza(NumError::LlamadaNoValida);
    return escribe_numero(decimal_de_real(x, cifras_doble), cifras_doble, destino);
}

std::string Str(double x) { return con_lugar_de_signo(numero_a_texto(x)); }

std::string Str(float x) { return con_lugar_de_signo(numero_a_texto(x)); }

std::string formato_fijo(double x, int decimales) {
    char texto[capacidad_fijo];
    return {texto, escribe_fijo(x, decimales, texto, sizeof texto)};
}

std::size_t escribe_fijo(double x, int decimales, char* destino, std::size_t capacidad) {
    if (capacidad < capacidad_fijo) lanza(NumError::LlamadaNoValida);
    return escribe_fijo(decimal_de_real(x), std::clamp(decimales, 0, cifras_doble), destino);
}

std::string_view booleano_a_texto(bool valor) noexcept { return valor ? textos::verdadero : textos::falso; }

bool booleano_de_texto(std::string_view texto) {
    const std::string_view palabra = sin_blancos_alrededor(texto);
    if (igual_sin_caja(palabra, textos::verdadero) || igual_sin_caja(palabra, textos::verdadero_leido))
        return true;
    if (igual_sin_caja(palabra, textos::falso) || igual_sin_caja(palabra, textos::falso_leido)) return false;
    return exige_numero(texto) != 0;
}

} // namespace Qlt4_Tabla
