// How anchors enter one iteration: applicaTiranti.

#include <gtest/gtest.h>

#include "analysis/plastic_iteration.hpp"
#include "support/run_arrays_setup.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using test::aggiungiTirante;
using test::corsaNuova;
using test::muroNudo;

// A wall of 10 m with nodes every 0.5 m, whose displacements a test sets by hand.
class Tiranti : public ::testing::Test {
 protected:
    void applica() {
        corsa->nTirantiAttivi = dati.nTiranti;
        for (int i = 1; i <= corsa->nNodi; ++i) corsa->pNodo[i] = corsa->kNodo[i] = 0;
        applicaTiranti(dati, *corsa);
    }
    [[nodiscard]] bool agisce(int a) const {
        return corsa->tiranti[static_cast<std::size_t>(a - 1)].agisce;
    }

    project::DatiProgetto dati = muroNudo();
    std::unique_ptr<ArraysCorsa> corsa = corsaNuova(dati, 20);
};

TEST_F(Tiranti, ActAsAPressureOverTheSegmentOfTheirNode) {
    aggiungiTirante(dati, 2, 300, 12, 0);
    corsa->yTirante[1] = 0.01;
    corsa->yNodo[5] = 0.03;
    applica();
    // F = 12 + 300 (y - 0.01) over 0.5 m
    EXPECT_DOUBLE_EQ(corsa->pNodo[5], -(12 - 300 * 0.01) / 0.5);
    EXPECT_DOUBLE_EQ(corsa->kNodo[5], -300 / 0.5);
    EXPECT_DOUBLE_EQ((corsa->pNodo[5] + corsa->kNodo[5] * 0.03) * 0.5, -(12 + 300 * 0.02));
    for (int i = 1; i <= 21; ++i)
        if (i != 5) {
            EXPECT_EQ(corsa->pNodo[i], 0);
            EXPECT_EQ(corsa->kNodo[i], 0);
        }
}

TEST_F(Tiranti, WeighDoubleAtTheTwoEndsOfTheWall) {
    aggiungiTirante(dati, 0, 300, 12, 0);
    aggiungiTirante(dati, 10, 200, 8, 0);
    applica();
    EXPECT_DOUBLE_EQ(corsa->pNodo[1], -12 * 2 / 0.5);
    EXPECT_DOUBLE_EQ(corsa->kNodo[1], -300 * 2 / 0.5);
    EXPECT_DOUBLE_EQ(corsa->pNodo[21], -8 * 2 / 0.5);
    EXPECT_DOUBLE_EQ(corsa->kNodo[21], -200 * 2 / 0.5);
}

TEST_F(Tiranti, AddUpOnOneNode) {
    aggiungiTirante(dati, 2, 300, 12, 0);
    aggiungiTirante(dati, 2.1, 100, 5, 1);
    applica();
    EXPECT_DOUBLE_EQ(corsa->pNodo[5], -17 / 0.5);
    EXPECT_DOUBLE_EQ(corsa->kNodo[5], -400 / 0.5);
}

TEST_F(Tiranti, DeeperThanTheWallHaveNoEffect) {
    aggiungiTirante(dati, 11, 300, 12, 1);
    aggiungiTirante(dati, 1e9, 300, 12, 1);
    applica();
    for (int i = 1; i <= 22; ++i) {
        EXPECT_EQ(corsa->pNodo[i], 0);
        EXPECT_EQ(corsa->kNodo[i], 0);
    }
}

TEST_F(Tiranti, OfTensionOnlyDropOutWhenCompressedAndComeBackWhenStretched) {
    aggiungiTirante(dati, 2, 256, 4, 0);
    corsa->yNodo[5] = -0.03125;  // F = 4 - 8
    applica();
    EXPECT_FALSE(agisce(1));
    EXPECT_EQ(corsa->pNodo[5], 0);
    EXPECT_EQ(corsa->kNodo[5], 0);
    corsa->yNodo[5] = -0.015625;  // F = 0: still acts
    applica();
    EXPECT_TRUE(agisce(1));
    EXPECT_EQ(corsa->kNodo[5], -512);
    corsa->yNodo[5] = 0.5;
    applica();
    EXPECT_TRUE(agisce(1));
}

TEST_F(Tiranti, OfBothSignsStayAtAnyForce) {
    aggiungiTirante(dati, 2, 256, 4, 1);
    corsa->yNodo[5] = -3;
    applica();
    EXPECT_TRUE(agisce(1));
    EXPECT_EQ(corsa->kNodo[5], -512);
}

TEST_F(Tiranti, OfACodeThatIsNeitherZeroNorOneActAsTensionOnly) {
    for (const double tipo : {2.0, -1.0, 0.5, 1.0000001}) {
        dati.nTiranti = 0;
        aggiungiTirante(dati, 2, 256, 4, tipo);
        corsa->yNodo[5] = -1;
        applica();
        EXPECT_FALSE(agisce(1)) << tipo;
    }
}

TEST_F(Tiranti, WithoutStiffnessGiveTheirPrestressAtAnyDisplacement) {
    aggiungiTirante(dati, 2, 0, 6, 0);
    for (const double y : {-1.0, 0.0, 1.0}) {
        corsa->yNodo[5] = y;
        applica();
        EXPECT_TRUE(agisce(1));
        EXPECT_DOUBLE_EQ(corsa->pNodo[5], -12);
        EXPECT_EQ(corsa->kNodo[5], 0);
    }
}

TEST_F(Tiranti, WithoutPrestressAreSpringsTowardsTheExcavationAlone) {
    aggiungiTirante(dati, 2, 256, 0, 0);
    corsa->yNodo[5] = -1e-6;
    applica();
    EXPECT_FALSE(agisce(1));
    corsa->yNodo[5] = 1e-6;
    applica();
    EXPECT_TRUE(agisce(1));
    EXPECT_EQ(corsa->pNodo[5], 0);
    EXPECT_EQ(corsa->kNodo[5], -512);
}

TEST_F(Tiranti, BeyondTheNumberInPlaceDoNotAct) {
    aggiungiTirante(dati, 2, 256, 4, 1);
    aggiungiTirante(dati, 4, 256, 4, 1);
    corsa->nTirantiAttivi = 1;
    applicaTiranti(dati, *corsa);
    EXPECT_EQ(corsa->kNodo[5], -512);
    EXPECT_EQ(corsa->kNodo[9], 0);
    EXPECT_EQ(corsa->tiranti.size(), 1u);
}

}  // namespace
}  // namespace korven::analysis
