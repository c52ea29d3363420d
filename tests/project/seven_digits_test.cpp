#include "project/seven_digits.hpp"

#include <gtest/gtest.h>

namespace korven::project {
namespace {

TEST(ConSetteCifre, RoundsWhatAProgramWroteAndKeepsWhatAPersonTyped) {
    EXPECT_EQ(conSetteCifre(8.53333333333333), 8.533333);
    EXPECT_EQ(conSetteCifre(-3.6923077), -3.692308);
    EXPECT_EQ(conSetteCifre(12.5), 12.5);
    EXPECT_EQ(conSetteCifre(1000000000), 1000000000);
    EXPECT_EQ(conSetteCifre(0), 0);
}

}  // namespace
}  // namespace korven::project
