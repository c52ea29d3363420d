#include "studies/summary/summary.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace korven::studies {
namespace {

constexpr double nessuno = std::numeric_limits<double>::quiet_NaN();

// Two fields, a word that is described by nobody, two results, of which the second is a use, and
// another use.
const FormaRiga forma{.campi = 2,
                      .valori = 6,
                      .risultati = {3, 4},
                      .usi = {4, 5},
                      .condizioni = {{3, Confronto::maggiore, 50}, {4, Confronto::minore, 0.15}}};

struct Riga {
    double a, b, x, u, v;
    EsitoRiga esito{};
};

Riassunto di(const std::vector<Riga>& righe, std::size_t capienza = 100) {
    Riassunto r(forma, 1, capienza);
    std::uint64_t i = 0;
    for (const auto& riga : righe)
        r.prendi(i++, std::array{riga.a, riga.b, 0.0, riga.x, riga.u, riga.v}, riga.esito);
    return r;
}

const std::vector<Riga> cinque = {
    {10, 1, 3, 0.2, 0.1},
    {20, 1, 1, 0.5, 0.9},
    {30, 2, 8, 0.7, 0.7},
    {40, 1, 5, 0.1, nessuno},
    {50, 1, 90, nessuno, nessuno},
    {99, 7, nessuno, nessuno, nessuno, {.sorte = Sorte::cade, .motivo = 4, .fase = 2}},
};

TEST(Riassunto, CountsWhatStandsWhatFailsAndWhatGoverns) {
    const auto r = di(cinque);
    EXPECT_EQ(r.numero(), 6U);
    EXPECT_EQ(r.stanno(), 5U);
    EXPECT_EQ(r.fallite(), 3U);  // 90 is too much, 0.1 too little
    EXPECT_NEAR(r.probabilita(), 0.5, 1e-15);
    // k = 3, n = 6: symmetric, 0.5 -+ 1.959964 sqrt(.041667 + .026677) / 1.640243
    EXPECT_NEAR(r.intervallo().da, 0.1876, 0.0001);
    EXPECT_NEAR(r.intervallo().a, 0.8124, 0.0001);
    EXPECT_EQ(r.oltre(), (std::vector<std::uint64_t>{1, 1}));
    ASSERT_EQ(r.cadute().size(), 1U);
    EXPECT_EQ(r.cadute().at({4, 2}), 1U);
    EXPECT_EQ(r.governano(), (std::vector<std::uint64_t>{3, 1}));  // of 0.7 and 0.7 the first
}

TEST(Riassunto, CountsNoWallWhereDataAreRefused) {
    auto altre = cinque;
    altre.push_back({-1, 7, nessuno, nessuno, nessuno, {.sorte = Sorte::rifiutata, .motivo = 1}});
    const auto r = di(altre);
    EXPECT_EQ(r.numero(), 7U);
    EXPECT_EQ(r.rifiutate(), 1U);
    EXPECT_EQ(r.calcolate(), 6U);
    EXPECT_EQ(r.fallite(), 3U);
    EXPECT_NEAR(r.probabilita(), 0.5, 1e-15);
    EXPECT_EQ(r.intervallo().da, di(cinque).intervallo().da);
    EXPECT_EQ(r.cadute().size(), 1U);
    EXPECT_EQ(r.sorti(), (std::vector{Sorte::sta, Sorte::sta, Sorte::sta, Sorte::sta, Sorte::sta,
                                      Sorte::cade, Sorte::rifiutata}));
}

TEST(Riassunto, CountsWhatStandsBeyondAResistance) {
    auto oltre = cinque;
    oltre[1].v = 1.01;
    oltre[2].u = 1;  // used up, and no more
    EXPECT_EQ(di(cinque).superano(), 0U);
    EXPECT_EQ(di(oltre).superano(), 1U);
}

// The first result is there five times: 3 1 8 5 90, ranks 2 1 4 3 5 beside fields that grow (0.8,
// by hand as in ranks_test). The second field has ranks 2.5 2.5 5 2.5 2.5 there: deviations -.5 -.5
// 2
// -.5 -.5, squares 5, products .5 + 1 + 2 + 0 - 1 = 2.5: 2.5 / sqrt(50).
TEST(Riassunto, DescribesAResultByTheVariantsThatHaveIt) {
    const auto s = di(cinque).statistiche();
    ASSERT_EQ(s.size(), 4U);
    EXPECT_EQ(s[0].posto, 0U);
    EXPECT_EQ(s[0].momenti.numero(), 6U);
    const auto& x = s[2];
    EXPECT_EQ(x.posto, 3U);
    EXPECT_EQ(x.momenti.numero(), 5U);
    EXPECT_NEAR(x.momenti.media(), 107.0 / 5, 1e-13);
    ASSERT_TRUE(x.quantili);
    EXPECT_EQ((*x.quantili)[1], 5);
    EXPECT_NEAR((*x.quantili)[0], 1 + 0.2 * 2, 1e-15);
    ASSERT_EQ(x.ranghi.size(), 2U);
    EXPECT_NEAR(*x.ranghi[0], 0.8, 1e-15);
    EXPECT_NEAR(*x.ranghi[1], 2.5 / std::sqrt(50.0), 1e-15);
}

TEST(Riassunto, HasNothingToSayOfAResultThatNoVariantHas) {
    const auto s = di({{1, 2, nessuno, nessuno, nessuno}}).statistiche();
    EXPECT_FALSE(s[2].quantili);
    EXPECT_FALSE(s[2].ranghi[0]);
    EXPECT_EQ(s[2].momenti.numero(), 0U);
    EXPECT_EQ(di({}).probabilita(), 0);
}

// x = i, the other result i^2 and the field 1000 - i: whichever rows are kept, their ranks go
// along.
TEST(Riassunto, KeepsNoMoreRowsThanItMay) {
    std::vector<Riga> righe;
    for (int i = 0; i < 1000; ++i) {
        const double x = i;
        righe.push_back({1000 - x, x, x, x * x, 0});
    }
    const auto r = di(righe, 100);
    EXPECT_EQ(r.tenute(), 100U);
    EXPECT_EQ(r.tenuti(3).size(), 100U);
    EXPECT_EQ(r.tenuti(3), r.tenuti(1));
    const auto s = r.statistiche();
    EXPECT_EQ(s[2].momenti.numero(), 1000U);
    EXPECT_NEAR(s[2].momenti.media(), 499.5, 1e-10);
    EXPECT_NEAR(*s[2].ranghi[0], -1, 1e-12);
    EXPECT_NEAR(*s[3].ranghi[1], 1, 1e-12);
    EXPECT_NEAR((*s[2].quantili)[1], 499.5, 4 * 50);  // 1000 / (2 sqrt(100))
}

}  // namespace
}  // namespace korven::studies
