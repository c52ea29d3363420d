#include "tables/node_table.hpp"

#include <gtest/gtest.h>

#include "support/result_tables.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::tables {
namespace {

using live::PareteViva;
using test::posto;

TEST(ProspettoNodi, HasARowForEachNodeWithTheNumbersOfTheEquilibrium) {
    const PareteViva parete = live::calcola(test::progettoSemplice(), 24);  // nodes every 0.5 m
    const auto& fase = *parete.fase(2);
    const Prospetto p = prospettoNodi(parete, 2);
    EXPECT_EQ(p.titolo, "Nodi: Fase 2");
    ASSERT_EQ(p.righe.size(), 25u);
    for (std::size_t i = 0; i < 25; ++i) {
        const auto& riga = p.righe[i];
        EXPECT_EQ(riga[0].numero, static_cast<double>(i + 1));
        EXPECT_EQ(riga[1].numero, static_cast<double>(i) * 0.5);
        EXPECT_EQ(riga[2].numero, fase.y[i] * 1000 + 0.0);
        EXPECT_EQ(riga[3].numero, fase.momento[i] * 10 + 0.0);
        EXPECT_EQ(riga[4].numero, fase.taglioSopra[i] * 10 + 0.0);
        EXPECT_EQ(riga[5].numero, fase.taglioSotto[i] * 10 + 0.0);
        EXPECT_NEAR(*riga[6].numero + *riga[7].numero + *riga[8].numero, *riga[9].numero, 1e-9);
    }
    // The anchor, at 1.5 m.
    EXPECT_NEAR(*p.righe[3][5].numero - *p.righe[3][4].numero, 10 * fase.tiri[0], 1e-9);
    EXPECT_EQ(p.colonne[4].titolo, "Taglio sopra");
    EXPECT_EQ(p.colonne[5].titolo, "Taglio sotto");
}

TEST(ProspettoNodi, HasOneShearWhereNoStageHasAnchors) {
    project::DatiProgetto dati = test::progettoSemplice();
    dati.nFasi = 1;
    const PareteViva parete = live::calcola(dati, 24);
    const Prospetto p = prospettoNodi(parete, 1);
    ASSERT_EQ(posto(p, "Taglio"), 4U);
    EXPECT_EQ(p.colonne[5].titolo, "Monte");
    for (std::size_t i = 0; i < 25; ++i)
        EXPECT_EQ(p.righe[i][4].numero, parete.fase(1)->taglio[i] * 10 + 0.0);
}

TEST(ProspettoNodi, TellsLayersAndStatesInWords) {
    const Prospetto p = prospettoNodi(live::calcola(test::progettoSemplice(), 24), 2);
    const std::size_t strato = posto(p, "Strato"), valle = posto(p, "A valle");
    EXPECT_EQ(p.righe[0][strato].testo, "1: Sabbia, limosa \"media\"");
    EXPECT_EQ(p.righe[24][strato].testo, "2: Ghiaia");
    EXPECT_EQ(p.righe[8][strato].ordine, 2);         // on the boundary at 4 m: the lower one
    EXPECT_EQ(p.righe[9][valle].testo, "-");         // 4.5 m, above the excavation
    EXPECT_EQ(p.righe[10][valle].testo, "passivo");  // 5 m: no limit at all above it
    EXPECT_EQ(p.righe[0][posto(p, "A monte")].testo, "attivo");
}

TEST(ProspettoNodi, ShowsTheConstantPressureWhereThereIsOne) {
    project::DatiProgetto dati = test::progettoSemplice();
    dati.pressioneOrizz = 0.5;
    const Prospetto p = prospettoNodi(live::calcola(dati, 24), 1);
    const std::size_t c = posto(p, "Costante");
    EXPECT_EQ(p.righe[3][c].testo, "5.00");
    const auto& riga = p.righe[3];
    EXPECT_NEAR(*riga[6].numero + *riga[7].numero + *riga[8].numero + 5, *riga[10].numero, 1e-9);
}

TEST(ProspettoNodi, SaysWhyAStageHasNoRows) {
    const PareteViva parete =
        live::calcola(test::leggiMuro(std::string(KORVEN_WALLS) + "/meccanismo.kvd"));
    const Prospetto p = prospettoNodi(parete, 1);
    EXPECT_TRUE(p.righe.empty());
    ASSERT_EQ(p.note.size(), 1u);
    EXPECT_EQ(p.note[0].find("La paratia è un meccanismo nella fase 1"), 0u) << p.note[0];
}

TEST(ProspettoNodi, OfAnEmptyProjectSaysWhyNothingIsComputed) {
    const PareteViva parete = live::calcola(test::progettoVuoto());
    for (const Prospetto& p : {prospettoNodi(parete, 1), prospettoInviluppo(parete)}) {
        EXPECT_TRUE(p.righe.empty());
        ASSERT_EQ(p.note.size(), 1u);
        EXPECT_FALSE(p.note[0].empty());
        EXPECT_EQ(p.note[0], parete.rifiuto);
    }
}

TEST(ProspettoInviluppo, HoldsTheSmallestAndTheLargestOfAllStages) {
    const PareteViva parete = live::calcola(test::progettoSemplice(), 24);
    const Prospetto p = prospettoInviluppo(parete);
    const auto &una = *parete.fase(1), &altra = *parete.fase(2);
    for (std::size_t i = 0; i < 25; ++i) {
        EXPECT_EQ(p.righe[i][2].numero, std::min(una.y[i], altra.y[i]) * 1000 + 0.0);
        EXPECT_EQ(p.righe[i][5].numero, std::max(una.momento[i], altra.momento[i]) * 10 + 0.0);
        EXPECT_EQ(p.righe[i][6].numero,
                  std::min({una.taglio[i], altra.taglioSopra[i], altra.taglioSotto[i]}) * 10 + 0.0);
    }
    EXPECT_EQ(p.colonne[4].testa(), "Momento min. [kN m/m]");
}

TEST(Perche, OfAStageAfterTheOneThatFallsNamesThatOne) {
    project::DatiProgetto dati = test::leggiMuro(std::string(KORVEN_WALLS) + "/meccanismo.kvd");
    test::ripetiFase(dati, 0);
    EXPECT_EQ(perche(live::calcola(dati), 2), "Non calcolata: nessun equilibrio nella fase 1");
}

}  // namespace
}  // namespace korven::tables
