#include "help/places.hpp"

#include <gtest/gtest.h>

namespace korven::help {
namespace {

TEST(VoceForma, IsZeroForAnyOtherWindow) {
    EXPECT_EQ(voceForma("menu1"), 0);
    EXPECT_EQ(voceForma(""), 0);
}

TEST(SenzaF1, HoldsForTheFieldFormAlone) {
    EXPECT_TRUE(senzaF1("base1"));
    EXPECT_TRUE(senzaF1("base1_6"));
    EXPECT_FALSE(senzaF1("base2_32"));
    EXPECT_FALSE(senzaF1(""));
}

TEST(AncoraCampo, LeavesTheNumberOfOneAmongEqualsOut) {
    EXPECT_EQ(ancoraCampo("Option1_3"), "campoOption1");
    EXPECT_EQ(ancoraCampo("Text25"), "campoText25");
    EXPECT_EQ(ancoraCampo("4"), "campo4");
    EXPECT_EQ(ancoraCampo(""), "");
    EXPECT_EQ(ancoraCampo("_x"), "");
}

TEST(AncoraColonna, CountsTheRowNumbersAsTheFirstField) {
    EXPECT_EQ(ancoraColonna(0), "campo2");
    EXPECT_EQ(ancoraColonna(6), "campo8");
}

TEST(VoceForma, OfTheWindowsBesideTheMainFormIsThatOfTheirMenuItem) {
    EXPECT_EQ(voceForma("risultati"), 36);
    EXPECT_EQ(voceForma("sicurezza"), 37);
    EXPECT_EQ(voceForma("allegato"), 43);
    EXPECT_EQ(voceForma("confronto"), 44);
    EXPECT_EQ(voceForma("norme"), 45);
    EXPECT_EQ(voceForma("studio"), 46);
}

}  // namespace
}  // namespace korven::help
