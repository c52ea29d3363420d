#include "batch/run/csv.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace korven::batch {
namespace {

constexpr std::string_view nomi[] = {"a", "b", "c"};

TEST(RigheCsv, EndsEveryLineWithCrLfAndPartsFieldsByCommas) {
    RigheCsv righe(nomi);
    righe.campo(1).campo("due").campo(std::optional(2.5));
    righe.fineRiga();
    EXPECT_EQ(righe.testo(), "a,b,c\r\n1,due,2.5\r\n");
}

TEST(RigheCsv, QuotesWhatWouldEndAField) {
    RigheCsv righe(nomi);
    righe.campo("a,b").campo("\"c\"").campo("d\ne");
    righe.fineRiga();
    EXPECT_EQ(righe.testo(), "a,b,c\r\n\"a,b\",\"\"\"c\"\"\",\"d\ne\"\r\n");
}

TEST(RigheCsv, LeavesTheFieldOfNoNumberEmpty) {
    RigheCsv righe(nomi);
    righe.campo(std::optional<double>()).campo(std::numeric_limits<double>::infinity()).campo("");
    righe.fineRiga();
    EXPECT_EQ(righe.testo(), "a,b,c\r\n,,\r\n");
}

}  // namespace
}  // namespace korven::batch
