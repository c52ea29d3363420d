#include "studies/both_ways.hpp"

#include <gtest/gtest.h>

#include "studies/small_study.hpp"
#include "support/random_walls.hpp"

namespace korven::studies {
namespace {

EsitoControllo di(const std::string& nome) {
    analysis::OsservatoreCorsa nessuno;
    return controlla(test::leggiMuro(nome), 50, nessuno);
}

TEST(Controlla, FindsTheSameDisplacementsInAllExamples) {
    int uguali = 0;
    for (const std::string& nome : test::muriIn(KORVEN_EXAMPLES)) {
        const EsitoControllo esito = di(nome);
        EXPECT_FALSE(esito.diversi()) << nome << " fase " << esito.fase << ' ' << esito.scarto;
        if (esito.accordo == Accordo::uguali && esito.scarto > 0) ++uguali;
    }
    EXPECT_GT(uguali, 5);
}

TEST(Controlla, SaysOfARunWithoutRestThatThereIsNothingToCompare) {
    EXPECT_EQ(di(std::string(KORVEN_WALLS) + "/oscilla_1.kvd").accordo, Accordo::senzaRiposo);
    EXPECT_EQ(di(std::string(KORVEN_WALLS) + "/meccanismo.kvd").accordo, Accordo::uguali);
}

TEST(Controlla, AllowsTheRunsOwnToleranceAndTheShareOfAFixedToe) {
    EXPECT_DOUBLE_EQ(tolleranza(0), 1e-7);
    EXPECT_DOUBLE_EQ(tolleranza(0.1), 2e-7);
}

TEST(Controlla, FindsNoDifferenceInWallsAtRandom) {
    test::MuriCasuali muri(14);
    for (int m = 0; m < 60; ++m) {
        analysis::OsservatoreCorsa nessuno;
        const EsitoControllo esito = controlla(muri.prossimo(), 50, nessuno);
        EXPECT_FALSE(esito.diversi()) << m << ' ' << esito.scarto;
    }
}

}  // namespace
}  // namespace korven::studies
