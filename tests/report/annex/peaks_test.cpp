#include "report/annex/peaks.hpp"

#include <gtest/gtest.h>

#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"

namespace korven::report {
namespace {

live::PareteViva parete() { return live::calcola(test::progettoSemplice(), 40); }

TEST(Picchi, AreTheExtremesOfTheWall) {
    const auto p = parete();
    const auto& [y, M, T] = grandezze();
    for (int k = 0; k <= 2; ++k) {
        const auto e = *p.estremiDi(k);
        const Picco massimo = picco(p, k, M, 1), minimo = picco(p, k, M, -1);
        EXPECT_EQ(massimo.valore, e.momentoMassimo.valore);
        EXPECT_EQ(static_cast<double>(massimo.nodo) * p.h, e.momentoMassimo.z);
        EXPECT_EQ(massimo.fase, e.momentoMassimo.fase);
        EXPECT_EQ(minimo.valore, e.momentoMinimo.valore);
        EXPECT_EQ(minimo.fase, e.momentoMinimo.fase);
        EXPECT_EQ(std::max(picco(p, k, y, 1).valore, -picco(p, k, y, -1).valore),
                  std::abs(e.spostamento.valore));
        EXPECT_EQ(std::max(picco(p, k, T, 1).valore, -picco(p, k, T, -1).valore),
                  std::abs(e.taglio.valore));
    }
}

TEST(Picchi, StandInTheTableWithTheirDepthsAndOfAllStagesWithTheStage) {
    const auto p = parete();
    const auto e = *p.estremiDi(0);
    const auto tutte = prospettoPicchi(p, 0);
    ASSERT_EQ(tutte.colonne.size(), 7U);
    ASSERT_EQ(tutte.righe.size(), 3U);
    EXPECT_EQ(tutte.righe[1][0].testo, "Momento [kN m/m]");
    EXPECT_EQ(test::numero(tutte, 1, 1), 10 * e.momentoMassimo.valore);
    EXPECT_EQ(test::numero(tutte, 1, 2), e.momentoMassimo.z);
    EXPECT_EQ(test::numero(tutte, 1, 3), e.momentoMassimo.fase);
    EXPECT_EQ(test::numero(tutte, 1, 4), 10 * e.momentoMinimo.valore);
    EXPECT_EQ(prospettoPicchi(p, 1).colonne.size(), 5U);
}

// Nothing acts on it: its values are 0 everywhere, and their peaks nowhere.
TEST(Picchi, OfAWallAtRestHaveNoDepth) {
    const auto p = live::calcola(test::muroElastico(100), 20);
    ASSERT_TRUE(p.sta());
    const auto tavola = prospettoPicchi(p, 1);
    EXPECT_EQ(test::numero(tavola, 1, 1), 0);
    EXPECT_EQ(tavola.righe[1][2].testo, "-");
}

}  // namespace
}  // namespace korven::report
