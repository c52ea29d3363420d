#include "scene/curve_data.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "support/sample_projects.hpp"

namespace korven::scene {
namespace {

using live::Curva;

TEST(DatiCurva, AreThoseOfTheStage) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const DatiCurva momento = datiCurva(parete, 2, Curva::momento);
    ASSERT_EQ(momento.serie.size(), 1U);
    EXPECT_EQ(momento.serie[0].valori, parete.fase(2)->momento);
    EXPECT_EQ(momento.unita.mostrata, "kN m/m");
    EXPECT_EQ(datiCurva(parete, 1, Curva::spostamento).serie[0].valori, parete.fase(1)->y);
    EXPECT_EQ(datiCurva(parete, 1, Curva::spostamento).unita.mostrata, "mm");
}

// The anchor of the second stage is at 1.5 m, on node 6: every shear of the wall has two points
// there.
TEST(DatiCurva, StepAtTheAnchorInEveryStageAndInTheEnvelope) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const auto& due = *parete.fase(2);
    for (int k = 0; k <= 2; ++k)
        for (const Serie& s : datiCurva(parete, k, Curva::taglio).serie) {
            ASSERT_EQ(s.valori.size(), 42U);
            ASSERT_EQ(s.z.size(), 42U);
            EXPECT_NEAR(s.z[5], 1.5, 1e-12);
            EXPECT_EQ(s.z[6], s.z[5]);
            EXPECT_NEAR(s.z[7], 1.8, 1e-12);
        }
    const Serie fase = datiCurva(parete, 2, Curva::taglio).serie[0];
    EXPECT_EQ(fase.valori[4], due.taglio[4]);
    EXPECT_EQ(fase.valori[5], due.taglioSopra[5]);
    EXPECT_EQ(fase.valori[6], due.taglioSotto[5]);
    EXPECT_NEAR(fase.valori[6] - fase.valori[5], due.tiri[0], 1e-9);
    EXPECT_EQ(fase.valori[41], due.taglio[40]);
    const Serie massimi = datiCurva(parete, 0, Curva::taglio).serie[1];
    EXPECT_EQ(massimi.valori[5], std::max(parete.fase(1)->taglio[5], due.taglioSopra[5]));
    EXPECT_EQ(massimi.valori[6], std::max(parete.fase(1)->taglio[5], due.taglioSotto[5]));
    EXPECT_EQ(datiCurva(parete, 2, Curva::momento).serie[0].z.size(), 41U);
}

TEST(DatiCurva, HoldThePressuresOfBothSidesWithTheirSigns) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const DatiCurva p = datiCurva(parete, 2, Curva::pressioni);
    ASSERT_EQ(p.serie.size(), 3U);
    EXPECT_TRUE(p.versoScavo);
    EXPECT_TRUE(datiCurva(parete, 2, Curva::spostamento).versoScavo);
    EXPECT_FALSE(datiCurva(parete, 2, Curva::momento).versoScavo);
    EXPECT_EQ(p.serie[0].valori, parete.fase(2)->monte);
    EXPECT_EQ(p.serie[1].valori, parete.fase(2)->valle);
    EXPECT_EQ(p.serie[2].valori, parete.fase(2)->acqua);
    // Stage 1 has the same water on both sides.
    EXPECT_EQ(datiCurva(parete, 1, Curva::pressioni).serie.size(), 2U);
}

TEST(DatiCurva, AreABandForTheEnvelope) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const DatiCurva e = datiCurva(parete, 0, Curva::momento);
    ASSERT_EQ(e.serie.size(), 2U);
    EXPECT_TRUE(e.fascia);
    for (std::size_t i = 0; i < 41; ++i) EXPECT_LE(e.serie[0].valori[i], e.serie[1].valori[i]) << i;
}

TEST(DatiCurva, AreNothingWhereNothingIsKnownOrANumberIsNone) {
    auto parete = live::calcola(test::progettoSemplice(), 40);
    EXPECT_TRUE(datiCurva(parete, 3, Curva::momento).serie.empty());
    parete.fasi[0].momento[5] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(datiCurva(parete, 1, Curva::momento).serie.empty());
    EXPECT_TRUE(datiCurva(live::PareteViva{}, 0, Curva::momento).serie.empty());
}

}  // namespace
}  // namespace korven::scene
