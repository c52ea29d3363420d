#include "markup/report_page.hpp"

#include <gtest/gtest.h>

namespace korven::markup {
namespace {

TEST(UsableLength, IsACentimetreShortInWholePoints) {
    EXPECT_DOUBLE_EQ(usableLength(595.3), 566);  // 595.3 - 28.3465 = 566.95
    EXPECT_DOUBLE_EQ(usableLength(841.9), 813);  // 813.55
    EXPECT_DOUBLE_EQ(usableLength(10), -19);     // -18.35: rounded down
}

TEST(AlignedX, PlacesLeftCentredAndRight) {
    const LineRoom room{50, 400};
    EXPECT_DOUBLE_EQ(alignedX(Alignment::left, room, 100), 50);
    EXPECT_DOUBLE_EQ(alignedX(Alignment::centre, room, 100), 200);
    EXPECT_DOUBLE_EQ(alignedX(Alignment::right, room, 100), 350);
}

TEST(AlignedX, LetsWhatIsTooWideStickOut) {
    const LineRoom room{50, 400};
    EXPECT_DOUBLE_EQ(alignedX(Alignment::left, room, 500), 50);
    EXPECT_DOUBLE_EQ(alignedX(Alignment::centre, room, 500), 0);
    EXPECT_DOUBLE_EQ(alignedX(Alignment::right, room, 500), -50);
}

TEST(ReportPage, KnowsWhereHeaderBodyAndFooterAre) {
    ReportPage page{{.leftMargin = 56,
                     .rightMargin = 28,
                     .topMargin = 40,
                     .bottomMargin = 30,
                     .headerGap = 20,
                     .footerGap = 10,
                     .headerFontSize = 12,
                     .headerFontName = "Arial"},
                    566,
                    813};
    EXPECT_DOUBLE_EQ(page.room().left, 56);
    EXPECT_DOUBLE_EQ(page.room().width, 482);
    EXPECT_DOUBLE_EQ(page.bodyTop(14), 74);
    EXPECT_DOUBLE_EQ(page.footerTop(14), 769);
    EXPECT_DOUBLE_EQ(page.limit(11), 762);  // the line height is that of the body
}

}  // namespace
}  // namespace korven::markup
