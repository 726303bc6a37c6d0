// SPDX-License-Identifier: MIT
// Tables as lines of text: cells parted by a tab or a sign, or JSON. A cell that holds the sign, a quote or
// an end of line stands in quotes, with inner quotes doubled; so every table comes back as it was.
// Main names: anade_linea, anade_json, LectorTexto.
#pragma once

#include <cstddef>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Qlt4_Tabla::herramienta {

/// Appends one row and "\n".
void anade_linea(std::span<const std::string_view> celdas, char separador, std::string& destino);

/// Appends a text as JSON writes it, quotes included. The text is UTF-8.
void anade_json(std::string_view texto, std::string& destino);
/// Appends the texts as a JSON array.
void anade_json(std::span<const std::string_view> textos, std::string& destino);

/// The rows of a text one after another. Lines end with "\n", "\r\n" or "\r"; an end of line at the very end
/// begins no row, an empty line is a row with one empty cell.
class LectorTexto {
public:
    LectorTexto(std::string_view texto, char separador) : texto_(texto), separador_(separador) {}

    /// Gives the cells of the next row; false at the end. Views hold until the next call.
    bool siguiente(std::vector<std::string_view>& celdas);

    /// 1-based line at which the row given last begins.
    [[nodiscard]] std::size_t linea() const { return linea_; }

    /// The row given last has quotes that are never closed; it goes up to the end of the text.
    [[nodiscard]] bool comillas_abiertas() const { return abiertas_; }

    [[nodiscard]] std::size_t posicion() const { return pos_; }

private:
    [[nodiscard]] bool acaba_linea() const;
    void pasa_fin_de_linea();
    std::string_view celda();
    std::string_view entre_comillas();

    std::string_view texto_;
    char separador_;
    std::size_t pos_ = 0;
    std::size_t linea_ = 0;
    std::size_t siguiente_linea_ = 1;
    bool abiertas_ = false;
    std::deque<std::string> sueltas_; // cells whose quotes had to be taken off; they never move
};

} // namespace Qlt4_Tabla::herramienta
