#include "comparison/tables.hpp"

#include <gtest/gtest.h>

#include "comparison/walls.hpp"

namespace korven::comparison {
namespace {

using korven::test::progettoSemplice;
using Frasi = std::vector<std::string>;

std::vector<std::string> testi(const std::vector<tables::Cella>& riga) {
    std::vector<std::string> tutti;
    for (const auto& cella : riga) tutti.push_back(cella.testo);
    return tutti;
}

TEST(ProspettiConfronto, SayOfEqualProjectsThatNothingDiffers) {
    const Confronto c = test::confronto(progettoSemplice(), progettoSemplice());
    EXPECT_EQ(frasi(c).at(1), "Nessuna differenza.");
    EXPECT_TRUE(prospettoCampi(c).righe.empty());
    EXPECT_EQ(prospettoCampi(c).note, Frasi{"Nessun campo è diverso."});
    EXPECT_TRUE(righeOsservazioni(c).empty());
    EXPECT_EQ(frasiMuri(c)[0],
              "Prima: prima.kvd: in equilibrio in tutte le fasi, che sono 2; segmenti: 20");
}

TEST(ProspettiConfronto, SayOfAFieldThatNothingReadsThatNoResultChanges) {
    auto dopo = progettoSemplice();
    dopo.sezione.fyk += 10;  // of a wall without a section
    const Confronto c = test::confronto(progettoSemplice(), dopo);
    EXPECT_EQ(prospettoCampi(c).righe.size(), 1U);
    EXPECT_EQ(frasi(c).at(1), "Nessun risultato cambia.");
}

TEST(ProspettiConfronto, HaveTheFieldWithBothValuesAndTheResultsWithTheirDifference) {
    const Confronto c = test::confronto(test::trave(3), test::trave(6));
    const auto campi = prospettoCampi(c);
    ASSERT_EQ(campi.righe.size(), 1U);
    EXPECT_EQ(testi(campi.righe[0])[1], "30");
    EXPECT_EQ(testi(campi.righe[0])[2], "60");
    EXPECT_TRUE(testi(campi.righe[0])[0].ends_with("[kN/m²]")) << testi(campi.righe[0])[0];
    const Frasi momento = {"Momento positivo massimo [kN m/m]", "375.00", "750.00", "+375.00",
                           "+100.0"};
    const auto tutti = prospettoRisultati(c);
    EXPECT_TRUE(std::any_of(tutti.righe.begin(), tutti.righe.end(),
                            [&](const auto& riga) { return testi(riga) == momento; }));
    for (const auto& riga : tutti.righe) EXPECT_EQ(riga.size(), tutti.colonne.size());
    const auto fasi = prospettoFasi(c);
    Frasi dellaFase = momento;
    dellaFase.insert(dellaFase.begin(), "1");
    EXPECT_TRUE(std::any_of(fasi.righe.begin(), fasi.righe.end(),
                            [&](const auto& riga) { return testi(riga) == dellaFase; }));
}

TEST(ProspettiConfronto, HaveNoSignOnADifferenceThatIsShownAsNone) {
    const Confronto c = test::confronto(progettoSemplice(), progettoSemplice());
    for (const auto& riga : prospettoRisultati(c).righe)
        EXPECT_EQ(riga[3].testo.find_first_of("+123456789"), std::string::npos) << riga[3].testo;
}

TEST(ProspettiConfronto, SayOnceWhyAWallThatFallsHasNoNumbers) {
    const Confronto c = test::confronto(progettoSemplice(), test::cade());
    const auto note = prospettoRisultati(c).note;
    ASSERT_FALSE(note.empty());
    for (std::size_t i = 0; i < note.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) EXPECT_NE(note[i], note[j]);
    EXPECT_TRUE(note[0].starts_with("Dopo: ")) << note[0];
    EXPECT_TRUE(frasiMuri(c)[1].find("fase 1") != std::string::npos) << frasiMuri(c)[1];
    const auto righe = righeOsservazioni(c);
    EXPECT_TRUE(std::any_of(righe.begin(), righe.end(), [](const std::string& riga) {
        return riga.starts_with("solo dopo: ");
    }));
}

TEST(ProspettiConfronto, HaveARowForEachRemarkThatOneOfThemHas) {
    const Confronto c = test::confronto(progettoSemplice(), test::cade());
    const auto p = prospettoOsservazioni(c);
    ASSERT_EQ(p.righe.size(), c.sparite.size() + c.nuove.size());
    ASSERT_FALSE(c.nuove.empty());
    for (const auto& riga : p.righe) EXPECT_EQ(riga.size(), p.colonne.size());
    EXPECT_EQ(p.righe.back()[0].testo, "solo dopo");
    EXPECT_EQ(p.righe.back().back().testo, c.nuove.back().codice);
    EXPECT_TRUE(p.note.empty());
    const Confronto uguale = test::confronto(progettoSemplice(), progettoSemplice());
    EXPECT_EQ(prospettoOsservazioni(uguale).note, (Frasi{"Nessuna osservazione cambia."}));
}

TEST(ProspettiConfronto, SayWhereARowIsOnlyInOne) {
    auto dopo = progettoSemplice();
    korven::test::aggiungiTirante(dopo, 3, 400, 2);
    const auto campi = prospettoCampi(test::confronto(progettoSemplice(), dopo));
    EXPECT_EQ(testi(campi.righe[1]), (Frasi{"profondità del tirante 2 [m]", "-", "3"}));
}

}  // namespace
}  // namespace korven::comparison
