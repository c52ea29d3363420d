#include "plot/plotted_number.hpp"

#include <gtest/gtest.h>

namespace korven::plot {
namespace {

TEST(TestoPlotNumero, KeepsThePointWithZeroDecimalsAndTakesItOffWithMinusOne) {
    EXPECT_EQ(testoPlotNumero(1.5, 0), "1.");
    EXPECT_EQ(testoPlotNumero(1.5, -1), "1");
    EXPECT_EQ(testoPlotNumero(1.5, 3), "1.500");
}

TEST(TestoPlotNumero, CutsDigitsAndDoesNotRoundThem) {
    EXPECT_EQ(testoPlotNumero(2.678, 1), "2.6");
    EXPECT_EQ(testoPlotNumero(2.999, 2), "2.99");
    EXPECT_EQ(testoPlotNumero(9.99, -1), "9");
}

TEST(TestoPlotNumero, HasFiveDecimalsOfWhichTheLastIsRounded) {
    EXPECT_EQ(testoPlotNumero(0.123456, 5), "0.12346");
    EXPECT_EQ(testoPlotNumero(0.1, 5), "0.10000");
    EXPECT_EQ(testoPlotNumero(0.1, 9), "0.10000");
}

TEST(TestoPlotNumero, KeepsTheLeadingZerosOfTheFraction) {
    EXPECT_EQ(testoPlotNumero(3.00071, 5), "3.00071");
    EXPECT_EQ(testoPlotNumero(3.05, 2), "3.05");
}

TEST(TestoPlotNumero, FractionThatRoundsToOneIsCarried) {
    EXPECT_EQ(testoPlotNumero(1.999996, 2), "2.00");
    EXPECT_EQ(testoPlotNumero(1.999994, 5), "1.99999");
    EXPECT_EQ(testoPlotNumero(-0.999999, 1), "-1.0");
}

TEST(TestoPlotNumero, NegativeNumberHasItsSignInFront) {
    EXPECT_EQ(testoPlotNumero(-12.25, 2), "-12.25");
    EXPECT_EQ(testoPlotNumero(-0.3, -1), "-0");
    EXPECT_EQ(testoPlotNumero(-0.0, 1), "0.0");
}

TEST(TestoPlotNumero, WholePartHasAllItsDigits) {
    EXPECT_EQ(testoPlotNumero(0, -1), "0");
    EXPECT_EQ(testoPlotNumero(1234567.5, 1), "1234567.5");
}

}  // namespace
}  // namespace korven::plot
