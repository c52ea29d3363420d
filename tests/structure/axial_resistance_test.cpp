#include "structure/axial_resistance.hpp"

#include <gtest/gtest.h>

#include <numbers>

#include "structure/bending_resistance.hpp"
#include "structure/partial_factors.hpp"
#include "support/sample_sections.hpp"

namespace korven::structure {
namespace {

// 800 mm thick, 10 bars of 24 mm a metre: As = 4523.9 mm2, Ac = 800000 - As; fcd = 25 / 1.6, steel
// yields at 430 / 1.15 = 373.9 N/mm2, a strain of 0.0019.
TEST(ResistenzeAssiali, AreTheAreasTimesTheirStrengths) {
    const double As = 10 * std::numbers::pi * 12 * 12;
    const double acciaio = As * 430 / 1.15;
    const auto r = resistenzeAssiali(diaframmaSimmetrico());
    EXPECT_NEAR(r.compressione, (800000 - As) * 0.85 * 25 / 1.6 + acciaio, 1);
    EXPECT_NEAR(r.trazione, acciaio, 1);
}

// The web of 1.2 cm lies askew: atan(100 / 190) makes 13.56 mm of it along the wall.
TEST(ResistenzeAssiali, OfASheetPileAreThoseOfItsSteelBothWays) {
    const auto r = resistenzeAssiali(palancola());
    EXPECT_EQ(r.compressione, r.trazione);
    EXPECT_GT(r.trazione, 0);
}

TEST(ResistenzeAssiali, OfAWeakModulusAreHeldByTheStrain) {
    auto s = palancola();
    s.modEacciaio = 1000;
    const auto molle = resistenzeAssiali(s);
    EXPECT_NEAR(molle.compressione / molle.trazione, 0.35, 1e-9);
}

// The bending check finds a resistance just within them and none just beyond.
TEST(ResistenzeAssiali, AreWhereTheBendingCheckLosesItsResistance) {
    for (const auto& s : {diaframmaSimmetrico(), paliTubolari(), palancola(), paliArmati()}) {
        const auto r = resistenzeAssiali(s);
        const double tonnellata = fsAzioniSezione * project::newton;
        const auto massima = [&](double N) {
            MomentiResistenti MRd;
            momentiResistenti(s, N / tonnellata, MRd);
            return std::max(-MRd[1], MRd[2]);
        };
        EXPECT_GT(massima(0.97 * r.compressione), 0);
        EXPECT_GT(massima(-0.97 * r.trazione), 0);
        EXPECT_EQ(massima(1.001 * r.compressione), 0);
        EXPECT_EQ(massima(-1.001 * r.trazione), 0);
    }
}

}  // namespace
}  // namespace korven::structure
