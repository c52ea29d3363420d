#include "tables/stage_table.hpp"

#include <gtest/gtest.h>

#include "support/result_tables.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::tables {
namespace {

using live::PareteViva;
using test::posto;

TEST(ProspettoFasi, HoldsTheLargestNumbersOfEachStageWithTheirDepths) {
    const PareteViva parete = live::calcola(test::progettoSemplice(), 24);
    const Prospetto p = prospettoFasi(parete);
    ASSERT_EQ(p.righe.size(), 2u);
    for (int k = 1; k <= 2; ++k) {
        const auto& riga = p.righe[static_cast<std::size_t>(k) - 1];
        const auto e = equilibrium::estremi(*parete.fase(k), parete.h);
        EXPECT_EQ(riga[0].numero, k);
        EXPECT_EQ(riga[1].testo, "in equilibrio");
        EXPECT_EQ(riga[2].numero, parete.dati.profFase[k]);
        EXPECT_EQ(riga[3].numero, e.spostamento.valore * 1000);
        EXPECT_EQ(riga[4].numero, e.spostamento.z);
        EXPECT_EQ(riga[5].numero, e.momento().valore * 10);
        EXPECT_EQ(riga[6].numero, e.momento().z);
        EXPECT_EQ(riga[7].numero, e.taglio.valore * 10);
        EXPECT_EQ(riga[8].numero, e.taglio.z);
    }
    EXPECT_TRUE(p.note.empty());
}

TEST(ProspettoFasi, TellsWhichStageFallsAndThatTheLaterOnesAreNotComputed) {
    project::DatiProgetto dati = test::leggiMuro(std::string(KORVEN_WALLS) + "/meccanismo.kvd");
    test::ripetiFase(dati, 0);
    const Prospetto p = prospettoFasi(live::calcola(dati));
    ASSERT_EQ(p.righe.size(), 2u);
    EXPECT_EQ(p.righe[0][1].testo, "meccanismo");
    EXPECT_EQ(p.righe[0][1].peso, review::Peso::pericolo);
    EXPECT_EQ(p.righe[0][3].testo, "-");
    EXPECT_EQ(p.righe[1][1].testo, "non calcolata");
    ASSERT_EQ(p.note.size(), 1u);
    EXPECT_EQ(p.note[0].find("La paratia è un meccanismo nella fase 1"), 0u) << p.note[0];
}

TEST(ProspettoFasi, OfACurveThatIsZeroHasNoDepth) {
    const Prospetto p = prospettoFasi(live::calcola(test::muroElastico(1500), 10));
    ASSERT_EQ(p.righe.size(), 1u);
    EXPECT_EQ(p.righe[0][1].testo, "in equilibrio");
    EXPECT_EQ(p.righe[0][3].testo, "0.00");
    EXPECT_EQ(p.righe[0][4].testo, "-");
}

TEST(ProspettoFasi, OfAnEmptyProjectHasNoRowsAndSaysWhy) {
    const Prospetto p = prospettoFasi(live::calcola(test::progettoVuoto()));
    EXPECT_TRUE(p.righe.empty());
    ASSERT_EQ(p.note.size(), 1u);
    EXPECT_FALSE(p.note[0].empty());
}

}  // namespace
}  // namespace korven::tables
