#include "base/decimal_commas.hpp"

#include <gtest/gtest.h>

namespace korven::base {
namespace {

TEST(ConIlPunto, GivesTheNumberOfADecimalComma) {
    EXPECT_EQ(conIlPunto("18,5"), "18.5");
    EXPECT_EQ(conIlPunto(" -0,75 "), " -0.75 ");
    EXPECT_EQ(conIlPunto(",5"), ".5");
    EXPECT_EQ(conIlPunto("1,5e3"), "1.5e3");
}

TEST(ConIlPunto, LeavesAllElseAlone) {
    for (const char* testo : {"18.5", "18", "", ",", "1,2,3", "1.234,5", "1,234.5", "1,5 m", "a,b"})
        EXPECT_FALSE(conIlPunto(testo)) << testo;
}

}  // namespace
}  // namespace korven::base
