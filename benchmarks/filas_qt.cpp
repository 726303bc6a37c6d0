// SPDX-License-Identifier: MIT
// Row operations at three sizes: append, insert and delete in the middle, renumber, delete a large block;
// unpainted through the commands of the table, and painted in a window of 1200 x 800. The cost of one
// operation must not grow with the rows of the table.
//
//   QT_QPA_PLATFORM=offscreen medicion_filas_qt
#include "control/tabla0.h"
#include "datos.h"
#include "headless/plataforma_memoria.h"
#include "qt/tabla_widget.h"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace Qlt4_Tabla;
using namespace Qlt4_Tabla::medida;

constexpr int FILAS_DEL_BLOQUE = 100'000;

void prepara(Tabla0& t, int filas) {
    t.Redraw(false);
    t.Cols(COLUMNAS + 1);
    t.Rows(filas + 1);
    for (int f = 1; f <= filas; ++f) {
        for (int c = 1; c <= COLUMNAS; ++c) t.TextMatrix(f, c, datos().celda(f - 1, c - 1));
    }
    t.Redraw(true);
}

// A table on the platform in memory, with a view that records nothing.
class EnMemoria {
public:
    explicit EnMemoria(int filas) : tabla(plataforma_.plataforma(vista_), plataforma_.eventos) {
        prepara(tabla, filas);
    }

    void pinta() { plataforma_.registro.clear(); }

private:
    VistaNula vista_;
    PlataformaMemoria plataforma_;

public:
    Tabla0 tabla;
};

// A table on a window that is painted after each operation.
class EnVentana {
public:
    explicit EnVentana(int filas) : tabla(widget_.tabla()) {
        widget_.resize(1200, 800);
        prepara(tabla, filas);
        widget_.show();
        pinta();
    }

    void pinta() { QApplication::processEvents(); }

private:
    TablaWidget widget_;

public:
    Tabla0& tabla;
};

int medio(Tabla0& t) { return t.Rows() / 2; }

template <class Sitio>
void Anade(benchmark::State& estado) {
    Sitio s(static_cast<int>(estado.range(0)));
    s.tabla.mandos().elige_celda(s.tabla.Rows() - 1, 1);
    for (auto _ : estado) {
        s.tabla.mandos().tecla_pulsada(13); // Enter on the last row makes the next one and moves there
        s.pinta();
    }
}

template <class Sitio>
void InsertaYBorraEnMedio(benchmark::State& estado) {
    Sitio s(static_cast<int>(estado.range(0)));
    s.tabla.mandos().elige_celda(medio(s.tabla), 1);
    for (auto _ : estado) {
        s.tabla.mandos().orden(Opcion::mn_insertar_filas);
        s.pinta();
        s.tabla.mandos().orden(Opcion::mn_eliminar_filas);
        s.pinta();
    }
}

// Inserting renumbers; here one number was overwritten each time, so that there is something to repair.
template <class Sitio>
void Renumera(benchmark::State& estado) {
    Sitio s(static_cast<int>(estado.range(0)));
    s.tabla.mandos().elige_celda(1, 1);
    for (auto _ : estado) {
        s.tabla.TextMatrix(medio(s.tabla), 0, "x");
        s.tabla.mandos().orden(Opcion::mn_insertar_filas);
        s.tabla.mandos().orden(Opcion::mn_eliminar_filas);
    }
}

template <class Sitio>
void BorraBloque(benchmark::State& estado) {
    const int filas = static_cast<int>(estado.range(0));
    for (auto _ : estado) {
        estado.PauseTiming();
        auto s = std::make_unique<Sitio>(filas);
        s->tabla.mandos().elige_bloque(filas / 4, 1, filas / 4 + FILAS_DEL_BLOQUE - 1, COLUMNAS);
        s->pinta();
        estado.ResumeTiming();
        s->tabla.mandos().orden(Opcion::mn_eliminar_filas);
        s->pinta();
        estado.PauseTiming();
        s.reset();
        estado.ResumeTiming();
    }
}

void tamanos(benchmark::internal::Benchmark* b) {
    // A fixed count keeps the table near the size named.
    b->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond)->Iterations(1000);
}

void bloques(benchmark::internal::Benchmark* b) {
    b->Arg(200'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->Iterations(2);
}

BENCHMARK_TEMPLATE(Anade, EnMemoria)->Apply(tamanos);
BENCHMARK_TEMPLATE(InsertaYBorraEnMedio, EnMemoria)->Apply(tamanos);
BENCHMARK_TEMPLATE(Renumera, EnMemoria)->Apply(tamanos);
BENCHMARK_TEMPLATE(BorraBloque, EnMemoria)->Apply(bloques);
BENCHMARK_TEMPLATE(Anade, EnVentana)->Apply(tamanos);
BENCHMARK_TEMPLATE(InsertaYBorraEnMedio, EnVentana)->Apply(tamanos);
BENCHMARK_TEMPLATE(BorraBloque, EnVentana)->Apply(bloques);

} // namespace

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
