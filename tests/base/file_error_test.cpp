#include "base/file_error.hpp"

#include <gtest/gtest.h>

#include <cerrno>

#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {
namespace {

TEST(ErroreFile, ReadsAsOneLineWithPathLineAndWhatWasExpected) {
    const ErroreFile errore("/lavori/muro.kvd", 12, "atteso un numero");
    EXPECT_STREQ(errore.what(), "/lavori/muro.kvd, riga 12: atteso un numero");
    EXPECT_EQ(errore.percorso(), "/lavori/muro.kvd");
    EXPECT_EQ(errore.riga(), 12);
    EXPECT_EQ(errore.atteso(), "atteso un numero");
}

TEST(ErroreFile, NamesNoLineWhenTheWholeFileIsMeant) {
    EXPECT_STREQ(ErroreFile("a.txt", 0, "il file non esiste").what(), "a.txt: il file non esiste");
}

TEST(NonScritto, TellsWhatCouldNotBeWrittenAndWhyTheSystemRefused) {
    try {
        nonScritto("/lavori/muro.OUT", ENOSPC);
    } catch (const ErroreScrittura& errore) {
        EXPECT_STREQ(
            errore.what(),
            "/lavori/muro.OUT: impossibile scrivere il file (non c'è più spazio sul disco)");
    }
}

// The table of the program with two texts, in German, for the length of a test.
class TestiTedeschi {
 public:
    TestiTedeschi() {
        aggiungi("riga", "Zeile");
        aggiungi("atteso un numero", "Zahl erwartet");
        ordinaTesti(tabellaTesti);
        impostaLingua(2);
    }
    TestiTedeschi(const TestiTedeschi&) = delete;
    TestiTedeschi& operator=(const TestiTedeschi&) = delete;
    ~TestiTedeschi() {
        impostaLingua(1);
        tabellaTesti.nTesti = 0;
    }

 private:
    static void aggiungi(const char* italiano, const char* tedesco) {
        auto& record = tabellaTesti.nuovaRiga();
        record.testo[1] = italiano;
        record.testo[2] = tedesco;
    }
};

TEST(ErroreFile, SpeaksTheLanguageOfTheProgram) {
    const TestiTedeschi testi;
    LettoreRighe file("muro.kvd", "abc\r\n");
    try {
        file.numero("Länge der Wand");
        FAIL() << "a line without a number was taken";
    } catch (const ErroreFile& errore) {
        EXPECT_STREQ(errore.what(), "muro.kvd, Zeile 1: Zahl erwartet: Länge der Wand");
    }
}

}  // namespace
}  // namespace korven::base
