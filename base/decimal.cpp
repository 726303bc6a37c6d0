// SPDX-License-Identifier: MIT
// Decimals of at most 15 significant digits: base/decimal.h.
#include "base/decimal.h"

#include "base/cifras.h"
#include "base/error.h"
#include "base/numeros.h"
#include "base/ocho_bytes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <span>

namespace Qlt4_Tabla {

namespace {

constexpr int maximas_cifras = 15;
// Its digits fit into 64 bits, whatever they are, and its number is far from the smallest doubles.
constexpr std::size_t maximo_texto = 19;

static_assert(
    std::numeric_limits<double>::is_iec559 && std::numeric_limits<double>::digits10 == maximas_cifras,
    "a decimal of 15 digits survives the way through a double");

constexpr auto potencias = [] {
    std::array<std::uint64_t, maximas_cifras + 1> p{};
    p[0] = 1;
    for (std::size_t i = 1; i < p.size(); ++i) p[i] = p[i - 1] * 10;
    return p;
}();

// Without its last `sobran` digits (1 or more), rounded half away from zero.
std::uint64_t redondea(std::uint64_t cifras, int sobran) noexcept {
    if (sobran > maximas_cifras) return 0; // less than a tenth of the last place
    const std::uint64_t divisor = potencias[static_cast<std::size_t>(sobran)];
    return (cifras + divisor / 2) / divisor;
}

// The number of eight digits, one a byte, the first one lowest. Neighbours are put together three times: to pairs,
// fours and the eight.
constexpr std::uint64_t junta_ocho(std::uint64_t cifras) noexcept {
    cifras = (cifras * 10 + (cifras >> 8U)) & 0x00FF00FF00FF00FFU;
    cifras = (cifras * 100 + (cifras >> 16U)) & 0x0000FFFF0000FFFFU;
    return (cifras * 10'000 + (cifras >> 32U)) & 0xFFFFFFFFU;
}

// The way back; `n` below 10^8.
constexpr std::uint64_t separa_ocho(std::uint64_t n) noexcept {
    std::uint64_t alto = n / 10'000;
    n = alto | (n - alto * 10'000) << 32U;
    alto = (n * 10'486 >> 20U) & 0x0000007F0000007FU; // each four, divided by 100
    n = alto | (n - alto * 100) << 16U;
    alto = (n * 103 >> 10U) & 0x000F000F000F000FU; // each pair, divided by 10
    return alto | (n - alto * 10) << 8U;
}

static_assert(
    junta_ocho(0x0807060504030201U) == 12'345'678 && separa_ocho(12'345'678) == 0x0807060504030201U);
static_assert(junta_ocho(en_cada_byte(9)) == 99'999'999 && separa_ocho(99'999'999) == en_cada_byte(9));

// Goes on with the digits that follow; where they end. By eights.
const char* lee_cifras(const char* p, const char* fin, std::uint64_t& cifras) noexcept {
    while (fin - p >= 8) {
        const std::uint64_t w = lee_ocho(p) ^ en_cada_byte('0');
        const std::uint64_t ajenos = (w | (w + en_cada_byte(6))) & en_cada_byte(0xF0); // not 0 to 9
        const auto n = static_cast<unsigned>(std::countr_zero(ajenos)) / 8;
        if (n == 0) return p;
        cifras = cifras * potencias[n] + junta_ocho(w << (64 - 8 * n));
        p += n;
        if (n < 8) return p;
    }
    for (; p != fin && es_cifra(*p); ++p) cifras = cifras * 10 + static_cast<std::uint64_t>(*p - '0');
    return p;
}

constexpr std::size_t cifras_todas = 16;

// A number below 10^16 with all its digits, zeros in front; how many those are.
std::ptrdiff_t escribe_todas(std::uint64_t n, char* destino) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        constexpr std::uint64_t mitad = potencias[8];
        const std::array<std::uint64_t, 2> w{separa_ocho(n / mitad), separa_ocho(n % mitad)};
        for (std::size_t i = 0; i < w.size(); ++i) {
            const std::uint64_t letras = w[i] + en_cada_byte('0');
            std::memcpy(destino + 8 * i, &letras, 8);
        }
        return (w[0] != 0 ? std::countr_zero(w[0]) : 64 + std::countr_zero(w[1])) / 8;
    } else {
        char* const fin = destino + cifras_todas;
        for (char* p = fin; p != destino; n /= 10) *--p = static_cast<char>('0' + n % 10);
        return std::find_if(destino, fin, [](char c) { return c != '0'; }) - destino;
    }
}

char* pon_ceros(char* destino, std::ptrdiff_t cuantos) noexcept {
    return std::fill_n(destino, std::max<std::ptrdiff_t>(cuantos, 0), '0');
}

// "E+15": sign and at least two digits.
char* pon_exponente(char* destino, int exponente) noexcept {
    *destino++ = 'E';
    *destino++ = exponente < 0 ? '-' : '+';
    exponente = std::abs(exponente);
    if (exponente < 10) *destino++ = '0';
    return std::to_chars(destino, destino + 3, exponente).ptr;
}

// x, above 0, as "d.ddde+xx" with so many digits.
std::string_view cientifico(
    double x, int significativas, std::span<char, capacidad_numero> memoria) noexcept {
    char* const inicio = memoria.data();
    const std::to_chars_result r =
        std::to_chars(inicio, inicio + memoria.size(), x, std::chars_format::scientific, significativas - 1);
    return {inicio, static_cast<std::size_t>(r.ptr - inicio)};
}

// Of "+05" or "-324".
int lee_exponente(std::string_view texto) noexcept {
    int n = 0;
    std::from_chars(texto.data() + 1, texto.data() + texto.size(), n);
    return texto.front() == '-' ? -n : n;
}

// The digits of a whole number; at least one.
std::string_view escribe_cifras(std::uint64_t n, std::span<char, maximas_cifras + 1> memoria) noexcept {
    char* const inicio = memoria.data();
    const std::to_chars_result r = std::to_chars(inicio, inicio + memoria.size(), n);
    return {inicio, static_cast<std::size_t>(r.ptr - inicio)};
}

char* pon(char* destino, std::string_view texto) noexcept {
    return std::copy(texto.begin(), texto.end(), destino);
}

// escribe_fijo of a number whose digits do not reach down to its last decimal, however many zeros that takes.
std::size_t escribe_con_ceros(const Decimal& numero, int decimales, char* destino) noexcept {
    const std::ptrdiff_t ceros = decimales - numero.decimales;
    // `texto` and the zeros are the number counted in units of its last decimal.
    char memoria[maximas_cifras + 1];
    const std::string_view texto = escribe_cifras(numero.cifras, memoria);
    const auto tiene = static_cast<std::ptrdiff_t>(texto.size());
    const std::ptrdiff_t enteras = tiene + ceros - decimales;
    const auto corte = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(enteras, 0, tiene));

    char* p = destino;
    if (numero.negativo) *p++ = '-';
    if (enteras <= 0) *p++ = '0';
    p = pon(p, texto.substr(0, corte));
    p = pon_ceros(p, enteras - tiene);
    if (decimales > 0) {
        *p++ = '.';
        char* const fin = p + decimales;
        p = pon_ceros(p, -enteras);
        p = pon(p, texto.substr(corte));
        p = pon_ceros(p, fin - p);
    }
    return static_cast<std::size_t>(p - destino);
}

// x, above 0, where it is the double nearest to a decimal of at most 15 digits, 9 of them behind the point: then those
// are the 15 digits it shows. Nothing for others, and for some that are.
std::optional<Decimal> con_pocos_decimales(double x) noexcept {
    for (const int decimales : {0, 3, 6, 9}) {
        const auto potencia = static_cast<double>(potencias[static_cast<std::size_t>(decimales)]);
        const double unidades = x * potencia + 0.5;
        if (!(unidades < static_cast<double>(potencias[maximas_cifras]))) break;
        Decimal n{false, static_cast<std::uint64_t>(unidades), decimales};
        if (static_cast<double>(n.cifras) / potencia != x) continue;
        for (; n.decimales > 0 && n.cifras % 10 == 0; n.cifras /= 10) --n.decimales;
        return n;
    }
    return std::nullopt;
}

} // namespace

// Both are whole numbers that a double holds, so the result is the nearest one.
double real_de_decimal(const Decimal& numero) noexcept {
    const auto potencia =
        static_cast<double>(potencias[static_cast<std::size_t>(std::abs(numero.decimales))]);
    const auto cifras = static_cast<double>(numero.cifras);
    const double x = numero.decimales < 0 ? cifras * potencia : cifras / potencia;
    return numero.negativo ? -x : x;
}

Decimal decimal_de_real(double x, int significativas) {
    if (!std::isfinite(x)) lanza(NumError::Desbordamiento);
    if (x == 0) return {};
    if (significativas == maximas_cifras) {
        if (std::optional<Decimal> n = con_pocos_decimales(std::fabs(x))) {
            n->negativo = x < 0;
            return *n;
        }
    }
    char memoria[capacidad_numero];
    const std::string_view texto = cientifico(std::fabs(x), significativas, memoria);
    const std::size_t e = texto.find('e');
    const std::string_view mantisa = texto.substr(0, texto.find_last_not_of(".0", e - 1) + 1);
    Decimal numero{x < 0, 0, -lee_exponente(texto.substr(e + 1))};
    for (const char c : mantisa)
        if (es_cifra(c)) numero.cifras = numero.cifras * 10 + static_cast<std::uint64_t>(c - '0');
    if (mantisa.size() > 2) numero.decimales += static_cast<int>(mantisa.size()) - 2;
    return numero;
}

std::optional<Decimal> decimal_de_texto(std::string_view texto) noexcept {
    const bool menos = !texto.empty() && texto.front() == '-';
    if (menos) texto.remove_prefix(1);
    if (texto.size() > maximo_texto) return std::nullopt;
    const char* const fin = texto.data() + texto.size();
    const char* p = texto.data();
    const char* decimal = nullptr; // the first one
    std::uint64_t cifras = 0;
    for (;;) {
        p = lee_cifras(p, fin, cifras);
        if (p == fin || decimal != nullptr || (*p != '.' && *p != ',')) break;
        decimal = ++p;
    }
    const bool hay_cifras = texto.size() > (decimal != nullptr ? 1U : 0U);
    if (p != fin || !hay_cifras) return std::nullopt;
    int decimales = decimal != nullptr ? static_cast<int>(fin - decimal) : 0;
    for (; cifras >= potencias[maximas_cifras]; cifras /= 10, --decimales)
        if (decimales == 0 || cifras % 10 != 0) return std::nullopt;
    return Decimal{menos && cifras != 0, cifras, decimales};
}

// Each double is off by half a unit of its last place, and so is their sum. Of numbers with the same sign that
// is less than half a unit of the fifteenth digit. Otherwise digits may cancel, and what is off stays: with
// numbers below 10^6 it is less than half of the ninth decimal.
std::optional<Decimal> suma_exacta(const Decimal& a, const Decimal& b) noexcept {
    constexpr int maximos_decimales = 9;
    constexpr int enteras_al_restar = maximas_cifras - maximos_decimales;
    const int decimales = std::max(a.decimales, b.decimales);
    if (std::min(a.decimales, b.decimales) < 0 || decimales > maximos_decimales) return std::nullopt;
    const auto potencia = [](int n) { return potencias[static_cast<std::size_t>(n)]; };
    const auto cabe = [&](const Decimal& n) {
        return n.cifras < potencia(maximas_cifras - (decimales - n.decimales));
    };
    if (!cabe(a) || !cabe(b)) return std::nullopt;
    const std::uint64_t x = a.cifras * potencia(decimales - a.decimales);
    const std::uint64_t y = b.cifras * potencia(decimales - b.decimales);
    if (a.negativo == b.negativo) {
        if (x + y >= potencias[maximas_cifras]) return std::nullopt;
        return Decimal{a.negativo, x + y, decimales};
    }
    if (std::max(x, y) >= potencia(enteras_al_restar + decimales)) return std::nullopt;
    return Decimal{x == y ? false : (x > y ? a : b).negativo, x > y ? x - y : y - x, decimales};
}

std::size_t escribe_fijo(const Decimal& numero, int decimales, char* destino) noexcept {
    const int ceros = decimales - numero.decimales; // to the right of the digits
    if (ceros > 0 &&
        !(ceros < maximas_cifras &&
            numero.cifras < potencias[static_cast<std::size_t>(maximas_cifras - ceros)]))
        return escribe_con_ceros(numero, decimales, destino);
    // The number counted in units of its last decimal.
    const std::uint64_t unidades = ceros < 0 ? redondea(numero.cifras, -ceros)
                                             : numero.cifras * potencias[static_cast<std::size_t>(ceros)];
    char todas[2 * cifras_todas] = {}; // the second half is copied and not shown
    const std::ptrdiff_t ceros_delante = escribe_todas(unidades, todas);
    const char* const punto = todas + cifras_todas - decimales;
    const char* const primera = std::min<const char*>(todas + ceros_delante, punto - 1);
    char* p = destino;
    if (numero.negativo) *p++ = '-';
    std::memcpy(p, primera, cifras_todas);
    p += punto - primera;
    if (decimales > 0) {
        *p++ = '.';
        std::memcpy(p, punto, cifras_todas);
        p += decimales;
    }
    return static_cast<std::size_t>(p - destino);
}

std::size_t escribe_numero(const Decimal& numero, int significativas, char* destino) noexcept {
    char memoria[maximas_cifras + 1];
    const std::string_view texto = escribe_cifras(numero.cifras, memoria);
    const int exponente = static_cast<int>(texto.size()) - 1 - numero.decimales;
    if (numero.cifras == 0 || (exponente < significativas && numero.decimales <= significativas))
        return escribe_fijo(numero, std::max(numero.decimales, 0), destino);
    char* p = destino;
    if (numero.negativo) *p++ = '-';
    *p++ = texto.front();
    if (texto.size() > 1) *p++ = '.';
    p = pon(p, texto.substr(1));
    return static_cast<std::size_t>(pon_exponente(p, exponente) - destino);
}

} // namespace Qlt4_Tabla
