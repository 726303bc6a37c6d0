// SPDX-License-Identifier: MIT
// What is checked stands in the order of the bytes: files/lector_tb0.h.
#include "files/lector_tb0.h"

#include "base/little_endian.h"
#include "files/texto_1252.h"

#include <cstring>

namespace Qlt4_Tabla {

const RegistroTb0& LectorTb0::cabeza() {
    registro_.subtitulo = de_1252(texto(ParteTb0::Subtitulo));
    registro_.columnas = cuenta(ParteTb0::NCols, MAX_COLUMNAS) + 1;
    const std::int64_t filas = std::int64_t{cuenta(ParteTb0::NFilas, INT32_MAX)} + 1;
    matriz(ParteTb0::DimensionesFilas, filas);
    registro_.filas = static_cast<std::int32_t>(filas); // as many as the 32 bits of the elements say
    caben_las_filas();
    matriz_ = tb0::principio_matriz(registro_.columnas);
    return registro_;
}

// Most rows lie whole in the window; else more is brought, and what is still not whole is wrong.
std::span<const std::string_view> LectorTb0::siguiente() {
    ++fila_;
    pasa_matriz();
    std::size_t bytes = pasa_textos();
    while (bytes == 0 && ventana_.hay(ventana_.vista().size() + 1)) bytes = pasa_textos();
    if (bytes == 0)
        for (col_ = 0; col_ < registro_.columnas; ++col_) texto(ParteTb0::Celda);
    const char* const inicio = textos_.front().data() - tb0::BYTES_LONGITUD;
    if (!es_ascii({inicio, bytes})) convierte();
    return {textos_.data(), static_cast<std::size_t>(registro_.columnas)};
}

const RegistroTb0& LectorTb0::final() {
    fila_ = -1;
    for (col_ = 0; col_ < static_cast<std::int32_t>(tb0::FORMATOS); ++col_)
        registro_.formatos[static_cast<std::size_t>(col_)] = formato();
    registro_.bytes = posicion();
    return registro_;
}

void LectorTb0::falla(ParteTb0 parte, DefectoTb0 defecto, std::uint64_t posicion, std::int64_t hallado,
    std::int64_t esperado) const {
    throw FalloTb0{parte, defecto, posicion, fila_, col_, hallado, esperado};
}

void LectorTb0::exige_bytes(std::size_t n, ParteTb0 parte) {
    if (!ventana_.hay(n)) falla(parte, DefectoTb0::Falta, posicion(), static_cast<std::int64_t>(n));
}

// A whole number of 16 or 32 bits, which is passed.
template <class T>
T LectorTb0::numero(ParteTb0 parte) {
    exige_bytes(sizeof(T), parte);
    T n = 0;
    if constexpr (sizeof(T) == 2)
        n = static_cast<T>(lee16(ventana_.vista(), 0));
    else
        n = static_cast<T>(lee32(ventana_.vista(), 0));
    ventana_.pasa(sizeof(T));
    return n;
}

std::string_view LectorTb0::texto(ParteTb0 parte) {
    exige_bytes(tb0::BYTES_LONGITUD, parte);
    const std::size_t n = lee16(ventana_.vista(), 0);
    exige_bytes(tb0::BYTES_LONGITUD + n, parte);
    const std::string_view texto = ventana_.vista().substr(tb0::BYTES_LONGITUD, n);
    ventana_.pasa(tb0::BYTES_LONGITUD + n);
    return texto;
}

/// The last index of something of which there may be `maximo`.
std::int32_t LectorTb0::cuenta(ParteTb0 parte, std::int32_t maximo) {
    const std::uint64_t aqui = posicion();
    const auto n = numero<std::int32_t>(parte);
    if (n < 0) falla(parte, DefectoTb0::Negativo, aqui, n);
    if (n >= maximo) falla(parte, DefectoTb0::Demasiado, aqui, n, maximo - 1);
    return n;
}

/// `parte` is the first of the three; the other two follow it.
void LectorTb0::matriz(ParteTb0 parte, std::int64_t elementos) {
    const auto otra = [parte](int k) { return static_cast<ParteTb0>(static_cast<int>(parte) + k); };
    exige(parte, numero<std::int16_t>(parte), sizeof(std::int16_t), tb0::DIMENSIONES);
    exige(otra(1), numero<std::int32_t>(otra(1)), sizeof(std::int32_t), elementos);
    exige(otra(2), numero<std::int32_t>(otra(2)), sizeof(std::int32_t), tb0::LIMITE_INFERIOR);
}

/// The number that was passed last, of so many bytes, must be another.
void LectorTb0::exige(ParteTb0 parte, std::int64_t hallado, std::size_t bytes, std::int64_t esperado) const {
    if (hallado != esperado) falla(parte, DefectoTb0::Distinto, posicion() - bytes, hallado, esperado);
}

void LectorTb0::caben_las_filas() const {
    const auto filas = static_cast<std::uint64_t>(registro_.filas);
    const std::uint64_t hacen_falta =
        filas * tb0::bytes_fila_minima(static_cast<std::size_t>(registro_.columnas)) +
        tb0::BYTES_FORMATOS_MINIMOS;
    if (hacen_falta > ventana_.quedan())
        falla(ParteTb0::NFilas, DefectoTb0::SinBytes, posicion() - tb0::BYTES_MATRIZ - tb0::BYTES_CUENTA,
            registro_.filas - 1, static_cast<std::int64_t>(ventana_.quedan()));
}

/// The array that a row begins with.
void LectorTb0::pasa_matriz() {
    const bool buena = ventana_.hay(matriz_.size()) &&
        std::memcmp(ventana_.vista().data(), matriz_.data(), matriz_.size()) == 0;
    if (buena)
        ventana_.pasa(matriz_.size());
    else
        matriz(ParteTb0::DimensionesFila, registro_.columnas); // says what is wrong
}

/// The texts of a row where they are all at hand, and the bytes they take; else 0, and nothing is passed.
std::size_t LectorTb0::pasa_textos() {
    const std::string_view v = ventana_.vista();
    std::size_t pos = 0;
    for (std::string_view& t : std::span(textos_).first(static_cast<std::size_t>(registro_.columnas))) {
        if (v.size() - pos < tb0::BYTES_LONGITUD) return 0;
        const std::size_t n = lee16(v, pos);
        pos += tb0::BYTES_LONGITUD;
        if (v.size() - pos < n) return 0;
        t = {v.data() + pos, n};
        pos += n;
    }
    ventana_.pasa(pos);
    return pos;
}

T_FormatoColumna LectorTb0::formato() {
    T_FormatoColumna f;
    f.Nombre = de_1252(texto(ParteTb0::Formato));
    exige_bytes(2 * tb0::CAMPOS_FORMATO, ParteTb0::Formato);
    const auto numero_16 = [this] { return numero<std::int16_t>(ParteTb0::Formato); };
    f.Invisible = numero_16() != 0;
    f.Bloqueada = numero_16() != 0;
    f.Longitud = numero_16();
    f.Formato = numero_16();
    f.Decimales = numero_16();
    f.Alineacion = numero_16();
    f.Accion = numero_16();
    return f;
}

// The views are made when the text has its last place.
void LectorTb0::convierte() {
    const auto columnas = static_cast<std::size_t>(registro_.columnas);
    std::array<std::size_t, MAX_COLUMNAS> finales{};
    convertidos_.clear();
    for (std::size_t c = 0; c < columnas; ++c) {
        de_1252(textos_[c], convertidos_);
        finales[c] = convertidos_.size();
    }
    std::size_t desde = 0;
    for (std::size_t c = 0; c < columnas; ++c) {
        textos_[c] = std::string_view(convertidos_).substr(desde, finales[c] - desde);
        desde = finales[c];
    }
}

std::variant<RegistroTb0, FalloTb0> examina_tb0(std::string_view bytes) {
    BytesAbiertos fichero(bytes);
    LectorTb0 lector(fichero);
    try {
        for (std::int32_t filas = lector.cabeza().filas; filas > 0; --filas)
            static_cast<void>(lector.siguiente());
        return lector.final();
    } catch (const FalloTb0& fallo) {
        return fallo;
    }
}

} // namespace Qlt4_Tabla
