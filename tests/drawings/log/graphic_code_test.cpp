#include "drawings/log/graphic_code.hpp"

#include <gtest/gtest.h>

#include "drawings/log/layer_description.hpp"

namespace korven::drawings {
namespace {

using Gruppi = std::vector<GruppoCampitura>;

TEST(LeggiCodice, TakesTheGroupsFromTheRight) {
    EXPECT_EQ(leggiCodice("105 Argilla").gruppi, (Gruppi{{5, 1}}));
    EXPECT_EQ(leggiCodice("12005 Argilla").gruppi, (Gruppi{{5, 0}, {12, 0}}));
    EXPECT_EQ(leggiCodice("107505C3 Argilla").gruppi, (Gruppi{{5, 5}, {7, 1}}));
    EXPECT_EQ(leggiCodice("0 Argilla").gruppi, Gruppi{});
}

TEST(LeggiCodice, TakesColourFootAndTheRest) {
    const auto codice = leggiCodice("-105a20c3 Argilla");
    EXPECT_EQ(codice.colore, 3);
    EXPECT_FALSE(codice.lineaAlPiede);
    EXPECT_EQ(codice.altro, "a20");
    EXPECT_EQ(leggiCodice("105C0").colore, 1);
    EXPECT_TRUE(leggiCodice("105").lineaAlPiede);
}

TEST(LeggiCodice, HasNoHatchWhereThereIsNoCode) {
    EXPECT_EQ(leggiCodice("Argilla"), CodiceGrafico{});
    EXPECT_EQ(leggiCodice(""), CodiceGrafico{});
    EXPECT_EQ(leggiCodice("C3 Calcare").colore, 3);
    EXPECT_EQ(leggiCodice("1e300 x").gruppi, Gruppi{});
}

TEST(HaCodice, TellsACodeFromAWord) {
    for (const char* si : {"105 Argilla", "-105", "C3", "a20", "+5 x", "  105"})
        EXPECT_TRUE(haCodice(si)) << si;
    for (const char* no : {"", "Argilla", "Calcare 5", "- 105", "C", "_105"})
        EXPECT_FALSE(haCodice(no)) << no;
}

TEST(ParolaCodice, IsWhatWasRead) {
    for (const char* parola : {"105", "12005", "107105", "505C3", "-105", "0C4", "0", "105C21A30",
                               "999999999", "5", "12000"})
        EXPECT_EQ(parolaCodice(leggiCodice(parola)), parola);
}

TEST(ConCodice, ChangesTheCodeAlone) {
    CodiceGrafico codice = leggiCodice("105C3 Argilla  grigia|fine. ");
    codice.gruppi = {{3, 1}};
    EXPECT_EQ(conCodice("105C3 Argilla  grigia|fine. ", codice), "103C3 Argilla  grigia|fine.");
    EXPECT_EQ(conCodice("105C3\t_Argilla", codice), "103C3\t_Argilla");
    EXPECT_EQ(conCodice("105C3", codice), "103C3");
    codice.colore = 1;
    EXPECT_EQ(conCodice("105C3 Argilla", codice), "103 Argilla");
}

TEST(ConCodice, GoesBeforeADescriptionWithoutCode) {
    EXPECT_EQ(conCodice("Argilla grigia", leggiCodice("105C3")), "105C3 Argilla grigia");
    EXPECT_EQ(conCodice("", leggiCodice("105C3")), "105C3");
}

TEST(ConCodice, LeavesADescriptionThatHasItAlready) {
    EXPECT_EQ(conCodice(" 0105c3a1  x", leggiCodice("105C3a1")), " 0105c3a1  x");
}

// What the chooser writes is what the log reads.
TEST(ConCodice, IsReadByTheLogAsItWasMeant) {
    for (int campitura = 1; campitura <= 99; ++campitura)
        for (int passo = 0; passo <= massimoPasso; ++passo) {
            CodiceGrafico codice;
            codice.gruppi = {{campitura, passo}, {100 - campitura, massimoPasso - passo}};
            codice.colore = 1 + campitura % massimoColoreStrato;
            codice.lineaAlPiede = passo % 2 == 0;
            const std::string scritta = conCodice("7 Testo.", codice);
            ASSERT_EQ(leggiCodice(scritta), codice) << scritta;
            const auto letta = leggiDescrizione(scritta);
            ASSERT_EQ(letta.testo, "Testo.");
            ASSERT_EQ(letta.campitura, ((massimoPasso - passo) * 100 + 100 - campitura) * 1000.0 +
                                           passo * 100 + campitura);
        }
}

}  // namespace
}  // namespace korven::drawings
