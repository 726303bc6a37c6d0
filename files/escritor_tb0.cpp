// SPDX-License-Identifier: MIT
// The record goes away in pieces that stay in the processor's caches: files/escritor_tb0.h.
#include "files/escritor_tb0.h"

#include "base/error.h"
#include "files/formato_tb0.h"
#include "files/texto_1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <span>

namespace Qlt4_Tabla {

namespace {

constexpr std::size_t CIFRAS_NUMERO = std::numeric_limits<int>::digits10 + 1;
/// As many empty texts as a row can have.
constexpr std::array<char, MAX_COLUMNAS * tb0::BYTES_LONGITUD> TEXTOS_VACIOS{};
/// Bytes that a row takes at most whose texts are all short.
constexpr std::size_t BYTES_FILA_SEGUIDA =
    tb0::bytes_fila_minima(MAX_COLUMNAS) + MAX_COLUMNAS * LARGO + TEXTO_HOLGADO;

class Escritor {
public:
    /// Of a table of so many columns.
    Escritor(const TomaBytes& toma, int columnas)
        : toma_(toma),
          columnas_(static_cast<std::size_t>(columnas)),
          fila_(tb0::principio_matriz(columnas)) {}

    /// Room for so many bytes more, which the calls below then take without asking.
    void asegura(std::size_t mas) {
        if (usados_ + mas <= bytes_.size()) return;
        entrega(usados_ / PIEZA * PIEZA);
        bytes_.resize(std::max(bytes_.size(), usados_ + mas));
    }

    void pon16(std::uint16_t n) {
        escribe16(sitio(), n);
        usados_ += 2;
    }

    void pon32(std::int32_t con_signo) {
        const auto n = static_cast<std::uint32_t>(con_signo);
        pon16(static_cast<std::uint16_t>(n & 0xFFFFU));
        pon16(static_cast<std::uint16_t>(n >> 16U));
    }

    /// Takes up to BYTES_LONGITUD and the text's own size.
    void pon_texto(std::string_view texto) {
        const std::size_t n = a_1252(texto, sitio() + tb0::BYTES_LONGITUD);
        if (n > tb0::MAX_TEXTO) lanza(NumError::LlamadaNoValida);
        pon16(static_cast<std::uint16_t>(n));
        usados_ += n;
    }

    /// Takes BYTES_MATRIZ.
    void empieza_fila() { pon_matriz(fila_); }

    /// A row. Takes up to BYTES_FILA_SEGUIDA.
    void pon_fila(int fila, const FilaSeguida& seguida) {
        empieza_fila();
        const std::size_t primero = seguida.numerada ? 1 : 0;
        if (seguida.numerada) pasa_a(escribe_numero(sitio(), fila));
        const TextosSeguidos textos = seguida.textos.tramo(primero, columnas_);
        char* p = sitio();
        const char* const fin = textos.recorre([&p](std::string_view t) { p = escribe_texto(p, t); });
        if (!es_ascii({textos.inicio, fin})) { // once more, text by text
            textos.recorre([this](std::string_view t) { pon_texto(t); });
            p = sitio();
        }
        const std::size_t vacios = columnas_ - primero - textos.longitudes.size();
        pasa_a(pon_texto_holgado(p, {TEXTOS_VACIOS.data(), vacios * tb0::BYTES_LONGITUD}));
    }

    void pon_matriz(const std::array<char, tb0::BYTES_MATRIZ>& principio) {
        pasa_a(std::copy(principio.begin(), principio.end(), sitio()));
    }

    void acaba() { entrega(usados_); }

private:
    /// What is handed over at once, but for the end: written at whole multiples of their size, such pieces cost the
    /// system least.
    static constexpr std::size_t PIEZA = std::size_t{1} << 19U;

    void entrega(std::size_t bytes) {
        toma_(bytes_.vista().substr(0, bytes));
        usados_ -= bytes;
        std::memmove(bytes_.data(), bytes_.data() + bytes, usados_);
    }

    static char* escribe16(char* p, std::uint16_t n) {
        p[0] = static_cast<char>(n & 0xFFU);
        p[1] = static_cast<char>(n >> 8U);
        return p + 2;
    }

    static char* escribe_texto(char* p, std::string_view ascii) {
        return pon_texto_holgado(escribe16(p, static_cast<std::uint16_t>(ascii.size())), ascii);
    }

    static char* escribe_numero(char* p, int numero) {
        char* const cifras = p + tb0::BYTES_LONGITUD;
        char* const fin = std::to_chars(cifras, cifras + CIFRAS_NUMERO, numero).ptr;
        escribe16(p, static_cast<std::uint16_t>(fin - cifras));
        return fin;
    }

    void pasa_a(const char* p) { usados_ = static_cast<std::size_t>(p - bytes_.data()); }

    [[nodiscard]] char* sitio() { return bytes_.data() + usados_; }

    const TomaBytes& toma_;
    std::size_t columnas_;
    std::array<char, tb0::BYTES_MATRIZ> fila_; // what each row begins with
    Bytes bytes_{PIEZA + BYTES_FILA_SEGUIDA};
    std::size_t usados_ = 0;
};

void pon_con_sitio(Escritor& e, std::string_view texto) {
    e.asegura(tb0::BYTES_LONGITUD + texto.size());
    e.pon_texto(texto);
}

void pon_fila(Escritor& e, std::span<const std::string_view> textos) {
    std::size_t bytes = tb0::bytes_fila_minima(textos.size());
    for (const std::string_view t : textos) bytes += t.size();
    e.asegura(bytes);
    e.empieza_fila();
    for (const std::string_view t : textos) e.pon_texto(t);
}

void pon_formato(Escritor& e, const T_FormatoColumna& f) {
    pon_con_sitio(e, f.Nombre);
    e.asegura(tb0::BYTES_FORMATO);
    for (const bool b : {f.Invisible, f.Bloqueada})
        e.pon16(b ? static_cast<std::uint16_t>(tb0::VERDADERO) : std::uint16_t{0});
    for (const std::int16_t n : {f.Longitud, f.Formato, f.Decimales, f.Alineacion, f.Accion})
        e.pon16(static_cast<std::uint16_t>(n));
}

} // namespace

void exige_tb0(const Tablero& tablero) {
    const int columnas = tablero.Cols();
    if (tablero.Rows() < 1 || columnas < 1 || columnas > MAX_COLUMNAS) lanza(NumError::Subindice);
}

void escribe_tb0(const Tablero& tablero, std::string_view subtitulo, const T_FormatoColumna& formato25,
    const TomaBytes& toma, Avance& avance) {
    exige_tb0(tablero);
    const int filas = tablero.Rows();
    const int columnas = tablero.Cols();
    Escritor e(toma, columnas);
    pon_con_sitio(e, subtitulo);
    e.asegura(2 * tb0::BYTES_CUENTA + tb0::BYTES_MATRIZ);
    e.pon32(columnas - 1);
    e.pon32(filas - 1);
    e.pon_matriz(tb0::principio_matriz(filas));
    std::array<std::string_view, MAX_COLUMNAS> celdas;
    const std::span fila_entera(celdas.data(), static_cast<std::size_t>(columnas));
    for (int fila = 0; fila < filas; ++fila) {
        if (const auto seguida = tablero.almacen().fila_seguida(fila)) {
            e.asegura(BYTES_FILA_SEGUIDA);
            e.pon_fila(fila, *seguida);
        } else {
            tablero.almacen().lee_fila(fila, 0, fila_entera);
            pon_fila(e, fila_entera);
        }
        avance.hasta(fila);
    }
    const T_FormatoColumna vacio;
    for (std::size_t i = 0; i < tb0::FORMATOS; ++i)
        pon_formato(e, i == tb0::FORMATO_GUARDADO ? formato25 : vacio);
    e.acaba();
}

std::string bytes_tb0(const Tablero& tablero, std::string_view subtitulo, const T_FormatoColumna& formato25) {
    std::string todos;
    Avance nadie;
    escribe_tb0(
        tablero, subtitulo, formato25, [&todos](std::string_view seguidos) { todos += seguidos; }, nadie);
    return todos;
}

} // namespace Qlt4_Tabla
