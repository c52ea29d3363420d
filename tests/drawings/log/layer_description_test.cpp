#include "drawings/log/layer_description.hpp"

#include <gtest/gtest.h>

namespace korven::drawings {
namespace {

TEST(LeggiDescrizione, TakesTheFirstWordAsTheHatchAndTheRestAsTheText) {
    const auto strato = leggiDescrizione("105 Sabbia fine");
    EXPECT_EQ(strato.campitura, 105);
    EXPECT_EQ(strato.colore, 1);
    EXPECT_TRUE(strato.lineaAlPiede);
    EXPECT_TRUE(strato.richiamo);
    EXPECT_EQ(strato.testo, "Sabbia fine");
    EXPECT_EQ(leggiDescrizione("  105   Sabbia  ").campitura, 105);
    EXPECT_EQ(leggiDescrizione("  105   Sabbia  ").testo, "Sabbia");
}

TEST(LeggiDescrizione, TakesTheColourAfterTheLetterC) {
    EXPECT_EQ(leggiDescrizione("105C3 Sabbia").campitura, 105);
    EXPECT_EQ(leggiDescrizione("105C3 Sabbia").colore, 3);
    EXPECT_EQ(leggiDescrizione("105c12").colore, 12) << "the word is read in upper case";
    EXPECT_EQ(leggiDescrizione("105C").colore, 1);
    EXPECT_EQ(leggiDescrizione("105C0").colore, 1);
}

TEST(LeggiDescrizione, ReadsBothNumbersWhenCAndAAreInTheWord) {
    for (const char* parola : {"105C2A7", "105A7C2", "105a7c2"}) {
        EXPECT_EQ(leggiDescrizione(parola).campitura, 105) << parola;
        EXPECT_EQ(leggiDescrizione(parola).colore, 2) << parola;
    }
}

TEST(LeggiDescrizione, MakesNoUseOfTheNumberAfterA) {
    EXPECT_EQ(leggiDescrizione("12005A4").campitura, 12005);
    EXPECT_EQ(leggiDescrizione("12005A4").colore, 1);
}

TEST(LeggiDescrizione, ANegativeHatchLeavesTheFootOpen) {
    EXPECT_EQ(leggiDescrizione("-105C2 Limo").campitura, 105);
    EXPECT_FALSE(leggiDescrizione("-105C2 Limo").lineaAlPiede);
    EXPECT_TRUE(leggiDescrizione("-0").lineaAlPiede);
}

TEST(LeggiDescrizione, OfALineWithoutACodeHasNoHatch) {
    for (const char* riga : {"Sabbia fine", "argilla", "calcare", "_", "", "   ", "C", "A"}) {
        EXPECT_EQ(leggiDescrizione(riga).campitura, 0) << riga;
        EXPECT_EQ(leggiDescrizione(riga).colore, 1) << riga;
        EXPECT_TRUE(leggiDescrizione(riga).lineaAlPiede) << riga;
    }
    EXPECT_EQ(leggiDescrizione("Sabbia fine").testo, "fine") << "the first word is the code";
}

TEST(LeggiDescrizione, AnUnderscoreBeforeTheTextMeansNoLeader) {
    const auto strato = leggiDescrizione("105 _ Sabbia_fine");
    EXPECT_FALSE(strato.richiamo);
    EXPECT_EQ(strato.testo, "Sabbia_fine");
    EXPECT_FALSE(leggiDescrizione("105 _").richiamo);
    EXPECT_EQ(leggiDescrizione("105 _").testo, "");
}

TEST(LeggiDescrizione, KeepsColoursWithinTheirPens) {
    EXPECT_EQ(leggiDescrizione("105C99").colore, 21);
    EXPECT_EQ(leggiDescrizione("105C1E300").colore, 21);
    EXPECT_EQ(leggiDescrizione("105C-30").colore, 1);
    EXPECT_EQ(leggiDescrizione("105C2.9").colore, 2);
}

TEST(LeggiDescrizione, CutsAHatchToAWholeNumber) {
    EXPECT_EQ(leggiDescrizione("105.7").campitura, 105);
    EXPECT_EQ(leggiDescrizione("-0.5").campitura, 0);
    EXPECT_TRUE(leggiDescrizione("-0.5").lineaAlPiede);
}

TEST(LeggiDescrizione, TakesATabAfterTheCodeForABlank) {
    EXPECT_EQ(leggiDescrizione("105\tGhiaia sabbiosa").testo, "Ghiaia sabbiosa");
}

}  // namespace
}  // namespace korven::drawings
