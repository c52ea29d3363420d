#include "base/text_lines.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"

namespace korven::base {
namespace {

TEST(LettoreRighe, TakesCrLfAndLfAloneAndALastLineWithoutAnEnd) {
    LettoreRighe file("f", "uno\r\ndue\n tre ");
    EXPECT_EQ(file.riga(""), "uno");
    EXPECT_EQ(file.riga(""), "due");
    EXPECT_FALSE(file.fine());
    EXPECT_EQ(file.riga(""), " tre ");  // blanks belong to the text
    EXPECT_TRUE(file.fine());
    EXPECT_EQ(file.numeroRiga(), 3);
}

TEST(LettoreRighe, DropsTheCrOfALastLineEndThatWasCutInTwo) {
    LettoreRighe file("f", "uno\r\ndue\r");
    file.riga("");
    EXPECT_EQ(file.riga(""), "due");
    EXPECT_TRUE(file.fine());
    EXPECT_FALSE(file.rigaIntera());  // something was cut off all the same
    LettoreRighe altro("f", "1\r\n\r");
    EXPECT_EQ(altro.numero(""), 1);
    EXPECT_TRUE(altro.fine());
}

TEST(LettoreRighe, TellsWhetherTheLastLineReadHasItsEnd) {
    LettoreRighe file("f", "uno\ndue");
    EXPECT_FALSE(file.rigaIntera());
    file.riga("");
    EXPECT_TRUE(file.rigaIntera());
    file.riga("");
    EXPECT_FALSE(file.rigaIntera());
}

TEST(LettoreRighe, DecodesTheCodePage) {
    LettoreRighe file("f", "citt\xE0 \x80\r\n");
    EXPECT_EQ(file.riga(""), "città €");
}

TEST(LettoreRighe, CountsALoneLineEndAsNothing) {
    LettoreRighe file("f", "1\r\n\r\n");
    EXPECT_EQ(file.numero(""), 1);
    EXPECT_TRUE(file.fine());
    LettoreRighe altro("f", "1\n\n2");
    EXPECT_EQ(altro.numero(""), 1);
    EXPECT_FALSE(altro.fine());
}

TEST(LettoreRighe, TellsValuesFromTheEmptyLinesThatAnEditorLeft) {
    for (const char* coda : {"", "\r\n", "\r\n\r\n", "\n \t\n\n", "\x1A", "\r\n\x1A\r\n"}) {
        LettoreRighe file("f", std::string("7\r\n") + coda);
        EXPECT_FALSE(file.soloRigheVuote());
        EXPECT_EQ(file.numero("a"), 7);
        EXPECT_TRUE(file.soloRigheVuote()) << coda;
    }
    EXPECT_FALSE(LettoreRighe("f", "\r\n\r\n0").soloRigheVuote());
}

TEST(LettoreRighe, DropsTheMarkWithWhichDosEndedAText) {
    for (const char* coda : {"\x1A", "\x1A\r\n", "\x1A\x1A", "\x1A\n\x1A\n"}) {
        LettoreRighe file("f", std::string("uno\r\ndue") + coda);
        EXPECT_EQ(file.riga("a"), "uno");
        EXPECT_EQ(file.riga("b"), "due") << coda;
        EXPECT_TRUE(file.fine()) << coda;
    }
    LettoreRighe dentro("f",
                        "a\x1A"
                        "b\r\nc");
    EXPECT_EQ(dentro.riga("a"),
              "a\x1A"
              "b")
        << "inside a text it is a character like others";
    EXPECT_EQ(dentro.riga("b"), "c");
    EXPECT_TRUE(LettoreRighe("f", "\x1A").fine());
}

TEST(LettoreRighe, IgnoresBlanksAroundANumber) {
    LettoreRighe file("f", "  1.5  \r\n-.5\r\n");
    EXPECT_EQ(file.numero(""), 1.5);
    EXPECT_EQ(file.numero(""), -0.5);
}

// What is said of a file whose first line is no number.
std::string detto(const std::string& contenuto) {
    LettoreRighe file("f", contenuto);
    try {
        for (;;) file.numero("n");
    } catch (const ErroreFile& errore) {
        return errore.what();
    }
}

TEST(LettoreRighe, NamesAByteOrderMarkOrZeroBytesAsTheCause) {
    using namespace std::string_literals;
    const std::string salva = ": salvarlo come testo ANSI (Windows-1252)";
    EXPECT_EQ(
        detto("\xEF\xBB\xBF"
              "2\r\n"),
        "f, riga 1: atteso un numero: n; il file comincia con un segno d'ordine dei byte (BOM) "
        "di UTF-8" +
            salva);
    for (const auto& testo : {"\xFF\xFE"
                              "2\0\r\0\n\0"s,
                              "\xFE\xFF\0"
                              "2\0\r\0\n"s})
        EXPECT_EQ(detto(testo),
                  "f, riga 1: atteso un numero: n; il file comincia con un segno d'ordine dei byte "
                  "(BOM) di UTF-16" +
                      salva);
    EXPECT_EQ(
        detto("2\0\r\0\n\0x\0"s),
        "f, riga 2: atteso un numero: n; il file contiene byte nulli: è in UTF-16 oppure non è "
        "un testo");
    EXPECT_EQ(detto("due\r\n"), "f, riga 1: atteso un numero: n");
}

TEST(LettoreRighe, NamesFileLineAndWhatWasExpected) {
    LettoreRighe file("muro.kvd", "1\r\nabc\r\n", "cancellare il file");
    EXPECT_EQ(file.numero("primo"), 1);
    try {
        file.numero("peso dell'acqua");
        FAIL() << "a line without a number was taken";
    } catch (const ErroreFile& errore) {
        EXPECT_EQ(errore.percorso(), "muro.kvd");
        EXPECT_EQ(errore.riga(), 2);
        EXPECT_EQ(errore.atteso(), "atteso un numero: peso dell'acqua; cancellare il file");
    }
    EXPECT_THROW(file.riga("altro"), ErroreFile);
}

TEST(LettoreRighe, RefusesABlankLineWhereANumberIsDue) {
    LettoreRighe file("f", "   \r\n1\r\n");
    EXPECT_THROW(file.numero(""), ErroreFile);
}

TEST(LettoreRighe, RefusesAMissingFileAndAFolder) {
    EXPECT_THROW(static_cast<void>(LettoreRighe::apri("/nessuna/cartella/f.kvd")), ErroreFile);
    EXPECT_THROW(static_cast<void>(LettoreRighe::apri("/tmp")), ErroreFile);
}

}  // namespace
}  // namespace korven::base
