// SPDX-License-Identifier: MIT
// Trozo: some neighbouring rows of the store. Without content it stands for any number of empty rows and
// holds nothing; with texts, colours or heights it has at most FILAS_POR_TROZO rows, packed as runs of
// bytes (core/fila_empaquetada.h). Rows are counted from the chunk's first.
//
// The free bytes of the run stand as one gap behind the row that was written last, so that writing row
// after row, in either direction, moves only a row's bytes. The run grows in blocks, never by doubling.
// A text that stands apart (core/textos_largos.h) is only a handle here: who writes or removes rows
// gives the handle back. Chunks in a row: core/indice_trozos.h.
#pragma once

#include "core/adornos.h"
#include "core/fila_empaquetada.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace Qlt4_Tabla {

/// What a cell holds.
enum class Contenido {
    Texto, ///< the bytes are its text
    Largo, ///< the bytes are the handle of a text that stands apart
    Numero, ///< column 0 only: the row's own number, without bytes
};

/// Small enough to be returned in registers.
struct CeldaGuardada {
    const char* inicio = nullptr;
    std::uint32_t longitud = 0;
    Contenido contenido = Contenido::Texto;

    CeldaGuardada() = default;

    CeldaGuardada(std::string_view bytes, Contenido que)
        : inicio(bytes.data()), longitud(static_cast<std::uint32_t>(bytes.size())), contenido(que) {}

    [[nodiscard]] std::string_view bytes() const { return {inicio, longitud}; }
};

/// The cells of a row one after the other; those beyond the stored ones are empty. Column 0 only where the
/// row is not numbered.
class CeldasDeFila {
public:
    CeldasDeFila() = default;

    CeldasDeFila(const std::uint8_t* longitudes, std::uint32_t n, const std::uint8_t* texto)
        : longitud_(longitudes), fin_(longitudes + n), texto_(reinterpret_cast<const char*>(texto)) {}

    CeldaGuardada siguiente() {
        if (longitud_ == fin_) return {};
        const std::uint8_t longitud = *longitud_++;
        const std::uint32_t n = bytes_guardados(longitud);
        const char* const texto = texto_;
        texto_ += n;
        return {{texto, n}, longitud == LARGO ? Contenido::Largo : Contenido::Texto};
    }

private:
    const std::uint8_t* longitud_ = nullptr;
    const std::uint8_t* fin_ = nullptr;
    const char* texto_ = nullptr;
};

class Trozo {
public:
    /// A chunk of several rows does not grow beyond these bytes: moving them must stay cheap.
    static constexpr std::uint32_t BYTES_BUENOS = 32768;

    /// `filas` empty rows; `numeradas`: column 0 shows their numbers.
    Trozo(int filas, bool numeradas) : filas_(filas), numeradas_(numeradas) {}

    [[nodiscard]] int filas() const { return filas_; }

    /// No packed rows: every text is empty, and all rows or none are numbered.
    [[nodiscard]] bool sin_textos() const { return !bloque_; }

    /// Nothing at all is stored: the number of rows is free.
    [[nodiscard]] bool vacio() const { return !bloque_ && !adornos_; }

    [[nodiscard]] bool numeradas() const { return numeradas_; }

    /// Bytes of the packed rows, without the gap.
    [[nodiscard]] std::uint32_t usados() const { return cabida_ - hueco(); }

    /// The bytes stay in place until the chunk changes.
    [[nodiscard]] CeldaGuardada celda(int i, int col) const;
    /// The cells of row `i` from column `col` on.
    [[nodiscard]] CeldasDeFila celdas(int i, int col) const;
    /// Does some text of the row stand apart?
    [[nodiscard]] bool hay_largos(int i) const { return bloque_ && lee_cabecera(bytes_de(i)).largos(); }

    /// Does the text lie inside the packed rows?
    [[nodiscard]] bool contiene(std::string_view texto) const;

    // Writing. Without memory: std::bad_alloc, unchanged.

    /// Packs the rows of a chunk without texts (at most FILAS_POR_TROZO of them).
    void empaqueta();
    /// Sets a cell of a packed chunk; `celda.bytes()` lies outside of it. Column beyond the stored ones: the
    /// row grows up to it.
    void pon(int i, int col, const CeldaGuardada& celda);
    /// Sets a cell behind the last text of the row written last, or of the empty one below it: the quick way of
    /// filling row after row. Such a row stays open: it has room for the lengths of as many columns as the row
    /// above it, until `cierra`. False: no such cell, and nothing is moved that the text may lie in. `col` > 0.
    bool anexa(int i, int col, std::string_view texto);
    /// Is a row open?
    [[nodiscard]] bool abierta() const { return usadas_ != 0; }

    /// The open row gives back the room it did not need. Every other change of the chunk does this first.
    void cierra() {
        if (usadas_ != 0) cierra_fila();
    }

    /// Replaces packed rows from `i` on by others; `finales` tells where each of them ends in `filas`.
    void pon_filas(int i, std::span<const std::uint8_t> filas, std::span<const std::uint32_t> finales);
    /// The bytes of a packed row.
    [[nodiscard]] std::span<const std::uint8_t> fila(int i) const;
    /// Where they begin.
    [[nodiscard]] const std::uint8_t* bytes_de(int i) const { return datos() + inicio(i); }
    /// Column 0 of row `i` takes the row's number. Packed chunks only. True when it had another text.
    bool numera(int i);
    /// The same for all rows of a chunk without texts.
    void numera_todas() { numeradas_ = true; }

    /// `n` empty, unnumbered rows before row `i`. Unless the chunk is empty and unnumbered (then any
    /// number), it is packed and has room for them.
    void inserta(int i, int n);
    void borra(int i, int n);
    /// Columns from `n` on are gone; with 0 no row is numbered.
    void quita_columnas(int n);
    /// Rows `i` and on (not all) leave to a new chunk.
    [[nodiscard]] Trozo separa(int i);
    /// The rows of `otro` come behind; together at most FILAS_POR_TROZO, or both are empty and alike.
    void absorbe(Trozo& otro);

    [[nodiscard]] const Adornos* adornos() const { return adornos_.get(); }

    /// As Adornos::pon; the chunk has at most FILAS_POR_TROZO rows.
    bool pon_adorno(Adorno tipo, int col, int i1, int i2, std::optional<std::int32_t> valor);

    [[nodiscard]] std::size_t bytes() const;

private:
    struct Libera {
        void operator()(std::uint32_t* p) const { std::free(p); }
    };

    [[nodiscard]] std::uint8_t* datos() const {
        return reinterpret_cast<std::uint8_t*>(bloque_.get() + FILAS_POR_TROZO);
    }

    [[nodiscard]] std::uint32_t hueco() const { return hueco_fin_ - hueco_ini_; }

    // Any cell; `celda` itself finds those of the first columns of an ordinary row.
    [[nodiscard]] CeldaGuardada una_celda(int i, int col) const;

    // Room for so many bytes in the gap.
    void asegura(std::uint32_t mas) {
        if (mas > hueco()) crece(mas);
    }

    // The gap comes to stand before row `i`.
    void mueve_hueco(int i) {
        cierra();
        if (i != corte_) lleva_hueco(i);
    }

    [[nodiscard]] std::uint32_t& inicio(int i) { return bloque_.get()[i]; }

    [[nodiscard]] std::uint32_t inicio(int i) const { return bloque_.get()[i]; }

    [[nodiscard]] std::uint32_t fin(int i) const;
    void pon_cabida(std::uint32_t cabida);
    void crece(std::uint32_t mas);
    void encoge();
    void lleva_hueco(int i);
    void sustituye(
        int i, const CabeceraFila& c, std::uint32_t col, std::string_view bytes, std::uint8_t longitud);
    void alarga(int i, CabeceraFila c, std::uint32_t col, std::string_view bytes, std::uint8_t longitud);
    void acorta(int i, CabeceraFila c, std::uint32_t columnas);
    bool pasa_a_vacia(int i);
    bool abre(std::uint32_t columna, std::string_view texto);
    bool hay_sitio(std::uint32_t mas, std::string_view texto);
    void cierra_fila();
    void revisa_largos(int i);
    void anexa_filas(const Trozo& otro);
    void quita_adornos_vacios();

    // FILAS_POR_TROZO numbers, where the rows begin, then cabida_ bytes of rows and RELLENO more. One block, and
    // nothing else beside it: the blocks of neighbours stand side by side, and what one leaves when it grows
    // takes in the next ones.
    std::unique_ptr<std::uint32_t, Libera> bloque_;
    std::unique_ptr<Adornos> adornos_;
    std::uint32_t cabida_ = 0;
    std::uint32_t hueco_ini_ = 0; // the gap; it begins where row corte_ - 1 ends
    std::uint32_t hueco_fin_ = 0;
    int corte_ = 0; // rows before this one stand before the gap
    // Columns up to the last text of the open row, which stands before the gap; 0 where none is open.
    std::uint32_t usadas_ = 0;
    int filas_;
    bool numeradas_; // of a chunk without texts
};

inline CeldaGuardada Trozo::celda(int i, int col) const {
    if (!bloque_ || col < 1 || col > 15) return una_celda(i, col);
    const std::uint8_t* const p = bytes_de(i);
    if ((p[0] & (CabeceraFila::LARGOS | CabeceraFila::SIGUE)) != 0) return una_celda(i, col);
    const auto columna = static_cast<std::uint32_t>(col);
    const std::uint32_t columnas = p[0] >> 2U;
    if (columna >= columnas) return {};
    const std::uint8_t* const longitudes = p + 1;
    const std::uint8_t* const texto = longitudes + columnas + suma_hasta_15(longitudes, columna);
    return {{reinterpret_cast<const char*>(texto), longitudes[columna]}, Contenido::Texto};
}

} // namespace Qlt4_Tabla
