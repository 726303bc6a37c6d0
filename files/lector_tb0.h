// SPDX-License-Identifier: MIT
// Reading of a table file's bytes: the whole record is checked first, then its rows are given one after
// another. Nothing is believed: every count is held against the bytes that are there, and nothing larger
// than they is ever asked for. Main names: examina_tb0, RegistroTb0, FalloTb0, FilasTb0.
// The bytes: docs/formato_tb0.md; written by files/escritor_tb0.h.
#pragma once

#include "base/error.h"
#include "core/formato_columna.h"
#include "files/formato_tb0.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace Qlt4_Tabla {

/// A record that is whole and right.
struct RegistroTb0 {
    std::string subtitulo; ///< as stored, in UTF-8
    std::int32_t filas = 0; ///< header included; at least 1
    std::int32_t columnas = 0; ///< row numbers included; 1 to 26
    std::size_t inicio_filas = 0; ///< byte at which the first row begins
    std::size_t bytes = 0; ///< of the whole record; a file may hold more behind it
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
    std::size_t posicion = 0; ///< byte at which the part, or what is missing of it, begins
    std::int32_t fila = -1;
    std::int32_t col = -1;
    std::int64_t hallado = 0; ///< the number found; of a part that is missing: the bytes it would take
    std::int64_t esperado = 0;

    [[nodiscard]] NumError numero() const {
        const bool fin = defecto == DefectoTb0::Falta || defecto == DefectoTb0::SinBytes;
        return fin ? NumError::FinDeFichero : NumError::Subindice;
    }
};

/// Checks the record at the beginning of the bytes from its first to its last byte.
[[nodiscard]] std::variant<RegistroTb0, FalloTb0> examina_tb0(std::string_view bytes);

/// The rows of a checked record, header first. The bytes and the record must outlive it.
class FilasTb0 {
public:
    FilasTb0(std::string_view bytes, const RegistroTb0& registro)
        : bytes_(bytes),
          pos_(registro.inicio_filas),
          columnas_(static_cast<std::size_t>(registro.columnas)) {}

    /// The texts of the next row in UTF-8, good until the next call. There must be one.
    [[nodiscard]] std::span<const std::string_view> siguiente();

    /// Byte at which the next row begins.
    [[nodiscard]] std::size_t posicion() const { return pos_; }

private:
    void convierte();

    std::string_view bytes_;
    std::size_t pos_;
    std::size_t columnas_;
    std::array<std::string_view, MAX_COLUMNAS> textos_;
    std::string convertidos_; // the texts of a row that is not all ASCII
};

} // namespace Qlt4_Tabla
