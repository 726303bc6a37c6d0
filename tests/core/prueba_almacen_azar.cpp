// SPDX-License-Identifier: MIT
// AlmacenCeldas beside the plain model: long random sequences of all operations, on small and on wide
// tables, with short and with long texts. A fault prints the seed and the step.
#include "core/almacen_celdas.h"
#include "tests/core/modelo_celdas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>

namespace Qlt4_Tabla {
namespace {

struct Medida {
    const char* nombre;
    int filas; // about so many rows at most
    int columnas;
    int texto_largo; // bytes of the longest text
    int pasos;
};

class Gemelos {
public:
    Gemelos(const Medida& medida, unsigned semilla) : medida_(medida), azar_(semilla) {}

    void da_un_paso() {
        if (modelo_.columnas == 0) pon_columnas(uno_a(medida_.columnas));
        if (modelo_.n_filas() == 0) pon_filas(uno_a(medida_.filas));
        static constexpr void (Gemelos::*PASOS[])() = {&Gemelos::escribe, &Gemelos::escribe,
            &Gemelos::escribe, &Gemelos::escribe_seguido, &Gemelos::llena_filas, &Gemelos::copia_celda,
            &Gemelos::vacia, &Gemelos::escribe_fila, &Gemelos::escribe_fila, &Gemelos::inserta_una,
            &Gemelos::inserta, &Gemelos::borra_una, &Gemelos::borra, &Gemelos::borra_varias, &Gemelos::anade,
            &Gemelos::cambia_cuentas, &Gemelos::numera, &Gemelos::transforma, &Gemelos::pinta_texto,
            &Gemelos::pinta_fondo, &Gemelos::pinta_todo, &Gemelos::pon_alto};
        lee_unas();
        (this->*PASOS[menor(static_cast<int>(std::size(PASOS)))])();
        lee_unas();
    }

    void compara() {
        ASSERT_EQ(almacen_.filas(), modelo_.n_filas());
        ASSERT_EQ(almacen_.columnas(), modelo_.columnas);
        bool altos = false;
        for (int f = 0; f < modelo_.n_filas(); ++f) {
            compara_fila(f);
            if (testing::Test::HasFatalFailure()) return;
            altos = altos || modelo_.fila(f).alto >= 0;
        }
        ASSERT_EQ(almacen_.hay_altos(), altos);
    }

private:
    void compara_fila(int f) {
        std::vector<std::string_view> leida(static_cast<std::size_t>(modelo_.columnas));
        almacen_.lee_fila(f, 0, leida);
        std::vector<std::string> debe;
        for (int c = 0; c < modelo_.columnas; ++c) debe.push_back(modelo_.texto(f, c));
        ASSERT_TRUE(std::equal(leida.begin(), leida.end(), debe.begin(), debe.end())) << f;
        ASSERT_NO_FATAL_FAILURE(compara_seguida(f, debe));
        ModeloCeldas::Fila& fila = modelo_.fila(f);
        const auto color = [](const std::map<int, std::int32_t>& colores, int c) {
            const auto esta = colores.find(c);
            return esta == colores.end() ? 0 : esta->second;
        };
        for (int c = 0; c < modelo_.columnas; ++c) {
            const bool texto = almacen_.texto(f, c) == debe[static_cast<std::size_t>(c)];
            const bool fondo = almacen_.tiene_fondo(f, c) == fila.color_fondo.contains(c) &&
                almacen_.color_fondo(f, c) == color(fila.color_fondo, c);
            const bool letra = almacen_.color_texto(f, c) == color(fila.color_texto, c);
            ASSERT_TRUE(texto && fondo && letra) << f << "," << c << ": " << texto << fondo << letra;
        }
        ASSERT_EQ(almacen_.alto(f), fila.alto) << f;
    }

    // The row as it lies, which no row with a long text has.
    void compara_seguida(int f, const std::vector<std::string>& debe) {
        const auto es_largo = [](const std::string& t) { return t.size() >= LARGO; };
        const std::optional<FilaSeguida> seguida = almacen_.fila_seguida(f);
        ASSERT_EQ(seguida.has_value(), std::none_of(debe.begin(), debe.end(), es_largo)) << f;
        if (!seguida) return;
        ASSERT_LE(seguida->textos.longitudes.size(), debe.size()) << f;
        std::size_t c = 0;
        bool iguales = true;
        const auto compara = [&](std::string_view t) {
            const bool numero = c == 0 && seguida->numerada;
            iguales = iguales && (numero ? t.empty() && debe[0] == std::to_string(f) : t == debe[c]);
            ++c;
        };
        seguida->textos.recorre(compara);
        while (c < debe.size()) compara({});
        ASSERT_TRUE(iguales) << f;
    }

    // A few cells of near rows in any order; a text that was read first still stands when the others were read.
    void lee_unas() {
        if (modelo_.columnas == 0 || modelo_.n_filas() == 0) return;
        const int f1 = una_fila();
        const int c1 = modelo_.columnas == 1 ? 0 : 1 + menor(modelo_.columnas - 1);
        const std::string_view primero = almacen_.texto(f1, c1);
        for (int n = menor(12); n > 0; --n) {
            const int f = menor(3) == 0 ? una_fila() : std::min(f1 + menor(2), modelo_.n_filas() - 1);
            const int c = menor(2) == 0 ? una_col() : std::min(n, modelo_.columnas - 1);
            ASSERT_EQ(almacen_.texto(f, c), modelo_.texto(f, c)) << f << "," << c;
        }
        ASSERT_TRUE(c1 == 0 || primero == modelo_.texto(f1, c1)) << f1 << "," << c1;
    }

    int menor(int n) { return std::uniform_int_distribution<int>(0, n - 1)(azar_); }

    int uno_a(int n) { return 1 + menor(n); }

    int una_fila() { return menor(modelo_.n_filas()); }

    int una_col() { return menor(modelo_.columnas); }

    std::string un_texto(int f) {
        switch (menor(8)) {
        case 0: return "";
        case 1: return std::to_string(f); // its row number, where it is written to column 0
        case 2: return std::string(static_cast<std::size_t>(menor(medida_.texto_largo)), 'L');
        case 3: return std::string(static_cast<std::size_t>(250 + menor(10)), 'g');
        default: return std::string(static_cast<std::size_t>(menor(12)), static_cast<char>('a' + menor(26)));
        }
    }

    void pon(int f, int c, const std::string& t) {
        const bool cambia = modelo_.texto(f, c) != t;
        modelo_.pon_texto(f, c, t);
        ASSERT_EQ(almacen_.pon_texto(f, c, t), cambia) << f << "," << c;
    }

    void escribe() {
        const int f = una_fila();
        pon(f, una_col(), un_texto(f));
    }

    void escribe_seguido() {
        const int desde = una_fila();
        const int c = una_col();
        for (int f = desde; f < std::min(desde + 50, modelo_.n_filas()); ++f) pon(f, c, un_texto(f));
    }

    // Row after row from left to right, as hosts fill a table, with gaps; now and then from the cell before.
    void llena_filas() {
        const int desde = una_fila();
        const int ancho = uno_a(modelo_.columnas);
        for (int f = desde; f < std::min(desde + 20, modelo_.n_filas()); ++f) {
            for (int c = 1; c < ancho; c += 1 + menor(2)) {
                if (menor(6) != 0) {
                    pon(f, c, un_texto(f));
                    continue;
                }
                modelo_.pon_texto(f, c, modelo_.texto(f, c - 1));
                almacen_.pon_texto(f, c, almacen_.texto(f, c - 1));
            }
            if (menor(4) == 0) compara_fila(f);
        }
    }

    void copia_celda() { // from a view of the store itself
        const int f1 = una_fila();
        const int f2 = menor(2) == 0 ? f1 : una_fila();
        const int c1 = una_col();
        const int c2 = una_col();
        modelo_.pon_texto(f2, c2, modelo_.texto(f1, c1));
        almacen_.pon_texto(f2, c2, almacen_.texto(f1, c1));
        ASSERT_EQ(almacen_.iguales(f1, c1, f2, c2), modelo_.texto(f1, c1) == modelo_.texto(f2, c2));
    }

    void vacia() {
        const int f = una_fila();
        for (int c = menor(2); c < modelo_.columnas; ++c) pon(f, c, "");
    }

    void escribe_fila() {
        const int f = una_fila();
        const int c = una_col();
        std::vector<std::string> textos;
        for (int n = menor(modelo_.columnas - c + 1); n > 0; --n) textos.push_back(un_texto(f));
        bool cambia = false;
        for (std::size_t i = 0; i < textos.size(); ++i) {
            const int col = c + static_cast<int>(i);
            cambia = cambia || modelo_.texto(f, col) != textos[i];
            modelo_.pon_texto(f, col, textos[i]);
        }
        const std::vector<std::string_view> vistas(textos.begin(), textos.end());
        ASSERT_EQ(almacen_.pon_fila(f, c, vistas), cambia) << f << "," << c;
    }

    void inserta_una() { inserta(menor(modelo_.n_filas() + 1), 1); }

    void inserta() {
        const int sitio = medida_.filas - modelo_.n_filas();
        if (sitio > 0) inserta(menor(modelo_.n_filas() + 1), uno_a(sitio));
    }

    void inserta(int f, int n) {
        modelo_.inserta(f, n);
        almacen_.inserta(f, n);
    }

    void borra_una() { borra(una_fila(), 1); }

    void borra() {
        const int f = una_fila();
        borra(f, uno_a(modelo_.n_filas() - f));
    }

    void borra(int f, int n) {
        modelo_.borra(f, n);
        almacen_.borra(f, n);
    }

    void borra_varias() {
        const int de = uno_a(9);
        std::vector<int> filas;
        for (int f = una_fila(); f < modelo_.n_filas(); ++f)
            if (menor(10) < de) filas.push_back(f);
        for (auto it = filas.rbegin(); it != filas.rend(); ++it) modelo_.borra(*it, 1);
        almacen_.borra_varias(filas);
    }

    void anade() { // as rows are made one by one at the end
        for (int n = uno_a(40); n > 0; --n) {
            const int f = modelo_.n_filas();
            pon_filas(f + 1);
            pon(f, 0, std::to_string(f));
            pon(f, modelo_.columnas - 1, un_texto(f));
        }
    }

    void cambia_cuentas() {
        if (menor(3) == 0) return pon_columnas(menor(medida_.columnas + 1));
        if (menor(8) == 0) pon_filas(menor(medida_.filas));
    }

    void pon_filas(int n) {
        if (n > modelo_.n_filas())
            modelo_.inserta(modelo_.n_filas(), n - modelo_.n_filas());
        else
            modelo_.borra(n, modelo_.n_filas() - n);
        almacen_.pon_filas(n);
    }

    void pon_columnas(int n) {
        modelo_.pon_columnas(n);
        almacen_.pon_columnas(n);
    }

    void numera() {
        int primera = -1;
        for (int f = modelo_.n_filas() - 1; f > 0; --f)
            if (modelo_.texto(f, 0) != std::to_string(f)) primera = f;
        modelo_.numera();
        const FilasCambiadas cambiadas = almacen_.numera();
        ASSERT_TRUE(primera < 0 || (cambiadas.hay() && cambiadas.primera <= primera));
    }

    // Rewrites part of a column, reading other cells meanwhile; now and then the callback fails on the way.
    void transforma() {
        const int c = una_col();
        const int desde = una_fila();
        const int hasta = desde + menor(modelo_.n_filas() - desde);
        const int falla = menor(4) == 0 ? desde + menor(hasta - desde + 1) : -1;
        std::vector<std::string> nuevos;
        for (int f = desde; f <= hasta; ++f) nuevos.push_back(un_texto(f));
        const auto cambia = [&](int f, std::string_view viejo, std::string& nuevo) {
            EXPECT_EQ(viejo, modelo_.texto(f, c));
            EXPECT_EQ(nuevo, "");
            const int otra = una_col();
            EXPECT_TRUE(otra == c || almacen_.texto(f, otra) == modelo_.texto(f, otra)) << f << "," << otra;
            if (f == falla) throw std::runtime_error("falla");
            if (f % 3 == 0) return false;
            nuevo = nuevos[static_cast<std::size_t>(f - desde)];
            modelo_.pon_texto(f, c, nuevo);
            return true;
        };
        if (falla < 0)
            almacen_.transforma(c, desde, hasta, cambia);
        else
            ASSERT_THROW(almacen_.transforma(c, desde, hasta, cambia), std::runtime_error);
    }

    void pinta_texto() {
        const std::int32_t color = menor(3) == 0 ? 0 : menor(1 << 24);
        pinta(color, true, menor(8) == 0);
    }

    void pinta_fondo() { pinta(menor(3) == 0 ? 0 : menor(1 << 24), false, menor(8) == 0); }

    void pinta_todo() {
        if (menor(6) == 0) pinta(menor(1 << 24), menor(2) == 0, true);
    }

    void pinta(std::int32_t color, bool texto, bool todas) {
        const int f1 = todas ? 0 : una_fila();
        const int f2 = todas ? modelo_.n_filas() - 1 : std::min(f1 + menor(200), modelo_.n_filas() - 1);
        const int c1 = una_col();
        const int c2 = c1 + menor(modelo_.columnas - c1);
        bool cambia = false;
        for (int f = f1; f <= f2; ++f) {
            for (int c = c1; c <= c2; ++c) {
                auto& plano = texto ? modelo_.fila(f).color_texto : modelo_.fila(f).color_fondo;
                const bool quita = texto && color == 0;
                cambia = cambia || (quita ? plano.contains(c) : !plano.contains(c) || plano[c] != color);
                if (quita)
                    plano.erase(c);
                else
                    plano[c] = color;
            }
        }
        const bool dice = texto ? almacen_.pon_color_texto(f1, c1, f2, c2, color)
                                : almacen_.pon_color_fondo(f1, c1, f2, c2, color);
        ASSERT_EQ(dice, cambia);
    }

    void pon_alto() {
        const int f = una_fila();
        const int alto = menor(3) == 0 ? -1 : menor(900);
        ASSERT_EQ(almacen_.pon_alto(f, alto), modelo_.fila(f).alto != alto);
        modelo_.fila(f).alto = alto;
    }

    Medida medida_;
    std::mt19937 azar_;
    ModeloCeldas modelo_;
    AlmacenCeldas almacen_;
};

class Almacen_al_azar : public testing::TestWithParam<Medida> {};

TEST_P(Almacen_al_azar, hace_lo_mismo_que_el_modelo) {
    for (unsigned semilla = 1; semilla <= 6; ++semilla) {
        Gemelos gemelos(GetParam(), semilla);
        for (int paso = 0; paso < GetParam().pasos; ++paso) {
            SCOPED_TRACE("semilla " + std::to_string(semilla) + ", paso " + std::to_string(paso));
            gemelos.da_un_paso();
            if (paso % 20 == 0 || paso < 20) gemelos.compara();
            if (HasFatalFailure()) return;
        }
        gemelos.compara();
    }
}

INSTANTIATE_TEST_SUITE_P(, Almacen_al_azar,
    testing::Values(Medida{"pequena", 12, 4, 300, 4000}, Medida{"larga", 1500, 6, 300, 800},
        Medida{"ancha", 30, 300, 300, 800}, Medida{"pesada", 400, 12, 2000, 600},
        Medida{"muy_ancha", 4, 5000, 400, 30}),
    [](const auto& medida) { return medida.param.nombre; });

} // namespace
} // namespace Qlt4_Tabla
