#include "structure/section_millimetres.hpp"

#include <gtest/gtest.h>

#include <utility>

#include "base/table.hpp"
#include "support/sample_sections.hpp"

namespace korven::structure {
namespace {

TEST(SezioneInMillimetri, TakesEveryLengthTenfold) {
    const DiaframmaMm d = diaframmaMm(diaframmaArmatoAValle());
    EXPECT_EQ(d.spessore, 600);
    EXPECT_EQ(d.valle.copriferro, 50);
    EXPECT_EQ(d.valle.interasse, 200);
    EXPECT_EQ(d.valle.diametro, 24);
    EXPECT_EQ(d.monte.copriferro, 0);
    const PaliMm p = paliMm(paliTubolari());
    EXPECT_EQ(p.diamEst, 600);
    EXPECT_EQ(p.diamInt, 580);
    EXPECT_EQ(p.interasse, 800);
    const PalancolaMm w = palancolaMm(palancola());
    EXPECT_EQ(w.base, 200);
    EXPECT_EQ(w.largAla, 100);
    EXPECT_EQ(w.altAla, 190);
    EXPECT_EQ(w.spessore, 20);
    EXPECT_EQ(w.spessAla, 12);
}

TEST(SezioneInMillimetri, TakesTheCountOfBarsAsStored) {
    const PaliArmatiMm p = paliArmatiMm(paliArmati());
    EXPECT_EQ(p.interasse, 1000);
    EXPECT_EQ(p.diamPalo, 800);
    EXPECT_EQ(p.diamLong, 24);
    EXPECT_EQ(p.copriferro, 60);
    EXPECT_EQ(p.numLong, 12);
    EXPECT_EQ(raggioFerri(p), 400 - 60 - 12);
}

TEST(SezioneInMillimetri, SheetPileRepeatsAfterTwoFlatsAndFourLegs) {
    // legs 300 wide and 400 high: cosine 0.8, 8 mm across become 10 mm along the wall
    const PalancolaMm p{.base = 200, .largAla = 300, .altAla = 400, .spessore = 10, .spessAla = 8};
    EXPECT_EQ(altezza(p), 810);
    EXPECT_EQ(passoOnda(p), 1600);
    EXPECT_NEAR(spessoreOrizzontaleAla(p), 10, 1e-12);
}

TEST(FacciaArmata, NeedsSpacingAndDiameterButNoCover) {
    EXPECT_TRUE(armata({0, 200, 20}));
    EXPECT_FALSE(armata({50, 0, 20}));
    EXPECT_FALSE(armata({50, 200, 0}));
    EXPECT_FALSE(armata({50, -200, 20}));
}

TEST(NumeroFerri, IsTheLargestWholeNumberNotAboveTheStoredCount) {
    const std::pair<double, int> casi[] = {{0.8, 0}, {0.999999, 0}, {1, 1},
                                           {1.5, 1}, {2.999, 2},    {12, 12}};
    for (auto [memorizzato, ferri] : casi)
        EXPECT_EQ(numeroFerri({.interasse = 1000,
                               .diamPalo = 800,
                               .diamLong = 24,
                               .copriferro = 60,
                               .numLong = memorizzato}),
                  ferri)
            << memorizzato;
}

TEST(NumeroFerri, RefusesACountThatNoPileCanHold) {
    PaliArmatiMm p = paliArmatiMm(paliArmati());
    p.numLong = massimoFerri;
    EXPECT_EQ(numeroFerri(p), massimoFerri);
    for (double troppi : {massimoFerri + 1.0, 1e9, 1e15, 1e300}) {
        p.numLong = troppi;
        EXPECT_THROW((void)numeroFerri(p), base::ErroreIndice) << troppi;
    }
}

}  // namespace
}  // namespace korven::structure
