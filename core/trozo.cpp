// SPDX-License-Identifier: MIT
// Trozo: rows behind the gap stand at the end of the run, so that growing it moves them with its end.
#include "core/trozo.h"

#include "base/bytes.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <new>

namespace Qlt4_Tabla {

namespace {

// Runs grow by whole blocks. The block, with what the allocator and the filling add, fits its sizes.
constexpr std::uint32_t BLOQUE = 512;
constexpr std::uint32_t BYTES_INICIOS = FILAS_POR_TROZO * sizeof(std::uint32_t);
constexpr std::uint32_t MARGEN = 16 + BYTES_INICIOS + RELLENO;
constexpr std::uint32_t CABIDA_MAXIMA = 0x7FFFFFFF;

constexpr std::uint32_t redondea(std::uint32_t bytes) {
    return (bytes + MARGEN + BLOQUE - 1) / BLOQUE * BLOQUE - MARGEN;
}

std::string_view como_texto(const std::uint8_t* p, std::size_t n) {
    return {reinterpret_cast<const char*>(p), n};
}

} // namespace

CeldaGuardada Trozo::una_celda(int i, int col) const {
    if (!bloque_) return {{}, numeradas_ && col == 0 ? Contenido::Numero : Contenido::Texto};
    if (col == 0 && lee_cabecera(datos() + inicio(i)).numerada()) return {{}, Contenido::Numero};
    return celdas(i, col).siguiente();
}

CeldasDeFila Trozo::celdas(int i, int col) const {
    if (!bloque_) return {};
    const std::uint8_t* const p = datos() + inicio(i);
    const CabeceraFila c = lee_cabecera(p);
    const std::uint32_t antes = std::min(static_cast<std::uint32_t>(col), c.columnas);
    const std::uint8_t* const longitudes = p + c.bytes;
    const std::uint8_t* const textos = longitudes + c.columnas;
    return {longitudes + antes, c.columnas - antes, textos + suma_bytes(longitudes, antes, c.largos())};
}

bool Trozo::contiene(std::string_view texto) const {
    const std::string_view todo = como_texto(bloque_ ? datos() : nullptr, bloque_ ? cabida_ : 0);
    const std::less<> antes;
    return !antes(texto.data(), todo.data()) && antes(texto.data(), todo.data() + todo.size());
}

std::uint32_t Trozo::fin(int i) const {
    if (i + 1 == corte_) return hueco_ini_;
    return i + 1 == filas_ ? cabida_ : inicio(i + 1);
}

// Room

void Trozo::pon_cabida(std::uint32_t cabida) {
    const std::uint32_t cola = cabida_ - hueco_fin_;
    if (cabida < cabida_ && cola != 0) std::memmove(datos() + cabida - cola, datos() + hueco_fin_, cola);
    void* const p = std::realloc(bloque_.get(), BYTES_INICIOS + cabida + RELLENO);
    if (!p && cabida > cabida_) throw std::bad_alloc();
    if (p) {
        static_cast<void>(bloque_.release());
        bloque_.reset(static_cast<std::uint32_t*>(p));
    }
    if (cabida > cabida_ && cola != 0) std::memmove(datos() + cabida - cola, datos() + hueco_fin_, cola);
    for (int i = corte_; i < filas_; ++i) inicio(i) += cabida - cabida_;
    hueco_fin_ = cabida - cola;
    cabida_ = cabida;
}

void Trozo::crece(std::uint32_t mas) {
    if (mas > CABIDA_MAXIMA - MARGEN - BLOQUE - usados()) throw std::bad_alloc();
    pon_cabida(redondea(usados() + mas));
}

// Gives memory back when much more is free than growing by blocks leaves.
void Trozo::encoge() {
    if (hueco() > usados() / 2 + BLOQUE) pon_cabida(redondea(usados() + BLOQUE / 2));
}

void Trozo::lleva_hueco(int i) {
    const std::uint32_t ancho = hueco();
    std::uint8_t* const p = datos();
    if (i > corte_) {
        const std::uint32_t hasta = i == filas_ ? cabida_ : inicio(i);
        std::memmove(p + hueco_ini_, p + hueco_fin_, hasta - hueco_fin_);
        for (int j = corte_; j < i; ++j) inicio(j) -= ancho;
        hueco_ini_ += hasta - hueco_fin_;
        hueco_fin_ = hasta;
    } else if (i < corte_) {
        const std::uint32_t desde = inicio(i);
        hueco_fin_ -= hueco_ini_ - desde;
        std::memmove(p + hueco_fin_, p + desde, hueco_ini_ - desde);
        for (int j = i; j < corte_; ++j) inicio(j) += ancho;
        hueco_ini_ = desde;
    }
    corte_ = i;
}

void Trozo::empaqueta() {
    const auto n = static_cast<std::uint32_t>(filas_);
    corte_ = 0; // no row counts as placed while the run is made
    pon_cabida(redondea(n));
    for (int i = 0; i < filas_; ++i) inicio(i) = static_cast<std::uint32_t>(i);
    std::memset(datos(), numeradas_ ? CabeceraFila::NUMERADA : 0, n);
    corte_ = filas_;
    hueco_ini_ = n;
    hueco_fin_ = cabida_;
}

// Cells

void Trozo::pon(int i, int col, const CeldaGuardada& celda) {
    cierra();
    const auto columna = static_cast<std::uint32_t>(col);
    const std::uint32_t bytes = celda.longitud;
    const auto longitud = celda.contenido == Contenido::Largo ? LARGO : static_cast<std::uint8_t>(bytes);
    const CabeceraFila c = lee_cabecera(datos() + inicio(i));
    if (columna < c.columnas) {
        if (bytes == 0 && columna + 1 == c.columnas)
            acorta(i, c, columna);
        else
            sustituye(i, c, columna, celda.bytes(), longitud);
    } else if (bytes != 0) {
        alarga(i, c, columna, celda.bytes(), longitud);
    }
    std::uint8_t& banderas = datos()[inicio(i)];
    if (col == 0) banderas &= static_cast<std::uint8_t>(~CabeceraFila::NUMERADA);
    if (celda.contenido == Contenido::Numero) banderas |= CabeceraFila::NUMERADA;
    if (longitud == LARGO)
        banderas |= CabeceraFila::LARGOS;
    else if (c.largos())
        revisa_largos(i);
}

void Trozo::sustituye(
    int i, const CabeceraFila& c, std::uint32_t col, std::string_view bytes, std::uint8_t longitud) {
    const auto nuevos = static_cast<std::uint32_t>(bytes.size());
    const std::uint32_t viejos = bytes_guardados(datos()[inicio(i) + c.bytes + col]);
    if (nuevos != viejos) {
        if (nuevos > viejos) asegura(nuevos - viejos);
        mueve_hueco(i + 1);
    }
    std::uint8_t* const longitudes = datos() + inicio(i) + c.bytes;
    std::uint8_t* const texto = longitudes + c.columnas + suma_bytes(longitudes, col, c.largos());
    if (nuevos != viejos) {
        const std::uint8_t* const detras = texto + viejos;
        std::memmove(texto + nuevos, detras, static_cast<std::size_t>(datos() + hueco_ini_ - detras));
        hueco_ini_ += nuevos - viejos;
    }
    if (nuevos != 0) std::memcpy(texto, bytes.data(), nuevos);
    longitudes[col] = longitud;
    if (nuevos < viejos) encoge();
}

// The row comes to store columns up to `col`; its text is the last one.
void Trozo::alarga(int i, CabeceraFila c, std::uint32_t col, std::string_view bytes, std::uint8_t longitud) {
    const auto nuevos = static_cast<std::uint32_t>(bytes.size());
    const std::uint32_t bytes_cab = bytes_cabecera(col + 1);
    const std::uint32_t mas = col + 1 - c.columnas + bytes_cab - c.bytes;
    asegura(mas + nuevos);
    mueve_hueco(i + 1);
    std::uint8_t* const fila = datos() + inicio(i);
    std::uint8_t* const textos = fila + c.bytes + c.columnas;
    const auto bytes_textos = static_cast<std::size_t>(datos() + hueco_ini_ - textos);
    std::memmove(textos + mas, textos, bytes_textos);
    if (bytes_cab != c.bytes) std::memmove(fila + bytes_cab, fila + c.bytes, c.columnas);
    const std::uint32_t tenia = c.columnas;
    c.columnas = col + 1;
    std::uint8_t* const longitudes = fila + escribe_cabecera(fila, c);
    std::fill(longitudes + tenia, longitudes + col, std::uint8_t{0});
    longitudes[col] = longitud;
    std::memcpy(textos + mas + bytes_textos, bytes.data(), nuevos);
    hueco_ini_ += mas + nuevos;
}

// The row comes to store `columnas` columns at most, fewer where the last of them are empty.
void Trozo::acorta(int i, CabeceraFila c, std::uint32_t columnas) {
    mueve_hueco(i + 1);
    std::uint8_t* const fila = datos() + inicio(i);
    std::uint8_t* const longitudes = fila + c.bytes;
    while (columnas != 0 && longitudes[columnas - 1] == 0) --columnas;
    const std::uint32_t bytes_textos = suma_bytes(longitudes, columnas, c.largos());
    const std::uint8_t* const textos = longitudes + c.columnas;
    c.columnas = columnas;
    std::memmove(fila + bytes_cabecera(columnas), longitudes, columnas);
    std::uint8_t* const destino = fila + escribe_cabecera(fila, c) + columnas;
    std::memmove(destino, textos, bytes_textos);
    hueco_ini_ = static_cast<std::uint32_t>(destino + bytes_textos - datos());
    encoge();
}

bool Trozo::anexa(int i, int col, std::string_view texto) {
    const auto columna = static_cast<std::uint32_t>(col);
    const auto bytes = static_cast<std::uint32_t>(texto.size());
    if (bytes == 0 || bytes >= LARGO) return false;
    if (i + 1 != corte_ && (contiene(texto) || !pasa_a_vacia(i))) return false;
    if (usadas_ == 0 ? !abre(columna, texto) : columna < usadas_) return false;
    if (columna >= *bytes_de(i) >> 2U || !hay_sitio(bytes, texto)) return false;
    datos()[inicio(i) + 1 + columna] = static_cast<std::uint8_t>(bytes);
    pon_texto(datos() + hueco_ini_, texto);
    hueco_ini_ += bytes;
    usadas_ = columna + 1;
    return true;
}

// The gap passes an empty row that stands behind it.
bool Trozo::pasa_a_vacia(int i) {
    if (i != corte_ || !bloque_ || fin(i) - inicio(i) != 1) return false;
    mueve_hueco(i + 1);
    return true;
}

// The empty row before the gap takes room for the lengths of as many columns as the one above it stores, and there
// is room for the text.
bool Trozo::abre(std::uint32_t columna, std::string_view texto) {
    const int i = corte_ - 1;
    if (i == 0 || hueco_ini_ - inicio(i) != 1) return false;
    const std::uint8_t arriba = *bytes_de(i - 1);
    const std::uint32_t columnas = arriba >> 2U;
    if ((arriba & CabeceraFila::SIGUE) != 0 || columna >= columnas) return false;
    if (!hay_sitio(columnas + static_cast<std::uint32_t>(texto.size()), texto)) return false;
    std::uint8_t* const fila = datos() + inicio(i);
    std::memset(fila + 1, 0, columnas);
    fila[0] = static_cast<std::uint8_t>((fila[0] & 3U) | columnas << 2U);
    hueco_ini_ += columnas;
    return true;
}

// Room for so many bytes, unless the chunk would grow too much or its block be moved away from under the text.
bool Trozo::hay_sitio(std::uint32_t mas, std::string_view texto) {
    if (mas <= hueco()) return true;
    if (usados() + mas > BYTES_BUENOS || contiene(texto)) return false;
    crece(mas);
    return true;
}

void Trozo::cierra_fila() {
    std::uint8_t* const fila = datos() + inicio(corte_ - 1);
    const std::uint32_t columnas = fila[0] >> 2U;
    const std::uint32_t sobran = columnas - usadas_;
    const std::uint8_t* const textos = fila + 1 + columnas;
    std::memmove(fila + 1 + usadas_, textos, static_cast<std::size_t>(datos() + hueco_ini_ - textos));
    fila[0] = static_cast<std::uint8_t>((fila[0] & 3U) | usadas_ << 2U);
    hueco_ini_ -= sobran;
    usadas_ = 0;
}

// The flag of long texts after one was taken away.
void Trozo::revisa_largos(int i) {
    std::uint8_t* const fila = datos() + inicio(i);
    const CabeceraFila c = lee_cabecera(fila);
    const std::uint8_t* const longitudes = fila + c.bytes;
    const bool hay = std::find(longitudes, longitudes + c.columnas, LARGO) != longitudes + c.columnas;
    if (!hay) fila[0] &= static_cast<std::uint8_t>(~CabeceraFila::LARGOS);
}

void Trozo::pon_filas(int i, std::span<const std::uint8_t> filas, std::span<const std::uint32_t> finales) {
    const int detras = i + static_cast<int>(finales.size());
    mueve_hueco(detras);
    const auto nuevos = static_cast<std::uint32_t>(filas.size());
    const std::uint32_t viejos = hueco_ini_ - inicio(i);
    if (nuevos > viejos) asegura(nuevos - viejos);
    const std::uint32_t lugar = inicio(i);
    std::memcpy(datos() + lugar, filas.data(), nuevos);
    for (std::uint32_t desde = lugar; const std::uint32_t fin : finales) {
        inicio(i++) = desde;
        desde = lugar + fin;
    }
    hueco_ini_ = lugar + nuevos;
    if (nuevos < viejos) encoge();
}

std::span<const std::uint8_t> Trozo::fila(int i) const { return {datos() + inicio(i), fin(i) - inicio(i)}; }

bool Trozo::numera(int i) {
    const CabeceraFila c = lee_cabecera(datos() + inicio(i));
    if (c.numerada()) return false;
    pon(i, 0, {{}, Contenido::Numero});
    return true;
}

// Rows

void Trozo::inserta(int i, int n) {
    if (bloque_) {
        asegura(static_cast<std::uint32_t>(n));
        mueve_hueco(i);
        std::memmove(
            &inicio(i + n), &inicio(i), sizeof(std::uint32_t) * static_cast<std::size_t>(filas_ - i));
        std::memset(datos() + hueco_ini_, 0, static_cast<std::size_t>(n));
        for (int j = i; j < i + n; ++j) inicio(j) = hueco_ini_++;
        corte_ = i + n;
    }
    filas_ += n;
    if (adornos_) adornos_->inserta(i, n);
}

void Trozo::borra(int i, int n) {
    if (bloque_) {
        mueve_hueco(i);
        hueco_fin_ = i + n == filas_ ? cabida_ : inicio(i + n);
        std::memmove(
            &inicio(i), &inicio(i + n), sizeof(std::uint32_t) * static_cast<std::size_t>(filas_ - i - n));
    }
    filas_ -= n;
    if (bloque_) encoge();
    if (adornos_) {
        adornos_->borra(i, n);
        quita_adornos_vacios();
    }
}

void Trozo::quita_columnas(int n) {
    cierra();
    if (n == 0) numeradas_ = false;
    const auto columnas = static_cast<std::uint32_t>(n);
    for (int i = 0; bloque_ && i < filas_; ++i) {
        const CabeceraFila c = lee_cabecera(datos() + inicio(i));
        if (c.columnas > columnas) {
            acorta(i, c, columnas);
            if (c.largos()) revisa_largos(i);
        }
        if (n == 0) datos()[inicio(i)] = 0;
    }
    if (adornos_) {
        adornos_->quita_columnas(n);
        quita_adornos_vacios();
    }
}

Trozo Trozo::separa(int i) {
    Trozo nuevo(filas_ - i, numeradas_);
    if (adornos_) nuevo.adornos_ = std::make_unique<Adornos>(*adornos_);
    if (bloque_) {
        mueve_hueco(i);
        const std::uint32_t bytes = cabida_ - hueco_fin_;
        const int filas = nuevo.filas_;
        nuevo.filas_ = 0; // no row to move while the run is made
        nuevo.pon_cabida(redondea(bytes));
        nuevo.filas_ = filas;
        std::memcpy(nuevo.datos(), datos() + hueco_fin_, bytes);
        for (int j = 0; j < filas; ++j) nuevo.inicio(j) = inicio(i + j) - hueco_fin_;
        nuevo.corte_ = filas;
        nuevo.hueco_ini_ = bytes;
        hueco_fin_ = cabida_;
    }
    if (adornos_) {
        adornos_->borra(i, filas_ - i);
        nuevo.adornos_->borra(0, i);
        quita_adornos_vacios();
        nuevo.quita_adornos_vacios();
    }
    filas_ = i;
    if (bloque_) encoge();
    return nuevo;
}

void Trozo::absorbe(Trozo& otro) {
    otro.cierra();
    const bool iguales = sin_textos() && otro.sin_textos() && numeradas_ == otro.numeradas_;
    if (!iguales && sin_textos()) empaqueta();
    if (!iguales) asegura(otro.bloque_ ? otro.usados() : static_cast<std::uint32_t>(otro.filas_));
    if (otro.adornos_ && !adornos_) adornos_ = std::make_unique<Adornos>();
    if (otro.adornos_) adornos_->absorbe(*otro.adornos_, filas_);
    if (!iguales) anexa_filas(otro);
    filas_ += otro.filas_;
}

// Copies packed rows behind the own ones; the room is there.
void Trozo::anexa_filas(const Trozo& otro) {
    mueve_hueco(filas_);
    if (otro.sin_textos())
        std::memset(datos() + hueco_ini_, otro.numeradas_ ? CabeceraFila::NUMERADA : 0,
            static_cast<std::size_t>(otro.filas_));
    for (int j = 0; j < otro.filas_; ++j) {
        inicio(filas_ + j) = hueco_ini_;
        const auto fila = otro.sin_textos() ? std::span<const std::uint8_t>() : otro.fila(j);
        if (!fila.empty()) std::memcpy(datos() + hueco_ini_, fila.data(), fila.size());
        hueco_ini_ += otro.sin_textos() ? 1U : static_cast<std::uint32_t>(fila.size());
    }
    corte_ = filas_ + otro.filas_;
}

// The rest

bool Trozo::pon_adorno(Adorno tipo, int col, int i1, int i2, std::optional<std::int32_t> valor) {
    if (!adornos_) {
        if (!valor) return false;
        adornos_ = std::make_unique<Adornos>();
    }
    const bool cambia = adornos_->pon(tipo, col, i1, i2, valor);
    quita_adornos_vacios();
    return cambia;
}

void Trozo::quita_adornos_vacios() {
    if (adornos_ && adornos_->vacio()) adornos_.reset();
}

std::size_t Trozo::bytes() const {
    return (bloque_ ? BYTES_INICIOS + cabida_ + RELLENO : 0) + (adornos_ ? adornos_->bytes() : 0);
}

} // namespace Qlt4_Tabla
