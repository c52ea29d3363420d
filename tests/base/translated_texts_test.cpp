#include "base/translated_texts.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "base/language.hpp"
#include "support/dialog_double.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

constexpr int italiano = 1, tedesco = 2, francese = 3, inglese = 5;

// A sorted table of few texts; read as a file would be.
const TabellaTesti& campione() {
    static const auto& testi = []() -> const TabellaTesti& {
        static TabellaTesti nuova;
        LettoreRighe file("campione.txt",
                          "Momento\nMoment\nMoment F\nMomento S\nBending moment\nMomento P\n\n"
                          "Solo inglese\n@Nur\n@\nSolo\nEnglish only\nSo\n\n"
                          "Nessuna\n@\n@\nNinguna\n@None\nNenhuma\n\n"
                          "[kN]\nfalsch\nf\ne\nwrong\np\n\n"
                          "No\nNein\nNon\nNo\nNo\nN\xE3o\n\n"
                          "Altezza\nH\xF6he\nHauteur\nAltura\nHeight\nAltura\n\n");
        aggiungiTesti(nuova, file);
        ordinaTesti(nuova);
        return nuova;
    }();
    return testi;
}

std::string traduci(int lingua, std::string_view testo, Dialogo* prova = nullptr) {
    return base::traduci(campione(), lingua, testo, prova);
}

TEST(Traduttore, GivesTheTextOfTheChosenLanguage) {
    EXPECT_EQ(traduci(2, "Momento"), "Moment");
    EXPECT_EQ(traduci(3, "Momento"), "Moment F");
    EXPECT_EQ(traduci(4, "Momento"), "Momento S");
    EXPECT_EQ(traduci(5, "Momento"), "Bending moment");
    EXPECT_EQ(traduci(6, "Momento"), "Momento P");
}

TEST(Traduttore, BracketedUnitIsUnchangedInEveryLanguageThoughARecordExists) {
    for (int lingua = 1; lingua <= 6; ++lingua) EXPECT_EQ(traduci(lingua, " [kN] "), "[kN]");
}

TEST(Traduttore, ItalianLooksNothingUpAndTellsNothingInTestMode) {
    test::DialogoFinto prova;
    EXPECT_EQ(traduci(italiano, "  MOMENTO ", &prova), "MOMENTO");
    EXPECT_EQ(traduci(italiano, "Non esiste", &prova), "Non esiste");
    EXPECT_TRUE(prova.messaggi.empty());
}

TEST(Traduttore, MissingTextComesBackWithoutItsOuterBlanks) {
    EXPECT_EQ(traduci(inglese, "  Non esiste  "), "Non esiste");
}

TEST(Traduttore, EmptyStringIsReturnedEmpty) {
    EXPECT_EQ(traduci(inglese, ""), "");
    EXPECT_EQ(traduci(inglese, "   "), "");
}

TEST(Traduttore, CapitalsForACapitalisedRecordGiveTheTranslationInCapitals) {
    EXPECT_EQ(traduci(inglese, "MOMENTO"), "BENDING MOMENT");
    EXPECT_EQ(traduci(tedesco, "ALTEZZA"), "HÖHE");
    EXPECT_EQ(traduci(inglese, "momento"), "bending moment");
    EXPECT_EQ(traduci(inglese, "moMento"), "BENDING MOMENT");
}

TEST(Traduttore, UntranslatedGermanFallsBackToEnglish) {
    EXPECT_EQ(traduci(tedesco, "Solo inglese"), "English only");
    EXPECT_EQ(traduci(francese, "Solo inglese"), "English only");
}

TEST(Traduttore, UntranslatedInGermanAndEnglishFallsBackToTheItalianText) {
    EXPECT_EQ(traduci(tedesco, "Nessuna"), "Nessuna");
    EXPECT_EQ(traduci(inglese, "Nessuna"), "Nessuna");
    EXPECT_EQ(traduci(4, "Nessuna"), "Ninguna");
}

TEST(Traduttore, LanguageCodeOutsideTheTableIsRefusedWhereAColumnIsNeeded) {
    for (const int codice : {-1, 0, 7}) {
        EXPECT_THROW(traduci(codice, "Momento"), ErroreIndice);
        EXPECT_EQ(traduci(codice, "Non esiste"), "Non esiste");
    }
}

using Box = test::DialogoFinto::Detto;

TEST(TestMode, TellsOfAMissingText) {
    test::DialogoFinto prova;
    traduci(inglese, " Non esiste ", &prova);
    EXPECT_EQ(prova.messaggi, (std::vector<Box>{{"Non esiste", "Testo Mancante", Icona::nessuna}}));
}

TEST(TestMode, TellsOfATextWithoutTranslationAndOfOneWithoutEnglish) {
    test::DialogoFinto prova;
    traduci(tedesco, "Solo inglese", &prova);
    EXPECT_EQ(prova.messaggi,
              (std::vector<Box>{{"Solo inglese", "Testo Non Tradotto in deu", Icona::nessuna}}));
    prova.messaggi.clear();
    traduci(tedesco, "Nessuna", &prova);
    EXPECT_EQ(
        prova.messaggi,
        (std::vector<Box>{{"Nessuna", "Testo Non Tradotto in deu", Icona::nessuna},
                          {"Nessuna", "Testo Non Tradotto Neanche in Inglese", Icona::nessuna}}));
}

TEST(TestMode, AsksToCheckTheCaseButNotOfTheWordNo) {
    test::DialogoFinto prova;
    traduci(inglese, "MOMENTO", &prova);
    EXPECT_EQ(
        prova.messaggi,
        (std::vector<Box>{{"MOMENTO\nBENDING MOMENT", "Verificare maiuscole", Icona::nessuna}}));
    prova.messaggi.clear();
    EXPECT_EQ(traduci(inglese, "no", &prova), "no");
    EXPECT_EQ(traduci(inglese, "NO", &prova), "NO");
    EXPECT_TRUE(prova.messaggi.empty());
}

TEST(TestMode, TellsNothingOfATextThatIsInOrder) {
    test::DialogoFinto prova;
    traduci(inglese, "Momento", &prova);
    traduci(inglese, "[kN]", &prova);
    EXPECT_TRUE(prova.messaggi.empty());
}

// The program's own table, language and mode are put back, so that tests can run in any order.
class TestiProgramma : public ::testing::Test {
 protected:
    void TearDown() override {
        tabellaTesti.nTesti = 0;
        impostaLingua(italiano);
        impostaModoProva(nullptr);
    }
    test::CartellaProvvisoria cartella;
};

TEST_F(TestiProgramma, WithNoTableEveryTextComesBackTrimmedInEveryLanguage) {
    for (int lingua = 1; lingua <= 6; ++lingua) {
        impostaLingua(lingua);
        EXPECT_EQ(linguaCorrente(), lingua);
        EXPECT_EQ(traduttore(" Momento "), "Momento");
    }
}

TEST_F(TestiProgramma, TableIsMadeOfBothFilesAndSortedAsOne) {
    test::metti(cartella / "texts01.txt", "Zeta\r\nZ\r\nZ\r\nZ\r\nZed\r\nZ\r\n\r\n");
    test::metti(cartella / "texts06.txt",
                "Momento\r\nM\r\nM\r\nM\r\nMoment\r\nM\r\n\r\nAlfa\r\nA\r\nA\r\nA\r\nAlpha\r\nA");
    caricaTesti(cartella / "texts01.txt", cartella / "texts06.txt");
    caricaTesti(cartella / "texts01.txt", cartella / "texts06.txt");  // starts the table anew
    EXPECT_EQ(tabellaTesti.nTesti, 3);
    impostaLingua(inglese);
    EXPECT_EQ(traduttore("Zeta"), "Zed");
    EXPECT_EQ(traduttore("Alfa"), "Alpha");
    EXPECT_EQ(traduttore("MOMENTO"), "MOMENT");

    test::DialogoFinto prova;
    EXPECT_FALSE(inModoProva());
    impostaModoProva(&prova);
    EXPECT_TRUE(inModoProva());
    EXPECT_EQ(traduttore("Manca"), "Manca");
    EXPECT_EQ(prova.messaggi.size(), 1u);
}

TEST_F(TestiProgramma, AddedTextsComeAfterTheTableWhoseSizeIsFixed) {
    test::metti(cartella / "texts01.txt", "Zeta\r\nZ\r\nZ\r\nZ\r\nZed\r\nZ\r\n\r\n");
    test::metti(cartella / "texts06.txt", "Fase\r\nS\r\nP\r\nF\r\nStage\r\nF\r\n\r\n");
    test::metti(cartella / "texts32.txt",
                "Margine\r\n@\r\nM\r\nM\r\nMargin\r\nM\r\n\r\n"
                "Zeta\r\n-\r\n-\r\n-\r\nother\r\n-\r\n\r\n");
    caricaTesti(cartella / "texts01.txt", cartella / "texts06.txt", cartella / "texts32.txt");
    EXPECT_EQ(tabellaTesti.nTesti, 2);
    EXPECT_EQ(testiAggiunti.nTesti, 2);
    impostaLingua(tedesco);
    EXPECT_EQ(traduttore("MARGINE"), "MARGIN");  // English takes its place, in the form of the key
    impostaLingua(inglese);
    EXPECT_EQ(traduttore("Zeta"), "Zed");  // the first table goes before
    EXPECT_EQ(traduttore("Manca"), "Manca");

    // The folder of an older version has no such file.
    caricaTesti(cartella / "texts01.txt", cartella / "texts06.txt", cartella / "manca.txt");
    EXPECT_EQ(tabellaTesti.nTesti, 2);
    EXPECT_EQ(testiAggiunti.nTesti, 0);
    EXPECT_EQ(traduttore("Margine"), "Margine");

    test::metti(cartella / "texts32.txt", "Margine\r\nM\r\n");
    EXPECT_THROW(
        caricaTesti(cartella / "texts01.txt", cartella / "texts06.txt", cartella / "texts32.txt"),
        ErroreFile);
    EXPECT_EQ(tabellaTesti.nTesti, 0);
}

TEST_F(TestiProgramma, MissingOrBrokenFileIsRefusedAndLeavesNoTexts) {
    test::metti(cartella / "texts01.txt", "Zeta\r\nZ\r\nZ\r\nZ\r\nZed\r\nZ\r\n\r\n");
    EXPECT_THROW(caricaTesti(cartella / "texts01.txt", cartella / "manca.txt"), ErroreFile);
    EXPECT_THROW(caricaTesti(cartella / "manca.txt", cartella / "texts01.txt"), ErroreFile);
    test::metti(cartella / "texts06.txt", "Momento\r\nM\r\n");
    EXPECT_THROW(caricaTesti(cartella / "texts01.txt", cartella / "texts06.txt"), ErroreFile);
    EXPECT_EQ(tabellaTesti.nTesti, 0);
}

TEST_F(TestiProgramma, LanguageFileHoldsTheCodeOnItsOneLine) {
    const std::string file = cartella / "language.cfg";
    const std::pair<const char*, int> casi[] = {{"1\r\n", 1}, {"6", 6},     {" 5 \r\n", 5},
                                                {"0\r\n", 0}, {"7\r\n", 7}, {"-2\r\n", -2}};
    for (const auto& [testo, codice] : casi) {
        test::metti(file, testo);
        EXPECT_EQ(leggiLingua(file), codice) << testo;
    }
}

TEST_F(TestiProgramma, LanguageFileWithoutAWholeNumberIsRefused) {
    const std::string file = cartella / "language.cfg";
    EXPECT_THROW((void)leggiLingua(file), ErroreFile);
    for (const char* testo : {"", "\r\n", "eng\r\n", "2.5\r\n", "1e30\r\n"}) {
        test::metti(file, testo);
        EXPECT_THROW((void)leggiLingua(file), ErroreFile) << testo;
    }
}

}  // namespace
}  // namespace korven::base
