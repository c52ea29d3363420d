#include "live/wall.hpp"

#include <gtest/gtest.h>

#include "structure/offered_stiffness.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::live {
namespace {

TEST(PareteViva, FollowsAllStagesOfAWallThatStands) {
    const PareteViva p = calcola(test::progettoSemplice(), 40);
    EXPECT_TRUE(p.sta());
    EXPECT_TRUE(p.rifiuto.empty());
    ASSERT_EQ(p.fasiInEquilibrio(), 2);
    EXPECT_DOUBLE_EQ(p.h, 0.3);
    EXPECT_EQ(p.fase(0), nullptr);
    EXPECT_EQ(p.fase(3), nullptr);
    const auto attese = equilibrium::calcolaEquilibrio(test::progettoSemplice(), 40);
    EXPECT_EQ(p.fase(2)->y, attese[1].y);
    EXPECT_EQ(p.estremi.tiro.valore, attese[1].tiri[0]);
}

TEST(PareteViva, EndsWithTheFirstStageThatFallsAndSaysWhy) {
    auto dati = test::progettoSemplice();
    dati.nTiranti = 0;
    dati.tirantiFase[2] = 0;
    dati.profFase[2] = 10;
    const PareteViva p = calcola(dati, 40);
    EXPECT_FALSE(p.sta());
    EXPECT_EQ(p.fasiInEquilibrio(), 1);
    ASSERT_EQ(p.fasi.size(), 2U);
    ASSERT_TRUE(p.perche);
    EXPECT_EQ(p.perche->causa, safety::Causa::meccanismo);
    EXPECT_EQ(p.perche->fase, 2);
    EXPECT_NE(p.estremi.momento().fase, 2);
}

TEST(PareteViva, SaysInOneSentenceWhyNothingIsComputed) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 0;
    const PareteViva p = calcola(dati, 40);
    EXPECT_TRUE(p.fasi.empty());
    EXPECT_FALSE(p.sta());
    EXPECT_EQ(p.nSeg, 0);
    EXPECT_EQ(p.rifiuto,
              "Non sono ancora state definite le fasi di scavo, i calcoli non possono pertanto "
              "essere eseguiti.");
}

TEST(PareteViva, TakesTheStiffnessOfTheSectionWhereNoneIsStored) {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    dati.rigidezzaEJ = 0;
    const PareteViva p = calcola(dati, 40);
    EXPECT_TRUE(p.ejDellaSezione);
    EXPECT_EQ(p.dati.rigidezzaEJ, structure::rigidezzaOfferta(dati.sezione));
    EXPECT_TRUE(p.sta());
    dati.sezione = {};
    EXPECT_EQ(calcola(dati, 40).rifiuto, "Il valore di EJ non è ancora stato definito.");
}

TEST(PareteViva, TellsAStageWhoseSoilHasNoValueInTheWordsOfARun) {
    auto dati = test::progettoSemplice();
    dati.inclinazioneMonte = 40;  // steeper than the friction angle of both layers
    const PareteViva p = calcola(dati, 40);
    EXPECT_FALSE(p.sta());
    EXPECT_EQ(p.fasiInEquilibrio(), 0);
    EXPECT_EQ(p.rifiuto.rfind("Calcolo interrotto: fase 1, profondità ", 0), 0U) << p.rifiuto;
}

}  // namespace
}  // namespace korven::live
