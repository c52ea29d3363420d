#include "safety/told_stages.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/wall_files.hpp"

namespace korven::safety {
namespace {

using equilibrium::EsitoFase;

project::DatiProgetto muro(const std::string& nome) {
    return test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
}

TEST(RaccontaFasi, HoldsEveryStageOfAWallThatStands) {
    const auto dati = muro("singolare_2");
    const EquilibrioRaccontato e = raccontaFasi(dati, 50);
    ASSERT_EQ(e.fasi.size(), static_cast<std::size_t>(dati.nFasi));
    EXPECT_FALSE(e.caduta());
    EXPECT_DOUBLE_EQ(e.h, dati.lunghezzaParatia / 50);
    const auto diretto = equilibrium::calcolaEquilibrio(dati, 50);
    for (std::size_t k = 0; k < e.fasi.size(); ++k) {
        EXPECT_TRUE(e.fasi[k].sta());
        EXPECT_EQ(e.fasi[k].frase(), "");
        EXPECT_EQ(e.fasi[k].fase.y, diretto[k].y);
        EXPECT_EQ(e.fasi[k].scavo, dati.profFase[static_cast<int>(k) + 1]);
    }
}

// The quay wall 40 cm shorter falls in its second stage. A third like the first would be held, a
// third like the second would not.
TEST(RaccontaFasi, SaysOfTheStagesAfterOneThatFallsNoMoreThanIsKnown) {
    auto dati = muro("banchina");
    dati.lunghezzaParatia -= 0.4;
    ASSERT_EQ(dati.nFasi, 2);
    dati.nFasi = 4;
    const auto ripeti = [](auto& tabella) {
        tabella[3] = tabella[1];
        tabella[4] = tabella[2];
    };
    ripeti(dati.profFase);
    ripeti(dati.tirantiFase);
    ripeti(dati.sovraccFase);
    ripeti(dati.faldaFase);
    const EquilibrioRaccontato e = raccontaFasi(dati, 50);
    ASSERT_EQ(e.fasi.size(), 4u);
    EXPECT_TRUE(e.fasi[0].sta());
    EXPECT_EQ(e.caduta(), &e.fasi[1]);
    EXPECT_EQ(e.fasi[1].fase.esito, EsitoFase::meccanismo);
    EXPECT_TRUE(e.fasi[1].fase.y.empty());
    EXPECT_TRUE(e.fasi[1].frase().starts_with("la paratia è un meccanismo nella fase 2: "));
    EXPECT_EQ(e.fasi[2].fase.esito, EsitoFase::nonDefinito);
    EXPECT_EQ(e.fasi[2].frase(),
              "fase 3: non ha spostamenti da cui partire: nessun equilibrio nella fase 2");
    EXPECT_EQ(e.fasi[3].fase.esito, EsitoFase::meccanismo);
    EXPECT_TRUE(e.fasi[3].frase().starts_with("la paratia è un meccanismo nella fase 4: "));
}

TEST(RaccontaFasi, EndsAtAStageWhoseSoilHasNoValue) {
    auto dati = muro("banchina");
    dati.inclinazioneMonte = 60;
    const EquilibrioRaccontato e = raccontaFasi(dati, 50);
    ASSERT_EQ(e.fasi.size(), 1u);
    ASSERT_TRUE(e.fasi[0].fase.rifiuto);
    EXPECT_FALSE(e.fasi[0].perche);
}

// Ten times the largest of all numbers is none.
TEST(RaccontaFasi, KnowsNoNumberThatTheReportCouldNotShow) {
    auto dati = muro("banchina");
    dati.pretTirante[1] = 1e308;
    dati.rigTirante[1] = 0;
    dati.nTiranti = 1;
    dati.profTirante[1] = 0;
    dati.tirantiFase[1] = dati.tirantiFase[2] = 1;
    dati.vincoloTesta = 2;
    const EquilibrioRaccontato e = raccontaFasi(dati, 50);
    ASSERT_TRUE(e.caduta());
    EXPECT_EQ(e.caduta()->fase.esito, EsitoFase::nessunNumero);
    EXPECT_TRUE(e.caduta()->frase().starts_with("nessun numero nella fase 1: "));
}

}  // namespace
}  // namespace korven::safety
