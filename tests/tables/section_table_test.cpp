#include "tables/section_table.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "live/section_checks.hpp"
#include "safety/short_margin.hpp"
#include "structure/offered_stiffness.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_files.hpp"
#include "tables/check_table.hpp"

namespace korven::tables {
namespace {

project::DatiProgetto muro(const project::Sezione& sezione) {
    auto dati = test::progettoSemplice();
    dati.sezione = sezione;
    return dati;
}

std::vector<std::string> righe(const project::DatiProgetto& dati) {
    return quadroSezione(dati, live::calcola(dati), nullptr).righe;
}

// The numbers beside the section are those of the window of results, which are the report's.
TEST(QuadroSezioneTest, HasTheVeryNumbersOfTheChecksOfEveryExample) {
    int confrontati = 0;
    for (const auto& voce : std::filesystem::directory_iterator(KORVEN_EXAMPLES)) {
        if (voce.path().extension() != ".kvd") continue;
        const auto dati = test::leggiMuro(voce.path().string());
        const auto parete = live::calcola(dati);
        const auto breve = safety::margineBreve(dati, parete.nSeg);
        if (!breve || !live::sezioneCalcolabile(dati.sezione) || !parete.sta()) continue;
        const auto verifiche = prospettoVerifiche(parete, breve->margine);
        const auto quadro = quadroSezione(dati, parete, &breve->margine).verifiche;
        std::size_t riga = 0;
        for (const auto& qui : quadro.righe) {
            if (qui[3].testo == nessuno) continue;  // no negative moment acts
            ASSERT_LT(riga, verifiche.righe.size()) << voce.path();
            const auto& la = verifiche.righe[riga++];
            for (const auto& [qua, altrove] : {std::pair{3U, 1U}, {4U, 2U}, {2U, 3U}})
                EXPECT_EQ(qui[qua].testo, la[altrove].testo) << voce.path();
            EXPECT_EQ(qui[1].peso, la[6].peso) << voce.path();
            ++confrontati;
        }
        EXPECT_EQ(riga, verifiche.righe.size()) << voce.path();
    }
    EXPECT_GT(confrontati, 4);
}

TEST(QuadroSezioneTest, TellsWhatARunDoesWithTheStiffness) {
    auto dati = muro(structure::diaframmaSimmetrico());
    const double EJ = *structure::rigidezzaOfferta(dati.sezione);
    const std::string della =
        "EJ della sezione: " + std::to_string(static_cast<int>(10 * EJ)) + " kN m²/m";
    dati.rigidezzaEJ = 0;
    EXPECT_EQ(righe(dati)[0], della);
    EXPECT_EQ(righe(dati)[1], "EJ del progetto: 0, il calcolo prende quella della sezione.");
    dati.rigidezzaEJ = EJ;
    EXPECT_TRUE(righe(dati)[1].ends_with("uguale."));
    dati.rigidezzaEJ = 1234.5;
    EXPECT_EQ(righe(dati)[1],
              "EJ del progetto: 12345 kN m²/m, diversa: il calcolo chiede quale prendere.");
    dati.sforzoNormale = 10;
    EXPECT_EQ(righe(dati)[2], "Sforzo normale di progetto Nd: 140.00 kN/m");
}

TEST(QuadroSezioneTest, NamesWhatASectionLacks) {
    auto dati = muro(structure::palancola());
    dati.sezione.palancolaSpessore = dati.sezione.fyk = 0;
    const auto quadro = quadroSezione(dati, live::calcola(dati), nullptr);
    EXPECT_EQ(quadro.righe,
              std::vector<std::string>{
                  "Sezione non definita. Mancano: spessore della palancola, resistenza fyk."});
    EXPECT_TRUE(quadro.verifiche.righe.empty());
    dati.sezione = structure::paliArmati();
    dati.sezione.armNumLong = 1e6;
    EXPECT_EQ(righe(dati), std::vector<std::string>{"Sezione non calcolabile: troppi ferri."});
}

TEST(QuadroSezioneTest, ShowsResistancesWithoutActionsWhereNothingStands) {
    auto dati = muro(structure::palancola());
    dati.nStrati = 0;
    const auto p = quadroSezione(dati, live::calcola(dati), nullptr).verifiche;
    ASSERT_EQ(p.righe.size(), 2U);
    for (const auto& riga : p.righe) {
        for (const std::size_t colonna : {1U, 2U, 3U}) EXPECT_EQ(riga[colonna].testo, nessuno);
        EXPECT_NE(riga[4].testo, nessuno);
    }
    EXPECT_EQ(p.note.front(), "Azioni non note: la paratia non è calcolata.");
}

TEST(ProspettoDominioTest, HasARowForEachStage) {
    auto dati = muro(structure::palancola());
    const auto parete = live::calcola(dati);
    const auto p = prospettoDominio(parete, nullptr, structure::dominioNM(dati.sezione));
    ASSERT_EQ(p.righe.size(), static_cast<std::size_t>(dati.nFasi));
    EXPECT_EQ(p.righe[0][1].testo, "0.00");
    EXPECT_EQ(p.righe[0][4].testo, "verificata");
    EXPECT_EQ(p.note.size(), 1U);
    dati.sezione.fyk = 1;
    const auto debole = prospettoDominio(live::calcola(dati), nullptr, {});
    EXPECT_EQ(debole.righe.back()[4].testo, "NON verificata");
    EXPECT_EQ(debole.righe.back()[4].peso, review::Peso::pericolo);
}

TEST(QuadroSezioneTest, SaysOfAStiffnessBeyondAllNumbersThatThereIsNone) {
    project::Sezione sezione = structure::diaframmaSimmetrico();
    sezione.modEcls = sezione.modEacciaio = 1e305;
    ASSERT_TRUE(live::sezioneCalcolabile(sezione));
    EXPECT_EQ(righe(muro(sezione)).at(0), "EJ della sezione: nessun numero.");
}

}  // namespace
}  // namespace korven::tables
