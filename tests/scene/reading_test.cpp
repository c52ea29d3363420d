#include "scene/reading.hpp"

#include <gtest/gtest.h>

#include "live/envelope.hpp"
#include "scene/picture.hpp"
#include "support/sample_projects.hpp"

namespace korven::scene {
namespace {

TEST(Lettura, TakesTheValueOfANode) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);  // 0.3 m apart
    const auto& fase = *parete.fase(2);
    const Lettura letta = lettura(parete, {2, live::Curva::momento}, 3);
    EXPECT_EQ(letta.z, 3);
    EXPECT_NEAR(letta.y->massimo, fase.y[10], 1e-12);
    EXPECT_NEAR(letta.momento->massimo, fase.momento[10], 1e-9);
    EXPECT_NEAR(letta.taglio->minimo, fase.taglio[10], 1e-9);
    EXPECT_NEAR(letta.monte->massimo, fase.monte[10], 1e-9);
    EXPECT_NEAR(letta.valle->massimo, fase.valle[10], 1e-9);
    EXPECT_NEAR(letta.acqua->massimo, fase.acqua[10], 1e-9);
    EXPECT_EQ(letta.strato, "Sabbia, limosa \"media\"");
}

TEST(Lettura, IsLinearBetweenTwoNodes) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const auto& m = parete.fase(1)->momento;
    // A third of the way from node 21 (6.0 m) to node 22.
    const Lettura letta = lettura(parete, {1, live::Curva::momento}, 6.1);
    EXPECT_NEAR(letta.momento->massimo, m[20] + (m[21] - m[20]) / 3, 1e-9);
    EXPECT_EQ(letta.strato, "Ghiaia");
}

TEST(Lettura, NamesTheLayerAsItStandsInTheTables) {
    auto dati = test::progettoSemplice();
    dati.descrStrato[2] = "limo argilloso|bruno";
    dati.profStrato[2] = 11;  // of a wall of 12 m: computed with it down to the toe
    const auto parete = live::calcola(dati, 40);
    EXPECT_EQ(lettura(parete, {1}, 6.1).strato, "limo argilloso");
    EXPECT_EQ(lettura(parete, {1}, 11.7).strato, "limo argilloso");
}

// The anchor is on node 6, at 1.5 m; a line goes to the value above it and on from that below it.
TEST(Lettura, HasBothShearsAtAnAnchor) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const auto& fase = *parete.fase(2);
    const double sopra = fase.taglioSopra[5], sotto = fase.taglioSotto[5];
    ASSERT_LT(sopra, sotto);
    const live::Vista vista{2, live::Curva::taglio};
    EXPECT_EQ(lettura(parete, vista, 1.5).taglio, (Letto{sopra, sotto}));
    EXPECT_EQ(lettura(parete, {0, live::Curva::taglio}, 1.5).taglio->massimo, sotto);
    const double prima = fase.taglio[4], dopo = fase.taglio[6];
    EXPECT_NEAR(lettura(parete, vista, 1.4).taglio->massimo, prima + 2 * (sopra - prima) / 3, 1e-9);
    EXPECT_NEAR(lettura(parete, vista, 1.6).taglio->minimo, sotto + (dopo - sotto) / 3, 1e-9);
}

TEST(Lettura, StaysOnTheWall) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    EXPECT_EQ(lettura(parete, {1}, -5).z, 0);
    const Lettura piede = lettura(parete, {1}, 50);
    EXPECT_EQ(piede.z, 12);
    EXPECT_EQ(piede.y->massimo, parete.fase(1)->y.back());
}

TEST(Lettura, GivesTheRangeOfAllStagesForTheEnvelope) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const Lettura letta = lettura(parete, {0}, 3);
    const double a = parete.fase(1)->y[10], b = parete.fase(2)->y[10];
    EXPECT_NEAR(letta.y->minimo, std::min(a, b), 1e-12);
    EXPECT_NEAR(letta.y->massimo, std::max(a, b), 1e-12);
    EXPECT_TRUE(letta.pressione);
    EXPECT_FALSE(letta.monte);
}

TEST(Lettura, KnowsTheLayerWhereNothingIsComputed) {
    auto dati = test::progettoSemplice();
    dati.rigidezzaEJ = 0;
    const Lettura letta = lettura(live::calcola(dati, 40), {1}, 2);
    EXPECT_FALSE(letta.y);
    EXPECT_EQ(parole(letta), "2.00 m  ·  Sabbia, limosa \"media\"");
}

TEST(Parole, TellValueAndUnitOfEach) {
    Lettura letta;
    letta.z = 4.2;
    letta.strato = "Limo";
    letta.y = Letto{0.0123, 0.0123};
    letta.momento = Letto{-1.5, 4.5};
    letta.monte = Letto{3, 3};
    letta.valle = Letto{-2, -2};
    EXPECT_EQ(
        parole(letta),
        "4.20 m  ·  y 12.3 mm  ·  M -15.0 … 45.0 kN m/m  ·  monte 30.0  ·  valle -20.0 kN/m²  ·  "
        "Limo");
}

// The shear of the envelope goes in a straight line from below one node to above the next.
TEST(Lettura, OfTheEnvelopeHasTheShearBetweenTwoNodes) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);  // 0.3 m apart
    const auto tutte = live::inviluppo(parete);
    const Lettura letta = lettura(parete, {0, live::Curva::taglio}, 6.1);
    const auto tra = [](double a, double b) { return a + (b - a) / 3; };
    EXPECT_NEAR(letta.taglio->massimo,
                tra(tutte.taglioSotto.massimo[20], tutte.taglioSopra.massimo[21]), 1e-9);
    EXPECT_NEAR(letta.taglio->minimo,
                tra(tutte.taglioSotto.minimo[20], tutte.taglioSopra.minimo[21]), 1e-9);
}

TEST(Scena, TellsTheDepthOfAPointWithinTheWall) {
    Scena s;
    s.yTesta = 100;
    s.scala = 20;  // pixels a metre
    s.paratia = 10;
    EXPECT_DOUBLE_EQ(s.z(150), 2.5);
    EXPECT_DOUBLE_EQ(s.z(90), 0);
    EXPECT_DOUBLE_EQ(s.z(1000), 10);
}

}  // namespace
}  // namespace korven::scene
