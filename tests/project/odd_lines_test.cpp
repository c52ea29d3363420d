#include "project/odd_lines.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "project/project_file.hpp"
#include "project/rescue_mark.hpp"
#include "support/sample_projects.hpp"

namespace korven::project {
namespace {

using Motivo = RigaInsolita::Motivo;

// The sample project with the text of some lines, counted from 1, replaced.
std::string conRighe(const std::vector<std::pair<int, std::string>>& nuove) {
    std::string testo = base::inCp1252(testoProgetto(test::progettoSemplice()));
    for (const auto& [numero, riga] : nuove) {
        std::size_t inizio = 0;
        for (int i = 1; i < numero; ++i) inizio = testo.find('\n', inizio) + 1;
        testo.replace(inizio, testo.find('\r', inizio) - inizio, riga);
    }
    return testo;
}

std::vector<RigaInsolita> insolite(const std::string& testo) {
    DatiProgetto letti;
    base::LettoreRighe lettura("prova.kvd", testo);
    leggiDati(lettura, letti);
    base::LettoreRighe file("prova.kvd", testo);
    return righeInsolite(file, letti);
}

TEST(RigheInsolite, AreNoneInAFileThatTheProgramWrote) {
    EXPECT_TRUE(insolite(conRighe({})).empty());
}

TEST(RigheInsolite, NameTheLineTheFieldAndWhatWasReadOfADecimalComma) {
    const auto trovate = insolite(conRighe({{26, " 9,5"}, {38, "1.5 m"}}));
    ASSERT_EQ(trovate.size(), 2u);
    EXPECT_EQ(trovate[0].motivo, Motivo::resto);
    EXPECT_EQ(trovate[0].riga, 26);
    EXPECT_EQ(trovate[0].campo, "lunghezza della paratia");
    EXPECT_EQ(trovate[0].letto, 9);
    EXPECT_EQ(trovate[0].testo, "9,5");
    EXPECT_EQ(trovate[1].riga, 38);
    EXPECT_EQ(trovate[1].campo, "profondità del tirante 1");
    EXPECT_EQ(trovate[1].letto, 1.5);
}

TEST(RigheInsolite, SeeARestAfterCountsAndFlagsToo) {
    const auto trovate = insolite(conRighe({{1, "2,0"}, {68, "-1 vero"}}));
    ASSERT_EQ(trovate.size(), 2u);
    EXPECT_EQ(trovate[0].riga, 1);
    EXPECT_EQ(trovate[1].letto, -1);
}

TEST(RigheInsolite, TakeEveryFormOfANumberAndOuterBlanksForAWholeNumber) {
    for (const char* numero : {"12", "+12", " \t12 \t", "12.", "1.2e1", "1.2E+01", "120e-1"})
        EXPECT_TRUE(insolite(conRighe({{26, numero}})).empty()) << numero;
    for (const char* numero : {"12e", "12-3", "12.3.4", "1 2", "0x10", "12m"})
        EXPECT_EQ(insolite(conRighe({{26, numero}})).size(), 1u) << numero;
}

TEST(RigheInsolite, LetTextsHoldWhatTheyLike) {
    EXPECT_TRUE(insolite(conRighe({{9, "9,5"}, {51, "12 m"}})).empty());
}

TEST(RigheInsolite, NameAMethodOfEarthPressureThatTheReadingDoesNotKeep) {
    const auto trovate = insolite(conRighe({{24, "3"}}));
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_EQ(trovate[0].motivo, Motivo::metodoSpinte);
    EXPECT_EQ(trovate[0].riga, 24);
    EXPECT_EQ(trovate[0].letto, 3);
    EXPECT_TRUE(insolite(conRighe({{24, "0"}})).empty());
}

TEST(RigheInsolite, NameTheFirstLineAfterTheLastValueButNoLoneLineEnd) {
    const auto trovate = insolite(conRighe({}) + "7\r\n8\r\n");
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_EQ(trovate[0].motivo, Motivo::oltreLultima);
    EXPECT_EQ(trovate[0].riga, 88);
    EXPECT_EQ(trovate[0].testo, "7");
    EXPECT_TRUE(insolite(conRighe({}) + "\r\n").empty());
}

TEST(RigheInsolite, AreNoneOfTheEmptyLinesAndTheMarkOfDosAtTheEnd) {
    const std::string testo = testoProgetto(test::progettoSemplice());
    for (const char* coda : {"\r\n\r\n \r\n", "\x1A", "\r\n\x1A\r\n"})
        EXPECT_TRUE(insolite(testo + coda).empty()) << coda;
}

TEST(RigheInsolite, AreNoneOfTheMarkOfARescueFile) {
    const std::string testo = conRighe({}) + segnoRecupero("/lavori/muro.kvd");
    EXPECT_TRUE(insolite(testo).empty());
    EXPECT_EQ(insolite(testo + "7\r\n").size(), 1u);
}

TEST(RigheInsolite, StopWhereAFileOfTheOldestFormStops) {
    std::string antico = conRighe({});
    for (int i = 0; i < 15; ++i) antico.resize(antico.rfind('\n', antico.size() - 2) + 1);
    EXPECT_TRUE(insolite(antico).empty());
}

TEST(RigheInsolite, RefuseAFileShorterThanTheCounts) {
    base::LettoreRighe file("prova.kvd", "2\r\n4\r\n");
    EXPECT_THROW((void)righeInsolite(file, test::progettoSemplice()), base::ErroreFile);
}

}  // namespace
}  // namespace korven::project
