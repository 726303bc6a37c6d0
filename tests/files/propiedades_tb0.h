// SPDX-License-Identifier: MIT
// What holds for any bytes whatever given as a table file: they are refused with the right number and
// nothing changes, or they are read, and what is then in the table is what stood in them. Used on mutated
// files and by the fuzzer. Main name: falta_con.
#pragma once

#include "core/formatos.h"
#include "files/escritor_tb0.h"
#include "files/lector_tb0.h"
#include "files/tabla_fichero.h"
#include "headless/plataforma_memoria.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace Qlt4_Tabla {

/// A table of 3 rows by 5 columns with some text, a selection and changes that are not saved.
class TablaExpuesta {
public:
    TablaExpuesta() {
        Tablero_Nombres(e_, "Obra", "Puntos", "*.tb0");
        e_.tablero.Cols(5);
        e_.tablero.Rows(3);
        e_.tablero.numera_filas();
        for (int col = 1; col < 5; ++col) {
            T_FormatoColumna& f = e_.Formatos[static_cast<std::size_t>(col)];
            f = {.Nombre = "C", .Longitud = 10, .Formato = static_cast<std::int16_t>(T_formato::Alfanm)};
            e_.tablero.TextMatrix(1, col, "texto");
        }
        Tablero_establece_Formato(e_);
        e_.tablero.selecciona(2, 2, 1, 3);
        e_.Modificado = 1;
    }

    /// Empty, or what did not hold.
    std::string lee(std::string_view bytes) {
        p_.ficheros.contenidos["f"] = bytes;
        const std::string antes = foto();
        const auto examen = examina_tb0(bytes);
        int numero = 0;
        bool cambio = false;
        try {
            lee_tabla(e_, "f", [&] { cambio = true; });
        } catch (const Error& error) {
            numero = error.numero();
        }
        if (!e_.tablero.Redraw()) return "redrawing was left off";
        if (p_.mensajes.forma != Puntero::Normal) return "the hourglass was left";
        if (const auto* const fallo = std::get_if<FalloTb0>(&examen)) {
            if (numero != static_cast<int>(fallo->numero())) return "error " + std::to_string(numero);
            if (fallo->posicion > bytes.size()) return "a fault beyond the end";
            return cambio || foto() != antes ? "a refused file changed the table" : "";
        }
        // Errors of applying the formats come after a good reading: width of column 25, list without values.
        if (numero != 0 && numero != 6 && numero != 9) return "error " + std::to_string(numero);
        if (!cambio || e_.Modificado != 0) return "a good file was not read";
        return falta_en(bytes, std::get<RegistroTb0>(examen));
    }

private:
    // Headers take the names of the formats and column 25 its own format; the other cells are as they were.
    std::string falta_en(std::string_view bytes, const RegistroTb0& r) const {
        const Tablero& t = e_.tablero;
        if (t.Rows() != r.filas || t.Cols() != r.columnas) return "other counts";
        BytesAbiertos fichero(bytes);
        LectorTb0 filas(fichero);
        filas.cabeza();
        static_cast<void>(filas.siguiente());
        for (int fila = 1; fila < r.filas; ++fila) {
            const auto textos = filas.siguiente();
            for (int col = 1; col < std::min(r.columnas, MAX_COLUMNAS - 1); ++col)
                if (t.TextMatrix(fila, col) != textos[static_cast<std::size_t>(col)]) return "another text";
        }
        const std::string otra_vez = bytes_tb0(t, r.subtitulo, e_.Formatos[tb0::FORMATO_GUARDADO]);
        const auto examen = examina_tb0(otra_vez);
        const auto* const r2 = std::get_if<RegistroTb0>(&examen);
        if (r2 == nullptr || r2->bytes != otra_vez.size()) return "what was read cannot be written";
        return r2->filas == r.filas && r2->columnas == r.columnas && r2->subtitulo == r.subtitulo
            ? ""
            : "another record was written";
    }

    [[nodiscard]] std::string foto() const {
        const Tablero& t = e_.tablero;
        std::string s;
        for (const int n : {t.Rows(), t.Cols(), t.Row(), t.Col(), t.RowSel(), t.ColSel(), int{e_.Modificado}})
            s += std::to_string(n) + '|';
        for (int fila = 0; fila < t.Rows(); ++fila)
            for (int col = 0; col < t.Cols(); ++col) (s += t.TextMatrix(fila, col)) += '|';
        for (const T_FormatoColumna& f : e_.Formatos) (s += f.Nombre) += std::to_string(f.Longitud);
        return s;
    }

    PlataformaMemoria p_;
    EstadoTabla e_{p_.plataforma(), p_.eventos};
};

/// Empty, or what does not hold for these bytes.
[[nodiscard]] inline std::string falta_con(std::string_view bytes) { return TablaExpuesta().lee(bytes); }

} // namespace Qlt4_Tabla
