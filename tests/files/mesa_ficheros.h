// SPDX-License-Identifier: MIT
// MesaFicheros: a table's state with files in memory, the verbs of reading and writing, and everything a
// refused file must leave alone as one text.
#pragma once

#include "core/formatos.h"
#include "files/tabla_fichero.h"
#include "tests/core/mesa.h"

#include <string>
#include <string_view>

namespace Qlt4_Tabla {

struct MesaFicheros : Mesa {
    explicit MesaFicheros(std::string_view subtitulo = "Puntos") {
        Tablero_Nombres(e, "Obra", subtitulo, "*.tb0");
    }

    int cambios = 0; ///< how often a reading began to change the table

    /// The number of the error, or 0.
    int lee(std::string_view nombre) {
        return error_de([&] { lee_tabla(e, nombre, [this] { ++cambios; }); });
    }

    int lee_propia(std::string_view nombre) {
        return error_de([&] { lee_tabla_propia(e, nombre, [this] { ++cambios; }); });
    }

    int graba(std::string_view nombre) {
        return error_de([&] { graba_tabla(e, nombre); });
    }

    [[nodiscard]] std::string& fichero(const std::string& nombre) { return p.ficheros.contenidos[nombre]; }

    /// Text columns of 10 units, named A, B, C...
    void da_formatos(int columnas) {
        for (int col = 1; col < columnas; ++col) {
            T_FormatoColumna& f = pon_formato(col, T_formato::Alfanm);
            f.Nombre = std::string(1, static_cast<char>('A' + col - 1));
            f.Longitud = 10;
            e.Formatos_por_defecto[static_cast<std::size_t>(col)] = f;
        }
    }

    /// The texts of the whole grid, cells parted by "|", rows by "/".
    [[nodiscard]] std::string textos() {
        std::string todo;
        for (int fila = 0; fila < t().Rows(); ++fila) {
            for (int col = 0; col < t().Cols(); ++col) (todo += t().TextMatrix(fila, col)) += '|';
            todo.back() = '/';
        }
        return todo;
    }

    [[nodiscard]] std::string foto_entera() {
        p.registro.clear(); // the hourglass came and went
        return foto() + std::to_string(e.Modificado);
    }

private:
    template <class Trabajo>
    static int error_de(Trabajo&& trabajo) {
        try {
            trabajo();
        } catch (const Error& error) {
            return error.numero();
        }
        return 0;
    }
};

} // namespace Qlt4_Tabla
