// SPDX-License-Identifier: MIT
// Reading of a table file from its first to its last byte, a piece at a time: the part in front of the rows, each
// row, the part behind them. Nothing is believed: every count is held against the bytes that are there, and
// nothing larger than they is ever asked for. Main names: LectorTb0, RegistroTb0, FalloTb0, examina_tb0.
// The bytes: docs/formato_tb0.md; written by files/escritor_tb0.h.
#pragma once

#include "base/error.h"
#include "core/formato_columna.h"
#include "files/formato_tb0.h"
#include "files/ventana_fichero.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace Qlt4_Tabla {

/// A record without its rows.
struct RegistroTb0 {
    std::string subtitulo; ///< as stored, in UTF-8
    std::int32_t filas = 0; ///< header included; at least 1
    std::int32_t columnas = 0; ///< row numbers included; 1 to 26
    std::uint64_t bytes = 0; ///< of the whole record; a file may hold more behind it
    std::array<T_FormatoColumna, tb0::FORMATOS> formatos;
};

/// The parts of a record.
enum class ParteTb0 {
    Subtitulo,
    NCols,
    NFilas,
    DimensionesFilas,
    ElementosFilas,
    LimiteFilas,
    DimensionesFila, ///< from here on `fila` is set
    ElementosFila,
    LimiteFila,
    Celda, ///< `col` too
    Formato, ///< `col` is the element, 0 to 25
};

/// What is wrong with a part.
enum class DefectoTb0 {
    Falta, ///< the file ends before or within it: error 62
    Negativo, ///< a count below 0: error 9
    Demasiado, ///< more columns than there can be: error 9
    Distinto, ///< not the number that it must be, `esperado`: error 9
    SinBytes, ///< counts more than the bytes that follow can hold: error 62
};

/// The first thing that is wrong with a record.
struct FalloTb0 {
    ParteTb0 parte = ParteTb0::Subtitulo;
    DefectoTb0 defecto = DefectoTb0::Falta;
    std::uint64_t posicion = 0; ///< byte at which the part, or what is missing of it, begins
    std::int32_t fila = -1;
    std::int32_t col = -1;
    std::int64_t hallado = 0; ///< the number found; of a part that is missing: the bytes it would take
    std::int64_t esperado = 0;

    [[nodiscard]] NumError numero() const {
        const bool fin = defecto == DefectoTb0::Falta || defecto == DefectoTb0::SinBytes;
        return fin ? NumError::FinDeFichero : NumError::Subindice;
    }
};

/// Reads the record at the beginning of a file, which must outlive it. What is wrong is thrown as a FalloTb0; an
/// error of the file passes. Nothing may be asked for after either.
class LectorTb0 {
public:
    /// `pieza`: bytes read at a time; more for a part that is longer.
    explicit LectorTb0(FicheroAbierto& fichero, std::size_t pieza = PIEZA) : ventana_(fichero, pieza) {}

    /// The part in front of the rows: subtitle and counts. The first call.
    const RegistroTb0& cabeza();

    /// The texts of the next row in UTF-8, header first, good until the next call. There must be one.
    [[nodiscard]] std::span<const std::string_view> siguiente();

    /// The part behind the rows, formats and size: the record is whole and right. The last call.
    const RegistroTb0& final();

    /// Byte at which the next part begins.
    [[nodiscard]] std::uint64_t posicion() const { return ventana_.posicion(); }

private:
    static constexpr std::size_t PIEZA = std::size_t{1} << 17U;

    [[noreturn]] void falla(ParteTb0 parte, DefectoTb0 defecto, std::uint64_t posicion,
        std::int64_t hallado = 0, std::int64_t esperado = 0) const;
    void exige_bytes(std::size_t n, ParteTb0 parte);
    template <class T>
    T numero(ParteTb0 parte);
    std::string_view texto(ParteTb0 parte);
    std::int32_t cuenta(ParteTb0 parte, std::int32_t maximo);
    void exige(ParteTb0 parte, std::int64_t hallado, std::size_t bytes, std::int64_t esperado) const;
    void matriz(ParteTb0 parte, std::int64_t elementos);
    void caben_las_filas() const;
    void pasa_matriz();
    [[nodiscard]] std::size_t pasa_textos();
    T_FormatoColumna formato();
    void convierte();

    VentanaFichero ventana_;
    RegistroTb0 registro_;
    std::int32_t fila_ = -1;
    std::int32_t col_ = -1;
    std::array<char, tb0::BYTES_MATRIZ> matriz_{}; // what each row begins with
    std::array<std::string_view, MAX_COLUMNAS> textos_;
    std::string convertidos_; // the texts of a row that is not all ASCII
};

/// Checks the record at the beginning of the bytes from its first to its last byte.
[[nodiscard]] std::variant<RegistroTb0, FalloTb0> examina_tb0(std::string_view bytes);

} // namespace Qlt4_Tabla
