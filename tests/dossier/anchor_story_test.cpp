#include "dossier/anchor_story.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "safety/short_margin.hpp"
#include "support/sample_projects.hpp"

namespace korven::dossier {
namespace {

// Three stages; one anchor from the second on, another in the third, a row that no stage takes.
project::DatiProgetto muro() {
    auto dati = test::progettoSemplice();
    test::aggiungiTirante(dati, 4, 400, 2);
    test::aggiungiTirante(dati, 6, 400, 1);
    test::aggiungiFase(dati, {.scavo = 5.5, .tiranti = 2, .falda = 5.5});
    return dati;
}

TEST(StorieTiranti, FollowEachAnchorFromTheStageThatPutsItInPlace) {
    const auto parete = live::calcola(muro(), 40);
    ASSERT_TRUE(parete.sta());
    const auto storie = storieTiranti(parete, nullptr);
    ASSERT_EQ(storie.size(), 3U);
    const StoriaTirante& primo = storie[0];
    EXPECT_EQ(primo.profondita, 1.5);
    EXPECT_EQ(primo.posa, 2);
    ASSERT_EQ(primo.tiri.size(), 3U);
    EXPECT_FALSE(primo.tiri[0]);
    EXPECT_EQ(primo.tiri[1], parete.fase(2)->tiri[0]);
    EXPECT_EQ(primo.tiri[2], parete.fase(3)->tiri[0]);
    EXPECT_EQ(primo.allaPosa, parete.fase(2)->tiri[0]);
    EXPECT_EQ(primo.massimo, std::max(*primo.tiri[1], *primo.tiri[2]));
    EXPECT_EQ(primo.faseMassimo, *primo.tiri[2] > *primo.tiri[1] ? 3 : 2);
    EXPECT_FALSE(primo.relazione);
    EXPECT_EQ(storie[1].posa, 3);
    EXPECT_EQ(storie[1].massimo, parete.fase(3)->tiri[1]);
    EXPECT_EQ(storie[2].posa, 0);
    EXPECT_EQ(storie[2].faseMassimo, 0);
    EXPECT_EQ(storie[2].tiri.size(), 3U);
}

// Both forces are above 0, so that no anchor is slack.
TEST(StorieTiranti, TellFromWhereEachForceIsCounted) {
    const auto parete = live::calcola(muro(), 40);
    const auto storie = storieTiranti(parete, nullptr);
    for (const std::size_t j : {0U, 1U}) {
        const StoriaTirante& s = storie[j];
        ASSERT_TRUE(s.profonditaNodo && s.spostamentoPosa);
        EXPECT_NEAR(*s.profonditaNodo, s.profondita, parete.h / 2);
        const auto nodo = static_cast<std::size_t>(std::lround(*s.profonditaNodo / parete.h));
        EXPECT_EQ(*s.spostamentoPosa, parete.fase(s.posa - 1)->y[nodo]);
        for (int k = s.posa; k <= 3; ++k)
            EXPECT_NEAR(*s.tiri[static_cast<std::size_t>(k) - 1],
                        parete.dati.pretTirante[s.tirante] +
                            parete.dati.rigTirante[s.tirante] *
                                (parete.fase(k)->y[nodo] - *s.spostamentoPosa),
                        1e-9);
    }
    EXPECT_FALSE(storie[2].spostamentoPosa);
    EXPECT_NEAR(*storie[2].profonditaNodo, 6, 1e-9);
}

TEST(StorieTiranti, HaveNoNodeBesideTheWallAndCountTheFirstStageFromNothing) {
    auto dati = muro();
    dati.profTirante[3] = 50;
    dati.tirantiFase[1] = 1;
    const auto storie = storieTiranti(live::calcola(dati, 40), nullptr);
    EXPECT_EQ(storie[0].spostamentoPosa, 0);
    EXPECT_FALSE(storie[2].profonditaNodo);
}

TEST(StorieTiranti, HaveTheReportsLargestForceBesideThem) {
    const auto parete = live::calcola(muro(), 40);
    const auto breve = safety::margineBreve(muro(), 40);
    ASSERT_TRUE(breve && breve->margine.relazione);
    const auto storie = storieTiranti(parete, &breve->margine);
    EXPECT_EQ(storie[0].relazione, breve->margine.relazione->tiriMassimi[0]);
    EXPECT_EQ(storie[1].relazione, breve->margine.relazione->tiriMassimi[1]);
    EXPECT_FALSE(storie[2].relazione);
}

TEST(StorieTiranti, EndWithTheLastStageThatStands) {
    auto dati = muro();
    dati.profFase[3] = 11.9;
    dati.tirantiFase[3] = 1;
    const auto parete = live::calcola(dati, 40);
    ASSERT_EQ(parete.fasiInEquilibrio(), 2);
    const auto storie = storieTiranti(parete, nullptr);
    EXPECT_EQ(storie[0].tiri.size(), 2U);
    EXPECT_EQ(storie[1].posa, 0);
}

}  // namespace
}  // namespace korven::dossier
