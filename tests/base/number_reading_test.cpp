#include "base/number_reading.hpp"

#include <gtest/gtest.h>

#include <string>

namespace korven::base {
namespace {

TEST(LetturaMostrata, TellsTheNumberThatATextIsTakenForWhereItSaysMore) {
    EXPECT_EQ(letturaMostrata("20.5.7"), "letto come 20.5");
    EXPECT_EQ(letturaMostrata("20 m"), "letto come 20");
    EXPECT_EQ(letturaMostrata("1 2"), "letto come 1");
    EXPECT_EQ(letturaMostrata("-1.50x"), "letto come -1.5");
}

TEST(LetturaMostrata, NamesTheDecimalSignAfterAComma) {
    EXPECT_EQ(letturaMostrata("20,5"), "letto come 20: il segno decimale è il punto");
    EXPECT_EQ(letturaMostrata("0,5"), "letto come 0: il segno decimale è il punto");
}

TEST(LetturaMostrata, TellsZeroWhereNoNumberBeginsOrNoneIsLargeEnough) {
    for (const char* testo : {"abc", "-", "e", ".", "1e999"})
        EXPECT_EQ(letturaMostrata(testo), "letto come 0") << testo;
}

TEST(LetturaMostrata, IsSilentAboutANumberToItsEndAndAboutNothing) {
    for (const char* testo : {"", "  ", "20.5", " 20.5 ", "-.5", "+3", "1e3", "5.", "1e-999"})
        EXPECT_EQ(letturaMostrata(testo), "") << testo;
}

TEST(LetturaMostrata, IsNotLongerThanTheRoomThatFormsKeepForIt) {
    EXPECT_EQ(letturaPiuLunga(), "letto come -1234567.89: il segno decimale è il punto");
}

}  // namespace
}  // namespace korven::base
