// SPDX-License-Identifier: MIT
// First measurements: fill, read, commit a cell, append a row, format a column; this table beside a vector
// of vectors of strings and beside QStandardItemModel, in one run and on the same input. Read the figures
// as ratios: times are of the machine that ran them.
//
//   medicion_primeras_qt --benchmark_filter=Llena
//
// Each line: time of the whole work, items_per_second (cells or rows), bytes_por_celda where it applies.
#include "control/tabla0.h"
#include "core/formatos.h"
#include "core/reglas_valor.h"
#include "datos.h"
#include "headless/plataforma_memoria.h"

#include <QStandardItemModel>
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace Qlt4_Tabla;
using namespace Qlt4_Tabla::medida;

constexpr int COL_REAL = 1; // 0-based among the data columns

// --- The contestants: the same few verbs over three stores ---

class Tabla {
public:
    Tabla() : tabla_(plataforma_.plataforma(vista_), plataforma_.eventos) {
        tabla_.Cols(COLUMNAS + 1);
        constexpr T_formato CLASES[] = {
            T_formato::Entero, T_formato::Real__, T_formato::Alfanm, T_formato::Alfanm, T_formato::Alfanm};
        for (std::int16_t c = 1; c <= COLUMNAS; ++c) {
            tabla_.FormatoColumnas(c, false, false, CLASES[(c - 1) % 5], 3, T_Alineacion::Drcha,
                c == 3 ? T_Accion::Increm : T_Accion::Nada__, 10, "Col");
        }
        tabla_.Tablero_establece_Formato();
    }

    void filas(int n) { tabla_.Rows(n + 1); }

    void pon(int fila, int col, const std::string& s) { tabla_.TextMatrix(fila + 1, col + 1, s); }

    [[nodiscard]] std::size_t lee(int fila, int col) {
        return tabla_.tablero().TextMatrix(fila + 1, col + 1).size();
    }

    // As a user does: a key opens the box, the rest of the text, Enter writes and advances.
    void escribe_como_usuario(int fila, int col, const std::string& s) {
        tabla_.mandos().elige_celda(fila + 1, col + 1);
        tabla_.mandos().tecla_pulsada('1');
        plataforma_.casilla.pon_texto(s);
        tabla_.mandos().editor().tecla_casilla(13);
        plataforma_.registro.clear();
    }

    void anade() { tabla_.crea_una_fila(); }

    void formatea(int col) {
        // The column is given another count of decimals, so that every cell is rewritten; the others are
        // made text columns, so that only this one is formatted.
        decimales_ = static_cast<std::int16_t>(5 - decimales_);
        for (std::int16_t c = 1; c <= COLUMNAS; ++c) {
            const bool esta = c == col + 1;
            tabla_.FormatoColumnas(c, false, false, esta ? T_formato::Real__ : T_formato::Alfanm,
                esta ? decimales_ : std::int16_t{0}, T_Alineacion::Drcha, T_Accion::Nada__, 10, "Col");
        }
        tabla_.Tablero_establece_Formato();
    }

private:
    // A recording view would be measured too.
    VistaNula vista_;
    PlataformaMemoria plataforma_;
    Tabla0 tabla_;
    std::int16_t decimales_ = 3;
};

class Vectores {
public:
    void filas(int n) { v_.assign(static_cast<std::size_t>(n), std::vector<std::string>(COLUMNAS)); }

    void pon(int fila, int col, const std::string& s) { celda(fila, col) = s; }

    [[nodiscard]] std::size_t lee(int fila, int col) { return celda(fila, col).size(); }

    void escribe_como_usuario(int fila, int col, const std::string& s) {
        celda(fila, col) = Formato_Numero(s, 0, 3);
    }

    void anade() { v_.emplace_back(COLUMNAS); }

    void formatea(int col) {
        decimales_ = 5 - decimales_;
        for (auto& fila : v_) {
            auto& s = fila[static_cast<std::size_t>(col)];
            s = Formato_Numero(s, 0, decimales_);
        }
    }

private:
    std::string& celda(int fila, int col) {
        return v_[static_cast<std::size_t>(fila)][static_cast<std::size_t>(col)];
    }

    std::vector<std::vector<std::string>> v_;
    int decimales_ = 3;
};

class Modelo {
public:
    void filas(int n) {
        m_.setColumnCount(COLUMNAS);
        m_.setRowCount(n);
    }

    void pon(int fila, int col, const std::string& s) {
        m_.setData(m_.index(fila, col), QString::fromStdString(s));
    }

    [[nodiscard]] std::size_t lee(int fila, int col) {
        return static_cast<std::size_t>(m_.index(fila, col).data().toString().size());
    }

    void escribe_como_usuario(int fila, int col, const std::string& s) {
        m_.setData(m_.index(fila, col), QString::fromStdString(Formato_Numero(s, 0, 3)));
    }

    void anade() { m_.insertRow(m_.rowCount()); }

    void formatea(int col) {
        decimales_ = 5 - decimales_;
        for (int f = 0; f < m_.rowCount(); ++f) {
            const QModelIndex i = m_.index(f, col);
            m_.setData(i, QString::number(i.data().toString().toDouble(), 'f', decimales_));
        }
    }

private:
    QStandardItemModel m_;
    int decimales_ = 3;
};

template <class Almacen>
void llena(Almacen& a, int filas) {
    a.filas(filas);
    for (int f = 0; f < filas; ++f) {
        for (int c = 0; c < COLUMNAS; ++c) a.pon(f, c, datos().celda(f, c));
    }
}

// --- The measurements ---

template <class Almacen>
void Llena(benchmark::State& estado) {
    const int filas = static_cast<int>(estado.range(0));
    datos();
    double bytes = 0;
    for (auto _ : estado) {
        const std::size_t antes = memoria_en_uso();
        auto a = std::make_unique<Almacen>();
        llena(*a, filas);
        estado.PauseTiming();
        bytes = static_cast<double>(memoria_en_uso() - antes) / (static_cast<double>(filas) * COLUMNAS);
        a.reset();
        estado.ResumeTiming();
    }
    estado.SetItemsProcessed(estado.iterations() * filas * COLUMNAS);
    estado.counters["bytes_por_celda"] = bytes;
}

template <class Almacen>
void Lee(benchmark::State& estado) {
    const int filas = static_cast<int>(estado.range(0));
    Almacen a;
    llena(a, filas);
    for (auto _ : estado) {
        std::size_t suma = 0;
        for (int f = 0; f < filas; ++f) {
            for (int c = 0; c < COLUMNAS; ++c) suma += a.lee(f, c);
        }
        benchmark::DoNotOptimize(suma);
    }
    estado.SetItemsProcessed(estado.iterations() * filas * COLUMNAS);
}

template <class Almacen>
void EscribeCelda(benchmark::State& estado) {
    const int filas = static_cast<int>(estado.range(0));
    Almacen a;
    llena(a, filas);
    int n = 0;
    for (auto _ : estado) {
        // Somewhere else each time, never on the last row, with another value.
        const int fila = static_cast<int>((n * 7919LL) % (filas - 1));
        a.escribe_como_usuario(fila, COL_REAL, datos().celda(++n, COL_REAL));
    }
    estado.SetItemsProcessed(estado.iterations());
}

template <class Almacen>
void AnadeFila(benchmark::State& estado) {
    Almacen a;
    llena(a, static_cast<int>(estado.range(0)));
    for (auto _ : estado) a.anade();
    estado.SetItemsProcessed(estado.iterations());
}

template <class Almacen>
void FormateaColumna(benchmark::State& estado) {
    const int filas = static_cast<int>(estado.range(0));
    Almacen a;
    llena(a, filas);
    for (auto _ : estado) a.formatea(COL_REAL);
    estado.SetItemsProcessed(estado.iterations() * filas);
}

void tamanos(benchmark::internal::Benchmark* b) {
    b->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
}

void tamanos_por_pieza(benchmark::internal::Benchmark* b) {
    // Appending makes the table longer: a fixed count keeps its size near the one named.
    b->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond)->Iterations(2000);
}

#define MEDIDA(que, ajuste) \
    BENCHMARK_TEMPLATE(que, Tabla)->Apply(ajuste); \
    BENCHMARK_TEMPLATE(que, Vectores)->Apply(ajuste); \
    BENCHMARK_TEMPLATE(que, Modelo)->Apply(ajuste)

MEDIDA(Llena, tamanos);
MEDIDA(Lee, tamanos);
MEDIDA(EscribeCelda, tamanos_por_pieza);
MEDIDA(AnadeFila, tamanos_por_pieza);
MEDIDA(FormateaColumna, tamanos);

} // namespace

BENCHMARK_MAIN();
