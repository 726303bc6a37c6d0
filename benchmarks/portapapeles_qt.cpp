// SPDX-License-Identifier: MIT
// Copy and paste of 100,000 rows by 10 columns of numbers with three decimals: this table beside a bare split
// of the same text and beside QStandardItemModel fed the same block, in one run. Read the figures as ratios:
// times are of the machine that ran them.
//
//   medicion_portapapeles_qt --benchmark_filter=Pega
//
// The clipboard is one in memory for all, so that no contestant waits for the system. Every paste begins on an
// empty table; what is pasted is checked once before the measurement.
#include "base/lineas.h"
#include "control/tabla0.h"
#include "headless/plataforma_memoria.h"

#include <QStandardItemModel>
#include <QStringList>
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace Qlt4_Tabla;

constexpr int FILAS = 100000;
constexpr int COLUMNAS = 10;

std::string haz_bloque(char separador) {
    std::string texto;
    std::uint32_t x = 12345;
    for (int f = 0; f < FILAS; ++f) {
        for (int c = 0; c < COLUMNAS; ++c) {
            x = x * 1664525U + 1013904223U;
            if (c > 0) texto += '\t';
            texto += std::to_string(100000U + (x >> 8) % 900000U) + separador;
            texto += std::to_string(1000U + (x >> 4) % 1000U).substr(1);
        }
        texto += "\r\n";
    }
    return texto;
}

const std::string& bloque(bool coma) {
    static const std::string con_punto = haz_bloque('.');
    static const std::string con_coma = haz_bloque(',');
    return coma ? con_coma : con_punto;
}

class Tabla {
public:
    explicit Tabla(bool coma, T_formato formato = T_formato::Real__)
        : tabla_(p_.plataforma(vista_), p_.eventos) {
        p_.separador.coma = coma;
        tabla_.Cols(COLUMNAS + 1);
        for (std::int16_t c = 1; c <= COLUMNAS; ++c)
            tabla_.FormatoColumnas(
                c, false, false, formato, 3, T_Alineacion::Drcha, T_Accion::Nada__, 10, "X");
        tabla_.Tablero_establece_Formato();
        p_.portapapeles.texto = bloque(coma);
    }

    void vacia() {
        tabla_.Rows(2);
        tabla_.mandos().elige_celda(1, 1);
        p_.registro.clear();
    }

    void pega() { tabla_.mandos().orden(Opcion::mn_Pegar); }

    void elige_todo() { tabla_.mandos().elige_bloque(1, 1, tabla_.Rows() - 1, COLUMNAS); }

    const std::string& copia() {
        tabla_.mandos().orden(Opcion::mn_copiar);
        p_.registro.clear();
        return p_.portapapeles.texto;
    }

private:
    // A recording view would be measured too.
    VistaNula vista_;
    PlataformaMemoria p_;
    Tabla0 tabla_;
};

void cuenta(benchmark::State& estado, bool coma) {
    const std::int64_t vueltas = estado.iterations();
    estado.SetItemsProcessed(vueltas * FILAS * COLUMNAS);
    estado.SetBytesProcessed(vueltas * static_cast<std::int64_t>(bloque(coma).size()));
}

void PegaTabla(benchmark::State& estado, bool coma, T_formato formato) {
    Tabla tabla(coma, formato);
    tabla.vacia();
    tabla.pega();
    tabla.elige_todo();
    // Numbers come back in the platform's own sign; text cells on a point platform hold the block as it was.
    if (tabla.copia() != bloque(coma)) return estado.SkipWithError("not what was pasted");
    for (auto _ : estado) {
        estado.PauseTiming();
        tabla.vacia();
        estado.ResumeTiming();
        tabla.pega();
    }
    cuenta(estado, coma);
}

void CopiaTabla(benchmark::State& estado, bool coma) {
    Tabla tabla(coma);
    tabla.vacia();
    tabla.pega();
    tabla.elige_todo();
    if (tabla.copia() != bloque(coma)) return estado.SkipWithError("not what was pasted");
    for (auto _ : estado) benchmark::DoNotOptimize(tabla.copia().data());
    cuenta(estado, coma);
}

// The floor: the text cut into fields, which go nowhere.
void PegaCorteSolo(benchmark::State& estado) {
    std::vector<std::string_view> campos;
    for (auto _ : estado) {
        const std::string_view texto = bloque(false);
        for (std::size_t i = 0; i < texto.size();) {
            const std::size_t fin = busca_separador(texto, i);
            campos.push_back(texto.substr(i, fin - i));
            if (campos.size() == COLUMNAS) {
                benchmark::DoNotOptimize(campos.data());
                campos.clear();
            }
            i = fin + (texto.compare(fin, 2, "\r\n") == 0 ? 2 : 1);
        }
    }
    cuenta(estado, false);
}

// The same into strings of their own, byte by byte, as a first program would.
void PegaCorteEnTextos(benchmark::State& estado) {
    for (auto _ : estado) {
        std::vector<std::vector<std::string>> filas(1);
        std::string campo;
        for (const char c : bloque(false)) {
            if (c == '\t' || c == '\n') {
                filas.back().push_back(std::move(campo));
                campo.clear();
                if (c == '\n') filas.emplace_back();
            } else if (c != '\r') {
                campo += c;
            }
        }
        benchmark::DoNotOptimize(filas.data());
    }
    cuenta(estado, false);
}

void llena(QStandardItemModel& modelo, const std::string& texto) {
    QString todo = QString::fromStdString(texto);
    todo.remove(QLatin1Char('\r'));
    QStringList lineas = todo.split(QLatin1Char('\n'));
    lineas.removeLast();
    modelo.setColumnCount(COLUMNAS);
    modelo.setRowCount(static_cast<int>(lineas.size()));
    for (int f = 0; f < lineas.size(); ++f) {
        const QStringList campos = lineas.at(f).split(QLatin1Char('\t'));
        for (int c = 0; c < campos.size(); ++c) {
            const QString numero = QString::number(campos.at(c).toDouble(), 'f', 3);
            modelo.setItem(f, c, new QStandardItem(numero));
        }
    }
}

std::string texto_de(const QStandardItemModel& modelo) {
    QString todo;
    for (int f = 0; f < modelo.rowCount(); ++f) {
        for (int c = 0; c < modelo.columnCount(); ++c) {
            if (c > 0) todo += QLatin1Char('\t');
            todo += modelo.index(f, c).data().toString();
        }
        todo += QLatin1String("\r\n");
    }
    return todo.toStdString();
}

void PegaModelo(benchmark::State& estado) {
    for (auto _ : estado) {
        QStandardItemModel modelo;
        llena(modelo, bloque(false));
        estado.PauseTiming(); // its end is not the paste's
        modelo.clear();
        estado.ResumeTiming();
    }
    cuenta(estado, false);
}

void CopiaModelo(benchmark::State& estado) {
    QStandardItemModel modelo;
    llena(modelo, bloque(false));
    if (texto_de(modelo) != bloque(false)) return estado.SkipWithError("not what was pasted");
    for (auto _ : estado) benchmark::DoNotOptimize(texto_de(modelo));
    cuenta(estado, false);
}

BENCHMARK_CAPTURE(PegaTabla, numeros_con_punto, false, T_formato::Real__)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PegaTabla, numeros_con_coma, true, T_formato::Real__)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PegaTabla, textos_con_punto, false, T_formato::Alfanm)->Unit(benchmark::kMillisecond);
BENCHMARK(PegaCorteSolo)->Unit(benchmark::kMillisecond);
BENCHMARK(PegaCorteEnTextos)->Unit(benchmark::kMillisecond);
BENCHMARK(PegaModelo)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CopiaTabla, con_punto, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CopiaTabla, con_coma, true)->Unit(benchmark::kMillisecond);
BENCHMARK(CopiaModelo)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
