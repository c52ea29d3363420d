#include "base/source_date.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace korven::base {
namespace {

TEST(SecondiEpoca, AreWholeNumbersUpToTheLastYearOfFourDigits) {
    for (const char* no :
         {"", "ieri", "12x", "-1", "1.5", " 1", "253402300800", "99999999999999999999"})
        EXPECT_FALSE(secondiEpoca(no)) << no;
    EXPECT_EQ(secondiEpoca("0"), 0);
    EXPECT_EQ(secondiEpoca("1700000000"), 1700000000);
    EXPECT_EQ(secondiEpoca("253402300799"), fineEpoca - 1);
}

TEST(EpocaVoluta, IsWhatTheEnvironmentSaysIfAnything) {
    ASSERT_EQ(::setenv("SOURCE_DATE_EPOCH", "ieri", 1), 0);
    EXPECT_EQ(epocaVoluta(), "ieri") << "whoever can tell the user looks at it";
    ASSERT_EQ(::setenv("SOURCE_DATE_EPOCH", "", 1), 0);
    EXPECT_FALSE(epocaVoluta());
    ASSERT_EQ(::unsetenv("SOURCE_DATE_EPOCH"), 0);
    EXPECT_FALSE(epocaVoluta());
}

}  // namespace
}  // namespace korven::base
