#include "tables/anchor_table.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "safety/short_margin.hpp"
#include "support/result_tables.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::tables {
namespace {

using live::PareteViva;
using test::posto;

TEST(ProspettoTiranti, HasTheForceOfEachStageAndTheLargest) {
    const PareteViva parete = live::calcola(test::progettoSemplice());
    const Prospetto p = prospettoTiranti(parete, nullptr);
    ASSERT_EQ(p.righe.size(), 1u);
    const auto& riga = p.righe[0];
    EXPECT_EQ(riga[1].numero, 1.5);
    EXPECT_EQ(riga[2].testo, "Solo traz.");
    EXPECT_EQ(riga[3].testo, "50.00");
    EXPECT_EQ(riga[4].testo, "-");  // not in place in stage 1
    EXPECT_EQ(riga[5].numero, parete.fase(2)->tiri[0] * 10);
    EXPECT_EQ(riga[posto(p, "Massima")].numero, parete.fase(2)->tiri[0] * 10);
    EXPECT_EQ(riga[posto(p, "Relazione")].testo, "...");
}

// The report's force of a very stiff prop is 0 where the wall pushes with 42 kN.
TEST(ProspettoTiranti, SetsTheForceOfTheReportBesideTheTrueOne) {
    const auto dati = test::leggiMuro(std::string(KORVEN_WALLS) + "/puntone_rigidissimo.kvd");
    const PareteViva parete = live::calcola(dati);
    const auto breve = safety::margineBreve(dati, parete.nSeg);
    ASSERT_TRUE(breve && breve->margine.relazione);
    const Prospetto p = prospettoTiranti(parete, &breve->margine);
    const auto& riga = p.righe[0];
    EXPECT_NEAR(*riga[posto(p, "Massima")].numero, 42.2, 0.05);
    EXPECT_EQ(riga[posto(p, "Relazione")].testo, "0.00");
    EXPECT_TRUE(p.note.empty());
}

TEST(ProspettoTiranti, SaysThatTheSpecifiedRunGivesNoForces) {
    const auto dati = test::leggiMuro(std::string(KORVEN_WALLS) + "/oscilla_2.kvd");
    const PareteViva parete = live::calcola(dati);
    const auto breve = safety::margineBreve(dati, parete.nSeg);
    ASSERT_TRUE(parete.sta() && breve && !breve->margine.relazione);
    const Prospetto p = prospettoTiranti(parete, &breve->margine);
    ASSERT_FALSE(p.righe.empty());
    EXPECT_EQ(p.righe[0][posto(p, "Relazione")].testo, "-");
    ASSERT_EQ(p.note.size(), 1u);
    EXPECT_EQ(p.note[0].find("La relazione non ha numeri"), 0u) << p.note[0];
}

TEST(ProspettoTiranti, WaitsForTheReportOnlyWhileThereIsOneToCome) {
    live::ProgettoVivo vivo;
    auto dati = test::progettoSemplice();
    const auto relazione = [&vivo] {
        const Prospetto p = prospettoTiranti(vivo);
        return p.righe.at(0)[posto(p, "Relazione")].testo;
    };
    vivo.guarda(&dati);
    EXPECT_EQ(relazione(), "...");
    ASSERT_TRUE(vivo.rispondi(vivo.domanda()->numero, live::calcolaLenti(*vivo.domanda())));
    EXPECT_TRUE(vivo.lenti()->margine->relazione);
    EXPECT_NE(relazione(), "...");
    EXPECT_NE(relazione(), "-");
    dati.lunghezzaParatia = 0;
    vivo.guarda(&dati);
    if (vivo.domanda()) vivo.rispondi(vivo.domanda()->numero, calcolaLenti(*vivo.domanda()));
    ASSERT_NE(vivo.lenti(), nullptr);
    ASSERT_FALSE(vivo.lenti()->margine);
    EXPECT_EQ(relazione(), "-");
}

TEST(ProspettoTiranti, OfAProjectWithoutAnchorsSaysSo) {
    const Prospetto p = prospettoTiranti(live::calcola(test::muroNudo()), nullptr);
    EXPECT_TRUE(p.righe.empty());
    ASSERT_FALSE(p.note.empty());
    EXPECT_EQ(p.note[0], "Il progetto non ha né tiranti né puntoni.");
}

}  // namespace
}  // namespace korven::tables
