#include <gtest/gtest.h>

#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"
#include "tables/margin_table.hpp"

namespace korven::report {
namespace {

using test::contesto;
using test::testo;

Blocchi margine(const Contesto& c) { return test::blocchi(capitoloMargine, c); }

TEST(CapitoloMargine, HoldsTheMarginOfTheDossier) {
    const Contesto c = contesto(test::progettoSemplice());
    const auto b = margine(c);
    const auto tavole = test::tutti<document::Tavola>(b);
    ASSERT_EQ(tavole.size(), 3U);
    const safety::Margine& m = *c.fascicolo->margine;
    EXPECT_EQ(tavole[0].prospetto.righe, tables::prospettoMargine(m).righe);
    EXPECT_EQ(test::numero(tavole[0].prospetto, 1, 2), *m.fasi[1].riduzione.F);
    EXPECT_EQ(tavole[1].prospetto.righe, tables::prospettoMaglia(m).righe);
    const auto statica = tables::prospettoStatica(m).righe;
    ASSERT_EQ(tavole[2].prospetto.righe.size(), statica.size());
    for (std::size_t i = 0; i < statica.size(); ++i)
        for (std::size_t j = 0; j < statica[i].size(); ++j) {
            EXPECT_EQ(tavole[2].prospetto.righe[i][j].testo, statica[i][j].testo);
            EXPECT_EQ(tavole[2].prospetto.righe[i][j].numero, statica[i][j].numero);
        }
    EXPECT_NE(testo(b).find(tables::verdetto(m)), std::string::npos);
    for (const auto& frase : tables::frasi(m)) EXPECT_NE(testo(b).find(frase), std::string::npos);
}

// The heading has the title of its table.
TEST(CapitoloMargine, SaysNoTitleTwice) {
    const auto b = margine(contesto(test::progettoSemplice()));
    for (const auto& t : test::tutti<document::Tavola>(b)) EXPECT_EQ(t.prospetto.titolo, "");
    EXPECT_NE(testo(b).find("\nMargine per fase\n"), std::string::npos);
}

TEST(CapitoloMargine, OfAWallThatFallsGivesItsVerdictAsADanger) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const auto b = margine(contesto(dati));
    EXPECT_EQ(std::get<document::Paragrafo>(b[0]).stile, document::Stile::pericolo);
    EXPECT_NE(testo(b).find("Errore di maglia"), std::string::npos);
}

TEST(CapitoloMargine, OfAProjectWithoutAWallSaysWhy) {
    const auto b = margine(contesto(test::progettoVuoto()));
    ASSERT_EQ(b.size(), 2U);
    EXPECT_EQ(std::get<document::Paragrafo>(b[0]).testo, "Di questo progetto non c'è un margine.");
}

}  // namespace
}  // namespace korven::report
