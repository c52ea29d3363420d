#include "base/text_table.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "base/code_page.hpp"
#include "base/file_error.hpp"

namespace korven::base {
namespace {

std::unique_ptr<TabellaTesti> conChiavi(const std::vector<std::string>& chiavi) {
    auto testi = std::make_unique<TabellaTesti>();
    for (const auto& chiave : chiavi) {
        auto& record = testi->nuovaRiga();
        for (int lingua = 1; lingua <= numeroLingue; ++lingua)
            record.testo[lingua] = chiave + std::to_string(lingua);
        record.testo[colonnaItaliano] = chiave;
    }
    return testi;
}

std::string record(const std::string& chiave) { return chiave + "\r\nd\r\nf\r\ne\r\nen\r\np\r\n"; }

TEST(AggiungiTesti, ReadsSevenLinesARecordInTheOrderOfTheLanguageCodes) {
    auto testi = std::make_unique<TabellaTesti>();
    LettoreRighe file("t.txt",
                      "Profondit\xE0\r\nTiefe\r\n Prof. \r\nProf\r\nDepth\r\nPr\r\nignored\r\n"
                      "Uno\nEins\nUn\nUno\nOne\nUm\n");
    aggiungiTesti(*testi, file);
    ASSERT_EQ(testi->nTesti, 2);
    const char* attesi[] = {"Profondità", "Tiefe", " Prof. ", "Prof", "Depth", "Pr"};
    for (int lingua = 1; lingua <= numeroLingue; ++lingua)
        EXPECT_EQ(testi->righe[1].testo[lingua], attesi[lingua - 1]);
    EXPECT_EQ(testi->righe[2].testo[1], "Uno");
    EXPECT_EQ(testi->righe[2].testo[6], "Um");
}

TEST(AggiungiTesti, LastRecordMayLackItsSeparatorAndEvenTheLineEndAfterIt) {
    for (const char* coda : {"", "\r\n", "\r\n\r\n", "\r\n---", "\r\n---\r\n"}) {
        auto testi = std::make_unique<TabellaTesti>();
        LettoreRighe file("t.txt", record("Uno") + "\r\nDue\r\nd\r\nf\r\ne\r\nen\r\np" + coda);
        aggiungiTesti(*testi, file);
        EXPECT_EQ(testi->nTesti, 2) << coda;
        EXPECT_EQ(testi->righe[2].testo[6], "p");
    }
}

TEST(AggiungiTesti, SecondFileIsAppendedToTheFirst) {
    auto testi = std::make_unique<TabellaTesti>();
    for (const char* chiave : {"Uno", "Due"}) {
        LettoreRighe file("t.txt", record(chiave));
        aggiungiTesti(*testi, file);
    }
    ASSERT_EQ(testi->nTesti, 2);
    EXPECT_EQ(testi->righe[2].testo[1], "Due");
}

TEST(AggiungiTesti, EmptyFileHoldsNoRecord) {
    auto testi = std::make_unique<TabellaTesti>();
    LettoreRighe file("t.txt", "");
    aggiungiTesti(*testi, file);
    EXPECT_EQ(testi->nTesti, 0);
}

TEST(AggiungiTesti, RecordCutShortIsRefusedWithItsLine) {
    auto testi = std::make_unique<TabellaTesti>();
    LettoreRighe file("t.txt", record("Uno") + "---\r\nDue\r\nZwei\r\n");
    try {
        aggiungiTesti(*testi, file);
        FAIL();
    } catch (const ErroreFile& errore) {
        EXPECT_EQ(errore.percorso(), "t.txt");
        EXPECT_EQ(errore.riga(), 10);
    }
    EXPECT_EQ(testi->nTesti, 1);
}

TEST(AggiungiTesti, RecordBeyondTheCapacityIsRefused) {
    auto testi = std::make_unique<TabellaTesti>();
    std::string contenuto;
    for (int i = 1; i <= massimoTesti; ++i) contenuto += record(std::to_string(i)) + "\r\n";
    LettoreRighe piena("t.txt", contenuto);
    aggiungiTesti(*testi, piena);
    EXPECT_EQ(testi->nTesti, 800);

    LettoreRighe troppo("u.txt", record("di troppo"));
    EXPECT_THROW(aggiungiTesti(*testi, troppo), ErroreFile);
    EXPECT_EQ(testi->nTesti, 800);

    TabellaTesti grande{massimoTestiAggiunti};
    LettoreRighe ancora("v.txt", contenuto + record("di più"));
    aggiungiTesti(grande, ancora);
    EXPECT_EQ(grande.nTesti, 801);
}

TEST(AggiungiTesti, EmptiedTableBeginsAgainAtItsFirstRow) {
    auto testi = conChiavi({"vecchio", "altro"});
    testi->nTesti = 0;
    LettoreRighe file("t.txt", record("nuovo"));
    aggiungiTesti(*testi, file);
    EXPECT_EQ(testi->nTesti, 1);
    EXPECT_EQ(testi->righe[1].testo[colonnaItaliano], "nuovo");
}

TEST(OrdinaTesti, OrdersByTheCodesOfTheUpperCaseCharacters) {
    // Codes of the page: '!' 21, '1' 31, 'A' 41, 'B' 42, '[' 5B, 'À' C0, 'ß' DF, 'Ÿ' 9F.
    auto testi = conChiavi({"ß", "à", "b", "A!", "[m]", "1", "ÿ", "a", "B1"});
    ordinaTesti(*testi);
    const char* attese[] = {"1", "a", "A!", "b", "B1", "[m]", "ÿ", "à", "ß"};
    for (int i = 1; i <= testi->nTesti; ++i) {
        EXPECT_EQ(testi->righe[i].testo[1], attese[i - 1]);
        EXPECT_EQ(testi->righe[i].testo[6],
                  attese[i - 1] + std::string("6"));  // all columns go along
    }
}

TEST(OrdinaTesti, AgreesWithAnIndependentSortForTablesOfEverySize) {
    std::mt19937 caso(6);
    std::uniform_int_distribution<int> lettera('a', 'z'), lunghezza(0, 4);
    for (const int n : {0, 1, 2, 3, 7, 8, 100, 799, 800}) {
        std::vector<std::string> chiavi(static_cast<std::size_t>(n));
        for (auto& chiave : chiavi)
            for (int k = lunghezza(caso); k >= 0; --k) chiave += static_cast<char>(lettera(caso));
        auto testi = conChiavi(chiavi);
        ordinaTesti(*testi);
        std::sort(chiavi.begin(), chiavi.end());
        for (int i = 1; i <= n; ++i)
            EXPECT_EQ(testi->righe[i].testo[1], chiavi[static_cast<std::size_t>(i - 1)]);
    }
}

TEST(CercaTesto, FindsEveryRowOfTablesOfEverySizeAndNothingBetweenThem) {
    for (int n = 0; n <= 40; ++n) {
        std::vector<std::string> chiavi;
        for (int i = 0; i < n; ++i)
            chiavi.push_back(std::string(1, static_cast<char>('0' + i)) + "x");
        auto testi = conChiavi(chiavi);
        ordinaTesti(*testi);
        for (int i = 1; i <= n; ++i) {
            EXPECT_EQ(cercaTesto(*testi, testi->righe[i].testo[1]), i) << n;
            EXPECT_EQ(cercaTesto(*testi, testi->righe[i].testo[1] + "y"), 0) << n;
        }
        EXPECT_EQ(cercaTesto(*testi, ""), 0);
    }
}

TEST(CercaTesto, IgnoresCaseAlsoOfAccentedLetters) {
    auto testi = conChiavi({"Profondità", "Zeta", "Alfa"});
    ordinaTesti(*testi);
    EXPECT_GT(cercaTesto(*testi, "PROFONDITÀ"), 0);
    EXPECT_EQ(cercaTesto(*testi, "PROFONDITà"), cercaTesto(*testi, "profondità"));
    EXPECT_EQ(cercaTesto(*testi, "profondita"), 0);
}

TEST(CercaTesto, CharacterOutsideTheCodePageMatchesNoQuestionMark) {
    auto testi = conChiavi({"Uno?", "Due"});
    ordinaTesti(*testi);
    EXPECT_GT(cercaTesto(*testi, "Uno?"), 0);
    EXPECT_EQ(cercaTesto(*testi, "Uno→"), 0);
}

}  // namespace
}  // namespace korven::base
