#include "live/limit_wall.hpp"

#include <gtest/gtest.h>

#include "safety/short_margin.hpp"
#include "support/sample_projects.hpp"

namespace korven::live {
namespace {

safety::Margine margine(const PareteViva& parete) {
    return safety::margineBreve(parete.dati, parete.nSeg)->margine;
}

TEST(PareteAlLimite, OfAWallThatStandsIsItsDecidingStageAsAMechanism) {
    const PareteViva parete = calcola(test::progettoSemplice());
    const safety::Margine m = margine(parete);
    ASSERT_TRUE(m.decisiva() && m.decisiva()->riduzione.moto);
    const auto caduta = pareteAlLimite(parete, m);
    ASSERT_TRUE(caduta);
    EXPECT_FALSE(caduta->sta());
    EXPECT_EQ(static_cast<int>(caduta->fasi.size()), m.decisiva()->fase);
    EXPECT_EQ(caduta->perche->moto->profondita, m.decisiva()->riduzione.moto->profondita);
    EXPECT_EQ(caduta->perche->moto->verso, m.decisiva()->riduzione.moto->verso);
    EXPECT_EQ(caduta->fasi.back().y, parete.fase(m.decisiva()->fase)->y);
}

TEST(PareteAlLimite, OfAWallThatFallsIsTheWallAsItIs) {
    project::DatiProgetto dati = test::progettoSemplice();
    dati.tirantiFase[2] = 0;
    dati.profFase[2] = 9;
    const PareteViva parete = calcola(dati);
    ASSERT_FALSE(parete.sta());
    const auto caduta = pareteAlLimite(parete, margine(parete));
    ASSERT_TRUE(caduta && caduta->perche);
    EXPECT_EQ(caduta->perche->moto->profondita, parete.perche->moto->profondita);
}

TEST(PareteAlLimite, OfAWallThatRestraintsHoldIsNone) {
    project::DatiProgetto dati = test::progettoSemplice();
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    dati.vincoloTesta = valore(project::VincoloTesta::cerniera);
    const PareteViva parete = calcola(dati);
    EXPECT_FALSE(pareteAlLimite(parete, margine(parete)));
}

}  // namespace
}  // namespace korven::live
