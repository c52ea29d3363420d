#include "results/shear_extremes.hpp"

#include <gtest/gtest.h>

#include <initializer_list>

#include "support/wall_builder.hpp"

namespace korven::results {
namespace {

using project::DatiProgetto;
using test::aggiungiTirante;

// A wall of 10 segments of 0.5 m.
class EstremiTaglioTest : public testing::Test {
 protected:
    void tagli(std::initializer_list<double> valori) {
        int i = 0;
        for (double v : valori) taglioNodo[++i] = v;
        nNodi = i;
    }

    EstremiTaglio calcola() {
        return estremiTaglio(dati, dati.nTiranti, yTirante, nNodi, passo, yNodo, taglioNodo);
    }

    DatiProgetto dati;
    base::Tabella<double, project::massimoTiranti> yTirante;
    base::Tabella<double, 500> yNodo, taglioNodo;
    int nNodi = 0;
    double passo = 0.5;
};

TEST_F(EstremiTaglioTest, AreTheSmallestAndLargestNodeValuesWithoutAnchors) {
    tagli({1, -3, 2, 5, -1});
    const EstremiTaglio e = calcola();
    EXPECT_EQ(e.vMin, -3);
    EXPECT_EQ(e.zMin, 0.5);
    EXPECT_EQ(e.vMax, 5);
    EXPECT_EQ(e.zMax, 1.5);
    EXPECT_EQ(massimoAssoluto(e), 5);
}

TEST_F(EstremiTaglioTest, LargerAbsoluteLimitMayBeTheNegativeOne) {
    EXPECT_EQ(massimoAssoluto({.vMin = -7, .vMax = 5}), 7);
    EXPECT_EQ(massimoAssoluto({.vMin = 2, .vMax = 3}), 3);
    EXPECT_EQ(massimoAssoluto({.vMin = -3, .vMax = -2}), 3);
}

// Node 3 at 1.00 m: 2 x 4 - 1 = 7 below the anchor; above it 7 - (20 + 100 (0.03 - 0.01)) = -15.
TEST_F(EstremiTaglioTest, CountTheShearBelowAndAboveAnAnchorAtANode) {
    tagli({-1, -2, 0, 4, 1, 0.5});
    aggiungiTirante(dati, 1.0, 100, 20);
    yNodo[3] = 0.03;
    yTirante[1] = 0.01;
    const EstremiTaglio e = calcola();
    EXPECT_EQ(taglioNodo[3], 7);
    EXPECT_EQ(e.vMax, 7);
    EXPECT_DOUBLE_EQ(e.vMin, -15);
    EXPECT_EQ(e.zMax, 1.0);
    EXPECT_EQ(e.zMin, 1.0);
}

TEST_F(EstremiTaglioTest, AnchorBetweenTwoNodesChangesTheNearestNodeButHasNoStep) {
    tagli({-1, -2, 0, 4, 1, 0.5});
    aggiungiTirante(dati, 1.2, 100, 20);  // nearest: node 3 at 1.0
    const EstremiTaglio e = calcola();
    EXPECT_EQ(taglioNodo[3], 7);
    EXPECT_EQ(e.vMax, 7);
    EXPECT_EQ(e.vMin, -2);
}

TEST_F(EstremiTaglioTest, AnchorHalfWayBetweenTwoNodesBelongsToTheLowerOne) {
    tagli({-1, -2, 0, 4, 1, 0.5});
    aggiungiTirante(dati, 1.25, 0, 0);
    (void)calcola();
    EXPECT_EQ(taglioNodo[3], 0);
    EXPECT_EQ(taglioNodo[4], 2 * 1 - 0.5);
}

// 3 x 0.1 is not 0.3: the two depths differ in their last digit, so there is no step.
TEST_F(EstremiTaglioTest, DepthIsComparedExactly) {
    passo = 0.1;
    tagli({1, 1, 1, 1, 1, 1});
    aggiungiTirante(dati, 0.3, 0, 50);
    EXPECT_EQ(calcola().vMin, 1);
    dati.profTirante[1] = 3 * passo;
    EXPECT_EQ(calcola().vMin, -49);
}

TEST_F(EstremiTaglioTest, AnchorAtDepthZeroKeepsItsNodeButHasItsStep) {
    tagli({2, 4, 1, 0});
    aggiungiTirante(dati, 0, 0, 10);
    const EstremiTaglio e = calcola();
    EXPECT_EQ(taglioNodo[1], 2);
    EXPECT_EQ(e.vMin, -8);
    EXPECT_EQ(e.vMax, 4);
}

// Anchors at nodes 3 and 4. In table order node 3 is set first, from the value that node 4 had.
TEST_F(EstremiTaglioTest, AnchorsTakeTheirTurnInTableOrderOnTheSameArray) {
    tagli({0, 0, 0, 4, 1, -1, 0});
    aggiungiTirante(dati, 1.0, 0, 0);
    aggiungiTirante(dati, 1.5, 0, 0);
    (void)calcola();
    EXPECT_EQ(taglioNodo[3], 2 * 4 - 1);
    EXPECT_EQ(taglioNodo[4], 2 * 1 + 1);

    tagli({0, 0, 0, 4, 1, -1, 0});
    dati.profTirante[1] = 1.5;
    dati.profTirante[2] = 1.0;
    (void)calcola();
    EXPECT_EQ(taglioNodo[4], 3);
    EXPECT_EQ(taglioNodo[3], 2 * 3 - 1);  // builds on what the first anchor set
}

TEST_F(EstremiTaglioTest, NodesBeyondTheToeReadZero) {
    tagli({0, 1, 2, 3, 5});
    taglioNodo[6] = 100;  // what a longer wall left
    taglioNodo[7] = 1000;
    aggiungiTirante(dati, 1.5, 0, 0);  // node 4
    (void)calcola();
    EXPECT_EQ(taglioNodo[4], 2 * 5);
    dati.profTirante[1] = 2.0;  // the toe
    (void)calcola();
    EXPECT_EQ(taglioNodo[5], 0);
}

TEST_F(EstremiTaglioTest, AnchorOutsideTheWallChangesNothing) {
    tagli({1, 2, 3});
    for (double prof : {5.0, 1e6, 1e300, -3.0}) {
        dati.nTiranti = 0;
        aggiungiTirante(dati, prof, 10, 10);
        const EstremiTaglio e = calcola();
        EXPECT_EQ(e.vMin, 1) << prof;
        EXPECT_EQ(e.vMax, 3) << prof;
    }
}

TEST_F(EstremiTaglioTest, OnlyAnchorsInPlaceCount) {
    tagli({0, 0, 0, 4, 1, 0});
    aggiungiTirante(dati, 1.0, 0, 50);
    const EstremiTaglio e = estremiTaglio(dati, 0, yTirante, nNodi, passo, yNodo, taglioNodo);
    EXPECT_EQ(e.vMin, 0);
    EXPECT_EQ(e.vMax, 4);
    EXPECT_EQ(taglioNodo[3], 0);
}

TEST_F(EstremiTaglioTest, MoreAnchorsThanTheTableHoldsAreAnError) {
    tagli({0, 0, 0});
    EXPECT_THROW((void)estremiTaglio(dati, 21, yTirante, nNodi, passo, yNodo, taglioNodo),
                 base::ErroreIndice);
}

}  // namespace
}  // namespace korven::results
