// SPDX-License-Identifier: MIT
// AlmacenCeldas: what the packed cells mean: long texts by their handles, row numbers by their place.
#include "core/almacen_celdas.h"

#include "core/indice_trozos.h"
#include "core/reescritura.h"
#include "core/textos_largos.h"
#include "core/tramos_filas.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <utility>

namespace Qlt4_Tabla {

namespace {

using CifrasFila = std::array<char, 12>;

// What a numbered row shows.
std::string_view numero_de(int fila, CifrasFila& cifras) {
    if (fila == 0) return {};
    const auto r = std::to_chars(cifras.data(), cifras.data() + cifras.size(), fila);
    return {cifras.data(), static_cast<std::size_t>(r.ptr - cifras.data())};
}

std::uint32_t asa_de(std::string_view bytes) {
    std::uint32_t asa = 0;
    std::memcpy(&asa, bytes.data(), BYTES_ASA);
    return asa;
}

} // namespace

struct AlmacenCeldas::Interior {
    IndiceTrozos indice;
    TextosLargos largos;
    // The rows that may lack their numbers; all others are numbered, but for row 0 with a text.
    TramosFilas sin_numero;
    mutable CifrasFila cifras{}; // of the row number given last
    enum class Altos { No, Si, Quiza };
    mutable Altos altos = Altos::No; // any row with a height of its own?
    std::vector<std::uint8_t> fila_nueva; // this and `nuevas` are kept for their memory
    Reescritura nuevas;

    [[nodiscard]] std::string_view texto(const CeldaGuardada& c, int fila, CifrasFila& cifras_fila) const {
        return c.contenido == Contenido::Texto ? c.bytes() : texto_no_guardado(c, fila, cifras_fila);
    }

    // Apart, so that the ordinary case stays short.
    [[nodiscard]] std::string_view texto_no_guardado(
        const CeldaGuardada& c, int fila, CifrasFila& cifras_fila) const;

    [[nodiscard]] CeldaGuardada celda(int fila, int col) const {
        const LugarFila l = indice.busca(fila);
        return l.trozo->celda(l.i, col);
    }

    bool escribe(int fila, int col, std::string_view nuevo);
    bool escribe_numero(int fila, std::string_view nuevo);
    void guarda(int fila, int col, LugarFila l, const CeldaGuardada& vieja, std::string_view nuevo);
    void pon(int fila, int col, const CeldaGuardada& celda) {
        const LugarFila l = indice.para_escribir(fila, celda.longitud);
        l.trozo->pon(l.i, col, celda);
    }

    bool escribe_fila(int fila, int col, std::span<const std::string_view> textos);
    void numera(int desde, int hasta, FilasCambiadas& cambiadas);
    bool numera(Trozo& t, int i, int fila);
    void suelta_largos(int desde, int hasta, int col1, int col2);
    [[nodiscard]] std::optional<std::int32_t> adorno(Adorno tipo, int fila, int col) const;
    bool pinta(Adorno tipo, int fila1, int col1, int fila2, int col2, std::optional<std::int32_t> valor);
    void filas_quitadas() {
        if (altos == Altos::Si) altos = Altos::Quiza;
    }
};

AlmacenCeldas::AlmacenCeldas() : yo_(std::make_unique<Interior>()) {}

AlmacenCeldas::~AlmacenCeldas() = default;

AlmacenCeldas::AlmacenCeldas(AlmacenCeldas&& otro) noexcept = default;

void AlmacenCeldas::pon_filas(int n) {
    const int hay = filas_;
    if (n > hay)
        inserta(hay, n - hay);
    else
        borra(n, hay - n);
}

void AlmacenCeldas::pon_columnas(int n) {
    Interior& yo = para_cambiar();
    if (n < columnas_) {
        yo.suelta_largos(0, filas_ - 1, n, columnas_);
        yo.indice.recorre(0, filas_ - 1, [n](Trozo& t, int, int, int) { t.quita_columnas(n); });
        if (n == 0) yo.sin_numero.anade(0, filas_);
    }
    columnas_ = n;
}

// Reading

std::string_view AlmacenCeldas::busca_texto(int fila, int col) const {
    const LugarFila l = yo_->indice.busca(fila);
    if (!l.trozo->sin_textos()) leida_ = {fila, l.trozo->bytes_de(l.i)};
    return yo_->texto(l.trozo->celda(l.i, col), fila, yo_->cifras);
}

void AlmacenCeldas::lee_fila(int fila, int col, std::span<std::string_view> textos) const {
    if (textos.empty()) return;
    const LugarFila l = yo_->indice.busca(fila);
    if (col == 0) {
        textos.front() = yo_->texto(l.trozo->celda(l.i, 0), fila, yo_->cifras);
        textos = textos.subspan(1);
        col = 1;
    }
    CeldasDeFila celdas = l.trozo->celdas(l.i, col);
    for (std::string_view& t : textos) t = yo_->texto(celdas.siguiente(), fila, yo_->cifras);
}

std::optional<FilaSeguida> AlmacenCeldas::fila_seguida(int fila) const {
    const LugarFila l = yo_->indice.busca(fila);
    if (l.trozo->sin_textos()) return FilaSeguida{fila != 0 && l.trozo->numeradas(), {}};
    const std::uint8_t* const p = l.trozo->bytes_de(l.i);
    const CabeceraFila c = lee_cabecera(p);
    if (c.largos()) return std::nullopt;
    const std::uint8_t* const longitudes = p + c.bytes;
    return FilaSeguida{fila != 0 && c.numerada(),
        {{longitudes, c.columnas}, reinterpret_cast<const char*>(longitudes + c.columnas)}};
}

bool AlmacenCeldas::iguales(int fila1, int col1, int fila2, int col2) const {
    CifrasFila cifras1;
    CifrasFila cifras2;
    return yo_->texto(yo_->celda(fila1, col1), fila1, cifras1) ==
        yo_->texto(yo_->celda(fila2, col2), fila2, cifras2);
}

// Writing

bool AlmacenCeldas::pon_texto(int fila, int col, std::string_view texto) {
    return para_cambiar().escribe(fila, col, texto);
}

std::string_view AlmacenCeldas::Interior::texto_no_guardado(
    const CeldaGuardada& c, int fila, CifrasFila& cifras_fila) const {
    return c.contenido == Contenido::Numero ? numero_de(fila, cifras_fila) : largos.texto(asa_de(c.bytes()));
}

bool AlmacenCeldas::Interior::escribe(int fila, int col, std::string_view nuevo) {
    if (col == 0) return escribe_numero(fila, nuevo);
    const LugarFila l = indice.busca(fila);
    if (l.trozo->anexa(l.i, col, nuevo)) return true;
    const CeldaGuardada vieja = l.trozo->celda(l.i, col);
    if (texto(vieja, fila, cifras) == nuevo) return false;
    guarda(fila, col, l, vieja, nuevo);
    return true;
}

// Column 0. A row's own number is not stored as a text; row 0 stays numbered while its text is empty.
bool AlmacenCeldas::Interior::escribe_numero(int fila, std::string_view nuevo) {
    CifrasFila cifras_fila;
    const LugarFila l = indice.busca(fila);
    const CeldaGuardada vieja = l.trozo->celda(l.i, 0);
    const bool igual = texto(vieja, fila, cifras_fila) == nuevo;
    const bool numero = fila > 0 && nuevo == numero_de(fila, cifras_fila);
    if (igual && (!numero || vieja.contenido == Contenido::Numero)) return false;
    if (!numero) {
        guarda(fila, 0, l, vieja, nuevo);
        sin_numero.anade(fila, fila + 1);
    } else {
        const bool era_largo = vieja.contenido == Contenido::Largo;
        const std::uint32_t asa_vieja = era_largo ? asa_de(vieja.bytes()) : 0;
        pon(fila, 0, {{}, Contenido::Numero});
        if (era_largo) largos.suelta(asa_vieja);
    }
    return !igual;
}

// Stores a text as such where `vieja` stands. It may be a view of the chunk that is written.
void AlmacenCeldas::Interior::guarda(
    int fila, int col, LugarFila l, const CeldaGuardada& vieja, std::string_view nuevo) {
    const bool era_largo = vieja.contenido == Contenido::Largo;
    const std::uint32_t asa_vieja = era_largo ? asa_de(vieja.bytes()) : 0;
    if (es_largo(nuevo)) {
        const std::uint32_t asa = largos.guarda(nuevo);
        std::array<char, BYTES_ASA> bytes{};
        std::memcpy(bytes.data(), &asa, BYTES_ASA);
        try {
            pon(fila, col, {{bytes.data(), bytes.size()}, Contenido::Largo});
        } catch (...) {
            largos.suelta(asa);
            throw;
        }
    } else if (l.trozo->contiene(nuevo)) {
        const std::string copia(nuevo);
        pon(fila, col, {copia, Contenido::Texto});
    } else {
        pon(fila, col, {nuevo, Contenido::Texto});
    }
    if (era_largo) largos.suelta(asa_vieja);
}

bool AlmacenCeldas::pon_fila(int fila, int col, std::span<const std::string_view> textos) {
    if (textos.empty()) return false;
    Interior& yo = para_cambiar();
    if (col != 0) return yo.escribe_fila(fila, col, textos);
    const std::string primero(textos.front()); // writing the others may move it
    const bool cambia = yo.escribe_fila(fila, 1, textos.subspan(1));
    return yo.escribe(fila, 0, primero) || cambia;
}

// Cells from column 1 on. Short texts go in with the whole row; else cell by cell.
bool AlmacenCeldas::Interior::escribe_fila(int fila, int col, std::span<const std::string_view> textos) {
    if (textos.empty()) return false;
    const LugarFila l = indice.busca(fila);
    const auto dentro = [&l](std::string_view t) { return l.trozo->contiene(t); };
    if (l.trozo->abierta() && std::any_of(textos.begin(), textos.end(), dentro)) {
        const std::vector<std::string> copias(textos.begin(), textos.end()); // closing the row moves them
        l.trozo->cierra();
        return escribe_fila(fila, col, std::vector<std::string_view>(copias.begin(), copias.end()));
    }
    l.trozo->cierra();
    const std::array<std::uint8_t, 1 + RELLENO> sin_textos{
        l.trozo->numeradas() ? CabeceraFila::NUMERADA : std::uint8_t{0}};
    const auto vieja = l.trozo->sin_textos() ? std::span(sin_textos).first(1) : l.trozo->fila(l.i);
    const auto columna = static_cast<std::uint32_t>(col);
    const std::optional<std::size_t> cota = cota_fila(vieja, columna, textos);
    if (!cota) {
        const std::vector<std::string> copias(textos.begin(), textos.end());
        bool cambia = false;
        for (const std::string& t : copias) cambia = escribe(fila, col++, t) || cambia;
        return cambia;
    }
    if (fila_nueva.size() < *cota) fila_nueva.resize(*cota);
    const std::span nueva(fila_nueva.data(), compon_fila(fila_nueva.data(), vieja, columna, textos));
    if (std::equal(nueva.begin(), nueva.end(), vieja.begin(), vieja.end())) return false;
    const LugarFila d = indice.para_escribir(fila, nueva.size());
    const std::array final{static_cast<std::uint32_t>(nueva.size())};
    d.trozo->pon_filas(d.i, nueva, final);
    return true;
}

// Many rows: in each chunk one after the other by a Reescritura. `paso(trozo, i, fila)` gives it the cells of a row;
// where they cannot go this way, `aparte(fila)` writes them once those above are in their place.
template <class Paso, class Aparte>
FilasCambiadas AlmacenCeldas::escribe_filas(int fila, int hasta, const Paso& paso, const Aparte& aparte) {
    FilasCambiadas cambiadas;
    Reescritura& nuevas = yo_->nuevas;
    while (fila <= hasta) {
        const LugarFila l = yo_->indice.busca(fila);
        const int primera = fila - l.i;
        const int fin = std::min(hasta + 1, primera + l.trozo->filas());
        nuevas.empieza(*l.trozo);
        try {
            for (Escrita escrita = Escrita::Igual; fila < fin; ++fila) {
                escrita = paso(*l.trozo, fila - primera, fila);
                if (escrita == Escrita::No) break;
                if (escrita == Escrita::Otra) cambiadas.extiende(fila, fila);
            }
        } catch (...) {
            para_cambiar();
            nuevas.acaba();
            throw;
        }
        para_cambiar();
        nuevas.acaba();
        if (fila == fin) continue;
        if (aparte(fila)) cambiadas.extiende(fila, fila);
        ++fila;
    }
    return cambiadas;
}

FilasCambiadas AlmacenCeldas::transforma(int col, int desde, int hasta, const CambioCelda& cambia) {
    std::string nuevo;
    const auto paso = [&](const Trozo& t, int i, int fila) {
        const std::string_view viejo = yo_->texto(t.celda(i, col), fila, yo_->cifras);
        nuevo.clear();
        if (!cambia(fila, viejo, nuevo)) return Escrita::Igual;
        if (col == 0) return Escrita::No;
        const std::array<std::string_view, 1> uno{nuevo};
        return viejo == nuevo ? Escrita::Igual : yo_->nuevas.pon(i, col, uno);
    };
    return escribe_filas(desde, hasta, paso, [&](int fila) { return yo_->escribe(fila, col, nuevo); });
}

FilasCambiadas AlmacenCeldas::pon_filas(int desde, int hasta, int col, const TextosDeFila& da) {
    std::span<const std::string_view> textos;
    std::size_t columnas = 1;
    const auto anota = [&](bool cambia) {
        if (cambia) columnas = std::max(columnas, textos.size());
        return cambia;
    };
    const auto paso = [&](const Trozo&, int i, int fila) {
        textos = da(fila);
        const Escrita escrita = yo_->nuevas.pon(i, col, textos);
        anota(escrita == Escrita::Otra);
        return escrita;
    };
    FilasCambiadas cambiadas = escribe_filas(
        desde, hasta, paso, [&](int fila) { return anota(yo_->escribe_fila(fila, col, textos)); });
    cambiadas.columnas = static_cast<int>(columnas);
    return cambiadas;
}

void AlmacenCeldas::toma(AlmacenCeldas&& otro) {
    const int columnas = otro.filas_ == 0 || filas_ == 0 ? 0 : std::min(columnas_, otro.columnas_);
    for (int col = 0; col < columnas; ++col) {
        otro.pon_color_texto(0, col, 0, col, color_texto(0, col));
        if (tiene_fondo(0, col)) otro.pon_color_fondo(0, col, 0, col, color_fondo(0, col));
    }
    if (columnas != 0) otro.pon_alto(0, alto(0));
    yo_ = std::move(otro.yo_);
    filas_ = otro.filas_;
    columnas_ = otro.columnas_;
    leida_ = {};
}

// Rows

void AlmacenCeldas::inserta(int fila, int n) {
    if (n <= 0) return;
    Interior& yo = para_cambiar();
    yo.indice.inserta(fila, n);
    yo.sin_numero.inserta(fila, n);
    if (fila == 0) yo.sin_numero.anade(n, n + 1); // what was row 0 may be a data row now
    filas_ += n;
}

void AlmacenCeldas::borra(int fila, int n) {
    if (n <= 0) return;
    Interior& yo = para_cambiar();
    yo.suelta_largos(fila, fila + n - 1, 0, columnas_);
    yo.indice.borra(fila, n);
    yo.sin_numero.borra(fila, n);
    yo.filas_quitadas();
    filas_ -= n;
}

void AlmacenCeldas::borra_varias(std::span<const int> filas) {
    Interior& yo = para_cambiar();
    if (yo.largos.vivos() != 0)
        for (const int fila : filas) yo.suelta_largos(fila, fila, 0, columnas_);
    yo.indice.borra_varias(filas);
    yo.sin_numero.borra(filas);
    yo.filas_quitadas();
    filas_ -= static_cast<int>(filas.size());
}

// Gives back the long texts of these rows from column `col1` on, before `col2`.
void AlmacenCeldas::Interior::suelta_largos(int desde, int hasta, int col1, int col2) {
    if (largos.vivos() == 0) return;
    indice.recorre(desde, hasta, [=, this](const Trozo& t, int i1, int i2, int) {
        for (int i = i1; i <= i2; ++i) {
            if (!t.hay_largos(i)) continue;
            CeldasDeFila celdas = t.celdas(i, col1);
            for (int col = col1; col < col2; ++col) {
                const CeldaGuardada c = celdas.siguiente();
                if (c.contenido == Contenido::Largo) largos.suelta(asa_de(c.bytes()));
            }
        }
    });
}

FilasCambiadas AlmacenCeldas::numera() {
    FilasCambiadas cambiadas;
    if (columnas_ == 0) return cambiadas;
    Interior& yo = para_cambiar();
    for (const auto [desde, hasta] : yo.sin_numero.tramos()) {
        const int ultima = std::min(hasta, filas_) - 1;
        if (desde <= ultima) yo.numera(desde, ultima, cambiadas);
    }
    yo.sin_numero.vacia();
    return cambiadas;
}

void AlmacenCeldas::Interior::numera(int desde, int hasta, FilasCambiadas& cambiadas) {
    indice.recorre(desde, hasta, [&](Trozo& t, int i1, int i2, int primera) {
        if (t.sin_textos()) {
            const int desde_fila = std::max(primera, 1);
            if (!t.numeradas() && primera + t.filas() > desde_fila)
                cambiadas.extiende(desde_fila, primera + t.filas() - 1);
            return t.numera_todas();
        }
        for (int i = i1; i <= i2; ++i)
            if (numera(t, i, primera + i)) cambiadas.extiende(primera + i, primera + i);
    });
    indice.junta_vacios(desde, hasta);
}

// A packed row takes its number; row 0 only where it has no text, to show it if it ever moves down. True
// when it shows another text now.
bool AlmacenCeldas::Interior::numera(Trozo& t, int i, int fila) {
    const CeldaGuardada vieja = t.celda(i, 0);
    if (fila == 0 && !vieja.bytes().empty()) return false;
    if (vieja.contenido == Contenido::Largo) largos.suelta(asa_de(vieja.bytes()));
    return t.numera(i) && fila != 0;
}

// Colours and heights

std::optional<std::int32_t> AlmacenCeldas::Interior::adorno(Adorno tipo, int fila, int col) const {
    const LugarFila l = indice.busca(fila);
    const Adornos* const a = l.trozo->adornos();
    return a ? a->valor(tipo, col, l.i) : std::nullopt;
}

bool AlmacenCeldas::Interior::pinta(
    Adorno tipo, int fila1, int col1, int fila2, int col2, std::optional<std::int32_t> valor) {
    if (valor) indice.reparte(fila1, fila2);
    bool cambia = false;
    indice.recorre(fila1, fila2, [&](Trozo& t, int i1, int i2, int) {
        for (int col = col1; col <= col2; ++col) cambia = t.pon_adorno(tipo, col, i1, i2, valor) || cambia;
    });
    return cambia;
}

std::int32_t AlmacenCeldas::color_texto(int fila, int col) const {
    return yo_->adorno(Adorno::ColorTexto, fila, col).value_or(0);
}

bool AlmacenCeldas::pon_color_texto(int fila1, int col1, int fila2, int col2, std::int32_t color) {
    const auto valor = color == 0 ? std::nullopt : std::optional(color);
    return para_cambiar().pinta(Adorno::ColorTexto, fila1, col1, fila2, col2, valor);
}

std::int32_t AlmacenCeldas::color_fondo(int fila, int col) const {
    return yo_->adorno(Adorno::ColorFondo, fila, col).value_or(0);
}

bool AlmacenCeldas::tiene_fondo(int fila, int col) const {
    return yo_->adorno(Adorno::ColorFondo, fila, col).has_value();
}

bool AlmacenCeldas::pon_color_fondo(int fila1, int col1, int fila2, int col2, std::int32_t color) {
    return para_cambiar().pinta(Adorno::ColorFondo, fila1, col1, fila2, col2, color);
}

int AlmacenCeldas::alto(int fila) const {
    return yo_->altos == Interior::Altos::No ? -1 : yo_->adorno(Adorno::Alto, fila, 0).value_or(-1);
}

bool AlmacenCeldas::pon_alto(int fila, int twips) {
    const auto valor = twips < 0 ? std::nullopt : std::optional(twips);
    Interior& yo = para_cambiar();
    const bool cambia = yo.pinta(Adorno::Alto, fila, 0, fila, 0, valor);
    if (valor)
        yo.altos = Interior::Altos::Si;
    else
        yo.filas_quitadas();
    return cambia;
}

bool AlmacenCeldas::hay_altos() const {
    using Altos = Interior::Altos;
    if (yo_->altos == Altos::Quiza) {
        yo_->altos = Altos::No;
        yo_->indice.recorre(0, filas_ - 1, [this](const Trozo& t, int, int, int) {
            if (t.adornos() && t.adornos()->tiene(Adorno::Alto)) yo_->altos = Altos::Si;
        });
    }
    return yo_->altos == Altos::Si;
}

std::size_t AlmacenCeldas::bytes() const {
    return sizeof(Interior) + yo_->indice.bytes() + yo_->largos.bytes() + yo_->fila_nueva.capacity() +
        yo_->nuevas.bytes();
}

} // namespace Qlt4_Tabla
