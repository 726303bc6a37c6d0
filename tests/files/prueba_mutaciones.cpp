// SPDX-License-Identifier: MIT
// Ten thousand files that were good once: bits turned, counts replaced, pieces cut, doubled and put in. Each
// is refused without a trace or read as it stands. The same files every time.
#include "tests/files/propiedades_tb0.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace Qlt4_Tabla {

namespace {

constexpr int MUTACIONES = 10000;

/// A table's record from rows of texts; the first row is the header.
std::string registro(
    const std::vector<std::vector<std::string>>& filas, const T_FormatoColumna& formato25 = {}) {
    PlataformaMemoria p;
    Tablero t(p.vista);
    t.Cols(static_cast<int>(filas.front().size()) + 1);
    t.Rows(static_cast<int>(filas.size()));
    t.numera_filas();
    int fila = 0;
    for (const auto& textos : filas) {
        int col = 0;
        for (const std::string& texto : textos) t.TextMatrix(fila, ++col, texto);
        ++fila;
    }
    return bytes_tb0(t, "Puntos", formato25);
}

std::vector<std::vector<std::string>> filas_de_csv(const std::string& ruta) {
    std::ifstream entrada(ruta);
    std::vector<std::vector<std::string>> filas;
    for (std::string linea; std::getline(entrada, linea);) {
        std::istringstream partes(linea);
        filas.emplace_back();
        for (std::string texto; std::getline(partes, texto, ',');) filas.back().push_back(texto);
    }
    for (auto& fila : filas) fila.resize(filas.front().size());
    return filas;
}

/// The sampling points of the examples, letters beyond ASCII and long texts, all columns, a header alone.
const std::vector<std::string>& ficheros_buenos() {
    static const std::vector<std::string> todos = [] {
        const auto puntos = filas_de_csv(TABLA_DIR_PRUEBAS "/../examples/datos/meuse.csv");
        std::vector<std::string> ancha(25, "á");
        return std::vector{registro(puntos), registro({puntos[0], puntos[1]}),
            registro({{"Año €"}, {std::string(300, 'x')}, {"\x01"}, {""}}),
            registro(
                {ancha, ancha, ancha}, {.Nombre = "Última", .Longitud = 10, .Formato = 2, .Decimales = 2}),
            registro({{"X"}})};
    }();
    return todos;
}

class Mutador {
public:
    std::string muta(std::string s) {
        for (std::uint32_t n = 1 + azar(4); n != 0; --n) una(s);
        return s;
    }

    std::uint32_t azar(std::size_t hasta) { return static_cast<std::uint32_t>(motor_() % hasta); }

private:
    /// The beginning of the file, where the counts are, as often as all the rest.
    std::size_t lugar(const std::string& s) {
        return azar(2) == 0 ? azar(s.size()) : azar(std::min<std::size_t>(s.size(), 80));
    }

    void una(std::string& s) {
        static constexpr std::array<std::uint32_t, 12> NUMEROS{
            0, 1, 2, 25, 26, 27, 0x7FFF, 0x8000, 0xFFFF, 0x7FFFFFFF, 0x80000000U, 0xFFFFFFFFU};
        if (s.empty()) return s.push_back('\0');
        const std::size_t i = lugar(s);
        const std::size_t n = 1 + azar(40);
        switch (azar(8)) {
        case 0: s[i] = static_cast<char>(s[i] ^ (1 << azar(8))); break;
        case 1: s[i] = static_cast<char>(azar(256)); break;
        case 2: pon(s, i, NUMEROS[azar(NUMEROS.size())], 2); break;
        case 3: pon(s, i, NUMEROS[azar(NUMEROS.size())], 4); break;
        case 4: s.resize(i); break;
        case 5: s.erase(i, n); break;
        case 6: s.insert(i, s.substr(lugar(s), n)); break;
        default: s.insert(i, n, static_cast<char>(azar(2) * 0xFF)); break;
        }
    }

    static void pon(std::string& s, std::size_t i, std::uint32_t numero, std::size_t bytes) {
        for (std::size_t k = 0; k < bytes && i + k < s.size(); ++k)
            s[i + k] = static_cast<char>(static_cast<unsigned char>(numero >> (8 * k)));
    }

    std::mt19937 motor_{20260101};
};

TEST(Mutaciones, los_ficheros_de_partida_son_buenos) {
    for (const std::string& bueno : ficheros_buenos()) {
        EXPECT_TRUE(std::holds_alternative<RegistroTb0>(examina_tb0(bueno)));
        EXPECT_EQ(falta_con(bueno), "");
    }
    EXPECT_EQ(std::get<RegistroTb0>(examina_tb0(ficheros_buenos()[0])).filas, 156);
}

TEST(Mutaciones, diez_mil_ficheros_estropeados_no_estropean_nada) {
    Mutador mutador;
    int rechazados = 0;
    for (int i = 0; i < MUTACIONES; ++i) {
        const auto& buenos = ficheros_buenos();
        const std::string malo = mutador.muta(buenos[static_cast<std::size_t>(i) % buenos.size()]);
        if (std::holds_alternative<FalloTb0>(examina_tb0(malo))) ++rechazados;
        ASSERT_EQ(falta_con(malo), "") << "mutation " << i;
    }
    EXPECT_GT(rechazados, MUTACIONES / 2); // both ways are walked
    EXPECT_LT(rechazados, MUTACIONES * 95 / 100);
}

} // namespace

} // namespace Qlt4_Tabla
