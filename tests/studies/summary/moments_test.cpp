#include "studies/summary/moments.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace korven::studies {
namespace {

// 2, 4, 4, 4, 5, 5, 7, 9: mean 5, squares of the deviations 9+1+1+1+0+0+4+16 = 32, over 7.
TEST(Momenti, AreThoseOfTheTextbook) {
    Momenti m;
    for (const double x : {2, 4, 4, 4, 5, 5, 7, 9}) m.prendi(x);
    EXPECT_EQ(m.numero(), 8U);
    EXPECT_DOUBLE_EQ(m.media(), 5);
    EXPECT_DOUBLE_EQ(m.scartoTipo(), std::sqrt(32.0 / 7));
    EXPECT_EQ(m.minimo(), 2);
    EXPECT_EQ(m.massimo(), 9);
}

// A sum of squares would have lost the deviation 1 beside 1e9.
TEST(Momenti, KeepTheDigitsOfSmallDeviations) {
    Momenti m;
    for (int i = 0; i < 1000; ++i) m.prendi(1e9 + (i % 2 == 0 ? 1 : -1));
    EXPECT_NEAR(m.scartoTipo(), std::sqrt(1000.0 / 999), 1e-9);
}

TEST(Momenti, HaveNoDeviationOfOneNumber) {
    Momenti m;
    EXPECT_EQ(m.scartoTipo(), 0);
    m.prendi(-3);
    EXPECT_EQ(m.media(), -3);
    EXPECT_EQ(m.massimo(), -3);
    EXPECT_EQ(m.scartoTipo(), 0);
}

}  // namespace
}  // namespace korven::studies
