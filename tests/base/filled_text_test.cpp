#include "base/filled_text.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace korven::base {
namespace {

TEST(Riempito, PutsEachValueWhereTheTextNamesIt) {
    const std::vector<std::string> valori{"3.5 m", "12 kN"};
    EXPECT_EQ(riempito("a %1, circa %2", valori), "a 3.5 m, circa 12 kN");
    EXPECT_EQ(riempito("%2 bei %1 und %2", valori), "12 kN bei 3.5 m und 12 kN");
}

TEST(Riempito, LeavesPercentagesAndNamesWithoutAValueAlone) {
    const std::vector<std::string> valori{"7"};
    EXPECT_EQ(riempito("100 %, %2, %0, %x, %", valori), "100 %, %2, %0, %x, %");
    EXPECT_EQ(riempito("%1%", valori), "7%");
    EXPECT_EQ(riempito("", valori), "");
}

TEST(Riempito, DoesNotLookForNamesInsideAValue) {
    const std::vector<std::string> valori{"%2", "x"};
    EXPECT_EQ(riempito("%1 %2", valori), "%2 x");
}

}  // namespace
}  // namespace korven::base
