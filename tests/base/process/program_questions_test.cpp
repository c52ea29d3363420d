#include "base/process/program_questions.hpp"

#include <gtest/gtest.h>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "support/wall_files.hpp"

namespace korven::base {
namespace {

TEST(RichiestaProgramma, IsAskedInEnglishAndInItalian) {
    EXPECT_EQ(richiesta("--version"), Richiesta::versione);
    EXPECT_EQ(richiesta("--versione"), Richiesta::versione);
    for (const char* aiuto : {"--help", "--aiuto", "-h"})
        EXPECT_EQ(richiesta(aiuto), Richiesta::aiuto) << aiuto;
    for (const char* altro : {"", "-", "--", "help", "--Help", "--helps", "muro.kvd", "-v"})
        EXPECT_EQ(richiesta(altro), Richiesta::nessuna) << altro;
}

TEST(Domanda, LeavesNoNameOutInItalianAndTheItalianOneInEveryOtherLanguage) {
    for (const auto& domanda : domande) {
        EXPECT_EQ(domanda.taciuto(), "");
        impostaLingua(5);
        EXPECT_EQ(domanda.taciuto(), domanda.nome.italiano);
        impostaLingua(1);
    }
}

TEST(TestoAiuto, SaysHowTheProgramIsCalledAndWhatItAnswers) {
    EXPECT_EQ(testoAiuto("prova FILE"), "KORVEN 32 " + std::string(versione) +
                                            " - Dimensionamento di Paratie e Diaframmi\n"
                                            "Uso: prova FILE\n\n"
                                            "  -h, --help, --aiuto    mostra questo aiuto\n"
                                            "  --version, --versione  mostra la versione\n");
}

TEST(TestoAiuto, ShowsTheEnglishNamesAloneInEveryOtherLanguage) {
    for (int lingua = 2; lingua <= 6; ++lingua) {
        impostaLingua(lingua);
        const std::string testo = testoAiuto("prova FILE");
        EXPECT_NE(testo.find("\n  -h, --help  mostra questo aiuto\n"
                             "  --version   mostra la versione\n"),
                  std::string::npos)
            << testo;                                       // no texts are loaded
        EXPECT_EQ(richiesta("--aiuto"), Richiesta::aiuto);  // understood all the same
    }
    impostaLingua(1);
}

// What a program that only answers a question speaks, whatever is wrong with its folder.
class LinguaSilenziosa : public ::testing::Test {
 protected:
    LinguaSilenziosa() { impostaCartellaProgramma(cartella.percorso()); }
    ~LinguaSilenziosa() override {
        tabellaTesti.nTesti = 0;
        impostaLingua(1);
        impostaCartellaProgramma({});
    }
    void scelta(std::string_view testo) { test::metti(cartella / "language.cfg", testo); }
    void testi() {
        test::metti(cartella / "texts01.txt", "Uso\r\nU\r\nU\r\nU\r\nUsage\r\nU\r\n\r\n");
        for (const char* nome : {"texts06.txt", "texts32.txt"}) test::metti(cartella / nome, "");
    }

    test::CartellaProvvisoria cartella;
};

TEST_F(LinguaSilenziosa, IsTheChosenOneOnceItsTextsAreThere) {
    scelta("5\r\n");
    testi();
    scegliLinguaSilenziosa();
    EXPECT_EQ(linguaCorrente(), 5);
    EXPECT_EQ(traduttore("Uso"), "Usage");
}

TEST_F(LinguaSilenziosa, IsItalianWhereNothingOrNoLanguageIsChosen) {
    testi();
    scegliLinguaSilenziosa();
    EXPECT_EQ(linguaCorrente(), 1);
    for (const char* codice : {"1\r\n", "7\r\n", "x\r\n", ""}) {
        scelta(codice);
        scegliLinguaSilenziosa();
        EXPECT_EQ(linguaCorrente(), 1) << codice;
    }
}

TEST_F(LinguaSilenziosa, IsItalianWithoutTexts) {
    scelta("5\r\n");
    scegliLinguaSilenziosa();
    EXPECT_EQ(linguaCorrente(), 1);
}

}  // namespace
}  // namespace korven::base
