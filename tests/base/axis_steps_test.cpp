#include "base/axis_steps.hpp"

#include <gtest/gtest.h>

namespace korven::base {
namespace {

TEST(PassoAsse, IsOneTwoOrFiveTimesAPowerOfTen) {
    EXPECT_DOUBLE_EQ(passoAsse(10, 5), 2);
    EXPECT_DOUBLE_EQ(passoAsse(10, 4), 5);
    EXPECT_DOUBLE_EQ(passoAsse(10, 1), 10);
    EXPECT_DOUBLE_EQ(passoAsse(700, 4), 200);
    EXPECT_DOUBLE_EQ(passoAsse(0.03, 4), 0.01);
    EXPECT_DOUBLE_EQ(passoAsse(6, 1), 10);
}

TEST(NumeroAsse, HasNoMoreDigitsThanItsStepNeeds) {
    EXPECT_EQ(numeroAsse(250, 50), "250");
    EXPECT_EQ(numeroAsse(-0.4, 0.2), "-0.4");
    EXPECT_EQ(numeroAsse(0.05, 0.05), "0.05");
    EXPECT_EQ(numeroAsse(0, 1), "0");
}

}  // namespace
}  // namespace korven::base
