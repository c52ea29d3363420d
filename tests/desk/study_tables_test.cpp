#include "desk/study_tables.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/study_desk.hpp"

namespace korven::desk {
namespace {

StudioScritto campioni() {
    StudioScritto s;
    s.campioni = true;
    s.numero = 40;
    s.variazioni = {{"phiStrato[1]", 0, {"32", "2", ""}}, {"sovraccMonte", 2, {"5", "20", ""}}};
    return s;
}

TEST(ProspettoVarianti, HasARowForEachVariantInShownUnits) {
    auto s = test::lunghezze();
    s.fallisce = {{"spostamento_massimo_m", ">", "0"}};
    const auto f = test::fatto(s);
    const auto p = prospettoVarianti(*f, 3);
    ASSERT_EQ(p.righe.size(), 3U);
    EXPECT_EQ(p.note, std::vector<std::string>{"Le prime 3 varianti di 5; il CSV le ha tutte."});
    EXPECT_EQ(p.colonne[0].titolo, "Variante");
    EXPECT_TRUE(p.colonne[2].testa().ends_with(" [m]"));
    EXPECT_EQ(p.colonne[3].testa(), "Spostamento massimo [mm]");
    EXPECT_EQ(p.righe[2][0].testo, "3");
    EXPECT_EQ(p.righe[2][1].testo, "fallisce") << "it moves";
    EXPECT_EQ(p.righe[2][2].numero, 18);
    const auto metri = f->riga(2)[f->conto.forma().risultati[0]];
    EXPECT_DOUBLE_EQ(*p.righe[2][3].numero, 1000 * metri);
    EXPECT_TRUE(prospettoVarianti(*f, 5).note.empty());
    EXPECT_EQ(prospettoVarianti(*test::fatto(test::lunghezze()), 5).righe[0][1].testo,
              "in equilibrio");
}

TEST(ProspettoVarianti, SaysWhatBecameOfAVariantWithoutNumbers) {
    auto s = test::lunghezze();
    s.variazioni[0].numeri = {"0", "8", "8"};
    const auto p = prospettoVarianti(*test::fatto(s), 2);
    EXPECT_EQ(p.righe[0][1].testo, "dati rifiutati");
    EXPECT_TRUE(p.righe[1][1].testo.starts_with("meccanismo, fase 2")) << p.righe[1][1].testo;
    EXPECT_EQ(p.righe[0][1].peso, review::Peso::pericolo);
}

// A diaphragm wall has no stirrups.
TEST(ProspettoVarianti, LeavesOutWhatNoVariantHas) {
    const auto f = test::fatto(test::lunghezze());
    const auto p = prospettoVarianti(*f, 2);
    EXPECT_LT(p.colonne.size(), 2 + 1 + f->conto.forma().risultati.size());
    for (std::size_t j = 0; j < p.colonne.size(); ++j) {
        EXPECT_NE(p.colonne[j].titolo, "Vrd2");
        EXPECT_TRUE(std::ranges::any_of(prospettoVarianti(*f, f->numero()).righe,
                                        [j](const auto& r) { return !r[j].testo.empty(); }))
            << p.colonne[j].titolo;
    }
}

TEST(ProspettoVarianti, MarksAWallThatIsDugFree) {
    auto s = test::lunghezze();
    s.variazioni[0].numeri = {"9.6", "16", "6.4"};
    const auto p = prospettoVarianti(*test::fatto(s), 2);
    EXPECT_EQ(p.righe[0][1].testo, "in equilibrio con il piede scavato");
    EXPECT_EQ(p.righe[0][1].peso, review::Peso::pericolo);
    EXPECT_EQ(p.righe[1][1].testo, "in equilibrio");
}

// What the summary of the command line tells, in shown units.
TEST(ProspettiCampioni, HaveTheNumbersOfTheSummary) {
    const auto f = test::fatto(campioni());
    const auto [distribuzioni, correlazioni] = prospettiCampioni(*f);
    const auto tutte = f->conto.riassunto().statistiche();
    ASSERT_EQ(tutte[2].posto, f->conto.forma().risultati[0]);
    const auto& riga = distribuzioni.righe[2];
    EXPECT_EQ(riga[0].testo, "Spostamento massimo [mm]");
    EXPECT_EQ(riga[1].testo, std::to_string(tutte[2].momenti.numero())) << "a count has no unit";
    EXPECT_DOUBLE_EQ(*riga[2].numero, 1000 * tutte[2].momenti.media());
    EXPECT_DOUBLE_EQ(*riga[6].numero, 1000 * tutte[2].quantili->at(1));
    EXPECT_EQ(distribuzioni.colonne[6].titolo, "50 %");
    EXPECT_EQ(distribuzioni.note,
              std::vector<std::string>{"Quantili e correlazioni da 40 varianti."});
    ASSERT_EQ(correlazioni.colonne.size(), 3U);
    EXPECT_EQ(correlazioni.colonne[2].titolo, "Sovraccarico a monte");
    EXPECT_EQ(correlazioni.righe[0][0].testo, "Spostamento massimo");
    EXPECT_NEAR(*correlazioni.righe[0][2].numero, *tutte[2].ranghi[1], 0.005);
}

TEST(ProspettiCampioni, AreEmptyOfAGrid) {
    const auto [distribuzioni, correlazioni] = prospettiCampioni(*test::fatto(test::lunghezze()));
    EXPECT_TRUE(distribuzioni.righe.empty());
    EXPECT_TRUE(correlazioni.righe.empty());
}

}  // namespace
}  // namespace korven::desk
