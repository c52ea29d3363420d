#include "outdoc/paragraph.hpp"

#include <gtest/gtest.h>

namespace korven::outdoc {
namespace {

using markup::Alignment;
using markup::ReportFont;

bool holds(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

TEST(XmlText, EscapesWhatXmlMeansOtherwiseAndDropsWhatItCantHold) {
    EXPECT_EQ(xmlText("a<b & \"c\" > d"), "a&lt;b &amp; &quot;c&quot; &gt; d");
    EXPECT_EQ(xmlText("kN/m³ {Ø} \\"), "kN/m³ {Ø} \\");
    EXPECT_EQ(xmlText(std::string_view("a\0b\x1F\x0Dz", 6)), "abz");
}

TEST(Twentieths, RoundsAndStaysWithinThePageOfWordProcessors) {
    EXPECT_EQ(twentieths(10.03), "201");
    EXPECT_EQ(twentieths(-1), "-20");
    EXPECT_EQ(twentieths(1e9), "31680");
}

TEST(Run, NamesItsFontInHalfPoints) {
    const std::string words = run({"Arial", 10.5, true, false}, "x");
    EXPECT_TRUE(holds(words, "w:ascii=\"Arial\"")) << words;
    EXPECT_TRUE(holds(words, "<w:sz w:val=\"21\"/>")) << words;
    EXPECT_TRUE(holds(words, "<w:b/>"));
    EXPECT_FALSE(holds(words, "<w:i/>"));
    EXPECT_TRUE(holds(run({"Arial", 10, false, true}, "x"), "<w:i/>"));
}

TEST(Run, TakesArialAndTenPointsForAFontThatIsNone) {
    const std::string words = run({"", 0, false, false}, "x");
    EXPECT_TRUE(holds(words, "w:ascii=\"Arial\""));
    EXPECT_TRUE(holds(words, "<w:sz w:val=\"20\"/>"));
}

TEST(Run, TurnsTabsIntoTabs) {
    EXPECT_TRUE(holds(run({}, "a\tb"), ">a</w:t><w:tab/><w:t xml:space=\"preserve\">b</w:t>"));
}

TEST(Paragraph, SaysWhatItIsToldInTheOrderOfTheFormat) {
    Paragraph content;
    content.alignment = Alignment::right;
    content.style = "Title";
    content.keepWithNext = content.pageBreakBefore = true;
    content.indent = 7;
    content.tabs = {{100, false, true}, {50, true, false}};
    const std::string words = paragraph(content);
    std::size_t at = 0;
    for (const std::string_view part :
         {"<w:pStyle w:val=\"Title\"/>", "<w:keepNext/>", "<w:pageBreakBefore/>",
          "<w:tab w:val=\"right\" w:leader=\"dot\" w:pos=\"2000\"/>",
          "<w:tab w:val=\"center\" w:pos=\"1000\"/>", "<w:ind w:left=\"140\"/>",
          "<w:jc w:val=\"right\"/>", "<w:rPr>"}) {
        const auto found = words.find(part, at);
        ASSERT_NE(found, std::string::npos) << part << " in " << words;
        at = found;
    }
}

}  // namespace
}  // namespace korven::outdoc
