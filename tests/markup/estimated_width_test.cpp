#include "markup/estimated_width.hpp"

#include <gtest/gtest.h>

namespace korven::markup {
namespace {

TEST(EstimatedWidth, GrowsWithSizeAndBoldness) {
    const ReportFont ten{"Arial", 10, false, false};
    EXPECT_DOUBLE_EQ(estimatedWidth(ten, "0.25"), 3 * 5.56 + 2.78);
    EXPECT_DOUBLE_EQ(estimatedWidth({"Arial", 20, false, false}, "0.25"), 2 * (3 * 5.56 + 2.78));
    EXPECT_DOUBLE_EQ(estimatedWidth({"Arial", 10, true, false}, "0.25"), 1.15 * (3 * 5.56 + 2.78));
    EXPECT_DOUBLE_EQ(estimatedWidth({"Courier New", 10, false, false}, "il"), 12);
    EXPECT_DOUBLE_EQ(estimatedWidth(ten, ""), 0);
}

}  // namespace
}  // namespace korven::markup
