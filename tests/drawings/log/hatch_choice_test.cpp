#include "drawings/log/hatch_choice.hpp"

#include <gtest/gtest.h>

#include "drawings/log/layer_description.hpp"
#include "support/hatch_setup.hpp"

namespace korven::drawings {
namespace {

using enum SceltaCampitura::Livello;

class Scelta : public test::ProvaCampiture {
 protected:
    Scelta() { test::scriviLibreria(programma, libreria); }

    test::LibreriaDiProva libreria{{5, {0.005, {{-100, -100, 100, 100}}, "Argilla grassa"}},
                                   {12, {0.01, {{1, 2, 3, 4}}, "Radici"}},
                                   {100, {0.01, {{1, 2, 3, 4}}, "Fuori codice"}}};
};

TEST_F(Scelta, OffersThePatternsThatACodeCanName) {
    const auto voci = vociCampitura();
    ASSERT_EQ(voci.size(), 3U);
    EXPECT_EQ(voci[0].numero, 0);
    EXPECT_EQ(voci[0].nome, "nessuna campitura");
    EXPECT_EQ(voci[1].numero, 5);
    EXPECT_EQ(voci[1].nome, "5 Argilla grassa");
    EXPECT_EQ(voci[2].nome, "12 Radici");
}

TEST_F(Scelta, NamesWhatTheLibraryLacks) {
    EXPECT_EQ(nomeCampitura(6), "6 non è nella libreria");
    EXPECT_EQ(figura("106").nome, "6 non è nella libreria");
    EXPECT_EQ(figura("Argilla").nome, "nessuna campitura");
    EXPECT_EQ(figura("112105C3 x").nome, "5 Argilla grassa, 12 Radici");
    EXPECT_EQ(figura("112105C3 x").codice, 112105);
}

TEST(VociCampitura, AreFoundByWordsOfTheirNameOrNumber) {
    const VoceCampitura voce{12, "12 Sabbia Però fine"};
    for (const char* si : {"", "sab", "SABBIA", "fine sab", "12", "perÒ", " 1  fine "})
        EXPECT_TRUE(trovata(voce, si)) << si;
    for (const char* no : {"argilla", "13", "sabbia grossa"}) EXPECT_FALSE(trovata(voce, no)) << no;
}

// The pens of the test have no names; black is what is left where they can't be read.
TEST_F(Scelta, HasAColourForEachNumber) {
    const auto colori = vociColore();
    ASSERT_EQ(colori.size(), 21U);
    EXPECT_EQ(colori.front().numero, 1);
    EXPECT_EQ(colori.back().numero, 21);
}

TEST(SceltaCampitura, WritesTheCodeOfWhatIsChosen) {
    SceltaCampitura scelta("Argilla grigia");
    EXPECT_EQ(scelta.descrizione(), "0 Argilla grigia");
    EXPECT_FALSE(scelta.puoTogliereLinea());
    scelta.scegli(sotto, {5, 1});
    scelta.colora(3);
    EXPECT_EQ(scelta.descrizione(), "105C3 Argilla grigia");
    scelta.scegli(sopra, {12, 3});
    scelta.traccia(false);
    EXPECT_EQ(scelta.descrizione(), "-312105C3 Argilla grigia");
    EXPECT_EQ(scelta.campitura(), 312105);
}

TEST(SceltaCampitura, LeavesACodeThatNobodyTouchedAsItWasWritten) {
    for (const char* testo : {"0105c3a20 Argilla", "12000 x", "100 x", "-0 x"})
        EXPECT_EQ(SceltaCampitura(testo).descrizione(), testo);
}

TEST(SceltaCampitura, TakesAPatternOverNoneForThatPatternAlone) {
    SceltaCampitura scelta("112105 Argilla");
    scelta.scegli(sotto, {0, 1});
    EXPECT_EQ(scelta.descrizione(), "112 Argilla");
    scelta.scegli(sopra, {0, 1});
    EXPECT_EQ(scelta.descrizione(), "0 Argilla");
}

TEST(SceltaCampitura, KeepsPatternsAboveThoseThatItShows) {
    SceltaCampitura scelta("107112105 Argilla");
    scelta.scegli(sotto, {3, 1});
    EXPECT_EQ(scelta.descrizione(), "107112103 Argilla");
    EXPECT_EQ(scelta.gruppo(sopra), (GruppoCampitura{12, 1}));
}

TEST(SceltaCampitura, DrawsTheLineAgainWhereNoHatchIsLeft) {
    SceltaCampitura scelta("-105 Argilla");
    scelta.scegli(sotto, {0, 1});
    EXPECT_EQ(scelta.descrizione(), "0 Argilla");
}

TEST_F(Scelta, HasTheCodeOfOnePatternAsTheLogReadsIt) {
    EXPECT_EQ(codiceCampitura({5, 1}), figura("105").codice);
    EXPECT_EQ(codiceCampitura({12, 1}), figura("112").codice);
}

}  // namespace
}  // namespace korven::drawings
