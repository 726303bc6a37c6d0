// SPDX-License-Identifier: MIT
// The set of rows that follows them: runs, joining, rows inserted and removed, against a plain set.
#include "core/tramos_filas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace Qlt4_Tabla {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Tramo = TramosFilas::Tramo;

std::vector<Tramo> de(const TramosFilas& t) { return {t.tramos().begin(), t.tramos().end()}; }

TEST(TramosFilas, RowsThatTouchBecomeOneRun) {
    TramosFilas t;
    t.anade(5, 6);
    t.anade(1, 3);
    t.anade(3, 4);
    t.anade(8, 10);
    EXPECT_THAT(de(t), ElementsAre(Tramo{1, 4}, Tramo{5, 6}, Tramo{8, 10}));
    t.anade(4, 8);
    EXPECT_THAT(de(t), ElementsAre(Tramo{1, 10}));
}

TEST(TramosFilas, NoRowsAreNoRun) {
    TramosFilas t;
    t.anade(5, 5);
    EXPECT_THAT(de(t), IsEmpty());
}

TEST(TramosFilas, InsertedRowsAreTakenInAndMoveTheOthers) {
    TramosFilas t;
    t.anade(2, 4);
    t.anade(8, 9);
    t.inserta(3, 2);
    EXPECT_THAT(de(t), ElementsAre(Tramo{2, 6}, Tramo{10, 11}));
    t.inserta(0, 1);
    EXPECT_THAT(de(t), ElementsAre(Tramo{0, 1}, Tramo{3, 7}, Tramo{11, 12}));
}

TEST(TramosFilas, RowsThatGiveWayMoveAndTakeNoneInFromOutside) {
    TramosFilas t;
    t.anade(2, 4);
    t.anade(8, 9);
    t.desplaza(3, 2); // within a run
    EXPECT_THAT(de(t), ElementsAre(Tramo{2, 6}, Tramo{10, 11}));
    t.desplaza(6, 1);
    t.desplaza(0, 1);
    EXPECT_THAT(de(t), ElementsAre(Tramo{3, 7}, Tramo{12, 13}));
}

TEST(TramosFilas, RowsAddedOneBehindTheOtherAreOneRun) {
    TramosFilas t;
    for (const int fila : {5, 6, 7, 2, 3, 4, 8}) t.anade(fila, fila + 1);
    EXPECT_THAT(de(t), ElementsAre(Tramo{2, 9}));
    t.anade(9, 9);
    t.anade(1, 2);
    EXPECT_THAT(de(t), ElementsAre(Tramo{1, 9}));
}

TEST(TramosFilas, RemovedRowsLeave) {
    TramosFilas t;
    t.anade(2, 6);
    t.anade(10, 12);
    t.borra(4, 7);
    EXPECT_THAT(de(t), ElementsAre(Tramo{2, 5}));
    t.borra(std::vector{0, 3});
    EXPECT_THAT(de(t), ElementsAre(Tramo{1, 3}));
    t.borra(0, 9);
    EXPECT_THAT(de(t), IsEmpty());
}

TEST(TramosFilas, ManyPlacesAreJoinedAndNoneIsLost) {
    TramosFilas t;
    for (int f = 0; f < 100; ++f) t.anade(f * 10, f * 10 + 1);
    EXPECT_LE(t.tramos().size(), 16U);
    for (int f = 0; f < 100; ++f)
        EXPECT_TRUE(std::any_of(t.tramos().begin(), t.tramos().end(),
            [f](Tramo x) { return x.desde <= f * 10 && f * 10 < x.hasta; }));
}

/// The same calls on a flag a row.
class Modelo {
public:
    TramosFilas tramos;
    std::vector<bool> filas = std::vector<bool>(60);

    void anade(int desde, int hasta) {
        tramos.anade(desde, hasta);
        std::fill(filas.begin() + desde, filas.begin() + std::max(desde, hasta), true);
    }

    void inserta(int fila, int n) {
        tramos.inserta(fila, n);
        filas.insert(filas.begin() + fila, static_cast<std::size_t>(n), true);
    }

    void borra(int fila, int n) {
        tramos.borra(fila, n);
        filas.erase(filas.begin() + fila, filas.begin() + fila + n);
    }

    [[nodiscard]] bool falta_alguna() const {
        for (int f = 0; f < static_cast<int>(filas.size()); ++f)
            if (filas[static_cast<std::size_t>(f)] && !tiene(f)) return true;
        return false;
    }

    [[nodiscard]] bool sobra_alguna() const {
        for (int f = 0; f < static_cast<int>(filas.size()); ++f)
            if (!filas[static_cast<std::size_t>(f)] && tiene(f)) return true;
        return !tramos.tramos().empty() && tramos.tramos().back().hasta > static_cast<int>(filas.size());
    }

private:
    [[nodiscard]] bool tiene(int f) const {
        return std::any_of(tramos.tramos().begin(), tramos.tramos().end(),
            [f](Tramo x) { return x.desde <= f && f < x.hasta; });
    }
};

TEST(TramosFilas, AnyCallsHoldWhatAFlagARowHolds) {
    std::mt19937 azar(7);
    const auto hasta = [&azar](std::size_t n) { return static_cast<int>(azar() % (n + 1)); };
    for (int vuelta = 0; vuelta < 300; ++vuelta) {
        Modelo m;
        for (int paso = 0; paso < 40; ++paso) {
            const int fila = hasta(m.filas.size());
            const int n = hasta(std::min<std::size_t>(5, m.filas.size() - static_cast<std::size_t>(fila)));
            switch (azar() % 4) {
            case 0: m.inserta(fila, n); break;
            case 1: m.borra(fila, n); break;
            default: m.anade(fila, fila + n);
            }
            ASSERT_FALSE(m.falta_alguna());
            const bool pueden_estar_juntas = m.tramos.tramos().size() > 8;
            ASSERT_TRUE(pueden_estar_juntas || paso > 20 || !m.sobra_alguna());
        }
    }
}

} // namespace
} // namespace Qlt4_Tabla
