#include "base/case_form.hpp"

#include <gtest/gtest.h>

namespace korven::base {
namespace {

TEST(ConFormaDi, CapitalisedModelGivesFirstLetterUpperAndRestLower) {
    EXPECT_EQ(conFormaDi("Momento", "BENDING moment"), "Bending moment");
    EXPECT_EQ(conFormaDi("Èrba", "élan VITAL"), "Élan vital");
    EXPECT_EQ(conFormaDi("M", "BENDING"), "Bending");
}

TEST(ConFormaDi, LowerCaseModelGivesLowerCase) {
    EXPECT_EQ(conFormaDi("momento", "Bending Moment"), "bending moment");
}

TEST(ConFormaDi, UpperAndMixedModelsGiveUpperCase) {
    EXPECT_EQ(conFormaDi("MOMENTO", "Bending moment"), "BENDING MOMENT");
    EXPECT_EQ(conFormaDi("Momento Flettente", "Bending moment"), "BENDING MOMENT");
    EXPECT_EQ(conFormaDi("mOMENTO", "Bending"), "BENDING");
}

TEST(ConFormaDi, FirstCharacterWithoutCaseCountsAsLowerCase) {
    EXPECT_EQ(conFormaDi("&apri", "&Open"), "&open");
    EXPECT_EQ(conFormaDi("3 fasi", "3 Stages"), "3 stages");
    EXPECT_EQ(conFormaDi("&Apri", "&Open"), "&OPEN");  // the A comes after the first character
}

TEST(ConFormaDi, EmptyModelOrTextDoesNoHarm) {
    EXPECT_EQ(conFormaDi("", "Testo"), "testo");
    EXPECT_EQ(conFormaDi("Testo", ""), "");
}

}  // namespace
}  // namespace korven::base
